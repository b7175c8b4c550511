#include <VyrLibraryFuncs/xmlinfo/MSXMLFuncs.h>
#include <VyrLibraryFuncs/xmlinfo/UpdatesFuncs.h>

#include <VyrPlatform/documents/ComText.h>
#include <VyrPlatform/process/ComApartment.h>

#include <tests/VyrLibraryFuncs/PrivateOperations.h>
#include <tests/support/Describe.h>
#include <tests/support/EmptiedQueue.h>
#include <tests/support/MessagePosting.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

using VyrLibraryFuncs::MSXMLFuncs;
using VyrLibraryFuncs::PrivateOperations;
using VyrLibraryFuncs::UpdatesFuncs;

namespace {

using Items = std::vector<std::pair<int, CString>>;

class UpdatesDocumentTest : public testing::Test
{
protected:
    UpdatesDocumentTest() { Reset(); }
    ~UpdatesDocumentTest() override { Reset(); }

    [[nodiscard]] int Read(const std::string& document) const
    {
        return UpdatesFuncs::GetUpdatesInformation(m_folder.WriteFile(u"updates.xml", document));
    }
    [[nodiscard]] static Items List()
    {
        Items items;
        for (const UpdatesFuncs::UPDATEITEM& item : UpdatesFuncs::GetUpdateItemsList())
            items.emplace_back(item.category, item.description);
        return items;
    }
    /// The seven texts that a document fills.
    [[nodiscard]] static std::vector<CString> Settings()
    {
        return {UpdatesFuncs::GetType(),       UpdatesFuncs::GetProductName(), UpdatesFuncs::GetVersion(),
                UpdatesFuncs::GetEdition(),    UpdatesFuncs::GetPlatformBit(), UpdatesFuncs::GetDetailsURL(),
                UpdatesFuncs::GetDownloadURL()};
    }
    [[nodiscard]] const VyrTests::ScratchFolder& Folder() const { return m_folder; }

private:
    static void Reset()
    {
        UpdatesFuncs::InitializeUpdatesInformation();
        UpdatesFuncs::SetPlatformBit({});
        UpdatesFuncs::SetCheckedDate({});
    }

    VyrPlatform::ComApartment m_apartment;
    VyrTests::ScratchFolder m_folder;
};

/// `count` items, each with its number.
std::string ItemsOf(int count)
{
    std::string items;
    for (int i = 1; i <= count; ++i)
        items += "<item><category>" + std::to_string(i) + "</category><description>d</description></item>";
    return items;
}

} // namespace

TEST_F(UpdatesDocumentTest, DocumentFillsTheSettings)
{
    UpdatesFuncs::SetCheckedDate(u"date");
    EXPECT_EQ(
        Read("<any><update type='t' name='n' version='1.2.3.4' edition='e' platformbit='64' detailsURL='https://a'"
             " downloadURL='https://b'><moreinfo><item><category>2</category><description> A line </description>"
             "</item><item><category>-3</category><description>B</description></item></moreinfo></update></any>"),
        1);
    EXPECT_EQ(Settings(), (std::vector<CString>{u"t", u"n", u"1.2.3.4", u"e", u"64", u"https://a", u"https://b"}));
    EXPECT_EQ(List(), (Items{{2, u"A line"}, {-3, u"B"}}));
    EXPECT_EQ(UpdatesFuncs::GetCheckedDate(), u"date");
}

TEST_F(UpdatesDocumentTest, AttributesAreThoseOfTheFirstElementAndItemsThoseOfTheLast)
{
    EXPECT_EQ(Read("<r><update name='first' version='1'><moreinfo><item><description>f</description></item></moreinfo>"
                   "</update><update name='last' edition='e'><moreinfo><item><description>l</description></item>"
                   "</moreinfo></update></r>"),
              1);
    EXPECT_EQ(UpdatesFuncs::GetProductName(), u"first");
    EXPECT_EQ(UpdatesFuncs::GetVersion(), u"1");
    EXPECT_EQ(UpdatesFuncs::GetEdition(), u"");
    EXPECT_EQ(List(), (Items{{0, u"l"}}));
    EXPECT_EQ(Read("<r><update><moreinfo><item/></moreinfo></update><update/></r>"), 1);
    EXPECT_EQ(List(), Items{}) << "the last one has none";
}

