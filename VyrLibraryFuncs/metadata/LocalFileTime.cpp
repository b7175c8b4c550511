#include <VyrLibraryFuncs/metadata/LocalFileTime.h>

#include <VyrPlatform/files/FileTicks.h>

namespace VyrLibraryFuncs {

FILETIME ToFileTime(const COleDateTime& local)
{
    return VyrPlatform::ToFileTime(VyrPlatform::FileTimes::FromLocalForWriting(local).value_or(0));
}

} // namespace VyrLibraryFuncs
