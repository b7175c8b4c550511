/// @file
/// The order in which people expect names: 2 before 10, a and A together.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace VyrHost::Model {

/// Whether `left` comes before `right`: runs of ASCII digits by their value, ASCII letters without regard to case, all
/// else by code unit. Names that are alike so far are ordered by their code units.
[[nodiscard]] bool IsNaturallyLess(std::u16string_view left, std::u16string_view right);

/// Numbers for names: where those of two names differ, the names are in their order.
class NaturalKeys
{
public:
    /// To be called for each of the names, before any is asked for its key.
    void Take(std::u16string_view name);
    [[nodiscard]] std::uint64_t KeyOf(std::u16string_view name) const;

private:
    std::u16string_view m_first;
    bool m_hasFirst = false;
    /// How much all names begin with in common, less the digits at its end.
    std::size_t m_common = 0;
};

/// Sorts `items` by their member `name` in natural order. Quicker than a sort by IsNaturallyLess where names begin
/// alike, or stand far from each other in memory.
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
