// The numbering of a name that is taken.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/StringUtils.h>
#include <VyrPlatform/process/MessageQueue.h>

#include <cstdint>

using VyrLibraryUtils::FileUtils;

namespace VyrLibraryFuncs {

CString NameFuncs::GetResolveConflictFilePath(CString path, CONFLICTITEM item)
{
    if (!FileUtils::IsFileExist(path))
        return path;
    const CString folder = FileUtils::GetSplitDirPath(path);
    const CString name = GetFName(path);
    const CString extension = GetExtension(path);
    // Unsigned, so that a search that never ends wraps round instead of overflowing.
    auto number = static_cast<std::uint32_t>(item.startNumber);
    for (; !VyrPlatform::MessageQueue::DrainOne(); number += static_cast<std::uint32_t>(item.step)) {
        const CString text = GetResolveConflictNumber(item.numberFormat, static_cast<int>(number));
        if (item.position == 0)
            path = CString::Join({folder, text, name, extension});
        else if (item.position == 1)
            path = CString::Join({folder, name, text, extension});
        if (!FileUtils::IsFileExist(path))
            break;
    }
    return path;
}

/// `format` with every "?" replaced by the decimal text of `number`.
CString NameFuncs::GetResolveConflictNumber(const CString& format, int number)
{
    CString text = format;
    text.Replace(u"?", VyrLibraryUtils::StringUtils::IntNumberToString(number));
    return text;
}

} // namespace VyrLibraryFuncs
