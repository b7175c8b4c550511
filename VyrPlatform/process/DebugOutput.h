/// @file
/// Writes to the debugger output.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <functional>

namespace VyrPlatform::DebugOutput {

using Sink = std::function<void(const CString&)>;

/// Sends `text` to the sink, if one is set, else to the system's debugger output. Linux has none: the text is
/// discarded.
VYR_PLATFORM_API void Write(const CString& text);

/// Makes Write pass its texts to `sink`; an empty one ends that. Set it while no other thread writes.
VYR_PLATFORM_API void SetSink(Sink sink);

} // namespace VyrPlatform::DebugOutput
