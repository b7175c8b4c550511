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

/// What Get gives where it cannot tell.
inline constexpr std::uint32_t unknown = 0xFFFFFFFF;

/// The attributes of the file or folder at `path`; `unknown` when it cannot be asked.
///
/// On Linux (where a link is followed) they are those that Samba keeps in the extended attribute "user.DOSATTRIB", else
/// those that an NTFS driver tells. A file that its owner may not write is read-only, too. A file with none of these
/// has 0x80; a folder always has 0x10.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t Get(const CString& path);

/// Makes `attributes` those of the file or folder at `path`.
///
/// On Linux they are written to where Get reads them; where nothing is kept yet, Samba's attribute is made. Its other
/// fields stay. A file that becomes read-only loses all three write permissions; one that ceases to be gets its
/// owner's back, and those of group and others where they may read and the process's umask allows. Otherwise, and
/// always of folders, the permissions stay. Samba (4.17) passes on read-only, hidden, system and archive: its clients
/// see neither temporary nor not content indexed, and what it writes itself has neither.
/// @param attributes  with the highest bit, which Get gives with `unknown` alone, it is refused.
/// @return 0 when they were set, else the system's error code; then nothing has changed. Some systems answer 0 for
///     attributes that they do not keep.
[[nodiscard]] VYR_PLATFORM_API std::uint32_t Set(const CString& path, std::uint32_t attributes);

/// Whether Get tells that the file or folder at `path` is read-only. False when nothing stands there.
[[nodiscard]] VYR_PLATFORM_API bool IsReadOnly(const CString& path);

/// Takes the read-only state of a file away as long as the object lives, so that the file may be changed, and puts it
/// back exactly: on Linux the permissions as they were. Failures are not told; the change itself then fails.
class VYR_PLATFORM_API LiftedReadOnly
{
public:
    explicit LiftedReadOnly(const CString& path);
    LiftedReadOnly(const LiftedReadOnly&) = delete;
    LiftedReadOnly& operator=(const LiftedReadOnly&) = delete;
    ~LiftedReadOnly();

private:
    CString m_path;
    /// What is put back, as the system keeps it; nothing where nothing was taken away.
    std::optional<std::uint32_t> m_before;
};

} // namespace VyrPlatform::FileAttributes
