/// @file
/// The natural order of names: 2 before 10, a and A together.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace VyrHost::Model {

/// Whether `left` comes before `right`: runs of ASCII digits by their value, ASCII letters ignoring case, everything
/// else by code unit. Names that are equal in this order are ordered by their code units.
[[nodiscard]] bool IsNaturallyLess(std::u16string_view left, std::u16string_view right);

/// Sort keys for names: names whose keys differ are in the order of their keys.
class NaturalKeys
{
public:
    /// Call it for each name before the first key is computed.
    void Take(std::u16string_view name);
    [[nodiscard]] std::uint64_t KeyOf(std::u16string_view name) const;

private:
    std::u16string_view m_first;
    bool m_hasFirst = false;
    /// The length of the common beginning of all names, without the digits at its end.
    std::size_t m_common = 0;
};

/// Sorts `items` by their member `name` in natural order. Faster than a sort by IsNaturallyLess if names begin alike or
/// are far apart in memory.
template <class Item>
void SortNaturally(std::vector<Item>& items)
{
    struct Keyed
    {
        std::uint64_t key;
        Item item;
    };
    NaturalKeys keys;
    for (const Item& item : items)
        keys.Take(item.name);
    std::vector<Keyed> keyed;
    keyed.reserve(items.size());
    for (const Item& item : items)
        keyed.push_back({keys.KeyOf(item.name), item});
    std::sort(keyed.begin(), keyed.end(), [](const Keyed& left, const Keyed& right) {
        return left.key != right.key ? left.key < right.key : IsNaturallyLess(left.item.name, right.item.name);
    });
    std::transform(keyed.begin(), keyed.end(), items.begin(), [](const Keyed& one) { return one.item; });
}

} // namespace VyrHost::Model
