/// @file
/// Names that the user looks through in an editor.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <unordered_map>
#include <vector>

namespace VyrHost::Cli {

/// Has the user edit `names` and answers what came of them, by their places (ParseEdited). A mistake is shown; on a
/// terminal the editor opens again with the text as it was left, elsewhere the text is kept in its file.
/// @throws UsageError where the editor fails, and for a mistake that is not mended; it names the file of the text.
[[nodiscard]] std::unordered_map<std::uint32_t, CString> EditNames(const std::vector<CString>& names);

} // namespace VyrHost::Cli
