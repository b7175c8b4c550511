// Any text for the companion's paths, formats, date-times, tokens and numbers: each call ends, and related results
// agree.
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/StringUtils.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::FileUtils;
using VyrLibraryUtils::StringUtils;

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

/// The code unit for a byte; from 0x80 on, the lone surrogate for that byte in a file name.
CString ToText(const std::uint8_t* data, std::size_t size)
{
    std::u16string text;
    for (std::size_t at = 0; at < size; ++at)
        text += static_cast<char16_t>(data[at] < 0x80 ? data[at] : 0xDC00 + data[at]);
    return std::u16string_view(text);
}

void CheckPath(const CString& text)
{
    const CString name = FileUtils::GetSplitFName(text) + FileUtils::GetSplitExtension(text, 1);
    Require(FileUtils::GetSplitDirPath(text) + name == text);
    Require(FileUtils::GetSplitFileName(text) == name);
    Require(text.View().starts_with(FileUtils::GetSplitPath(text, 1)));
    Require(FileUtils::GetCombinePath(text, name).GetLength() <= text.GetLength() + name.GetLength() + 1);
}

void CheckDateTime(const CString& text)
{
    const COleDateTime read = DateTimeUtils::GetParseDateTime(text, 1, 0, 1024);
    const CString written = DateTimeUtils::GetOleDateTimeFormat(read, u"%Y/%m/%d %H:%M:%S");
    const COleDateTime again = DateTimeUtils::GetParseDateTime(written, 1, 0, 1024);
    Require(again.GetStatus() == read.GetStatus() && again.m_dt == read.m_dt);
    Require(DateTimeUtils::GetExifDateTime(text).GetStatus() != COleDateTime::null);
    Require(DateTimeUtils::GetInstallDateTime(text).GetStatus() != COleDateTime::null);
}

void CheckFormat(const CString& text)
{
    const COleDateTime moment(2024, 3, 15, 13, 5, 9);
    Require(DateTimeUtils::GetOleDateTimeFormat(moment, text).GetLength() <= text.GetLength() * 8);
    // A format wholly in apostrophes gives its own text without them.
    CString literal = text;
    literal.Replace(u"'", u"''");
    const CString pattern = DateTimeUtils::GetDateTimeFormat(CString::Join({u"' ", literal, u"'"}), CString());
    Require(DateTimeUtils::GetOleDateTimeFormat(moment, pattern) == CString::Join({u" ", text}));
}

void CheckTokens(const CString& text)
{
    const int count = StringUtils::GetTokenizeStringCount(text, u",;");
    Require(StringUtils::GetTokenizeString(text, u",;", count).IsEmpty());
    Require(count == 0 || !StringUtils::GetTokenizeString(text, u",;", count - 1).IsEmpty());
    const std::int32_t number = StringUtils::StringToIntNumber(text);
    Require(StringUtils::StringToIntNumber(StringUtils::IntNumberToString(number)) == number);
    Require(StringUtils::GetFormatedText(u"%s%s", text, text) == text + text);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const CString text = ToText(data, size);
    CheckPath(text);
    CheckDateTime(text);
    CheckFormat(text);
    CheckTokens(text);
    return 0;
}
