// For tests: empties the thread's message queue after a failing test.
#pragma once

#include <VyrPlatform/process/MessageQueue.h>

namespace VyrTests {

/// Handles up to a hundred pending events when it is destroyed. Construct it after everything that posted work uses.
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
