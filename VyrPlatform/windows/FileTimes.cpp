// A file's three times on Windows.
#include <VyrPlatform/FileTimes.h>

#include <VyrPlatform/FileSystem.h>

namespace VyrPlatform::FileTimes {

namespace {

std::optional<FileTicks> Get(const CString& path, FileTicks FileSystem::Entry::*time)
{
    const FileSystem::Entry entry = FileSystem::Query(path);
    if (entry.kind != FileSystem::Kind::File && entry.kind != FileSystem::Kind::Folder)
        return std::nullopt;
    return entry.*time;
}

} // namespace

std::optional<FileTicks> GetModified(const CString& path)
{
    return Get(path, &FileSystem::Entry::modified);
}

std::optional<FileTicks> GetCreated(const CString& path)
{
    return Get(path, &FileSystem::Entry::created);
}

std::optional<FileTicks> GetAccessed(const CString& path)
{
    return Get(path, &FileSystem::Entry::accessed);
}

} // namespace VyrPlatform::FileTimes
