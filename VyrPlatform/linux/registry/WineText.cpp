#include "WineText.h"

#include <VyrPlatform/registry/Registry.h>
#include <VyrPlatform/time/Epochs.h>

#include <charconv>
#include <cstring>
#include <optional>
#include <string>
#include <utility>

namespace VyrPlatform::Registry {

namespace {

constexpr std::string_view head = "WINE REGISTRY Version 2";
constexpr std::u16string_view linkValue = u"SymbolicLinkValue";

bool IsBlank(char byte) noexcept
{
    return byte == ' ' || byte == '\t';
}

/// Removes and returns the next line of `text`, without its end.
std::string_view TakeLine(std::string_view& text) noexcept
{
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == text.npos ? text.size() : end + 1);
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    return line;
}

bool TakePrefix(std::string_view& text, std::string_view prefix) noexcept
{
    if (!text.starts_with(prefix))
        return false;
    text.remove_prefix(prefix.size());
    return true;
}

/// Reads at most `most` digits of `base` from the front of `text`.
template <class Number>
std::optional<Number> TakeNumber(std::string_view& text, int base, std::size_t most) noexcept
{
    Number number = 0;
    const char* const end = text.data() + std::min(most, text.size());
    const auto [stop, error] = std::from_chars(text.data(), end, number, base);
    if (error != std::errc())
        return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(stop - text.data()));
    return number;
}

/// The code unit of the escape at the front of `text`, after its backslash; removes it.
char16_t TakeEscape(std::string_view& text) noexcept
{
    constexpr std::string_view names = "abefnrtv";
    constexpr std::u16string_view units = u"\a\b\x1B\f\n\r\t\v";
    if (text.front() >= '0' && text.front() <= '7')
        return static_cast<char16_t>(TakeNumber<std::uint16_t>(text, 8, 3).value_or(0));
    const char name = text.front();
    text.remove_prefix(1);
    if (const std::size_t found = names.find(name); found != names.npos)
        return units[found];
    if (name == 'x')
        return static_cast<char16_t>(TakeNumber<std::uint16_t>(text, 16, 4).value_or(u'x'));
    return static_cast<unsigned char>(name);
}

/// Reads the lines.
class Reader
{
public:
    Reader(std::string_view text, std::shared_ptr<MemoryNode> top, const LinkTargets& links)
        : m_text(text), m_top(std::move(top)), m_links(links)
    {}

    void Read()
    {
        while (!m_text.empty()) {
            std::string_view line = TakeLine(m_text);
            while (!line.empty() && IsBlank(line.front()))
                line.remove_prefix(1);
            if (TakePrefix(line, "["))
                ReadKey(line);
            else if (m_key && TakePrefix(line, "#"))
                ReadOption(line);
            else if (m_key)
                ReadValue(line);
        }
    }

private:
    /// Reads a text up to `end` from the front of `line` into m_units, and removes both.
    /// @return false when there is no `end`.
    bool TakeText(std::string_view& line, char end)
    {
        m_units.clear();
        while (!line.empty()) {
            // Most text has no escapes.
            std::size_t plain = 0;
            while (plain < line.size() && line[plain] != end && line[plain] != '\\')
                m_units += static_cast<unsigned char>(line[plain++]);
            line.remove_prefix(plain);
            if (line.empty())
                return false;
            const bool isEnd = line.front() == end;
            line.remove_prefix(1);
            if (isEnd)
                return true;
            if (!line.empty())
                m_units += TakeEscape(line);
        }
        return false;
    }

    void ReadKey(std::string_view line)
    {
        m_key = nullptr;
        m_isLink = false;
        if (!TakeText(line, ']'))
            return;
        while (!line.empty() && IsBlank(line.front()))
            line.remove_prefix(1);
        const auto seconds = TakeNumber<std::uint32_t>(line, 10, line.size());
        const FileTicks moment = seconds ? (*seconds + secondsToUnixEpoch) * ticksPerSecond : 0;
        m_key = AddNode(m_top, m_units, moment);
        if (m_key)
            m_key->SetLastWrite(moment);
    }

