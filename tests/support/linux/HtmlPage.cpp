// On Linux the interfaces have only those members that the library calls.
#include <tests/support/HtmlPage.h>

#include <VyrPlatform/documents/HtmlTypes.h>

#include <deque>
#include <utility>

namespace VyrTests {

namespace {

/// What all objects of one page share.
struct PageState
{
    std::vector<HtmlElement> elements;
    HtmlPage::Fault fault;
    int owners = 0;
};

/// An object with the interface `Interface`.
template <class Interface>
class Part : public Interface
{
public:
    explicit Part(PageState& page) : m_page(page) {}

    HRESULT QueryInterface(REFIID id, void** object) override
    {
        *object = Find(id);
        m_page.owners += *object != nullptr;
        return *object ? S_OK : E_NOINTERFACE;
    }
    ULONG AddRef() override { return static_cast<ULONG>(++m_page.owners); }
    ULONG Release() override { return static_cast<ULONG>(--m_page.owners); }

protected:
    ~Part() = default;

    [[nodiscard]] virtual void* Find(REFIID id)
    {
        return id == Interface::interfaceId || id == IUnknown::interfaceId || id == IDispatch::interfaceId
                   ? static_cast<Interface*>(this)
                   : nullptr;
    }
    [[nodiscard]] PageState& Page() const { return m_page; }

    /// Hands `object` out through `place`.
    template <class Given>
    HRESULT Give(Given* object, Given** place)
    {
        ++m_page.owners;
        *place = object;
        return S_OK;
    }

private:
    PageState& m_page;
};

class Style final : public Part<IHTMLStyle>
{
public:
    Style(PageState& page, HtmlElement& element) : Part(page), m_element(element) {}

    HRESULT put_width(VARIANT width) override
    {
        return Put(width, m_element.styleWidth, HtmlElement::Fault::StyleRefusesWidth);
    }
    HRESULT put_height(VARIANT height) override
    {
        return Put(height, m_element.styleHeight, HtmlElement::Fault::StyleRefusesHeight);
    }

private:
    HRESULT Put(const VARIANT& value, std::optional<CString>& place, HtmlElement::Fault fault) const
    {
        if (value.vt != VT_BSTR || m_element.fault == fault)
            return E_FAIL;
        place = CString(value.bstrVal);
        return S_OK;
    }

    HtmlElement& m_element;
};

/// An element with both of its interfaces.
class Element final : public Part<IHTMLImgElement>
{
public:
    Element(PageState& page, HtmlElement& element)
        : Part(page), m_element(element), m_style(page, element), m_general(page, *this)
    {}

    HRESULT get_src(BSTR* address) override
    {
        if (m_element.fault == HtmlElement::Fault::NoAddress)
            return E_FAIL;
        const bool isNull = m_element.address.IsEmpty() && &m_element == Page().elements.data();
        *address = isNull ? nullptr : SysAllocString(m_element.address.GetString());
        return S_OK;
    }
    HRESULT get_width(LONG* width) override
    {
        *width = m_element.width;
        return m_element.fault == HtmlElement::Fault::NoWidth ? E_FAIL : S_OK;
    }
    HRESULT get_height(LONG* height) override
    {
        *height = m_element.height;
        return m_element.fault == HtmlElement::Fault::NoHeight ? E_FAIL : S_OK;
    }

private:
    class General final : public Part<IHTMLElement>
    {
    public:
        General(PageState& page, Element& element) : Part(page), m_element(element) {}

        HRESULT get_style(IHTMLStyle** style) override
        {
            m_element.m_element.onStyle();
            *style = nullptr;
            if (m_element.m_element.fault == HtmlElement::Fault::NoStyle)
                return E_FAIL;
            if (m_element.m_element.fault == HtmlElement::Fault::NoStyleObject)
                return S_OK;
            return Give<IHTMLStyle>(&m_element.m_style, style);
        }

    private:
        Element& m_element;
    };

    [[nodiscard]] void* Find(REFIID id) override
    {
        if (m_element.fault == HtmlElement::Fault::NoPicture && id == IHTMLImgElement::interfaceId)
            return nullptr;
        if (id == IHTMLElement::interfaceId)
            return m_element.fault == HtmlElement::Fault::NoElement ? nullptr : static_cast<IHTMLElement*>(&m_general);
        return Part::Find(id);
    }

    HtmlElement& m_element;
    Style m_style;
    General m_general;
};

class List final : public Part<IHTMLElementCollection>
{
public:
    explicit List(PageState& page) : Part(page)
    {
        for (HtmlElement& element : page.elements)
            m_elements.emplace_back(page, element);
    }

    HRESULT get_length(LONG* length) override
    {
        *length = Page().fault == HtmlPage::Fault::NegativeLength ? -1 : static_cast<LONG>(m_elements.size());
        return Page().fault == HtmlPage::Fault::NoLength ? E_FAIL : S_OK;
    }
    HRESULT item(VARIANT name, VARIANT /*index*/, IDispatch** element) override
    {
        *element = nullptr;
        if (name.vt != VT_I4 || name.lVal < 0 || static_cast<std::size_t>(name.lVal) >= m_elements.size())
            return E_INVALIDARG;
        const auto place = static_cast<std::size_t>(name.lVal);
        if (Page().elements[place].fault == HtmlElement::Fault::NotInList)
            return E_FAIL;
        if (Page().elements[place].fault == HtmlElement::Fault::NoObject)
            return S_OK;
        return Give<IDispatch>(&m_elements[place], element);
    }

private:
    std::deque<Element> m_elements;
};

class Page final : public Part<IHTMLDocument2>
{
public:
    explicit Page(PageState& page) : Part(page), m_list(page) {}

    HRESULT get_all(IHTMLElementCollection** elements) override
    {
        *elements = nullptr;
        if (Part::Page().fault == HtmlPage::Fault::NoList)
            return E_FAIL;
        if (Part::Page().fault == HtmlPage::Fault::NoListObject)
            return S_OK;
        return Give<IHTMLElementCollection>(&m_list, elements);
    }

private:
    [[nodiscard]] void* Find(REFIID id) override
    {
        if (Part::Page().fault == HtmlPage::Fault::NoPage && id == IHTMLDocument2::interfaceId)
            return nullptr;
        return Part::Find(id);
    }

    List m_list;
};

} // namespace

struct HtmlPage::Objects
{
    Objects(std::vector<HtmlElement> elements, Fault fault) : state{std::move(elements), fault}, page(state) {}

    PageState state;
    Page page;
};

HtmlPage::HtmlPage(std::vector<HtmlElement> elements, Fault fault)
    : m_objects(std::make_unique<Objects>(std::move(elements), fault))
{}

HtmlPage::~HtmlPage() = default;

IDispatch* HtmlPage::Document()
{
    return &m_objects->page;
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
