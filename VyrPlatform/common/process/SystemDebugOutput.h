/// @file
/// What each system does with debugger output that no sink takes.
#pragma once

#include <VyrPlatform/text/CString.h>

namespace VyrPlatform::DebugOutput {

void WriteToSystem(const CString& text);

} // namespace VyrPlatform::DebugOutput
