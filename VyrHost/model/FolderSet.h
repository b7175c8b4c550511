/// @file
/// The folders of a list of entries, each listed once; and the folder part of a path.
#pragma once

#include <VyrHost/model/NamePool.h>
#include <VyrHost/model/NameTable.h>
#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <string_view>
#include <unordered_map>

namespace VyrHost::Model {

/// `path` up to and including its last separator; empty when it has none. The disk is not read.
[[nodiscard]] std::u16string_view FolderPart(std::u16string_view path);

/// The rest of `path` after FolderPart: the name.
[[nodiscard]] std::u16string_view NamePart(std::u16string_view path);

/// The name of the parent folder of `path` (absolute) for the `level` 1, of its parent for 2, and so on. Empty for a
/// root, and if there is no such folder.
[[nodiscard]] std::u16string_view ParentName(std::u16string_view path, int level);

/// Means "no folder" in place of a folder's number.
inline constexpr std::uint32_t noFolder = UINT32_MAX;

/// A folder and the names in it.
struct Folder
{
    /// Absolute, its separator at the end.
    CString path;
    /// Its parent; noFolder for a root.
    std::uint32_t parent = noFolder;
    /// Its name in its parent; for a root, its path.
    InternedName name;
    /// Shown before the names of its entries: the folder as the user named it.
    CString shown;
    /// The listed names, in natural order.
    NameTable names;
    /// False for a folder that is known only as a parent of another one; the fields below are then not set.
    bool wasOpened = false;
    /// It exists, and `names` has its listing.
    bool exists = false;
    /// It does not exist, and the batch can create it.
    bool isNew = false;
    /// The system's error code if it could not be listed; else 0.
    std::uint32_t error = 0;
    /// Its file system (FileIdentity); nothing if unknown.
    std::optional<std::uint64_t> device;
};

struct IdentityHash
{
    std::size_t operator()(const VyrPlatform::FileIdentity& identity) const noexcept
    {
        return static_cast<std::size_t>(identity.number * 31 + identity.device);
    }
};

/// Assigns a number to each folder and keeps its listing. References to folders stay valid for the life of the set.
class FolderSet
{
public:
    /// The number of the folder `path` (absolute, with a separator at its end), which is listed when it is opened for
    /// the first time. Two paths of one folder have one number; the first path is kept. `shown` is used for a new one.
    /// Its parents get numbers, too.
    std::uint32_t Open(const CString& path, const CString& shown);

    /// The number of the folder `path` if it was opened under that path.
    [[nodiscard]] std::optional<std::uint32_t> FindOpened(const CString& path) const;

    [[nodiscard]] Folder& operator[](std::uint32_t folder) { return m_folders[folder]; }
    [[nodiscard]] const Folder& operator[](std::uint32_t folder) const { return m_folders[folder]; }
    [[nodiscard]] std::uint32_t Count() const { return static_cast<std::uint32_t>(m_folders.size()); }

    /// Frees the memory for looking up names, until the next look-up.
    void ForgetIndexes();

    /// Stores the text of a name for the life of the set.
    [[nodiscard]] InternedName Intern(std::u16string_view name) { return m_texts->Intern(name); }
    /// The pool of all names.
    [[nodiscard]] const std::shared_ptr<NamePool>& Texts() const { return m_texts; }

private:
    using Numbers = std::unordered_map<CString, std::uint32_t>;

    std::uint32_t NumberOf(const CString& path);
    Numbers::iterator Add(std::u16string_view path, std::uint32_t parent, std::u16string_view name);
    void List(Folder& folder);

    std::shared_ptr<NamePool> m_texts = std::make_shared<NamePool>();
    std::deque<Folder> m_folders;
    Numbers m_byPath;
    std::unordered_map<VyrPlatform::FileIdentity, std::uint32_t, IdentityHash> m_byIdentity;
};

} // namespace VyrHost::Model
