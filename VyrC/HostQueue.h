/// @file
/// The events of a host.
#pragma once

#include <VyrPlatform/process/MainLoop.h>

namespace VyrC {

/// Keeps a host's interface responsive: long operations handle pending events between their steps.
class HostQueue
{
public:
    /// Makes each such step on the calling thread call `drain`, which handles at most one pending event without
    /// waiting, and answers whether that event asks for a stop. On Windows it takes the place of handling one message
    /// of the thread. Without a function that ends.
    static void SetDrain(VyrPlatform::MessageQueue::MainLoopPass drain);
};

} // namespace VyrC
