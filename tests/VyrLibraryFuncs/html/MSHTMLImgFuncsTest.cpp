// The pictures of a page, fitted into the window that shows it.
#include <VyrLibraryFuncs/html/MSHTMLImgFuncs.h>

#include <tests/VyrLibraryFuncs/PrivateOperations.h>
#include <tests/support/HtmlPage.h>
#include <tests/support/NoTextMemory.h>

#include <VyrPlatform/documents/ComPointer.h>

#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <string>
#include <vector>

using VyrLibraryFuncs::MSHTMLImgFuncs;
using VyrLibraryFuncs::PrivateOperations;
using VyrTests::HtmlElement;
using VyrTests::HtmlPage;
using VyrTests::NoTextMemory;

namespace {

constexpr std::int32_t greatest = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t least = std::numeric_limits<std::int32_t>::min();
const CRect view(0, 0, 800, 600);

HtmlElement Image(std::int32_t width, std::int32_t height, HtmlElement::Fault fault = HtmlElement::Fault::None)
{
    HtmlElement element;
    element.address = u"a.png";
    element.width = width;
    element.height = height;
    element.fault = fault;
    return element;
}

/// The style that an element got, as CSS; empty when it got none.
std::u16string StyleOf(const HtmlElement& element)
{
    std::u16string style;
    if (element.styleWidth)
        style += u"width:" + std::u16string(*element.styleWidth) + u";";
    if (element.styleHeight)
        style += u"height:" + std::u16string(*element.styleHeight) + u";";
    return style;
}

/// The styles of `elements` after fitting them into `client`. All interfaces must have been released.
std::vector<std::u16string> StylesAfter(std::vector<HtmlElement> elements, CRect client,
                                        HtmlPage::Fault fault = HtmlPage::Fault::None)
{
    HtmlPage page(std::move(elements), fault);
    MSHTMLImgFuncs::SetResizeImgStyle(page.Document(), client);
    EXPECT_EQ(page.CountOwners(), 0);
    std::vector<std::u16string> styles;
    for (const HtmlElement& element : page.Elements())
        styles.push_back(StyleOf(element));
    return styles;
}

std::u16string StyleAfter(const HtmlElement& element, CRect client)
{
    return StylesAfter({element}, client).front();
}

const std::u16string fullWidth = u"width:100%;height:auto;";
const std::u16string fullHeight = u"width:auto;height:100%;";
const std::u16string untouched;

} // namespace

TEST(MSHTMLImgFuncsTest, WidePictureGetsTheFullWidth)
{
    EXPECT_EQ(StyleAfter(Image(2000, 100), view), fullWidth);
    EXPECT_EQ(StyleAfter(Image(1601, 1200), view), fullWidth);
}

TEST(MSHTMLImgFuncsTest, TallPictureGetsTheFullHeight)
{
    EXPECT_EQ(StyleAfter(Image(100, 2000), view), fullHeight);
    EXPECT_EQ(StyleAfter(Image(1599, 1200), view), fullHeight);
}

TEST(MSHTMLImgFuncsTest, PictureOfTheWindowsProportionGetsTheFullHeight)
{
    EXPECT_EQ(StyleAfter(Image(1600, 1200), view), fullHeight);
}

TEST(MSHTMLImgFuncsTest, PictureThatFitsStaysAsItIs)
{
    EXPECT_EQ(StyleAfter(Image(800, 600), view), untouched);
    EXPECT_EQ(StyleAfter(Image(1, 1), view), untouched);
    EXPECT_EQ(StyleAfter(Image(801, 600), view), fullWidth);
    EXPECT_EQ(StyleAfter(Image(800, 601), view), fullHeight);
}

TEST(MSHTMLImgFuncsTest, WindowIsMeasuredFromItsOwnCorner)
{
    const CRect elsewhere(-500, 1000, 300, 1600);
    EXPECT_EQ(StyleAfter(Image(800, 600), elsewhere), untouched);
    EXPECT_EQ(StyleAfter(Image(801, 600), elsewhere), fullWidth);
}

TEST(MSHTMLImgFuncsTest, WindowWithoutAreaGivesTheFullWidth)
{
    for (const CRect& client : {CRect(0, 0, 800, 0), CRect(0, 0, 0, 600), CRect(), CRect(9, 9, 1, 1)})
        EXPECT_EQ(StyleAfter(Image(10, 5000), client), fullWidth);
}

TEST(MSHTMLImgFuncsTest, PictureWithoutAreaGetsTheFullHeightWhereItIsLarger)
{
    EXPECT_EQ(StyleAfter(Image(2000, 0), view), fullHeight);
    EXPECT_EQ(StyleAfter(Image(0, 0), view), untouched);
    EXPECT_EQ(StyleAfter(Image(0, 0), CRect(0, 0, -1, 5)), fullHeight) << "0 is no greater ratio than 0";
    EXPECT_EQ(StyleAfter(Image(-5, -5), view), untouched);
}

TEST(MSHTMLImgFuncsTest, ElementsThatAreNoPicturesAreSkipped)
{
    EXPECT_EQ(StylesAfter({Image(2000, 100, HtmlElement::Fault::NoPicture), Image(2000, 100)}, view),
              (std::vector<std::u16string>{untouched, fullWidth}));
}

TEST(MSHTMLImgFuncsTest, PicturesWithoutAddressAreSkipped)
{
    std::vector<HtmlElement> elements(3, Image(2000, 100));
    elements[0].address = {};
    elements[1].address = {};
    EXPECT_EQ(StylesAfter(elements, view), (std::vector<std::u16string>{untouched, untouched, fullWidth}));
}

