// Cuts the names of entries.
#include <VyrHost/entries/EntryList.h>

#include <VyrLibraryUtils/FileUtils.h>

namespace VyrHost {

SplitName Split(const CString& path, const Entry& entry)
{
    using VyrLibraryUtils::FileUtils;
    if (entry.kind == VyrPlatform::FileSystem::Kind::Folder)
        return {entry.name, {}};
    return {FileUtils::GetSplitFName(path), FileUtils::GetSplitExtension(path, 1)};
}

} // namespace VyrHost
