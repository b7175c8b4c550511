// The columns of a list in report style.
#include <tests/support/ListWindow.h>

#include <VyrPlatform/controls/CListCtrl.h>

#include <gtest/gtest.h>
#include <limits>
#include <optional>
#include <string>
#include <vector>

using VyrTests::ListWindow;

namespace {

CListCtrl ListOf(const ListWindow& window)
{
    CListCtrl list;
    list.Attach(window.GetHandle());
    return list;
}

int CountColumns(CListCtrl list)
{
    const CHeaderCtrl* const header = list.GetHeaderCtrl();
    return header ? header->GetItemCount() : -1;
}

/// The heading of the column at `index`, read into a buffer of `capacity` code units; nothing when there is no such
/// column.
std::optional<std::u16string> Heading(const CListCtrl& list, int index, std::size_t capacity = 260)
{
    std::u16string buffer(capacity, u'?');
    if (!list.GetColumn(index, buffer))
        return std::nullopt;
    return buffer.substr(0, buffer.find(u'\0'));
}

std::vector<std::u16string> Headings(const CListCtrl& list)
{
    std::vector<std::u16string> headings;
    while (const auto heading = Heading(list, static_cast<int>(headings.size())))
        headings.push_back(*heading);
    return headings;
}

std::optional<std::vector<int>> Order(const CListCtrl& list, std::size_t count)
{
    std::vector<int> order(count, -7);
    if (!list.GetColumnOrderArray(order))
        return std::nullopt;
    return order;
}

using Texts = std::vector<std::u16string>;
using Indexes = std::vector<int>;

} // namespace

TEST(CListCtrlTest, ColumnsHaveTheirHeadings)
{
    const ListWindow window{u"Name", u"Größe", u"", u"日本"};
    CListCtrl list = ListOf(window);
    EXPECT_EQ(CountColumns(list), 4);
    EXPECT_NE(list.GetHeaderCtrl()->GetSafeHwnd(), nullptr);
    EXPECT_EQ(Headings(list), (Texts{u"Name", u"Größe", u"", u"日本"}));
    EXPECT_EQ(Order(list, 4), (Indexes{0, 1, 2, 3}));
}

TEST(CListCtrlTest, ListWithoutColumnsHasAHeader)
{
    const ListWindow window;
    EXPECT_EQ(CountColumns(ListOf(window)), 0);
    EXPECT_EQ(Heading(ListOf(window), 0), std::nullopt);
}

TEST(CListCtrlTest, IndexesOutsideTheListHaveNoColumn)
{
    const ListWindow window{u"a", u"b"};
    const CListCtrl list = ListOf(window);
    for (const int index : {-1, 2, 3, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        std::u16string buffer(9, u'?');
        EXPECT_FALSE(list.GetColumn(index, buffer)) << index;
        EXPECT_EQ(buffer.front(), 0) << index;
    }
}

TEST(CListCtrlTest, LongHeadingIsCut)
{
    const std::u16string longHeading(300, u'x');
    const ListWindow window{CString(longHeading), u"abc"};
    const CListCtrl list = ListOf(window);
    EXPECT_EQ(Heading(list, 0, 260), longHeading.substr(0, 259));
    EXPECT_EQ(Heading(list, 1, 4), u"abc");
    EXPECT_EQ(Heading(list, 1, 3), u"ab");
    EXPECT_EQ(Heading(list, 1, 1), u"");
}

TEST(CListCtrlTest, InsertedColumnMovesThoseBehindIt)
{
    ListWindow window{u"a", u"b"};
    window.AddColumn(1, u"between");
    window.AddColumn(99, u"last");
    const CListCtrl list = ListOf(window);
    EXPECT_EQ(Headings(list), (Texts{u"a", u"between", u"b", u"last"}));
    EXPECT_EQ(Order(list, 4), (Indexes{0, 1, 2, 3}));
}

TEST(CListCtrlTest, RemovedColumnIsGone)
{
    ListWindow window{u"a", u"b", u"c"};
    window.RemoveColumn(1);
    const CListCtrl list = ListOf(window);
    EXPECT_EQ(CountColumns(list), 2);
    EXPECT_EQ(Headings(list), (Texts{u"a", u"c"}));
    EXPECT_EQ(Order(list, 2), (Indexes{0, 1}));
}

TEST(CListCtrlTest, DraggedColumnKeepsItsIndex)
{
    ListWindow window{u"a", u"b", u"c", u"d"};
    const CListCtrl list = ListOf(window);
    window.DragColumn(3, 0);
    EXPECT_EQ(Headings(list), (Texts{u"a", u"b", u"c", u"d"}));
    EXPECT_EQ(Order(list, 4), (Indexes{3, 0, 1, 2}));
    window.DragColumn(0, 3);
    EXPECT_EQ(Order(list, 4), (Indexes{3, 1, 2, 0}));
    window.RemoveColumn(1);
    EXPECT_EQ(Order(list, 3), (Indexes{2, 1, 0}));
    window.AddColumn(1, u"new");
    EXPECT_EQ(Order(list, 4), (Indexes{3, 1, 2, 0}));
}

TEST(CListCtrlTest, OrderIsGivenOnlyForTheRightCount)
{
    const ListWindow window{u"a", u"b", u"c"};
    EXPECT_EQ(Order(ListOf(window), 2), std::nullopt);
    EXPECT_EQ(Order(ListOf(window), 4), std::nullopt);
}

TEST(CListCtrlTest, ListWithoutHeaderHasNoHeaderControl)
{
    const ListWindow window({}, ListWindow::Header::None);
    EXPECT_EQ(ListOf(window).GetHeaderCtrl(), nullptr);
}

TEST(CListCtrlTest, DestroyedWindowHasNoColumns)
{
    ListWindow window{u"a"};
    CListCtrl list = ListOf(window);
    const CHeaderCtrl* const header = list.GetHeaderCtrl();
    window.Destroy();
    EXPECT_EQ(header->GetItemCount(), 0);
    EXPECT_EQ(list.GetHeaderCtrl(), nullptr);
    EXPECT_EQ(Heading(list, 0), std::nullopt);
    EXPECT_EQ(Order(list, 1), std::nullopt);
}

TEST(CListCtrlTest, ListWithoutWindowHasNoColumns)
{
    CListCtrl list;
    EXPECT_EQ(list.GetHeaderCtrl(), nullptr);
    EXPECT_EQ(Heading(list, 0), std::nullopt);
    EXPECT_EQ(Order(list, 0), std::nullopt);
}
