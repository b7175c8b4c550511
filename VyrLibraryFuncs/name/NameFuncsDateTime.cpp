// The date-time rename: a date-time of the file in the place of its name, or beside it.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/ImageUtils.h>

using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::ImageUtils;

namespace VyrLibraryFuncs {

CString NameFuncs::GetDateTimeFilePath(ITEM item)
{
    return ComputeDateTimeFilePath(item);
}

CString NameFuncs::ComputeDateTimeFilePath(const ITEM& item)
{
    const CString text = WriteSelectedDateTime(item.filePath, item.dateTimeFormat, item.dateTimeTarget);
    switch (item.dateTimePosition) {
    case 0:
        return CString::Join({item.dirPath, text, item.extension});
    case 1:
        return CString::Join({item.dirPath, text, item.fileName, item.extension});
    case 2:
        return CString::Join({item.dirPath, item.fileName, text, item.extension});
    default:
        return CString::Join({item.dirPath, item.extension});
    }
}

CString NameFuncs::WriteSelectedDateTime(const CString& path, const CString& format, int target)
{
    const COleDateTime value = GetSelectedDateTime(path, target);
    return DateTimeUtils::GetOleDateTimeFormat(value, DateTimeUtils::GetDateTimeFormat(format, CString()));
}

COleDateTime NameFuncs::GetSelectedDateTime(const CString& path, int target)
{
    switch (target) {
    case 0:
        return DateTimeUtils::GetDateModified(path);
    case 1:
        return DateTimeUtils::GetDateCreated(path);
    case 2:
        return DateTimeUtils::GetDateAccessed(path);
    case 3:
        return DateTimeUtils::GetExifDateTime(ImageUtils::GetPropertyTagExifDTOrig(path));
    default:
        return {};
    }
}

} // namespace VyrLibraryFuncs
