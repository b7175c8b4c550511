/// @file
/// Recognises the kinds of containers, of pictures and streams without a signature, and of texts.
#pragma once

#include <VyrLibraryUtils/pictures/ByteView.h>

#include <string_view>

namespace VyrHost::Media {

/// Each returns the usual extension for the content of `file`, and an empty text for unknown content. Those of a
/// container require a view that begins with its signature.

/// ZIP: documents, books and programs are recognised by the names of their members, or by the content of the member
/// "mimetype". Source: PKWARE's APPNOTE 6.3.10, section 4.3; OpenDocument 1.3, part 2, section 3.3; EPUB OCF 3.3,
/// section 4.3.
[[nodiscard]] std::u16string_view KindOfZip(const VyrLibraryUtils::Pictures::ByteView& file);

/// A compound document, by the names in its directory. Source: MS-CFB, sections 2.2 and 2.6.
[[nodiscard]] std::u16string_view KindOfCompound(const VyrLibraryUtils::Pictures::ByteView& file);

/// The ISO base media format, by its brands. Source: ISO/IEC 14496-12, section 4.3; the registry of brands at
/// mp4ra.org.
[[nodiscard]] std::u16string_view KindOfIsoMedia(const VyrLibraryUtils::Pictures::ByteView& file);

/// RIFF: WAV, AVI, WebP and others.
[[nodiscard]] std::u16string_view KindOfRiff(const VyrLibraryUtils::Pictures::ByteView& file);

/// Ogg, by its first codec. Source: RFC 5334 and RFC 7845.
[[nodiscard]] std::u16string_view KindOfOgg(const VyrLibraryUtils::Pictures::ByteView& file);

/// Matroska and WebM, by the type in the header.
[[nodiscard]] std::u16string_view KindOfMatroska(const VyrLibraryUtils::Pictures::ByteView& file);

/// ASF: films have a video stream. Source: Microsoft, Advanced Systems Format, section 3.3.
[[nodiscard]] std::u16string_view KindOfAsf(const VyrLibraryUtils::Pictures::ByteView& file);

/// TIFF, and raw pictures in this format.
[[nodiscard]] std::u16string_view KindOfTiff(VyrLibraryUtils::Pictures::ByteSource& file);

/// "mp3" for a tag of ID3 or two frames of layer III, "aac" for two frames of ADTS, "ts" and "mts" for packets of a
/// transport stream; nothing for other files. Sources: ISO/IEC 11172-3, section 2.4.1; ISO/IEC 13818-1, section 2.4.3;
/// ISO/IEC 13818-7, section 6.2.
[[nodiscard]] std::u16string_view KindOfMpeg(const VyrLibraryUtils::Pictures::ByteView& file);

/// The usual extension of a text in a known language: PostScript, HTML, SVG. Nothing for other texts and files.
[[nodiscard]] std::u16string_view KindOfText(const VyrLibraryUtils::Pictures::ByteView& file);

} // namespace VyrHost::Media
