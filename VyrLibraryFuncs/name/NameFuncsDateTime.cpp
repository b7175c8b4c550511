#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/ImageUtils.h>

#include <utility>

using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::ImageUtils;

namespace VyrLibraryFuncs {

CString NameFuncs::GetDateTimeFilePath(ITEM item)
{
    const COleDateTime value = GetSelectedDateTime(item.filePath, item.dateTimeTarget);
    const CString text =
        DateTimeUtils::GetOleDateTimeFormat(value, DateTimeUtils::GetDateTimeFormat(item.dateTimeFormat, CString()));
    switch (static_cast<DateTimePosition>(item.dateTimePosition)) {
    case DateTimePosition::Alone:
        return CString::Join({item.dirPath, text, item.extension});
    case DateTimePosition::BeforeName:
        return CString::Join({item.dirPath, text, item.fileName, item.extension});
    case DateTimePosition::AfterName:
        return CString::Join({item.dirPath, item.fileName, text, item.extension});
    }
    return CString::Join({item.dirPath, item.extension});
}

COleDateTime NameFuncs::GetSelectedDateTime(CString path, int target)
{
    switch (static_cast<DateTimeTarget>(target)) {
    case DateTimeTarget::Modified:
        return DateTimeUtils::GetDateModified(std::move(path));
    case DateTimeTarget::Created:
        return DateTimeUtils::GetDateCreated(std::move(path));
    case DateTimeTarget::Accessed:
        return DateTimeUtils::GetDateAccessed(std::move(path));
    case DateTimeTarget::PictureTaken:
        return DateTimeUtils::GetExifDateTime(ImageUtils::GetPropertyTagExifDTOrig(std::move(path)));
    }
    return {};
}

} // namespace VyrLibraryFuncs
