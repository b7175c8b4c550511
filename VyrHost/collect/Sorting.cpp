#include <VyrHost/collect/Sorting.h>

#include <VyrHost/model/NaturalOrder.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/ImageUtils.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/time/Epochs.h>

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>
#include <vector>

namespace VyrHost::Collect {

namespace {

using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::ImageUtils;

/// A sort key; nothing for an entry without one.
using Key = std::optional<std::int64_t>;

Key KeyOf(const CString& path, SortKey key)
{
    if (key == SortKey::Taken) {
        const COleDateTime taken = DateTimeUtils::GetExifDateTime(ImageUtils::GetPropertyTagExifDTOrig(path));
        return taken.GetStatus() == COleDateTime::valid ? Key(std::llround(taken * VyrPlatform::secondsPerDay)) : Key();
    }
    const VyrPlatform::FileSystem::Entry entry = VyrPlatform::FileSystem::Query(path);
    if (key == SortKey::Modified)
        return entry.modified;
    return entry.kind != VyrPlatform::FileSystem::Kind::Missing ? Key(entry.size) : Key();
}

struct Keyed
{
    Key key;
    Model::Entry entry;
};

bool IsLessByName(const Model::Entry& left, const Model::Entry& right)
{
    return Model::IsNaturallyLess(left.name, right.name);
}

void SortByName(std::vector<Model::Entry>& entries, bool isDescending)
{
    if (isDescending)
        std::stable_sort(entries.begin(), entries.end(),
                         [](const Model::Entry& left, const Model::Entry& right) { return IsLessByName(right, left); });
    else
        std::stable_sort(entries.begin(), entries.end(), IsLessByName);
}

void SortByKey(Model::EntryList& list, SortSettings settings)
{
    std::vector<Keyed> keyed;
    keyed.reserve(list.entries.size());
    for (const Model::Entry& entry : list.entries)
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

void Sort(Model::EntryList& list, SortSettings settings)
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

} // namespace VyrHost::Collect
