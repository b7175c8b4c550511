// Lists of hosts on Linux: refused calls, and handles.
#include <VyrPlatform/controls/LinuxListView.h>

#include <gtest/gtest.h>
#include <optional>
#include <vector>

using VyrPlatform::ListView;

namespace {

std::vector<int> OrderOf(const ListView& view, std::size_t count)
{
    CListCtrl list;
    list.Attach(view.GetHandle());
    std::vector<int> order(count, -1);
    EXPECT_TRUE(list.GetColumnOrderArray(order));
    return order;
}

} // namespace

TEST(ListViewTest, RefusedCallsChangeNothing)
{
    ListView view;
    EXPECT_FALSE(view.InsertColumn(-1, u"x"));
    EXPECT_FALSE(view.DeleteColumn(0));
    EXPECT_FALSE(view.MoveColumn(0, 0));
    EXPECT_TRUE(view.InsertColumn(0, u"a"));
    EXPECT_TRUE(view.InsertColumn(1, u"b"));
    EXPECT_FALSE(view.DeleteColumn(-1));
    EXPECT_FALSE(view.DeleteColumn(2));
    EXPECT_FALSE(view.MoveColumn(0, 2));
    EXPECT_FALSE(view.MoveColumn(0, -1));
    EXPECT_FALSE(view.MoveColumn(2, 0));
    EXPECT_FALSE(view.MoveColumn(-1, 0));
    EXPECT_EQ(OrderOf(view, 2), (std::vector<int>{0, 1}));
}

TEST(ListViewTest, HandlesAreUnique)
{
    std::optional<ListView> first(std::in_place);
    const HWND old = first->GetHandle();
    first.reset();
    const ListView second;
    EXPECT_NE(second.GetHandle(), old);
    EXPECT_NE(second.GetHandle(), nullptr);
}

TEST(ListViewTest, HeaderIsShownAndHiddenWithItsColumns)
{
    ListView view;
    view.InsertColumn(0, u"a");
    CListCtrl list;
    list.Attach(view.GetHandle());
    view.SetHasHeader(false);
    EXPECT_EQ(list.GetHeaderCtrl(), nullptr);
    view.SetHasHeader(true);
    ASSERT_NE(list.GetHeaderCtrl(), nullptr);
    EXPECT_EQ(list.GetHeaderCtrl()->GetItemCount(), 1);
}
