// Each piece, byte for byte. No expectation of the table is made from others.
#include <VyrLibraryFuncs/html/HtmlFuncs.h>

#include <gtest/gtest.h>

#include <limits>

using VyrLibraryFuncs::HtmlFuncs;

namespace {

struct Case
{
    const char* call;
    CString piece;
    CString expected;
};

/// The call as text, and its result.
#define CALL(...) #__VA_ARGS__, HtmlFuncs::__VA_ARGS__

} // namespace

TEST(HtmlFuncs, EachPieceIsByteForByteThatOfTheTable)
{
    const Case cases[] = {
        {CALL(GetDoctypeTag()), u"<!DOCTYPE html>\r\n\r\n"},
        {CALL(GetSavedFromUrlTag()), u"<!-- saved from url=(0014)about:internet -->\r\n\r\n"},
        {CALL(GetHtmlTag(u"en")), u"<html lang=\"en\">\r\n"},
        {CALL(GetHtmlClosingTag()), u"</html>\r\n"},
        {CALL(GetHeadTag()), u"<head>\r\n"},
        {CALL(GetHeadClosingTag()), u"</head>\r\n"},
        {CALL(GetMetaXUACompatibleTag(u"edge")),
         u"\t<!--[if IE]>\r\n\t<meta http-equiv=\"X-UA-Compatible\" content=\"IE=edge\">\r\n\t<![endif]-->\r\n"},
        {CALL(GetMetaContentTypeTag(u"utf-8")), u"\t<meta charset=\"utf-8\">\r\n"},
        {CALL(GetMetaGeneratorTag(u"Reports 2.1")), u"\t<meta name=\"generator\" content=\"Reports 2.1\">\r\n"},
        {CALL(GetLinkCSSTag(u"page.html?a=1&b=2")),
         u"\t<link rel=\"stylesheet\" href=\"page.html?a=1&b=2\" type=\"text/css\">\r\n"},
        {CALL(GetScriptSrcTag(u"pictures/a b.png")), u"\t<script src=\"pictures/a b.png\">"},
        {CALL(GetScriptClosingTag()), u"</script>\r\n"},
        {CALL(GetTitleTag(u"T <1>")), u"\t<title>T <1></title>\r\n"},
        {CALL(GetBodyTag()), u"<body>\r\n"},
        {CALL(GetBodyTag(u"data-x=\"1\" hidden")), u"<body data-x=\"1\" hidden>\r\n"},
        {CALL(GetBodyClosingTag()), u"</body>\r\n"},
        {CALL(GetHeaderTag(u"a class", u"the-id")), u"<header id=\"the-id\" class=\"a class\">"},
        {CALL(GetHeaderClosingTag()), u"</header>\r\n"},
        {CALL(GetFooterTag(u"a class", u"the-id")), u"<footer id=\"the-id\" class=\"a class\">"},
        {CALL(GetFooterClosingTag()), u"</footer>\r\n"},
        {CALL(GetH1Tag(u"a class")), u"<h1 class=\"a class\">"},
        {CALL(GetH1ClosingTag()), u"</h1>\r\n"},
        {CALL(GetPTag()), u"<p>"},
        {CALL(GetPTag(u"a class")), u"<p class=\"a class\">"},
        {CALL(GetPClosingTag()), u"</p>\r\n"},
        {CALL(GetSpanTag()), u"<span>"},
        {CALL(GetSpanTag(u"a class")), u"<span class=\"a class\">"},
        {CALL(GetSpanTag(u"a class", u"the-id")), u"<span id=\"the-id\" class=\"a class\">"},
        {CALL(GetSpanClosingTag(0)), u"</span>"},
        {CALL(GetSpanClosingTag(1)), u"</span>\r\n"},
        {CALL(GetSpanClosingTag(5)), u"</span>\r\n"},
        {CALL(GetSpanClosingTag(-1)), u"</span>\r\n"},
        {CALL(GetDivTag()), u"<div>"},
        {CALL(GetDivTag(u"a class")), u"<div class=\"a class\">"},
        {CALL(GetDivTag(u"a class", u"the-id")), u"<div id=\"the-id\" class=\"a class\">"},
        {CALL(GetDivTag(u"a class", u"the-id", u"data-x=\"1\" hidden")),
         u"<div id=\"the-id\" class=\"a class\" data-x=\"1\" hidden>"},
        {CALL(GetDivClosingTag(0)), u"</div>"},
        {CALL(GetDivClosingTag(1)), u"</div>\r\n"},
        {CALL(GetDivClosingTag(5)), u"</div>\r\n"},
        {CALL(GetDivClosingTag(-1)), u"</div>\r\n"},
        {CALL(GetATag(u"page.html?a=1&b=2")), u"<a href=\"page.html?a=1&b=2\">"},
        {CALL(GetATag(u"page.html?a=1&b=2", u"a class")), u"<a href=\"page.html?a=1&b=2\" class=\"a class\">"},
        {CALL(GetATag(u"page.html?a=1&b=2", u"a class", u"_blank")),
         u"<a href=\"page.html?a=1&b=2\" class=\"a class\" target=\"_blank\">"},
        {CALL(GetAClosingTag()), u"</a>"},
        {CALL(GetImgTag(u"pictures/a b.png", 640, -480, u"a \"picture\"")),
         u"<img src=\"pictures/a b.png\" width=\"640\" height=\"-480\" alt=\"a \"picture\"\">"},
        {CALL(GetImgTag(u"pictures/a b.png", u"a class", 640, -480, u"a \"picture\"")),
         u"<img src=\"pictures/a b.png\" class=\"a class\" width=\"640\" height=\"-480\" alt=\"a \"picture\"\">"},
        {CALL(GetImgTag(u"pictures/a b.png", u"a class", 640, -480, u"a \"picture\"", u"the-id")),
         u"<img id=\"the-id\" src=\"pictures/a b.png\" class=\"a class\" width=\"640\" height=\"-480\" alt=\"a "
         u"\"picture\"\">"},
        {CALL(GetImgTag(u"pictures/a b.png", u"a class", 640, -480, u"a \"picture\"", u"the-id", u"T <1>")),
         u"<img id=\"the-id\" src=\"pictures/a b.png\" class=\"a class\" width=\"640\" height=\"-480\" title=\"T <1>\" "
         u"alt=\"a \"picture\"\">"},
        {CALL(GetTableTag(u"a class", u"the-id")), u"<table id=\"the-id\" class=\"a class\">\r\n"},
        {CALL(GetTableClosingTag()), u"</table>\r\n"},
        {CALL(GetTheadTag()), u"<thead>\r\n"},
        {CALL(GetTheadClosingTag()), u"</thead>\r\n"},
        {CALL(GetTbodyTag()), u"<tbody>\r\n"},
        {CALL(GetTbodyClosingTag()), u"</tbody>\r\n"},
        {CALL(GetTrTag()), u"<tr>"},
        {CALL(GetTrTag(u"a class")), u"<tr class=\"a class\">"},
        {CALL(GetTrTag(u"a class", u"the-id")), u"<tr id=\"the-id\" class=\"a class\">"},
        {CALL(GetTrClosingTag()), u"</tr>"},
        {CALL(GetThTag(u"a class")), u"<th class=\"a class\">"},
        {CALL(GetThClosingTag()), u"</th>"},
        {CALL(GetTdTag()), u"<td>"},
        {CALL(GetTdTag(u"a class")), u"<td class=\"a class\">"},
        {CALL(GetTdTag(u"a class", u"the-id")), u"<td id=\"the-id\" class=\"a class\">"},
        {CALL(GetTdTag(u"a class", u"the-id", u"data-x=\"1\" hidden")),
         u"<td id=\"the-id\" class=\"a class\" data-x=\"1\" hidden>"},
        {CALL(GetTdTag(u"a class", u"the-id", 640, -480)),
         u"<td id=\"the-id\" class=\"a class\" width=\"640\" height=\"-480\">"},
        {CALL(GetTdColTag(u"a class", u"3")), u"<td class=\"a class\" colspan=\"3\">"},
        {CALL(GetTdColTag(u"a class", u"3", u"data-x=\"1\" hidden")),
         u"<td class=\"a class\" colspan=\"3\" data-x=\"1\" hidden>"},
        {CALL(GetTdClosingTag()), u"</td>"},
        {CALL(GetBrTag(0)), u"<br>"},
        {CALL(GetBrTag(1)), u"<br>\r\n"},
        {CALL(GetBrTag(5)), u"<br>\r\n"},
        {CALL(GetBrTag(-1)), u"<br>\r\n"},
        {CALL(GetScriptSrcPairTag(u"pictures/a b.png")), u"\t<script src=\"pictures/a b.png\"></script>\r\n"},
        {CALL(GetH1PairTag(u"a class", u"<b>content</b>")), u"<h1 class=\"a class\"><b>content</b></h1>\r\n"},
        {CALL(GetSpanPairTag(u"a class", u"<b>content</b>", 0)), u"<span class=\"a class\"><b>content</b></span>"},
        {CALL(GetSpanPairTag(u"a class", u"<b>content</b>", 2)), u"<span class=\"a class\"><b>content</b></span>\r\n"},
        {CALL(GetSpanPairTag(u"a class", u"the-id", u"<b>content</b>", 0)),
         u"<span id=\"the-id\" class=\"a class\"><b>content</b></span>"},
        {CALL(GetSpanPairTag(u"a class", u"the-id", u"<b>content</b>", 2)),
         u"<span id=\"the-id\" class=\"a class\"><b>content</b></span>\r\n"},
        {CALL(GetDivPairTag(u"a class", u"<b>content</b>", 0)), u"<div class=\"a class\"><b>content</b></div>"},
        {CALL(GetDivPairTag(u"a class", u"<b>content</b>", 2)), u"<div class=\"a class\"><b>content</b></div>\r\n"},
        {CALL(GetDivPairTag(u"a class", u"the-id", u"<b>content</b>", 0)),
         u"<div id=\"the-id\" class=\"a class\"><b>content</b></div>"},
        {CALL(GetDivPairTag(u"a class", u"the-id", u"<b>content</b>", 2)),
         u"<div id=\"the-id\" class=\"a class\"><b>content</b></div>\r\n"},
        {CALL(GetDivPairTag(u"a class", u"the-id", u"data-x=\"1\" hidden", u"<b>content</b>", 0)),
         u"<div id=\"the-id\" class=\"a class\" data-x=\"1\" hidden><b>content</b></div>"},
        {CALL(GetDivPairTag(u"a class", u"the-id", u"data-x=\"1\" hidden", u"<b>content</b>", 2)),
         u"<div id=\"the-id\" class=\"a class\" data-x=\"1\" hidden><b>content</b></div>\r\n"},
        {CALL(GetAPairTag(u"page.html?a=1&b=2", u"<b>content</b>")),
         u"<a href=\"page.html?a=1&b=2\"><b>content</b></a>"},
        {CALL(GetAPairTag(u"page.html?a=1&b=2", u"a class", u"<b>content</b>")),
         u"<a href=\"page.html?a=1&b=2\" class=\"a class\"><b>content</b></a>"},
        {CALL(GetAPairTag(u"page.html?a=1&b=2", u"a class", u"_blank", u"<b>content</b>")),
         u"<a href=\"page.html?a=1&b=2\" class=\"a class\" target=\"_blank\"><b>content</b></a>"},
        {CALL(GetTrPairTag(u"<b>content</b>")), u"<tr><b>content</b></tr>"},
        {CALL(GetTrPairTag(u"a class", u"<b>content</b>")), u"<tr class=\"a class\"><b>content</b></tr>"},
        {CALL(GetTrPairTag(u"a class", u"the-id", u"<b>content</b>")),
         u"<tr id=\"the-id\" class=\"a class\"><b>content</b></tr>"},
        {CALL(GetThPairTag(u"a class", u"<b>content</b>")), u"<th class=\"a class\"><b>content</b></th>"},
        {CALL(GetTdPairTag(u"<b>content</b>")), u"<td><b>content</b></td>"},
        {CALL(GetTdPairTag(u"a class", u"<b>content</b>")), u"<td class=\"a class\"><b>content</b></td>"},
        {CALL(GetTdPairTag(u"a class", u"the-id", u"<b>content</b>")),
         u"<td id=\"the-id\" class=\"a class\"><b>content</b></td>"},
    };
    for (const Case& piece : cases)
        EXPECT_EQ(piece.piece, piece.expected) << piece.call;
}

