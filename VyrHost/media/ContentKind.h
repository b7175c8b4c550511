/// @file
/// The kinds of files that their content tells.
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
    /// The usual extension, in small letters and without a dot.
    std::u16string_view extension;
    /// Other extensions of files with such content, which are right as they are; blanks between them.
    std::u16string_view others;

    /// Whether a file of this kind may have `suffix`: without a dot, in capital or small letters.
    [[nodiscard]] bool MayHave(std::u16string_view suffix) const;
};

/// The kinds that are known.
[[nodiscard]] std::span<const ContentKind> ContentKinds();

/// The kind of `file`, by its content alone; nothing for one that is not known. At most a few hundred kilobytes of it
/// are read. Sources: the formats' own documents, which the functions name.
[[nodiscard]] const ContentKind* KindOfContent(VyrLibraryUtils::Pictures::ByteSource& file);

/// The result of looking into a file.
struct FileKind
{
    /// Nothing for content that is not known, and for empty files, folders and devices.
    const ContentKind* kind = nullptr;
    /// The system's code where the file cannot be read, else 0.
    std::uint32_t error = 0;
};

[[nodiscard]] FileKind KindOf(const CString& path);

} // namespace VyrHost::Media
