// The two updates files: when and where to check.
#include <VyrLibraryFuncs/textfile/CStdioFileEx.h>
#include <VyrLibraryFuncs/xmlinfo/UpdatesFuncs.h>

#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/FolderUtils.h>
#include <VyrLibraryUtils/PathUtils.h>
#include <VyrPlatform/documents/PrivateProfile.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/time/Clock.h>

#include <boost/date_time/gregorian/gregorian_types.hpp>

using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::FileUtils;
using VyrLibraryUtils::FolderUtils;
using VyrLibraryUtils::PathUtils;

namespace VyrLibraryFuncs {

namespace PrivateProfile = VyrPlatform::PrivateProfile;

namespace {

constexpr const char16_t* section = u"Updates";
constexpr const char16_t* checkedDateKey = u"CheckedDate";
constexpr int capacity = 260;
/// The mode of GetParseDateTime, and the user's locale.
constexpr int parseMode = 1;
constexpr std::uint32_t userLocale = 1024;

/// Creates the file at `path` with only a comment line.
void MakeUpdatesFile(const CString& path)
{
    FolderUtils::CreateFolderPathExists(FileUtils::GetSplitDirPath(path));
    if (FileUtils::IsFileExist(path))
        static_cast<void>(VyrPlatform::FileSystem::RemoveFile(path));
    CString line;
    line.Format(u"; %s\r\n", PathUtils::GetUpdatesFileName());
    try {
        CStdioFileEx file;
        if (file.Open(path.GetString(), CFile::modeCreate | CFile::modeWrite | CStdioFileEx::modeUnicode)) {
            file.WriteString(line.GetString());
            file.Close();
        }
    } catch (const CFileException&) {
        // Happens only on a full disk; the date is kept in memory.
    }
}

boost::gregorian::date DateOf(const COleDateTime& dateTime)
{
    return {static_cast<unsigned short>(dateTime.GetYear()), static_cast<unsigned short>(dateTime.GetMonth()),
            static_cast<unsigned short>(dateTime.GetDay())};
}

bool IsInvalid(const COleDateTime& dateTime) noexcept
{
    return dateTime.GetStatus() == COleDateTime::invalid;
}

} // namespace

CString UpdatesFuncs::GetCheckForUpdatesUrl()
{
    const CString path = PathUtils::GetLocalDataUpdatesFilePath();
    if (!FileUtils::IsFileExist(path))
        return {};
    return PrivateProfile::ReadText(path, section, u"Url", capacity);
}

int UpdatesFuncs::GetAgreeIgnoreServer()
{
    const CString path = PathUtils::GetLocalDataUpdatesFilePath();
    if (!FileUtils::IsFileExist(path))
        return 0;
    return PrivateProfile::ReadInteger(path, section, u"AgreeIgnoreServer", 0);
}

void UpdatesFuncs::LoadCheckForUpdatesDate()
{
    const CString path = PathUtils::GetUpdatesFilePath();
    if (FileUtils::IsFileExist(path))
        m_checkedDate = PrivateProfile::ReadText(path, section, checkedDateKey, capacity);
}

void UpdatesFuncs::SaveCheckForUpdatesDate()
{
    const CString path = PathUtils::GetUpdatesFilePath();
    MakeUpdatesFile(path);
    m_checkedDate = DateTimeUtils::GetCurrentDateTime();
    static_cast<void>(PrivateProfile::WriteText(path, section, checkedDateKey, m_checkedDate));
}

int UpdatesFuncs::IsDateIntervalCheckForUpdates(int days)
{
    const COleDateTime checked = DateTimeUtils::GetParseDateTime(m_checkedDate, parseMode, 0, userLocale);
    const COleDateTime now = VyrPlatform::Clock::Now();
    if (IsInvalid(checked) || IsInvalid(now))
        return 0;
    return (DateOf(now) - DateOf(checked)).days() >= days ? 1 : 0;
}

} // namespace VyrLibraryFuncs
