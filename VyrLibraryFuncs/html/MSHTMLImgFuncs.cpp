#include <VyrLibraryFuncs/html/MSHTMLImgFuncs.h>

#include <VyrPlatform/documents/HtmlTypes.h>

#include <optional>

namespace VyrLibraryFuncs {

namespace {

/// In 64 bits, since the edges may be as far apart as 32 bits allow.
std::int64_t Width(const CRect& rectangle)
{
    return std::int64_t{rectangle.right} - rectangle.left;
}

std::int64_t Height(const CRect& rectangle)
{
    return std::int64_t{rectangle.bottom} - rectangle.top;
}

/// Width to height; 0 without an area.
double Ratio(std::int64_t width, std::int64_t height)
{
    return width <= 0 || height <= 0 ? 0.0 : static_cast<double>(width) / static_cast<double>(height);
}

/// The interface of `object` that `Pointer` owns; null for a null pointer and for objects without that interface.
template <class Pointer>
Pointer As(IUnknown* object)
{
    void* found = nullptr;
    if (!object || FAILED(object->QueryInterface(Pointer::GetIID(), &found)))
        return nullptr;
    return Pointer(static_cast<typename Pointer::Interface*>(found), false);
}

IHTMLElementCollectionPtr ElementsOf(const IHTMLDocument2Ptr& page)
{
    IHTMLElementCollectionPtr elements;
    if (!page || FAILED(page->get_all(&elements)))
        return nullptr;
    return elements;
}

LONG CountElements(const IHTMLElementCollectionPtr& elements)
{
    LONG count = 0;
    return elements && SUCCEEDED(elements->get_length(&count)) ? count : 0;
}

IHTMLImgElementPtr PictureAt(const IHTMLElementCollectionPtr& elements, LONG index)
{
    IDispatch* element = nullptr;
    const _variant_t position(index);
    const _variant_t none{};
    if (FAILED(elements->item(position, none, &element)) || !element)
        return nullptr;
    auto picture = As<IHTMLImgElementPtr>(element);
    element->Release();
    return picture;
}

bool HasAddress(const IHTMLImgElementPtr& picture)
{
    _bstr_t address;
    return SUCCEEDED(picture->get_src(address.GetAddress())) && address.length() > 0;
}

struct Size
{
    LONG width = 0;
    LONG height = 0;
};

/// The size at which `picture` is shown.
std::optional<Size> ShownSize(const IHTMLImgElementPtr& picture)
{
    Size size;
    if (FAILED(picture->get_width(&size.width)) || FAILED(picture->get_height(&size.height)))
        return std::nullopt;
    return size;
}

void SetStyle(const IHTMLImgElementPtr& picture, const OLECHAR* width, const OLECHAR* height)
{
    IHTMLStylePtr style;
    const auto element = As<IHTMLElementPtr>(picture);
    if (!element || FAILED(element->get_style(&style)) || !style)
        return;
    // Both texts are created first: without memory for one, neither is set.
    const _variant_t widthValue(width);
    const _variant_t heightValue(height);
    style->put_width(widthValue);
    style->put_height(heightValue);
}

} // namespace

MSHTMLImgFuncs::MSHTMLImgFuncs() = default;
MSHTMLImgFuncs::~MSHTMLImgFuncs() = default;
MSHTMLImgFuncs& MSHTMLImgFuncs::operator=(const MSHTMLImgFuncs&) = default;

void MSHTMLImgFuncs::SetResizeImgStyle(IDispatch* document, CRect client)
{
    const IHTMLElementCollectionPtr elements = ElementsOf(As<IHTMLDocument2Ptr>(document));
    const LONG count = CountElements(elements);
    for (LONG index = 0; index < count; ++index) {
        const IHTMLImgElementPtr picture = PictureAt(elements, index);
        if (!picture || !HasAddress(picture))
            continue;
        const std::optional<Size> shown = ShownSize(picture);
        if (!shown || !IsImageBiggerThanClient(client, shown->width, shown->height))
            continue;
        if (GetImageRatio(shown->width, shown->height) > GetClientRatio(client))
            SetStyle(picture, OLESTR("100%"), OLESTR("auto"));
        else
            SetStyle(picture, OLESTR("auto"), OLESTR("100%"));
    }
}

int MSHTMLImgFuncs::IsImageBiggerThanClient(CRect client, std::int32_t imageWidth, std::int32_t imageHeight)
{
    return Width(client) < imageWidth || Height(client) < imageHeight;
}

double MSHTMLImgFuncs::GetClientRatio(CRect client)
{
    return Ratio(Width(client), Height(client));
}

double MSHTMLImgFuncs::GetImageRatio(std::int32_t imageWidth, std::int32_t imageHeight)
{
    return Ratio(imageWidth, imageHeight);
}

} // namespace VyrLibraryFuncs
