// The rename engine's entrance: which computation a rename kind calls, and how the caller splits a path for it.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <VyrLibraryUtils/FileUtils.h>

#include <utility>

using VyrLibraryUtils::FileUtils;

namespace {

// What GetSplitExtension takes to give the extension with its dot.
constexpr int withDot = 1;

} // namespace

namespace VyrLibraryFuncs {

NameFuncs::NameFuncs() = default;

NameFuncs::~NameFuncs() = default;

NameFuncs& NameFuncs::operator=(const NameFuncs&) = default;

CString NameFuncs::GetRenameFilePath(ITEM item)
{
    return ComputeRenameFilePath(item);
}

CString NameFuncs::ComputeRenameFilePath(const ITEM& item)
{
    switch (item.renameType) {
    case 0:
        return ComputeSequenceNumberFilePath(item);
    case 1:
        return ComputeDateTimeFilePath(item);
    case 2:
        return ComputeAddDeleteFilePath(item);
    case 3:
        return ComputeConvertFilePath(item);
    case 4:
        return ComputeReplaceFilePath(item);
    case 5:
        return ComputeExtensionFilePath(item);
    default:
        return {};
    }
}

CString NameFuncs::GetFName(CString path)
{
    CString name = FileUtils::GetSplitFName(path);
    if (FileUtils::IsDirectory(path))
        name += FileUtils::GetSplitExtension(std::move(path), withDot);
    return name;
}

CString NameFuncs::GetExtension(CString path)
{
    if (FileUtils::IsDirectory(path))
        return {};
    return FileUtils::GetSplitExtension(std::move(path), withDot);
}

int NameFuncs::IsResolveConflict(ITEM item)
{
    switch (item.renameType) {
    case 0:
    case 1:
    case 2:
        return 1;
    case 5:
        return item.extensionType == 2 ? 1 : 0;
    default:
        return 0;
    }
}

} // namespace VyrLibraryFuncs
