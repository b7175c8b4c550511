/// @file
/// The attributes of a file.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <optional>

namespace VyrPlatform::FileAttributes {

// Attributes are the system's bits (FILE_ATTRIBUTE_...): 0x1 read-only, 0x2 hidden, 0x4 system, 0x10 folder, 0x20
// archive, 0x80 none of the others, 0x100 temporary, 0x1000 offline, 0x2000 not content indexed, and others.

/// The result of Get on failure.
inline constexpr std::uint32_t unknown = 0xFFFFFFFF;

/// The attributes of the file or folder at `path`; `unknown` when they cannot be read.
///
/// On Linux (where a link is followed) they are those that Samba keeps in the extended attribute "user.DOSATTRIB",
/// otherwise those of an NTFS driver. A file without write permission for its owner is read-only, too. A file without
/// any has 0x80; a folder always has 0x10. Where the user may not read what Samba keeps of a file, they are `unknown`.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t Get(const CString& path);

/// Sets the attributes of the file or folder at `path`.
///
/// On Linux they are written to where Get reads them; where none are kept yet, Samba's attribute is created. Its other
/// fields are kept. A file that becomes read-only loses all three write permissions. One that becomes writable gets its
/// owner's back, and those of group and others where they may read and the process's umask allows. Otherwise, and
/// always for folders, the permissions are kept. Samba (4.17) passes on read-only, hidden, system and archive: its
/// clients do not see temporary and not content indexed, and it does not write them.
/// @param attributes  a value with the highest bit, such as `unknown`, is refused.
/// @return 0 when they were set, else the system's error code; then nothing has changed. Some systems return 0 for
/// attributes that they do not keep.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t Set(const CString& path, std::uint32_t attributes);

/// Whether Get reports that the file or folder at `path` is read-only. False when it does not exist. On Linux true for
/// a file without write permission for its owner, and for one whose attributes are `unknown`.
[[nodiscard]] VYR_PLATFORM_API bool IsReadOnly(const CString& path);

/// Makes a read-only file writable while the object lives, and then restores its state exactly: on Linux its
/// permissions. Failures are not reported; the change that needs it then fails.
class VYR_PLATFORM_API LiftedReadOnly
{
public:
    explicit LiftedReadOnly(const CString& path);
    LiftedReadOnly(const LiftedReadOnly&) = delete;
    LiftedReadOnly& operator=(const LiftedReadOnly&) = delete;
    ~LiftedReadOnly();

private:
    CString m_path;
    /// The state to restore; nothing where the file was writable.
    std::optional<std::uint32_t> m_before;
};

} // namespace VyrPlatform::FileAttributes
