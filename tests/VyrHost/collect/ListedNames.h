#pragma once

#include <VyrHost/model/FolderSet.h>

#include <string>
#include <vector>

namespace VyrTests {

/// The names in `folder`, in the order of its records.
inline std::vector<std::u16string> NamesIn(const VyrHost::Model::Folder& folder)
{
    std::vector<std::u16string> names;
    for (const VyrHost::Model::NameRecord& record : folder.names.Records())
        names.emplace_back(record.name.View());
    return names;
}

} // namespace VyrTests
