/// @file
/// Which program the user wants to edit texts in.
#pragma once

#include <VyrPlatform/text/CString.h>

namespace VyrHostPlatform {

/// The command line that VISUAL or EDITOR holds; `usual` when neither does.
[[nodiscard]] CString GetEditorCommand(const CString& usual);

} // namespace VyrHostPlatform
