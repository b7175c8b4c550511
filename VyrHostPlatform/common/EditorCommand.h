/// @file
/// Finds the user's editor.
#pragma once

#include <VyrPlatform/text/CString.h>

namespace VyrHostPlatform {

/// The command line in VISUAL or EDITOR; `usual` if neither is set.
[[nodiscard]] CString GetEditorCommand(const CString& usual);

} // namespace VyrHostPlatform
