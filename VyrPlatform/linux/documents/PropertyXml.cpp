#include "PropertyXml.h"

#include "PartXml.h"

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/common/documents/PropertySetStream.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/time/COleDateTime.h>
#include <VyrPlatform/time/Epochs.h>

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
    Words,
    /// In the attribute xlink:title; it can be removed only.
    Title
};

/// A property and its element.
struct PropertyElement
{
    std::uint32_t id;
    /// Null for the namespace of the root.
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
const char linkSpace[] = "http://www.w3.org/1999/xlink";
/// The namespaces of the roots of the other two parts, transitional and strict.
const char* const extendedSpaces[] = {"http://schemas.openxmlformats.org/officeDocument/2006/extended-properties",
                                      "http://purl.oclc.org/ooxml/officeDocument/extendedProperties"};
const char* const customSpaces[] = {"http://schemas.openxmlformats.org/officeDocument/2006/custom-properties",
                                    "http://purl.oclc.org/ooxml/officeDocument/customProperties"};

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
    PropertyElement{7, metaSpace, "meta", "template", Content::Title},
    PropertyElement{8, dublinSpace, "dc", "creator"},
    PropertyElement{9, metaSpace, "meta", "editing-cycles", Content::Number},
    PropertyElement{11, metaSpace, "meta", "print-date", Content::Time},
    PropertyElement{12, metaSpace, "meta", "creation-date", Content::Time},
    PropertyElement{13, dublinSpace, "dc", "date", Content::Time},
    PropertyElement{18, metaSpace, "meta", "generator"},
};

constexpr std::array extendedElements{
    PropertyElement{7, nullptr, "", "Template"},
    PropertyElement{18, nullptr, "", "Application"},
};

std::span<const PropertyElement> ElementsOf(PropertyFormat format) noexcept
{
    switch (format) {
    case PropertyFormat::OfficeOpenXml:
        return coreElements;
    case PropertyFormat::OpenDocument:
        return metaElements;
    case PropertyFormat::Extended:
        return extendedElements;
    case PropertyFormat::Custom:
        break;
    }
    return {};
}

const PropertyElement* FindElement(PropertyFormat format, std::uint32_t id) noexcept
{
    for (const PropertyElement& element : ElementsOf(format))
        if (element.id == id)
            return &element;
    return nullptr;
}

/// Whether `node`, a child of `parent`, is the element.
bool Is(const xmlNode* node, const xmlNode* parent, const PropertyElement& element) noexcept
{
    return IsElement(node, element.space ? std::string_view(element.space) : FromXml(parent->ns->href), element.name);
}

bool IsRoot(const xmlNode* root, std::span<const char* const> spaces, std::string_view name) noexcept
{
    return std::any_of(spaces.begin(), spaces.end(),
                       [root, name](const char* space) { return IsElement(root, space, name); });
}

/// The parent element of the properties; null for another kind of document.
xmlNode* FindParent(PropertyFormat format, xmlDoc* document)
{
    xmlNode* const root = xmlDocGetRootElement(document);
    if (format == PropertyFormat::OfficeOpenXml)
        return IsElement(root, coreSpace, "coreProperties") ? root : nullptr;
    if (format != PropertyFormat::OpenDocument)
        return IsRoot(root, format == PropertyFormat::Extended ? extendedSpaces : customSpaces, "Properties") ? root
                                                                                                              : nullptr;
    if (!IsElement(root, officeSpace, "document-meta"))
        return nullptr;
    for (xmlNode* child = root->children; child; child = child->next)
        if (IsElement(child, officeSpace, "meta"))
            return child;
    return nullptr;
}

/// Whether XML can represent each character of the text.
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
    constexpr int lastYear = 9999;
    const std::time_t seconds = ticks / ticksPerSecond - secondsToUnixEpoch;
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
    // The form in a property set covers numbers, times and texts of all types.
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

/// The namespace `space` in the scope of `node`, declared there if it is missing.
xmlNs* NamespaceFor(xmlNode* node, const char* space, const char* prefix)
{
    xmlNs* const known = xmlSearchNsByHref(node->doc, node, ToXml(space));
    return known ? known : xmlNewNs(node, ToXml(space), ToXml(prefix));
}

