// Text files: byte order marks, lines and code pages on top of the buffered file, which is always binary.
#include <VyrLibraryFuncs/textfile/CStdioFileEx.h>

#include <VyrPlatform/files/CInvalidArgException.h>
#include <VyrPlatform/text/CodePage.h>

#include <algorithm>
#include <cstring>
#include <string_view>

namespace {

using namespace std::string_view_literals;

constexpr std::uint32_t systemCodePage = 0xFFFFFFFF;
constexpr std::string_view utf16Mark = "\xFF\xFE"sv;
constexpr std::string_view utf8Mark = "\xEF\xBB\xBF"sv;
/// The number of code units that are read at once of a line that is longer than the buffer.
constexpr std::size_t growth = 128;

std::u16string_view WithoutCarriageReturn(std::u16string_view text) noexcept
{
    if (text.ends_with(u'\r'))
        text.remove_suffix(1);
    return text;
}

std::uint32_t CodePageOf(const CStdioFileEx& file)
{
    return file.m_nCodePage == systemCodePage ? VyrPlatform::CodePage::GetAnsi() : file.m_nCodePage;
}

/// Skips the mark. That of UTF-8 is not checked: the first bytes are skipped in any case.
void DropMark(CStdioFileEx& file)
{
    char mark[std::max(utf16Mark.size(), utf8Mark.size())];
    if (file.m_bUnicode)
        file.Read(mark, utf16Mark.size());
    else if (file.m_nCodePage == VyrPlatform::CodePage::utf8)
        file.Read(mark, utf8Mark.size());
}

void WriteMark(CStdioFileEx& file)
{
    if (file.m_nOpenFlags & CStdioFileEx::modeUnicode)
        file.Write(utf16Mark.data(), utf16Mark.size());
    else if (file.m_nCodePage == VyrPlatform::CodePage::utf8)
        file.Write(utf8Mark.data(), utf8Mark.size());
}

/// Reads a line into `line`, which has a buffer of `capacity` code units, and replaces its line feed by a NUL.
/// @param readLine  reads up to so many code units into a buffer, as far as a line feed, and ends them with a NUL.
/// @return false at the end of the file.
template <class Unit, class ReadLine>
bool ReadWholeLine(CTemplateSmartPtrArray<Unit>& line, std::size_t capacity, const ReadLine& readLine)
{
    std::size_t length = readLine(line.Get(), capacity - 1);
    const bool isAnyRead = length > 0;
    for (std::size_t count = length; count > 0 && line.Get()[length - 1] != Unit('\n'); length += count) {
        // Capacity grows ahead, so that a line of any length is copied only a few times.
        if (capacity <= length + growth) {
            capacity *= 2;
            line.Allocate(capacity, length);
        }
        count = readLine(line.Get() + length, growth);
    }
    if (isAnyRead && line.Get()[length - 1] == Unit('\n'))
        --length;
    line.Get()[length] = Unit();
    return isAnyRead;
}

} // namespace

CStdioFileEx::CStdioFileEx() = default;

CStdioFileEx::~CStdioFileEx() = default;

void CStdioFileEx::SetFilePath(const char16_t* name)
{
    CStdioFile::SetFilePath(name);
}

int CStdioFileEx::Open(const char16_t* name, std::uint32_t flags, CFileException* error)
{
    m_bUnicode = (flags & modeUnicode) != 0;
    m_nOpenFlags = (flags & ~std::uint32_t{typeText}) | typeBinary;
    const int isOpen = CStdioFile::Open(name, m_nOpenFlags, error);
    if (!isOpen || flags & (modeWrite | modeCreate))
        return isOpen;
    char beginning[utf16Mark.size()];
    m_bUnicode = Read(beginning, sizeof beginning) == sizeof beginning &&
                 std::string_view(beginning, sizeof beginning) == utf16Mark;
    Seek(0, begin);
    return isOpen;
}

std::uint64_t CStdioFileEx::Seek(std::int64_t offset, std::uint32_t origin)
{
    const std::uint64_t place = CStdioFile::Seek(offset, origin);
    m_bAtStart = true;
    return place;
}

void CStdioFileEx::WriteString(const char16_t* text)
{
    if (!text)
        throw CInvalidArgException();
    if (m_bWriteBOM && (!HasStream() || GetPosition() == 0))
        WriteMark(*this);
    if (m_nOpenFlags & modeUnicode) {
        CStdioFile::WriteString(text);
        return;
    }
    CTemplateSmartPtrArray<char> bytes(m_narrowBuffer);
    const std::size_t size = VyrPlatform::CodePage::ToBytes(CodePageOf(*this), text, m_chDefault, m_narrowBuffer);
    if (size > bufferSize) {
        bytes.Allocate(size);
        static_cast<void>(VyrPlatform::CodePage::ToBytes(CodePageOf(*this), text, m_chDefault, {bytes.Get(), size}));
    }
    // The size counts the terminator; it is 0 where the conversion failed.
    if (size > 1)
        Write(bytes.Get(), static_cast<std::uint32_t>(size - 1));
}

int CStdioFileEx::ReadString(CString& line)
{
    line.Empty();
    if (m_bAtStart && GetPosition() == 0)
        DropMark(*this);
    CTemplateSmartPtrArray<char16_t> text(m_wideBuffer);
    const auto readLine = [this](auto* units, std::size_t most) {
        return ReadLine(units, most);
    };
    bool isAnyRead = false;
    if (m_bUnicode) {
        isAnyRead = ReadWholeLine(text, bufferSize, readLine);
    } else {
        CTemplateSmartPtrArray<char> bytes(m_narrowBuffer);
        isAnyRead = ReadWholeLine(bytes, bufferSize, readLine);
        const std::size_t size = VyrPlatform::CodePage::ToText(CodePageOf(*this), bytes.Get(), m_wideBuffer);
        if (size > bufferSize) {
            text.Allocate(size);
            static_cast<void>(VyrPlatform::CodePage::ToText(CodePageOf(*this), bytes.Get(), {text.Get(), size}));
        } else if (size == 0) {
            *text.Get() = u'\0';
        }
    }
    m_bAtStart = false;
    if (isAnyRead)
        line = WithoutCarriageReturn(text.Get());
    return isAnyRead ? 1 : 0;
}

char16_t* CStdioFileEx::ReadString(char16_t* buffer, std::uint32_t capacity)
{
    return CStdioFile::ReadString(buffer, capacity);
}
