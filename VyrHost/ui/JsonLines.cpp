// Writes a preview as JSON lines.
#include <VyrHost/ui/JsonLines.h>

#include <VyrHost/text/UnitEscape.h>
#include <VyrHost/ui/Words.h>
#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/text/Surrogates.h>

#include <algorithm>
#include <array>

namespace VyrHost::Ui {

namespace {

/// Which of the first characters stand in a JSON text as they are.
constexpr auto IsPlainLatin = [] {
    std::array<bool, 0x100> isPlain{};
    std::fill(isPlain.begin() + u' ', isPlain.begin() + 0x7F, true);
    std::fill(isPlain.begin() + 0xA0, isPlain.end(), true);
    isPlain[u'"'] = isPlain[u'\\'] = false;
    return isPlain;
}();

/// How many units `text` begins with that stand in a JSON text as they are, whatever is beside them.
std::size_t CountPlain(std::u16string_view text)
{
    const auto special = std::find_if_not(text.begin(), text.end(), [](char16_t unit) {
        return unit < IsPlainLatin.size() ? IsPlainLatin[unit] : !VyrPlatform::IsSurrogate(unit);
    });
    return static_cast<std::size_t>(special - text.begin());
}

void AppendEscape(std::string& line, char16_t unit)
{
    if (unit == u'"' || unit == u'\\') {
        line += '\\';
        line += static_cast<char>(unit);
    } else {
        Text::AppendUnitEscape(line, unit);
    }
}

/// Appends `text` to a JSON text that has begun.
void AppendInside(std::string& line, std::u16string_view text)
{
    while (!text.empty()) {
        std::size_t length = CountPlain(text);
        if (length == 0 && VyrPlatform::BeginsWithPair(text))
            length = 2;
        if (length > 0) {
            VyrPlatform::Encoding::AppendUtf8(line, text.substr(0, length));
        } else {
            AppendEscape(line, text.front());
            length = 1;
        }
        text.remove_prefix(length);
    }
}

/// Appends the path of what is called `name` in `folder`.
void AppendPath(std::string& line, const Model::Folder& folder, std::u16string_view name)
{
    line += '"';
    AppendInside(line, folder.path);
    AppendInside(line, name);
    line += '"';
}

/// Nothing where there are no words.
void AppendField(std::string& line, std::string_view name, std::string_view words)
{
    if (!words.empty())
        AppendJsonField(line, name, VyrPlatform::Encoding::FromUtf8(words));
}

} // namespace

void AppendJsonText(std::string& line, std::u16string_view text)
{
    line += '"';
    AppendInside(line, text);
    line += '"';
}

void AppendJsonField(std::string& line, std::string_view name, std::u16string_view text)
{
    line += line.empty() ? "{\"" : ",\"";
    line.append(name).append("\":");
    AppendJsonText(line, text);
}

void WriteJsonLines(OutputBuffer& output, const Model::EntryList& list, const Model::Outcome& outcome)
{
    std::string line;
    for (std::size_t index = 0; index < outcome.decisions.size() && !output.HasFailed(); ++index) {
        const Model::Decision& decision = outcome.decisions[index];
        line = "{\"from\":";
        const Model::Entry& entry = list.entries[index];
        AppendPath(line, list.folders[entry.folder], entry.name);
        line += ",\"to\":";
        if (decision.name.IsEmpty())
            line += "null";
        else
            AppendPath(line, list.folders[decision.folder], decision.name);
        // Its letters and blanks stand as they are.
        line += ",\"status\":\"";
        line += WordFor(decision.status);
        line += '"';
        AppendField(line, "reason", ReasonFor(outcome, index));
        AppendField(line, "dateFrom", decision.IsRename() ? WordsFor(decision.datesTaken) : "");
        AppendField(line, "warning", decision.IsRename() ? WarningFor(decision.warning) : "");
        line += "}\n";
        output << line;
    }
}

} // namespace VyrHost::Ui
