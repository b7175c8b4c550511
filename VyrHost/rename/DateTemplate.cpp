// Makes rules of a date format.
#include <VyrHost/rename/RuleTexts.h>

#include <VyrHost/rename/LiteralText.h>
#include <VyrHost/rename/TemplateTokens.h>
#include <VyrHost/rename/Tokens.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/text/UsageError.h>

#include <string>
#include <utility>

namespace VyrHost::Rename {

namespace {

using VyrLibraryFuncs::NameFuncs;

[[noreturn]] void Refuse(std::u16string_view text, const std::string& reason)
{
    Text::RefuseValue("--date", text, reason);
}

/// Where the date goes, by the numbers of ITEM::dateTimePosition.
enum class DatePosition : int
{
    Alone,
    BeforeName,
    AfterName
};

void Append(Rules& rules, DatePosition position, std::u16string_view format,
            const std::vector<Model::DateSource>& sources)
{
    if (NameFuncs::GetRenameToSampleFormated(format).IsEmpty())
        Refuse(format, "the format gives no text");
    NameFuncs::ITEM item = NewItem(RenameKind::DateTime);
    item.dateTimePosition = static_cast<int>(position);
    item.dateTimeFormat = format;
    rules.push_back(std::make_unique<DateRule>(std::move(item), sources));
}

/// Refuses folders that have no name of their own whatever the date is.
void RequireFolderNames(std::u16string_view format)
{
    std::u16string_view rest = format;
    for (std::size_t end = rest.find(Token::Folder); end != std::u16string_view::npos; end = rest.find(Token::Folder)) {
        const CString folder = NameFuncs::GetRenameToSampleFormated(rest.substr(0, end));
        if (folder.IsEmpty() || folder == u"." || folder == u"..")
            Refuse(format, "<Folder> ends the name of a folder, which cannot be '" + Text::SafeText(folder) + "'");
        rest.remove_prefix(end + Token::Folder.size());
    }
}

} // namespace

Rules DateRules(const CString& text, const std::vector<Model::DateSource>& sources)
{
    constexpr auto None = std::u16string_view::npos;
    const std::u16string_view all = text;
    RequireNameText(all, "--date");
    RequireDateFormat(all);
    if (all.ends_with(Token::Folder))
        Refuse(all, "no name follows <Folder>; add <Name> to keep the old one");
    RequireFolderNames(all);
    const std::size_t name = all.find(Token::Name);
    Rules rules;
    if (name == None) {
        Append(rules, DatePosition::Alone, all, sources);
        return rules;
    }
    const std::u16string_view before = all.substr(0, name);
    const std::u16string_view after = all.substr(name + Token::Name.size());
    if (after.find(Token::Name) != None)
        Refuse(all, "<Name> stands in it twice");
    if (after.find(Token::Folder) != None)
        Refuse(all, "<Name> must come after the last <Folder>");
    if (before.empty() && after.empty())
        Refuse(all, "it has no date");
    if (!before.empty())
        Append(rules, DatePosition::BeforeName, before, sources);
    if (!after.empty())
        Append(rules, DatePosition::AfterName, after, sources);
    return rules;
}

} // namespace VyrHost::Rename
