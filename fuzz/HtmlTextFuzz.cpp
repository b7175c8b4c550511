// Any text in a page: libxml2's reader of HTML gives back the very text that was put in, from an element and from an
// attribute, and finds nothing else there. A link has a safe scheme and characters of addresses alone.
#include <VyrHost/reports/HtmlText.h>
#include <VyrPlatform/text/Encoding.h>

#include <libxml/HTMLparser.h>
#include <libxml/xmlerror.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <string_view>

namespace {

using VyrHost::Reports::AppendEscaped;

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

bool IsPair(std::u16string_view text, std::size_t at)
{
    return at + 1 < text.size() && (text[at] & 0xFC00) == 0xD800 && (text[at + 1] & 0xFC00) == 0xDC00;
}

/// What a page can hold of `text`, in UTF-8.
std::string HeldText(std::u16string_view text)
{
    std::u16string held;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char16_t unit = text[at];
        if (IsPair(text, at)) {
            held.append(text.substr(at++, 2));
            continue;
        }
        const bool isLineOrTab = unit == 9 || unit == 10 || unit == 13;
        const bool isControl = (unit < 32 && !isLineOrTab) || (unit >= 127 && unit < 160);
        const bool isNone = (unit & 0xF800) == 0xD800 || (unit >= 0xFDD0 && unit < 0xFDF0) || unit >= 0xFFFE;
        held += isControl || isNone ? u'\xFFFD' : unit;
    }
    return VyrPlatform::Encoding::ToUtf8(held);
}

std::string_view View(const xmlChar* text)
{
    return text ? reinterpret_cast<const char*>(text) : std::string_view();
}

void CheckPage(std::u16string_view text)
{
    std::string escaped;
    AppendEscaped(escaped, text);
    const std::string page = "<!DOCTYPE html><html><head><meta charset=\"utf-8\"></head><body><div title=\"" + escaped +
                             "\">" + escaped + "</div></body></html>";
    const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> document(
        htmlReadMemory(page.data(), static_cast<int>(page.size()), nullptr, "UTF-8",
                       HTML_PARSE_NONET | HTML_PARSE_NOERROR | HTML_PARSE_NOWARNING),
        &xmlFreeDoc);
    Require(document != nullptr);
    const xmlNode* const body = xmlDocGetRootElement(document.get())->last;
    Require(body && View(body->name) == "body" && body->children && body->children == body->last);
    const xmlNode* const element = body->children;
    Require(View(element->name) == "div" && element->properties && !element->properties->next);
    const std::string held = HeldText(text);
    for (const xmlNode* const content :
         {static_cast<const xmlNode*>(element->children), static_cast<const xmlNode*>(element->properties->children)}) {
        std::string found;
        for (const xmlNode* node = content; node; node = node->next) {
            Require(node->type == XML_TEXT_NODE);
            found += View(node->content);
        }
        Require(found == held);
    }
}

void CheckLink(std::u16string_view text)
{
    const auto link = VyrHost::Reports::LinkTo(text);
    if (!link)
        return;
    const std::string_view scheme = std::string_view(*link).substr(0, link->find(':'));
    Require(scheme.size() == 4 || scheme.size() == 5);
    Require((scheme[0] | 0x20) == 'h' && (scheme[3] | 0x20) == 'p');
    for (const char byte : *link)
        Require(byte > ' ' && byte < 0x7F && byte != '"' && byte != '<' && byte != '>' && byte != '\'');
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    xmlSetStructuredErrorFunc(nullptr, [](void*, xmlError*) {});
    std::u16string text(size / 2, u'\0');
    std::memcpy(text.data(), data, text.size() * 2);
    CheckPage(text);
    CheckLink(text);
    CheckLink(u"https://" + text);
    // The same bytes as ASCII, which reach more markup.
    CheckPage(std::u16string(data, data + size));
    return 0;
}
