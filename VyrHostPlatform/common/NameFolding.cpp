// Tries whether two names are one.
#include <VyrHostPlatform/NameFolding.h>

#include <VyrPlatform/common/files/TemporaryPath.h>
#include <VyrPlatform/files/FileCopy.h>
#include <VyrPlatform/files/FileSystem.h>

namespace VyrHostPlatform {

using namespace VyrPlatform;

namespace {

CString Inside(const CString& folder, const CString& name)
{
    const char16_t separator = FileSystem::Separator();
    return CString::Join({folder, {&separator, 1}, name});
}

} // namespace

bool TryIsOneName(const CString& path, const CString& left, const CString& right)
{
    const CString trial = MakeTemporaryPath(Inside(path, u"trial"));
    if (FileSystem::CreateFolder(trial) != 0)
        return false;
    bool isOne = false;
    if (const CString made = Inside(trial, left); FileSystem::CreateFolder(made) == 0) {
        isOne = FileSystem::Exists(Inside(trial, right));
        static_cast<void>(FileCopy::RemoveEmptyFolder(made));
    }
    static_cast<void>(FileCopy::RemoveEmptyFolder(trial));
    return isOne;
}

} // namespace VyrHostPlatform
