// For tests: a list in report style with a header, as a host has one.
#pragma once

#include <VyrPlatform/controls/CListCtrl.h>
#include <VyrPlatform/text/CString.h>

#include <initializer_list>
#include <memory>

namespace VyrTests {

/// On Windows a real window, which needs a display; on Linux a list that a host has described. What cannot be done
/// throws.
class ListWindow
{
public:
    enum class Header
    {
        Shown,
        None
    };

    explicit ListWindow(std::initializer_list<CString> headings = {}, Header header = Header::Shown);
    ListWindow(const ListWindow&) = delete;
    ListWindow& operator=(const ListWindow&) = delete;
    ~ListWindow();

    [[nodiscard]] HWND GetHandle() const;
    void AddColumn(int index, const CString& heading);
    void RemoveColumn(int index);
    /// Drags the heading of the column at `index` to `position`, on Windows with the mouse.
    void DragColumn(int index, int position);
    /// Destroys the window. Nothing but GetHandle may be called afterwards.
    void Destroy();

private:
    struct Window;
    std::unique_ptr<Window> m_window;
};

} // namespace VyrTests
