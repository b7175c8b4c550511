/// @file
/// The names of one folder, before a batch or after it.
#pragma once

#include <VyrHost/model/NamePool.h>
#include <VyrHostPlatform/NameFolding.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace VyrHost::Model {

/// Means "no entry" in place of an entry's index.
inline constexpr std::uint32_t noEntry = UINT32_MAX;

/// A name in the listing of its folder.
struct ListedName
{
    InternedName name;
    VyrPlatform::FileSystem::Kind kind = VyrPlatform::FileSystem::Kind::Missing;
    bool isLink = false;
};

/// A name in a folder.
struct NameRecord
{
    InternedName name;
    /// The entry that has the name.
    std::uint32_t owner = noEntry;
    /// The kind of the entry of this name on the disk.
    VyrPlatform::FileSystem::Kind kind = VyrPlatform::FileSystem::Kind::Missing;
    bool isLink = false;
};

/// Finds the names of a folder in constant time. References to records are valid until the next name is added.
class NameTable
{
public:
    /// Sets how the folder compares names. Call it before the first name is added.
    void SetFolding(VyrHostPlatform::NameFolding folding) { m_folding = folding; }
    [[nodiscard]] VyrHostPlatform::NameFolding Folding() const { return m_folding; }

    /// The record of `name`, or of a name that is equal in this folder; a null pointer when there is none.
    [[nodiscard]] NameRecord* Find(std::u16string_view name);
    [[nodiscard]] const NameRecord* Find(std::u16string_view name) const;
    /// The record of `name`, added when there is none. The text of `name` must outlive the table.
    NameRecord& Add(InternedName name);
    /// Makes room for `count` names.
    void Reserve(std::size_t count);
    /// Adds the names of a listing, in order.
    void Add(const std::vector<ListedName>& listed);
    /// Frees the index. The next look-up takes the time to make it again.
    void ForgetIndex();

    /// The records in the order in which they were added.
    [[nodiscard]] std::vector<NameRecord>& Records() { return m_records; }
    [[nodiscard]] const std::vector<NameRecord>& Records() const { return m_records; }
    /// The index of a record.
    [[nodiscard]] std::size_t NumberOf(const NameRecord& record) const
    {
        return static_cast<std::size_t>(&record - m_records.data());
    }

private:
    /// A name to look up.
    struct Key
    {
        std::u16string_view name;
        /// Its folded form; not used if the folder compares names exactly.
        CString folded;
        std::uint32_t hash;
    };

    [[nodiscard]] Key KeyOf(std::u16string_view name) const;
    struct Slot
    {
        std::uint32_t hash = 0;
        /// The index of the record plus 1; 0 for a free slot.
        std::uint32_t number = 0;
    };

    [[nodiscard]] bool IsSame(const NameRecord& record, const Key& key) const;
    [[nodiscard]] std::size_t SlotOf(const Key& key) const;
    void MakeIndexFor(std::size_t count) const;
    static void Put(std::vector<Slot>& slots, const Slot& slot);

    VyrHostPlatform::NameFolding m_folding = VyrHostPlatform::NameFolding::None;
    std::vector<NameRecord> m_records;
    /// The index; their count is a power of two. Empty when it was forgotten.
    mutable std::vector<Slot> m_slots;
};

} // namespace VyrHost::Model
