/// @file
/// The file of the platform class library.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/files/CFileException.h>
#include <VyrPlatform/files/FileStream.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>

/// A file of bytes, without a buffer.
///
/// Open reports a failure by its result; every other operation throws a CFileException by value: catch it as `const
/// CFileException&`. Operations that need an open file throw the cause `invalidFile` where none is open.
class VYR_PLATFORM_API CFile
{
public:
    /// How a file is opened: one access, one kind of sharing, and further flags, or-ed together. Other bits are ignored
    /// by Open.
    enum OpenFlags : std::uint32_t
    {
        modeRead = 0x0,
        modeWrite = 0x1,
        modeReadWrite = 0x2,
        /// The same as shareExclusive.
        shareCompat = 0x0,
        /// Nobody else may open the file meanwhile. Linux does not restrict others, whatever the kind of sharing.
        shareExclusive = 0x10,
        shareDenyWrite = 0x20,
        shareDenyRead = 0x30,
        shareDenyNone = 0x40,
        /// Creates a missing file, and empties an existing one unless it is opened only for reading.
        modeCreate = 0x1000,
        /// With modeCreate: an existing file keeps its content.
        modeNoTruncate = 0x2000,
        /// For derived classes; this class and CStdioFile read and write bytes in any case.
        typeText = 0x4000,
        typeBinary = 0x8000
    };

    /// The origin of an offset.
    enum SeekPosition : std::uint32_t
    {
        begin = 0,
        current = 1,
        end = 2
    };

    CFile();
    CFile(const CFile&) = delete;
    CFile& operator=(const CFile&) = delete;
    /// Closes the file. An error is not reported: call Close where it matters.
    virtual ~CFile();

    /// The path with which the file was opened, or which SetFilePath set.
    [[nodiscard]] virtual CString GetFilePath() const;
    /// Sets another path for GetFilePath and for exceptions; nothing is renamed or opened.
    /// @throws CInvalidArgException  `name` is null.
    virtual void SetFilePath(const char16_t* name);

    /// Opens the regular file at the path `name`, after closing an open one (as Close does). A folder, a pipe or a
    /// device does not open; a read-only file does not open for writing.
    /// @param name  null is the same as an empty path, which always fails.
    /// @param flags  see OpenFlags.
    /// @param error  gets cause, error code and path on failure; may be null.
    /// @return nonzero when the file is open.
    virtual int Open(const char16_t* name, std::uint32_t flags, CFileException* error = nullptr);
    /// Moves the position of the next read or write; it may be past the end.
    /// @param origin  one of SeekPosition.
    /// @return the new position, in bytes from the beginning.
    /// @throws CFileException  the position would be before the beginning, among other reasons.
    virtual std::uint64_t Seek(std::int64_t offset, std::uint32_t origin);
    /// The position of the next read or write, in bytes from the beginning.
    [[nodiscard]] virtual std::uint64_t GetPosition() const;
    /// Reads at most `count` bytes.
    /// @return the number of bytes read: less than `count` only at the end of the file.
    virtual std::uint32_t Read(void* buffer, std::uint32_t count);
    /// Writes `count` bytes.
    virtual void Write(const void* buffer, std::uint32_t count);
    /// Closes the file, even when it throws; does nothing when none is open.
    virtual void Close();
    /// Closes the file. Errors are not reported, and bytes that a derived class has not written yet are discarded.
    virtual void Abort() noexcept;

protected:
    /// Whether a file is open.
    [[nodiscard]] bool IsOpen() const noexcept { return m_file.IsOpen(); }
    /// Throws this file's exception for a system error code, unless that is 0.
    void ThrowUnless0(std::uint32_t osError) const;
    /// Throws the cause invalidFile when no file is open.
    void RequireOpen() const;

private:
    // Asking for the position moves nothing, but the service has one call for both.
    mutable VyrPlatform::FileStream m_file;
    CString m_path;
};
