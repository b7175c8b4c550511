// Calls the computation for a rename kind, and splits paths for the record.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <VyrLibraryUtils/FileUtils.h>

#include <utility>

using VyrLibraryUtils::FileUtils;

namespace {

// The argument of GetSplitExtension for the extension with its dot.
constexpr int withDot = 1;

} // namespace

namespace VyrLibraryFuncs {

NameFuncs::NameFuncs() = default;

NameFuncs::~NameFuncs() = default;

NameFuncs& NameFuncs::operator=(const NameFuncs&) = default;

CString NameFuncs::GetRenameFilePath(ITEM item)
{
    switch (static_cast<RenameType>(item.renameType)) {
    case RenameType::SequenceNumber:
        return GetSequenceNumberFilePath(std::move(item));
    case RenameType::DateTime:
        return GetDateTimeFilePath(std::move(item));
    case RenameType::AddDelete:
        return GetAddDeleteFilePath(std::move(item));
    case RenameType::Convert:
        return GetConvertFilePath(std::move(item));
    case RenameType::Replace:
        return GetReplaceFilePath(std::move(item));
    case RenameType::Extension:
        return GetExtensionFilePath(std::move(item));
    }
    return {};
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
    switch (static_cast<RenameType>(item.renameType)) {
    case RenameType::SequenceNumber:
    case RenameType::DateTime:
    case RenameType::AddDelete:
        return 1;
    case RenameType::Extension:
        return static_cast<ExtensionType>(item.extensionType) == ExtensionType::Replace ? 1 : 0;
    case RenameType::Convert:
    case RenameType::Replace:
        break;
    }
    return 0;
}

} // namespace VyrLibraryFuncs
