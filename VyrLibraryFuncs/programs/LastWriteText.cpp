#include <VyrLibraryFuncs/programs/LastWriteText.h>

#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/files/FileTimes.h>

namespace VyrLibraryFuncs {

std::optional<CString> GetLastWriteText(VyrPlatform::Registry::Handle key)
{
    const std::optional<VyrPlatform::FileTicks> moment = VyrPlatform::Registry::GetLastWrite(key);
    if (!moment)
        return std::nullopt;
    // The system's conversions use today's offset, not the one of the date itself.
    return VyrLibraryUtils::DateTimeUtils::GetFormatedDateTime(VyrPlatform::FileTimes::ToLocalForWriting(*moment));
}

} // namespace VyrLibraryFuncs
