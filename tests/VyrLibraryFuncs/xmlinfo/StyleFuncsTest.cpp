#include <VyrLibraryFuncs/xmlinfo/MSXMLFuncs.h>
#include <VyrLibraryFuncs/xmlinfo/StyleFuncs.h>

#include <VyrPlatform/documents/ComText.h>
#include <VyrPlatform/process/ComApartment.h>

#include <tests/VyrLibraryFuncs/PrivateOperations.h>
#include <tests/support/Describe.h>
#include <tests/support/EmptiedQueue.h>
#include <tests/support/MessagePosting.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

using VyrLibraryFuncs::MSXMLFuncs;
using VyrLibraryFuncs::PrivateOperations;
using VyrLibraryFuncs::StyleFuncs;

namespace {

using Items = std::vector<std::tuple<int, CString, CString>>;

class StyleFuncsTest : public testing::Test
{
protected:
    StyleFuncsTest() { StyleFuncs::InitializeStylesInformation(); }
    ~StyleFuncsTest() override { StyleFuncs::InitializeStylesInformation(); }

    [[nodiscard]] int Read(const std::string& document) const
    {
        return StyleFuncs::GetStylesInformation(m_folder.WriteFile(u"designs.xml", document));
    }
    [[nodiscard]] static Items List()
    {
        Items items;
        for (const StyleFuncs::DESIGNITEM& item : StyleFuncs::GetDesignItemsList())
            items.emplace_back(item.id, item.value, item.name);
        return items;
    }
    [[nodiscard]] const VyrTests::ScratchFolder& Folder() const { return m_folder; }

private:
    VyrPlatform::ComApartment m_apartment;
    VyrTests::ScratchFolder m_folder;
};

} // namespace

TEST_F(StyleFuncsTest, ListIsReplacedByACopyAndEmptied)
{
    StyleFuncs::SetDesignItemsList({{1, u"v", u"n"}, {2, u"w", u"m"}});
    EXPECT_EQ(List(), (Items{{1, u"v", u"n"}, {2, u"w", u"m"}}));
    StyleFuncs::InitializeStylesInformation();
    EXPECT_EQ(List(), Items{});
}

TEST_F(StyleFuncsTest, ItemsAreReadInTheirOrder)
{
    EXPECT_EQ(Read("<any><design><moreinfo><item id='3' value='v' name='n'/><item id='-1' value='w' name=' m '/>"
                   "</moreinfo><moreinfo><item id='9' value='' name=''/></moreinfo></design></any>"),
              1);
    EXPECT_EQ(List(), (Items{{3, u"v", u"n"}, {-1, u"w", u" m "}, {9, u"", u""}}));
}

TEST_F(StyleFuncsTest, AbsentAttributeRepeatsTheOneBeforeInTheSameMoreInfo)
{
    EXPECT_EQ(Read("<r><design><moreinfo><item id='1'/><item value='v' name='n'/><item id='2'/></moreinfo>"
                   "<moreinfo><item value='w'/><item name=''/></moreinfo></design></r>"),
              1);
    EXPECT_EQ(List(), (Items{{1, u"", u""}, {1, u"v", u"n"}, {2, u"v", u"n"}, {0, u"w", u""}, {0, u"w", u""}}));
}

TEST_F(StyleFuncsTest, InvalidIdIsZero)
{
    EXPECT_EQ(Read("<r><design><moreinfo><item id='5'/><item id='x'/><item id=''/><item id=' 7 '/></moreinfo></design>"
                   "</r>"),
              1);
    EXPECT_EQ(List(), (Items{{5, u"", u""}, {0, u"", u""}, {0, u"", u""}, {7, u"", u""}}));
}

TEST_F(StyleFuncsTest, LastDesignCounts)
{
    EXPECT_EQ(Read("<r><design><moreinfo><item id='1'/></moreinfo></design><design><moreinfo><item id='2'/></moreinfo>"
                   "</design></r>"),
              1);
    EXPECT_EQ(List(), (Items{{2, u"", u""}}));
    EXPECT_EQ(Read("<r><design><moreinfo><item id='1'/></moreinfo></design><design/></r>"), 1);
    EXPECT_EQ(List(), Items{});
}

TEST_F(StyleFuncsTest, ElementsAreFoundAtAnyDepthAndWithAnyPrefix)
{
    EXPECT_EQ(Read("<r xmlns:x='urn:x'><a><x:design><b><x:moreinfo><c><x:item id='4' x:name='no'/></c></x:moreinfo></b>"
                   "</x:design></a></r>"),
              1);
    EXPECT_EQ(List(), (Items{{4, u"", u""}}));
}

TEST_F(StyleFuncsTest, MissingFileKeepsTheList)
{
    StyleFuncs::SetDesignItemsList({{1, u"v", u"n"}});
    EXPECT_EQ(StyleFuncs::GetStylesInformation(Folder().Path(u"missing.xml")), 0);
    EXPECT_EQ(StyleFuncs::GetStylesInformation({}), 0);
    EXPECT_EQ(List().size(), 1U);
}

TEST_F(StyleFuncsTest, FileThatDoesNotLoadEmptiesTheList)
{
    for (const char* const document : {"", "not XML", "<r><design>", "<r/>", "<design/>", "<r><Design/></r>"}) {
        StyleFuncs::SetDesignItemsList({{1, u"v", u"n"}});
        EXPECT_EQ(Read(document), 0) << document;
        EXPECT_EQ(List(), Items{}) << document;
    }
}

TEST_F(StyleFuncsTest, StopEndsTheListThatIsBeingWalked)
{
    const std::string document = "<r><design><moreinfo><item id='1'/><item id='2'/><item id='3'/></moreinfo>"
                                 "<moreinfo><item id='4'/></moreinfo></design></r>";
    // How many events are handled before the stop, the result, and how many items are read.
    struct Case
    {
        int before;
        int result;
        std::size_t count;
    };
    for (const Case& test : {Case{0, 1, 4}, Case{1, 0, 0}, Case{2, 1, 0}, Case{3, 1, 1}, Case{4, 1, 2}, Case{6, 1, 3},
                             Case{7, 1, 3}, Case{8, 1, 4}}) {
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
        EXPECT_EQ(List().size(), test.count) << test.before;
    }
}

TEST_F(StyleFuncsTest, PrivateOperationsTakeALoadedDocument)
{
    const auto document = MSXMLFuncs::LoadXmlFile(
        Folder().WriteFile(u"d.xml", "<r><design><moreinfo><item id='1'/><item id='2'/></moreinfo></design></r>"));
    EXPECT_EQ(PrivateOperations::SetStylesAttributes(document), 1);
    EXPECT_EQ(List().size(), 2U);
    MSXML2::IXMLDOMElementPtr root;
    ASSERT_EQ(document->get_documentElement(&root), S_OK);
    MSXML2::IXMLDOMNodeListPtr list;
    ASSERT_EQ(root->getElementsByTagName(VyrPlatform::ToBstr(u"moreinfo"), &list), S_OK);
    EXPECT_EQ(PrivateOperations::GetDesignMoreInfoElementItems(list).size(), 2U);
}
