/// @file
/// The names of one folder: what the disk has, whose they are, and who gets them.
#pragma once

#include <VyrPlatform/FileSystem.h>

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace VyrHost {

/// Stands for "no entry" where the index of an entry is asked for.
inline constexpr std::uint32_t NoEntry = UINT32_MAX;

/// A name in a folder.
struct NameRecord
{
    std::u16string_view name;
    std::uint32_t hash = 0;
    /// The entry of the list whose name it is now.
    std::uint32_t owner = NoEntry;
    /// The entry of the list whose name it is after the batch.
    std::uint32_t holder = NoEntry;
    /// What the disk has under this name.
    VyrPlatform::FileSystem::Kind kind = VyrPlatform::FileSystem::Kind::Missing;
    bool isLink = false;
};

/// Finds a folder's names in constant time. A reference stays good until the next name is added.
class NameTable
{
public:
    /// The record of `name`; a null pointer when there is none.
    [[nodiscard]] NameRecord* Find(std::u16string_view name);
    [[nodiscard]] const NameRecord* Find(std::u16string_view name) const;
    /// The record of `name`, added when there is none. The table keeps the view: its text must outlive the table.
    NameRecord& Add(std::u16string_view name);

    /// The records in the order in which they were added.
    [[nodiscard]] std::vector<NameRecord>& Records() { return m_records; }
    [[nodiscard]] const std::vector<NameRecord>& Records() const { return m_records; }

private:
    [[nodiscard]] std::size_t SlotOf(std::u16string_view name, std::uint32_t hash) const;
    void Grow();

    std::vector<NameRecord> m_records;
    /// Index of a record plus 1, 0 for a free slot; their count is a power of two.
    std::vector<std::uint32_t> m_slots;
};

} // namespace VyrHost