    void ReadOption(std::string_view line)
    {
        if (TakePrefix(line, "time=")) {
            if (const auto ticks = TakeNumber<FileTicks>(line, 16, 16))
                m_key->SetLastWrite(*ticks);
        } else if (line == "link") {
            m_isLink = true;
        }
    }

    void ReadValue(std::string_view line)
    {
        Value value;
        if (TakePrefix(line, "\"")) {
            if (!TakeText(line, '"'))
                return;
            value.name = std::u16string_view(m_units);
        } else if (!TakePrefix(line, "@")) {
            return;
        }
        if (!TakePrefix(line, "=") || !ReadData(line, value))
            return;
        if (m_isLink && value.name == linkValue)
            SetLink(value.data);
        m_key->SetValue(std::move(value));
    }

    bool ReadData(std::string_view line, Value& value)
    {
        value.type = ValueType::text;
        if (TakePrefix(line, "\""))
            return ReadText(line, value.data);
        if (TakePrefix(line, "dword:")) {
            value.type = ValueType::number;
            const auto number = TakeNumber<std::uint32_t>(line, 16, 8);
            for (int shift = 0; number && shift < 32; shift += 8)
                value.data.push_back(static_cast<std::byte>(*number >> shift));
            return number.has_value();
        }
        if (TakePrefix(line, "str"))
            return TakeType(line, value.type) && TakePrefix(line, "\"") && ReadText(line, value.data);
        value.type = ValueType::binary;
        return TakePrefix(line, "hex") && TakeType(line, value.type) && ReadBytes(line, value.data);
    }

    /// Reads the type in parentheses, if there is one, and the colon.
    static bool TakeType(std::string_view& line, std::uint32_t& type) noexcept
    {
        if (TakePrefix(line, "(")) {
            const auto number = TakeNumber<std::uint32_t>(line, 16, 8);
            if (!number || !TakePrefix(line, ")"))
                return false;
            type = *number;
        }
        return TakePrefix(line, ":");
    }

    bool ReadText(std::string_view line, std::vector<std::byte>& data)
    {
        if (!TakeText(line, '"'))
            return false;
        const auto bytes = std::as_bytes(std::span(m_units.c_str(), m_units.size() + 1));
        data.assign(bytes.begin(), bytes.end());
        return true;
    }

    bool ReadBytes(std::string_view line, std::vector<std::byte>& data)
    {
        for (;;) {
            while (!line.empty() && (IsBlank(line.front()) || line.front() == ','))
                line.remove_prefix(1);
            if (line.empty())
                return true;
            if (line.front() == '\\') {
                if (m_text.empty())
                    return false;
                line = TakeLine(m_text);
                continue;
            }
            const auto number = TakeNumber<std::uint8_t>(line, 16, 2);
            if (!number)
                return false;
            data.push_back(static_cast<std::byte>(*number));
        }
    }

    void SetLink(const std::vector<std::byte>& data)
    {
        std::u16string path(data.size() / sizeof(char16_t), u'\0');
        std::memcpy(path.data(), data.data(), path.size() * sizeof(char16_t));
        std::u16string_view rest = path;
        if (FoldName(TakeName(rest)) != u"REGISTRY")
            return;
        const CString root = FoldName(TakeName(rest));
        if (root == u"MACHINE") {
            m_key->SetLink({m_links.machine, rest});
        } else if (root == u"USER") {
            static_cast<void>(TakeName(rest));
            m_key->SetLink({m_links.user, rest});
        }
    }

    std::string_view m_text;
    std::shared_ptr<MemoryNode> m_top;
    LinkTargets m_links;
    /// The key of the current section; null before the first one and in a damaged one.
    std::shared_ptr<MemoryNode> m_key;
    bool m_isLink = false;
    /// The text that was read last.
    std::u16string m_units;
};

} // namespace

bool IsWineText(std::string_view text) noexcept
{
    return text.starts_with(head);
}

void ReadWineText(std::string_view text, const std::shared_ptr<MemoryNode>& top, const LinkTargets& links)
{
    Reader(text, top, links).Read();
}

} // namespace VyrPlatform::Registry
