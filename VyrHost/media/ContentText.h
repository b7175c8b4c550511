/// @file
/// The kinds of files that are text.
#pragma once

#include <VyrLibraryUtils/pictures/ByteView.h>

#include <string_view>

namespace VyrHost::Media {

/// The usual extension of a text in a known language: PostScript, HTML, SVG. Nothing for other texts and files.
[[nodiscard]] std::u16string_view KindOfText(const VyrLibraryUtils::Pictures::ByteView& file);

} // namespace VyrHost::Media
