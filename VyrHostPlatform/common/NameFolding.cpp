// Tries whether two names are equal.
#include <VyrHostPlatform/NameFolding.h>

#include <VyrPlatform/common/files/TemporaryPath.h>
#include <VyrPlatform/files/FileCopy.h>
#include <VyrPlatform/files/FileSystem.h>

namespace VyrHostPlatform {

using namespace VyrPlatform;

bool TryIsOneName(const CString& path, const CString& left, const CString& right)
{
    const CString trial = MakeTemporaryPath(FileSystem::JoinPath(path, u"trial"));
    if (FileSystem::CreateFolder(trial) != 0)
        return false;
    bool isOne = false;
    if (const CString made = FileSystem::JoinPath(trial, left); FileSystem::CreateFolder(made) == 0) {
        isOne = FileSystem::Exists(FileSystem::JoinPath(trial, right));
        static_cast<void>(FileCopy::RemoveEmptyFolder(made));
    }
    static_cast<void>(FileCopy::RemoveEmptyFolder(trial));
    return isOne;
}

} // namespace VyrHostPlatform
