/// @file
/// The interfaces of XML documents, for Linux. Include XmlTypes.h instead.
///
/// Each call with a result writes it through its last argument. A missing item is S_FALSE with a null pointer or
/// VT_NULL.
#pragma once

#include <VyrPlatform/documents/LinuxCom.h>

#include <cstdint>

using VARIANT_BOOL = std::int16_t;
inline constexpr VARIANT_BOOL VARIANT_TRUE = -1;
inline constexpr VARIANT_BOOL VARIANT_FALSE = 0;

enum DOMNodeType
{
    NODE_ELEMENT = 1
};

struct IXMLDOMNode : IDispatch
{
    static constexpr IID interfaceId = {0x2933BF80, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};

    virtual HRESULT get_nodeType(DOMNodeType* type) = 0;
    /// The text below the node. Blanks at its ends are removed, and blanks alone between two tags become one blank,
    /// except in CDATA sections and under xml:space="preserve".
    virtual HRESULT get_text(BSTR* text) = 0;

protected:
    ~IXMLDOMNode() = default;
};

struct IXMLDOMNodeList : IDispatch
{
    static constexpr IID interfaceId = {0x2933BF82, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};

    virtual HRESULT get_length(LONG* length) = 0;
    virtual HRESULT get_item(LONG index, IXMLDOMNode** node) = 0;

protected:
    ~IXMLDOMNodeList() = default;
};

struct IXMLDOMElement : IXMLDOMNode
{
    static constexpr IID interfaceId = {0x2933BF86, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};

    /// The attribute with that name, which may have a prefix.
    virtual HRESULT getAttribute(BSTR name, VARIANT* value) = 0;
    /// The elements with that name without prefix, at any depth below this one, in document order; "*" gives all.
    virtual HRESULT getElementsByTagName(BSTR name, IXMLDOMNodeList** elements) = 0;

protected:
    ~IXMLDOMElement() = default;
};

struct IXMLDOMDocument : IDispatch
{
    static constexpr IID interfaceId = {0x2933BF81, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};

    /// Loading is always complete when `load` returns.
    virtual HRESULT put_async(VARIANT_BOOL isAsync) = 0;
    /// Loads the document at a path or an address, and replaces the former one.
    /// @param source  a BSTR.
    /// @return S_FALSE, with `isLoaded` VARIANT_FALSE, when it could not be read or is not well-formed.
    virtual HRESULT load(VARIANT source, VARIANT_BOOL* isLoaded) = 0;
    virtual HRESULT get_documentElement(IXMLDOMElement** element) = 0;

protected:
    ~IXMLDOMDocument() = default;
};
