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

/// The name of the stream that holds the mark on Windows, and of the form of a mark that is such a stream.
inline constexpr std::u16string_view zoneStream = u":Zone.Identifier";

/// One form of the mark. Windows has only the stream; on Linux it may be a file beside the marked one, and several
/// extended attributes.
struct ZoneForm
{
    /// `zoneStream`, or the name of an extended attribute.
    CString name;
    /// What it holds; at most 64 KiB.
    std::string bytes;

    friend bool operator==(const ZoneForm&, const ZoneForm&) = default;
};

/// Every form of the mark that the file at `path` has, none where it has no mark.
/// @param error  gets the system's error code where nothing is returned: nothing stands at `path`, or a form cannot be
///     read, or is larger than a mark is.
[[nodiscard]] VYR_PLATFORM_API std::optional<std::vector<ZoneForm>> ReadZoneMark(const CString& path,
                                                                                 std::uint32_t& error);

/// Gives the file at `path` one form of the mark. What the file has in that form is replaced.
/// @return 0, else the system's error code: that of an invalid argument for a form that this system does not know.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t WriteZoneForm(const CString& path, const ZoneForm& form);

/// Removes the mark which tells that the file at `path` was downloaded, in every form that this system knows.
/// @return 0 when a mark was there and none is left, else the system's error code (also when there was none).
[[nodiscard]] VYR_PLATFORM_API std::uint32_t DeleteZoneMark(const CString& path);

} // namespace VyrPlatform::NamedStreams
