// Owners of libxml2's objects, and reading of untrusted texts.
#pragma once

#include <cstddef>
#include <libxml/parser.h>
#include <libxml/tree.h>
#include <memory>
#include <string>
#include <string_view>

namespace VyrPlatform {

struct FreeXml
{
    void operator()(xmlDoc* document) const noexcept { xmlFreeDoc(document); }
    void operator()(xmlChar* text) const noexcept { xmlFree(text); }
};
using XmlDocument = std::unique_ptr<xmlDoc, FreeXml>;
using XmlText = std::unique_ptr<xmlChar, FreeXml>;

inline const xmlChar* ToXml(const char* text) noexcept
{
    return reinterpret_cast<const xmlChar*>(text);
}
inline std::string_view FromXml(const xmlChar* text) noexcept
{
    return text ? std::string_view(reinterpret_cast<const char*>(text)) : std::string_view();
}

/// The document, read without network, entities and document types; null when it is malformed or has any of these.
[[nodiscard]] inline XmlDocument ReadXml(std::string_view text)
{
    XmlDocument document(xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, nullptr,
                                       XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING));
    if (!document || !xmlDocGetRootElement(document.get()) || xmlGetIntSubset(document.get()))
        return nullptr;
    return document;
}

/// The document as UTF-8.
[[nodiscard]] inline std::string WriteXml(xmlDoc* document)
{
    xmlChar* bytes = nullptr;
    int size = 0;
    xmlDocDumpMemoryEnc(document, &bytes, &size, "UTF-8");
    const XmlText owner(bytes);
    return bytes ? std::string(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size)) : std::string();
}

/// Whether `node` is the element `name` in the namespace `space`.
[[nodiscard]] inline bool IsElement(const xmlNode* node, std::string_view space, std::string_view name) noexcept
{
    return node->type == XML_ELEMENT_NODE && node->ns && FromXml(node->ns->href) == space &&
           FromXml(node->name) == name;
}

} // namespace VyrPlatform
