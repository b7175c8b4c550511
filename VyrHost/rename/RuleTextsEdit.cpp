// Makes rules that edit the present name: insert, delete, keep, case, replace, extension.
#include <VyrHost/rename/RuleTexts.h>

#include <VyrHost/rename/Rule.h>
#include <VyrHost/rename/TemplateTokens.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/NormalForm.h>

#include <string>
#include <utility>

namespace VyrHost::Rename {

namespace {

using VyrLibraryFuncs::NameFuncs;

using Edit = NameFuncs::AddDeleteType;

/// Finds the text in any normal form of the name.
class ReplaceRule final : public EngineRule
{
public:
    ReplaceRule(NameFuncs::ITEM settings, bool ignoresCase)
        : EngineRule(std::move(settings)), m_ignoresCase(ignoresCase)
    {
        m_item.findText = Text::Composed(m_item.findText);
    }

    Reason Apply(Subject& subject) override
    {
        if (!m_ignoresCase && Text::IsComposed(subject.name))
            return EngineRule::Apply(subject);
        const auto replace = m_ignoresCase ? Text::ReplaceComposedNoCase : Text::ReplaceComposed;
        subject.name = replace(subject.name, m_item.findText, m_item.replaceText);
        return Reason::None;
    }

private:
    bool m_ignoresCase;
};

/// Inserts or deletes at a position. Reports a name that is too short, which the engine would leave unchanged.
class PlacedRule final : public EngineRule
{
public:
    explicit PlacedRule(NameFuncs::ITEM settings) : EngineRule(std::move(settings)) {}

    Reason Apply(Subject& subject) override
    {
        const int length = subject.name.GetLength();
        if (length >= m_item.position && length - m_item.position >= m_item.deleteCount)
            return EngineRule::Apply(subject);
        subject.cause.Format(length == 1 ? u"the name has %d character" : u"the name has %d characters", length);
        return Reason::BeyondName;
    }
};

Rules DeleteRule(Edit type, int position, int count)
{
    NameFuncs::ITEM item = NewItem(NameFuncs::RenameType::AddDelete);
    item.addDeleteType = static_cast<int>(type);
    item.position = position;
    item.deleteCount = count;
    return type == Edit::KeepFirst || type == Edit::KeepLast ? OneRule<EngineRule>(std::move(item))
                                                             : OneRule<PlacedRule>(std::move(item));
}

Rules InsertRule(Edit type, int position, const CString& text, const char* option)
{
    RequireNameText(text, option);
    if (text.IsEmpty())
        throw Text::UsageError(std::string(option) + ": the text to insert is empty");
    return OneRule<PlacedRule>(InsertItem(type, position, text));
}

/// A position in a name, counted from its start or, with a minus sign, from its end; and the text after the colon.
struct PlacedText
{
    bool fromEnd;
    int position;
    CString text;
};

PlacedText CutPlace(const CString& text, const char* option)
{
    const int colon = text.Find(u":");
    if (colon < 0)
        Text::RefuseValue(option, text, "a place and a colon are expected at the start");
    const bool fromEnd = text[0] == u'-';
    const CString place = fromEnd ? text.Mid(1, colon - 1) : text.Left(colon);
    return {fromEnd, ParseNumber(place, 0, option), text.Mid(colon + 1)};
}

int ParseCount(const CString& text, const char* option)
{
    return ParseNumber(text, 1, option);
}

Rules CaseRule(NameFuncs::ConvertType type)
{
    NameFuncs::ITEM item = NewItem(NameFuncs::RenameType::Convert);
    item.convertType = static_cast<int>(type);
    return OneRule<EngineRule>(std::move(item));
}

Rules ExtensionRule(int type, const CString& newExtension = {})
{
    NameFuncs::ITEM item = NewItem(NameFuncs::RenameType::Extension);
    item.extensionType = type;
    item.newExtension = newExtension;
    return OneRule<EngineRule>(std::move(item));
}

Rules ExtensionRule(NameFuncs::ExtensionType type, const CString& newExtension = {})
{
    return ExtensionRule(static_cast<int>(type), newExtension);
}

} // namespace

Rules InsertRules(const CString& text)
{
    const PlacedText placed = CutPlace(text, "--insert");
    return InsertRule(placed.fromEnd ? Edit::InsertFromEnd : Edit::InsertFromStart, placed.position, placed.text,
                      "--insert");
}

Rules PrefixRules(const CString& text)
{
    return InsertRule(Edit::InsertFromStart, 0, text, "--prefix");
}

Rules SuffixRules(const CString& text)
{
    return InsertRule(Edit::InsertFromEnd, 0, text, "--suffix");
}

Rules DeleteRules(const CString& text)
{
    const PlacedText placed = CutPlace(text, "--delete");
    return DeleteRule(placed.fromEnd ? Edit::DeleteFromEnd : Edit::DeleteFromStart, placed.position,
                      ParseCount(placed.text, "--delete"));
}

Rules DeleteFirstRules(const CString& text)
{
    return DeleteRule(Edit::DeleteFromStart, 0, ParseCount(text, "--delete-first"));
}

Rules DeleteLastRules(const CString& text)
{
    return DeleteRule(Edit::DeleteFromEnd, 0, ParseCount(text, "--delete-last"));
}

Rules KeepFirstRules(const CString& text)
{
    return DeleteRule(Edit::KeepFirst, ParseNumber(text, 0, "--keep-first"), 0);
}

Rules KeepLastRules(const CString& text)
{
    return DeleteRule(Edit::KeepLast, ParseNumber(text, 0, "--keep-last"), 0);
}

Rules CaseRules(const CString& text)
{
    if (text == u"first")
        return CaseRule(NameFuncs::ConvertType::FirstUpper);
    if (text == u"upper")
        return CaseRule(NameFuncs::ConvertType::Upper);
    if (text == u"lower")
        return CaseRule(NameFuncs::ConvertType::Lower);
    if (text == u"title")
        return TitleCaseRules(TitleStyle::EveryWord);
    if (text == u"title-en")
        return TitleCaseRules(TitleStyle::English);
    if (text == u"sentence")
        return SentenceCaseRules();
    Text::RefuseValue("--case", text, "first, upper, lower, title, title-en or sentence is expected");
}

Rules ReplaceRules(const CString& find, const CString& replacement, bool ignoresCase)
{
    RequireNameText(replacement, "--replace");
    if (find.IsEmpty())
        throw Text::UsageError("--replace: FIND is empty");
    NameFuncs::ITEM item = NewItem(NameFuncs::RenameType::Replace);
    item.findText = find;
    item.replaceText = replacement;
    return OneRule<ReplaceRule>(std::move(item), ignoresCase);
}

Rules ExtensionRules(const CString& text)
{
    RequireNameText(text, "--extension");
    if (text == u"auto")
        return ContentExtensionRules();
    const CString extension = text.Find(u".") == 0 ? text.Mid(1) : text;
    if (extension.IsEmpty())
        throw Text::UsageError("--extension: NEW is empty; --drop-extension removes the extension");
    return ExtensionRule(NameFuncs::ExtensionType::Replace, extension);
}

Rules ExtensionCaseRules(const CString& text)
{
    if (text == u"upper")
        return ExtensionRule(NameFuncs::ExtensionType::Upper);
    if (text == u"lower")
        return ExtensionRule(NameFuncs::ExtensionType::Lower);
    Text::RefuseValue("--extension-case", text, "upper or lower is expected");
}

Rules DropExtensionRules()
{
    // The engine removes the extension for any number that is not a type.
    constexpr int noExtension = 3;
    return ExtensionRule(noExtension);
}

} // namespace VyrHost::Rename
