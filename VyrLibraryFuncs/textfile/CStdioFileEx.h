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
/// without a byte order mark (FF FE for UTF-16, EF BB BF for UTF-8).
///
///     CStdioFileEx file;
///     file.m_nCodePage = 65001;
///     if (file.Open(path.GetString(), CFile::modeRead))
///         for (CString line; file.ReadString(line);)
///             use(line);
///
/// A file that is opened for reading, or for both, is UTF-16 if it begins with that mark; a file of a single byte is
/// 8-bit text. The mark of UTF-8 is not checked: with code page 65001 the first three bytes are skipped in any case.
///
/// Open reports a failure by its result; reading and writing throw a CFileException, by value, and the other exceptions
/// of the base class. An object is for one thread at a time.
class VYR_FUNCS_API CStdioFileEx : public CStdioFile
{
public:
    /// A flag for Open in addition to those of CFile: the text is written as UTF-16.
    enum TextFlags : std::uint32_t
    {
        modeUnicode = 0x200000
    };

    CStdioFileEx();
    CStdioFileEx(const CStdioFileEx&) = delete;
    CStdioFileEx& operator=(const CStdioFileEx&) = delete;
    ~CStdioFileEx() override;

    /// Like the base class.
    /// @throws CInvalidArgException  `name` is null.
    void SetFilePath(const char16_t* name) override;
    /// Opens the file in binary mode (typeText has no effect), and reads the mark of UTF-16 unless it is opened by
    /// modeWrite or modeCreate.
    int Open(const char16_t* name, std::uint32_t flags, CFileException* error = nullptr) override;
    /// Like the base class; at the beginning of the file the next ReadString skips the mark again.
    std::uint64_t Seek(std::int64_t offset, std::uint32_t origin) override;
    /// Writes the text; it includes its line end, and "\n" is written unchanged.
    ///
    /// At the beginning of the file the mark is written first, if m_bWriteBOM is set: that of UTF-16 with modeUnicode,
    /// that of UTF-8 with code page 65001, none otherwise. 8-bit text is converted by VyrPlatform::CodePage::ToBytes;
    /// with an unknown code page nothing is written.
    /// @param text  up to its NUL.
    /// @throws CInvalidArgException  `text` is null.
    void WriteString(const char16_t* text) override;
    /// Reads a line.
    /// @param line  gets the text without the line feed and without a carriage return right before it. A NUL ends the
    /// text; the rest up to the line feed is read and discarded, as is an odd last byte of UTF-16. With an unknown code
    /// page it is empty.
    /// @return nonzero when a line was read, 0 at the end of the file, with `line` empty.
    /// @throws std::bad_alloc  for a line that is too long for a CString.
    int ReadString(CString& line) override;
    /// Like the base class: the bytes of the file as UTF-16, whatever its code page and mark.
    char16_t* ReadString(char16_t* buffer, std::uint32_t capacity) override;

    /// Whether the text is UTF-16. Set by Open.
    bool m_bUnicode = false;
    /// The flags with which the file was opened. Set by Open.
    std::uint32_t m_nOpenFlags = 0;
    /// The code page of 8-bit text; 0xFFFFFFFF is the system's (VyrPlatform::CodePage::GetAnsi), 65001 is UTF-8.
    std::uint32_t m_nCodePage = 0xFFFFFFFF;
    /// Replaces each code unit that the code page lacks.
    char m_chDefault = '#';
    /// Whether a mark is written at the beginning of a file.
    bool m_bWriteBOM = true;

private:
    enum : std::size_t
    {
        bufferSize = 4096
    };
    char16_t m_wideBuffer[bufferSize];
    char m_narrowBuffer[bufferSize];
    bool m_bAtStart = true;
};

/// Allows modeUnicode after a single flag of CFile, as after several.
constexpr std::uint32_t operator|(CFile::OpenFlags flag, CStdioFileEx::TextFlags textFlag) noexcept
{
    return std::uint32_t{flag} | std::uint32_t{textFlag};
}
