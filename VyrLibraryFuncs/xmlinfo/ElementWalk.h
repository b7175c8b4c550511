// Walks XML documents: elements of a name, their texts and attributes. Failing COM calls throw a _com_error.
#pragma once

#include <VyrPlatform/documents/XmlTypes.h>
#include <VyrPlatform/process/MessageQueue.h>
#include <VyrPlatform/text/CString.h>

#include <optional>

namespace VyrLibraryFuncs {

/// The document's root element; null when it has none.
[[nodiscard]] MSXML2::IXMLDOMElementPtr GetRoot(const MSXML2::IXMLDOMDocumentPtr& document);
/// The elements called `name` at any depth below `element`; null when the parser gives no list.
[[nodiscard]] MSXML2::IXMLDOMNodeListPtr GetElements(const MSXML2::IXMLDOMElementPtr& element, const char16_t* name);
/// The current length of the list.
[[nodiscard]] LONG GetLength(const MSXML2::IXMLDOMNodeListPtr& list);
/// The node at `index`; null when it is not an element.
[[nodiscard]] MSXML2::IXMLDOMElementPtr GetElement(const MSXML2::IXMLDOMNodeListPtr& list, LONG index);
/// The text of the last of `elements`; nothing when there is none.
[[nodiscard]] std::optional<CString> GetLastText(const MSXML2::IXMLDOMNodeListPtr& elements);
/// The attribute's value; nothing when the element has no such attribute.
[[nodiscard]] std::optional<CString> GetAttribute(const MSXML2::IXMLDOMElementPtr& element, const char16_t* name);

/// Calls `visit(element)` for each element of `list`. Handles one pending event of the host before each node, and ends
/// when that requests a stop.
template <class Visit>
void ForEachElement(const MSXML2::IXMLDOMNodeListPtr& list, Visit visit)
{
    for (LONG i = 0; i < GetLength(list); ++i) {
        if (VyrPlatform::MessageQueue::DrainOne())
            return;
        if (const MSXML2::IXMLDOMElementPtr element = GetElement(list, i))
            visit(element);
    }
}

} // namespace VyrLibraryFuncs
