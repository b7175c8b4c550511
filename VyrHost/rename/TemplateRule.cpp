// Fills in the values of an entry, and then the counters, which may depend on them.
#include <VyrHost/rename/TemplateRule.h>

#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/rename/TemplateTokens.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/SafeText.h>

#include <algorithm>
#include <string>
#include <utility>

namespace VyrHost::Rename {

namespace {

[[noreturn]] void Refuse(std::u16string_view text, const std::string& reason)
{
    Text::RefuseValue("--name", text, reason);
}

std::vector<TextChange> ChangesOf(const Text::Token& token, std::u16string_view text)
{
    std::vector<TextChange> changes;
    for (const CString& change : token.changes) {
        std::string fault;
        changes.push_back(ParseChange(change, fault));
        if (!fault.empty())
            Refuse(text, Text::SafeText(token.whole) + ": " + fault);
    }
    return changes;
}

/// Whether the template ends in a dot and <Extension>.
bool EndsInExtension(const std::vector<Text::TemplatePart>& parts)
{
    if (parts.size() < 2)
        return false;
    const auto* const token = std::get_if<Text::Token>(&parts.back());
    const auto* const before = std::get_if<CString>(&parts[parts.size() - 2]);
    return token && token->word == u"Extension" && before && before->View().ends_with(u'.');
}

/// Applies `changes` to `text`.
Reason Change(const std::vector<TextChange>& changes, CString& text)
{
    for (const TextChange& change : changes) {
        // A change may double the length.
        if (text.GetLength() > longestText)
            return Reason::TooLong;
        text = change(text);
    }
    return Reason::None;
}

CString DayOf(const FileMoment& moment)
{
    CString day;
    day.Format(u"%04d%02d%02d", moment.local.GetYear(), moment.local.GetMonth(), moment.local.GetDay());
    return day;
}

} // namespace

TemplateRule::TemplateRule(std::u16string_view text, const TemplateSettings& settings) : m_dates(settings.dates)
{
    RequireNameText(text, "--name");
    const std::vector<Text::TemplatePart> parts = Text::CutTemplate(text);
    m_givesExtension = EndsInExtension(parts);
    for (const Text::TemplatePart& part : parts) {
        if (const auto* const token = std::get_if<Text::Token>(&part)) {
            Add(*token, settings, text);
            continue;
        }
        const CString& plain = std::get<CString>(part);
        if (plain.Find(u"<") >= 0)
            Refuse(text, "a < begins a token such as <Name> or <Taken:yyyy>, which ends with a >");
        m_parts.emplace_back(plain);
    }
    RequireSense(text);
}

void TemplateRule::Add(const Text::Token& token, const TemplateSettings& settings, std::u16string_view text)
{
    if (token.word == u"Folder") {
        if (!token.IsBareWord())
            Refuse(text, "<Folder> takes nothing more");
        m_parts.emplace_back(FolderEnd{});
        return;
    }
    Finish finish{token.whole, token.otherwise, ChangesOf(token, text)};
    if (token.word.Find(u"#") == 0) {
        Counter counter{std::move(finish), {}, {}};
        const std::size_t width = token.word.View().size();
        if (const char* const fault = ParseCounter(token.option.value_or(CString()), width, counter.form))
            Refuse(text, Text::SafeText(token.whole) + ": " + fault);
        m_countsDays = m_countsDays || counter.form.scope == CounterScope::Day;
        m_parts.emplace_back(std::move(counter));
        return;
    }
    m_parts.emplace_back(Value{std::move(finish), ReaderOf(token, settings, text, m_question)});
}

void TemplateRule::RequireSense(std::u16string_view text) const
{
    if (m_parts.empty())
        Refuse(text, "it is empty");
    if (std::holds_alternative<FolderEnd>(m_parts.back()))
        Refuse(text, noNameFollows);
    bool countsFolder = false;
    for (const Part& part : m_parts) {
        const auto* const counter = std::get_if<Counter>(&part);
        countsFolder = countsFolder || (counter && counter->form.scope == CounterScope::Folder);
        if (countsFolder && std::holds_alternative<FolderEnd>(part))
            Refuse(text, "a counter per folder must come after the last <Folder>");
    }
}

Rules NameRules(const CString& text, const TemplateSettings& settings)
{
    return OneRule<TemplateRule>(text, settings);
}

Reason TemplateRule::Apply(Subject& subject)
{
    Reason fault = FillValues(subject);
    if (fault == Reason::None)
        fault = FillCounters(subject);
    return fault == Reason::None ? Compose(subject) : fault;
}

Reason TemplateRule::FillValues(Subject& subject)
{
    m_texts.assign(m_parts.size(), {});
    m_day.reset();
    for (std::size_t index = 0; index < m_parts.size(); ++index) {
        if (const auto* const plain = std::get_if<CString>(&m_parts[index]))
            m_texts[index] = *plain;
        else if (const auto* const value = std::get_if<Value>(&m_parts[index]))
            if (const Reason fault = FillValue(*value, subject, m_texts[index]); fault != Reason::None)
                return fault;
    }
    // Without an extension the dot before it is removed, too.
    if (m_givesExtension && m_texts.back().IsEmpty()) {
        CString& before = m_texts[m_texts.size() - 2];
        before = before.Left(before.GetLength() - 1);
    }
    return Reason::None;
}

Reason TemplateRule::FillValue(const Value& value, Subject& subject, CString& text)
{
    const TokenAnswer answer = value.read(subject);
    const bool isDate = answer.date || answer.reason == Reason::NoDate;
    if (isDate && !m_day)
        m_day = answer.date ? DayOf(*answer.date) : CString();
    if (answer.text) {
        text = *answer.text;
        return Change(value.finish.changes, text);
    }
    const bool isMissing = answer.reason == Reason::NoValue || answer.reason == Reason::NoDate;
    if (!isMissing || !value.finish.otherwise) {
        if (isMissing)
            subject.cause = value.finish.token;
        return answer.reason;
    }
    // Another entry of the group may have the value.
    subject.dateRank = std::max<std::size_t>(subject.dateRank, 1);
    text = *value.finish.otherwise;
    return Change(value.finish.changes, text);
}

Reason TemplateRule::FillCounters(Subject& subject)
{
    if (m_countsDays && !m_day) {
        const FoundDate date = FindDate(FileValuesOf(subject), m_dates, m_question);
        if (date.reason != Reason::None)
            return date.reason;
        m_day = DayOf(date.moment);
    }
    // The keys are made before any counter is filled in.
    std::vector<CString> written(m_parts.size());
    for (std::size_t index = 0; index < m_parts.size(); ++index)
        if (auto* const counter = std::get_if<Counter>(&m_parts[index]))
            if (const Reason fault = FillCounter(*counter, subject, written[index]); fault != Reason::None)
                return fault;
    for (std::size_t index = 0; index < m_parts.size(); ++index)
        if (std::holds_alternative<Counter>(m_parts[index]))
            m_texts[index] = written[index];
    return Reason::None;
}

Reason TemplateRule::FillCounter(Counter& counter, Subject& subject, CString& text)
{
    std::int64_t place = subject.index;
    // An entry that follows another one gets its name, and is not counted.
    if (counter.form.scope != CounterScope::WholeList)
        place = subject.isFollower ? 0 : counter.counts.PlaceOf(subject.group, KeyOf(counter.form.scope, subject));
    const auto written = WriteCounter(counter.form.start + counter.form.step * place, counter.form);
    if (!written) {
        subject.cause = counter.finish.token;
        return Reason::NoValue;
    }
    text = *written;
    return Change(counter.finish.changes, text);
}

CString TemplateRule::KeyOf(CounterScope scope, const Subject& subject) const
{
    if (scope == CounterScope::Day)
        return *m_day;
    // No name contains a NUL.
    constexpr std::u16string_view end(u"\0", 1);
    CString key = subject.folder;
    CString step;
    for (std::size_t index = 0; index < m_parts.size(); ++index) {
        step += m_texts[index];
        step += std::holds_alternative<Counter>(m_parts[index]) ? end : std::u16string_view();
        if (std::holds_alternative<FolderEnd>(m_parts[index])) {
            key = CString::Join({key, step, end, end});
            step.Empty();
        }
    }
    return scope == CounterScope::Folder ? key
                                         : CString::Join({key, step, m_givesExtension ? CString() : subject.extension});
}

Reason TemplateRule::Compose(Subject& subject) const
{
    CString name;
    for (std::size_t index = 0; index < m_parts.size(); ++index) {
        name += m_texts[index];
        if (name.GetLength() > longestText)
            return Reason::TooLong;
        if (std::holds_alternative<FolderEnd>(m_parts[index])) {
            if (const Reason fault = StepDown(subject, name); fault != Reason::None)
                return fault;
            name.Empty();
        }
    }
    if (m_givesExtension)
        SetWholeName(subject, name);
    else
        subject.name = name;
    return Reason::None;
}

} // namespace VyrHost::Rename
