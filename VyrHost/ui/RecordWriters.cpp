// Lays records out as a table, as CSV and as JSON lines.
#include <VyrHost/ui/RecordWriters.h>

#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/Output.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <string>
#include <utility>

namespace VyrHost::Ui {

namespace {

constexpr int columnGap = 2;
/// Columns narrower than this, if their values are wider, would make the table unreadable.
constexpr int leastWidth = 8;
constexpr std::string_view indent = "    ";

/// The greatest width of a column in a row of `rowWidth`, for columns of the widths `natural`: narrow ones keep their
/// width, and the others share the rest.
int WidestColumn(std::vector<int> natural, int rowWidth)
{
    std::sort(natural.begin(), natural.end());
    int left = rowWidth - columnGap * (static_cast<int>(natural.size()) - 1);
    for (std::size_t index = 0; index < natural.size(); ++index) {
        const int share = left / static_cast<int>(natural.size() - index);
        if (natural[index] > share)
            return share;
        left -= natural[index];
    }
    return natural.empty() ? 0 : natural.back();
}

class RecordWriter
{
public:
    RecordWriter(OutputBuffer& output, const RecordTable& table, TableStyle style, bool hasHeadings)
        : m_output(output), m_table(table), m_style(style), m_hasHeadings(hasHeadings), m_widths(NaturalWidths())
    {
        const int widest = style.width == 0 ? mostPadding : WidestColumn(m_widths, style.width);
        const int widestAsked = m_widths.empty() ? 0 : *std::max_element(m_widths.begin(), m_widths.end());
        m_isInBlocks = style.width != 0 && widest < std::min(leastWidth, widestAsked);
        for (int& width : m_widths)
            width = std::min(width, widest);
    }

    void Write()
    {
        if (m_table.rows.empty())
            return;
        if (m_hasHeadings && !m_isInBlocks)
            WriteHeadings();
        for (std::size_t index = 0; index < m_table.rows.size() && !m_output.HasFailed(); ++index) {
            const std::size_t row = m_table.rows[index];
            m_colour = m_style.inColour && m_table.toneOf ? ColourOf(m_table.toneOf(row)) : std::string_view();
            if (m_isInBlocks && index > 0)
                m_output << "\n";
            m_isInBlocks ? WriteBlock(row) : WriteRow(TextsOf(row));
        }
    }

private:
    [[nodiscard]] const RecordColumn& ColumnAt(std::size_t place) const
    {
        return m_table.columns[m_table.shown[place]];
    }

    [[nodiscard]] CString TextAt(std::size_t row, std::size_t place) const
    {
        return ShownText(m_table.valueAt(row, m_table.shown[place]), ColumnAt(place).kind);
    }

    [[nodiscard]] std::vector<CString> TextsOf(std::size_t row) const
    {
        std::vector<CString> texts;
        for (std::size_t place = 0; place < m_table.shown.size(); ++place)
            texts.push_back(TextAt(row, place));
        return texts;
    }

    [[nodiscard]] std::vector<CString> Headings() const
    {
        std::vector<CString> headings;
        for (std::size_t place = 0; place < m_table.shown.size(); ++place)
            headings.push_back(VyrPlatform::Encoding::FromUtf8(ColumnAt(place).heading));
        return headings;
    }

    [[nodiscard]] std::vector<int> NaturalWidths() const
    {
        std::vector<int> widths;
        for (const CString& heading : Headings())
            widths.push_back(m_hasHeadings ? Text::SafeWidth(heading) : 0);
        for (const std::size_t row : m_table.rows)
            for (std::size_t place = 0; place < widths.size(); ++place)
                widths[place] = std::max(widths[place], Text::SafeWidth(TextAt(row, place)));
        return widths;
    }

    void WriteHeadings()
    {
        m_colour = m_style.inColour ? "\x1b[1m" : "";
        // A heading that is wider than its column may extend over the next ones.
        Begin();
        AppendCells(Headings());
        End();
    }

    [[nodiscard]] bool Fits(const CString& text, std::size_t place) const
    {
        return m_style.width == 0 || Text::SafeWidth(text) <= m_widths[place];
    }

