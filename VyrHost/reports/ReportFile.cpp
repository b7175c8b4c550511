#include <VyrHost/reports/ReportFile.h>

#include <VyrHost/text/Errors.h>
#include <VyrHostPlatform/DurableFile.h>
#include <VyrHostPlatform/RenameFile.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FullPath.h>

namespace VyrHost::Reports {

namespace {

using VyrHostPlatform::RenameNoReplace;
namespace DurableFile = VyrHostPlatform::DurableFile;
namespace FileSystem = VyrPlatform::FileSystem;

/// Renames the file `part` to `path`, replacing an existing file.
std::uint32_t Replace(const CString& part, const CString& path)
{
    const CString former = path + u".former";
    if (const std::uint32_t error = RenameNoReplace(path, former))
        return error;
    if (const std::uint32_t error = RenameNoReplace(part, path)) {
        static_cast<void>(RenameNoReplace(former, path));
        return error;
    }
    return DurableFile::Remove(former);
}

} // namespace

void CheckReportFile(const CString& path, bool mayReplace)
{
    if (FileSystem::IsFolder(path))
        Text::RefuseValue("--html", path, "it is a folder");
    if (!mayReplace && FileSystem::Exists(path))
        Text::RefuseValue("--html", path, "it exists; --overwrite replaces it");
}

std::uint32_t WriteReportFile(const CString& path, bool mayReplace,
                              const std::function<void(const TakePiece& take)>& content)
{
    // Windows does not make the path of a rename absolute, so it must not depend on the current folder.
    const CString full = VyrPlatform::GetFullPath(path);
    const CString part = full + u".part";
    if (const std::uint32_t error = DurableFile::WriteNew(part, content, DurableFile::Readers::ByMask))
        return error;
    const bool isReplaced = mayReplace && FileSystem::Exists(full);
    const std::uint32_t error = isReplaced ? Replace(part, full) : RenameNoReplace(part, full);
    if (error != 0)
        static_cast<void>(DurableFile::Remove(part));
    return error;
}

} // namespace VyrHost::Reports
