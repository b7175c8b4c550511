/// @file
/// Finds what stands at a place, in tables as large as the longest lists.
#pragma once

#include <VyrHost/plan/RenamePlan.h>

#include <cstdint>
#include <vector>

namespace VyrHost {

/// A place as its file system sees it: the name is folded.
struct Slot
{
    PlanIndex folder = none;
    CString key;

    friend bool operator==(const Slot&, const Slot&) noexcept = default;
};

/// A map from slots to indexes. (One flat table: the nodes of the standard one cost five times as much here.)
class SlotTable
{
public:
    SlotTable();

    /// The index at `slot`; `none` when there is none.
    [[nodiscard]] PlanIndex Find(const Slot& slot) const;
    /// Puts `index` at `slot`, where nothing is yet.
    /// @return false, and nothing is changed, when something is there.
    bool Put(const Slot& slot, PlanIndex index);
    /// Makes room for `count` slots.
    void Reserve(std::size_t count);

private:
    /// The upper half of a slot's hash, and its place in the list of items.
    struct Bucket
    {
        std::uint32_t tag = 0;
        PlanIndex item = none;
    };

    struct Item
    {
        CString key;
        PlanIndex folder;
        PlanIndex index;
    };

    [[nodiscard]] bool IsAt(const Item& item, const Slot& slot) const
    {
        return item.folder == slot.folder && item.key == slot.key;
    }
    [[nodiscard]] std::size_t FindBucket(const Slot& slot, std::uint64_t hash) const;

    std::vector<Bucket> m_buckets;
    std::vector<Item> m_items;
};

} // namespace VyrHost
