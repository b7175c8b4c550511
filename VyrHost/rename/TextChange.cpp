// Parses changes, and carries them out with the text functions of the rules.
#include <VyrHost/rename/TextChange.h>

#include <VyrHost/rename/Words.h>
#include <VyrHost/text/Latin.h>
#include <VyrHost/text/NearestWord.h>
#include <VyrHost/text/NormalForm.h>
#include <VyrHost/text/Pieces.h>
#include <VyrHost/text/QuotedText.h>
#include <VyrHost/text/SafeText.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <utility>
#include <vector>

namespace VyrHost::Rename {

namespace {

/// Splits the word and the arguments; nothing for unclosed apostrophes, or apostrophes inside an argument.
std::optional<std::vector<CString>> CutArguments(std::u16string_view text)
{
    std::vector<CString> arguments;
    while (!text.empty()) {
        if (text.front() == u' ') {
            text.remove_prefix(1);
            continue;
        }
        if (text.front() == u'\'') {
            const auto quoted = Text::TakeQuoted(text);
            if (!quoted || (!text.empty() && text.front() != u' '))
                return std::nullopt;
            arguments.emplace_back(std::u16string_view(*quoted));
            continue;
        }
        const std::size_t end = std::min(text.find(u' '), text.size());
        arguments.emplace_back(text.substr(0, end));
        text.remove_prefix(end);
    }
    return arguments;
}

using Arguments = std::vector<CString>;

struct KnownChange
{
    const char* word;
    /// The number of its arguments.
    std::size_t count;
    /// Returns null if the arguments are wrong.
    TextChange (*make)(const Arguments& arguments);
    /// The expected arguments, for messages.
    const char* expected = "";
};

TextChange MakeReplace(const Arguments& arguments)
{
    if (arguments[0].IsEmpty())
        return nullptr;
    return [find = Text::Composed(arguments[0]), replacement = arguments[1]](const CString& text) {
        return Text::ReplaceComposed(text, find, replacement);
    };
}

TextChange MakePad(const Arguments& arguments)
{
    const auto width = Text::ReadWhole(arguments[0]);
    if (!width || *width < 0 || *width > widestNumber)
        return nullptr;
    return [digits = static_cast<int>(*width)](const CString& text) {
        return PadNumbers(text, digits, WhichNumbers::All);
    };
}

/// A change without arguments.
template <CString (*Function)(const CString&)>
TextChange MakePlain(const Arguments& /*arguments*/)
{
    return Function;
}

CString InCapitals(const CString& text)
{
    return CString(text).MakeUpper();
}

CString InSmallLetters(const CString& text)
{
    return CString(text).MakeLower();
}

CString AsTitle(const CString& text)
{
    return TitleCase(text, TitleStyle::EveryWord);
}

constexpr KnownChange knownChanges[] = {
    {"upper", 0, MakePlain<InCapitals>},
    {"lower", 0, MakePlain<InSmallLetters>},
    {"title", 0, MakePlain<AsTitle>},
    {"ascii", 0, MakePlain<Text::SpellOutLatin>},
    {"trim", 0, MakePlain<TrimBlanks>},
    {"pad", 1, MakePad, "a whole number from 0 to 255 is expected"},
    {"replace", 2, MakeReplace, "a text to look for is expected"},
};

constexpr const char* knownWords = "upper, lower, title, ascii, trim, pad N and replace A B";

std::string UnknownChange(const CString& word)
{
    std::vector<std::string> words;
    std::transform(std::begin(knownChanges), std::end(knownChanges), std::back_inserter(words),
                   [](const KnownChange& known) { return std::string(known.word); });
    return "there is no change '" + Text::SafeText(word) + "', only " + knownWords +
           Text::Hint(VyrPlatform::Encoding::ToUtf8(word), words);
}

} // namespace

TextChange ParseChange(std::u16string_view text, std::string& fault)
{
    const auto cut = CutArguments(text);
    if (!cut) {
        fault = "apostrophes enclose a whole argument, such as ' '";
        return nullptr;
    }
    if (cut->empty()) {
        fault.assign("there is no change after a |, such as ").append(knownWords);
        return nullptr;
    }
    const CString& word = cut->front();
    const auto* const known =
        std::find_if(std::begin(knownChanges), std::end(knownChanges), [&word](const KnownChange& change) {
            return word == VyrPlatform::Encoding::FromUtf8(change.word);
        });
    if (known == std::end(knownChanges)) {
        fault = UnknownChange(word);
        return nullptr;
    }
    const Arguments arguments(cut->begin() + 1, cut->end());
    fault = "'" + Text::SafeText(text) + "'";
    if (arguments.size() != known->count) {
        fault.append(" is not a change; the changes are ").append(knownWords);
        return nullptr;
    }
    TextChange change = known->make(arguments);
    if (change)
        fault.clear();
    else
        fault.append(": ").append(known->expected);
    return change;
}

} // namespace VyrHost::Rename
