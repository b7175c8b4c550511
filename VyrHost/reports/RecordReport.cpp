#include <VyrHost/reports/RecordReport.h>

#include <VyrHost/reports/HtmlText.h>
#include <VyrHost/reports/PageParts.h>
#include <VyrLibraryFuncs/html/HtmlFuncs.h>
#include <VyrLibraryFuncs/html/OutputFuncs.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/text/Encoding.h>

#include <utility>

namespace VyrHost::Reports {

namespace {

using VyrLibraryFuncs::HtmlFuncs;
using VyrLibraryFuncs::OutputFuncs;
using VyrPlatform::Encoding::ToUtf8;

constexpr const char16_t* slot = u"%s";
constexpr std::size_t pieceSize = 1 << 16;

std::string Escaped(std::u16string_view text)
{
    std::string html;
    AppendEscaped(html, text);
    return html;
}

/// `text` escaped, as an argument for the tags of HtmlFuncs.
CString EscapedArgument(std::u16string_view text)
{
    return VyrPlatform::Encoding::FromUtf8(Escaped(text));
}

std::u16string_view ClassOf(Ui::RecordKind kind)
{
    switch (kind) {
    case Ui::RecordKind::Number:
        return u"number";
    case Ui::RecordKind::Size:
        return u"size";
    case Ui::RecordKind::Date:
        return u"date";
    case Ui::RecordKind::Flag:
        return u"flag";
    default:
        return u"text";
    }
}

std::u16string_view ClassOf(Ui::Tone tone)
{
    switch (tone) {
    case Ui::Tone::Faint:
        return u"faint";
    case Ui::Tone::Notable:
        return u"notable";
    case Ui::Tone::Bad:
        return u"bad";
    default:
        return {};
    }
}

/// A tag with placeholders, which are filled in for each cell.
class TagWithSlots
{
public:
    explicit TagWithSlots(const CString& tag)
    {
        std::string rest = ToUtf8(tag);
        for (std::size_t found; (found = rest.find("%s")) != std::string::npos; rest.erase(0, found + 2))
            m_parts.push_back(rest.substr(0, found));
        m_parts.push_back(rest);
    }

    void Append(std::string& html, std::initializer_list<std::string_view> values) const
    {
        auto part = m_parts.begin();
        html += *part;
        for (const std::string_view value : values)
            html.append(value).append(*++part);
    }

private:
    std::vector<std::string> m_parts;
};

/// The tags of a column's cells.
struct CellTags
{
    std::string plain;
    /// With an id and the value for sorting.
    TagWithSlots valued;
};

class RecordReport
{
public:
    RecordReport(const TakePiece& take, const Ui::RecordTable& table, const PictureOf& pictureOf)
        : m_take(take), m_table(table), m_pictureOf(pictureOf)
    {
        for (const std::size_t column : table.shown) {
            const CString name = ClassOf(table.columns[column].kind);
            m_cells.push_back({ToUtf8(HtmlFuncs::GetTdTag(name)),
                               TagWithSlots(HtmlFuncs::GetTdTag(name, slot, u"data-value=\"%s\""))});
        }
    }

    void Write(const ReportText& text, const Design& design)
    {
        WriteHead(text, design);
        Tag(HtmlFuncs::GetBodyTag());
        WriteHeading(text);
        m_html += PageParts::mainBeginning;
        WriteList();
        m_html += PageParts::mainEnd;
        WriteFooter();
        m_html += PageParts::script;
        Tag(HtmlFuncs::GetScriptClosingTag());
        Tag(HtmlFuncs::GetBodyClosingTag());
        Tag(HtmlFuncs::GetHtmlClosingTag());
        m_take(m_html);
    }

private:
    void Tag(const CString& tag) { VyrPlatform::Encoding::AppendUtf8(m_html, tag); }

    void WriteHead(const ReportText& text, const Design& design)
    {
        Tag(HtmlFuncs::GetDoctypeTag());
        Tag(HtmlFuncs::GetHtmlTag(u"en"));
        Tag(HtmlFuncs::GetHeadTag());
        Tag(HtmlFuncs::GetMetaContentTypeTag(u"utf-8"));
        m_html += PageParts::headElements;
        Tag(HtmlFuncs::GetMetaGeneratorTag(EscapedArgument(OutputFuncs::GetGeneratorOutputString(u"vyr"))));
        Tag(HtmlFuncs::GetTitleTag(EscapedArgument(text.title)));
        m_html += PageParts::styleBeginning;
        m_html += PageParts::style;
        WriteLabels();
        Tag(design.style);
        m_html += PageParts::styleEnd;
        Tag(HtmlFuncs::GetHeadClosingTag());
    }

    /// The headings, for designs that show each value with its own.
    void WriteLabels()
    {
        std::size_t place = m_pictureOf ? 2 : 1;
        for (const std::size_t column : m_table.shown) {
            m_html += ".records td:nth-child(" + std::to_string(place++) + ") { --label: \"";
            m_html.append(m_table.columns[column].heading).append("\"; }\r\n");
        }
    }

