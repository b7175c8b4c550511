// On Linux a host describes its list to the library.
#include <tests/support/ListWindow.h>

#include <VyrPlatform/controls/LinuxListView.h>

#include <optional>
#include <stdexcept>

namespace VyrTests {

struct ListWindow::Window
{
    std::optional<VyrPlatform::ListView> list = std::make_optional<VyrPlatform::ListView>();
    HWND handle = list->GetHandle();
};

namespace {

void Require(bool isDone)
{
    if (!isDone)
        throw std::runtime_error("the list does not do that");
}

} // namespace

ListWindow::ListWindow(std::initializer_list<CString> headings, Header header) : m_window(std::make_unique<Window>())
{
    int index = 0;
    for (const CString& heading : headings)
        AddColumn(index++, heading);
    m_window->list->SetHasHeader(header == Header::Shown);
}

ListWindow::~ListWindow() = default;

HWND ListWindow::GetHandle() const
{
    return m_window->handle;
}

void ListWindow::AddColumn(int index, const CString& heading)
{
    Require(m_window->list->InsertColumn(index, heading));
}

void ListWindow::RemoveColumn(int index)
{
    Require(m_window->list->DeleteColumn(index));
}

void ListWindow::DragColumn(int index, int position)
{
    Require(m_window->list->MoveColumn(index, position));
}

void ListWindow::Destroy()
{
    m_window->list.reset();
}

} // namespace VyrTests
