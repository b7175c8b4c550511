/// @file
/// The folders that a list of entries touches, each listed once; and the folder in the text of a path.
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

/// All of `path` up to its last separator, which is part of it; empty when there is none. The text alone counts.
[[nodiscard]] std::u16string_view FolderPart(std::u16string_view path);

/// What follows that folder in `path`: the name. All of it when there is no separator.
[[nodiscard]] std::u16string_view NamePart(std::u16string_view path);

/// The name of the folder that `path` (absolute) is in for the `level` 1, of the one above it for 2, and so on. Empty
/// for a root, and where there is no such folder.
[[nodiscard]] std::u16string_view ParentName(std::u16string_view path, int level);

/// Stands for "no folder" where the number of a folder is asked for.
inline constexpr std::uint32_t noFolder = UINT32_MAX;

/// A folder and the names in it.
struct Folder
{
    /// Absolute, its separator at the end.
    CString path;
    /// The folder that it is in; noFolder for a root.
    std::uint32_t parent = noFolder;
    /// Its name there; the path of a root.
    InternedName name;
    /// What stands before an entry's name when it is shown: the folder as the user named it.
    CString shown;
    /// What the listing brings, in natural order.
    NameTable names;
    /// False for a folder that is known only because another one stands in it: then the fields below mean nothing.
    bool wasOpened = false;
    /// The disk has it: its listing is in `names`.
    bool exists = false;
    /// The disk does not have it, and the batch can create it.
    bool isNew = false;
    /// Why it could not be listed (the system's code); 0 when it was.
    std::uint32_t error = 0;
    /// The file system that it is on (FileIdentity); nothing where the system does not tell.
    std::optional<std::uint64_t> device;
};

struct IdentityHash
{
    std::size_t operator()(const VyrPlatform::FileIdentity& identity) const noexcept
    {
        return static_cast<std::size_t>(identity.number * 31 + identity.device);
    }
};

/// Gives each folder a number and keeps its listing. References to folders stay good for the life of the set.
class FolderSet
{
public:
    /// The number of the folder `path` (absolute, its separator at the end), listed when it is opened for the first
    /// time. Two paths to one folder give one number; the first path stays. `shown` is taken for a new one. The folders
    /// that it stands in get numbers, too.
    std::uint32_t Open(const CString& path, const CString& shown);

    /// The number of the folder `path`, where it was opened under that path; nothing otherwise.
    [[nodiscard]] std::optional<std::uint32_t> FindOpened(const CString& path) const;

    [[nodiscard]] Folder& operator[](std::uint32_t folder) { return m_folders[folder]; }
    [[nodiscard]] const Folder& operator[](std::uint32_t folder) const { return m_folders[folder]; }
    [[nodiscard]] std::uint32_t Count() const { return static_cast<std::uint32_t>(m_folders.size()); }

    /// Frees what only look-ups of names need, until the next one.
    void ForgetIndexes();

    /// Keeps the text of a name as long as the set lives.
    [[nodiscard]] InternedName Intern(std::u16string_view name) { return m_texts->Intern(name); }
    /// Holds all names.
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
