// The text of an XML element, with the same treatment of blanks as in Windows' parser.
#include "XmlTree.h"

#include <VyrPlatform/text/Encoding.h>

#include <libxml/tree.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace VyrPlatform {

namespace {

constexpr std::string_view blanks = " \t\r\n";

std::string_view ContentOf(const xmlNode* node)
{
    return node->content ? std::string_view(reinterpret_cast<const char*>(node->content)) : std::string_view();
}

bool IsBlank(std::string_view content)
{
    return content.find_first_not_of(blanks) == std::string_view::npos;
}

/// Whether the document says that the blanks of this element matter.
bool IsPreserved(const xmlNode* element)
{
    return xmlNodeGetSpacePreserve(element) == 1;
}

/// Whether there are only omitted blanks between a CDATA section and the one before it.
bool ContinuesSection(const xmlNode* section)
{
    const xmlNode* before = section->prev;
    while (before && before->type == XML_TEXT_NODE && IsBlank(ContentOf(before)) && !IsPreserved(section->parent))
        before = before->prev;
    return before && before->type == XML_CDATA_SECTION_NODE;
}

/// The joined texts of an element, and the part that is not trimmed: from its first CDATA section to its last one. A
/// text of only blanks is left out; between two texts of the same element, or of elements in it, it becomes one blank.
class TextJoin
{
public:
    void Begin() { m_levels.push_back({m_text.size(), m_text.size()}); }
    /// Blanks omitted at the end of an element count for its parent.
    void End()
    {
        const Level inner = m_levels.back();
        m_levels.pop_back();
        Level& outer = m_levels.back();
        outer.hasBlank = outer.hasBlank || inner.hasBlank;
        // The blank before the inner text is not counted here, so that the part may end one character early.
        const std::size_t place = inner.begin - outer.start;
        if (inner.keptFirst != std::string::npos)
            outer.keptFirst = std::min(outer.keptFirst, place + inner.keptFirst);
        if (inner.keptEnd != 0)
            outer.keptEnd = std::max(outer.keptEnd, place + inner.keptEnd);
    }

    void AddText(const xmlNode* node)
    {
        const std::string_view content = ContentOf(node);
        if (content.empty())
            return;
        if (IsBlank(content) && !IsPreserved(node->parent)) {
            m_levels.back().hasBlank = true;
            return;
        }
        AddBlank(false);
        m_text += content;
    }

    void AddSection(const xmlNode* node)
    {
        const std::string_view content = ContentOf(node);
        if (!ContinuesSection(node))
            AddBlank(content.empty());
        Level& level = m_levels.back();
        level.keptFirst = std::min(level.keptFirst, m_text.size() - level.start);
        m_text += content;
        level.keptEnd = std::max(level.keptEnd, m_text.size() - level.start);
    }

    [[nodiscard]] CString Whole() const { return Encoding::FromUtf8(m_text); }
    [[nodiscard]] CString Trimmed() const
    {
        const Level& level = m_levels.back();
        const std::size_t first = std::min({m_text.find_first_not_of(blanks), level.keptFirst, m_text.size()});
        const std::size_t last = m_text.find_last_not_of(blanks);
        const std::size_t end = std::max({last == std::string::npos ? 0 : last + 1, level.keptEnd, first});
        return Encoding::FromUtf8(std::string_view(m_text).substr(first, end - first));
    }

private:
    /// An element whose text has not ended.
    struct Level
    {
        /// The start of the element, and of its text, which is after the blank before it.
        std::size_t begin;
        std::size_t start;
        /// Blanks were left out since its last text.
        bool hasBlank = false;
        /// The part that is not trimmed, counted from the start.
        std::size_t keptFirst = std::string::npos;
        std::size_t keptEnd = 0;
    };

    /// The blank before the next text. It belongs to the innermost element that has a text already; an empty section
    /// does not affect the parents of its element.
    void AddBlank(bool isEmpty)
    {
        auto level = m_levels.rbegin();
        for (; level != m_levels.rend() && m_text.size() == level->start; ++level) {
            level->hasBlank = false;
            if (isEmpty)
                return;
        }
        if (level == m_levels.rend())
            return;
        if (level->hasBlank)
            m_text += ' ';
        level->hasBlank = false;
        for (auto inner = m_levels.rbegin(); inner != level; ++inner)
            inner->start = m_text.size();
    }

    std::string m_text;
    std::vector<Level> m_levels;
};

} // namespace

CString TextOf(xmlNode* element)
{
    TextJoin join;
    join.Begin();
    const xmlNode* parent = element;
    for (xmlNode* node = NextBelow(element, element); node; node = NextBelow(node, element)) {
        for (; parent != node->parent; parent = parent->parent)
            join.End();
        if (node->type == XML_TEXT_NODE)
            join.AddText(node);
        else if (node->type == XML_CDATA_SECTION_NODE)
            join.AddSection(node);
        if (node->type == XML_ELEMENT_NODE && node->children) {
            join.Begin();
            parent = node;
        }
    }
    for (; parent != element; parent = parent->parent)
        join.End();
    return IsPreserved(element) ? join.Whole() : join.Trimmed();
}

} // namespace VyrPlatform
