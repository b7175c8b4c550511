// XML documents as COM objects over libxml2's tree.
#include "XmlSource.h"
#include "XmlTree.h"

#include <VyrPlatform/documents/ComText.h>
#include <VyrPlatform/documents/XmlTypes.h>
#include <VyrPlatform/text/Encoding.h>

#include <libxml/tree.h>

#include <atomic>
#include <new>
#include <string>
#include <string_view>
#include <vector>

namespace VyrPlatform {

namespace {

constexpr CLSID documentClass{0xF5078F32, 0xC551, 0x11D3, {0x89, 0xB9, 0x00, 0x00, 0xF8, 0x1F, 0xE2, 0x21}};
constexpr CLSID freeThreadedDocumentClass{0xF5078F33, 0xC551, 0x11D3, {0x89, 0xB9, 0x00, 0x00, 0xF8, 0x1F, 0xE2, 0x21}};

/// Calls `work`, and converts its exceptions to COM's codes.
template <class Work>
HRESULT Guarded(Work work) noexcept
{
    try {
        return work();
    } catch (const std::bad_alloc&) {
        return E_OUTOFMEMORY;
    } catch (const _com_error& error) {
        return error.Error();
    }
}

/// An object with its `Interface` and the `Bases` of that, which is deleted with its last reference; it begins with
/// one.
template <class Interface, class... Bases>
class Counted : public Interface
{
public:
    Counted() = default;
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    virtual ~Counted() = default;

    HRESULT QueryInterface(REFIID id, void** object) final
    {
        if (!object)
            return E_POINTER;
        const bool isKnown = id == __uuidof(Interface) || id == __uuidof(IDispatch) || id == __uuidof(IUnknown) ||
                             (... || (id == __uuidof(Bases)));
        *object = isKnown ? static_cast<Interface*>(this) : nullptr;
        if (!isKnown)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG AddRef() final { return ++m_owners; }
    ULONG Release() final
    {
        const ULONG left = --m_owners;
        if (left == 0)
            delete this;
        return left;
    }

private:
    std::atomic<ULONG> m_owners = 1;
};

/// Returns a new `Object`, made from `arguments`, through the interface.
template <class Object, class Interface, class... Arguments>
HRESULT Give(Interface** place, Arguments&&... arguments)
{
    *place = new Object(std::forward<Arguments>(arguments)...);
    return S_OK;
}

HRESULT GiveText(BSTR* place, const CString& text)
{
    *place = SysAllocString(text.GetString());
    return *place ? S_OK : E_OUTOFMEMORY;
}

class Element final : public Counted<IXMLDOMElement, IXMLDOMNode>
{
public:
    Element(XmlTree tree, xmlNode* node) : m_tree(std::move(tree)), m_node(node) {}

    HRESULT get_nodeType(DOMNodeType* type) override;
    HRESULT get_text(BSTR* text) override;
    HRESULT getAttribute(BSTR name, VARIANT* value) override;
    HRESULT getElementsByTagName(BSTR name, IXMLDOMNodeList** elements) override;

private:
    XmlTree m_tree;
    xmlNode* m_node;
};

class ElementList final : public Counted<IXMLDOMNodeList>
{
public:
    ElementList(XmlTree tree, std::vector<xmlNode*> nodes) : m_tree(std::move(tree)), m_nodes(std::move(nodes)) {}

