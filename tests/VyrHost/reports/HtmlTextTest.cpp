// Texts of users and files in a page.
#include <VyrHost/reports/HtmlText.h>

#include <gtest/gtest.h>

using namespace VyrHost::Reports;

namespace {

std::string Escaped(std::u16string_view text)
{
    std::string html;
    AppendEscaped(html, text);
    return html;
}

} // namespace

TEST(HtmlText, MarkupIsShownAsText)
{
    EXPECT_EQ(Escaped(u"<script>alert('x')</script>"), "&lt;script&gt;alert(&#39;x&#39;)&lt;/script&gt;");
    EXPECT_EQ(Escaped(u"a & b \"c\" &amp;"), "a &amp; b &quot;c&quot; &amp;amp;");
    EXPECT_EQ(Escaped(u"%s \u00E4\u65E5\U0001F600"), "%s \xC3\xA4\xE6\x97\xA5\xF0\x9F\x98\x80");
    EXPECT_EQ(Escaped(u""), "");
}

TEST(HtmlText, LineEndsAreKept)
{
    EXPECT_EQ(Escaped(u"a\r\nb\tc"), "a&#13;&#10;b\tc");
}

TEST(HtmlText, CharactersThatHtmlForbidsAreReplaced)
{
    const std::string replacement = "\xEF\xBF\xBD";
    for (const char16_t unit :
         {char16_t{0}, char16_t{1}, char16_t{0x1B}, char16_t{0x7F}, char16_t{0x9F}, char16_t{0xD800}, char16_t{0xDC80},
          char16_t{0xFDD0}, char16_t{0xFFFE}, char16_t{0xFFFF}})
        EXPECT_EQ(Escaped({&unit, 1}), replacement) << static_cast<int>(unit);
}

TEST(HtmlText, WebAddressesAreLinks)
{
    EXPECT_EQ(LinkTo(u"https://example.org/a?b=c&d=%20#e"), "https://example.org/a?b=c&amp;d=%20#e");
    EXPECT_EQ(LinkTo(u"HTTP://example.org"), "HTTP://example.org");
    EXPECT_EQ(LinkTo(u"https://example.org/\u00E4\"<'>\\"), "https://example.org/%C3%A4%22%3C%27%3E%5C");
}

TEST(HtmlText, OtherTextsAreNoLinks)
{
    for (const char16_t* const text :
         {u"", u"http://", u"https://", u"javascript:alert(1)", u"JaVaScRiPt:alert(1)", u"data:text/html,x",
          u"ftp://a/b", u"file:///etc/passwd", u"vbscript:x", u" https://example.org", u"https://a b", u"https://a\nb",
          u"see https://a", u"mailto:a@b", u"//example.org", u"name.txt"})
        EXPECT_EQ(LinkTo(text), std::nullopt) << testing::PrintToString(std::u16string(text));
}
