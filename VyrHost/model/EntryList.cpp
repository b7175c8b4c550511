// Splits the names of entries.
#include <VyrHost/model/EntryList.h>

#include <VyrLibraryUtils/FileUtils.h>

namespace VyrHost::Model {

SplitName Split(const CString& path, const Entry& entry)
{
    using VyrLibraryUtils::FileUtils;
    if (entry.kind == VyrPlatform::FileSystem::Kind::Folder)
        return {entry.name.View(), {}};
    return {FileUtils::GetSplitFName(path), FileUtils::GetSplitExtension(path, 1)};
}

void EntryList::NumberOwners()
{
    for (std::uint32_t index = 0; index < entries.size(); ++index) {
        NameRecord* const record = folders[entries[index].folder].names.Find(entries[index].name);
        if (record)
            record->owner = index;
    }
}

} // namespace VyrHost::Model
