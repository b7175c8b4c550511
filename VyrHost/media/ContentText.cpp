#include <VyrHost/media/ContentReaders.h>

#include <algorithm>
#include <string>

namespace VyrHost::Media {

namespace {

/// Skips blanks, comments, processing instructions and document types other than HTML.
std::string_view FromFirstElement(std::string_view text)
{
    for (;;) {
        text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size()));
        std::string_view end;
        if (text.starts_with("<?"))
            end = "?>";
        else if (text.starts_with("<!--"))
            end = "-->";
        else if (text.starts_with("<!doctype svg"))
            end = ">";
        if (end.empty())
            return text;
        const std::size_t at = text.find(end);
        text.remove_prefix(at == std::string_view::npos ? text.size() : at + end.size());
    }
}

} // namespace

std::u16string_view KindOfText(const VyrLibraryUtils::Pictures::ByteView& file)
{
    constexpr std::size_t headSize = 4096;
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    std::string head = file.Copy(headSize);
    if (head.starts_with("%!PS"))
        return std::string_view(head).substr(0, head.find_first_of("\r\n")).find("EPSF") == std::string_view::npos
                   ? u"ps"
                   : u"eps";
    // The header for screen previews, before the PostScript.
    if (head.starts_with("\xC5\xD0\xD3\xC6"))
        return u"eps";
    std::transform(head.begin(), head.end(), head.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
    });
    std::string_view text = head;
    text.remove_prefix(text.starts_with(mark) ? mark.size() : 0);
    text = FromFirstElement(text);
    if (text.starts_with("<svg"))
        return u"svg";
    return text.starts_with("<!doctype html") || text.starts_with("<html") ? u"html" : u"";
}

} // namespace VyrHost::Media
