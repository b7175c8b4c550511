/// @file
/// Text files in UTF-16, UTF-8 and 8-bit code pages.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrLibraryFuncs/textfile/CTemplateSmartPtrArray.h>
#include <VyrPlatform/files/CStdioFile.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>

/// A text file, read and written line by line: UTF-16 in little-endian order, or 8-bit text in any code page, with or
/// without a byte-order mark (FF FE for UTF-16, EF BB BF for UTF-8).
///
///     CStdioFileEx file;
///     file.m_nCodePage = 65001;
///     if (file.Open(path.GetString(), CFile::modeRead))
///         for (CString line; file.ReadString(line);)
///             use(line);
///
/// Whether a file that is only read, or opened for both, is UTF-16 is told by its mark; one of a single byte is 8-bit
/// text. The mark of UTF-8 is not looked for: with code page 65001 the first three bytes are dropped in any case.
///
/// Open reports its failure by its result; reading and writing throw a CFileException, by value, and whatever else the
/// base class throws. An object is for one thread at a time.
class VYR_FUNCS_API CStdioFileEx : public CStdioFile
{
public:
    /// A flag for Open beside those of CFile: the text that is written is UTF-16.
    enum TextFlags : std::uint32_t
    {
        modeUnicode = 0x200000
    };

    CStdioFileEx();
    CStdioFileEx(const CStdioFileEx&) = delete;
    CStdioFileEx& operator=(const CStdioFileEx&) = delete;
    ~CStdioFileEx() override;

    /// As the base class does it.
    /// @throws CInvalidArgException  `name` is null.
    void SetFilePath(const char16_t* name) override;
    /// Opens the file, its bytes as they are (typeText has no effect), and looks for the mark of UTF-16 unless it is
    /// opened by modeWrite or modeCreate.
    int Open(const char16_t* name, std::uint32_t flags, CFileException* error = nullptr) override;
    /// As the base class does it; at the beginning of the file the next ReadString drops the mark again.
    std::uint64_t Seek(std::int64_t offset, std::uint32_t origin) override;
    /// Writes the text; a line end is part of it, and "\n" goes out as it is.
    ///
    /// At the beginning of the file the mark comes first, if m_bWriteBOM is set: that of UTF-16 with modeUnicode, that
    /// of UTF-8 with code page 65001, none otherwise. 8-bit text is written as VyrPlatform::CodePage::ToBytes makes it.
    /// With a code page that is not known nothing but the mark is written.
    /// @param text  up to its NUL.
    /// @throws CInvalidArgException  `text` is null.
    void WriteString(const char16_t* text) override;
    /// Reads a line.
    /// @param line  gets its text without the line feed and without a carriage return right before that. A NUL ends the
    ///        text; what follows up to the line feed is read and dropped, as is an odd last byte of UTF-16. With a code
    ///        page that is not known it is empty.
    /// @return nonzero when a line was read, 0 at the end of the file, with `line` empty.
    /// @throws std::bad_alloc  for a line that no CString can hold.
    int ReadString(CString& line) override;
    /// As the base class does it: the bytes of the file as UTF-16, whatever its code page and mark.
    char16_t* ReadString(char16_t* buffer, std::uint32_t capacity) override;

    /// The text is UTF-16. Set by Open.
    bool m_bUnicode = false;
    /// The flags that the file was opened by. Set by Open.
    std::uint32_t m_nOpenFlags = 0;
    /// The code page of 8-bit text; 0xFFFFFFFF is the system's (VyrPlatform::CodePage::GetAnsi), 65001 is UTF-8.
    std::uint32_t m_nCodePage = 0xFFFFFFFF;
    /// What is written for each code unit that the code page lacks.
    char m_chDefault = '#';
    /// Whether a file that is written from its beginning gets a mark.
    bool m_bWriteBOM = true;

private:
    [[nodiscard]] std::uint32_t CodePage() const;
    void DropMark();
    void WriteMark();
    template <class Unit>
    bool ReadWholeLine(CTemplateSmartPtrArray<Unit>& line);

    enum : std::size_t
    {
        bufferSize = 4096
    };
    char16_t m_wideBuffer[bufferSize];
    char m_narrowBuffer[bufferSize];
    bool m_bAtStart = true;
};

/// So that modeUnicode can be or-ed to one flag of CFile, as to several.
constexpr std::uint32_t operator|(CFile::OpenFlags flag, CStdioFileEx::TextFlags textFlag) noexcept
{
    return std::uint32_t{flag} | std::uint32_t{textFlag};
}
