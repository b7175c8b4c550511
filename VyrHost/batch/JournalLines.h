/// @file
/// The lines of a journal: fields, names and checksums. JournalText.h describes the format.
#pragma once

#include <VyrHost/model/RenamePlan.h>
#include <VyrHostPlatform/DurableFile.h>
#include <VyrPlatform/text/CString.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace VyrHost::Batch {

/// Appends `name` as UTF-8. A backslash, a control character of ASCII and a lone surrogate become a backslash, "u" and
/// four hexadecimal digits, so that every text is read back exactly.
void AppendJournalName(std::string& text, std::u16string_view name);

/// The name that `text` stands for; nothing for a text that AppendJournalName never writes.
[[nodiscard]] std::optional<CString> ReadJournalName(std::string_view text);

/// The CRC-32 of the bytes whose checksum is `before`, followed by `bytes` (the polynomial of IEEE 802.3, as in zlib
/// and PNG). Start with 0.
[[nodiscard]] std::uint32_t Checksum(std::uint32_t before, std::string_view bytes) noexcept;

inline constexpr char noneText = '-';
inline constexpr std::size_t checkLength = 8;
/// The minimum length of a piece of text, in bytes.
inline constexpr std::size_t pieceLength = std::size_t{1} << 16;
inline constexpr std::array<std::pair<Model::PlanStep::Action, char>, 3> actions{
    {{Model::PlanStep::Action::MakeFolder, 'm'},
     {Model::PlanStep::Action::UseTemporaryName, 'a'},
     {Model::PlanStep::Action::Rename, 'r'}}};

template <class Value, std::size_t Count>
char LetterOf(const std::array<std::pair<Value, char>, Count>& letters, Value value) noexcept
{
    return std::find_if(letters.begin(), letters.end(), [value](const auto& pair) { return pair.first == value; })
        ->second;
}

/// Writes lines field by field, and passes them on in pieces.
class LineWriter
{
public:
    /// @param check  the checksum of the text before.
    LineWriter(std::uint32_t check, const VyrHostPlatform::DurableFile::TakePiece& use) : m_use(use), m_check(check) {}

    LineWriter& Word(std::string_view word)
    {
        Separate();
        m_text += word;
        return *this;
    }
    LineWriter& Letter(char letter) { return Word({&letter, 1}); }
    template <std::integral Integer>
    LineWriter& Number(Integer number)
    {
        Separate();
        AppendNumber(number);
        return *this;
    }
    LineWriter& Index(Model::PlanIndex index) { return index == Model::none ? Letter(noneText) : Number(index); }
    LineWriter& Name(std::u16string_view name)
    {
        Separate();
        AppendJournalName(m_text, name);
        return *this;
    }
    LineWriter& Steps(Model::PlanStep::Action action, Model::PlanIndex first, Model::PlanIndex last)
    {
        Letter(LetterOf(actions, action));
        AppendRange(first, last);
        return *this;
    }
    /// As in 3,17,19-25.
    LineWriter& Ranges(const std::vector<Model::PlanIndex>& indexes)
    {
        Separate();
        for (std::size_t first = 0; first < indexes.size();) {
            std::size_t last = first;
            while (last + 1 < indexes.size() && indexes[last + 1] == indexes[last] + 1)
                ++last;
            if (first > 0)
                m_text += ',';
            AppendRange(indexes[first], indexes[last]);
            first = last + 1;
        }
        return *this;
    }
    /// Writes the checksum of the text so far.
    std::uint32_t Check()
    {
        const std::uint32_t check = UpdateCheck();
        Separate();
        constexpr const char* digits = "0123456789abcdef";
        for (int shift = 28; shift >= 0; shift -= 4)
            m_text += digits[check >> shift & 0xF];
        return check;
    }
    void End()
    {
        m_text += '\n';
        if (m_text.size() >= pieceLength)
            HandOn();
        m_line = m_text.size();
    }
    void HandOn()
    {
        UpdateCheck();
        m_use(m_text);
        m_text.clear();
        m_checked = 0;
    }

private:
    std::uint32_t UpdateCheck()
    {
        m_check = Checksum(m_check, std::string_view(m_text).substr(m_checked));
        m_checked = m_text.size();
        return m_check;
    }
    void Separate()
    {
        if (m_text.size() > m_line)
            m_text += '\t';
    }
    void AppendRange(Model::PlanIndex first, Model::PlanIndex last)
    {
        AppendNumber(first);
        if (last > first) {
            m_text += '-';
            AppendNumber(last);
        }
    }
    template <std::integral Integer>
    void AppendNumber(Integer number)
    {
        char digits[24];
        const auto [end, error] = std::to_chars(std::begin(digits), std::end(digits), number);
        m_text.append(digits, static_cast<std::size_t>(end - digits));
    }

