/// @file
/// Results for people and programs: table rows, messages, JSON and the summary, for all commands.
#pragma once

#include <VyrHost/model/Result.h>
#include <VyrHost/ui/Output.h>

#include <functional>
#include <string>

namespace VyrHost::Ui {

/// Writes a row for each result: its path, the new path or value, and remarks.
void WriteResultTable(OutputBuffer& output, const Model::Results& results);

/// Writes a JSON object for each result. docs/json.md describes the keys.
void WriteResultJson(OutputBuffer& output, const Model::Results& results, bool isPreview);

/// Whether a result is a problem that is shown even with --quiet. Entries that were not reached are only counted, since
/// there may be very many; the problems of a folder that is copied or moved are results of their own.
[[nodiscard]] bool IsProblem(const Model::Result& result);
/// The message about `result`, such as "'a.txt' refused: the new name is there already"; safe to show.
[[nodiscard]] std::string MessageFor(const Model::Result& result);

/// Such as "5 entries: 3 renamed, 1 unchanged, 1 refused." with a line end.
[[nodiscard]] std::string SummaryOf(const Model::Tally& tally);

} // namespace VyrHost::Ui
