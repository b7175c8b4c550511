/// @file
/// Private-profile files: values of keys in sections (INI files).
///
///     ; a comment
///     [Section]
///     Key = value
///
/// The rules are those of Windows, where the system's own functions are called. Names match without regard to case and
/// to blanks around them; of several sections or keys with the same name the first counts. A line without "=" is a key
/// without a value; so is a line that begins with ";", which hides nothing else. Blanks around a value are removed,
/// then a pair of double or single quotes around it; everything else in it is kept, including ";". A section's line is
/// "[name]" up to its last bracket; the rest of the line is ignored. Lines before the first section are in the section
/// with the empty name.
///
/// A file that begins with a byte order mark is UTF-16 or UTF-8; any other is in the system's ANSI code page
/// (VyrPlatform::CodePage::GetAnsi). On Linux a file of more than 64 MB is not read.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrPlatform::PrivateProfile {

/// The value of `key` in `section` of the file at `path`, which is read in each call.
/// @param capacity  more than 0: a longer value is truncated to one code unit less.
/// @return empty where the file, the section, the key or its value is missing.
[[nodiscard]] VYR_PLATFORM_API CString ReadText(const CString& path, const CString& section, const CString& key,
                                                int capacity);

/// The number at the start of the value: blanks (which only quotes keep), an optional sign, then decimal digits, or
/// "0x", "0o" or "0b" and hexadecimal, octal or binary digits; the rest is ignored, and a larger number wraps around. 0
/// for a value that begins otherwise.
/// @return `defaultNumber` where there is no value, or an empty one.
[[nodiscard]] VYR_PLATFORM_API std::int32_t ReadInteger(const CString& path, const CString& section, const CString& key,
                                                        std::int32_t defaultNumber);

/// Sets the value of `key` in `section`, without leading blanks. A missing key is added at the end of its section, a
/// missing section at the end of the file, and a missing file is created (in the ANSI code page).
///
/// Setting the present value changes nothing. Otherwise the whole file is written anew in its own encoding: lines end
/// in CR LF; empty lines and the blanks around names and values are removed, comments and quotes are kept. On Linux the
/// old file is kept until the new one is complete.
/// @return 0, else the system's error code; on Linux nothing has changed then.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t WriteText(const CString& path, const CString& section, const CString& key,
                                                       const CString& value);

} // namespace VyrPlatform::PrivateProfile