    const VyrHostPlatform::DurableFile::TakePiece& m_use;
    std::uint32_t m_check;
    std::string m_text;
    /// Where the current line begins.
    std::size_t m_line = 0;
    /// How much of the text the checksum includes.
    std::size_t m_checked = 0;
};

/// Thrown when a journal is damaged.
struct Damage
{
    std::size_t line;
    CString what;
};

/// Reads lines field by field.
class LineReader
{
public:
    explicit LineReader(std::string_view text) : m_text(text), m_unchecked(text.data()) {}

    /// Goes to the next line, whose first field must be `word`.
    void Next(std::string_view word)
    {
        Begin(TakeLine());
        Require(word);
    }
    /// Goes to the next line.
    /// @return its first field.
    std::string_view Next()
    {
        Begin(TakeLine());
        return Word();
    }
    /// Goes to the next line, whose checksum, the last field, must be right.
    void NextChecked(std::string_view word)
    {
        BeginChecked();
        Require(word);
    }
    /// Goes to the next line if it is complete, with its own checksum started from `check`; else skips it.
    /// @return its first field; empty for an incomplete line.
    std::string_view NextAppended(std::uint32_t check)
    {
        try {
            m_check = check;
            m_unchecked = m_text.data();
            BeginChecked();
            return Word();
        } catch (const Damage&) {
            return {};
        }
    }
    /// Skips a line without verifying its checksum.
    /// @return that checksum.
    std::uint32_t Skip()
    {
        TakeCheckedLine();
        return m_lineCheck;
    }
    [[nodiscard]] bool HasMore() const { return !m_text.empty(); }
    [[nodiscard]] bool HasMoreFields() const { return !m_isAtEnd; }

