// Opens entries without locking others out.
#pragma once

#include "LongPath.h"

#include <VyrPlatform/windows/Handle.h>

namespace VyrPlatform {

/// The flags for CreateFileW.
enum class Links : DWORD
{
    Follow = FILE_FLAG_BACKUP_SEMANTICS,
    /// A link itself is opened.
    Keep = FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT
};

/// Opens the file or folder at `path` for `access`, while others may read, write, rename and delete it.
[[nodiscard]] inline Handle OpenEntry(const LongPath& path, DWORD access, Links links) noexcept
{
    return Handle(CreateFileW(path.Get(), access, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                              OPEN_EXISTING, static_cast<DWORD>(links), nullptr));
}

} // namespace VyrPlatform
