// When a key was last written to, as the function classes tell it.
#include <VyrLibraryFuncs/programs/LastWriteText.h>

#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/files/FileTimes.h>

namespace VyrLibraryFuncs {

std::optional<CString> GetLastWriteText(VyrPlatform::Registry::Handle key)
{
    const std::optional<VyrPlatform::FileTicks> moment = VyrPlatform::Registry::GetLastWrite(key);
    if (!moment)
        return std::nullopt;
    // The system's pair of conversions, with today's offset: not that of the moment's own date.
    return VyrLibraryUtils::DateTimeUtils::GetFormatedDateTime(VyrPlatform::FileTimes::ToLocalForWriting(*moment));
}

} // namespace VyrLibraryFuncs
