#include <VyrLibraryFuncs/select/FilterFuncs.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/process/MessageQueue.h>

#include <optional>
#include <string_view>

using VyrLibraryUtils::FileUtils;
using VyrPlatform::MessageQueue::DrainOne;

namespace VyrLibraryFuncs {

namespace {

bool MatchesText(std::u16string_view name, std::u16string_view text, int condition)
{
    switch (static_cast<FilterFuncs::Condition>(condition)) {
    case FilterFuncs::Condition::Equals:
        return name == text;
    case FilterFuncs::Condition::Contains:
        return name.find(text) != std::u16string_view::npos;
    case FilterFuncs::Condition::BeginsWith:
        return name.starts_with(text);
    case FilterFuncs::Condition::EndsWith:
        return name.ends_with(text);
    }
    return false;
}

CString Lowered(CString text)
{
    return text.MakeLower();
}

/// A name that is compared with conditions. It is lower-cased once, for the first condition that needs it.
class ComparedName
{
public:
    explicit ComparedName(const CString& name) : m_name(name) {}

    bool Matches(const FilterFuncs::FILTERITEM& item)
    {
        if (item.matchCase != 0)
            return MatchesText(m_name, item.text, item.condition);
        if (!m_lowered)
            m_lowered = Lowered(m_name);
        return MatchesText(*m_lowered, Lowered(item.text), item.condition);
    }

private:
    const CString& m_name;
    std::optional<CString> m_lowered;
};

bool MatchesAny(const CString& name, const std::vector<FilterFuncs::FILTERITEM>& items)
{
    ComparedName compared(name);
    for (const FilterFuncs::FILTERITEM& item : items) {
        if (DrainOne())
            return false;
        if (item.enabled != 0 && compared.Matches(item))
            return true;
    }
    return false;
}

bool IsKept(const CString& name, int mode, const std::vector<FilterFuncs::FILTERITEM>& items)
{
    const bool isMatch = MatchesAny(name, items);
    switch (static_cast<FilterFuncs::Mode>(mode)) {
    case FilterFuncs::Mode::Include:
        return isMatch;
    case FilterFuncs::Mode::Exclude:
        return !isMatch;
    }
    return true;
}

} // namespace

FilterFuncs::FilterFuncs() = default;
FilterFuncs::~FilterFuncs() = default;
FilterFuncs& FilterFuncs::operator=(const FilterFuncs&) = default;

int FilterFuncs::IsMatch(CString path, int mode, std::vector<FILTERITEM> items)
{
    return !FileUtils::IsFileExist(path) || IsKept(FileUtils::GetSplitFileName(path), mode, items);
}

int FilterFuncs::IsMatchName(CString name, int mode, std::vector<FILTERITEM> items)
{
    return name.IsEmpty() || IsKept(name, mode, items);
}

int FilterFuncs::IsAlreadyAdded(CString text, std::vector<CString> list)
{
    for (const CString& element : list) {
        if (DrainOne())
            return 0;
        if (element.CompareNoCase(text) == 0)
            return 1;
    }
    return 0;
}

int FilterFuncs::IsMatchCondition(CString name, FILTERITEM item)
{
    return ComparedName(name).Matches(item);
}

} // namespace VyrLibraryFuncs