    HRESULT get_length(LONG* length) override;
    HRESULT get_item(LONG index, IXMLDOMNode** node) override;

private:
    XmlTree m_tree;
    std::vector<xmlNode*> m_nodes;
};

class Document final : public Counted<IXMLDOMDocument>
{
public:
    HRESULT put_async(VARIANT_BOOL isAsync) override;
    HRESULT load(VARIANT source, VARIANT_BOOL* isLoaded) override;
    HRESULT get_documentElement(IXMLDOMElement** element) override;

private:
    XmlTree m_tree;
};

HRESULT Element::get_nodeType(DOMNodeType* type)
{
    if (!type)
        return E_INVALIDARG;
    *type = NODE_ELEMENT;
    return S_OK;
}

HRESULT Element::get_text(BSTR* text)
{
    if (!text)
        return E_INVALIDARG;
    return Guarded([&] { return GiveText(text, TextOf(m_node)); });
}

/// The attribute's name in the document, with its prefix.
std::string NameOf(const xmlAttr* attribute)
{
    std::string name(reinterpret_cast<const char*>(attribute->name));
    if (attribute->ns && attribute->ns->prefix)
        name.insert(0, std::string(reinterpret_cast<const char*>(attribute->ns->prefix)) + ':');
    return name;
}

CString ValueOf(xmlAttr* attribute)
{
    xmlChar* const value = xmlNodeListGetString(attribute->doc, attribute->children, 1);
    const std::unique_ptr<xmlChar, decltype(xmlFree)> owner(value, xmlFree);
    return value ? Encoding::FromUtf8(reinterpret_cast<const char*>(value)) : CString();
}

HRESULT Element::getAttribute(BSTR name, VARIANT* value)
{
    if (!name || !value)
        return E_INVALIDARG;
    value->vt = VT_NULL;
    return Guarded([&] {
        const std::string wanted = Encoding::ToUtf8(name);
        for (xmlAttr* attribute = m_node->properties; attribute; attribute = attribute->next)
            if (NameOf(attribute) == wanted) {
                const HRESULT result = GiveText(&value->bstrVal, ValueOf(attribute));
                value->vt = result == S_OK ? VT_BSTR : VT_NULL;
                return result;
            }
        return S_FALSE;
    });
}

HRESULT Element::getElementsByTagName(BSTR name, IXMLDOMNodeList** elements)
{
    if (!name || !elements)
        return E_INVALIDARG;
    *elements = nullptr;
    return Guarded([&] {
        const std::string wanted = Encoding::ToUtf8(name);
        std::vector<xmlNode*> found;
        for (xmlNode* node = NextBelow(m_node, m_node); node; node = NextBelow(node, m_node))
            if (node->type == XML_ELEMENT_NODE &&
                (wanted == "*" || wanted == reinterpret_cast<const char*>(node->name)))
                found.push_back(node);
        return Give<ElementList>(elements, m_tree, std::move(found));
    });
}

HRESULT ElementList::get_length(LONG* length)
{
    if (!length)
        return E_INVALIDARG;
    *length = static_cast<LONG>(m_nodes.size());
    return S_OK;
}

HRESULT ElementList::get_item(LONG index, IXMLDOMNode** node)
{
    if (!node)
        return E_INVALIDARG;
    *node = nullptr;
    if (index < 0 || static_cast<std::size_t>(index) >= m_nodes.size())
        return S_FALSE;
    return Guarded([&] { return Give<Element>(node, m_tree, m_nodes[static_cast<std::size_t>(index)]); });
}

HRESULT Document::put_async(VARIANT_BOOL /*isAsync*/)
{
    return S_OK;
}

HRESULT Document::load(VARIANT source, VARIANT_BOOL* isLoaded)
{
    if (!isLoaded || source.vt != VT_BSTR)
        return E_INVALIDARG;
    *isLoaded = VARIANT_FALSE;
    m_tree = nullptr;
    return Guarded([&] {
        if (const std::optional<XmlBytes> bytes = OpenXmlSource(FromBstr(source.bstrVal)))
            m_tree = ParseXml(*bytes);
        if (!m_tree)
            return S_FALSE;
        *isLoaded = VARIANT_TRUE;
        return S_OK;
    });
}

HRESULT Document::get_documentElement(IXMLDOMElement** element)
{
    if (!element)
        return E_INVALIDARG;
    *element = nullptr;
    xmlNode* const root = m_tree ? xmlDocGetRootElement(m_tree.get()) : nullptr;
    if (!root)
        return S_FALSE;
    return Guarded([&] { return Give<Element>(element, m_tree, root); });
}

} // namespace

} // namespace VyrPlatform

HRESULT CoCreateInstance(REFCLSID classId, IUnknown* /*outer*/, std::uint32_t /*context*/, REFIID id, void** object)
{
    using namespace VyrPlatform;
    if (!object)
        return E_POINTER;
    *object = nullptr;
    if (classId != documentClass && classId != freeThreadedDocumentClass)
        return REGDB_E_CLASSNOTREG;
    return Guarded([&] {
        auto* const document = new Document();
        const HRESULT result = document->QueryInterface(id, object);
        document->Release();
        return result;
    });
}
