// The form of log lines, and the name of the file for them.
#include <VyrLibraryFuncs/textfile/LogFuncs.h>

#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/PathUtils.h>
#include <VyrLibraryUtils/StringUtils.h>
#include <VyrPlatform/files/CFileException.h>
#include <VyrPlatform/process/DebugOutput.h>
#include <VyrPlatform/time/Clock.h>

#include <utility>

using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::FileUtils;
using VyrLibraryUtils::PathUtils;
using VyrLibraryUtils::StringUtils;

namespace VyrLibraryFuncs {

namespace {

constexpr int usualLevel = 2;
/// The argument of GetSplitPath for the base name.
constexpr int baseName = 5;

CString MakeLine(CString message, int level)
{
    return CString::Join({StringUtils::GetAddDoubleQuotesCommaString(DateTimeUtils::GetCurrentDateTimeEx()),
                          StringUtils::GetAddDoubleQuotesCommaString(StringUtils::IntNumberToString(level)),
                          StringUtils::GetAddDoubleQuotesString(std::move(message)), u"\r\n"});
}

} // namespace

LogFuncs::LogFuncs() = default;

LogFuncs::~LogFuncs() = default;

LogFuncs& LogFuncs::operator=(const LogFuncs&) = default;

CString LogFuncs::GetLogFileName()
{
    const CString name = FileUtils::GetSplitPath(FileUtils::GetModuleFilePath(), baseName) + u".log";
    const CString date = DateTimeUtils::GetOleDateTimeFormat(VyrPlatform::Clock::Now(), u"%Y-%m-%d");
    CString fileName;
    fileName.Format(u"%s_%s", date, name);
    return fileName;
}

CString LogFuncs::GetApplicationLogFilePath()
{
    return FileUtils::GetCombinePath(PathUtils::GetApplicationLogFolderPath(), GetLogFileName());
}

int LogFuncs::Write(CString, CString message, int level)
{
    try {
        VyrPlatform::DebugOutput::Write(MakeLine(std::move(message), level));
    } catch (const CFileException& exception) {
        VyrPlatform::DebugOutput::Write(StringUtils::IntNumberToString(exception.m_cause));
    }
    return 0;
}

int LogFuncs::Write(CString message, int level)
{
    return Write(GetApplicationLogFilePath(), std::move(message), level);
}

int LogFuncs::Write(CString message)
{
    return Write(GetApplicationLogFilePath(), std::move(message), usualLevel);
}

} // namespace VyrLibraryFuncs
