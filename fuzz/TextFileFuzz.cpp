// Any bytes as a text file, in each encoding: the lines are those of a plain split of the whole content, and are read
// back when written.
#include <VyrLibraryFuncs/textfile/CStdioFileEx.h>

#include <VyrPlatform/text/CodePage.h>
#include <VyrPlatform/text/Encoding.h>

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Lines = std::vector<CString>;

constexpr std::uint32_t utf8 = 65001;
constexpr std::uint32_t codePages[] = {1252, utf8, 932, 949, 28605, 20127, 12345, 0xFFFFFFFF};

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

/// A file in memory with a path.
class MemoryFile
{
public:
    MemoryFile() : m_descriptor(memfd_create("text", 0))
    {
        Require(m_descriptor >= 0);
        const std::string path = "/proc/self/fd/" + std::to_string(m_descriptor);
        m_path = VyrPlatform::Encoding::FromUtf8(path);
    }
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;
    ~MemoryFile() { close(m_descriptor); }

    [[nodiscard]] const char16_t* Path() const { return m_path.GetString(); }
    void Fill(std::string_view bytes) const
    {
        Require(ftruncate(m_descriptor, 0) == 0);
        Require(pwrite(m_descriptor, bytes.data(), bytes.size(), 0) == static_cast<ssize_t>(bytes.size()));
    }

private:
    int m_descriptor;
    CString m_path;
};

Lines Read(CStdioFileEx& file)
{
    Lines lines;
    for (CString line; file.ReadString(line);)
        lines.push_back(line);
    return lines;
}

/// The text of a line: up to its NUL, without a carriage return at its end.
template <class Text>
Text Trim(Text line)
{
    line = line.substr(0, line.find(typename Text::value_type{}));
    if (!line.empty() && line.back() == '\r')
        line.pop_back();
    return line;
}

/// Cuts `content` at its line feeds.
template <class Text>
std::vector<Text> Split(Text content)
{
    std::vector<Text> lines;
    while (!content.empty()) {
        const std::size_t end = content.find('\n');
        lines.push_back(content.substr(0, end));
        content.erase(0, end == Text::npos ? end : end + 1);
    }
    return lines;
}

Lines ExpectedOfUtf16(std::string_view bytes)
{
    std::u16string content(bytes.size() / 2, u'\0');
    if (!content.empty())
        std::memcpy(content.data(), bytes.data(), content.size() * 2);
    Lines lines;
    for (const std::u16string& line : Split(content))
        lines.emplace_back(std::u16string_view(Trim(line)));
    return lines;
}

/// A carriage return is the same byte in every code page, so it may be removed before or after the conversion.
Lines ExpectedOf8Bit(std::string_view bytes, std::uint32_t codePage)
{
    const std::uint32_t page = codePage == 0xFFFFFFFF ? VyrPlatform::CodePage::GetAnsi() : codePage;
    Lines lines;
    for (const std::string& line : Split(std::string(bytes))) {
        const std::string text = line.substr(0, line.find('\0'));
        std::u16string units(text.size() + 1, u'\0');
        const std::size_t size = VyrPlatform::CodePage::ToText(page, text.c_str(), units);
        Require(size <= units.size());
        lines.emplace_back(std::u16string_view(Trim(units.substr(0, size == 0 ? 0 : size - 1))));
    }
    return lines;
}

Lines ExpectedLines(std::string_view bytes, std::uint32_t codePage)
{
    if (bytes.starts_with("\xFF\xFE"))
        return ExpectedOfUtf16(bytes.substr(2));
    if (codePage == utf8)
        bytes.remove_prefix(std::min<std::size_t>(3, bytes.size()));
    return ExpectedOf8Bit(bytes, codePage);
}

void CheckWriting(const MemoryFile& memory, const Lines& lines)
{
    CStdioFileEx file;
    Require(file.Open(memory.Path(), CFile::modeCreate | CFile::modeReadWrite | CStdioFileEx::modeUnicode) != 0);
    for (const CString& line : lines)
        file.WriteString((line + u"\r\n").GetString());
    file.Seek(0, CFile::begin);
    Require(Read(file) == lines);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    if (size == 0)
        return 0;
    static const MemoryFile memory;
    const std::uint32_t codePage = codePages[data[0] % std::size(codePages)];
    const std::string_view bytes(reinterpret_cast<const char*>(data + 1), size - 1);
    memory.Fill(bytes);
    CStdioFileEx file;
    file.m_nCodePage = codePage;
    Require(file.Open(memory.Path(), CFile::modeRead) != 0);
    const Lines lines = Read(file);
    Require(lines == ExpectedLines(bytes, codePage));
    file.Seek(0, CFile::begin);
    Require(Read(file) == lines);
    CheckWriting(memory, lines);
    return 0;
}
