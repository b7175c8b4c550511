#include "ListViews.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>

namespace VyrPlatform {

namespace {

std::map<HWND, const void*>& LivingLists()
{
    static std::map<HWND, const void*> lists;
    return lists;
}

HWND NewHandle()
{
    static std::uintptr_t last = 0;
    return reinterpret_cast<HWND>(++last); // NOLINT(performance-no-int-to-ptr): a number that looks like a handle
}

bool IsIndexOf(int index, std::size_t count)
{
    return index >= 0 && static_cast<std::size_t>(index) < count;
}

} // namespace

const ListView::Columns* ListViews::Find(HWND handle)
{
    const auto found = LivingLists().find(handle);
    return found == LivingLists().end() ? nullptr : static_cast<const ListView::Columns*>(found->second);
}

ListView::ListView() : m_columns(std::make_unique<Columns>()), m_handle(NewHandle())
{
    LivingLists().emplace(m_handle, m_columns.get());
}

ListView::~ListView()
{
    LivingLists().erase(m_handle);
}

HWND ListView::GetHandle() const noexcept
{
    return m_handle;
}

bool ListView::InsertColumn(int index, const CString& heading)
{
    auto& [hasHeader, headings, order] = *m_columns;
    if (index < 0)
        return false;
    const int place = std::min(index, static_cast<int>(headings.size()));
    for (int& other : order)
        other += other >= place;
    headings.insert(headings.begin() + place, heading);
    order.insert(order.begin() + place, place);
    return true;
}

bool ListView::DeleteColumn(int index)
{
    auto& [hasHeader, headings, order] = *m_columns;
    if (!IsIndexOf(index, headings.size()))
        return false;
    headings.erase(headings.begin() + index);
    std::erase(order, index);
    for (int& other : order)
        other -= other > index;
    return true;
}

bool ListView::MoveColumn(int index, int position)
{
    std::vector<int>& order = m_columns->order;
    if (!IsIndexOf(index, order.size()) || !IsIndexOf(position, order.size()))
        return false;
    std::erase(order, index);
    order.insert(order.begin() + position, index);
    return true;
}

void ListView::SetHasHeader(bool hasHeader)
{
    m_columns->hasHeader = hasHeader;
}

} // namespace VyrPlatform
