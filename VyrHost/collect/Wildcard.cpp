// Matches names against wildcards, in time bounded by the product of both lengths.
#include <VyrHost/collect/Wildcard.h>

namespace VyrHost::Collect {

bool IsPattern(std::u16string_view pattern)
{
    return pattern.find_first_of(u"*?") != std::u16string_view::npos;
}

bool MatchesPattern(std::u16string_view pattern, std::u16string_view name)
{
    constexpr auto None = std::u16string_view::npos;
    std::size_t atPattern = 0;
    std::size_t atName = 0;
    // Where to go on when what follows the last "*" does not fit: that "*" takes one unit more.
    std::size_t behindStar = None;
    std::size_t retry = 0;
    while (atName < name.size()) {
        if (atPattern < pattern.size() && pattern[atPattern] == u'*') {
            behindStar = ++atPattern;
            retry = atName;
        } else if (atPattern < pattern.size() && (pattern[atPattern] == u'?' || pattern[atPattern] == name[atName])) {
            ++atPattern;
            ++atName;
        } else if (behindStar != None) {
            atPattern = behindStar;
            atName = ++retry;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of(u'*', atPattern) == None;
}

} // namespace VyrHost::Collect
