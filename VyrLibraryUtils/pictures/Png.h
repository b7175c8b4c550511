/// @file
/// PNG: the Exif chunk, and the text chunks in which programs kept Exif before that chunk existed.
#pragma once

#include <VyrLibraryUtils/pictures/ByteView.h>
#include <VyrLibraryUtils/pictures/PictureTag.h>

#include <string>

namespace VyrLibraryUtils::Pictures {

/// The text of `tag` in the first chunk of `png` that has one: eXIf, before or after the picture's data, or a tEXt or
/// zTXt "Raw profile type exif" or "Raw profile type APP1". Checksums are not checked: a wrong one does not tell
/// which byte is wrong, and other programs read such files. Source: PNG third edition, sections 5 and 11.3.
[[nodiscard]] std::string ReadPng(const ByteView& png, PictureTag tag);

} // namespace VyrLibraryUtils::Pictures
