// On Windows the interfaces have some five hundred members, of which the library calls nine. The objects are written as
// C has them, a table of functions for each interface, so that one function stands for all the other members.
#define CINTERFACE
#include <windows.h>

#include <VyrPlatform/text/WindowsCString.h>
#include <mshtml.h>
#include <oleauto.h>
#include <tests/support/HtmlPage.h>

#include <algorithm>
#include <deque>
#include <utility>

namespace VyrTests {

namespace {

struct ElementObjects;
struct PageObjects;

/// What all objects of one page share.
struct PageState
{
    std::vector<HtmlElement> elements;
    HtmlPage::Fault fault;
    int owners;
    PageObjects* page;
    std::deque<ElementObjects>* objects;
};

HRESULT STDMETHODCALLTYPE NotWritten()
{
    return E_NOTIMPL;
}

/// The functions of an interface, none of them written.
template <class Functions>
Functions Unwritten()
{
    Functions functions;
    std::fill_n(reinterpret_cast<void**>(&functions), sizeof(Functions) / sizeof(void*),
                reinterpret_cast<void*>(&NotWritten));
    return functions;
}

/// An interface of the page or of one of its elements. The caller sees its first member, the table.
template <class Interface>
struct Part
{
    Interface published;
    PageState* page;
    /// Of the element that it belongs to; not read otherwise.
    std::size_t index;
};

template <class Interface>
Part<Interface>& PartOf(Interface* published)
{
    return *reinterpret_cast<Part<Interface>*>(published);
}

template <class Interface>
HtmlElement& ElementOf(Interface* published)
{
    const Part<Interface>& part = PartOf(published);
    return part.page->elements[part.index];
}

template <class Interface>
ULONG STDMETHODCALLTYPE AddOwner(Interface* published)
{
    return static_cast<ULONG>(++PartOf(published).page->owners);
}

template <class Interface>
ULONG STDMETHODCALLTYPE RemoveOwner(Interface* published)
{
    return static_cast<ULONG>(--PartOf(published).page->owners);
}

/// Hands `part` out through `place`.
template <class Interface, class Given>
HRESULT Give(Part<Interface>& part, Given** place)
{
    ++part.page->owners;
    *place = reinterpret_cast<Given*>(&part.published);
    return S_OK;
}

bool IsCommon(REFIID id)
{
    return ::IsEqualGUID(id, IID_IUnknown) || ::IsEqualGUID(id, IID_IDispatch);
}

// The style.

HRESULT Put(const VARIANT& value, std::optional<CString>& place, bool isRefused)
{
    if (value.vt != VT_BSTR || isRefused)
        return E_FAIL;
    place = VyrPlatform::FromWide({value.bstrVal, ::SysStringLen(value.bstrVal)});
    return S_OK;
}

HRESULT STDMETHODCALLTYPE PutWidth(IHTMLStyle* style, VARIANT width)
{
    HtmlElement& element = ElementOf(style);
    return Put(width, element.styleWidth, element.fault == HtmlElement::Fault::StyleRefusesWidth);
}

HRESULT STDMETHODCALLTYPE PutHeight(IHTMLStyle* style, VARIANT height)
{
    HtmlElement& element = ElementOf(style);
    return Put(height, element.styleHeight, element.fault == HtmlElement::Fault::StyleRefusesHeight);
}

IHTMLStyleVtbl* StyleFunctions()
{
    static IHTMLStyleVtbl functions = [] {
        auto written = Unwritten<IHTMLStyleVtbl>();
        written.AddRef = &AddOwner<IHTMLStyle>;
        written.Release = &RemoveOwner<IHTMLStyle>;
        written.put_width = &PutWidth;
        written.put_height = &PutHeight;
        return written;
    }();
    return &functions;
}

/// The three interfaces of an element.
struct ElementObjects
{
    Part<IHTMLImgElement> picture;
    Part<IHTMLElement> element;
    Part<IHTMLStyle> style;
};

/// The two interfaces of the page itself.
struct PageObjects
{
    Part<IHTMLDocument2> document;
    Part<IHTMLElementCollection> list;
};

template <class Interface>
ElementObjects& ObjectsOf(Interface* published)
{
    const Part<Interface>& part = PartOf(published);
    return (*part.page->objects)[part.index];
}

// The element.

HRESULT STDMETHODCALLTYPE GetStyle(IHTMLElement* published, IHTMLStyle** style)
{
    ElementOf(published).onStyle();
    *style = nullptr;
    switch (ElementOf(published).fault) {
    case HtmlElement::Fault::NoStyle:
        return E_FAIL;
    case HtmlElement::Fault::NoStyleObject:
        return S_OK;
    default:
        return Give(ObjectsOf(published).style, style);
    }
}

IHTMLElementVtbl* ElementFunctions()
{
    static IHTMLElementVtbl functions = [] {
        auto written = Unwritten<IHTMLElementVtbl>();
        written.AddRef = &AddOwner<IHTMLElement>;
        written.Release = &RemoveOwner<IHTMLElement>;
        written.get_style = &GetStyle;
        return written;
    }();
    return &functions;
}

HRESULT STDMETHODCALLTYPE FindElementInterface(IHTMLImgElement* published, REFIID id, void** object)
{
    const HtmlElement::Fault fault = ElementOf(published).fault;
    *object = nullptr;
    if (IsCommon(id) || (::IsEqualGUID(id, IID_IHTMLImgElement) && fault != HtmlElement::Fault::NoPicture))
        return Give(ObjectsOf(published).picture, object);
    if (::IsEqualGUID(id, IID_IHTMLElement) && fault != HtmlElement::Fault::NoElement)
        return Give(ObjectsOf(published).element, object);
    return E_NOINTERFACE;
}

HRESULT STDMETHODCALLTYPE GetAddress(IHTMLImgElement* published, BSTR* address)
{
    const HtmlElement& element = ElementOf(published);
    if (element.fault == HtmlElement::Fault::NoAddress)
        return E_FAIL;
    const bool isNull = element.address.IsEmpty() && PartOf(published).index == 0;
    *address = isNull ? nullptr : ::SysAllocString(VyrPlatform::ToWide(element.address));
    return S_OK;
}

HRESULT STDMETHODCALLTYPE GetWidth(IHTMLImgElement* published, LONG* width)
{
    *width = ElementOf(published).width;
    return ElementOf(published).fault == HtmlElement::Fault::NoWidth ? E_FAIL : S_OK;
}

HRESULT STDMETHODCALLTYPE GetHeight(IHTMLImgElement* published, LONG* height)
{
    *height = ElementOf(published).height;
    return ElementOf(published).fault == HtmlElement::Fault::NoHeight ? E_FAIL : S_OK;
}

IHTMLImgElementVtbl* PictureFunctions()
{
    static IHTMLImgElementVtbl functions = [] {
        auto written = Unwritten<IHTMLImgElementVtbl>();
        written.QueryInterface = &FindElementInterface;
        written.AddRef = &AddOwner<IHTMLImgElement>;
        written.Release = &RemoveOwner<IHTMLImgElement>;
        written.get_src = &GetAddress;
        written.get_width = &GetWidth;
        written.get_height = &GetHeight;
        return written;
    }();
    return &functions;
}

// The list of elements.

HRESULT STDMETHODCALLTYPE GetLength(IHTMLElementCollection* published, LONG* length)
{
    const PageState& page = *PartOf(published).page;
    *length = page.fault == HtmlPage::Fault::NegativeLength ? -1 : static_cast<LONG>(page.elements.size());
    return page.fault == HtmlPage::Fault::NoLength ? E_FAIL : S_OK;
}

HRESULT STDMETHODCALLTYPE GetItem(IHTMLElementCollection* published, VARIANT name, VARIANT /*index*/,
                                  IDispatch** element)
{
    PageState& page = *PartOf(published).page;
    *element = nullptr;
    if (name.vt != VT_I4 || name.lVal < 0 || static_cast<std::size_t>(name.lVal) >= page.elements.size())
        return E_INVALIDARG;
    const auto place = static_cast<std::size_t>(name.lVal);
    if (page.elements[place].fault == HtmlElement::Fault::NotInList)
        return E_FAIL;
    if (page.elements[place].fault == HtmlElement::Fault::NoObject)
        return S_OK;
    return Give((*page.objects)[place].picture, element);
}

IHTMLElementCollectionVtbl* ListFunctions()
{
    static IHTMLElementCollectionVtbl functions = [] {
        auto written = Unwritten<IHTMLElementCollectionVtbl>();
        written.AddRef = &AddOwner<IHTMLElementCollection>;
        written.Release = &RemoveOwner<IHTMLElementCollection>;
        written.get_length = &GetLength;
        written.item = &GetItem;
        return written;
    }();
    return &functions;
}

// The page.

HRESULT STDMETHODCALLTYPE FindPageInterface(IHTMLDocument2* published, REFIID id, void** object)
{
    const PageState& page = *PartOf(published).page;
    *object = nullptr;
    if (IsCommon(id) || (::IsEqualGUID(id, IID_IHTMLDocument2) && page.fault != HtmlPage::Fault::NoPage))
        return Give(page.page->document, object);
    return E_NOINTERFACE;
}

HRESULT STDMETHODCALLTYPE GetAll(IHTMLDocument2* published, IHTMLElementCollection** elements)
{
    const PageState& page = *PartOf(published).page;
    *elements = nullptr;
    if (page.fault == HtmlPage::Fault::NoList)
        return E_FAIL;
    if (page.fault == HtmlPage::Fault::NoListObject)
        return S_OK;
    return Give(page.page->list, elements);
}

IHTMLDocument2Vtbl* PageFunctions()
{
    static IHTMLDocument2Vtbl functions = [] {
        auto written = Unwritten<IHTMLDocument2Vtbl>();
        written.QueryInterface = &FindPageInterface;
        written.AddRef = &AddOwner<IHTMLDocument2>;
        written.Release = &RemoveOwner<IHTMLDocument2>;
        written.get_all = &GetAll;
        return written;
    }();
    return &functions;
}

} // namespace

struct HtmlPage::Objects
{
    Objects(std::vector<HtmlElement> elements, Fault fault)
        : state{std::move(elements), fault, 0, &page, &objects}, page{{{PageFunctions()}, &state, 0},
                                                                      {{ListFunctions()}, &state, 0}}
    {
        for (std::size_t index = 0; index < state.elements.size(); ++index)
            objects.push_back({{{PictureFunctions()}, &state, index},
                               {{ElementFunctions()}, &state, index},
                               {{StyleFunctions()}, &state, index}});
    }

    PageState state;
    PageObjects page;
    std::deque<ElementObjects> objects;
};

HtmlPage::HtmlPage(std::vector<HtmlElement> elements, Fault fault)
    : m_objects(std::make_unique<Objects>(std::move(elements), fault))
{}

HtmlPage::~HtmlPage() = default;

IDispatch* HtmlPage::Document()
{
    return reinterpret_cast<IDispatch*>(&m_objects->page.document.published);
}

const std::vector<HtmlElement>& HtmlPage::Elements() const
{
    return m_objects->state.elements;
}

int HtmlPage::CountOwners() const
{
    return m_objects->state.owners;
}

} // namespace VyrTests
