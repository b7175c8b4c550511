// Writes samples of date-time formats, and replaces the tokens for folder, maker and model.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/ImageUtils.h>
#include <VyrPlatform/time/Clock.h>

#include <utility>

using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::ImageUtils;

namespace {

bool Contains(const CString& text, std::u16string_view token) noexcept
{
    return text.Find(token) >= 0;
}

} // namespace

namespace VyrLibraryFuncs {

CString NameFuncs::GetRenameToSampleFormated(CString format)
{
    if (format.IsEmpty())
        return format;
    const COleDateTime now = VyrPlatform::Clock::Now();
    return GetFolderFormat(
        DateTimeUtils::GetOleDateTimeFormat(now, DateTimeUtils::GetDateTimeFormat(format, CString())));
}

CString NameFuncs::GetDateTimeFormat(CString path, CString format, int target)
{
    if (format.IsEmpty())
        return format;
    const COleDateTime value = GetSelectedDateTime(std::move(path), target);
    return DateTimeUtils::GetOleDateTimeFormat(value, DateTimeUtils::GetDateTimeFormat(std::move(format), CString()));
}

CString NameFuncs::GetFolderFormat(CString format)
{
    format.Replace(folderToken, u"\\");
    return format;
}

CString NameFuncs::GetExifFormat(CString path, CString format)
{
    if (Contains(format, makeToken))
        format.Replace(makeToken, ImageUtils::GetEquipMake(path));
    if (Contains(format, modelToken))
        format.Replace(modelToken, ImageUtils::GetEquipModel(path));
    return format;
}

} // namespace VyrLibraryFuncs
