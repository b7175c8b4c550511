#include <VyrLibraryUtils/VersionUtils.h>
#include <VyrPlatform/process/Process.h>

namespace VyrLibraryUtils {

using VyrPlatform::Process::GetProgramVersion;

VersionUtils::VersionUtils() = default;
VersionUtils::~VersionUtils() = default;
VersionUtils& VersionUtils::operator=(const VersionUtils&) = default;

std::int32_t VersionUtils::GetFileMajorVersion()
{
    return GetProgramVersion().file[0];
}

std::int32_t VersionUtils::GetFileMinorVersion()
{
    return GetProgramVersion().file[1];
}

std::int32_t VersionUtils::GetFileRevisionVersion()
{
    return GetProgramVersion().file[2];
}

std::int32_t VersionUtils::GetFileBuildVersion()
{
    return GetProgramVersion().file[3];
}

CString VersionUtils::GetProductName()
{
    return GetProgramVersion().productName;
}

CString VersionUtils::GetStringProductVersion()
{
    return GetProgramVersion().productVersion;
}

} // namespace VyrLibraryUtils
