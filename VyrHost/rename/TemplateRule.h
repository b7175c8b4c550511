/// @file
/// The rule that makes the whole new name of a template.
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

/// Fills a template. The extension stays, unless the template ends in a dot and the token <Extension>.
class TemplateRule final : public Rule
{
public:
    /// @throws UsageError for a template that makes no sense.
    TemplateRule(std::u16string_view text, const TemplateSettings& settings);
    TemplateRule(const TemplateRule&) = delete;
    TemplateRule& operator=(const TemplateRule&) = delete;

    Reason Apply(Subject& subject) override;
    [[nodiscard]] bool MayNumber() const override { return true; }

private:
    /// What a token adds to its value.
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
    /// Fills in what is no counter.
    [[nodiscard]] Reason FillValues(Subject& subject);
    [[nodiscard]] Reason FillValue(const Value& value, Subject& subject, CString& text);
    [[nodiscard]] Reason FillCounters(Subject& subject);
    [[nodiscard]] Reason FillCounter(Counter& counter, Subject& subject, CString& text);
    [[nodiscard]] CString KeyOf(CounterScope scope, const Subject& subject) const;
    /// Puts the texts of the parts into the subject.
    [[nodiscard]] Reason Compose(Subject& subject) const;

    std::vector<Part> m_parts;
    const DateSettings m_dates;
    /// What all tokens ask of the content of every file.
    Media::MediaQuestion m_question;
    bool m_givesExtension = false;
    bool m_countsDays = false;

    /// Of the present entry: the text of each part, and the day of the first date in it; nothing for a date that it
    /// does not have.
    std::vector<CString> m_texts;
    std::optional<CString> m_day;
};

} // namespace VyrHost::Rename
