/// @file
/// Output for programs: one JSON object a line.
#pragma once

#include <VyrHost/model/Decision.h>
#include <VyrHost/model/EntryList.h>
#include <VyrHost/ui/OutputBuffer.h>

#include <string>
#include <string_view>

namespace VyrHost::Ui {

/// Appends `text` as a JSON text with its quotes: UTF-8, control characters escaped, a lone surrogate (a byte of a name
/// that is not UTF-8) as its `\ud...` escape.
void AppendJsonText(std::string& line, std::u16string_view text);

/// Appends a field to the object that `line` holds so far, or begins the object where it is empty.
void AppendJsonField(std::string& line, std::string_view name, std::u16string_view text);

/// Writes one object for each entry: `from` and `to` (full paths; `to` is null where the rules give no name), `status`,
/// `reason` or `warning` where there is one, and `dateFrom`, the dates taken, where --date-from gave a choice.
void WriteJsonLines(OutputBuffer& output, const Model::EntryList& list, const Model::Outcome& outcome);

} // namespace VyrHost::Ui
