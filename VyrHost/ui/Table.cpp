// Lays rows out in three columns that fit the terminal.
#include <VyrHost/ui/Table.h>

#include <VyrHost/text/SafeText.h>
#include <VyrHostPlatform/Console.h>
#include <VyrPlatform/process/Process.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace VyrHost::Ui {

namespace {

constexpr std::string_view Arrow = "  ->  ";
constexpr std::string_view NoArrow = "      ";
static_assert(Arrow.size() == NoArrow.size());
constexpr int ArrowWidth = static_cast<int>(Arrow.size());
constexpr int NoteGap = 2;
/// Where rows may be as long as they like, names are lined up to this width.
constexpr int MostPadding = 60;

struct Widths
{
    int from = 0;
    int to = 0;
    int note = 0;
};

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

/// Shrinks what does not fit: the note to half the row at most, the names share the rest as they need it.
Widths FittedWidths(Widths widths, int rowWidth)
{
    if (rowWidth == 0)
        return {std::min(widths.from, MostPadding), std::min(widths.to, MostPadding), 0};
    const int gap = widths.note > 0 ? NoteGap : 0;
    const int all = rowWidth - ArrowWidth - gap;
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
        const std::string_view colour = m_style.inColour ? ColourOf(row.tone) : std::string_view();
        m_line = colour;
        AppendName(row.from, m_widths.from);
        m_line.append(row.to.name.empty() ? NoArrow : Arrow);
        AppendName(row.to, m_widths.to);
        if (!row.note.IsEmpty()) {
            m_line.append(NoteGap, ' ');
            if (m_style.width > 0)
                m_line += Text::FittedText(row.note, m_widths.note);
            else
                Text::AppendSafeText(m_line, row.note);
        }
        m_line.erase(m_line.find_last_not_of(' ') + 1);
        if (!colour.empty())
            m_line += "\x1b[0m";
        m_line += '\n';
        m_output << m_line;
    }

private:
    void AppendName(const ShownName& shown, int width)
    {
        const int left = width - WidthOf(shown);
        if (left < 0 && m_style.width > 0) {
            m_line += Text::FittedText(CString::Join({shown.folder, shown.name}), width);
            return;
        }
        Text::AppendSafeText(m_line, shown.folder);
        Text::AppendSafeText(m_line, shown.name);
        m_line.append(static_cast<std::size_t>(std::max(left, 0)), ' ');
    }

    OutputBuffer& m_output;
    const Widths m_widths;
    const TableStyle m_style;
    std::string m_line;
};

} // namespace

TableStyle StyleOfOutput()
{
    using VyrHostPlatform::Console::Stream;
    const auto noColour = VyrPlatform::Process::GetEnvironment(u"NO_COLOR");
    const bool wantsColour = !noColour || noColour->IsEmpty();
    return {VyrHostPlatform::Console::GetWidth(Stream::Output),
            wantsColour && VyrHostPlatform::Console::IsTerminal(Stream::Output)};
}

void WriteTable(OutputBuffer& output, std::size_t count, const RowOfTable& rowOf, TableStyle style)
{
    TableWriter writer(output, FittedWidths(NaturalWidths(count, rowOf), style.width), style);
    for (std::size_t index = 0; index < count && !output.HasFailed(); ++index)
        writer.Write(rowOf(index));
}

} // namespace VyrHost::Ui
