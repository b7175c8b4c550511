#include <VyrPlatform/files/FileAttributes.h>

#include "LongPath.h"

#include <windows.h>

namespace VyrPlatform::FileAttributes {

static_assert(unknown == INVALID_FILE_ATTRIBUTES);

std::uint32_t Get(const CString& path)
{
    return GetFileAttributesW(LongPath(path).Get());
}

std::uint32_t Set(const CString& path, std::uint32_t attributes)
{
    constexpr std::uint32_t noAttribute = 0x80000000;
    if (attributes & noAttribute)
        return ERROR_INVALID_PARAMETER;
    return SetFileAttributesW(LongPath(path).Get(), attributes) ? 0 : GetLastError();
}

bool IsReadOnly(const CString& path)
{
    const std::uint32_t attributes = Get(path);
    return attributes != unknown && (attributes & FILE_ATTRIBUTE_READONLY);
}

LiftedReadOnly::LiftedReadOnly(const CString& path) : m_path(path)
{
    const std::uint32_t attributes = Get(path);
    constexpr std::uint32_t readOnly = FILE_ATTRIBUTE_READONLY;
    if (attributes != unknown && (attributes & readOnly) && Set(path, attributes & ~readOnly) == 0)
        m_before = readOnly;
}

LiftedReadOnly::~LiftedReadOnly()
{
    if (m_before)
        static_cast<void>(Set(m_path, Get(m_path) | *m_before));
}

} // namespace VyrPlatform::FileAttributes
