// Cuts paths for the planner.
#include <VyrHost/RenameList.h>

#include <VyrHost/files/FolderPart.h>

namespace VyrHost {

PlannedPath Cut(const CString& path, NameStore& texts)
{
    const std::u16string_view folder = FolderPart(path);
    return {folder, texts.Keep(path.View().substr(folder.size()))};
}

} // namespace VyrHost
