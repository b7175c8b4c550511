#include <VyrHost/reports/Design.h>

#include <VyrHost/text/Errors.h>
#include <VyrPlatform/process/ComApartment.h>

#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>

#include <gmock/gmock.h>

using namespace VyrHost::Reports;
using VyrHost::Text::UsageError;

namespace {

class DesignsTest : public testing::Test
{
protected:
    [[nodiscard]] std::vector<Design> Read(const std::string& items) const
    {
        return ReadDesigns(
            m_folder.WriteFile(u"designs.xml", "<d><design><moreinfo>" + items + "</moreinfo></design></d>"),
            "--designs");
    }
    [[nodiscard]] const VyrTests::ScratchFolder& Folder() const { return m_folder; }

private:
    VyrPlatform::ComApartment m_apartment;
    VyrTests::ScratchFolder m_folder;
};

} // namespace

TEST_F(DesignsTest, ItemsAreDesigns)
{
    const std::vector<Design> designs =
        Read("<item id='1' name='a' value='td { color: red }'/><item id='2' name='b' value=''/>");
    ASSERT_EQ(designs.size(), 2U);
    EXPECT_EQ(designs[0].name, u"a");
    EXPECT_EQ(designs[0].style, u"td { color: red }");
    EXPECT_EQ(designs[1].name, u"b");
    EXPECT_EQ(designs[1].style, u"");
}

TEST_F(DesignsTest, DocumentWithoutDesignsIsRefused)
{
    EXPECT_THROW(Read(""), UsageError);
    EXPECT_THROW(ReadDesigns(Folder().WriteFile(u"text.xml", "not XML"), "--designs"), UsageError);
    EXPECT_THROW(ReadDesigns(Folder().Path(u"missing.xml"), "--designs"), UsageError);
    EXPECT_THROW(ReadDesigns(Folder().MakeFolder(u"folder.xml"), "--designs"), UsageError);
}

TEST_F(DesignsTest, StyleThatEndsItsElementIsRefused)
{
    for (const char* const style : {"&lt;/style>&lt;script>", "a &lt;/STYLE x", "&#60;/Style"})
        EXPECT_THROW(Read("<item name='a' value=''/><item name='b' value='" + std::string(style) + "'/>"), UsageError)
            << style;
    EXPECT_EQ(Read("<item name='a' value='a &lt; b &gt; c /style'/>").size(), 1U);
}

TEST_F(DesignsTest, DesignIsChosenByItsName)
{
    const std::vector<Design> designs = {{u"plain", u"1"}, {u"Cards", u"2"}};
    EXPECT_EQ(ChooseDesign(designs, {}).style, u"1");
    EXPECT_EQ(ChooseDesign(designs, u"cards").style, u"2");
    try {
        static_cast<void>(ChooseDesign(designs, u"x"));
        ADD_FAILURE() << "no exception";
    } catch (const UsageError& error) {
        EXPECT_THAT(error.what(), testing::HasSubstr("plain, Cards"));
    }
}

TEST_F(DesignsTest, ShippedDocumentHasThreeDesigns)
{
    const std::vector<Design> designs = ReadDesigns(ShippedDesignsPath(), "the shipped designs");
    ASSERT_EQ(designs.size(), 3U);
    EXPECT_EQ(designs[0].name, u"plain");
    EXPECT_EQ(designs[1].name, u"cards");
    EXPECT_EQ(designs[2].name, u"print");
}
