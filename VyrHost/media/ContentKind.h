/// @file
/// The kinds of files that their content tells.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <string_view>

namespace VyrHost::Media {

/// What there is to know about the content of a file.
struct ContentKind
{
    /// The usual extension, in small letters and without a dot; empty for content that is not known.
    std::u16string_view extension;
    /// The system's code where the file cannot be read, else 0.
    std::uint32_t error = 0;
};

/// The kind of the file at `path`, by its content alone. Empty files, folders and devices are not known.
[[nodiscard]] ContentKind KindOf(const CString& path);

} // namespace VyrHost::Media
