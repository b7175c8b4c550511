/// @file
/// The names of one folder: what the disk has, whose they are, and who gets them.
#pragma once

#include <VyrPlatform/CString.h>
#include <VyrPlatform/FileSystem.h>
#include <VyrPlatform/NameFolding.h>

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace VyrHost {

/// Stands for "no entry" where the index of an entry is asked for.
inline constexpr std::uint32_t NoEntry = UINT32_MAX;
/// Stands for a folder that the batch makes where the holder of a name is asked for.
inline constexpr std::uint32_t NewFolder = NoEntry - 1;

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
    /// How the folder compares names. To be set before the first name is added.
    void SetFolding(VyrPlatform::NameFolding folding) { m_folding = folding; }
    [[nodiscard]] VyrPlatform::NameFolding Folding() const { return m_folding; }

    /// The record of `name`, or of what the folder takes for the same name; a null pointer when there is none.
    [[nodiscard]] NameRecord* Find(std::u16string_view name);
    [[nodiscard]] const NameRecord* Find(std::u16string_view name) const;
    /// The record of `name`, added when there is none. The table keeps the view: its text must outlive the table.
    NameRecord& Add(std::u16string_view name);

    /// The records in the order in which they were added.
    [[nodiscard]] std::vector<NameRecord>& Records() { return m_records; }
    [[nodiscard]] const std::vector<NameRecord>& Records() const { return m_records; }

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
    [[nodiscard]] bool IsSame(const NameRecord& record, const Key& key) const;
    [[nodiscard]] std::size_t SlotOf(const Key& key) const;
    void Grow();

    VyrPlatform::NameFolding m_folding = VyrPlatform::NameFolding::None;
    std::vector<NameRecord> m_records;
    /// Index of a record plus 1, 0 for a free slot; their count is a power of two.
    std::vector<std::uint32_t> m_slots;
};

} // namespace VyrHost
