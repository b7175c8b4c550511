/// @file
/// The names of one folder: what the disk has, whose they are, and who gets them.
#pragma once

#include <VyrHost/model/NamePool.h>
#include <VyrHostPlatform/NameFolding.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string_view>
#include <vector>

namespace VyrHost::Model {

/// Stands for "no entry" where the index of an entry is asked for.
inline constexpr std::uint32_t noEntry = UINT32_MAX;
/// Stands for a folder that the batch makes where the holder of a name is asked for.
inline constexpr std::uint32_t newFolder = noEntry - 1;

/// A name in a folder.
struct NameRecord
{
    InternedName name;
    /// The entry of the list whose name it is now.
    std::uint32_t owner = noEntry;
    /// The entry of the list whose name it is after the batch.
    std::uint32_t holder = noEntry;
    /// What the disk has under this name.
    VyrPlatform::FileSystem::Kind kind = VyrPlatform::FileSystem::Kind::Missing;
    bool isLink = false;
};

/// Finds a folder's names in constant time. References to records stay good for the life of the table.
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
    /// Says that `name` will soon be looked for or added, which is quicker then.
    void Expect(std::u16string_view name) const;
    /// Makes room for `count` names.
    void Reserve(std::size_t count);

    /// The records in the order in which they were added.
    [[nodiscard]] std::deque<NameRecord>& Records() { return m_records; }
    [[nodiscard]] const std::deque<NameRecord>& Records() const { return m_records; }

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
    void Grow(std::size_t count);

    VyrHostPlatform::NameFolding m_folding = VyrHostPlatform::NameFolding::None;
    /// Not a vector: a table of many names would be copied each time that it grows.
    std::deque<NameRecord> m_records;
    /// Their count is a power of two.
    std::vector<Slot> m_slots;
};

} // namespace VyrHost::Model
