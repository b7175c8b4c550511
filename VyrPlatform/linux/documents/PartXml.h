// Parts of documents that are changed and written again.
#pragma once

#include "XmlTree.h"

#include <cstddef>
#include <libxml/tree.h>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace VyrPlatform {

struct FreeXml
{
    void operator()(xmlChar* text) const noexcept { xmlFree(text); }
};
using XmlText = std::unique_ptr<xmlChar, FreeXml>;

inline const xmlChar* ToXml(const char* text) noexcept
{
    return reinterpret_cast<const xmlChar*>(text);
}
inline std::string_view FromXml(const xmlChar* text) noexcept
{
    return text ? std::string_view(reinterpret_cast<const char*>(text)) : std::string_view();
}

/// The whole document; null when it is malformed or has a document type.
[[nodiscard]] inline XmlTree ReadXml(std::string_view text)
{
    XmlTree document = ParseXml(
        [text](std::span<char> buffer) mutable {
            const std::size_t count = text.copy(buffer.data(), buffer.size());
            text.remove_prefix(count);
            return static_cast<int>(count);
        },
        XmlContent::Everything);
    return document && !xmlGetIntSubset(document.get()) ? document : nullptr;
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
