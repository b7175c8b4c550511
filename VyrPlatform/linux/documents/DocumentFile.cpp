#include "DocumentFile.h"

#include <VyrPlatform/common/files/TemporaryPath.h>
#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/linux/files/FileMetadata.h>
#include <VyrPlatform/linux/files/FlushFolder.h>
#include <VyrPlatform/linux/files/NativePath.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <sys/file.h>
#include <unistd.h>

namespace VyrPlatform {

namespace {

/// The path without links; empty, with errno set, when nothing stands there.
CString ResolveLinks(const CString& path)
{
    const std::unique_ptr<char, decltype(&std::free)> resolved(realpath(NativePath(path).Get(), nullptr), &std::free);
    return resolved ? Encoding::FromNameBytes(resolved.get()) : CString();
}

/// Takes the lease that no program has which writes the file, and keeps others from opening it for writing. When one
/// tries to, the system sends a signal: one that does nothing.
/// @return 0, or EBUSY. Where the file system or the user has no leases, nobody can tell: 0.
int TakeLease(int file) noexcept
{
    if (fcntl(file, F_SETSIG, SIGURG) != 0)
        return 0;
    return fcntl(file, F_SETLEASE, F_RDLCK) != 0 && errno == EAGAIN ? EBUSY : 0;
}

/// Whether another program has locked the file, in any of the ways that there are.
bool IsLocked(const CString& path, int file)
{
    struct flock region = {};
    region.l_type = F_WRLCK;
    region.l_whence = SEEK_SET;
    if (fcntl(file, F_OFD_GETLK, &region) == 0 && region.l_type != F_UNLCK)
        return true;
    if (flock(file, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK)
        return true;
    // What office programs put beside a document that they have open.
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

/// Whether `target` got what a document must not lose; the labels of a security module are the system's own affair.
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
    m_file.emplace(open(native.Get(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY));
    if (!m_file->IsOpen() || fstat(m_file->Get(), &m_status) != 0)
        return errno;
    if (!S_ISREG(m_status.st_mode))
        return ENOTSUP;
    if (FileAttributes::IsReadOnly(m_path) || faccessat(AT_FDCWD, native.Get(), W_OK, AT_EACCESS) != 0)
        return EACCES;
    if (m_status.st_nlink != 1)
        return EMLINK;
    if (const int error = TakeLease(m_file->Get()))
        return error;
    return IsLocked(m_path, m_file->Get()) ? EDEADLK : 0;
}

int DocumentFile::WriteNew(DocumentEdit& edit, int target) const
{
    const int source = m_file->Get();
    if (const int error = edit.Write(source, target))
        return error;
    if (const int error = CopyMetadata(source, target, m_status))
        return error;
    // On its way to the disk; Commit waits for it.
    static_cast<void>(sync_file_range(target, 0, 0, SYNC_FILE_RANGE_WRITE));
    if (!HasKeptMetadata(source, target, m_status))
        return EPERM;
    if (!edit.IsWritten(source, target))
        return EILSEQ;
    return CheckUnchanged();
}

int DocumentFile::CheckUnchanged() const
{
    struct stat now;
    if (fstat(m_file->Get(), &now) != 0)
        return errno;
    const bool isChanged = now.st_size != m_status.st_size || now.st_mtim.tv_sec != m_status.st_mtim.tv_sec ||
                           now.st_mtim.tv_nsec != m_status.st_mtim.tv_nsec || now.st_nlink != 1;
    return isChanged ? EBUSY : 0;
}

void DocumentFile::RemoveNew()
{
    if (!m_newPath.IsEmpty())
        unlink(NativePath(m_newPath).Get());
    m_newPath.Empty();
    m_new.reset();
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
    const int error = WriteNew(edit, created);
    if (error != 0)
        RemoveNew();
    return error;
}

int DocumentFile::Commit()
{
    if (m_newPath.IsEmpty())
        return EINVAL;
    int error = fsync(m_new->Get()) == 0 ? 0 : errno;
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
