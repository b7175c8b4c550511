// The causes of file exceptions for Linux's error codes.
#include <VyrPlatform/files/CFileException.h>

#include <cerrno>

int CFileException::OsErrorToException(std::int32_t osError) noexcept
{
    switch (osError) {
    case 0:
        return none;
    case ENOENT:
        return fileNotFound;
    case ENOTDIR:
    case ENAMETOOLONG:
    case ELOOP:
    case ENODEV:
    case ENXIO:
        return badPath;
    case EMFILE:
    case ENFILE:
        return tooManyOpenFiles;
    case EACCES:
    case EPERM:
    case EROFS:
    case EISDIR:
    case EEXIST:
        return accessDenied;
    case EBADF:
        return invalidFile;
    case EINVAL:
    case ESPIPE:
        return badSeek;
    case EIO:
        return hardIO;
    case EBUSY:
    case ETXTBSY:
        return sharingViolation;
    case EAGAIN:
    case EDEADLK:
    case ENOLCK:
        return lockViolation;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return diskFull;
    default:
        return genericException;
    }
}
