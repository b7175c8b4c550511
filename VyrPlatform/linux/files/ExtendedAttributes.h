// The extended attributes of Windows file systems and Samba, for properties that Linux itself lacks.
#pragma once

#include "NativePath.h"

#include <VyrPlatform/files/FileTimes.h>

#include <cstdint>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <utility>
#include <vector>

namespace VyrPlatform::ExtendedAttributes {

/// What was read; without a value there is none, or the user may not read it.
template <class Number>
struct Reading
{
    std::optional<Number> value;
    /// The error code where the file has an attribute that the user may not read; else 0.
    int error = 0;
};

/// The attributes (FILE_ATTRIBUTE_... bits) of the file at `path`, which has `status`; nothing where none are kept.
[[nodiscard]] Reading<std::uint32_t> GetAttributes(const NativePath& path, const struct statx& status);

/// The creation time in Samba's attribute of the file at `path`; nothing where it has none.
[[nodiscard]] Reading<FileTicks> GetSambaCreated(const NativePath& path);
/// The creation time of the file at `path` from an NTFS driver; nothing on other file systems.
[[nodiscard]] std::optional<FileTicks> GetNtfsCreated(const NativePath& path);

/// Sets the creation time in Samba's attribute; its other fields are kept.
/// @return 0, or the error code; EINVAL where the attribute has a value that Samba does not write.
[[nodiscard]] int SetSambaCreated(const NativePath& path, FileTicks created);
/// Sets the creation time through an NTFS driver.
/// @return 0, or the error code: always one on other file systems.
[[nodiscard]] int SetNtfsCreated(const NativePath& path, FileTicks created);
/// Sets the creation time where it is read from, or creates Samba's attribute.
/// @return 0, or the error code.
[[nodiscard]] int SetCreated(const NativePath& path, FileTicks created);

/// Sets the attributes where GetAttributes reads them: in Samba's attribute, whose other fields are kept, or through an
/// NTFS driver. Where there is neither, Samba's attribute is created, unless `isWorthKeeping` is false.
/// @return 0, or the error code.
[[nodiscard]] int SetAttributes(const NativePath& path, std::uint32_t attributes, bool isWorthKeeping);

/// The names of the attributes that these operations read.
inline constexpr const char* sambaName = "user.DOSATTRIB";
inline constexpr const char* ntfsAttributesName = "system.ntfs_attrib_be";
inline constexpr const char* ntfsCreatedName = "system.ntfs_crtime_be";

/// The value of an attribute, unchanged; nothing where there is none, or more than 1023 bytes.
[[nodiscard]] std::optional<std::string> ReadRaw(const NativePath& path, const char* name);
/// Sets the value of an attribute, or removes it where `value` is empty.
/// @return 0, or the error code.
[[nodiscard]] int WriteRaw(const NativePath& path, const char* name, const std::optional<std::string>& value) noexcept;

/// The extended attributes of a file that these operations write, to restore them when a later step fails.
class Snapshot
{
public:
    explicit Snapshot(const NativePath& path);
    /// Restores them on the same file.
    void PutBack(const NativePath& path) const noexcept;

private:
    /// Names and values; a missing one has no value.
    std::vector<std::pair<const char*, std::optional<std::string>>> m_values;
};

} // namespace VyrPlatform::ExtendedAttributes
