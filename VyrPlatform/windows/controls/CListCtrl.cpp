// Queries a list control of the system.
#include <VyrPlatform/controls/CListCtrl.h>

#include <windows.h>

#include <commctrl.h>

int CHeaderCtrl::GetItemCount() const
{
    return static_cast<int>(::SendMessageW(m_window, HDM_GETITEMCOUNT, 0, 0));
}

CHeaderCtrl* CListCtrl::GetHeaderCtrl()
{
    m_header.m_window = reinterpret_cast<HWND>(::SendMessageW(m_window, LVM_GETHEADER, 0, 0));
    return m_header.m_window ? &m_header : nullptr;
}

bool CListCtrl::GetColumn(int index, std::span<char16_t> heading) const
{
    heading.front() = 0;
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT;
    column.pszText = reinterpret_cast<wchar_t*>(heading.data());
    column.cchTextMax = static_cast<int>(heading.size());
    return ::SendMessageW(m_window, LVM_GETCOLUMNW, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(&column)) != 0;
}

bool CListCtrl::GetColumnOrderArray(std::span<int> order) const
{
    // For an array of another length the system's list would fill what it can.
    const auto header = reinterpret_cast<HWND>(::SendMessageW(m_window, LVM_GETHEADER, 0, 0));
    const auto count = static_cast<std::size_t>(::SendMessageW(header, HDM_GETITEMCOUNT, 0, 0));
    return header && count == order.size() &&
           ::SendMessageW(m_window, LVM_GETCOLUMNORDERARRAY, order.size(), reinterpret_cast<LPARAM>(order.data())) != 0;
}
