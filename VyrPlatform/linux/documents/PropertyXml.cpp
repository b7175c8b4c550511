#include "PropertyXml.h"

#include "PartXml.h"

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/common/documents/PropertySetStream.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <array>
#include <ctime>

namespace VyrPlatform {

namespace {

namespace Result = PropertyStorage::Result;
using PropertyStorage::PropertyWrite;

enum class Content : std::uint8_t
{
    Text,
    Number,
    Time,
    /// One element for each word between commas.
    Words
};

/// A property and the element that it is.
struct PropertyElement
{
    std::uint32_t id;
    const char* space;
    const char* prefix;
    const char* name;
    Content content = Content::Text;
};

const char coreSpace[] = "http://schemas.openxmlformats.org/package/2006/metadata/core-properties";
const char dublinSpace[] = "http://purl.org/dc/elements/1.1/";
const char termsSpace[] = "http://purl.org/dc/terms/";
const char instanceSpace[] = "http://www.w3.org/2001/XMLSchema-instance";
const char officeSpace[] = "urn:oasis:names:tc:opendocument:xmlns:office:1.0";
const char metaSpace[] = "urn:oasis:names:tc:opendocument:xmlns:meta:1.0";

constexpr std::array coreElements{
    PropertyElement{2, dublinSpace, "dc", "title"},
    PropertyElement{3, dublinSpace, "dc", "subject"},
    PropertyElement{4, dublinSpace, "dc", "creator"},
    PropertyElement{5, coreSpace, "cp", "keywords"},
    PropertyElement{6, dublinSpace, "dc", "description"},
    PropertyElement{8, coreSpace, "cp", "lastModifiedBy"},
    PropertyElement{9, coreSpace, "cp", "revision", Content::Number},
    PropertyElement{11, coreSpace, "cp", "lastPrinted", Content::Time},
    PropertyElement{12, termsSpace, "dcterms", "created", Content::Time},
    PropertyElement{13, termsSpace, "dcterms", "modified", Content::Time},
};

constexpr std::array metaElements{
    PropertyElement{2, dublinSpace, "dc", "title"},
    PropertyElement{3, dublinSpace, "dc", "subject"},
    PropertyElement{4, metaSpace, "meta", "initial-creator"},
    PropertyElement{5, metaSpace, "meta", "keyword", Content::Words},
    PropertyElement{6, dublinSpace, "dc", "description"},
    PropertyElement{8, dublinSpace, "dc", "creator"},
    PropertyElement{9, metaSpace, "meta", "editing-cycles", Content::Number},
    PropertyElement{11, metaSpace, "meta", "print-date", Content::Time},
    PropertyElement{12, metaSpace, "meta", "creation-date", Content::Time},
    PropertyElement{13, dublinSpace, "dc", "date", Content::Time},
};

const PropertyElement* FindElement(PropertyFormat format, std::uint32_t id) noexcept
{
    const std::span<const PropertyElement> elements =
        format == PropertyFormat::OfficeOpenXml ? std::span<const PropertyElement>(coreElements) : metaElements;
    for (const PropertyElement& element : elements)
        if (element.id == id)
            return &element;
    return nullptr;
}

/// The element whose children the properties are; null when the document is another one.
xmlNode* FindParent(PropertyFormat format, xmlDoc* document)
{
    xmlNode* const root = xmlDocGetRootElement(document);
    if (format == PropertyFormat::OfficeOpenXml)
        return IsElement(root, coreSpace, "coreProperties") ? root : nullptr;
    if (!IsElement(root, officeSpace, "document-meta"))
        return nullptr;
    for (xmlNode* child = root->children; child; child = child->next)
        if (IsElement(child, officeSpace, "meta"))
            return child;
    return nullptr;
}

/// Whether XML has a way to say each character of the text.
bool CanBeXml(std::u16string_view text) noexcept
{
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char16_t unit = text[at];
        const bool isPair = unit >= 0xD800 && unit <= 0xDBFF && at + 1 < text.size() && text[at + 1] >= 0xDC00 &&
                            text[at + 1] <= 0xDFFF;
        if (isPair)
            ++at;
        else if ((unit < 0x20 && unit != u'\t' && unit != u'\n' && unit != u'\r') || unit >= 0xFFFE ||
                 (unit >= 0xD800 && unit <= 0xDFFF))
            return false;
    }
    return true;
}

/// A moment as YYYY-MM-DDThh:mm:ssZ; nothing when it is before 1601 or after the year 9999.
std::optional<std::string> MomentText(std::int64_t ticks)
{
    constexpr std::int64_t ticksInSecond = 10'000'000;
    constexpr std::int64_t secondsBefore1970 = 11'644'473'600;
    constexpr int lastYear = 9999;
    const std::time_t seconds = ticks / ticksInSecond - secondsBefore1970;
    struct tm parts = {};
    if (ticks < 0 || !gmtime_r(&seconds, &parts) || parts.tm_year + 1900 > lastYear)
        return std::nullopt;
    char text[32];
    const std::size_t length = std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &parts);
    return std::string(text, length);
}

