/// @file
/// Reads, writes and removes the mark of a download.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VyrPlatform::NamedStreams {

/// The name of the stream that contains the mark on Windows, and of a form of the mark in such a stream.
inline constexpr std::u16string_view zoneStream = u":Zone.Identifier";

/// One form of the mark. Windows has only the stream; on Linux it may be a file beside the marked one, and several
/// extended attributes.
struct ZoneForm
{
    /// `zoneStream`, or the name of an extended attribute.
    CString name;
    /// Its content, at most 64 KiB.
    std::string bytes;
    /// What else is restored when it is written, in this system's words; empty where there is nothing. For a file
    /// beside the marked one: its permissions, and when it was last changed and read.
    CString state = {};

    /// Whether both say the same of the download; their states may differ.
    friend bool operator==(const ZoneForm& left, const ZoneForm& right) noexcept
    {
        return left.name == right.name && left.bytes == right.bytes;
    }
};

/// All forms of the mark of the file at `path`; empty where it has no mark.
/// @param error  gets the system's error code where there is no result: the file does not exist, or a form cannot be
/// read or is larger than a mark can be.
[[nodiscard]] VYR_PLATFORM_API std::optional<std::vector<ZoneForm>> ReadZoneMark(const CString& path,
                                                                                 std::uint32_t& error);

/// Writes one form of the mark of the file at `path`, and replaces the present one. The file's times stay.
/// @return 0, else the system's error code: invalid argument for a form or a state that this system does not know.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t WriteZoneForm(const CString& path, const ZoneForm& form);

/// Removes the mark that the file at `path` was downloaded, in every form that this system knows. The file's times
/// stay.
/// @return 0 when there was a mark and none is left, else the system's error code (also when there was none).
[[nodiscard]] VYR_PLATFORM_API std::uint32_t DeleteZoneMark(const CString& path);

} // namespace VyrPlatform::NamedStreams
