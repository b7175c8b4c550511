// On Linux events come through the poster of the thread's queue.
#include <tests/support/MessagePosting.h>

#include <VyrPlatform/process/LinuxMessageQueue.h>

#include <utility>

namespace VyrTests {

struct MessagePosting::Target
{
    VyrPlatform::MessageQueue::Poster poster = VyrPlatform::MessageQueue::Poster::ForCallingThread();
};

MessagePosting::MessagePosting() : m_target(std::make_unique<Target>()) {}

MessagePosting::~MessagePosting() = default;

void MessagePosting::PostWork(std::function<void()> work) const
{
    m_target->poster.Post(std::move(work));
}

void MessagePosting::PostStop() const
{
    m_target->poster.PostStop();
}

} // namespace VyrTests
