// Cuts paths for the planner.
#include <VyrHost/model/RenameList.h>

#include <VyrHost/text/FolderPart.h>

namespace VyrHost::Model {

PlannedPath Cut(const CString& path, NamePool& texts)
{
    const std::u16string_view folder = Text::FolderPart(path);
    return {folder, texts.Intern(path.View().substr(folder.size()))};
}

} // namespace VyrHost::Model
