/// @file
/// The words in angle brackets that templates may hold.
#pragma once

#include <string_view>

namespace VyrHost::Rename::Token {

/// The name so far.
inline constexpr std::u16string_view Name = u"<Name>";
/// The sequence number.
inline constexpr std::u16string_view Number = u"<Number>";
/// A step down into a folder.
inline constexpr std::u16string_view Folder = u"<Folder>";
/// The camera's maker and model.
inline constexpr std::u16string_view Make = u"<Make>";
inline constexpr std::u16string_view Model = u"<Model>";

} // namespace VyrHost::Rename::Token
