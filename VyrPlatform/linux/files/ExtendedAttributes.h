// Reads and writes the extended attributes of Windows file systems and Samba, for what Linux itself lacks.
#pragma once

#include "NativePath.h"

#include <VyrPlatform/files/FileTimes.h>

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace VyrPlatform::ExtendedAttributes {

/// The attributes (FILE_ATTRIBUTE_... bits) of the file at `path`; nothing where none are kept.
[[nodiscard]] std::optional<std::uint32_t> GetAttributes(const NativePath& path);

/// The creation time that Samba keeps of the file at `path`; nothing where it keeps none.
[[nodiscard]] std::optional<FileTicks> GetSambaCreated(const NativePath& path);
/// The creation time that an NTFS driver tells of the file at `path`; nothing on other file systems.
[[nodiscard]] std::optional<FileTicks> GetNtfsCreated(const NativePath& path);

/// Sets the creation time as Samba keeps it; the other fields of its attribute stay.
/// @return 0, or the error code; EINVAL where the attribute holds what Samba does not write.
[[nodiscard]] int SetSambaCreated(const NativePath& path, FileTicks created);
/// Sets the creation time on the disk of an NTFS driver.
/// @return 0, or the error code: one on every other file system.
[[nodiscard]] int SetNtfsCreated(const NativePath& path, FileTicks created);
/// Sets the creation time where it is read from, or makes Samba's attribute.
/// @return 0, or the error code.
[[nodiscard]] int SetCreated(const NativePath& path, FileTicks created);

/// Sets the attributes where GetAttributes reads them: into Samba's attribute, whose other fields stay, or on the disk
/// of an NTFS driver. Where there is neither, Samba's attribute is made, unless `isWorthKeeping` is false.
/// @return 0, or the error code.
[[nodiscard]] int SetAttributes(const NativePath& path, std::uint32_t attributes, bool isWorthKeeping);

/// The attributes that hold what these operations read.
inline constexpr const char* sambaName = "user.DOSATTRIB";
inline constexpr const char* ntfsAttributesName = "system.ntfs_attrib_be";
inline constexpr const char* ntfsCreatedName = "system.ntfs_crtime_be";

/// The value of an attribute as it stands; nothing where there is none, or more than 1023 bytes.
[[nodiscard]] std::optional<std::string> ReadRaw(const NativePath& path, const char* name);
/// Sets the value of an attribute, or removes it where there is none in `value`.
/// @return 0, or the error code.
[[nodiscard]] int WriteRaw(const NativePath& path, const char* name, const std::optional<std::string>& value) noexcept;

/// What the extended attributes of a file hold that these operations write, to be put back when a later step fails.
class Snapshot
{
public:
    explicit Snapshot(const NativePath& path);
    /// To the same file.
    void PutBack(const NativePath& path) const noexcept;

private:
    /// Names and values; one that is not there has none.
    std::vector<std::pair<const char*, std::optional<std::string>>> m_values;
};

} // namespace VyrPlatform::ExtendedAttributes
