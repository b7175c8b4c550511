// Makes rules from the template of a sequence number.
#include <VyrHost/rename/RuleTexts.h>

#include <VyrHost/rename/Rule.h>
#include <VyrHost/rename/TemplateTokens.h>
#include <VyrHost/text/Errors.h>

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>
#include <utility>

namespace VyrHost::Rename {

namespace {

using VyrLibraryFuncs::NameFuncs;
using Edit = NameFuncs::AddDeleteType;
using Position = NameFuncs::NumberPosition;

[[noreturn]] void Refuse(std::u16string_view text, const std::string& reason)
{
    Text::RefuseValue("--number", text, reason);
}

/// The engine's sequence numbers wrap after 32 bits; here that is an error.
class SequenceRule final : public EngineRule
{
public:
    using EngineRule::EngineRule;

    Reason Apply(Subject& subject) override
    {
        const std::int64_t number = m_item.startNumber + std::int64_t{m_item.step} * subject.index;
        using Limits = std::numeric_limits<int>;
        if (number < Limits::min() || number > Limits::max())
            throw Text::UsageError("--number would count to " + std::to_string(number) + "; numbers go from " +
                                   std::to_string(Limits::min()) + " to " + std::to_string(Limits::max()));
        return EngineRule::Apply(subject);
    }
};

/// The part of a template that stands for the number.
struct NumberSpot
{
    std::size_t begin;
    std::size_t length;
    /// The minimum width of the number; nothing if the template does not say it.
    std::optional<int> digits;
};

NumberSpot FindNumber(std::u16string_view text)
{
    if (const std::size_t token = text.find(Token::number); token != std::u16string_view::npos) {
        if (text.find(Token::number, token + 1) != std::u16string_view::npos)
            Refuse(text, "it contains <Number> twice");
        return {token, Token::number.size(), std::nullopt};
    }
    const std::size_t begin = text.find(u'#');
    if (begin == std::u16string_view::npos)
        Refuse(text, "it has no place for the number; put ### (or <Number>) where it goes");
    const std::size_t end = std::min(text.find_first_not_of(u'#', begin), text.size());
    if (text.find(u'#', end) != std::u16string_view::npos)
        Refuse(text, "# stands in two places; write <Number> for the number to keep every #");
    const std::size_t width = end - begin;
    if (width > widestNumber)
        Refuse(text, "more than 255 digits");
    return {begin, width, width > 1 ? std::optional(static_cast<int>(width)) : std::nullopt};
}

void AppendNumber(Rules& rules, NameFuncs::ITEM number, Position position)
{
    number.numberPosition = static_cast<int>(position);
    rules.push_back(std::make_unique<SequenceRule>(std::move(number)));
}

/// Appends a rule that inserts `text`, unless it is empty.
void AppendInsert(Rules& rules, Edit type, std::u16string_view text)
{
    if (!text.empty())
        rules.push_back(std::make_unique<EngineRule>(InsertItem(type, 0, text)));
}

/// Without the old name.
void AppendWithoutName(Rules& rules, NameFuncs::ITEM number, std::u16string_view before, std::u16string_view after)
{
    const Position position = before.empty() == after.empty() ? Position::BetweenTexts
                              : after.empty()                 ? Position::AfterText
                                                              : Position::BeforeText;
    number.numberText1 = position == Position::BeforeText ? after : before;
    if (position == Position::BetweenTexts)
        number.numberText2 = after;
    AppendNumber(rules, std::move(number), position);
}

/// before + number + between + name + after
void AppendBeforeName(Rules& rules, NameFuncs::ITEM number, std::u16string_view before, std::u16string_view rest)
{
    const std::size_t name = rest.find(Token::name);
    AppendInsert(rules, Edit::InsertFromStart, rest.substr(0, name));
    AppendNumber(rules, std::move(number), Position::BeforeName);
    AppendInsert(rules, Edit::InsertFromStart, before);
    AppendInsert(rules, Edit::InsertFromEnd, rest.substr(name + Token::name.size()));
}

/// before + name + between + number + after
void AppendAfterName(Rules& rules, NameFuncs::ITEM number, std::u16string_view start, std::u16string_view after)
{
    const std::size_t name = start.find(Token::name);
    AppendInsert(rules, Edit::InsertFromStart, start.substr(0, name));
    AppendInsert(rules, Edit::InsertFromEnd, start.substr(name + Token::name.size()));
    AppendNumber(rules, std::move(number), Position::AfterName);
    AppendInsert(rules, Edit::InsertFromEnd, after);
}

int Digits(std::u16string_view text, const NumberSpot& spot, const NumberSettings& settings)
{
    if (settings.digits && spot.digits)
        Refuse(text, "its # give the width already; write a single # with --digits");
    const int digits = settings.digits.value_or(spot.digits.value_or(1));
    if (digits > widestNumber)
        Refuse(text, "more than 255 digits");
    return digits;
}

} // namespace

Rules NumberRules(const CString& text, const NumberSettings& settings)
{
    const std::u16string_view all = text;
    RequireNameText(all, "--number");
    RequireNumberTokens(all);
    const NumberSpot spot = FindNumber(all);
    NameFuncs::ITEM number = NewItem(NameFuncs::RenameType::SequenceNumber);
    number.startNumber = settings.start.value_or(1);
    number.step = settings.step.value_or(1);
    number.digits = Digits(all, spot, settings);

    const std::u16string_view before = all.substr(0, spot.begin);
    const std::u16string_view after = all.substr(spot.begin + spot.length);
    const std::size_t name = all.find(Token::name);
    Rules rules;
    if (name == std::u16string_view::npos)
        AppendWithoutName(rules, std::move(number), before, after);
    else if (all.find(Token::name, name + 1) != std::u16string_view::npos)
        Refuse(all, "it contains <Name> twice");
    else if (name < spot.begin)
        AppendAfterName(rules, std::move(number), before, after);
    else
        AppendBeforeName(rules, std::move(number), before, after);
    return rules;
}

} // namespace VyrHost::Rename
