// A document that is replaced by a new one which was written beside it.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/linux/files/Descriptor.h>
#include <VyrPlatform/linux/files/NativePath.h>
#include <VyrPlatform/text/CString.h>

#include <optional>
#include <string>
#include <sys/stat.h>

namespace VyrPlatform {

/// How a new document is made of the old one; both are open files.
class DocumentEdit
{
public:
    DocumentEdit() = default;
    DocumentEdit(const DocumentEdit&) = delete;
    DocumentEdit& operator=(const DocumentEdit&) = delete;
    virtual ~DocumentEdit() = default;

    /// Fills the empty file `target`.
    /// @return 0, or the error code: EILSEQ when the document is damaged.
    [[nodiscard]] virtual int Write(int source, int target) = 0;
    /// Whether `target`, read back, has the new values and all else of `source`.
    [[nodiscard]] virtual bool IsWritten(int source, int target) = 0;
};

/// A document that nobody else changes. Other programs that open it for writing wait until this object is gone, where
/// the file system has leases.
class VYR_PLATFORM_API DocumentFile
{
public:
    /// Opens the file at `path`; a link is followed. Error tells why it did not.
    explicit DocumentFile(const CString& path);
    DocumentFile(const DocumentFile&) = delete;
    DocumentFile& operator=(const DocumentFile&) = delete;
    /// Removes a new document that has not taken its place, and what is kept of the old one for it.
    ~DocumentFile();

    /// 0 when the document may be replaced, else the error code: EBUSY when it is open for writing elsewhere, EDEADLK
    /// when it is locked, EMLINK when it has several hard links.
    [[nodiscard]] int Error() const noexcept { return m_error; }
    [[nodiscard]] int Get() const noexcept { return m_file ? m_file->Get() : -1; }

    /// Puts the document that `edit` makes in the place of this one, flushed to the disk, with owner, mode, times and
    /// extended attributes kept, and opens it.
    /// @return 0, or the error code; the old document then stands there unchanged.
    [[nodiscard]] int Replace(DocumentEdit& edit);

    /// The first half of that: the new document is written beside this one, to NewPath.
    /// @param edit  must live until Commit.
    [[nodiscard]] int Prepare(DocumentEdit& edit);
    [[nodiscard]] const CString& NewPath() const noexcept { return m_newPath; }
    /// In between: has Commit keep the old document at `path`, where nothing stands yet. It is a hard link where nobody
    /// else can be writing to it, and the file system lets, else a copy.
    [[nodiscard]] int Keep(const CString& path);
    /// The second half: flushes the new document and what is kept of the old one, reads the new one back and compares,
    /// and renames it.
    [[nodiscard]] int Commit();

    /// Removes the new document that a killed program left beside the one at `path`, if there is one.
    static void RemoveLeftover(const CString& path);

private:
    [[nodiscard]] int Open();
    [[nodiscard]] int TakeLease();
    [[nodiscard]] int WriteNew(DocumentEdit& edit, int target) const;
    [[nodiscard]] int CopyTo(const NativePath& path);
    [[nodiscard]] int Flush() const;
    /// 0, or EBUSY when this document was written to since it was opened, or is about to be.
    [[nodiscard]] int CheckUnchanged() const;
    void RemoveNew();

    /// Without links.
    CString m_path;
    /// Empty while there is no new document.
    CString m_newPath;
    std::optional<Descriptor> m_file;
    /// The new document.
    std::optional<Descriptor> m_new;
    DocumentEdit* m_edit = nullptr;
    /// Where the old one is kept; empty while it is not.
    CString m_keptPath;
    /// What is kept, unless it is this document itself.
    std::optional<Descriptor> m_keptCopy;
    struct stat m_status = {};
    /// How many names this document has.
    nlink_t m_links = 1;
    bool m_hasLease = false;
    int m_error;
};

} // namespace VyrPlatform
