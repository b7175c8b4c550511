#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/PathUtils.h>
#include <VyrPlatform/process/Process.h>

#include <algorithm>
#include <string>

namespace VyrLibraryUtils {

using VyrPlatform::Process::DataLocation;

namespace {

constexpr std::u16string_view applicationFileName = u"Application.ini";
constexpr std::u16string_view updatesFileName = u"Updates.ini";
constexpr std::u16string_view logFolder = u"Logs";

/// `name` as the name of a folder on any system: forbidden characters become underscores, and dots and blanks at the
/// end are removed.
CString ToFolderName(std::u16string_view name)
{
    constexpr std::u16string_view signs = u"<>:\"/\\|?*";
    std::u16string folder(name);
    std::replace_if(
        folder.begin(), folder.end(), [signs](char16_t unit) { return unit < u' ' || signs.find(unit) != signs.npos; },
        u'_');
    folder.resize(folder.find_last_not_of(u". ") + 1);
    return std::u16string_view(folder);
}

CString ProgramFolder()
{
    const CString product = ToFolderName(VyrPlatform::Process::GetProgramVersion().productName);
    return product.IsEmpty() ? FileUtils::GetSplitFName(FileUtils::GetModuleFilePath()) : product;
}

CString InProgramFolder(DataLocation location, std::u16string_view name)
{
    const CString folder = VyrPlatform::Process::GetDataFolder(location);
    if (folder.IsEmpty())
        return {};
    return FileUtils::GetCombinePath(FileUtils::GetCombinePath(folder, ProgramFolder()), name);
}

} // namespace

PathUtils::PathUtils() = default;
PathUtils::~PathUtils() = default;
PathUtils& PathUtils::operator=(const PathUtils&) = default;

CString PathUtils::GetApplicationLogFolderPath()
{
    return InProgramFolder(DataLocation::State, logFolder);
}

CString PathUtils::GetLocalDataApplicationFilePath()
{
    return InProgramFolder(DataLocation::Local, applicationFileName);
}

CString PathUtils::GetUpdatesFilePath()
{
    return InProgramFolder(DataLocation::Roaming, updatesFileName);
}

CString PathUtils::GetLocalDataUpdatesFilePath()
{
    return InProgramFolder(DataLocation::Local, updatesFileName);
}

CString PathUtils::GetUpdatesFileName()
{
    return updatesFileName;
}

} // namespace VyrLibraryUtils
