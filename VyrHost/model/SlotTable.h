/// @file
/// A fast map with places as keys, for the longest lists.
#pragma once

#include <VyrHost/model/RenamePlan.h>

#include <bit>
#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

namespace VyrHost::Model {

/// A map from places, their names as their file system sees them (folded), to values. (Open addressing over one list:
/// the nodes of the standard one cost five times as much here.)
template <class Value>
class SlotTable
{
public:
    SlotTable() : m_buckets(fewestBuckets) {}

    /// The value at `key` in `folder`, valid until the next Put; a null pointer when there is none.
    [[nodiscard]] const Value* Find(PlanIndex folder, std::u16string_view key) const
    {
        const PlanIndex item = m_buckets[FindBucket(folder, key, HashOf(folder, key))].item;
        return item == none ? nullptr : &m_items[item].value;
    }
    [[nodiscard]] const Value* Find(const Place& slot) const { return Find(slot.folder, slot.name); }

    /// Puts `value` at `slot` if that is empty. The text of its name must outlive the table.
    /// @return the value at `slot`, valid until the next call.
    Value& Put(const Place& slot, const Value& value)
    {
        // At most half full, so that a free bucket is near.
        if (m_items.size() * 2 >= m_buckets.size())
            Reserve(m_buckets.size());
        const std::uint64_t hash = HashOf(slot.folder, slot.name);
        Bucket& bucket = m_buckets[FindBucket(slot.folder, slot.name, hash)];
        if (bucket.item == none) {
            bucket = {TagOf(hash), static_cast<PlanIndex>(m_items.size())};
            m_items.push_back({slot, value});
        }
        return m_items[bucket.item].value;
    }

    /// Makes room for `count` places.
    void Reserve(std::size_t count)
    {
        const std::size_t size = std::bit_ceil(count * 2);
        if (size <= m_buckets.size())
            return;
        m_buckets.assign(size, {});
        m_items.reserve(count);
        for (PlanIndex item = 0; item < m_items.size(); ++item) {
            const Place& slot = m_items[item].slot;
            const std::uint64_t hash = HashOf(slot.folder, slot.name);
            m_buckets[FindBucket(slot.folder, slot.name, hash)] = {TagOf(hash), item};
        }
    }

private:
    static constexpr std::size_t fewestBuckets = 16;

    /// The upper half of a place's hash, and its index in the list of items.
    struct Bucket
    {
        std::uint32_t tag = 0;
        PlanIndex item = none;
    };

    struct Item
    {
        Place slot;
        Value value;
    };

    static std::uint64_t HashOf(PlanIndex folder, std::u16string_view key) noexcept
    {
        return (std::hash<std::u16string_view>()(key) ^ folder) * std::uint64_t{0x9E3779B97F4A7C15};
    }

    static std::uint32_t TagOf(std::uint64_t hash) noexcept { return static_cast<std::uint32_t>(hash >> 32); }

    /// The bucket of `key` in `folder`, or the free one where it belongs.
    [[nodiscard]] std::size_t FindBucket(PlanIndex folder, std::u16string_view key, std::uint64_t hash) const
    {
        const auto isAt = [folder, key](const Place& slot) {
            return slot.folder == folder && slot.name.View() == key;
        };
        const std::size_t mask = m_buckets.size() - 1;
        std::size_t at = (hash >> 20) & mask;
        while (m_buckets[at].item != none &&
               (m_buckets[at].tag != TagOf(hash) || !isAt(m_items[m_buckets[at].item].slot)))
            at = (at + 1) & mask;
        return at;
    }

    std::vector<Bucket> m_buckets;
    std::vector<Item> m_items;
};

} // namespace VyrHost::Model
