// Cuts paths for the planner.
#include <VyrHost/RenameList.h>

#include <algorithm>
#include <iterator>

namespace VyrHost {

PlannedPath::PlannedPath(const CString& path)
{
    // What every system takes for one, and its own: a question for each unit would cost more than all the rest.
    const char16_t separators[] = {u'/', VyrPlatform::FileSystem::Separator()};
    const std::u16string_view text = path;
    const auto separator = std::find_first_of(text.rbegin(), text.rend(), std::begin(separators), std::end(separators));
    const auto folderLength = static_cast<std::size_t>(text.rend() - separator);
    folder = text.substr(0, folderLength);
    name = text.substr(folderLength);
}

} // namespace VyrHost
