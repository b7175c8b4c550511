// On Windows work comes as messages to a message-only window of the thread, and a stop as the quit message.
#include <tests/support/MessagePosting.h>

#include <deque>
#include <mutex>
#include <stdexcept>
#include <utility>
#include <windows.h>

namespace VyrTests {

struct MessagePosting::Target
{
    DWORD thread = ::GetCurrentThreadId();
    HWND window = nullptr;
    std::mutex mutex;
    std::deque<std::function<void()>> works;

    void RunOldest()
    {
        std::function<void()> work;
        {
            const std::lock_guard lock(mutex);
            work = std::move(works.front());
            works.pop_front();
        }
        work();
    }

    static LRESULT CALLBACK Receive(HWND window, UINT message, WPARAM wide, LPARAM pointer)
    {
        if (message != WM_APP)
            return ::DefWindowProcW(window, message, wide, pointer);
        reinterpret_cast<Target*>(pointer)->RunOldest();
        return 0;
    }
};

MessagePosting::MessagePosting() : m_target(std::make_unique<Target>())
{
    m_target->window = ::CreateWindowExW(0, L"Message", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                         ::GetModuleHandleW(nullptr), nullptr);
    if (!m_target->window)
        throw std::runtime_error("the system makes no message-only window");
    ::SetWindowLongPtrW(m_target->window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Target::Receive));
}

MessagePosting::~MessagePosting()
{
    ::DestroyWindow(m_target->window);
}

void MessagePosting::PostWork(std::function<void()> work) const
{
    const std::lock_guard lock(m_target->mutex);
    m_target->works.push_back(std::move(work));
    if (!::PostMessageW(m_target->window, WM_APP, 0, reinterpret_cast<LPARAM>(m_target.get())))
        throw std::runtime_error("the thread's message queue is full");
}

void MessagePosting::PostStop() const
{
    if (!::PostThreadMessageW(m_target->thread, WM_QUIT, 0, 0))
        throw std::runtime_error("the thread's message queue is full");
}

} // namespace VyrTests