TEST_F(UpdatesDocumentTest, OnlyThePlatformsBitsSurviveANewReading)
{
    for (const auto set :
         {UpdatesFuncs::SetType, UpdatesFuncs::SetProductName, UpdatesFuncs::SetVersion, UpdatesFuncs::SetEdition,
          UpdatesFuncs::SetPlatformBit, UpdatesFuncs::SetDetailsURL, UpdatesFuncs::SetDownloadURL})
        set(u"old");
    UpdatesFuncs::SetUpdateItemsList({{1, u"old"}});
    EXPECT_EQ(Read("<r><update/></r>"), 1);
    EXPECT_EQ(Settings(), (std::vector<CString>{u"", u"", u"", u"", u"old", u"", u""}));
    EXPECT_EQ(List(), Items{});
    EXPECT_EQ(Read("<r><update platformbit=''/></r>"), 1);
    EXPECT_EQ(UpdatesFuncs::GetPlatformBit(), u"") << "present and empty";
}

TEST_F(UpdatesDocumentTest, DocumentThatDoesNotLoadLeavesTheSettingsReset)
{
    for (const char* const document : {"", "not XML", "<r/>", "<r><UPDATE name='x'/></r>", "<update name='x'/>"}) {
        UpdatesFuncs::SetVersion(u"old");
        EXPECT_EQ(Read(document), 0) << document;
        EXPECT_EQ(Settings(), std::vector<CString>(7)) << document;
    }
    UpdatesFuncs::SetVersion(u"old");
    EXPECT_EQ(UpdatesFuncs::GetUpdatesInformation(Folder().Path(u"missing.xml")), 0);
    EXPECT_EQ(UpdatesFuncs::GetVersion(), u"");
    EXPECT_EQ(UpdatesFuncs::GetUpdatesInformation({}), 0);
}

TEST_F(UpdatesDocumentTest, ElementsAreFoundAtAnyDepthAndWithAnyPrefix)
{
    EXPECT_EQ(Read("<r xmlns:x='urn:x'><a><x:update version='9'><b><x:moreinfo><c><x:item><d><x:category>5</x:category>"
                   "</d><x:description>deep</x:description></x:item></c></x:moreinfo></b></x:update></a></r>"),
              1);
    EXPECT_EQ(UpdatesFuncs::GetVersion(), u"9");
    EXPECT_EQ(List(), (Items{{5, u"deep"}}));
}

TEST_F(UpdatesDocumentTest, CategoryIsCarriedOnAndTheDescriptionIsNot)
{
    EXPECT_EQ(Read("<r><update><moreinfo><item><description>a</description></item>"
                   "<item><category>7</category></item><item><description>b</description></item></moreinfo>"
                   "<moreinfo><item/><item><category>x</category></item></moreinfo></update></r>"),
              1);
    EXPECT_EQ(List(), (Items{{0, u"a"}, {7, u""}, {7, u"b"}, {7, u""}, {0, u""}}));
    EXPECT_EQ(Read("<r><update><moreinfo><item><category>7</category></item></moreinfo></update>"
                   "<update><moreinfo><item/></moreinfo></update></r>"),
              1);
    EXPECT_EQ(List(), (Items{{0, u""}})) << "each element's list begins with 0";
}

TEST_F(UpdatesDocumentTest, LastCategoryAndDescriptionOfAnItemCount)
{
    EXPECT_EQ(Read("<r><update><moreinfo><item><category>1</category><description>a</description><category>2</category>"
                   "<description>b<i>c</i></description></item></moreinfo></update></r>"),
              1);
    EXPECT_EQ(List(), (Items{{2, u"bc"}}));
}

TEST_F(UpdatesDocumentTest, NestedElementsCountForEachParent)
{
    EXPECT_EQ(Read("<r><update><moreinfo><moreinfo><item><description>a</description><item><description>b</description>"
                   "</item></item></moreinfo></moreinfo></update></r>"),
              1);
    EXPECT_EQ(List(), (Items{{0, u"b"}, {0, u"b"}, {0, u"b"}, {0, u"b"}}));
}

