// A hash table with open addressing over the names of one folder.
#include <VyrHost/model/NameTable.h>

#include <algorithm>
#include <bit>
#include <functional>
#include <utility>

namespace VyrHost::Model {

using VyrHostPlatform::NameFolding;

namespace {

constexpr std::size_t firstSlots = 16;
/// How far a loop over names prefetches their slots. Without it the preview of a million names takes a twentieth more
/// time.
constexpr std::size_t ahead = 8;

std::uint32_t HashOf(std::u16string_view name)
{
    const std::size_t hash = std::hash<std::u16string_view>()(name);
    return static_cast<std::uint32_t>(hash ^ (hash >> 32));
}

} // namespace

NameTable::Key NameTable::KeyOf(std::u16string_view name) const
{
    if (m_folding == NameFolding::None)
        return {name, {}, HashOf(name)};
    const CString folded = VyrHostPlatform::FoldName(name, m_folding);
    return {name, folded, HashOf(folded)};
}

bool NameTable::IsSame(const NameRecord& record, const Key& key) const
{
    return record.name == key.name ||
           (m_folding != NameFolding::None && VyrHostPlatform::FoldName(record.name.View(), m_folding) == key.folded);
}

std::size_t NameTable::SlotOf(const Key& key) const
{
    const std::size_t mask = m_slots.size() - 1;
    std::size_t slot = key.hash & mask;
    while (m_slots[slot].number != 0 &&
           (m_slots[slot].hash != key.hash || !IsSame(m_records[m_slots[slot].number - 1], key)))
        slot = (slot + 1) & mask;
    return slot;
}

const NameRecord* NameTable::Find(std::u16string_view name) const
{
    if (m_records.empty())
        return nullptr;
    MakeIndexFor(m_records.size());
    const std::uint32_t number = m_slots[SlotOf(KeyOf(name))].number;
    return number ? &m_records[number - 1] : nullptr;
}

NameRecord* NameTable::Find(std::u16string_view name)
{
    return const_cast<NameRecord*>(static_cast<const NameTable&>(*this).Find(name));
}

NameRecord& NameTable::Add(InternedName name)
{
    MakeIndexFor(m_records.size() + 1);
    const Key key = KeyOf(name);
    Slot& slot = m_slots[SlotOf(key)];
    if (slot.number == 0) {
        m_records.push_back({.name = name});
        slot = {key.hash, static_cast<std::uint32_t>(m_records.size())};
    }
    return m_records[slot.number - 1];
}

void NameTable::Add(const std::vector<ListedName>& listed)
{
    Reserve(m_records.size() + listed.size());
    for (std::size_t index = 0; index < listed.size(); ++index) {
        // Folding a name twice would cost more than it saves.
        if (m_folding == NameFolding::None && index + ahead < listed.size())
            __builtin_prefetch(&m_slots[HashOf(listed[index + ahead].name) & (m_slots.size() - 1)]);
        NameRecord& record = Add(listed[index].name);
        record.kind = listed[index].kind;
        record.isLink = listed[index].isLink;
    }
}

void NameTable::Reserve(std::size_t count)
{
    m_records.reserve(count);
    MakeIndexFor(count);
}

void NameTable::ForgetIndex()
{
    // "= {}" would keep the memory.
    m_slots = std::vector<Slot>();
}

/// Makes the index of the records, with room for `count`.
void NameTable::MakeIndexFor(std::size_t count) const
{
    // A third of the slots stays free to keep runs short.
    const std::size_t needed = count + count / 2;
    if (needed <= m_slots.size())
        return;
    std::vector<Slot> slots(std::max(firstSlots, std::bit_ceil(needed)));
    if (m_slots.empty())
        for (const NameRecord& record : m_records)
            Put(slots, {KeyOf(record.name).hash, static_cast<std::uint32_t>(NumberOf(record) + 1)});
    for (const Slot& slot : m_slots)
        if (slot.number != 0)
            Put(slots, slot);
    m_slots = std::move(slots);
}

void NameTable::Put(std::vector<Slot>& slots, const Slot& slot)
{
    const std::size_t mask = slots.size() - 1;
    std::size_t at = slot.hash & mask;
    while (slots[at].number != 0)
        at = (at + 1) & mask;
    slots[at] = slot;
}

} // namespace VyrHost::Model
