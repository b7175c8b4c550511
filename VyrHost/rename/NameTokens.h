/// @file
/// The tokens that stand for a value of the entry in the template of a whole name.
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

/// What the tokens of a template work with.
struct TemplateSettings
{
    /// Of <Date>; the shift and the clock are those of every date.
    DateSettings dates = {};
    /// Of <Csv>; null without one.
    std::shared_ptr<const CsvData> csv = {};
    /// Of the last pattern before the template; nothing without one.
    std::optional<PatternShape> pattern = {};
};

/// What a token tells of an entry.
struct TokenAnswer
{
    /// Nothing where there is no value.
    std::optional<CString> text = {};
    /// Why there is none.
    Reason reason = Reason::NoValue;
    /// The date that was written, for a token that writes one.
    std::optional<FileMoment> date = {};
};

using TokenReader = std::function<TokenAnswer(Subject&)>;

/// A token as the help and the documents name it.
struct TokenHelp
{
    /// With its brackets, such as "<Parent:2>".
    const char* form;
    const char* meaning;
};

/// Every token, in the order in which they are shown; the counters and <Folder> among them.
[[nodiscard]] std::span<const TokenHelp> TokenTable();

/// The reader of `token`.
/// @param text      the whole template, for errors.
/// @param question  gets what the token asks of the content of every file. It must live as long as the reader, and be
///     complete before that reads.
/// @throws UsageError for an unknown token, with the one that was probably meant, and for a wrong option.
[[nodiscard]] TokenReader ReaderOf(const Text::Token& token, const TemplateSettings& settings, std::u16string_view text,
                                   Media::MediaQuestion& question);

} // namespace VyrHost::Rename
