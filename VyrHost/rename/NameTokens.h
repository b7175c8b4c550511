/// @file
/// The tokens for values of an entry in a name template.
#pragma once

#include <VyrHost/rename/CsvData.h>
#include <VyrHost/rename/FileDates.h>
#include <VyrHost/rename/PatternGroups.h>
#include <VyrHost/rename/Rule.h>
#include <VyrHost/text/Template.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace VyrHost::Rename {

/// The settings of the tokens of a template.
struct TemplateSettings
{
    /// For <Date>; the shift and the clock apply to every date.
    DateSettings dates = {};
    /// For <Csv>; null without a table.
    std::shared_ptr<const CsvData> csv = {};
    /// The shape of the last pattern before the template; nothing without one.
    std::optional<PatternShape> pattern = {};
};

/// The value of a token for an entry.
struct TokenAnswer
{
    /// Nothing if there is no value.
    std::optional<CString> text = {};
    /// Why there is none.
    Reason reason = Reason::NoValue;
    /// The date that was written, for a token that writes one.
    std::optional<FileMoment> date = {};
};

using TokenReader = std::function<TokenAnswer(Subject&)>;

/// A token in the help and the documentation.
struct TokenHelp
{
    /// With its brackets, such as "<Parent:2>".
    const char* form;
    const char* meaning;
};

/// Every token, including the counters and <Folder>, in the order of display.
[[nodiscard]] std::span<const TokenHelp> TokenTable();

/// The reader of `token`.
/// @param text      the whole template, for errors.
/// @param question  gets the content values that the token needs. It must live as long as the reader, and be complete
///     before the first reading.
/// @throws UsageError for an unknown token, with a hint at the nearest one, and for a wrong option.
[[nodiscard]] TokenReader ReaderOf(const Text::Token& token, const TemplateSettings& settings, std::u16string_view text,
                                   Media::MediaQuestion& question);

} // namespace VyrHost::Rename
