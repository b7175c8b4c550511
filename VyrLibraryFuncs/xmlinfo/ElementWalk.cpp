#include "ElementWalk.h"

#include <VyrPlatform/documents/ComText.h>

using MSXML2::IXMLDOMDocumentPtr;
using MSXML2::IXMLDOMElementPtr;
using MSXML2::IXMLDOMNodeListPtr;
using MSXML2::IXMLDOMNodePtr;
using VyrPlatform::FromBstr;
using VyrPlatform::ToBstr;

namespace VyrLibraryFuncs {

IXMLDOMElementPtr GetRoot(const IXMLDOMDocumentPtr& document)
{
    IXMLDOMElementPtr root;
    _com_util::CheckError(document->get_documentElement(&root));
    return root;
}

IXMLDOMNodeListPtr GetElements(const IXMLDOMElementPtr& element, const char16_t* name)
{
    IXMLDOMNodeListPtr list;
    _com_util::CheckError(element->getElementsByTagName(ToBstr(name), &list));
    return list;
}

LONG GetLength(const IXMLDOMNodeListPtr& list)
{
    LONG length = 0;
    _com_util::CheckError(list->get_length(&length));
    return length;
}

IXMLDOMElementPtr GetElement(const IXMLDOMNodeListPtr& list, LONG index)
{
    IXMLDOMNodePtr node;
    _com_util::CheckError(list->get_item(index, &node));
    void* element = nullptr;
    if (!node || FAILED(node->QueryInterface(__uuidof(MSXML2::IXMLDOMElement), &element)))
        return nullptr;
    return {static_cast<MSXML2::IXMLDOMElement*>(element), false};
}

std::optional<CString> GetLastText(const IXMLDOMNodeListPtr& elements)
{
    const LONG length = GetLength(elements);
    if (length == 0)
        return std::nullopt;
    _bstr_t text;
    _com_util::CheckError(GetElement(elements, length - 1)->get_text(text.GetAddress()));
    return FromBstr(text);
}

std::optional<CString> GetAttribute(const IXMLDOMElementPtr& element, const char16_t* name)
{
    _variant_t attribute;
    _com_util::CheckError(element->getAttribute(ToBstr(name), &attribute));
    if (attribute.vt != VT_BSTR)
        return std::nullopt;
    return FromBstr(attribute.bstrVal);
}

} // namespace VyrLibraryFuncs
