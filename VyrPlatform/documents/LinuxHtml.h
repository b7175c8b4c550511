/// @file
/// The interfaces of a page's document object, for Linux. Include HtmlTypes.h instead.
///
/// Each call with a result writes it through its last argument and returns S_OK, or returns a failure.
#pragma once

#include <VyrPlatform/documents/LinuxCom.h>

/// The elements of a page.
struct IHTMLElementCollection : IDispatch
{
    static constexpr IID interfaceId = {0x3050F21F, 0x98B5, 0x11CF, {0xBB, 0x82, 0x00, 0xAA, 0x00, 0xBD, 0xCE, 0x0B}};

    virtual HRESULT get_length(LONG* length) = 0;
    /// @param name the element's index from 0, as a number (VT_I4).
    /// @param index not read when `name` is a number.
    virtual HRESULT item(VARIANT name, VARIANT index, IDispatch** element) = 0;

protected:
    ~IHTMLElementCollection() = default;
};

/// A page.
struct IHTMLDocument2 : IDispatch
{
    static constexpr IID interfaceId = {0x332C4425, 0x26CB, 0x11D0, {0xB4, 0x83, 0x00, 0xC0, 0x4F, 0xD9, 0x01, 0x19}};

    /// All elements, in document order.
    virtual HRESULT get_all(IHTMLElementCollection** elements) = 0;

protected:
    ~IHTMLDocument2() = default;
};

/// The style of one element: its `style` attribute.
struct IHTMLStyle : IDispatch
{
    static constexpr IID interfaceId = {0x3050F25E, 0x98B5, 0x11CF, {0xBB, 0x82, 0x00, 0xAA, 0x00, 0xBD, 0xCE, 0x0B}};

    /// @param width a CSS value as a text (VT_BSTR).
    virtual HRESULT put_width(VARIANT width) = 0;
    virtual HRESULT put_height(VARIANT height) = 0;

protected:
    ~IHTMLStyle() = default;
};

/// Any element.
struct IHTMLElement : IDispatch
{
    static constexpr IID interfaceId = {0x3050F1FF, 0x98B5, 0x11CF, {0xBB, 0x82, 0x00, 0xAA, 0x00, 0xBD, 0xCE, 0x0B}};

    virtual HRESULT get_style(IHTMLStyle** style) = 0;

protected:
    ~IHTMLElement() = default;
};

/// An element that shows a picture.
struct IHTMLImgElement : IDispatch
{
    static constexpr IID interfaceId = {0x3050F240, 0x98B5, 0x11CF, {0xBB, 0x82, 0x00, 0xAA, 0x00, 0xBD, 0xCE, 0x0B}};

    /// The address of the picture; empty where it has none.
    virtual HRESULT get_src(BSTR* address) = 0;
    /// The shown width in pixels.
    virtual HRESULT get_width(LONG* width) = 0;
    virtual HRESULT get_height(LONG* height) = 0;

protected:
    ~IHTMLImgElement() = default;
};