TEST(MSHTMLImgFuncsTest, PicturesWithoutDataAreSkipped)
{
    using Fault = HtmlElement::Fault;
    for (const Fault fault : {Fault::NotInList, Fault::NoObject, Fault::NoAddress, Fault::NoWidth, Fault::NoHeight,
                              Fault::NoElement, Fault::NoStyle, Fault::NoStyleObject})
        EXPECT_EQ(StylesAfter({Image(2000, 100, fault), Image(2000, 100)}, view),
                  (std::vector<std::u16string>{untouched, fullWidth}))
            << static_cast<int>(fault);
}

TEST(MSHTMLImgFuncsTest, StyleThatIsRefusedIsPassedOver)
{
    EXPECT_EQ(StyleAfter(Image(2000, 100, HtmlElement::Fault::StyleRefusesWidth), view), u"height:auto;");
    EXPECT_EQ(StyleAfter(Image(2000, 100, HtmlElement::Fault::StyleRefusesHeight), view), u"width:100%;");
}

TEST(MSHTMLImgFuncsTest, EveryElementIsLookedAt)
{
    std::vector<HtmlElement> elements;
    std::vector<std::u16string> expected;
    for (int i = 0; i < 300; ++i) {
        elements.push_back(Image(i * 10, 100));
        expected.push_back(i * 10 > 800 ? fullWidth : untouched);
    }
    EXPECT_EQ(StylesAfter(elements, view), expected);
}

TEST(MSHTMLImgFuncsTest, PageWithoutElementsIsNotChanged)
{
    EXPECT_EQ(StylesAfter({}, view), std::vector<std::u16string>());
}

TEST(MSHTMLImgFuncsTest, ObjectOfAnotherKindIsNotChanged)
{
    MSHTMLImgFuncs::SetResizeImgStyle(nullptr, view);
    using Fault = HtmlPage::Fault;
    for (const Fault fault :
         {Fault::NoPage, Fault::NoList, Fault::NoListObject, Fault::NoLength, Fault::NegativeLength})
        EXPECT_EQ(StylesAfter({Image(2000, 100)}, view, fault), std::vector<std::u16string>{untouched})
            << static_cast<int>(fault);
}

TEST(MSHTMLImgFuncsTest, LackOfMemoryForAStyleIsAComError)
{
    std::optional<NoTextMemory> lacking;
    HtmlElement image = Image(2000, 100);
    image.onStyle = [&lacking] {
        lacking.emplace();
    };
    HtmlPage page({image});
    HRESULT error = S_OK;
    try {
        MSHTMLImgFuncs::SetResizeImgStyle(page.Document(), view);
    } catch (const _com_error& thrown) {
        error = thrown.Error();
    }
    lacking.reset();
    EXPECT_EQ(error, E_OUTOFMEMORY);
    EXPECT_EQ(page.CountOwners(), 0);
    EXPECT_EQ(StyleOf(page.Elements().front()), untouched);
}

TEST(MSHTMLImgFuncsTest, RatiosAreWidthToHeight)
{
    EXPECT_EQ(PrivateOperations::GetClientRatio(view), 800.0 / 600.0);
    EXPECT_EQ(PrivateOperations::GetClientRatio(CRect(-100, -50, 100, 50)), 2.0);
    EXPECT_EQ(PrivateOperations::GetImageRatio(3, 7), 3.0 / 7.0);
}

TEST(MSHTMLImgFuncsTest, RatioOfNoAreaIsZero)
{
    EXPECT_EQ(PrivateOperations::GetClientRatio(CRect(5, 5, 5, 9)), 0.0);
    EXPECT_EQ(PrivateOperations::GetClientRatio(CRect(5, 5, 9, 5)), 0.0);
    EXPECT_EQ(PrivateOperations::GetClientRatio(CRect(9, 9, 5, 5)), 0.0);
    EXPECT_EQ(PrivateOperations::GetImageRatio(0, 7), 0.0);
    EXPECT_EQ(PrivateOperations::GetImageRatio(7, 0), 0.0);
    EXPECT_EQ(PrivateOperations::GetImageRatio(-7, -7), 0.0);
}

TEST(MSHTMLImgFuncsTest, PictureIsBiggerInEitherDirection)
{
    EXPECT_EQ(PrivateOperations::IsImageBiggerThanClient(view, 800, 600), 0);
    EXPECT_EQ(PrivateOperations::IsImageBiggerThanClient(view, 801, 1), 1);
    EXPECT_EQ(PrivateOperations::IsImageBiggerThanClient(view, 1, 601), 1);
    EXPECT_EQ(PrivateOperations::IsImageBiggerThanClient(view, -1, 0), 0);
}

TEST(MSHTMLImgFuncsTest, EdgesMayHaveTheExtremeValues)
{
    const CRect all(least, least, greatest, greatest);
    EXPECT_EQ(PrivateOperations::IsImageBiggerThanClient(all, greatest, greatest), 0);
    EXPECT_EQ(PrivateOperations::GetClientRatio(all), 1.0);
    const CRect inverted(greatest, greatest, least, least);
    EXPECT_EQ(PrivateOperations::IsImageBiggerThanClient(inverted, least, least), 1);
    EXPECT_EQ(PrivateOperations::GetClientRatio(inverted), 0.0);
}
