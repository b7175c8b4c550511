/// @file
/// Records of the engine for inserting text.
#pragma once

#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <string_view>

namespace VyrHost::Rename {

/// The inserting operations, by the numbers of ITEM::addDeleteType.
enum class InsertType : int
{
    FromStart = 0,
    FromEnd = 1
};

/// Inserts `text` at `position` (in code units, 0 or more), counted from the start or the end of the name.
[[nodiscard]] VyrLibraryFuncs::NameFuncs::ITEM InsertItem(InsertType type, int position, std::u16string_view text);

} // namespace VyrHost::Rename
