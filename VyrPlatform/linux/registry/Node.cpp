#include "Node.h"

#include <algorithm>
#include <unicode/uchar.h>
#include <utility>
#include <vector>

namespace VyrPlatform::Registry {

namespace {

constexpr bool IsAscii(char16_t unit) noexcept
{
    return unit < 0x80;
}

char16_t Fold(char16_t unit) noexcept
{
    if (IsAscii(unit))
        return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - (u'a' - u'A')) : unit;
    // No letter beyond ASCII becomes an ASCII letter: the long s and the dotless i are not mapped.
    const auto upper = static_cast<char32_t>(u_toupper(unit));
    return upper > 0xFFFF || upper < 0x80 ? unit : static_cast<char16_t>(upper);
}

} // namespace

CString FoldName(std::u16string_view name)
{
    std::u16string folded(name);
    std::transform(folded.begin(), folded.end(), folded.begin(), Fold);
    return CString(std::u16string_view(folded));
}

std::u16string_view TakeName(std::u16string_view& path) noexcept
{
    path.remove_prefix(std::min(path.find_first_not_of(u'\\'), path.size()));
    const std::u16string_view name = path.substr(0, path.find(u'\\'));
    path.remove_prefix(name.size());
    return name;
}

std::shared_ptr<Node> FindNode(std::shared_ptr<Node> start, std::u16string_view path)
{
    // More links than any registry has on one path; links may form a cycle.
    constexpr int mostLinks = 32;
    int links = 0;
    std::shared_ptr<Node> node = std::move(start);
    // The paths still to be followed after the current one: the rest after each link.
    std::vector<std::u16string_view> rests;
    std::vector<std::shared_ptr<Node>> linkNodes;
    while (node) {
        std::u16string_view name = TakeName(path);
        while (name.empty() && !rests.empty()) {
            path = rests.back();
            rests.pop_back();
            name = TakeName(path);
        }
        if (name.empty())
            return node;
        const Subkeys& subkeys = node->GetSubkeys();
        const auto found = subkeys.find(FoldName(name));
        node = found == subkeys.end() ? nullptr : found->second.node;
        const Link* const link = node ? node->GetLink() : nullptr;
        if (!link)
            continue;
        if (++links > mostLinks)
            return nullptr;
        // The text of the link lives as long as the link.
        linkNodes.push_back(node);
        rests.push_back(path);
        path = link->path;
        node = link->start.lock();
    }
    return nullptr;
}

} // namespace VyrPlatform::Registry
