// Sorts entries by what the user asks for.
#include <VyrHost/entries/Sorting.h>

#include <VyrHost/entries/NaturalOrder.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/ImageUtils.h>
#include <VyrPlatform/files/FileSystem.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

namespace VyrHost {

namespace {

using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::ImageUtils;

/// A key; nothing for an entry that has none.
using Key = std::optional<std::int64_t>;

Key KeyOf(const CString& path, SortKey key)
{
    if (key == SortKey::Taken) {
        const COleDateTime taken = DateTimeUtils::GetExifDateTime(ImageUtils::GetPropertyTagExifDTOrig(path));
        constexpr double SecondsOfDay = 86400;
        return taken.GetStatus() == COleDateTime::valid ? Key(std::llround(taken * SecondsOfDay)) : Key();
    }
    const VyrPlatform::FileSystem::Entry entry = VyrPlatform::FileSystem::Query(path);
    if (entry.kind == VyrPlatform::FileSystem::Kind::Missing)
        return {};
    return key == SortKey::Size ? entry.size : entry.modified;
}

struct Keyed
{
    Key key;
    Entry entry;
};

bool IsLessByName(const Entry& left, const Entry& right)
{
    return IsNaturallyLess(left.name, right.name);
}

void SortByName(std::vector<Entry>& entries, bool isDescending)
{
    if (isDescending)
        std::stable_sort(entries.begin(), entries.end(),
                         [](const Entry& left, const Entry& right) { return IsLessByName(right, left); });
    else
        std::stable_sort(entries.begin(), entries.end(), IsLessByName);
}

void SortByKey(EntryList& list, SortSettings settings)
{
    std::vector<Keyed> keyed;
    keyed.reserve(list.entries.size());
    for (const Entry& entry : list.entries)
        keyed.push_back({KeyOf(list.PathOf(entry), settings.key), entry});
    std::stable_sort(keyed.begin(), keyed.end(), [&settings](const Keyed& left, const Keyed& right) {
        if (left.key == right.key)
            return IsLessByName(left.entry, right.entry);
        if (!left.key || !right.key)
            return left.key.has_value();
        return settings.isDescending ? *right.key < *left.key : *left.key < *right.key;
    });
    std::transform(keyed.begin(), keyed.end(), list.entries.begin(), [](const Keyed& one) { return one.entry; });
}

} // namespace

void Sort(EntryList& list, SortSettings settings)
{
    if (settings.key == SortKey::Name)
        SortByName(list.entries, settings.isDescending);
    else if (settings.key != SortKey::Given)
        SortByKey(list, settings);
    else if (settings.isDescending)
        std::reverse(list.entries.begin(), list.entries.end());
    else
        return;
    list.NumberOwners();
}

} // namespace VyrHost
