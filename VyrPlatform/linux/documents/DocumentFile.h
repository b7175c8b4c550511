// Replaces a document by a new one that was written beside it.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/linux/files/Descriptor.h>
#include <VyrPlatform/linux/files/NativePath.h>
#include <VyrPlatform/text/CString.h>

#include <optional>
#include <string>
#include <sys/stat.h>

namespace VyrPlatform {

/// Makes a new document from the old one; both are open files.
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
    /// Whether `target`, read back, has the new values and everything else from `source`.
    [[nodiscard]] virtual bool IsWritten(int source, int target) = 0;
};

/// A document that is protected against changes by others: if the file system has leases, other programs that open it
/// for writing wait until this object is destroyed.
class VYR_PLATFORM_API DocumentFile
{
public:
    /// Opens the file at `path`, following a link. Error gives the reason of a failure.
    explicit DocumentFile(const CString& path);
    DocumentFile(const DocumentFile&) = delete;
    DocumentFile& operator=(const DocumentFile&) = delete;
    /// Removes a new document that was not committed, and the kept old one.
    ~DocumentFile();

    /// 0 when the document may be replaced, else the error code: EBUSY when it is open for writing elsewhere, EDEADLK
    /// when it is locked, EMLINK when it has several hard links.
    [[nodiscard]] int Error() const noexcept { return m_error; }
    [[nodiscard]] int Get() const noexcept { return m_file ? m_file->Get() : -1; }

    /// Replaces this document by the one that `edit` makes, flushed, with the same owner, mode, times and extended
    /// attributes, and opens it.
    /// @return 0, or the error code; the old document is then unchanged.
    [[nodiscard]] int Replace(DocumentEdit& edit);

    /// The first half: writes the new document beside this one, to NewPath.
    /// @param edit  must live until Commit.
    [[nodiscard]] int Prepare(DocumentEdit& edit);
    [[nodiscard]] const CString& NewPath() const noexcept { return m_newPath; }
    /// Between the two: makes Commit keep the old document at the free path `path`. A hard link if nobody else can be
    /// writing to it and the file system allows it, else a copy.
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
    /// 0, or EBUSY when this document was modified since it was opened, or is about to be.
    [[nodiscard]] int CheckUnchanged() const;
    void RemoveNew();

    /// Without links.
    CString m_path;
    /// Empty without a new document.
    CString m_newPath;
    std::optional<Descriptor> m_file;
    /// The new document.
    std::optional<Descriptor> m_new;
    DocumentEdit* m_edit = nullptr;
    /// The path of the kept old document; empty for none.
    CString m_keptPath;
    /// The kept copy, if it is not a link.
    std::optional<Descriptor> m_keptCopy;
    struct stat m_status = {};
    /// The expected number of names of this document.
    nlink_t m_links = 1;
    bool m_hasLease = false;
    int m_error;
};

} // namespace VyrPlatform
