// Numbers names that are taken.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/StringUtils.h>
#include <VyrPlatform/process/MessageQueue.h>

#include <cstdint>
#include <utility>

using VyrLibraryUtils::FileUtils;

namespace VyrLibraryFuncs {

CString NameFuncs::GetResolveConflictFilePath(CString path, CONFLICTITEM item)
{
    if (!FileUtils::IsFileExist(path))
        return path;
    const CString folder = FileUtils::GetSplitDirPath(path);
    const CString name = GetFName(path);
    const CString extension = GetExtension(path);
    // Unsigned, so that an endless search wraps round instead of overflowing.
    auto number = static_cast<std::uint32_t>(item.startNumber);
    for (; !VyrPlatform::MessageQueue::DrainOne(); number += static_cast<std::uint32_t>(item.step)) {
        const CString text = GetResolveConflictNumber(item.numberFormat, static_cast<int>(number));
        const auto position = static_cast<ConflictPosition>(item.position);
        if (position == ConflictPosition::BeforeName)
            path = CString::Join({folder, text, name, extension});
        else if (position == ConflictPosition::AfterName)
            path = CString::Join({folder, name, text, extension});
        if (!FileUtils::IsFileExist(path))
            break;
    }
    return path;
}

CString NameFuncs::GetResolveConflictNumber(CString format, int number)
{
    return FillConflictPattern(std::move(format), VyrLibraryUtils::StringUtils::IntNumberToString(number));
}

} // namespace VyrLibraryFuncs
