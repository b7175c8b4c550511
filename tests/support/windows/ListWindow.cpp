// On Windows a list is a window of the system's list control.
#include <tests/support/ListWindow.h>

#include <VyrPlatform/text/WindowsCString.h>

#include <stdexcept>
#include <string>
#include <vector>
#include <windows.h>

#include <commctrl.h>

namespace VyrTests {

namespace {

constexpr int columnWidth = 40;

void Require(bool isDone, const char* what)
{
    if (!isDone)
        throw std::runtime_error(what);
}

HWND NewWindow(const wchar_t* windowClass, DWORD style, HWND parent)
{
    const HWND window = ::CreateWindowExW(0, windowClass, L"", style, 0, 0, 1000, 200, parent, nullptr,
                                          ::GetModuleHandleW(nullptr), nullptr);
    Require(window != nullptr, "the system makes no window: it has no display, or the desktop of an earlier run, which "
                               "scripts/run-windows --stop ends");
    return window;
}

LPARAM At(int x, int y)
{
    return MAKELPARAM(x, y);
}

} // namespace

struct ListWindow::Window
{
    /// Hidden: showing a window takes seconds where there is no window manager.
    HWND parent = nullptr;
    HWND handle = nullptr;

    [[nodiscard]] HWND Header() const { return reinterpret_cast<HWND>(::SendMessageW(handle, LVM_GETHEADER, 0, 0)); }

    /// Where the column at `index` stands in the header.
    [[nodiscard]] RECT Place(int index) const
    {
        RECT place = {};
        Require(::SendMessageW(Header(), HDM_GETITEMRECT, static_cast<WPARAM>(index),
                               reinterpret_cast<LPARAM>(&place)) != 0,
                "there is no such column");
        return place;
    }

    /// The index of the column at `position`.
    [[nodiscard]] int At(int position) const
    {
        return static_cast<int>(::SendMessageW(Header(), HDM_ORDERTOINDEX, static_cast<WPARAM>(position), 0));
    }

    [[nodiscard]] int PositionOf(int index) const
    {
        int position = 0;
        while (At(position) != index)
            ++position;
        return position;
    }
};

ListWindow::ListWindow(std::initializer_list<CString> headings, Header header) : m_window(std::make_unique<Window>())
{
    // The library that registers the list control.
    Require(::LoadLibraryW(L"comctl32.dll") != nullptr, "the system has no list control");
    m_window->parent = NewWindow(L"STATIC", WS_POPUP, nullptr);
    m_window->handle = NewWindow(
        WC_LISTVIEWW, WS_CHILD | WS_VISIBLE | (header == Header::Shown ? LVS_REPORT : LVS_LIST), m_window->parent);
    if (header == Header::Shown)
        ::SendMessageW(m_window->handle, LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_HEADERDRAGDROP);
    int index = 0;
    for (const CString& heading : headings)
        AddColumn(index++, heading);
}

ListWindow::~ListWindow()
{
    ::DestroyWindow(m_window->parent);
}

HWND ListWindow::GetHandle() const
{
    return m_window->handle;
}

void ListWindow::AddColumn(int index, const CString& heading)
{
    LVCOLUMNW column = {};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.cx = columnWidth;
    column.pszText = const_cast<wchar_t*>(VyrPlatform::ToWide(heading));
    Require(::SendMessageW(m_window->handle, LVM_INSERTCOLUMNW, static_cast<WPARAM>(index),
                           reinterpret_cast<LPARAM>(&column)) >= 0,
            "the list takes no such column");
}

void ListWindow::RemoveColumn(int index)
{
    Require(::SendMessageW(m_window->handle, LVM_DELETECOLUMN, static_cast<WPARAM>(index), 0) != 0,
            "there is no such column");
}

void ListWindow::DragColumn(int index, int position)
{
    const HWND header = m_window->Header();
    // Wine places the headings anew only when it draws or resizes them.
    ::SendMessageW(header, WM_SIZE, 0, 0);
    const RECT from = m_window->Place(index);
    const RECT to = m_window->Place(m_window->At(position));
    const int y = (from.top + from.bottom) / 2;
    const int start = (from.left + from.right) / 2;
    // A column comes before the one on whose left half it is dropped, and behind the one on whose right half it is.
    const bool goesLeft = position < m_window->PositionOf(index);
    const int end = goesLeft ? to.left + columnWidth / 4 : to.right - columnWidth / 4;
    ::SendMessageW(header, WM_LBUTTONDOWN, MK_LBUTTON, At(start, y));
    const int steps = 8;
    for (int step = 1; step <= steps; ++step)
        ::SendMessageW(header, WM_MOUSEMOVE, MK_LBUTTON, At(start + (end - start) * step / steps, y));
    ::SendMessageW(header, WM_LBUTTONUP, 0, At(end, y));
    Require(m_window->PositionOf(index) == position, "the header did not take the drag");
}

void ListWindow::Destroy()
{
    ::DestroyWindow(m_window->handle);
}

} // namespace VyrTests
