/// @file
/// Rules that the user keeps under a name: texts of options (rename/OptionLines.h) in a folder of the user's settings.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <string>
#include <vector>

namespace VyrHost::Cli {

/// The folder that VYR_RULES_DIR names, else "rules" among the user's settings.
[[nodiscard]] CString KeptRulesFolder();

/// The names of all kept rules, sorted.
[[nodiscard]] std::vector<CString> NamesOfKeptRules();

/// The file of the rules `name`: a path if it has a folder separator or ends in ".rules", else a name in the folder.
/// @throws UsageError for a text that is neither.
[[nodiscard]] CString PathOfKeptRules(const CString& name);

/// The text of the rules `name` (see PathOfKeptRules).
/// @throws UsageError when they do not exist or cannot be read.
[[nodiscard]] std::string LoadRules(const CString& name);

/// Keeps `text` under `name`, flushed to the disk.
/// @throws UsageError when other rules have that name, or the file cannot be written.
void SaveRules(const CString& name, const std::string& text);

} // namespace VyrHost::Cli
