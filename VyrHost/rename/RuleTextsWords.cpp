// Makes rules that edit the text of a name: letter case by words, numbers, accents and blanks.
#include <VyrHost/rename/RuleTexts.h>

#include <VyrHost/rename/Words.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/Latin.h>

#include <functional>
#include <utility>

namespace VyrHost::Rename {

namespace {

class TextRule final : public Rule
{
public:
    using Change = std::function<CString(const CString& name)>;

    explicit TextRule(Change change, bool mayNumber = true) : m_change(std::move(change)), m_mayNumber(mayNumber) {}

    Reason Apply(Subject& subject) override
    {
        subject.name = m_change(subject.name);
        return Reason::None;
    }

    [[nodiscard]] bool MayNumber() const override { return m_mayNumber; }

private:
    Change m_change;
    bool m_mayNumber;
};

} // namespace

Rules TitleCaseRules(TitleStyle style)
{
    return OneRule<TextRule>([style](const CString& name) { return TitleCase(name, style); }, false);
}

Rules SentenceCaseRules()
{
    return OneRule<TextRule>(SentenceCase, false);
}

Rules PadRules(const CString& text)
{
    const int colon = text.Find(u":");
    const CString word = text.Left(colon);
    WhichNumbers which = WhichNumbers::All;
    if (word == u"first")
        which = WhichNumbers::First;
    else if (word == u"last")
        which = WhichNumbers::Last;
    const bool hasWord = which != WhichNumbers::All;
    if (colon >= 0 && !hasWord)
        Text::RefuseValue("--pad", text, "only first: or last: may stand before the number");
    const int width = ParseDigits(hasWord ? text.Mid(colon + 1) : text, "--pad");
    return OneRule<TextRule>([width, which](const CString& name) { return PadNumbers(name, width, which); });
}

Rules AsciiRules()
{
    return OneRule<TextRule>(Text::SpellOutLatin);
}

Rules TrimRules()
{
    return OneRule<TextRule>(TrimBlanks);
}

Rules CollapseRules()
{
    return OneRule<TextRule>(CollapseBlanks);
}

} // namespace VyrHost::Rename
