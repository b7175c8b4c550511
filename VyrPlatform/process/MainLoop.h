/// @file
/// Lets a host's own main loop handle the events of a thread.
#pragma once

#include <VyrPlatform/Export.h>

#include <functional>

namespace VyrPlatform::MessageQueue {

/// One pass of a host's own main loop that does not wait: handles at most one pending event, and returns true when that
/// event requests a stop. The work of its events may drain, the pass itself may not.
using MainLoopPass = std::function<bool()>;

/// Makes each drain of the calling thread (MessageQueue::DrainOne) run `pass`: on Linux whenever no posted work is
/// waiting, on Windows in place of handling a message. An empty function ends that.
VYR_PLATFORM_API void PlugMainLoop(MainLoopPass pass);

} // namespace VyrPlatform::MessageQueue
