#include <VyrLibraryFuncs/select/ColumnFuncs.h>

#include <tests/support/EmptiedQueue.h>
#include <tests/support/ListWindow.h>
#include <tests/support/MessagePosting.h>

#include <gtest/gtest.h>
#include <limits>
#include <ostream>
#include <string>

using VyrLibraryFuncs::ColumnFuncs;
using VyrTests::EmptiedQueue;
using VyrTests::ListWindow;
using VyrTests::MessagePosting;

namespace {

/// The results of the three searches for a heading.
struct Found
{
    int isVisible;
    int index;
    int position;

    friend bool operator==(const Found&, const Found&) = default;
    friend std::ostream& operator<<(std::ostream& stream, const Found& found)
    {
        return stream << found.isVisible << ' ' << found.index << ' ' << found.position;
    }
};

constexpr Found nothing = {0, -1, -1};

CListCtrl ListOf(const ListWindow& window)
{
    CListCtrl list;
    list.Attach(window.GetHandle());
    return list;
}

Found Find(CListCtrl list, const CString& name)
{
    return {ColumnFuncs::IsVisibleColumn(list, name), ColumnFuncs::GetColumnHeaderItem(list, name),
            ColumnFuncs::GetColumnItemOrder(list, name)};
}

/// A list whose queue has no messages of its window, so that a test knows which drain runs its work.
class ColumnFuncsTest : public testing::Test
{
protected:
    ListWindow window{u"Name", u"Size", u"Type", u"Date"};
    CListCtrl list = ListOf(window);
    EmptiedQueue emptiedAfterwards;
    MessagePosting posting;

    ColumnFuncsTest() { const EmptiedQueue emptiedBefore; }
};

} // namespace

TEST_F(ColumnFuncsTest, ColumnIsFoundByItsHeading)
{
    EXPECT_EQ(Find(list, u"Name"), (Found{1, 0, 0}));
    EXPECT_EQ(Find(list, u"Date"), (Found{1, 3, 3}));
}

TEST_F(ColumnFuncsTest, OnlyTheWholeHeadingCounts)
{
    for (const char16_t* const name : {u"", u"Nam", u"Names", u" Name", u"Owner"})
        EXPECT_EQ(Find(list, name), nothing) << testing::PrintToString(name);
}

TEST_F(ColumnFuncsTest, UpperAndLowerCaseAreOne)
{
    window.AddColumn(4, u"GRÖSSE Ελλάδα");
    EXPECT_EQ(Find(list, u"sIZE"), (Found{1, 1, 1}));
    EXPECT_EQ(Find(list, u"grösse ΕΛΛΆΔΑ"), (Found{1, 4, 4}));
}

TEST_F(ColumnFuncsTest, DraggedColumnKeepsItsIndexAndChangesItsOrder)
{
    window.DragColumn(3, 0);
    EXPECT_EQ(Find(list, u"Date"), (Found{1, 3, 0}));
    EXPECT_EQ(Find(list, u"Name"), (Found{1, 0, 1}));
    EXPECT_EQ(Find(list, u"Type"), (Found{1, 2, 3}));
}

TEST_F(ColumnFuncsTest, FirstOfTwoEqualHeadingsWins)
{
    window.AddColumn(4, u"SIZE");
    EXPECT_EQ(Find(list, u"Size"), (Found{1, 1, 1}));
    window.DragColumn(4, 0);
    EXPECT_EQ(Find(list, u"Size"), (Found{1, 1, 0})) << "leftmost, but created last";
}

TEST_F(ColumnFuncsTest, AddedAndRemovedColumnsAreSeen)
{
    window.RemoveColumn(0);
    EXPECT_EQ(Find(list, u"Name"), nothing);
    EXPECT_EQ(Find(list, u"Size"), (Found{1, 0, 0}));
    window.AddColumn(1, u"Owner");
    EXPECT_EQ(Find(list, u"Owner"), (Found{1, 1, 1}));
    EXPECT_EQ(Find(list, u"Date"), (Found{1, 3, 3}));
}

TEST_F(ColumnFuncsTest, ColumnWithoutTextIsFoundByTheEmptyName)
{
    window.AddColumn(2, u"");
    EXPECT_EQ(Find(list, u""), (Found{1, 2, 2}));
}

TEST_F(ColumnFuncsTest, HeadingCountsWithItsFirst259Units)
{
    const std::u16string heading(300, u'x');
    window.AddColumn(4, CString(heading));
    EXPECT_EQ(ColumnFuncs::GetColumnItemText(list, 4), heading.substr(0, 259));
    EXPECT_EQ(Find(list, CString(heading)), nothing);
    EXPECT_EQ(Find(list, CString(heading.substr(0, 259))), (Found{1, 4, 4}));
}

