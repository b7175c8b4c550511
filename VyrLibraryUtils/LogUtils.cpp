#include <VyrLibraryUtils/LogUtils.h>
#include <VyrPlatform/process/Process.h>

namespace VyrLibraryUtils {

LogUtils::LogUtils() = default;
LogUtils::~LogUtils() = default;
LogUtils& LogUtils::operator=(const LogUtils&) = default;

CString LogUtils::GetLastErrorMessage(std::uint32_t code)
{
    return VyrPlatform::Process::GetErrorMessage(code);
}

} // namespace VyrLibraryUtils
