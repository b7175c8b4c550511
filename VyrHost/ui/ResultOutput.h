/// @file
/// Results for people and programs: table rows, messages, JSON and the summary, for all commands.
#pragma once

#include <VyrHost/model/Result.h>
#include <VyrHost/ui/Output.h>
#include <VyrHost/ui/Table.h>
#include <VyrPlatform/text/CString.h>

#include <functional>
#include <string>
#include <string_view>

namespace VyrHost::Ui {

/// Writes a row for each result: its path, the new path or value, and remarks.
void WriteResultTable(OutputBuffer& output, const Model::Results& results);

/// Writes a JSON object for each result. docs/json.md describes the keys.
void WriteResultJson(OutputBuffer& output, const Model::Results& results, bool isPreview);

/// The word for the status, in tables and in JSON, such as "renamed"; `kind` is that of the result.
[[nodiscard]] std::u16string_view WordFor(Model::Status status, std::string_view kind);
/// How much notice the result needs.
[[nodiscard]] Tone ToneOf(const Model::Result& result);
/// What there is to say beside the status and its reason: the size of a folder, the source of a date, a warning.
[[nodiscard]] CString RemarksFor(const Model::Result& result);

/// Whether a result is a problem that is shown even with --quiet. Entries that were not reached are only counted, since
/// there may be very many; the problems of a folder that is copied or moved are results of their own.
[[nodiscard]] bool IsProblem(const Model::Result& result);
/// The message about `result`, such as "'a.txt' refused: the new name is there already"; safe to show.
[[nodiscard]] std::string MessageFor(const Model::Result& result);

/// Such as "5 entries: 3 renamed, 1 unchanged, 1 refused." with a line end.
[[nodiscard]] std::string SummaryOf(const Model::Tally& tally);

} // namespace VyrHost::Ui