TEST_F(ColumnFuncsTest, TextIsThatOfTheColumnAtTheIndex)
{
    window.DragColumn(3, 0);
    EXPECT_EQ(ColumnFuncs::GetColumnItemText(list, 0), u"Name");
    EXPECT_EQ(ColumnFuncs::GetColumnItemText(list, 3), u"Date");
    for (const int index : {4, 5, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_EQ(ColumnFuncs::GetColumnItemText(list, index), u"") << index;
}

TEST(ColumnFuncsListTest, ListWithoutColumnsHasNoMatch)
{
    const ListWindow window;
    CListCtrl list = ListOf(window);
    EXPECT_EQ(Find(list, u""), nothing);
    EXPECT_EQ(ColumnFuncs::GetColumnItemText(list, 0), u"");
}

TEST(ColumnFuncsListTest, ListWithoutHeaderHasNoMatch)
{
    const ListWindow window({}, ListWindow::Header::None);
    CListCtrl list = ListOf(window);
    EXPECT_EQ(Find(list, u"Name"), nothing);
    EXPECT_EQ(ColumnFuncs::GetColumnItemText(list, 0), u"");
}

TEST(ColumnFuncsListTest, ListWithoutWindowHasNoMatch)
{
    CListCtrl list;
    EXPECT_EQ(Find(list, u"Name"), nothing);
    EXPECT_EQ(ColumnFuncs::GetColumnItemText(list, 0), u"");
}

TEST_F(ColumnFuncsTest, DestroyedWindowHasNoMatch)
{
    window.Destroy();
    EXPECT_EQ(Find(list, u"Name"), nothing);
    EXPECT_EQ(ColumnFuncs::GetColumnItemText(list, 0), u"");
}

TEST_F(ColumnFuncsTest, MessageRemovesAColumnInMidSearch)
{
    posting.PostWork([this] { window.RemoveColumn(0); });
    EXPECT_EQ(ColumnFuncs::GetColumnHeaderItem(list, u"Date"), 2);

    window.AddColumn(0, u"Name");
    posting.PostWork([this] { window.RemoveColumn(3); });
    EXPECT_EQ(ColumnFuncs::IsVisibleColumn(list, u"Date"), 0);
}

TEST_F(ColumnFuncsTest, MessageAddsAColumnInMidSearch)
{
    posting.PostWork([this] { window.AddColumn(4, u"Owner"); });
    EXPECT_EQ(ColumnFuncs::IsVisibleColumn(list, u"Owner"), 1);
    posting.PostWork([this] { window.AddColumn(5, u"Group"); });
    EXPECT_EQ(ColumnFuncs::GetColumnHeaderItem(list, u"Group"), 5);
}

TEST_F(ColumnFuncsTest, PositionsAreThoseAtTheBeginningOfTheSearch)
{
    posting.PostWork([this] { window.DragColumn(3, 0); });
    EXPECT_EQ(ColumnFuncs::GetColumnItemOrder(list, u"Date"), 3);
    EXPECT_EQ(ColumnFuncs::GetColumnItemOrder(list, u"Date"), 0);
    posting.PostWork([this] { window.RemoveColumn(3); });
    EXPECT_EQ(ColumnFuncs::GetColumnItemOrder(list, u"Date"), -1);
}

TEST_F(ColumnFuncsTest, MessageDestroysTheWindowInMidSearch)
{
    posting.PostWork([this] { window.Destroy(); });
    EXPECT_EQ(Find(list, u"Date"), nothing);
}

TEST_F(ColumnFuncsTest, MessageDestroysTheWindowInMidSearchOfPositions)
{
    posting.PostWork([this] { window.Destroy(); });
    EXPECT_EQ(ColumnFuncs::GetColumnItemOrder(list, u"Date"), -1);
}

TEST_F(ColumnFuncsTest, EachColumnDrainsOneMessage)
{
    int count = 0;
    for (int i = 0; i < 20; ++i)
        posting.PostWork([&count] { ++count; });
    ColumnFuncs::IsVisibleColumn(list, u"Size");
    EXPECT_EQ(count, 2);
    ColumnFuncs::GetColumnHeaderItem(list, u"no such");
    EXPECT_EQ(count, 6);
    ColumnFuncs::GetColumnItemOrder(list, u"Type");
    EXPECT_EQ(count, 9);
    ColumnFuncs::GetColumnItemText(list, 0);
    EXPECT_EQ(count, 9);
}

TEST_F(ColumnFuncsTest, StopEndsASearchWithoutAMatch)
{
    posting.PostStop();
    EXPECT_EQ(ColumnFuncs::IsVisibleColumn(list, u"Name"), 0);
    posting.PostStop();
    EXPECT_EQ(ColumnFuncs::GetColumnHeaderItem(list, u"Name"), -1);
    posting.PostStop();
    EXPECT_EQ(ColumnFuncs::GetColumnItemOrder(list, u"Name"), -1);
    EXPECT_EQ(Find(list, u"Name"), (Found{1, 0, 0})) << "each stop ended one search";
}

TEST_F(ColumnFuncsTest, StopAfterSomeColumnsEndsASearch)
{
    posting.PostWork([] {});
    posting.PostStop();
    EXPECT_EQ(ColumnFuncs::IsVisibleColumn(list, u"Date"), 0);
    posting.PostWork([] {});
    posting.PostStop();
    EXPECT_EQ(ColumnFuncs::GetColumnItemOrder(list, u"Size"), -1);
}
