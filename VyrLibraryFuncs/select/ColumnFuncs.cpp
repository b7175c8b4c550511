#include <VyrLibraryFuncs/select/ColumnFuncs.h>

#include <VyrPlatform/process/MessageQueue.h>

#include <array>
#include <cstddef>
#include <memory>
#include <new>
#include <optional>
#include <span>

using VyrPlatform::MessageQueue::DrainOne;

namespace VyrLibraryFuncs {

namespace {

/// In code units, including the NUL.
constexpr std::size_t headingCapacity = 260;
constexpr int noColumn = -1;

int CountColumns(CListCtrl& list)
{
    const CHeaderCtrl* const header = list.GetHeaderCtrl();
    return header && header->GetSafeHwnd() ? header->GetItemCount() : 0;
}

std::optional<CString> Heading(const CListCtrl& list, int index)
{
    std::array<char16_t, headingCapacity> heading;
    if (!list.GetColumn(index, heading))
        return std::nullopt;
    return CString(heading.data());
}

/// The index of the first column called `name`, or noColumn.
int FindColumn(CListCtrl& list, const CString& name)
{
    // The columns are counted in each pass: a drain may have changed them.
    for (int index = 0; index < CountColumns(list); ++index) {
        if (DrainOne())
            return noColumn;
        const std::optional<CString> heading = Heading(list, index);
        if (heading && heading->CompareNoCase(name) == 0)
            return index;
    }
    return noColumn;
}

} // namespace

ColumnFuncs::ColumnFuncs() = default;
ColumnFuncs::~ColumnFuncs() = default;
ColumnFuncs& ColumnFuncs::operator=(const ColumnFuncs&) = default;

int ColumnFuncs::IsVisibleColumn(CListCtrl& listControl, CString name)
{
    return FindColumn(listControl, name) != noColumn;
}

int ColumnFuncs::GetColumnHeaderItem(CListCtrl& listControl, CString name)
{
    return FindColumn(listControl, name);
}

int ColumnFuncs::GetColumnItemOrder(CListCtrl& listControl, CString name)
{
    const int count = CountColumns(listControl);
    if (count <= 0)
        return noColumn;
    const std::unique_ptr<int[]> order(new (std::nothrow) int[static_cast<std::size_t>(count)]);
    if (!order || !listControl.GetColumnOrderArray({order.get(), static_cast<std::size_t>(count)}))
        return noColumn;
    for (int position = 0; position < count; ++position) {
        if (DrainOne())
            return noColumn;
        if (GetColumnItemText(listControl, order[static_cast<std::size_t>(position)]).CompareNoCase(name) == 0)
            return position;
    }
    return noColumn;
}

CString ColumnFuncs::GetColumnItemText(CListCtrl& listControl, int index)
{
    if (index >= CountColumns(listControl))
        return {};
    return Heading(listControl, index).value_or(CString());
}

} // namespace VyrLibraryFuncs
