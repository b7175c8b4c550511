#include <VyrC/XmlNodes.h>

#include <VyrC/Marshal.h>
#include <VyrPlatform/documents/ComText.h>

using MSXML2::IXMLDOMDocumentPtr;
using MSXML2::IXMLDOMElementPtr;
using MSXML2::IXMLDOMNodeListPtr;
using MSXML2::IXMLDOMNodePtr;

namespace VyrC {

namespace {

/// `object` as another of its interfaces; null when it has no such one.
template <class Pointer>
Pointer As(IDispatch* object)
{
    void* found = nullptr;
    if (!object || FAILED(object->QueryInterface(Pointer::GetIID(), &found)))
        return nullptr;
    return {static_cast<typename Pointer::Interface*>(found), false};
}

/// Gives the reference to the host.
template <class Pointer>
IDispatch* Given(const Pointer& object)
{
    if (object)
        object->AddRef();
    return object.GetInterfacePtr();
}

/// The elements with that name below `object`; null when it is no element.
IXMLDOMNodeListPtr Below(IDispatch* object, const CString& name)
{
    IXMLDOMNodeListPtr elements;
    if (const auto element = As<IXMLDOMElementPtr>(object))
        _com_util::CheckError(element->getElementsByTagName(VyrPlatform::ToBstr(name), &elements));
    return elements;
}

} // namespace

IDispatch* XmlNodes::GetRoot(IDispatch* document)
{
    const auto found = As<IXMLDOMDocumentPtr>(document);
    IXMLDOMElementPtr root;
    if (found)
        _com_util::CheckError(found->get_documentElement(&root));
    return Given(root);
}

CString XmlNodes::GetText(IDispatch* element)
{
    _bstr_t text;
    if (const auto node = As<IXMLDOMElementPtr>(element))
        _com_util::CheckError(node->get_text(text.GetAddress()));
    return VyrPlatform::FromBstr(text);
}

CString XmlNodes::GetAttribute(IDispatch* element, CString name)
{
    _variant_t value;
    if (const auto found = As<IXMLDOMElementPtr>(element))
        _com_util::CheckError(found->getAttribute(VyrPlatform::ToBstr(name), &value));
    return value.vt == VT_BSTR ? VyrPlatform::FromBstr(value.bstrVal) : CString();
}

int XmlNodes::CountElements(IDispatch* element, CString name)
{
    LONG length = 0;
    if (const IXMLDOMNodeListPtr elements = Below(element, name))
        _com_util::CheckError(elements->get_length(&length));
    return length;
}

IDispatch* XmlNodes::GetElement(IDispatch* element, CString name, int index)
{
    IXMLDOMNodePtr found;
    if (const IXMLDOMNodeListPtr elements = Below(element, name); elements && index >= 0)
        _com_util::CheckError(elements->get_item(index, &found));
    return Given(found);
}

void XmlNodes::Release(IDispatch* object)
{
    if (!object)
        return;
    DropReference(object);
    object->Release();
}

} // namespace VyrC
