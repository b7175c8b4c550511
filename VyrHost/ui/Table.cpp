#include <VyrHost/ui/Table.h>

#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/Terminal.h>
#include <VyrHostPlatform/Console.h>
#include <VyrPlatform/process/Process.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace VyrHost::Ui {

namespace {

constexpr std::string_view arrow = "  ->  ";
constexpr std::string_view noArrow = "      ";
static_assert(arrow.size() == noArrow.size());
constexpr int arrowWidth = static_cast<int>(arrow.size());
constexpr int noteGap = 2;

struct Widths
{
    int from = 0;
    int to = 0;
    int note = 0;
};

int WidthOf(const ShownName& shown)
{
    return Text::SafeWidth(shown.folder) + Text::SafeWidth(shown.name);
}

Widths NaturalWidths(std::size_t count, const RowOfTable& rowOf)
{
    Widths widths;
    for (std::size_t index = 0; index < count; ++index) {
        const TableRow row = rowOf(index);
        widths.from = std::max(widths.from, WidthOf(row.from));
        widths.to = std::max(widths.to, WidthOf(row.to));
        widths.note = std::max(widths.note, Text::SafeWidth(row.note));
    }
    return widths;
}

/// The widths of the columns: where they do not fit, the note takes half the row at most, and the names share the rest
/// as needed.
Widths ColumnWidths(Widths widths, int rowWidth)
{
    if (rowWidth == 0)
        return {std::min(widths.from, mostPadding), std::min(widths.to, mostPadding), 0};
    const int gap = widths.note > 0 ? noteGap : 0;
    const int all = rowWidth - arrowWidth - gap;
    if (widths.from + widths.to + widths.note <= all)
        return widths;
    widths.note = std::min(widths.note, std::max(all / 2, all - widths.from - widths.to));
    const int names = std::max(all - widths.note, 2);
    const int half = names / 2;
    if (widths.from <= half)
        widths.to = std::min(widths.to, names - widths.from);
    else if (widths.to <= half)
        widths.from = std::min(widths.from, names - widths.to);
    else
        widths = {half, names - half, widths.note};
    return widths;
}

class TableWriter
{
public:
    TableWriter(OutputBuffer& output, Widths widths, TableStyle style)
        : m_output(output), m_widths(widths), m_style(style)
    {}

    void Write(const TableRow& row)
    {
        m_colour = m_style.inColour ? ColourOf(row.tone) : std::string_view();
        const Widths own{WidthOf(row.from), WidthOf(row.to), Text::SafeWidth(row.note)};
        if (Fits(own, m_widths))
            WriteLine(row, m_widths);
        else if (Fits(own, own))
            WriteLine(row, own);
        else
            WriteLines(row);
    }

private:
    /// Whether a row with the widths `own` fits into the terminal when its columns are at least as wide as `columns`.
    [[nodiscard]] bool Fits(const Widths& own, const Widths& columns) const
    {
        const int to = own.note > 0 ? std::max(own.to, columns.to) : own.to;
        const int note = own.note > 0 ? noteGap + own.note : 0;
        return m_style.width == 0 || std::max(own.from, columns.from) + arrowWidth + to + note <= m_style.width;
    }

    void WriteLine(const TableRow& row, const Widths& columns)
    {
        Begin();
        AppendName(row.from, columns.from);
        m_line.append(row.to.name.empty() ? noArrow : arrow);
        AppendName(row.to, columns.to);
        if (!row.note.IsEmpty()) {
            m_line.append(noteGap, ' ');
            Text::AppendSafeText(m_line, row.note);
        }
        End();
    }

    /// Writes each part on a line of its own, which the terminal may break; nothing is hidden.
    void WriteLines(const TableRow& row)
    {
        Begin();
        AppendName(row.from, 0);
        End();
        if (!row.to.name.empty()) {
            Begin();
            m_line.append(arrow);
            AppendName(row.to, 0);
            End();
        }
        if (!row.note.IsEmpty()) {
            Begin();
            m_line.append(noArrow);
            Text::AppendSafeText(m_line, row.note);
            End();
        }
    }

    void Begin() { m_line = m_colour; }

    void End()
    {
        m_line.erase(m_line.find_last_not_of(' ') + 1);
        if (!m_colour.empty())
            m_line += "\x1b[0m";
        m_line += '\n';
        m_output << m_line;
    }

    void AppendName(const ShownName& shown, int width)
    {
        Text::AppendSafeText(m_line, shown.folder);
        Text::AppendSafeText(m_line, shown.name);
        m_line.append(static_cast<std::size_t>(std::max(width - WidthOf(shown), 0)), ' ');
    }

    OutputBuffer& m_output;
    const Widths m_widths;
    const TableStyle m_style;
    std::string_view m_colour;
    std::string m_line;
};

} // namespace

std::string_view ColourOf(Tone tone)
{
    switch (tone) {
    case Tone::Faint:
        return "\x1b[2m";
    case Tone::Notable:
        return "\x1b[33m";
    case Tone::Bad:
        return "\x1b[31m";
    case Tone::Plain:
        break;
    }
    return {};
}

TableStyle StyleOfOutput()
{
    using VyrHostPlatform::Console::Stream;
    const auto noColour = VyrPlatform::Process::GetEnvironment(u"NO_COLOR");
    const bool wantsColour = !noColour || noColour->IsEmpty();
    return {VyrHostPlatform::Console::GetWidth(Stream::Output), wantsColour && ObeysEscapes(Stream::Output)};
}

void WriteTable(OutputBuffer& output, std::size_t count, const RowOfTable& rowOf, TableStyle style)
{
    TableWriter writer(output, ColumnWidths(NaturalWidths(count, rowOf), style.width), style);
    for (std::size_t index = 0; index < count && !output.HasFailed(); ++index)
        writer.Write(rowOf(index));
}

} // namespace VyrHost::Ui
