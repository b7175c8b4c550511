// Applies any rename rule to any name: the computation ends, stays in bounds, and changes only its own part of the
// path.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <fuzzer/FuzzedDataProvider.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

using VyrLibraryFuncs::NameFuncs;

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

/// The code unit for a byte; from 0xF0 on, a lone surrogate.
CString TakeText(FuzzedDataProvider& input)
{
    std::u16string text;
    for (const char byte : input.ConsumeRandomLengthString(200)) {
        const auto value = static_cast<std::uint8_t>(byte);
        text += static_cast<char16_t>(value < 0xF0 ? value : 0xD800 + (value - 0xF0) * 0x80);
    }
    return std::u16string_view(text);
}

/// Usually a small number, so that rules often apply; sometimes any number.
int TakeNumber(FuzzedDataProvider& input)
{
    return input.ConsumeIntegralInRange(0, 7) == 0 ? input.ConsumeIntegral<int>() : input.ConsumeIntegralInRange(-2, 9);
}

NameFuncs::ITEM TakeItem(FuzzedDataProvider& input)
{
    constexpr int mostDigits = 300;
    NameFuncs::ITEM item;
    item.filePath = u"/no such folder/file";
    item.dirPath = TakeText(input);
    item.fileName = TakeText(input);
    item.extension = TakeText(input);
    item.index = TakeNumber(input);
    item.renameType = TakeNumber(input);
    item.numberPosition = TakeNumber(input);
    item.numberText1 = TakeText(input);
    item.numberText2 = TakeText(input);
    item.startNumber = TakeNumber(input);
    item.digits = input.ConsumeIntegralInRange(-2, mostDigits);
    item.step = TakeNumber(input);
    item.dateTimePosition = TakeNumber(input);
    item.dateTimeTarget = TakeNumber(input);
    item.dateTimeFormat = TakeText(input);
    item.addDeleteType = TakeNumber(input);
    item.position = TakeNumber(input);
    item.deleteCount = TakeNumber(input);
    item.addText = TakeText(input);
    item.convertType = TakeNumber(input);
    item.findText = TakeText(input);
    item.replaceText = TakeText(input);
    item.extensionType = TakeNumber(input);
    item.newExtension = TakeText(input);
    return item;
}

/// The new name between folder and extension.
std::u16string_view NewName(const NameFuncs::ITEM& item, const CString& path)
{
    const std::u16string_view view = path;
    const std::size_t around = item.dirPath.View().size() + item.extension.View().size();
    Require(view.size() >= around && view.starts_with(item.dirPath.View()) && view.ends_with(item.extension.View()));
    return view.substr(item.dirPath.View().size(), view.size() - around);
}

void CheckRename(const NameFuncs::ITEM& item)
{
    const CString path = NameFuncs::GetRenameFilePath(item);
    if (item.renameType < 0 || item.renameType > 5) {
        Require(path.IsEmpty());
        return;
    }
    if (item.renameType == 5) {
        Require(path.View().starts_with(CString(item.dirPath + item.fileName).View()));
        return;
    }
    if (path == item.filePath)
        return;
    const std::size_t length = NewName(item, path).size();
    if (item.renameType == 2)
        Require(length <= 2 * item.fileName.View().size() + item.addText.View().size());
    if (item.renameType == 3)
        Require(length == (item.convertType >= 0 && item.convertType <= 2 ? item.fileName.View().size() : 0));
    if (item.renameType == 4 && item.findText.GetLength() == item.replaceText.GetLength())
        Require(length == item.fileName.View().size());
}

void CheckFormats(const CString& format)
{
    constexpr std::u16string_view folder = u"<Folder>";
    Require(NameFuncs::GetFolderFormat(format).Find(folder) < 0);
    Require(NameFuncs::GetRenameToSampleFormated(format).Find(folder) < 0);
    Require(NameFuncs::GetExifFormat(u"", format).GetLength() <= format.GetLength());
    Require(NameFuncs::GetDateTimeFormat(u"", format, 0).IsEmpty());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedDataProvider input(data, size);
    const NameFuncs::ITEM item = TakeItem(input);
    CheckRename(item);
    CheckFormats(item.dateTimeFormat);
    const int isNumbered = NameFuncs::IsResolveConflict(item);
    Require(isNumbered == 0 || isNumbered == 1);
    return 0;
}