/// The value as the element's content, in UTF-8; nothing when its type or its text does not fit.
std::optional<std::string> ContentText(const PROPVARIANT& value, Content content)
{
    // The form in which a property set has it tells numbers, times and texts of all types.
    const auto stored = StorePropertyValue(value, utf16CodePage);
    if (!stored)
        return std::nullopt;
    if (content == Content::Time) {
        const auto ticks = ReadStoredTime(*stored);
        return ticks ? MomentText(*ticks) : std::nullopt;
    }
    if (const auto number = ReadStoredNumber(*stored))
        return content == Content::Number ? std::optional(std::to_string(*number)) : std::nullopt;
    const auto text = ReadStoredText(*stored, utf16CodePage);
    return text && CanBeXml(*text) ? std::optional(Encoding::ToUtf8(*text)) : std::nullopt;
}

/// The namespace `space` as `node` knows it, declared there where it does not.
xmlNs* NamespaceFor(xmlNode* node, const char* space, const char* prefix)
{
    xmlNs* const known = xmlSearchNsByHref(node->doc, node, ToXml(space));
    return known ? known : xmlNewNs(node, ToXml(space), ToXml(prefix));
}

void RemoveElements(xmlNode* parent, const PropertyElement& element, const xmlNode* kept)
{
    for (xmlNode* child = parent->children; child;) {
        xmlNode* const next = child->next;
        if (child != kept && IsElement(child, element.space, element.name)) {
            xmlUnlinkNode(child);
            xmlFreeNode(child);
        }
        child = next;
    }
}

void SetContent(xmlNode* node, const std::string& content)
{
    xmlNodeSetContent(node, nullptr);
    xmlAddChild(node, xmlNewTextLen(ToXml(content.c_str()), static_cast<int>(content.size())));
}

void AddElement(xmlNode* parent, const PropertyElement& element, const std::string& content)
{
    xmlNode* const node = xmlNewChild(parent, nullptr, ToXml(element.name), nullptr);
    xmlSetNs(node, NamespaceFor(node, element.space, element.prefix));
    if (std::string_view(element.space) == termsSpace && node->ns) {
        // The type's name has the prefix that its namespace has here.
        const std::string prefix(FromXml(node->ns->prefix));
        const std::string type = prefix.empty() ? "W3CDTF" : prefix + ":W3CDTF";
        xmlNewNsProp(node, NamespaceFor(node, instanceSpace, "xsi"), ToXml("type"), ToXml(type.c_str()));
    }
    SetContent(node, content);
}

/// Makes `content` that of the property's one element.
void SetElement(xmlNode* parent, const PropertyElement& element, const std::string& content)
{
    for (xmlNode* child = parent->children; child; child = child->next)
        if (IsElement(child, element.space, element.name)) {
            SetContent(child, content);
            RemoveElements(parent, element, child);
            return;
        }
    AddElement(parent, element, content);
}

void SetWords(xmlNode* parent, const PropertyElement& element, std::string_view content)
{
    RemoveElements(parent, element, nullptr);
    while (!content.empty()) {
        const std::size_t end = std::min(content.find(','), content.size());
        const std::string_view part = content.substr(0, end);
        content.remove_prefix(std::min(end + 1, content.size()));
        const std::size_t first = part.find_first_not_of(' ');
        if (first != std::string_view::npos)
            AddElement(parent, element, std::string(part.substr(first, part.find_last_not_of(' ') - first + 1)));
    }
}

/// Writes one property.
/// @return a result code.
std::uint32_t WriteElement(PropertyFormat format, xmlNode* parent, const PropertyWrite& property)
{
    const PropertyElement* const element = FindElement(format, property.id);
    if (!element)
        return Result::notSupported;
    if (property.value->vt == VT_EMPTY) {
        RemoveElements(parent, *element, nullptr);
        return Result::ok;
    }
    const auto content = ContentText(*property.value, element->content);
    if (!content)
        return Result::invalidParameter;
    if (element->content == Content::Words)
        SetWords(parent, *element, *content);
    else
        SetElement(parent, *element, *content);
    return Result::ok;
}

} // namespace

std::string EmptyCoreProperties()
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n<cp:coreProperties xmlns:cp=\"" +
           std::string(coreSpace) + "\" xmlns:dc=\"" + dublinSpace + "\" xmlns:dcterms=\"" + termsSpace +
           "\" xmlns:xsi=\"" + instanceSpace + "\"/>\n";
}

EditedXml EditPropertyXml(PropertyFormat format, std::string_view xml, std::span<const PropertyWrite> properties)
{
    if (xml.size() > longestPropertyXml)
        return {Result::damaged, {}};
    const XmlTree document = ReadXml(xml);
    xmlNode* const parent = document ? FindParent(format, document.get()) : nullptr;
    if (!parent)
        return {Result::damaged, {}};
    for (const PropertyWrite& property : properties)
        if (const std::uint32_t result = WriteElement(format, parent, property); result != Result::ok)
            return {result, {}};
    return {Result::ok, WriteXml(document.get())};
}

} // namespace VyrPlatform
