/// @file
/// Results as people and programs read them: table rows, lines, JSON and the summary, for all commands.
#pragma once

#include <VyrHost/model/Result.h>
#include <VyrHost/ui/Output.h>

#include <functional>
#include <string>

namespace VyrHost::Ui {

/// Writes a row for each result: its path, the new one, and what there is to say.
void WriteResultTable(OutputBuffer& output, const Model::Results& results);

/// Writes a JSON object for each result. docs/json.md describes the keys.
void WriteResultJson(OutputBuffer& output, const Model::Results& results, bool isPreview);

/// Whether a result is to be told even with --quiet: something is wrong with it. Entries that were not reached are only
/// counted, since they may be very many; what is wrong with a folder that is copied or moved its parts tell.
[[nodiscard]] bool IsProblem(const Model::Result& result);
/// What is said of `result` in a message, such as "'a.txt' refused: the new name is there already"; safe to show.
[[nodiscard]] std::string MessageFor(const Model::Result& result);

/// Such as "5 entries: 3 renamed, 1 unchanged, 1 refused." with a line end.
[[nodiscard]] std::string SummaryOf(const Model::Tally& tally);

} // namespace VyrHost::Ui
