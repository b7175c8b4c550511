/// @file
/// The system's debugger output, for texts without a sink.
#pragma once

#include <VyrPlatform/text/CString.h>

namespace VyrPlatform::DebugOutput {

void WriteToSystem(const CString& text);

} // namespace VyrPlatform::DebugOutput
