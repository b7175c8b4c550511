// Open addressing with linear probing.
#include <VyrHost/plan/SlotTable.h>

#include <bit>
#include <functional>

namespace VyrHost {

namespace {

constexpr std::size_t fewestBuckets = 16;

std::uint64_t HashOf(const Slot& slot) noexcept
{
    return (std::hash<CString>()(slot.key) ^ slot.folder) * std::uint64_t{0x9E3779B97F4A7C15};
}

std::uint32_t TagOf(std::uint64_t hash) noexcept
{
    return static_cast<std::uint32_t>(hash >> 32);
}

} // namespace

SlotTable::SlotTable() : m_buckets(fewestBuckets) {}

PlanIndex SlotTable::Find(const Slot& slot) const
{
    const Bucket& bucket = m_buckets[FindBucket(slot, HashOf(slot))];
    return bucket.item == none ? none : m_items[bucket.item].index;
}

bool SlotTable::Put(const Slot& slot, PlanIndex index)
{
    // At most half full, so that a free bucket is near.
    if (m_items.size() * 2 >= m_buckets.size())
        Reserve(m_buckets.size());
    const std::uint64_t hash = HashOf(slot);
    Bucket& bucket = m_buckets[FindBucket(slot, hash)];
    if (bucket.item != none)
        return false;
    bucket = {TagOf(hash), static_cast<PlanIndex>(m_items.size())};
    m_items.push_back({slot.key, slot.folder, index});
    return true;
}

void SlotTable::Reserve(std::size_t count)
{
    const std::size_t size = std::bit_ceil(count * 2 + 1);
    if (size <= m_buckets.size())
        return;
    m_buckets.assign(size, {});
    m_items.reserve(count);
    for (PlanIndex item = 0; item < m_items.size(); ++item) {
        const Slot slot{m_items[item].folder, m_items[item].key};
        const std::uint64_t hash = HashOf(slot);
        m_buckets[FindBucket(slot, hash)] = {TagOf(hash), item};
    }
}

/// The bucket of `slot`, or the free one where it belongs.
std::size_t SlotTable::FindBucket(const Slot& slot, std::uint64_t hash) const
{
    const std::size_t mask = m_buckets.size() - 1;
    std::size_t at = (hash >> 20) & mask;
    while (m_buckets[at].item != none && (m_buckets[at].tag != TagOf(hash) || !IsAt(m_items[m_buckets[at].item], slot)))
        at = (at + 1) & mask;
    return at;
}

} // namespace VyrHost
