// Removes the mark also from read-only files.
#include <VyrLibraryFuncs/metadata/UnblockFuncs.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/files/FileAttributes.h>

#include <optional>

using VyrLibraryUtils::FileUtils;

namespace VyrLibraryFuncs {

UnblockFuncs::UnblockFuncs() = default;

UnblockFuncs::~UnblockFuncs() = default;

UnblockFuncs& UnblockFuncs::operator=(const UnblockFuncs&) = default;

int UnblockFuncs::DeleteZoneId(CString path)
{
    std::optional<VyrPlatform::FileAttributes::LiftedReadOnly> lifted;
    if (FileUtils::IsReadOnly(path))
        lifted.emplace(path);
    return FileUtils::DeleteZoneId(path);
}

} // namespace VyrLibraryFuncs
