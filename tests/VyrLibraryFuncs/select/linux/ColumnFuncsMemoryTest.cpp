// Columns of a list in a process without memory for their order. On Linux alone, where a program replaces the operator
// new of the libraries that it is linked to.
#include <VyrLibraryFuncs/select/ColumnFuncs.h>

#include <tests/support/ListWindow.h>

#include <gtest/gtest.h>
#include <new>

using VyrLibraryFuncs::ColumnFuncs;

namespace {

bool isMemoryLacking = false;

} // namespace

void* operator new[](std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    try {
        return isMemoryLacking ? nullptr : ::operator new[](size);
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

TEST(ColumnFuncsMemory, OrderThatCannotBeAllocatedGivesNoPosition)
{
    VyrTests::ListWindow window{u"Name", u"Size"};
    CListCtrl list;
    list.Attach(window.GetHandle());
    ASSERT_EQ(ColumnFuncs::GetColumnItemOrder(list, u"Size"), 1);
    isMemoryLacking = true;
    const int position = ColumnFuncs::GetColumnItemOrder(list, u"Size");
    isMemoryLacking = false;
    EXPECT_EQ(position, -1);
    EXPECT_EQ(ColumnFuncs::GetColumnItemOrder(list, u"Size"), 1);
}
