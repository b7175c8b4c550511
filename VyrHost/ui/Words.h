/// @file
/// The words for what a preview decides.
#pragma once

#include <VyrHost/model/Decision.h>
#include <VyrHost/model/RenameResult.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace VyrHost::Ui {

/// One word, the same for people and programs.
[[nodiscard]] std::string_view WordFor(Model::Status status);
/// What has become of an entry whose rename ended so.
[[nodiscard]] Model::Status StatusOf(Model::RenameOutcome outcome);
/// A few words; empty for Reason::None and for what the cause alone says.
[[nodiscard]] std::string_view WordsFor(Model::Reason reason);
/// Why the entry `index` of `outcome` is not what was asked for: the reason and its cause. UTF-8, not
/// yet made safe to show; empty when there is none.
[[nodiscard]] std::string ReasonFor(const Model::Outcome& outcome, std::size_t index);
/// The dates in `dates`, separated by commas as --date-from takes them: "picture,modified"; empty for none.
[[nodiscard]] std::string WordsFor(Model::DateSourceSet dates);
/// A few words on what a name would be in trouble for; empty for NameFault::None.
[[nodiscard]] std::string_view WarningFor(VyrHostPlatform::NameFault fault);

} // namespace VyrHost::Ui
