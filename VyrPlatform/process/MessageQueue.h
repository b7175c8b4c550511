/// @file
/// The calling thread's queue of interface events.
#pragma once

#include <VyrPlatform/Export.h>

namespace VyrPlatform::MessageQueue {

/// Handles one pending event of the calling thread; returns at once when there is none.
///
/// On Windows this is the thread's message queue: one message is removed, translated and dispatched. On Linux it is the
/// queue that LinuxMessageQueue.h fills. Costs a few nanoseconds there when nothing is pending. A host may handle its
/// events itself (MainLoop.h).
/// @return true when a stop was requested (the quit message): once, after all work that was posted before it.
[[nodiscard]] VYR_PLATFORM_API bool DrainOne();

} // namespace VyrPlatform::MessageQueue
