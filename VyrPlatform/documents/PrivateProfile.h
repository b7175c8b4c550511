/// @file
/// Private-profile files: values of keys in sections (INI files).
///
///     ; a comment
///     [Section]
///     Key = value
///
/// The rules are those of Windows, whose own functions do the work there. Names are found without regard to case and to
/// blanks around them; of several sections or keys of one name the first counts. A line without "=" is a key without a
/// value; a line that begins with ";" is one as well, so it hides nothing. Blanks around a value go, then a pair of
/// double or single quotes around it; everything else in it stays, a ";" included. A section's line is "[name]" up to
/// its last bracket, and what follows that is ignored. What stands before the first section is found in the section of
/// the empty name.
///
/// A file is UTF-16 of either byte order or UTF-8 where it begins with the mark of that, else in the system's ANSI code
/// page (VyrPlatform::CodePage::GetAnsi). On Linux a file of more than 64 MB is not read.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrPlatform::PrivateProfile {

/// The value of `key` in `section` of the file at `path`, read anew in each call.
/// @param capacity  more than 0: a longer value is cut to one unit less.
/// @return empty where the file, the section, the key or its value is missing.
[[nodiscard]] VYR_PLATFORM_API CString ReadText(const CString& path, const CString& section, const CString& key,
                                                int capacity);

/// The number at the start of the value: an optional sign, then decimal digits, or "0x" and hexadecimal ones; what
/// follows is ignored, and a larger number wraps around. 0 for a value that begins otherwise.
/// @return `defaultNumber` where there is no value, or an empty one.
[[nodiscard]] VYR_PLATFORM_API std::int32_t ReadInteger(const CString& path, const CString& section, const CString& key,
                                                        std::int32_t defaultNumber);

/// Sets the value of `key` in `section`, without the blanks in front of it. A missing key goes to the end of its
/// section, a missing section to the end of the file, a missing file is made (in the ANSI code page).
///
/// A value that is set already changes nothing. Otherwise the whole file is written anew, in its own encoding: lines
/// end in CR LF, empty lines and the blanks around names and values go, comments and quotes stay. On Linux the old file
/// stays until the new one is whole.
/// @return 0, else the system's error code; nothing has changed then on Linux.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t WriteText(const CString& path, const CString& section, const CString& key,
                                                       const CString& value);

} // namespace VyrPlatform::PrivateProfile
