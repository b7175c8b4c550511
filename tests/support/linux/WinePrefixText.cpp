// A registry as Wine writes it.
#include <tests/support/linux/WinePrefixText.h>

#include <VyrPlatform/text/Encoding.h>

#include <cctype>
#include <map>

namespace VyrTests {

namespace {

template <class... Arguments>
std::string Print(std::u16string_view format, Arguments... arguments)
{
    CString text;
    text.Format(format, arguments...);
    return VyrPlatform::Encoding::ToUtf8(text);
}

/// `text` with the escapes of a text that ends at `end`.
std::string Escape(std::u16string_view text, char end)
{
    std::string escaped;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const unsigned unit = text[i];
        const bool isDigitNext = i + 1 < text.size() && text[i + 1] < 0x80 && std::isxdigit(text[i + 1]);
        if (unit > 0x7E)
            escaped += Print(isDigitNext ? u"\\x%04x" : u"\\x%x", unit);
        else if (unit == '\n')
            escaped += "\\n";
        else if (unit == 0x1B)
            escaped += "\\e";
        else if (unit < ' ')
            escaped += Print(isDigitNext ? u"\\x%04x" : u"\\x%x", unit);
        else if (unit == '\\' || unit == static_cast<unsigned char>(end) || (end == ']' && unit == '['))
            escaped += std::string("\\") + static_cast<char>(unit);
        else
            escaped += static_cast<char>(unit);
    }
    return escaped;
}

bool IsTerminatedText(const std::string& bytes)
{
    return bytes.size() >= 2 && bytes.size() % 2 == 0 && bytes.ends_with(std::string(2, '\0'));
}

std::string Hex(const std::string& start, const std::string& bytes)
{
    std::string text = start;
    std::size_t column = start.size();
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        text += Print(i + 1 < bytes.size() ? u"%02x," : u"%02x", static_cast<unsigned char>(bytes[i]));
        column += 3;
        if (column > 76 && i + 1 < bytes.size()) {
            text += "\\\n  ";
            column = 2;
        }
    }
    return text;
}

std::string Data(const RegistryEntry& entry)
{
    namespace ValueType = VyrPlatform::Registry::ValueType;
    const bool isText =
        entry.type == ValueType::text || entry.type == ValueType::expandableText || entry.type == ValueType::texts;
    if (isText && IsTerminatedText(entry.bytes)) {
        std::u16string units;
        for (std::size_t i = 0; i + 2 < entry.bytes.size(); i += 2)
            units += static_cast<char16_t>(static_cast<unsigned char>(entry.bytes[i]) |
                                           static_cast<unsigned char>(entry.bytes[i + 1]) << 8);
        const std::string quoted = '"' + Escape(units, '"') + '"';
        return entry.type == ValueType::text ? quoted : Print(u"str(%x):", entry.type) + quoted;
    }
    if (entry.type == ValueType::number && entry.bytes.size() == 4) {
        unsigned number = 0;
        for (int i = 3; i >= 0; --i)
            number = number << 8 | static_cast<unsigned char>(entry.bytes[static_cast<std::size_t>(i)]);
        return Print(u"dword:%08x", number);
    }
    return Hex(entry.type == ValueType::binary ? "hex:" : Print(u"hex(%x):", entry.type), entry.bytes);
}

} // namespace

std::string WineText(const RegistryTree& tree)
{
    std::map<CString, std::string> sections;
    for (const CString& key : tree.keys)
        sections[key];
    for (const RegistryEntry& entry : tree.values)
        sections[entry.path] +=
            (entry.name.IsEmpty() ? std::string("@") : '"' + Escape(entry.name, '"') + '"') + "=" + Data(entry) + "\n";
    std::string text =
        "WINE REGISTRY Version 2\n;; All keys relative to \\\\User\\\\S-1-5-21-0-0-0-1000\n\n#arch=win64\n";
    for (const auto& [path, lines] : sections)
        text += "\n[" + Escape(path, ']') + "] 1704450600\n#time=1da3fc3d7e8e400\n" + lines;
    return text;
}

} // namespace VyrTests
