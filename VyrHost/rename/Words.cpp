// Finds the words of a name with patterns, which treat letters of all scripts equally on both systems.
#include <VyrHost/rename/Words.h>

#include <VyrHost/rename/Pattern.h>
#include <VyrPlatform/text/Digits.h>
#include <VyrPlatform/text/Locale.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace VyrHost::Rename {

using VyrPlatform::IsDigit;

namespace {

using Range = PatternGroups::Range;

/// Whether `pattern` is found in `text`.
bool Has(Pattern& pattern, std::u16string_view text)
{
    return pattern.Find(text, 0, true) == Pattern::Result::Found;
}

/// The ranges of the matches of `pattern`, none of them empty, in `text`.
std::vector<Range> FindAll(Pattern& pattern, std::u16string_view text)
{
    std::vector<Range> found;
    std::size_t start = 0;
    while (pattern.Find(text, start, true) == Pattern::Result::Found) {
        found.push_back(pattern.Groups().front());
        start = found.back().begin + found.back().length;
    }
    return found;
}

void ToUpper(std::u16string& text, std::size_t place)
{
    VyrPlatform::Locale::ToUpper(text.data() + place, 1);
}

void ToLower(std::u16string& text, std::size_t place, std::size_t length = 1)
{
    VyrPlatform::Locale::ToLower(text.data() + place, length);
}

/// Changes the letter case of a text word by word.
class WordCase
{
public:
    explicit WordCase(const CString& text) : m_text(text.View())
    {
        static Pattern words(u"[\\p{L}\\p{N}][\\p{L}\\p{M}\\p{N}]*(?:['\u2019][\\p{L}\\p{M}]+)*", false);
        static Pattern capitals(u"\\p{Lu}", false);
        static Pattern smallLetters(u"\\p{Ll}", false);
        m_words = FindAll(words, m_text);
        if (!Has(smallLetters, m_text)) {
            ToLower(m_text, 0, m_text.size());
            m_isKept.resize(m_words.size());
            return;
        }
        for (const Range& word : m_words)
            m_isKept.push_back(word.length > 1 && Has(capitals, View(word).substr(1)));
    }

    [[nodiscard]] std::size_t Count() const { return m_words.size(); }
    /// Whether the word has a letter case of its own.
    [[nodiscard]] bool IsKept(std::size_t word) const { return m_isKept[word]; }
    [[nodiscard]] std::u16string_view Word(std::size_t word) const { return View(m_words[word]); }
    /// The text between the word and the previous one, or the start.
    [[nodiscard]] std::u16string_view Before(std::size_t word) const
    {
        const std::size_t begin = word == 0 ? 0 : m_words[word - 1].begin + m_words[word - 1].length;
        return View({begin, m_words[word].begin - begin});
    }

    void MakeSmall(std::size_t word) { ToLower(m_text, m_words[word].begin); }
    void MakeCapital(std::size_t word)
    {
        static Pattern shortPrefix(u"^[odl]['\u2019](?=\\p{L}{3})", true);
        ToUpper(m_text, m_words[word].begin);
        if (Has(shortPrefix, Word(word)))
            ToUpper(m_text, m_words[word].begin + shortPrefix.Groups().front().length);
    }

    [[nodiscard]] CString Result() const { return std::u16string_view(m_text); }

private:
    [[nodiscard]] std::u16string_view View(const Range& range) const
    {
        return std::u16string_view(m_text).substr(range.begin, range.length);
    }

    std::u16string m_text;
    std::vector<Range> m_words;
    std::vector<bool> m_isKept;
};

bool IsSmallEnglishWord(std::u16string_view word)
{
    static Pattern smallWords(u"^(?:an?|and|as|at|but|by|for|from|if|in|into|nor|of|off|on|onto|or|out|over|per|so|the|"
                              u"to|up|via|vs|with|yet)$",
                              true);
    return Has(smallWords, word);
}

/// Whether a new title begins after `between`, the text between two words: "Artist - The Title".
bool BeginsTitle(std::u16string_view between)
{
    static Pattern signs(u"[:?!(\\[{\u2013\u2014]|[-.]\\s|\\s-", false);
    return Has(signs, between);
}

bool EndsSentence(std::u16string_view between)
{
    static Pattern signs(u"[.?!]\\s", false);
    return Has(signs, between);
}

bool IsBlank(char16_t unit)
{
    return (unit >= 0x09 && unit <= 0x0D) || unit == 0x20 || unit == 0x85 || unit == 0xA0 || unit == 0x1680 ||
           (unit >= 0x2000 && unit <= 0x200A) || unit == 0x2028 || unit == 0x2029 || unit == 0x202F || unit == 0x205F ||
           unit == 0x3000;
}

} // namespace

CString TitleCase(const CString& text, TitleStyle style)
{
    WordCase words(text);
    for (std::size_t word = 0; word < words.Count(); ++word) {
        if (words.IsKept(word))
            continue;
        const bool isInside = word > 0 && word + 1 < words.Count() && !BeginsTitle(words.Before(word));
        if (style == TitleStyle::English && isInside && IsSmallEnglishWord(words.Word(word)))
            words.MakeSmall(word);
        else
            words.MakeCapital(word);
    }
    return words.Result();
}

CString SentenceCase(const CString& text)
{
    WordCase words(text);
    for (std::size_t word = 0; word < words.Count(); ++word) {
        if (words.IsKept(word))
            continue;
        if (word == 0 || EndsSentence(words.Before(word)))
            words.MakeCapital(word);
        else
            words.MakeSmall(word);
    }
    return words.Result();
}

CString PadNumbers(const CString& text, int width, WhichNumbers which)
{
    const std::u16string_view units = text;
    std::vector<Range> numbers;
    for (auto place = std::find_if(units.begin(), units.end(), IsDigit); place != units.end();) {
        const auto end = std::find_if_not(place, units.end(), IsDigit);
        numbers.push_back({static_cast<std::size_t>(place - units.begin()), static_cast<std::size_t>(end - place)});
        place = std::find_if(end, units.end(), IsDigit);
    }
    if (numbers.empty())
        return text;
    if (which == WhichNumbers::First)
        numbers.resize(1);
    else if (which == WhichNumbers::Last)
        numbers.erase(numbers.begin(), numbers.end() - 1);
    std::u16string result;
    std::size_t copied = 0;
    for (const Range& number : numbers) {
        result += units.substr(copied, number.begin - copied);
        const auto least = static_cast<std::size_t>(std::max(width, 0));
        result.append(least - std::min(least, number.length), u'0');
        copied = number.begin;
    }
    return std::u16string_view(result += units.substr(copied));
}

CString TrimBlanks(const CString& text)
{
    const std::u16string_view units = text;
    const auto begin = std::find_if_not(units.begin(), units.end(), IsBlank);
    const auto end = std::find_if_not(units.rbegin(), std::make_reverse_iterator(begin), IsBlank).base();
    return std::u16string_view(begin, end);
}

CString CollapseBlanks(const CString& text)
{
    std::u16string result;
    bool isBehindBlank = false;
    for (const char16_t unit : text.View()) {
        const bool isBlank = IsBlank(unit);
        if (!isBlank)
            result += unit;
        else if (!isBehindBlank)
            result += u' ';
        isBehindBlank = isBlank;
    }
    return std::u16string_view(result);
}

} // namespace VyrHost::Rename
