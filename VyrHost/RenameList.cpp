// Cuts paths for the planner.
#include <VyrHost/RenameList.h>

#include <VyrHost/files/FolderPart.h>

namespace VyrHost {

PlannedPath::PlannedPath(const CString& path) : folder(FolderPart(path)), name(path.Mid(folder.GetLength())) {}

} // namespace VyrHost
