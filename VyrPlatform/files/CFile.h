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
/// Open reports its failure by its result; every other operation throws a CFileException by value: catch it as
/// `const CFileException&`. An operation that needs an open file throws the cause `invalidFile` where none is.
class VYR_PLATFORM_API CFile
{
public:
    /// How a file is opened: one access, one kind of sharing, and what else is wanted, or-ed together. Bits that are
    /// not listed here mean nothing to Open.
    enum OpenFlags : std::uint32_t
    {
        modeRead = 0x0,
        modeWrite = 0x1,
        modeReadWrite = 0x2,
        /// The same as shareExclusive.
        shareCompat = 0x0,
        /// Nobody else may open the file meanwhile. Linux does not limit others, whatever the kind of sharing.
        shareExclusive = 0x10,
        shareDenyWrite = 0x20,
        shareDenyRead = 0x30,
        shareDenyNone = 0x40,
        /// Makes the file where it is missing, and empties one that is there unless it is opened for reading alone.
        modeCreate = 0x1000,
        /// With modeCreate: a file that is there keeps its content.
        modeNoTruncate = 0x2000,
        /// For derived classes; this class and CStdioFile read and write bytes in any case.
        typeText = 0x4000,
        typeBinary = 0x8000
    };

    /// What an offset counts from.
    enum SeekPosition : std::uint32_t
    {
        begin = 0,
        current = 1,
        end = 2
    };

    CFile();
    CFile(const CFile&) = delete;
    CFile& operator=(const CFile&) = delete;
    /// Closes the file. An error on the way is not told: call Close where it matters.
    virtual ~CFile();

    /// The path that the file was opened by, or that SetFilePath gave it.
    [[nodiscard]] virtual CString GetFilePath() const;
    /// Gives the file another path for GetFilePath and for its exceptions; nothing is renamed or opened.
    /// @throws CInvalidArgException  `name` is null.
    virtual void SetFilePath(const char16_t* name);

    /// Opens the regular file at the path `name`; one that is open is closed first (as Close does it). A folder, a pipe
    /// or a device does not open; a read-only file does not open for writing.
    /// @param name  null is the same as an empty path, at which no file can be.
    /// @param flags  see OpenFlags.
    /// @param error  gets cause, error code and path when it fails; may be null.
    /// @return nonzero when the file is open.
    virtual int Open(const char16_t* name, std::uint32_t flags, CFileException* error = nullptr);
    /// Moves the place of the next read or write; it may lie behind the end.
    /// @param origin  one of SeekPosition.
    /// @return the new place, in bytes from the beginning.
    /// @throws CFileException  the place would lie before the beginning, among other reasons.
    virtual std::uint64_t Seek(std::int64_t offset, std::uint32_t origin);
    /// The place of the next read or write, in bytes from the beginning.
    [[nodiscard]] virtual std::uint64_t GetPosition() const;
    /// Reads at most `count` bytes.
    /// @return how many were read: fewer than `count` only at the end of the file.
    virtual std::uint32_t Read(void* buffer, std::uint32_t count);
    /// Writes `count` bytes.
    virtual void Write(const void* buffer, std::uint32_t count);
    /// Closes the file, also when it throws; does nothing when none is open.
    virtual void Close();
    /// Closes the file. Errors are not told, and what a derived class has not written yet is dropped.
    virtual void Abort() noexcept;

protected:
    /// Whether a file is open.
    [[nodiscard]] bool IsOpen() const noexcept { return m_file.IsOpen(); }
    /// Throws the exception of this file that belongs to one of the system's error codes, unless that is 0.
    void ThrowUnless0(std::uint32_t osError) const;
    /// Throws the cause invalidFile when no file is open.
    void RequireOpen() const;

private:
    // Asking for the place moves nothing, but the service has one call for both.
    mutable VyrPlatform::FileStream m_file;
    CString m_path;
};
