/// @file
/// Tells which entries must keep their names and places.
#pragma once

#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/CString.h>

#include <functional>
#include <string_view>

namespace VyrHost::Model {

/// The reason why an entry must not be renamed or moved, whatever the rules say; empty for all other entries. Takes its
/// folder's path (with a separator at its end; empty if the name is a full path), its name and its kind.
using StayReason = std::function<std::u16string_view(const CString& folder, std::u16string_view name,
                                                     VyrPlatform::FileSystem::Kind kind)>;

} // namespace VyrHost::Model
