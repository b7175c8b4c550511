// The mark of a download on Linux: a sibling file or an extended attribute, as the programs that mark files write it.
#include <VyrPlatform/files/NamedStreams.h>

#include "NativePath.h"

#include <VyrPlatform/files/FileSystem.h>

#include <cerrno>
#include <sys/xattr.h>
#include <unistd.h>

namespace VyrPlatform::NamedStreams {

namespace {

constexpr const char* attributeNames[] = {
    "user.DosStream.Zone.Identifier:$DATA", // Samba
    "user.DosStream.Zone.Identifier",       // Samba
    "user.Zone.Identifier",                 // ntfs-3g
    "user.xdg.origin.url",                  // browsers, download tools
    "user.xdg.referrer.url",
};

/// What became of a mark, gathered over its forms.
class Outcome
{
public:
    void Add(int result) noexcept
    {
        if (result == 0)
            m_removed = true;
        else if (errno != ENOENT && errno != ENODATA && errno != ENOTSUP)
            m_error = errno;
    }
    [[nodiscard]] std::uint32_t Code() const noexcept
    {
        return static_cast<std::uint32_t>(m_error != 0 || m_removed ? m_error : ENOENT);
    }

private:
    bool m_removed = false;
    int m_error = 0;
};

std::u16string_view WithoutSeparatorsAtEnd(std::u16string_view path) noexcept
{
    while (path.size() > 1 && FileSystem::IsSeparator(path.back()))
        path.remove_suffix(1);
    return path;
}

} // namespace

std::uint32_t DeleteZoneMark(const CString& path)
{
    const NativePath nativePath(path);
    if (access(nativePath.Get(), F_OK) != 0)
        return static_cast<std::uint32_t>(errno);
    Outcome outcome;
    outcome.Add(unlink(NativePath(WithoutSeparatorsAtEnd(path), ":Zone.Identifier").Get()));
    for (const char* const name : attributeNames)
        outcome.Add(removexattr(nativePath.Get(), name));
    return outcome.Code();
}

} // namespace VyrPlatform::NamedStreams
