/// @file
/// The buffered file of the platform class library.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/files/CFile.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <memory>

/// A file behind a buffer, with lines of UTF-16 text. It reads and writes bytes as they are: line ends are not
/// translated, and the texts are UTF-16 in little-endian order without a mark.
///
/// What was written is in the file for certain only after Close; an error may be told by a later call than the one that
/// wrote. Reading and writing may alternate as they like.
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

    /// Writes the text up to its NUL, which is left out.
    /// @throws CInvalidArgException  `text` is null.
    virtual void WriteString(const char16_t* text);
    /// Reads a line.
    /// @param line  gets it without its line feed; empty at the end of the file.
    /// @return nonzero when there was a line, 0 at the end of the file.
    virtual int ReadString(CString& line);
    /// Reads a line, or its beginning where it has `capacity` units or more.
    /// @param buffer  gets it with its line feed and a NUL.
    /// @param capacity  the size of `buffer` in units, the NUL included.
    /// @return `buffer`, null at the end of the file.
    /// @throws CInvalidArgException  `buffer` is null or `capacity` is 0.
    virtual char16_t* ReadString(char16_t* buffer, std::uint32_t capacity);

protected:
    /// Whether there is a buffer, which is while the file is open.
    [[nodiscard]] bool HasStream() const noexcept { return m_stream != nullptr; }
    /// Reads bytes up to the next line feed, and that as well; at most `capacity`.
    /// @return how many were read: fewer than `capacity` only where a line feed is the last, or the file ends.
    std::size_t ReadLine(char* target, std::size_t capacity);
    /// Reads code units of two bytes likewise. A single byte before the end of the file is read and dropped.
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
