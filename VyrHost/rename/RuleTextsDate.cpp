// Makes rules from a date format.
#include <VyrHost/rename/RuleTexts.h>

#include <VyrHost/rename/TemplateTokens.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/SafeText.h>

#include <string>

namespace VyrHost::Rename {

namespace {

using VyrLibraryFuncs::NameFuncs;

[[noreturn]] void Refuse(std::u16string_view text, const std::string& reason)
{
    Text::RefuseValue("--date", text, reason);
}

using Position = DateRule::Position;

void Append(Rules& rules, Position position, std::u16string_view format, const DateSettings& settings)
{
    if (NameFuncs::GetRenameToSampleFormated(format).IsEmpty())
        Refuse(format, "the format gives no text");
    rules.push_back(std::make_unique<DateRule>(format, position, settings));
}

/// Refuses folders whose names would be empty, "." or ".." for every date.
void RequireFolderNames(std::u16string_view format)
{
    std::u16string_view rest = format;
    for (std::size_t end = rest.find(Token::folder); end != std::u16string_view::npos; end = rest.find(Token::folder)) {
        const CString folder = NameFuncs::GetRenameToSampleFormated(rest.substr(0, end));
        if (folder.IsEmpty() || folder == u"." || folder == u"..")
            Refuse(format, "<Folder> ends the name of a folder, which cannot be '" + Text::SafeText(folder) + "'");
        rest.remove_prefix(end + Token::folder.size());
    }
}

} // namespace

Rules DateRules(const CString& text, const DateSettings& settings)
{
    constexpr auto none = std::u16string_view::npos;
    const std::u16string_view all = text;
    RequireNameText(all, "--date");
    RequireDateFormat(all);
    if (all.ends_with(Token::folder))
        Refuse(all, noNameFollows);
    RequireFolderNames(all);
    const std::size_t name = all.find(Token::name);
    Rules rules;
    if (name == none) {
        Append(rules, Position::Alone, all, settings);
        return rules;
    }
    const std::u16string_view before = all.substr(0, name);
    const std::u16string_view after = all.substr(name + Token::name.size());
    if (after.find(Token::name) != none)
        Refuse(all, "it contains <Name> twice");
    if (after.find(Token::folder) != none)
        Refuse(all, "<Name> must come after the last <Folder>");
    if (before.empty() && after.empty())
        Refuse(all, "it has no date");
    if (!before.empty())
        Append(rules, Position::BeforeName, before, settings);
    if (!after.empty())
        Append(rules, Position::AfterName, after, settings);
    return rules;
}

} // namespace VyrHost::Rename