void RemoveElements(xmlNode* parent, const PropertyElement& element, const xmlNode* kept)
{
    for (xmlNode* child = parent->children; child;) {
        xmlNode* const next = child->next;
        if (child != kept && Is(child, parent, element)) {
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
    xmlSetNs(node, element.space ? NamespaceFor(node, element.space, element.prefix) : parent->ns);
    if (element.space == termsSpace && node->ns) {
        // The type's name uses the prefix of its namespace here.
        const std::string prefix(FromXml(node->ns->prefix));
        const std::string type = prefix.empty() ? "W3CDTF" : prefix + ":W3CDTF";
        xmlNewNsProp(node, NamespaceFor(node, instanceSpace, "xsi"), ToXml("type"), ToXml(type.c_str()));
    }
    SetContent(node, content);
}

/// Sets the content of the property's only element.
void SetElement(xmlNode* parent, const PropertyElement& element, const std::string& content)
{
    for (xmlNode* child = parent->children; child; child = child->next)
        if (Is(child, parent, element)) {
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
    if (element->content == Content::Title)
        return Result::notSupported;
    const auto content = ContentText(*property.value, element->content);
    if (!content)
        return Result::invalidParameter;
    if (element->content == Content::Words)
        SetWords(parent, *element, *content);
    else
        SetElement(parent, *element, *content);
    return Result::ok;
}

/// Takes the number of `digits` digits at the start of `text`, with `before` before it; nothing when something else is
/// there.
std::optional<int> TakeNumber(std::string_view& text, std::string_view before, std::size_t digits)
{
    if (!text.starts_with(before) || text.size() < before.size() + digits)
        return std::nullopt;
    int number = 0;
    for (const char digit : text.substr(before.size(), digits)) {
        if (digit < '0' || digit > '9')
            return std::nullopt;
        number = number * 10 + (digit - '0');
    }
    text.remove_prefix(before.size() + digits);
    return number;
}

/// The offset to UTC, in seconds, at the end of a moment's text; nothing if it has none.
std::optional<std::int64_t> ReadZone(std::string_view text)
{
    if (text == "Z")
        return 0;
    const std::int64_t sign = text.starts_with('-') ? 1 : -1;
    const auto hours = TakeNumber(text, sign > 0 ? "-" : "+", 2);
    const auto minutes = hours ? TakeNumber(text, ":", 2) : std::nullopt;
    return minutes ? std::optional(sign * (*hours * 3600 + *minutes * 60)) : std::nullopt;
}

/// The moment of YYYY-MM-DD, with or without Thh:mm, :ss, a fraction (which is dropped) and a zone; without a zone it
/// is local time.
std::optional<FileTicks> ReadMoment(std::string_view text)
{
    const auto year = TakeNumber(text, "", 4);
    const auto month = year ? TakeNumber(text, "-", 2) : std::nullopt;
    const auto day = month ? TakeNumber(text, "-", 2) : std::nullopt;
    if (!day)
        return std::nullopt;
    const int hour = TakeNumber(text, "T", 2).value_or(0);
    const int minute = TakeNumber(text, ":", 2).value_or(0);
    const int second = TakeNumber(text, ":", 2).value_or(0);
    if (text.starts_with('.'))
        text.remove_prefix(std::min(text.find_first_not_of("0123456789", 1), text.size()));
    const COleDateTime written(*year, *month, *day, hour, minute, second);
    const auto zone = ReadZone(text);
    if (written.GetStatus() != COleDateTime::valid || (!zone && !text.empty()))
        return std::nullopt;
    if (!zone)
        return FileTimes::FromLocal(written);
    struct tm parts = {};
    parts.tm_year = *year - 1900;
    parts.tm_mon = *month - 1;
    parts.tm_mday = *day;
    parts.tm_hour = hour;
    parts.tm_min = minute;
    parts.tm_sec = second;
    const std::int64_t seconds = timegm(&parts) + *zone + secondsToUnixEpoch;
    return seconds > 0 ? std::optional(seconds * ticksPerSecond) : std::nullopt;
}

void ReadElement(const xmlNode* node, const PropertyElement& element, DocumentProperties& properties)
{
    const XmlText content(element.content == Content::Title ? xmlGetNsProp(node, ToXml("title"), ToXml(linkSpace))
                                                            : xmlNodeGetContent(node));
    const std::string_view text = FromXml(content.get());
    if (text.empty())
        return;
    if (element.content == Content::Time) {
        if (const auto ticks = ReadMoment(text))
            properties.times.emplace(element.id, *ticks);
        return;
    }
    CString& value = properties.texts[element.id];
    if (!value.IsEmpty())
        value += u", ";
    value += Encoding::FromUtf8(text);
}

/// The document as text; damaged if that could not be read again, since the library does not escape an ampersand in the
/// address of a namespace.
EditedXml Written(xmlDoc* document)
{
    std::string text = WriteXml(document);
    if (!ReadXml(text))
        return {Result::damaged, {}};
    return {Result::ok, std::move(text)};
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
    return Written(document.get());
}

EditedXml ClearPropertyXml(PropertyFormat format, std::string_view xml)
{
    const XmlTree document = xml.size() > longestPropertyXml ? nullptr : ReadXml(xml);
    xmlNode* const parent = document ? FindParent(format, document.get()) : nullptr;
    if (!parent)
        return {Result::damaged, {}};
    xmlNodeSetContent(parent, nullptr);
    return Written(document.get());
}

bool ReadPropertyXml(PropertyFormat format, std::string_view xml, DocumentProperties& properties)
{
    const XmlTree document = xml.size() > longestPropertyXml ? nullptr : ReadXml(xml);
    const xmlNode* const parent = document ? FindParent(format, document.get()) : nullptr;
    if (!parent)
        return false;
    const std::span<const PropertyElement> elements = ElementsOf(format);
    for (const xmlNode* child = parent->children; child; child = child->next) {
        if (child->type != XML_ELEMENT_NODE)
            continue;
        const auto known =
            std::find_if(elements.begin(), elements.end(),
                         [child, parent](const PropertyElement& element) { return Is(child, parent, element); });
        if (known == elements.end())
            ++properties.others;
        else
            ReadElement(child, *known, properties);
    }
    return true;
}

bool HasPropertyElement(PropertyFormat format, std::uint32_t id) noexcept
{
    return FindElement(format, id) != nullptr;
}

} // namespace VyrPlatform
