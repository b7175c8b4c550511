// Opens each folder once, as long as there are few.
#include <VyrHost/batch/Looker.h>

namespace VyrHost::Batch {

VyrPlatform::FileState Looker::Look(const CString& folder, std::u16string_view name)
{
    const Opened& opened = Open(folder);
    if (opened.folder)
        return opened.folder->Look(name);
    VyrPlatform::FileState missing;
    missing.error = opened.error;
    return missing;
}

const Looker::Opened& Looker::Open(const CString& path)
{
    constexpr std::size_t mostOpen = 16;
    const auto known = m_opened.find(path);
    if (known != m_opened.end())
        return known->second;
    if (m_opened.size() == mostOpen)
        m_opened.clear();
    Opened& opened = m_opened[path];
    opened.folder = m_files.OpenFolder(path, opened.error);
    return opened;
}

} // namespace VyrHost::Batch