    std::string_view Word()
    {
        if (m_isAtEnd)
            Fail(u"a field is missing");
        const std::size_t end = std::min(m_fields.find('\t'), m_fields.size());
        const std::string_view word = m_fields.substr(0, end);
        m_isAtEnd = end == m_fields.size();
        m_fields.remove_prefix(m_isAtEnd ? end : end + 1);
        return word;
    }
    template <std::integral Integer>
    Integer Number()
    {
        return ParseNumber<Integer>(Word());
    }
    Model::PlanIndex Index()
    {
        const std::string_view word = Word();
        return word == std::string_view(&noneText, 1) ? Model::none : ParseNumber<Model::PlanIndex>(word);
    }
    CString Name()
    {
        std::optional<CString> name = ReadJournalName(Word());
        if (!name)
            Fail(u"a name is not written as names are");
        return std::move(*name);
    }
    template <class Value, std::size_t Count>
    Value Letter(const std::array<std::pair<Value, char>, Count>& letters)
    {
        return ParseLetter(Word(), letters);
    }
    /// Adds at most `most` steps.
    void Steps(std::vector<Model::PlanStep>& steps, std::size_t most)
    {
        const std::string_view word = Word();
        const Model::PlanStep::Action action = ParseLetter(word.substr(0, 1), actions);
        const auto [first, last] = ParseRange(word.substr(std::min<std::size_t>(1, word.size())));
        if (last < first || last - first >= most)
            Fail(u"there are too many steps");
        for (std::size_t subject = first; subject <= last; ++subject)
            steps.push_back({action, static_cast<Model::PlanIndex>(subject)});
    }
    /// Indexes below `bound`, in ascending order.
    std::vector<Model::PlanIndex> Ranges(std::size_t bound)
    {
        std::vector<Model::PlanIndex> indexes;
        ForEachRange(bound, [&indexes](std::size_t first, std::size_t behind) {
            for (; first < behind; ++first)
                indexes.push_back(static_cast<Model::PlanIndex>(first));
        });
        return indexes;
    }
    /// The number of indexes that Ranges would return.
    std::size_t CountOfRanges(std::size_t bound)
    {
        std::size_t count = 0;
        ForEachRange(bound, [&count](std::size_t first, std::size_t behind) { count += behind - first; });
        return count;
    }
    void End() const
    {
        if (!m_isAtEnd)
            Fail(u"it has too many fields");
    }
    [[nodiscard]] std::uint32_t Check() const { return m_check; }
    [[noreturn]] void Fail(const CString& what) const { throw Damage{m_line, what}; }

private:
    void Begin(std::string_view content)
    {
        m_fields = content;
        m_isAtEnd = false;
    }
    void BeginChecked()
    {
        const std::string_view content = TakeCheckedLine();
        m_check = Checksum(m_check, {m_unchecked, content.data() + content.size()});
        m_unchecked = content.data() + content.size();
        if (m_check != m_lineCheck)
            Fail(u"the text up to here has been changed");
        Begin(content);
    }
    void Require(std::string_view word)
    {
        if (Word() != word)
            Fail(u"it is not the line that belongs there");
    }
    std::string_view TakeLine()
    {
        ++m_line;
        const std::size_t end = m_text.find('\n');
        if (end == m_text.npos) {
            m_text = {};
            Fail(u"the journal ends too early");
        }
        const std::string_view line = m_text.substr(0, end);
        m_text.remove_prefix(end + 1);
        return line;
    }
    /// Takes the line, and returns what is before its checksum.
    std::string_view TakeCheckedLine()
    {
        const std::string_view line = TakeLine();
        if (line.size() <= checkLength || line[line.size() - checkLength - 1] != '\t')
            Fail(u"the line has no check");
        m_lineCheck = ParseNumber<std::uint32_t>(line.substr(line.size() - checkLength), 16);
        return line.substr(0, line.size() - checkLength - 1);
    }
    template <std::integral Integer>
    Integer ParseNumber(std::string_view digits, int base = 10) const
    {
        Integer number = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number, base);
        if (error != std::errc() || end != digits.data() + digits.size())
            Fail(u"a number is not one");
        return number;
    }
    template <class Value, std::size_t Count>
    Value ParseLetter(std::string_view word, const std::array<std::pair<Value, char>, Count>& letters) const
    {
        for (const auto& [value, letter] : letters)
            if (word == std::string_view(&letter, 1))
                return value;
        Fail(u"a letter has no meaning");
    }
    /// As in 17 or 19-25: the first number and the last.
    [[nodiscard]] std::pair<Model::PlanIndex, Model::PlanIndex> ParseRange(std::string_view range) const
    {
        const std::size_t dash = range.find('-');
        const auto first = ParseNumber<Model::PlanIndex>(range.substr(0, dash));
        return {first, dash == range.npos ? first : ParseNumber<Model::PlanIndex>(range.substr(dash + 1))};
    }
    /// Calls `use` with the first index of each range, and the one after its last.
    template <class Use>
    void ForEachRange(std::size_t bound, Use use)
    {
        std::size_t least = 0;
        for (std::string_view rest = Word(); !rest.empty();) {
            const std::size_t end = std::min(rest.find(','), rest.size());
            const std::string_view range = rest.substr(0, end);
            const auto [first, last] = ParseRange(range);
            if (first < least || last < first || last >= bound)
                Fail(u"a range is out of order");
            least = std::size_t{last} + 1;
            use(first, least);
            rest.remove_prefix(std::min(end + 1, rest.size()));
        }
    }

    std::string_view m_text;
    std::string_view m_fields;
    bool m_isAtEnd = true;
    std::size_t m_line = 0;
    /// The checksum of the text before `m_unchecked`.
    std::uint32_t m_check = 0;
    const char* m_unchecked;
    std::uint32_t m_lineCheck = 0;
};

} // namespace VyrHost::Batch
