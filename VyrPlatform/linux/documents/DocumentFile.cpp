#include "DocumentFile.h"

#include <VyrPlatform/common/files/TemporaryPath.h>
#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/linux/files/FileContent.h>
#include <VyrPlatform/linux/files/FileMetadata.h>
#include <VyrPlatform/linux/files/FlushFolder.h>
#include <VyrPlatform/linux/files/NativePath.h>
#include <VyrPlatform/linux/files/OpenToLook.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <string>
#include <sys/file.h>
#include <unistd.h>

namespace VyrPlatform {

namespace {

/// The path without links; empty, with errno set, when it does not exist.
CString ResolveLinks(const CString& path)
{
    const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(NativePath(path).Get(), nullptr), &std::free);
    return resolved ? Encoding::FromNameBytes(resolved.get()) : CString();
}

/// Whether another program has locked the file, with any kind of lock.
bool IsLocked(const CString& path, int file)
{
    struct flock region = {};
    region.l_type = F_WRLCK;
    region.l_whence = SEEK_SET;
    if (fcntl(file, F_OFD_GETLK, &region) == 0 && region.l_type != F_UNLCK)
        return true;
    if (flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        return true;
    // Files that office programs create beside an open document.
    const CString folder = GetFolderOf(path);
    return FileSystem::Exists(folder + u".~lock." + path.Mid(folder.GetLength()) + u"#");
}

int CreateNew(const CString& path)
{
    return open(NativePath(path).Get(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
}

bool HasSecurityName(const std::pair<std::string, std::string>& attribute)
{
    return attribute.first.starts_with("security.");
}

/// Whether `target` has the metadata that a document must not lose. The system manages the labels of security modules
/// itself.
bool HasKeptMetadata(int source, int target, const struct stat& before)
{
    struct stat after;
    if (fstat(target, &after) != 0 || after.st_uid != before.st_uid || after.st_gid != before.st_gid ||
        PermissionsOf(after) != PermissionsOf(before))
        return false;
    ExtendedList kept = GetExtendedAttributes(source);
    ExtendedList now = GetExtendedAttributes(target);
    for (ExtendedList* const list : {&kept, &now}) {
        std::erase_if(*list, HasSecurityName);
        std::sort(list->begin(), list->end());
    }
    return kept == now;
}

} // namespace

DocumentFile::DocumentFile(const CString& path) : m_path(ResolveLinks(path)), m_error(m_path.IsEmpty() ? errno : Open())
{}

DocumentFile::~DocumentFile()
{
    RemoveNew();
}

int DocumentFile::Open()
{
    const NativePath native(m_path);
    m_file.emplace(OpenToLook(native.Get(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY));
    if (!m_file->IsOpen() || fstat(m_file->Get(), &m_status) != 0)
        return errno;
    if (!S_ISREG(m_status.st_mode))
        return ENOTSUP;
    if (FileAttributes::IsReadOnly(m_path) || faccessat(AT_FDCWD, native.Get(), W_OK, AT_EACCESS) != 0)
        return EACCES;
    if (m_status.st_nlink != 1)
        return EMLINK;
    if (const int error = TakeLease())
        return error;
    return IsLocked(m_path, m_file->Get()) ? EDEADLK : 0;
}

/// Takes the lease that is given only while no program can write the file, and that keeps others from opening it for
/// writing. When one tries to, the system sends a signal, which must have no effect.
/// @return 0, or EBUSY. Also 0 if the file system or the user has no leases: then it is unknown.
int DocumentFile::TakeLease()
{
    m_hasLease = fcntl(m_file->Get(), F_SETSIG, SIGURG) == 0 && fcntl(m_file->Get(), F_SETLEASE, F_RDLCK) == 0;
    return !m_hasLease && errno == EAGAIN ? EBUSY : 0;
}

int DocumentFile::WriteNew(DocumentEdit& edit, int target) const
{
    const int source = m_file->Get();
    if (const int error = edit.Write(source, target))
        return error;
    if (const int error = CopyMetadata(source, target, m_status))
        return error;
    // Starts writing to the disk; Commit waits for it.
    static_cast<void>(sync_file_range(target, 0, 0, SYNC_FILE_RANGE_WRITE));
    return HasKeptMetadata(source, target, m_status) ? 0 : EPERM;
}

int DocumentFile::CheckUnchanged() const
{
    struct stat now;
    if (fstat(m_file->Get(), &now) != 0)
        return errno;
    const bool isChanged = now.st_size != m_status.st_size || now.st_mtim.tv_sec != m_status.st_mtim.tv_sec ||
                           now.st_mtim.tv_nsec != m_status.st_mtim.tv_nsec || now.st_nlink != m_links;
    const bool isAskedFor = m_hasLease && fcntl(m_file->Get(), F_GETLEASE) != F_RDLCK;
    return isChanged || isAskedFor ? EBUSY : 0;
}

void DocumentFile::RemoveNew()
{
    for (CString* const path : {&m_newPath, &m_keptPath}) {
        if (!path->IsEmpty())
            unlink(NativePath(*path).Get());
        path->Empty();
    }
    m_new.reset();
    m_keptCopy.reset();
    m_links = 1;
}

int DocumentFile::Prepare(DocumentEdit& edit)
{
    RemoveNew();
    if (m_error != 0)
        return m_error;
    CString newPath = GetTemporaryPathOf(m_path);
    int created = CreateNew(newPath);
    if (created < 0 && errno == EEXIST) {
        newPath = MakeTemporaryPath(m_path);
        created = CreateNew(newPath);
    }
    if (created < 0)
        return errno;
    m_new.emplace(created);
    m_newPath = newPath;
    m_edit = &edit;
    const int error = WriteNew(edit, created);
    if (error != 0)
        RemoveNew();
    return error;
}

int DocumentFile::Keep(const CString& path)
{
    const NativePath native(path);
    const std::string opened = "/proc/self/fd/" + std::to_string(m_file->Get());
    if (m_hasLease && linkat(AT_FDCWD, opened.c_str(), AT_FDCWD, native.Get(), AT_SYMLINK_FOLLOW) == 0)
        ++m_links;
    else if (const int error = CopyTo(native))
        return error;
    m_keptPath = path;
    return 0;
}

/// Nobody else may read the copy: it is in another folder with other permissions.
int DocumentFile::CopyTo(const NativePath& path)
{
    const int created = open(path.Get(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, S_IRUSR | S_IWUSR);
    if (created < 0)
        return errno;
    m_keptCopy.emplace(created);
    const int error = CopyContent(m_file->Get(), created, m_status);
    if (error != 0)
        unlink(path.Get());
    return error;
}

/// The new document first: on most file systems this also flushes the name of a link to the old one. The program that
/// wrote the old one may never have flushed it.
int DocumentFile::Flush() const
{
    if (fsync(m_new->Get()) != 0)
        return errno;
    if (m_keptPath.IsEmpty())
        return 0;
    return fsync(m_keptCopy ? m_keptCopy->Get() : m_file->Get()) == 0 ? 0 : errno;
}

int DocumentFile::Commit()
{
    if (m_newPath.IsEmpty())
        return EINVAL;
    int error = Flush();
    if (error == 0 && !m_edit->IsWritten(m_file->Get(), m_new->Get()))
        error = EILSEQ;
    if (const int closeError = m_new->Close(); error == 0)
        error = closeError;
    if (error == 0)
        error = CheckUnchanged();
    if (error == 0 && std::rename(NativePath(m_newPath).Get(), NativePath(m_path).Get()) != 0)
        error = errno;
    if (error != 0) {
        RemoveNew();
        return error;
    }
    m_newPath.Empty();
    m_keptPath.Empty();
    m_keptCopy.reset();
    m_links = 1;
    m_error = Open();
    return 0;
}

void DocumentFile::RemoveLeftover(const CString& path)
{
    if (const CString resolved = ResolveLinks(path); !resolved.IsEmpty())
        unlink(NativePath(GetTemporaryPathOf(resolved)).Get());
}

int DocumentFile::Replace(DocumentEdit& edit)
{
    int error = Prepare(edit);
    if (error == 0)
        error = Commit();
    return error != 0 ? error : static_cast<int>(FlushFolder(GetFolderOf(m_path)));
}

} // namespace VyrPlatform
