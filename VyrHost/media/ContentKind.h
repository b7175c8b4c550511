/// @file
/// Recognises kinds of files by their content.
#pragma once

#include <VyrLibraryUtils/pictures/ByteSource.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <span>
#include <string_view>

namespace VyrHost::Media {

/// A kind of content.
struct ContentKind
{
    /// The usual extension, in lower case and without a dot.
    std::u16string_view extension;
    /// Other valid extensions of files with such content, separated by blanks.
    std::u16string_view others;

    /// Whether a file of this kind may have the extension `suffix`: without a dot, in any case.
    [[nodiscard]] bool MayHave(std::u16string_view suffix) const;
};

/// The kinds that are known.
[[nodiscard]] std::span<const ContentKind> ContentKinds();

/// The kind of `file`, by its content only; null for an unknown one. Reads at most a few hundred kilobytes. Sources:
/// the formats' own documents, which the functions name.
[[nodiscard]] const ContentKind* KindOfContent(VyrLibraryUtils::Pictures::ByteSource& file);

/// The result of looking into a file.
struct FileKind
{
    /// Null for unknown content, and for empty files, folders and devices.
    const ContentKind* kind = nullptr;
    /// The system's code where the file cannot be read, else 0.
    std::uint32_t error = 0;
};

[[nodiscard]] FileKind KindOf(const CString& path);

} // namespace VyrHost::Media
