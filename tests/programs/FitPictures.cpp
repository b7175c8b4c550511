// For tests: fits the elements of a page, as a browser shows them, into its window.
//
// Input: the window's width and height, then for each element four numbers: whether it is a picture, whether it has an
// address, and its shown width and height. Output: a line for each element, its new width and height, or "untouched".
#include <VyrLibraryFuncs/html/MSHTMLImgFuncs.h>
#include <VyrPlatform/text/Encoding.h>

#include <tests/support/HtmlPage.h>

#include <iostream>
#include <vector>

using VyrTests::HtmlElement;
using VyrTests::HtmlPage;

namespace {

std::string Narrow(const CString& text)
{
    return VyrPlatform::Encoding::ToNameBytes(text);
}

} // namespace

int main()
{
    CRect client;
    std::cin >> client.right >> client.bottom;
    std::vector<HtmlElement> elements;
    bool isPicture = false;
    bool hasAddress = false;
    HtmlElement element;
    while (std::cin >> isPicture >> hasAddress >> element.width >> element.height) {
        element.fault = isPicture ? HtmlElement::Fault::None : HtmlElement::Fault::NoPicture;
        element.address = hasAddress ? u"picture" : u"";
        elements.push_back(element);
    }
    HtmlPage page(std::move(elements));
    VyrLibraryFuncs::MSHTMLImgFuncs::SetResizeImgStyle(page.Document(), client);
    for (const HtmlElement& shown : page.Elements()) {
        if (shown.styleWidth && shown.styleHeight)
            std::cout << Narrow(*shown.styleWidth) << ' ' << Narrow(*shown.styleHeight) << '\n';
        else
            std::cout << "untouched\n";
    }
}
