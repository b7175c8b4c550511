// Where the program keeps its files.
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/PathUtils.h>
#include <VyrPlatform/process/Process.h>

namespace VyrLibraryUtils {

using VyrPlatform::Process::DataLocation;

namespace {

constexpr std::u16string_view productFolder = u"VyrLibrary";
constexpr std::u16string_view applicationFileName = u"Application.ini";
constexpr std::u16string_view updatesFileName = u"Updates.ini";
constexpr std::u16string_view logFolder = u"Logs";

CString InProductFolder(DataLocation location, std::u16string_view name)
{
    const CString folder = VyrPlatform::Process::GetDataFolder(location);
    if (folder.IsEmpty())
        return {};
    return FileUtils::GetCombinePath(FileUtils::GetCombinePath(folder, productFolder), name);
}

} // namespace

PathUtils::PathUtils() = default;
PathUtils::~PathUtils() = default;
PathUtils& PathUtils::operator=(const PathUtils&) = default;

CString PathUtils::GetApplicationLogFolderPath()
{
    return InProductFolder(DataLocation::State, logFolder);
}

CString PathUtils::GetLocalDataApplicationFilePath()
{
    return InProductFolder(DataLocation::Local, applicationFileName);
}

CString PathUtils::GetUpdatesFilePath()
{
    return InProductFolder(DataLocation::Roaming, updatesFileName);
}

CString PathUtils::GetLocalDataUpdatesFilePath()
{
    return InProductFolder(DataLocation::Local, updatesFileName);
}

CString PathUtils::GetUpdatesFileName()
{
    return updatesFileName;
}

} // namespace VyrLibraryUtils
