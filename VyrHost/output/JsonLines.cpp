// Writes a preview as JSON lines.
#include <VyrHost/output/JsonLines.h>

#include <VyrHost/output/Words.h>
#include <VyrPlatform/Encoding.h>

namespace VyrHost {

namespace {

bool IsSurrogate(char16_t unit)
{
    return unit >= 0xD800 && unit <= 0xDFFF;
}

bool IsPair(std::u16string_view text, std::size_t index)
{
    return text[index] <= 0xDBFF && index + 1 < text.size() && text[index + 1] >= 0xDC00 && text[index + 1] <= 0xDFFF;
}

void AppendEscape(std::string& line, char16_t unit)
{
    constexpr char Digits[] = "0123456789abcdef";
    line += "\\u";
    for (int shift = 12; shift >= 0; shift -= 4)
        line += Digits[(unit >> shift) & 0xF];
}

void AppendAscii(std::string& line, char16_t unit)
{
    if (unit == u'"' || unit == u'\\')
        line += '\\';
    if (unit < u' ' || unit == 0x7F)
        AppendEscape(line, unit);
    else
        line += static_cast<char>(unit);
}

void AppendField(std::string& line, std::string_view name, std::string_view words)
{
    if (words.empty())
        return;
    line += ",\"";
    line += name;
    line += "\":";
    AppendJsonText(line, VyrPlatform::Encoding::FromUtf8(words));
}

} // namespace

void AppendJsonText(std::string& line, std::u16string_view text)
{
    line += '"';
    for (std::size_t index = 0; index < text.size(); ++index) {
        const char16_t unit = text[index];
        if (unit < 0x80) {
            AppendAscii(line, unit);
        } else if (IsSurrogate(unit) && IsPair(text, index)) {
            VyrPlatform::Encoding::AppendUtf8(line, text.substr(index, 2));
            ++index;
        } else if (IsSurrogate(unit) || unit < 0xA0) {
            AppendEscape(line, unit);
        } else {
            VyrPlatform::Encoding::AppendUtf8(line, text.substr(index, 1));
        }
    }
    line += '"';
}

void WriteJsonLines(OutputBuffer& output, const EntryList& list, const Outcome& outcome)
{
    std::string line;
    for (std::size_t index = 0; index < outcome.decisions.size() && !output.HasFailed(); ++index) {
        const Decision& decision = outcome.decisions[index];
        line = "{\"from\":";
        AppendJsonText(line, list.PathOf(list.entries[index]));
        line += ",\"to\":";
        if (decision.name.empty())
            line += "null";
        else
            AppendJsonText(line, CString::Join({list.folders[decision.folder].path, decision.name}));
        AppendField(line, "status", WordFor(decision.status));
        AppendField(line, "reason", ReasonFor(outcome, index));
        AppendField(line, "warning", decision.IsRename() ? WarningFor(decision.warning) : "");
        line += "}\n";
        output << line;
    }
}

} // namespace VyrHost
