// For tests: what a failing test leaves in the thread's message queue must not meet the tests after it.
#pragma once

#include <VyrPlatform/process/MessageQueue.h>

namespace VyrTests {

/// Handles up to a hundred pending events at its end of life. To be made after all that posted work refers to.
class EmptiedQueue
{
public:
    EmptiedQueue() = default;
    EmptiedQueue(const EmptiedQueue&) = delete;
    EmptiedQueue& operator=(const EmptiedQueue&) = delete;
    ~EmptiedQueue()
    {
        for (int i = 0; i < 100; ++i)
            static_cast<void>(VyrPlatform::MessageQueue::DrainOne());
    }
};

} // namespace VyrTests
