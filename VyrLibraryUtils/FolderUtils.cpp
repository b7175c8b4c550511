#include <VyrLibraryUtils/FolderUtils.h>
#include <VyrPlatform/files/FileSystem.h>

#include <vector>

namespace VyrLibraryUtils {

namespace FileSystem = VyrPlatform::FileSystem;

namespace {

/// No system takes a longer path, in code units.
constexpr int longestPath = 32767;

/// The length of the path to the parent of `path`, 0 when it has none. Uses the system's own separators, not the style
/// of the path, since the system creates the folders.
int LengthOfParent(std::u16string_view path)
{
    std::size_t length = path.size();
    while (length > 0 && FileSystem::IsSeparator(path[length - 1]))
        --length;
    while (length > 0 && !FileSystem::IsSeparator(path[length - 1]))
        --length;
    return static_cast<int>(length);
}

bool CreateWithParents(const CString& path)
{
    if (path.GetLength() > longestPath)
        return false;
    std::vector<CString> missing;
    for (CString current = path; !current.IsEmpty() && !FileSystem::IsFolder(current);
         current = current.Left(LengthOfParent(current)))
        missing.push_back(current);
    for (auto folder = missing.rbegin(); folder != missing.rend(); ++folder)
        // It may exist by now: another program created it, or the path goes back over "..".
        if (FileSystem::CreateFolder(*folder) != 0 && !FileSystem::IsFolder(*folder))
            return false;
    return !path.IsEmpty();
}

} // namespace

FolderUtils::FolderUtils() = default;
FolderUtils::~FolderUtils() = default;
FolderUtils& FolderUtils::operator=(const FolderUtils&) = default;

int FolderUtils::CreateFolderPathExists(CString path)
{
    return CreateWithParents(path);
}

} // namespace VyrLibraryUtils
