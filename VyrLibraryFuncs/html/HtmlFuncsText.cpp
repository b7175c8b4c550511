// Text blocks, links and images.
#include <VyrLibraryFuncs/html/HtmlFuncs.h>

#include "HtmlFrames.h"

#include <VyrLibraryUtils/StringUtils.h>

using VyrLibraryUtils::StringUtils;

namespace VyrLibraryFuncs {

CString HtmlFuncs::GetHeaderTag(CString className, CString id)
{
    return StringUtils::GetFormatedText(u"<header id=\"%s\" class=\"%s\">", id, className);
}

CString HtmlFuncs::GetHeaderClosingTag()
{
    return OnLine(u"</header>");
}

CString HtmlFuncs::GetFooterTag(CString className, CString id)
{
    return StringUtils::GetFormatedText(u"<footer id=\"%s\" class=\"%s\">", id, className);
}

CString HtmlFuncs::GetFooterClosingTag()
{
    return OnLine(u"</footer>");
}

CString HtmlFuncs::GetH1Tag(CString className)
{
    return StringUtils::GetFormatedText(u"<h1 class=\"%s\">", className);
}

CString HtmlFuncs::GetH1ClosingTag()
{
    return OnLine(u"</h1>");
}

CString HtmlFuncs::GetH1PairTag(CString className, CString content)
{
    return CString::Join({GetH1Tag(className), content, GetH1ClosingTag()});
}

CString HtmlFuncs::GetPTag()
{
    return u"<p>";
}

CString HtmlFuncs::GetPTag(CString className)
{
    return StringUtils::GetFormatedText(u"<p class=\"%s\">", className);
}

CString HtmlFuncs::GetPClosingTag()
{
    return OnLine(u"</p>");
}

CString HtmlFuncs::GetSpanTag()
{
    return u"<span>";
}

CString HtmlFuncs::GetSpanTag(CString className)
{
    return StringUtils::GetFormatedText(u"<span class=\"%s\">", className);
}

CString HtmlFuncs::GetSpanTag(CString className, CString id)
{
    return StringUtils::GetFormatedText(u"<span id=\"%s\" class=\"%s\">", id, className);
}

CString HtmlFuncs::GetSpanClosingTag(int newLine)
{
    return WithNewLine(u"</span>", newLine);
}

CString HtmlFuncs::GetSpanPairTag(CString className, CString content, int newLine)
{
    return CString::Join({GetSpanTag(className), content, GetSpanClosingTag(newLine)});
}

CString HtmlFuncs::GetSpanPairTag(CString className, CString id, CString content, int newLine)
{
    return CString::Join({GetSpanTag(className, id), content, GetSpanClosingTag(newLine)});
}

CString HtmlFuncs::GetDivTag()
{
    return u"<div>";
}

CString HtmlFuncs::GetDivTag(CString className)
{
    return StringUtils::GetFormatedText(u"<div class=\"%s\">", className);
}

CString HtmlFuncs::GetDivTag(CString className, CString id)
{
    return StringUtils::GetFormatedText(u"<div id=\"%s\" class=\"%s\">", id, className);
}

CString HtmlFuncs::GetDivTag(CString className, CString id, CString attributes)
{
    return StringUtils::GetFormatedText(u"<div id=\"%s\" class=\"%s\" %s>", id, className, attributes);
}

CString HtmlFuncs::GetDivClosingTag(int newLine)
{
    return WithNewLine(u"</div>", newLine);
}

CString HtmlFuncs::GetDivPairTag(CString className, CString content, int newLine)
{
    return CString::Join({GetDivTag(className), content, GetDivClosingTag(newLine)});
}

CString HtmlFuncs::GetDivPairTag(CString className, CString id, CString content, int newLine)
{
    return CString::Join({GetDivTag(className, id), content, GetDivClosingTag(newLine)});
}

CString HtmlFuncs::GetDivPairTag(CString className, CString id, CString attributes, CString content, int newLine)
{
    return CString::Join({GetDivTag(className, id, attributes), content, GetDivClosingTag(newLine)});
}

CString HtmlFuncs::GetBrTag(int newLine)
{
    return WithNewLine(u"<br>", newLine);
}

CString HtmlFuncs::GetATag(CString href)
{
    return StringUtils::GetFormatedText(u"<a href=\"%s\">", href);
}

CString HtmlFuncs::GetATag(CString href, CString className)
{
    return StringUtils::GetFormatedText(u"<a href=\"%s\" class=\"%s\">", href, className);
}

CString HtmlFuncs::GetATag(CString href, CString className, CString target)
{
    return StringUtils::GetFormatedText(u"<a href=\"%s\" class=\"%s\" target=\"%s\">", href, className, target);
}

CString HtmlFuncs::GetAClosingTag()
{
    return u"</a>";
}

CString HtmlFuncs::GetAPairTag(CString href, CString content)
{
    return CString::Join({GetATag(href), content, GetAClosingTag()});
}

CString HtmlFuncs::GetAPairTag(CString href, CString className, CString content)
{
    return CString::Join({GetATag(href, className), content, GetAClosingTag()});
}

CString HtmlFuncs::GetAPairTag(CString href, CString className, CString target, CString content)
{
    return CString::Join({GetATag(href, className, target), content, GetAClosingTag()});
}

CString HtmlFuncs::GetImgTag(CString src, int width, int height, CString alt)
{
    return StringUtils::GetFormatedText(u"<img src=\"%s\" width=\"%s\" height=\"%s\" alt=\"%s\">", src,
                                        StringUtils::IntNumberToString(width), StringUtils::IntNumberToString(height),
                                        alt);
}

CString HtmlFuncs::GetImgTag(CString src, CString className, int width, int height, CString alt)
{
    return StringUtils::GetFormatedText(u"<img src=\"%s\" class=\"%s\" width=\"%s\" height=\"%s\" alt=\"%s\">", src,
                                        className, StringUtils::IntNumberToString(width),
                                        StringUtils::IntNumberToString(height), alt);
}

CString HtmlFuncs::GetImgTag(CString src, CString className, int width, int height, CString alt, CString id)
{
    return StringUtils::GetFormatedText(
        u"<img id=\"%s\" src=\"%s\" class=\"%s\" width=\"%s\" height=\"%s\" alt=\"%s\">", id, src, className,
        StringUtils::IntNumberToString(width), StringUtils::IntNumberToString(height), alt);
}

CString HtmlFuncs::GetImgTag(CString src, CString className, int width, int height, CString alt, CString id,
                             CString title)
{
    return StringUtils::GetFormatedText(
        u"<img id=\"%s\" src=\"%s\" class=\"%s\" width=\"%s\" height=\"%s\" title=\"%s\" alt=\"%s\">", id, src,
        className, StringUtils::IntNumberToString(width), StringUtils::IntNumberToString(height), title, alt);
}

} // namespace VyrLibraryFuncs
