#include <VyrPlatform/files/FolderListing.h>

#include "NativePath.h"

#include <VyrPlatform/text/Encoding.h>

#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace VyrPlatform {

using FileSystem::Kind;

struct FolderListing::State
{
    DIR* folder = nullptr;
    Dots dots = Dots::LeftOut;
    CString name;
    FileSystem::Kind kind = FileSystem::Kind::Missing;
    bool isLink = false;
    std::uint32_t error = 0;
};

namespace {

bool IsDots(const char* name) noexcept
{
    return std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0;
}

/// The type bits of the entry `name` in `folder`; 0 when the system does not tell.
mode_t AskType(DIR* folder, const char* name, int flags) noexcept
{
    struct statx status;
    return statx(dirfd(folder), name, flags, STATX_TYPE, &status) == 0 ? status.stx_mode & S_IFMT : 0;
}

} // namespace

FolderListing::FolderListing(const CString& path, Dots dots) : m_state(std::make_unique<State>())
{
    m_state->dots = dots;
    m_state->folder = opendir(NativePath(path).Get());
    if (!m_state->folder)
        m_state->error = static_cast<std::uint32_t>(errno);
}

FolderListing::~FolderListing()
{
    if (m_state->folder)
        closedir(m_state->folder);
}

bool FolderListing::Next()
{
    if (!m_state->folder)
        return false;
    const dirent* entry = nullptr;
    do {
        errno = 0;
        entry = readdir(m_state->folder);
    } while (entry && m_state->dots == Dots::LeftOut && IsDots(entry->d_name));
    if (!entry) {
        m_state->error = static_cast<std::uint32_t>(errno);
        return false;
    }
    m_state->name = Encoding::FromNameBytes(entry->d_name);
    auto type = static_cast<mode_t>(DTTOIF(entry->d_type));
    if (entry->d_type == DT_UNKNOWN)
        type = AskType(m_state->folder, entry->d_name, AT_SYMLINK_NOFOLLOW);
    m_state->isLink = S_ISLNK(type);
    if (m_state->isLink)
        type = AskType(m_state->folder, entry->d_name, 0);
    m_state->kind = S_ISREG(type) ? Kind::File : S_ISDIR(type) ? Kind::Folder : Kind::Other;
    return true;
}

const CString& FolderListing::Name() const noexcept
{
    return m_state->name;
}

Kind FolderListing::Kind() const noexcept
{
    return m_state->kind;
}

bool FolderListing::IsLink() const noexcept
{
    return m_state->isLink;
}

std::uint32_t FolderListing::Error() const noexcept
{
    return m_state->error;
}

} // namespace VyrPlatform
