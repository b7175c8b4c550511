/// @file
/// The words for what a preview decides.
#pragma once

#include <VyrHost/preview/Decision.h>

#include <string_view>

namespace VyrHost {

/// One word, the same for people and programs.
[[nodiscard]] std::string_view WordFor(Status status);
/// A few words; empty for Reason::None.
[[nodiscard]] std::string_view WordsFor(Reason reason);
/// A few words on what a name would be in trouble for; empty for NameFault::None.
[[nodiscard]] std::string_view WarningFor(VyrPlatform::NameFault fault);

} // namespace VyrHost