    void WriteRow(std::vector<CString> texts)
    {
        std::vector<std::pair<std::size_t, CString>> below;
        if (!texts.empty() && !Fits(texts.front(), 0)) {
            Begin();
            Text::AppendSafeText(m_line, texts.front());
            End();
            texts.front().Empty();
        }
        for (std::size_t place = 1; place < texts.size(); ++place)
            if (!Fits(texts[place], place))
                below.emplace_back(place, std::exchange(texts[place], CString()));
        if (std::any_of(texts.begin(), texts.end(), [](const CString& text) { return !text.IsEmpty(); })) {
            Begin();
            AppendCells(texts);
            End();
        }
        for (const auto& [place, text] : below)
            WriteNamed(place, text);
    }

    void WriteBlock(std::size_t row)
    {
        for (std::size_t place = 0; place < m_table.shown.size(); ++place) {
            const CString text = TextAt(row, place);
            if (place > 0 && !text.IsEmpty())
                WriteNamed(place, text);
            else if (place == 0)
                WriteLine(text);
        }
    }

    void WriteLine(const CString& text)
    {
        Begin();
        Text::AppendSafeText(m_line, text);
        End();
    }

    void WriteNamed(std::size_t place, const CString& text)
    {
        Begin();
        m_line.append(indent).append(ColumnAt(place).heading).append(": ");
        Text::AppendSafeText(m_line, text);
        End();
    }

    void AppendCells(const std::vector<CString>& texts)
    {
        for (std::size_t place = 0; place < texts.size(); ++place) {
            if (place > 0)
                m_line.append(columnGap, ' ');
            const auto padding = static_cast<std::size_t>(std::max(m_widths[place] - Text::SafeWidth(texts[place]), 0));
            const bool isRight = ColumnAt(place).IsRightAligned();
            m_line.append(isRight ? padding : 0, ' ');
            Text::AppendSafeText(m_line, texts[place]);
            m_line.append(isRight ? 0 : padding, ' ');
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

    OutputBuffer& m_output;
    const RecordTable& m_table;
    const TableStyle m_style;
    const bool m_hasHeadings;
    std::vector<int> m_widths;
    bool m_isInBlocks = false;
    std::string_view m_colour;
    std::string m_line;
};

void AppendCsvField(std::string& line, const std::string& field)
{
    if (field.find_first_of("\",\r\n") == std::string::npos) {
        line += field;
        return;
    }
    line += '"';
    for (const char byte : field)
        line.append(byte == '"' ? 2 : 1, byte);
    line += '"';
}

/// Appends the value in JSON.
void AppendJsonValue(std::string& line, const RecordValue& value)
{
    const CString text = PlainText(value);
    if (std::holds_alternative<CString>(value) || std::holds_alternative<RecordDate>(value))
        AppendJsonText(line, text);
    else
        VyrPlatform::Encoding::AppendUtf8(line, text);
}

} // namespace

void WriteRecords(OutputBuffer& output, const RecordTable& table, TableStyle style, bool hasHeadings)
{
    RecordWriter(output, table, style, hasHeadings).Write();
}

void WriteRecordCsv(OutputBuffer& output, const RecordTable& table)
{
    std::string line = "\xEF\xBB\xBF";
    for (std::size_t place = 0; place < table.shown.size(); ++place) {
        line.append(place > 0 ? "," : "");
        AppendCsvField(line, std::string(table.columns[table.shown[place]].name));
    }
    output << line << "\r\n";
    for (std::size_t index = 0; index < table.rows.size() && !output.HasFailed(); ++index) {
        line.clear();
        for (std::size_t place = 0; place < table.shown.size(); ++place) {
            line.append(place > 0 ? "," : "");
            const RecordValue value = table.valueAt(table.rows[index], table.shown[place]);
            AppendCsvField(line, VyrPlatform::Encoding::ToNameBytes(PlainText(value)));
        }
        output << line << "\r\n";
    }
}

void WriteRecordJson(OutputBuffer& output, const RecordTable& table)
{
    std::string line;
    for (std::size_t index = 0; index < table.rows.size() && !output.HasFailed(); ++index) {
        line = "{";
        for (const std::size_t column : table.shown) {
            const RecordValue value = table.valueAt(table.rows[index], column);
            if (std::holds_alternative<std::monostate>(value))
                continue;
            line.append(line.size() > 1 ? ",\"" : "\"").append(table.columns[column].name).append("\":");
            AppendJsonValue(line, value);
        }
        output << line << "}\n";
    }
}

} // namespace VyrHost::Ui
