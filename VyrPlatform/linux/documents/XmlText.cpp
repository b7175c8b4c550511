// The text of an XML element, with the same treatment of blanks as in Windows' parser.
#include "XmlTree.h"

#include <VyrPlatform/text/Encoding.h>

#include <libxml/tree.h>

#include <algorithm>
#include <string>
#include <string_view>

namespace VyrPlatform {

namespace {

constexpr std::string_view blanks = " \t\r\n";

std::string_view ContentOf(const xmlNode* node)
{
    return node->content ? std::string_view(reinterpret_cast<const char*>(node->content)) : std::string_view();
}

/// The joined texts of an element, and the part that is not trimmed.
class TextJoin
{
public:
    void Add(xmlNode* node)
    {
        const std::string_view content = ContentOf(node);
        const bool isKept = node->type == XML_CDATA_SECTION_NODE || xmlNodeGetSpacePreserve(node->parent) == 1;
        if (isKept)
            AddKept(content);
        else if (content.find_first_not_of(blanks) != std::string_view::npos)
            AddText(content);
        else if (node->prev || !node->next)
            m_hasBlank = true;
    }

    [[nodiscard]] CString Trimmed() const
    {
        const std::size_t first = std::min({m_text.find_first_not_of(blanks), m_keptFirst, m_text.size()});
        const std::size_t last = m_text.find_last_not_of(blanks);
        const std::size_t end = std::max({last == std::string::npos ? 0 : last + 1, m_keptEnd, first});
        return Encoding::FromUtf8(std::string_view(m_text).substr(first, end - first));
    }

private:
    void AddText(std::string_view content)
    {
        if (m_hasBlank && !m_text.empty())
            m_text += ' ';
        m_hasBlank = false;
        m_text += content;
    }
    void AddKept(std::string_view content)
    {
        AddText({});
        m_keptFirst = std::min(m_keptFirst, m_text.size());
        m_text += content;
        m_keptEnd = m_text.size();
    }

    std::string m_text;
    bool m_hasBlank = false;
    std::size_t m_keptFirst = std::string::npos;
    std::size_t m_keptEnd = 0;
};

} // namespace

CString TextOf(xmlNode* element)
{
    TextJoin join;
    for (xmlNode* node = NextBelow(element, element); node; node = NextBelow(node, element))
        if (node->type == XML_TEXT_NODE || node->type == XML_CDATA_SECTION_NODE)
            join.Add(node);
    return join.Trimmed();
}

} // namespace VyrPlatform
