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

/// Stands for "no entry" where the index of an entry is asked for.
inline constexpr std::uint32_t noEntry = UINT32_MAX;

/// A name as its folder lists it.
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
    /// The entry of the list whose name it is.
    std::uint32_t owner = noEntry;
    /// What the disk has under this name.
    VyrPlatform::FileSystem::Kind kind = VyrPlatform::FileSystem::Kind::Missing;
    bool isLink = false;
};

/// Finds the names of a folder in constant time. References to records are good until the next name is added.
class NameTable
{
public:
    /// How the folder compares names. To be set before the first name is added.
    void SetFolding(VyrHostPlatform::NameFolding folding) { m_folding = folding; }
    [[nodiscard]] VyrHostPlatform::NameFolding Folding() const { return m_folding; }

    /// The record of `name`, or of what the folder takes for the same name; a null pointer when there is none.
    [[nodiscard]] NameRecord* Find(std::u16string_view name);
    [[nodiscard]] const NameRecord* Find(std::u16string_view name) const;
    /// The record of `name`, added when there is none. The text of `name` must outlive the table.
    NameRecord& Add(InternedName name);
    /// Makes room for `count` names.
    void Reserve(std::size_t count);
    /// Adds the names of a listing, in its order.
    void Add(const std::vector<ListedName>& listed);
    /// Frees what only look-ups need. The next look-up takes the time to make it again.
    void ForgetIndex();

    /// The records in the order in which they were added.
    [[nodiscard]] std::vector<NameRecord>& Records() { return m_records; }
    [[nodiscard]] const std::vector<NameRecord>& Records() const { return m_records; }
    /// The place of a record among them.
    [[nodiscard]] std::size_t NumberOf(const NameRecord& record) const
    {
        return static_cast<std::size_t>(&record - m_records.data());
    }

private:
    /// A name as it is looked for.
    struct Key
    {
        std::u16string_view name;
        /// Its key under the folding; not used where the folder overlooks nothing.
        CString folded;
        std::uint32_t hash;
    };

    [[nodiscard]] Key KeyOf(std::u16string_view name) const;
    struct Slot
    {
        std::uint32_t hash = 0;
        /// Of the record, plus 1; 0 for a free slot.
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
