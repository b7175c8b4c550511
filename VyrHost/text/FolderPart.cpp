// Finds the last separator of a path.
#include <VyrHost/text/FolderPart.h>

#include <VyrPlatform/files/FileSystem.h>

#include <algorithm>

namespace VyrHost::Text {

std::u16string_view FolderPart(std::u16string_view path)
{
    const auto behind = std::find_if(path.rbegin(), path.rend(), VyrPlatform::FileSystem::IsSeparator);
    return path.substr(0, static_cast<std::size_t>(path.rend() - behind));
}

} // namespace VyrHost::Text