    void WriteHeading(const ReportText& text)
    {
        Tag(HtmlFuncs::GetHeaderTag(u"heading", u"heading"));
        Tag(HtmlFuncs::GetH1PairTag(u"title", EscapedArgument(text.title)));
        Tag(HtmlFuncs::GetPTag(u"total"));
        AppendEscaped(m_html, text.total);
        Tag(HtmlFuncs::GetPClosingTag());
        Tag(HtmlFuncs::GetDivPairTag(u"tools", u"tools", {}, 1));
        Tag(HtmlFuncs::GetHeaderClosingTag());
    }

    void WriteList()
    {
        m_html += PageParts::listBeginning;
        Tag(HtmlFuncs::GetTableTag(u"records", u"records"));
        Tag(HtmlFuncs::GetTheadTag());
        Tag(HtmlFuncs::GetTrTag());
        if (m_pictureOf)
            Tag(HtmlFuncs::GetThPairTag(u"picture", u"Picture"));
        for (const std::size_t column : m_table.shown)
            Tag(HtmlFuncs::GetThPairTag(
                ClassOf(m_table.columns[column].kind),
                EscapedArgument(VyrPlatform::Encoding::FromUtf8(m_table.columns[column].heading))));
        Tag(HtmlFuncs::GetTrClosingTag());
        Tag(HtmlFuncs::GetTheadClosingTag());
        Tag(HtmlFuncs::GetTbodyTag());
        for (const std::size_t row : m_table.rows)
            WriteRow(row);
        Tag(HtmlFuncs::GetTbodyClosingTag());
        Tag(HtmlFuncs::GetTableClosingTag());
        m_html += PageParts::listEnd;
    }

    void WriteRow(std::size_t row)
    {
        const std::u16string_view tone = m_table.toneOf ? ClassOf(m_table.toneOf(row)) : std::u16string_view();
        if (tone.empty())
            m_html += m_rowTag;
        else
            Tag(HtmlFuncs::GetTrTag(tone));
        if (m_pictureOf)
            WritePicture(m_pictureOf(row));
        for (std::size_t place = 0; place < m_table.shown.size(); ++place)
            WriteCell(row, place);
        m_html.append(m_rowEnd).append("\r\n");
        if (m_html.size() >= pieceSize) {
            m_take(m_html);
            m_html.clear();
        }
    }

    void WritePicture(const std::optional<Thumbnail>& picture)
    {
        m_html += m_pictureTag;
        if (picture) {
            CString style = u"thumbnail";
            if (picture->orientation != 1)
                style.Format(u"thumbnail turned turned%d", picture->orientation);
            const TagWithSlots image(HtmlFuncs::GetImgTag(slot, style, static_cast<int>(picture->size.width),
                                                          static_cast<int>(picture->size.height), {}));
            image.Append(m_html, {picture->address});
        }
        m_html += m_cellEnd;
    }

    void WriteCell(std::size_t row, std::size_t place)
    {
        const Ui::RecordKind kind = m_table.columns[m_table.shown[place]].kind;
        const Ui::RecordValue value = m_table.valueAt(row, m_table.shown[place]);
        const CString shown = Ui::ShownText(value, kind);
        if (kind == Ui::RecordKind::Text || std::holds_alternative<std::monostate>(value)) {
            m_html += m_cells[place].plain;
            WriteText(shown);
        } else {
            const std::string id = "r" + std::to_string(row) + "c" + std::to_string(place);
            m_cells[place].valued.Append(m_html, {id, Escaped(Ui::PlainText(value))});
            AppendEscaped(m_html, shown);
        }
        m_html += m_cellEnd;
    }

    void WriteText(const CString& text)
    {
        const std::optional<std::string> link = LinkTo(text);
        if (link)
            m_linkTag.Append(m_html, {*link});
        AppendEscaped(m_html, text);
        if (link)
            m_html += m_linkEnd;
    }

    void WriteFooter()
    {
        Tag(HtmlFuncs::GetFooterTag(u"footer", u"footer"));
        AppendEscaped(m_html, OutputFuncs::GetGeneratorOutputString(u"vyr"));
        m_html += ", ";
        AppendEscaped(m_html, VyrLibraryUtils::DateTimeUtils::GetCurrentDateTime());
        Tag(HtmlFuncs::GetFooterClosingTag());
    }

    const TakePiece& m_take;
    const Ui::RecordTable& m_table;
    const PictureOf& m_pictureOf;
    std::string m_html;
    std::vector<CellTags> m_cells;
    const std::string m_rowTag = ToUtf8(HtmlFuncs::GetTrTag());
    const std::string m_rowEnd = ToUtf8(HtmlFuncs::GetTrClosingTag());
    const std::string m_pictureTag = ToUtf8(HtmlFuncs::GetTdTag(u"picture"));
    const std::string m_cellEnd = ToUtf8(HtmlFuncs::GetTdClosingTag());
    const TagWithSlots m_linkTag{HtmlFuncs::GetATag(slot)};
    const std::string m_linkEnd = ToUtf8(HtmlFuncs::GetAClosingTag());
};

} // namespace

void WriteRecordReport(const TakePiece& take, const Ui::RecordTable& table, const ReportText& text,
                       const Design& design, const PictureOf& pictureOf)
{
    RecordReport(take, table, pictureOf).Write(text, design);
}

} // namespace VyrHost::Reports
