// Queries the lists that hosts have described.
#include "ListViews.h"

#include <algorithm>
#include <cstddef>

using VyrPlatform::ListViews;

int CHeaderCtrl::GetItemCount() const
{
    const auto* const columns = ListViews::Find(m_window);
    return columns && columns->hasHeader ? static_cast<int>(columns->headings.size()) : 0;
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl()
{
    const auto* const columns = ListViews::Find(m_window);
    // One handle serves for a list and its header.
    m_header.m_window = columns && columns->hasHeader ? m_window : nullptr;
    return m_header.m_window ? &m_header : nullptr;
}

bool CListCtrl::GetColumn(int index, std::span<char16_t> heading) const
{
    heading.front() = 0;
    const auto* const columns = ListViews::Find(m_window);
    if (!columns || index < 0 || static_cast<std::size_t>(index) >= columns->headings.size())
        return false;
    const std::u16string_view text = columns->headings[static_cast<std::size_t>(index)];
    const std::size_t length = text.copy(heading.data(), heading.size() - 1);
    heading[length] = 0;
    return true;
}

bool CListCtrl::GetColumnOrderArray(std::span<int> order) const
{
    const auto* const columns = ListViews::Find(m_window);
    if (!columns || columns->order.size() != order.size())
        return false;
    std::ranges::copy(columns->order, order.begin());
    return true;
}
