/// @file
/// The rule that makes the whole new name from a template.
#pragma once

#include <VyrHost/rename/Counter.h>
#include <VyrHost/rename/NameTokens.h>
#include <VyrHost/rename/Rule.h>
#include <VyrHost/rename/TextChange.h>

#include <optional>
#include <string_view>
#include <variant>
#include <vector>

namespace VyrHost::Rename {

/// Fills in a template. Keeps the extension, unless the template ends in a dot and the token <Extension>.
class TemplateRule final : public Rule
{
public:
    /// @throws UsageError for an invalid template.
    TemplateRule(std::u16string_view text, const TemplateSettings& settings);
    TemplateRule(const TemplateRule&) = delete;
    TemplateRule& operator=(const TemplateRule&) = delete;

    Reason Apply(Subject& subject) override;
    [[nodiscard]] bool MayNumber() const override { return true; }

private:
    /// What is done with the value of a token.
    struct Finish
    {
        /// With its brackets, for messages.
        CString token;
        std::optional<CString> otherwise;
        std::vector<TextChange> changes;
    };
    struct Value
    {
        Finish finish;
        TokenReader read;
    };
    struct Counter
    {
        Finish finish;
        CounterForm form;
        KeyedCounts counts;
    };
    /// Ends the name of a folder.
    struct FolderEnd
    {};
    using Part = std::variant<CString, Value, Counter, FolderEnd>;

    void Add(const Text::Token& token, const TemplateSettings& settings, std::u16string_view text);
    void RequireSense(std::u16string_view text) const;
    /// Fills in everything but the counters.
    [[nodiscard]] Reason FillValues(Subject& subject);
    [[nodiscard]] Reason FillValue(const Value& value, Subject& subject, CString& text);
    [[nodiscard]] Reason FillCounters(Subject& subject);
    [[nodiscard]] Reason FillCounter(Counter& counter, Subject& subject, CString& text);
    [[nodiscard]] CString KeyOf(CounterScope scope, const Subject& subject) const;
    /// Sets the subject from the texts of the parts.
    [[nodiscard]] Reason Compose(Subject& subject) const;

    std::vector<Part> m_parts;
    const DateSettings m_dates;
    /// The content values that all tokens need.
    Media::MediaQuestion m_question;
    bool m_givesExtension = false;
    bool m_countsDays = false;

    /// For the current entry: the text of each part, and the day of the first date; nothing if the entry lacks it.
    std::vector<CString> m_texts;
    std::optional<CString> m_day;
};

} // namespace VyrHost::Rename
