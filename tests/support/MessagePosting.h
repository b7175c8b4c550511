// For tests: events for a thread's message queue.
#pragma once

#include <functional>
#include <memory>

namespace VyrTests {

/// Posts to the message queue of the thread that constructed it: through a hidden window on Windows, through the
/// library's own queue on Linux. Windows holds at most 10,000 messages for a thread.
class MessagePosting
{
public:
    MessagePosting();
    MessagePosting(const MessagePosting&) = delete;
    MessagePosting& operator=(const MessagePosting&) = delete;
    /// Call it on the thread that constructed it.
    ~MessagePosting();

    /// Adds `work`, which a drain of the thread runs. Callable from any thread.
    void PostWork(std::function<void()> work) const;
    /// Asks the thread to stop, as closing the program does. Callable from any thread.
    void PostStop() const;

private:
    struct Target;
    std::unique_ptr<Target> m_target;
};

} // namespace VyrTests
