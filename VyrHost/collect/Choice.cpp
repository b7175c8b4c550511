// Matches names with wildcards in time bounded by the product of both lengths.
#include <VyrHost/collect/Choice.h>

#include <VyrHost/text/Errors.h>
#include <VyrHost/text/NormalForm.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/ImageUtils.h>

#include <algorithm>
#include <utility>

namespace VyrHost::Collect {

bool IsPattern(std::u16string_view pattern)
{
    return pattern.find_first_of(u"*?") != std::u16string_view::npos;
}

bool MatchesPattern(std::u16string_view pattern, std::u16string_view name)
{
    constexpr auto none = std::u16string_view::npos;
    std::size_t atPattern = 0;
    std::size_t atName = 0;
    // Where to continue when the text after the last "*" does not match: that "*" then matches one more code unit.
    std::size_t behindStar = none;
    std::size_t retry = 0;
    while (atName < name.size()) {
        if (atPattern < pattern.size() && pattern[atPattern] == u'*') {
            behindStar = ++atPattern;
            retry = atName;
        } else if (atPattern < pattern.size() && (pattern[atPattern] == u'?' || pattern[atPattern] == name[atName])) {
            ++atPattern;
            ++atName;
        } else if (behindStar != none) {
            atPattern = behindStar;
            atName = ++retry;
        } else {
            return false;
        }
    }
    return pattern.find_first_not_of(u'*', atPattern) == none;
}

using VyrLibraryFuncs::FilterFuncs;
using VyrLibraryFuncs::SearchFuncs;
using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::ImageUtils;

namespace {

constexpr std::pair<std::u16string_view, FilterFuncs::Condition> textConditions[] = {
    {u"contains:", FilterFuncs::Condition::Contains},
    {u"begins:", FilterFuncs::Condition::BeginsWith},
    {u"ends:", FilterFuncs::Condition::EndsWith},
    {u"equals:", FilterFuncs::Condition::Equals},
};

void SetLibrary(ChoiceDate target, const DateRange& dates)
{
    SearchFuncs::SetDateTimeTarget(static_cast<int>(target));
    SearchFuncs::SetDateTimeRange(static_cast<int>(dates.kind));
    SearchFuncs::SetDateTimeFromDateTime(dates.from);
    SearchFuncs::SetDateTimeToDateTime(dates.to);
}

void SetLibrary(const SizeSpan& sizes)
{
    SearchFuncs::SetSizeRange(static_cast<int>(sizes.kind));
    SearchFuncs::SetSizeFromSize(sizes.from);
    SearchFuncs::SetSizeToSize(sizes.to);
}

/// Invalid where the entry has no such date.
COleDateTime DateOf(const CString& path, ChoiceDate target)
{
    switch (target) {
    case ChoiceDate::Modified:
        return DateTimeUtils::GetDateModified(path);
    case ChoiceDate::Created:
        return DateTimeUtils::GetDateCreated(path);
    case ChoiceDate::PictureTaken:
        break;
    }
    return DateTimeUtils::GetExifDateTime(ImageUtils::GetPropertyTagExifDTOrig(path));
}

} // namespace

NameConditions::NameConditions(const std::vector<CString>& texts, bool matchCase, const char* option)
    : m_matchCase(matchCase)
{
    for (const CString& text : texts)
        Add(text, option);
}

void NameConditions::Add(const CString& text, const char* option)
{
    for (const auto& [prefix, condition] : textConditions) {
        if (!text.View().starts_with(prefix))
            continue;
        FilterFuncs::FILTERITEM item;
        item.enabled = 1;
        item.text = Text::Composed(text.View().substr(prefix.size()));
        if (item.text.IsEmpty())
            Text::RefuseValue(option, text, "a text is expected after the colon");
        item.condition = static_cast<int>(condition);
        item.matchCase = m_matchCase ? 1 : 0;
        m_texts.push_back(item);
        return;
    }
    if (text.IsEmpty())
        Text::RefuseValue(option, text, "a name or a pattern is expected");
    m_patterns.push_back(Comparable(text));
}

CString NameConditions::Comparable(const CString& text) const
{
    CString composed = Text::Composed(text);
    return m_matchCase ? composed : composed.MakeLower();
}

bool NameConditions::MeetsAny(const CString& name) const
{
    if (!m_patterns.empty()) {
        const CString comparable = Comparable(name);
        if (std::any_of(m_patterns.begin(), m_patterns.end(),
                        [&comparable](const CString& pattern) { return MatchesPattern(pattern, comparable); }))
            return true;
    }
    return !m_texts.empty() &&
           FilterFuncs::IsMatchName(Text::Composed(name), static_cast<int>(FilterFuncs::Mode::Include), m_texts) != 0;
}

Choice::Choice(const ChoiceTexts& texts)
    : m_include(texts.include, texts.matchCase, "--include"), m_exclude(texts.exclude, texts.matchCase, "--exclude"),
      m_dateTarget(texts.dateTarget), m_hasSizes(texts.sizes.has_value())
{
    if (m_dateTarget) {
        constexpr const char* options[] = {"--modified", "--created", "--taken"};
        SetLibrary(*m_dateTarget, ParseDateRange(texts.dates, options[static_cast<int>(*m_dateTarget)]));
    }
    if (texts.sizes)
        SetLibrary(ParseSizeSpan(*texts.sizes, "--size"));
    SearchFuncs::SetDateTimeSearch(m_dateTarget ? 1 : 0);
    SearchFuncs::SetSizeSearch(m_hasSizes ? 1 : 0);
}

bool Choice::Excludes(std::u16string_view name) const
{
    return !m_exclude.IsEmpty() && !name.empty() && m_exclude.MeetsAny(name);
}

bool Choice::Keeps(std::u16string_view folder, std::u16string_view name) const
{
    if (Excludes(name) || (!m_include.IsEmpty() && !m_include.MeetsAny(name)))
        return false;
    return (!m_dateTarget && !m_hasSizes) || MeetsCriteria(CString::Join({folder, name}));
}

bool Choice::MeetsCriteria(const CString& path) const
{
    SearchFuncs::ITEM item;
    if (m_hasSizes) {
        const VyrPlatform::FileSystem::Entry state = VyrPlatform::FileSystem::Query(path);
        item.size = state.kind == VyrPlatform::FileSystem::Kind::File ? state.size : -1;
    }
    if (m_dateTarget)
        item.dateTime = DateOf(path, *m_dateTarget);
    return SearchFuncs::IsMatch(item) != 0;
}

} // namespace VyrHost::Collect
