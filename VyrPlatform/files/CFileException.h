/// @file
/// The file exception of the platform class library.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>

/// Thrown by the operations of a file, by value: catch it as `const CFileException&`; there is nothing to delete.
class VYR_PLATFORM_API CFileException
{
public:
    /// Why the operation failed.
    enum Cause
    {
        none = 0,
        genericException = 1,
        fileNotFound = 2,
        badPath = 3,
        tooManyOpenFiles = 4,
        accessDenied = 5,
        invalidFile = 6,
        removeCurrentDir = 7,
        directoryFull = 8,
        badSeek = 9,
        hardIO = 10,
        sharingViolation = 11,
        lockViolation = 12,
        diskFull = 13,
        endOfFile = 14
    };

    /// @param cause  one of Cause.
    /// @param osError  the system's error code; -1 when it is not known.
    /// @param fileName  the path of the file, empty when it is not known.
    explicit CFileException(int cause = none, std::int32_t osError = -1, CString fileName = CString());
    CFileException(const CFileException& other);
    CFileException& operator=(const CFileException& other);
    ~CFileException();

    /// The cause for a system error code: `none` for 0, `genericException` where no other fits.
    [[nodiscard]] static int OsErrorToException(std::int32_t osError) noexcept;

    int m_cause;
    std::int32_t m_lOsError;
    CString m_strFileName;
};