TEST(HtmlFuncs, EmptyTextsLeaveEmptyAttributes)
{
    EXPECT_EQ(HtmlFuncs::GetSpanTag(u"", u""), u"<span id=\"\" class=\"\">");
    EXPECT_EQ(HtmlFuncs::GetDivTag(u"", u"", u""), u"<div id=\"\" class=\"\" >");
    EXPECT_EQ(HtmlFuncs::GetTdColTag(u"", u""), u"<td class=\"\" colspan=\"\">");
    EXPECT_EQ(HtmlFuncs::GetAPairTag(u"", u""), u"<a href=\"\"></a>");
}

TEST(HtmlFuncs, PlaceholdersInArgumentsAreNotFilled)
{
    EXPECT_EQ(HtmlFuncs::GetDivTag(u"%s class", u"%s id", u"%s"), u"<div id=\"%s id\" class=\"%s class\" %s>");
    EXPECT_EQ(HtmlFuncs::GetImgTag(u"%s", u"c", 1, 2, u"%d", u"%s%s", u"t"),
              u"<img id=\"%s%s\" src=\"%s\" class=\"c\" width=\"1\" height=\"2\" title=\"t\" alt=\"%d\">");
    EXPECT_EQ(HtmlFuncs::GetSpanPairTag(u"%s", u"%s", 0), u"<span class=\"%s\">%s</span>");
    EXPECT_EQ(HtmlFuncs::GetTdPairTag(u"100 % sure"), u"<td>100 % sure</td>");
}

TEST(HtmlFuncs, TextsAreTakenAsTheyAre)
{
    EXPECT_EQ(HtmlFuncs::GetATag(u"\"><script>alert(1)</script>"), u"<a href=\"\"><script>alert(1)</script>\">");
    EXPECT_EQ(HtmlFuncs::GetTitleTag(u"\xD83D\xDE00 & \xD800"), u"\t<title>\xD83D\xDE00 & \xD800</title>\r\n");
}

TEST(HtmlFuncs, NumbersAreDecimalOverTheirWholeRange)
{
    EXPECT_EQ(HtmlFuncs::GetTdTag(u"c", u"i", std::numeric_limits<int>::min(), std::numeric_limits<int>::max()),
              u"<td id=\"i\" class=\"c\" width=\"-2147483648\" height=\"2147483647\">");
}