TEST_F(UpdatesDocumentTest, PendingEventsAreHandledBeforeEachElement)
{
    const VyrTests::MessagePosting posting;
    const VyrTests::EmptiedQueue emptied;
    int handled = 0;
    for (int i = 0; i < 20; ++i)
        posting.PostWork([&] { ++handled; });
    // One at the start, one for the update, one for the moreinfo, three for the items.
    EXPECT_EQ(Read("<r><update><moreinfo>" + ItemsOf(3) + "</moreinfo></update></r>"), 1);
    EXPECT_EQ(handled, 6);
}

TEST_F(UpdatesDocumentTest, StopEndsTheListThatIsBeingWalked)
{
    const std::string document = "<r><update name='n'><moreinfo>" + ItemsOf(5) + "</moreinfo><moreinfo>" + ItemsOf(2) +
                                 "</moreinfo></update></r>";
    // How many events are handled before the stop, the result, and the categories read.
    struct Case
    {
        int before;
        int result;
        std::vector<int> categories;
    };
    for (const Case& test : {Case{0, 1, {1, 2, 3, 4, 5, 1, 2}}, Case{1, 0, {}}, Case{2, 1, {}}, Case{3, 1, {1, 2}},
                             Case{5, 1, {1, 2, 1, 2}}, Case{8, 1, {1, 2, 3, 4, 5}}}) {
        const VyrTests::MessagePosting posting;
        const VyrTests::EmptiedQueue emptied;
        for (int i = 0; i < test.before; ++i)
            posting.PostWork([&posting, isLast = i + 1 == test.before] {
                if (isLast)
                    posting.PostStop();
            });
        if (test.before == 0)
            posting.PostStop();
        EXPECT_EQ(Read(document), test.result) << test.before;
        std::vector<int> categories;
        for (const UpdatesFuncs::UPDATEITEM& item : UpdatesFuncs::GetUpdateItemsList())
            categories.push_back(item.category);
        EXPECT_EQ(categories, test.categories) << test.before;
        EXPECT_EQ(UpdatesFuncs::GetProductName(), test.result == 1 ? u"n" : u"") << test.before;
    }
}

TEST_F(UpdatesDocumentTest, LoadedDocumentIsReadWithoutAReset)
{
    const auto document = MSXMLFuncs::LoadXmlFile(Folder().WriteFile(u"u.xml", "<r><update name='n'/></r>"));
    UpdatesFuncs::SetVersion(u"kept");
    EXPECT_EQ(PrivateOperations::SetUpdatesAttributes(document), 1);
    EXPECT_EQ(UpdatesFuncs::GetProductName(), u"n");
    EXPECT_EQ(UpdatesFuncs::GetVersion(), u"kept");
}

TEST_F(UpdatesDocumentTest, DocumentWithoutARootIsNotRead)
{
    constexpr CLSID documentClass{0xF5078F32, 0xC551, 0x11D3, {0x89, 0xB9, 0x00, 0x00, 0xF8, 0x1F, 0xE2, 0x21}};
    EXPECT_EQ(PrivateOperations::SetUpdatesAttributes(MSXML2::IXMLDOMDocumentPtr(documentClass)), 0);
}

TEST_F(UpdatesDocumentTest, ItemsAreReadFromAGivenList)
{
    const auto document = MSXMLFuncs::LoadXmlFile(Folder().WriteFile(
        u"u.xml", "<r><moreinfo>" + ItemsOf(1) + "</moreinfo><moreinfo>" + ItemsOf(2) + "</moreinfo></r>"));
    MSXML2::IXMLDOMElementPtr root;
    ASSERT_EQ(document->get_documentElement(&root), S_OK);
    MSXML2::IXMLDOMNodeListPtr list;
    ASSERT_EQ(root->getElementsByTagName(VyrPlatform::ToBstr(u"moreinfo"), &list), S_OK);
    EXPECT_EQ(PrivateOperations::GetMoreInfoElementItems(list).size(), 3U);
}
