// Parses the options of counters, and writes numbers in their styles.
#include <VyrHost/rename/Counter.h>

#include <VyrHost/text/Pieces.h>

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace VyrHost::Rename {

namespace {

constexpr std::size_t mostWidth = 255;

std::vector<std::u16string_view> WordsOf(std::u16string_view text)
{
    std::vector<std::u16string_view> words;
    while (!text.empty())
        if (const std::u16string_view word = Text::TakeUpTo(text, u' '); !word.empty())
            words.push_back(word);
    return words;
}

template <class Value>
using Words = std::initializer_list<std::pair<std::u16string_view, Value>>;

template <class Value>
std::optional<Value> FindWord(std::u16string_view word, Words<Value> words)
{
    for (const auto& [known, value] : words)
        if (known == word)
            return value;
    return std::nullopt;
}

/// Parses the words of a counter one after the other.
class CounterParser
{
public:
    explicit CounterParser(std::u16string_view option) : m_words(WordsOf(option)) {}

    /// @return the fault; null for none.
    const char* Run(CounterForm& form)
    {
        while (m_next < m_words.size()) {
            const std::u16string_view word = Take();
            if (std::count(m_taken.begin(), m_taken.end(), word) > 0)
                return "it says the same thing twice";
            m_taken.push_back(word);
            if (const char* const fault = TakeSetting(word, form))
                return fault;
        }
        return nullptr;
    }

private:
    std::u16string_view Take() { return m_next < m_words.size() ? m_words[m_next++] : std::u16string_view(); }

    const char* TakeSetting(std::u16string_view word, CounterForm& form)
    {
        if (word == u"start")
            return TakeNumber(form.start);
        if (word == u"step")
            return TakeNumber(form.step);
        if (word == u"per")
            return TakeScope(form.scope);
        const auto style = FindWord<CounterStyle>(
            word, {{u"roman", CounterStyle::Roman}, {u"letters", CounterStyle::Letters}, {u"hex", CounterStyle::Hex}});
        if (!style)
            return "a counter knows start N, step N, per folder, per day, per name, roman, letters and hex";
        if (std::exchange(m_hasStyle, true))
            return "it is either roman or letters or hex";
        form.style = *style;
        return nullptr;
    }

    const char* TakeNumber(int& number)
    {
        const auto read = Text::ReadWhole(Take());
        const bool isNumber = read && std::in_range<int>(*read);
        number = isNumber ? static_cast<int>(*read) : number;
        return isNumber ? nullptr : "a whole number follows start and step";
    }

    const char* TakeScope(CounterScope& scope)
    {
        const auto read = FindWord<CounterScope>(
            Take(), {{u"folder", CounterScope::Folder}, {u"day", CounterScope::Day}, {u"name", CounterScope::Name}});
        scope = read.value_or(scope);
        return read ? nullptr : "folder, day or name follows per";
    }

    std::vector<std::u16string_view> m_words;
    std::vector<std::u16string_view> m_taken;
    std::size_t m_next = 0;
    bool m_hasStyle = false;
};

CString WriteLetters(std::int64_t number)
{
    constexpr std::int64_t letters = 26;
    std::u16string text;
    for (; number > 0; number = (number - 1) / letters)
        text.insert(text.begin(), static_cast<char16_t>(u'a' + (number - 1) % letters));
    return std::u16string_view(text);
}

CString WriteRoman(std::int64_t number)
{
    constexpr std::pair<int, std::u16string_view> signs[] = {
        {1000, u"M"}, {900, u"CM"}, {500, u"D"}, {400, u"CD"}, {100, u"C"}, {90, u"XC"}, {50, u"L"},
        {40, u"XL"},  {10, u"X"},   {9, u"IX"},  {5, u"V"},    {4, u"IV"},  {1, u"I"}};
    CString text;
    for (const auto& [value, sign] : signs)
        for (; number >= value; number -= value)
            text += sign;
    return text;
}

/// The minus sign precedes the zeros.
CString WriteDigits(std::int64_t number, unsigned base, int width)
{
    std::u16string text;
    for (std::uint64_t rest = static_cast<std::uint64_t>(number < 0 ? -number : number); rest > 0; rest /= base)
        text.insert(text.begin(), u"0123456789abcdef"[rest % base]);
    if (text.size() < static_cast<std::size_t>(width))
        text.insert(0, static_cast<std::size_t>(width) - text.size(), u'0');
    return CString::Join({number < 0 ? u"-" : u"", text});
}

} // namespace

const char* ParseCounter(std::u16string_view option, std::size_t width, CounterForm& form)
{
    if (const char* const fault = CounterParser(option).Run(form))
        return fault;
    if (width > mostWidth)
        return "more than 255 digits";
    if (width > 1 && (form.style == CounterStyle::Roman || form.style == CounterStyle::Letters))
        return "roman numbers and letters have no width; write a single #";
    form.width = static_cast<int>(width);
    return nullptr;
}

std::optional<CString> WriteCounter(std::int64_t number, const CounterForm& form)
{
    constexpr std::int64_t mostRoman = 3999;
    switch (form.style) {
    case CounterStyle::Roman:
        return number > 0 && number <= mostRoman ? std::optional(WriteRoman(number)) : std::nullopt;
    case CounterStyle::Letters:
        return number > 0 ? std::optional(WriteLetters(number)) : std::nullopt;
    case CounterStyle::Hex:
        return WriteDigits(number, 16, form.width);
    case CounterStyle::Decimal:
        break;
    }
    return WriteDigits(number, 10, form.width);
}

std::int64_t KeyedCounts::PlaceOf(std::size_t group, const CString& key)
{
    if (m_key && m_group == group) {
        if (*m_key == key)
            return m_counts[key] - 1;
        --m_counts[*m_key];
    }
    m_group = group;
    m_key = key;
    return m_counts[key]++;
}

} // namespace VyrHost::Rename
