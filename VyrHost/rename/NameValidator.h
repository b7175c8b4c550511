/// @file
/// Whether a new name can be given at all, whatever else is in the folder.
#pragma once

#include <VyrHost/rename/Decision.h>

#include <string_view>

namespace VyrHost::Rename {

struct NameValidity
{
    Reason reason = Reason::None;
    /// A fault that the old name did not have and this system does not mind.
    VyrHostPlatform::NameFault warning = VyrHostPlatform::NameFault::None;
};

[[nodiscard]] NameValidity ValidateName(std::u16string_view newName, std::u16string_view oldName);

} // namespace VyrHost::Rename
