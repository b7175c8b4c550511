// Edits the existing name: adds or deletes characters, converts case, replaces text, changes the extension.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <VyrLibraryUtils/FileUtils.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace {

/// `count` limited to the length of `text`. Counts are 64-bit, since the difference of two ints needs 33 bits.
std::size_t Clamp(std::u16string_view text, std::int64_t count) noexcept
{
    return static_cast<std::size_t>(std::clamp<std::int64_t>(count, 0, static_cast<std::int64_t>(text.size())));
}

std::u16string_view First(std::u16string_view text, std::int64_t count) noexcept
{
    return text.substr(0, Clamp(text, count));
}

std::u16string_view Last(std::u16string_view text, std::int64_t count) noexcept
{
    return text.substr(text.size() - Clamp(text, count));
}

std::u16string_view From(std::u16string_view text, std::int64_t start) noexcept
{
    return text.substr(Clamp(text, start));
}

} // namespace

namespace VyrLibraryFuncs {

CString NameFuncs::GetAddDeleteFilePath(ITEM item)
{
    const std::u16string_view name = item.fileName;
    const auto length = static_cast<std::int64_t>(name.size());
    const std::int64_t position = item.position;
    const std::int64_t count = item.deleteCount;
    const std::int64_t behind = length - position;
    if (behind < 0)
        return item.filePath;
    switch (static_cast<AddDeleteType>(item.addDeleteType)) {
    case AddDeleteType::InsertFromStart:
        return CString::Join({item.dirPath, First(name, position), item.addText, From(name, position), item.extension});
    case AddDeleteType::InsertFromEnd:
        return CString::Join({item.dirPath, First(name, behind), item.addText, Last(name, position), item.extension});
    case AddDeleteType::KeepFirst:
        return CString::Join({item.dirPath, First(name, position), item.extension});
    case AddDeleteType::KeepLast:
        return CString::Join({item.dirPath, Last(name, position), item.extension});
    case AddDeleteType::DeleteFromStart:
        if (behind < count)
            return item.filePath;
        return CString::Join({item.dirPath, First(name, position), From(From(name, position), count), item.extension});
    case AddDeleteType::DeleteFromEnd:
        if (behind < count)
            return item.filePath;
        return CString::Join({item.dirPath, First(name, behind - count), Last(name, position), item.extension});
    }
    return item.filePath;
}

CString NameFuncs::GetConvertFilePath(ITEM item)
{
    CString name;
    switch (static_cast<ConvertType>(item.convertType)) {
    case ConvertType::FirstUpper:
        name = item.fileName.Left(1).MakeUpper() + item.fileName.Mid(1);
        break;
    case ConvertType::Upper:
        name = item.fileName.MakeUpper();
        break;
    case ConvertType::Lower:
        name = item.fileName.MakeLower();
        break;
    }
    return CString::Join({item.dirPath, name, item.extension});
}

CString NameFuncs::GetReplaceFilePath(ITEM item)
{
    item.fileName.Replace(item.findText, item.replaceText);
    return CString::Join({item.dirPath, item.fileName, item.extension});
}

CString NameFuncs::GetExtensionFilePath(ITEM item)
{
    if (VyrLibraryUtils::FileUtils::IsDirectory(item.filePath))
        return item.filePath;
    switch (static_cast<ExtensionType>(item.extensionType)) {
    case ExtensionType::Upper:
        return CString::Join({item.dirPath, item.fileName, item.extension.MakeUpper()});
    case ExtensionType::Lower:
        return CString::Join({item.dirPath, item.fileName, item.extension.MakeLower()});
    case ExtensionType::Replace:
        return CString::Join({item.dirPath, item.fileName, u".", item.newExtension});
    }
    return CString::Join({item.dirPath, item.fileName});
}

} // namespace VyrLibraryFuncs
