/// @file
/// The words for what a preview decides.
#pragma once

#include <VyrHost/RenameList.h>
#include <VyrHost/preview/Decision.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace VyrHost {

/// One word, the same for people and programs.
[[nodiscard]] std::string_view WordFor(Status status);
/// What has become of an entry whose rename ended so.
[[nodiscard]] Status StatusOf(RenameOutcome outcome);
/// A few words; empty for Reason::None and for what the cause alone says.
[[nodiscard]] std::string_view WordsFor(Reason reason);
/// Why the entry `index` of `outcome` is not what was asked for: the reason and its cause. UTF-8, not
/// yet made safe to show; empty when there is none.
[[nodiscard]] std::string ReasonFor(const Outcome& outcome, std::size_t index);
/// A few words on what a name would be in trouble for; empty for NameFault::None.
[[nodiscard]] std::string_view WarningFor(VyrHostPlatform::NameFault fault);

} // namespace VyrHost
