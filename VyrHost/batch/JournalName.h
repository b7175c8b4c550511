/// @file
/// Names as the journal writes them: exactly, and on one line.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <optional>
#include <string>
#include <string_view>

namespace VyrHost::Batch {

/// Appends `name` as UTF-8. A backslash, a control character of ASCII and a lone surrogate become a backslash, "u" and
/// four hexadecimal digits, so that every text comes back unit by unit.
void AppendJournalName(std::string& text, std::u16string_view name);

/// The name that `text` stands for; nothing when it is not as AppendJournalName writes it.
[[nodiscard]] std::optional<CString> ReadJournalName(std::string_view text);

} // namespace VyrHost::Batch
