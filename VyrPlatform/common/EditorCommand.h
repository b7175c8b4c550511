/// @file
/// Which program the user wants to edit texts in.
#pragma once

#include <VyrPlatform/CString.h>

namespace VyrPlatform {

/// The command line that VISUAL or EDITOR holds; `usual` when neither does.
[[nodiscard]] CString GetEditorCommand(const CString& usual);

} // namespace VyrPlatform
