/// @file
/// The buffered file of the platform class library.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/files/CFile.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <memory>

/// A file with a buffer, and with lines of UTF-16 text. Bytes are read and written unchanged: line ends are not
/// translated, and texts are UTF-16 in little-endian order without a byte order mark.
///
/// Data is certain to be in the file only after Close; an error may be reported by a later call than the one that
/// wrote. Reading and writing may alternate freely.
class VYR_PLATFORM_API CStdioFile : public CFile
{
public:
    CStdioFile();
    CStdioFile(const CStdioFile&) = delete;
    CStdioFile& operator=(const CStdioFile&) = delete;
    ~CStdioFile() override;

    int Open(const char16_t* name, std::uint32_t flags, CFileException* error = nullptr) override;
    std::uint64_t Seek(std::int64_t offset, std::uint32_t origin) override;
    [[nodiscard]] std::uint64_t GetPosition() const override;
    std::uint32_t Read(void* buffer, std::uint32_t count) override;
    void Write(const void* buffer, std::uint32_t count) override;
    void Close() override;
    void Abort() noexcept override;

    /// Writes the text up to its NUL, without the NUL.
    /// @throws CInvalidArgException  `text` is null.
    virtual void WriteString(const char16_t* text);
    /// Reads a line.
    /// @param line  gets the line without its line feed; empty at the end of the file.
    /// @return nonzero when there was a line, 0 at the end of the file.
    virtual int ReadString(CString& line);
    /// Reads a line, or its first part where it has `capacity` code units or more.
    /// @param buffer  gets the line with its line feed and a NUL.
    /// @param capacity  the size of `buffer` in code units, including the NUL.
    /// @return `buffer`, null at the end of the file.
    /// @throws CInvalidArgException  `buffer` is null or `capacity` is 0.
    virtual char16_t* ReadString(char16_t* buffer, std::uint32_t capacity);

protected:
    /// Whether there is a buffer, as while the file is open.
    [[nodiscard]] bool HasStream() const noexcept { return m_stream != nullptr; }
    /// Reads bytes up to and including the next line feed; at most `capacity`.
    /// @return the number of bytes read: less than `capacity` only after a line feed or at the end of the file.
    std::size_t ReadLine(char* target, std::size_t capacity);
    /// Reads code units of two bytes in the same way. A single byte before the end of the file is read and discarded.
    std::size_t ReadLine(char16_t* target, std::size_t capacity);

private:
    struct Stream;

    template <class Unit>
    std::size_t ReadUnits(Unit* target, std::size_t capacity);
    bool Fill(std::size_t wanted);
    void FlushWritten();
    void DropUnread();

    std::unique_ptr<Stream> m_stream;
};
