// Tables, their rows and cells.
#include <VyrLibraryFuncs/html/HtmlFuncs.h>

#include "HtmlFrames.h"

#include <VyrLibraryUtils/StringUtils.h>

using VyrLibraryUtils::StringUtils;

namespace VyrLibraryFuncs {

CString HtmlFuncs::GetTableTag(CString className, CString id)
{
    return OnLine(StringUtils::GetFormatedText(u"<table id=\"%s\" class=\"%s\">", id, className));
}

CString HtmlFuncs::GetTableClosingTag()
{
    return OnLine(u"</table>");
}

CString HtmlFuncs::GetTheadTag()
{
    return OnLine(u"<thead>");
}

CString HtmlFuncs::GetTheadClosingTag()
{
    return OnLine(u"</thead>");
}

CString HtmlFuncs::GetTbodyTag()
{
    return OnLine(u"<tbody>");
}

CString HtmlFuncs::GetTbodyClosingTag()
{
    return OnLine(u"</tbody>");
}

CString HtmlFuncs::GetTrTag()
{
    return u"<tr>";
}

CString HtmlFuncs::GetTrTag(CString className)
{
    return StringUtils::GetFormatedText(u"<tr class=\"%s\">", className);
}

CString HtmlFuncs::GetTrTag(CString className, CString id)
{
    return StringUtils::GetFormatedText(u"<tr id=\"%s\" class=\"%s\">", id, className);
}

CString HtmlFuncs::GetTrClosingTag()
{
    return u"</tr>";
}

CString HtmlFuncs::GetTrPairTag(CString content)
{
    return CString::Join({GetTrTag(), content, GetTrClosingTag()});
}

CString HtmlFuncs::GetTrPairTag(CString className, CString content)
{
    return CString::Join({GetTrTag(className), content, GetTrClosingTag()});
}

CString HtmlFuncs::GetTrPairTag(CString className, CString id, CString content)
{
    return CString::Join({GetTrTag(className, id), content, GetTrClosingTag()});
}

CString HtmlFuncs::GetThTag(CString className)
{
    return StringUtils::GetFormatedText(u"<th class=\"%s\">", className);
}

CString HtmlFuncs::GetThClosingTag()
{
    return u"</th>";
}

CString HtmlFuncs::GetThPairTag(CString className, CString content)
{
    return CString::Join({GetThTag(className), content, GetThClosingTag()});
}

CString HtmlFuncs::GetTdTag()
{
    return u"<td>";
}

CString HtmlFuncs::GetTdTag(CString className)
{
    return StringUtils::GetFormatedText(u"<td class=\"%s\">", className);
}

CString HtmlFuncs::GetTdTag(CString className, CString id)
{
    return StringUtils::GetFormatedText(u"<td id=\"%s\" class=\"%s\">", id, className);
}

CString HtmlFuncs::GetTdTag(CString className, CString id, CString attributes)
{
    return StringUtils::GetFormatedText(u"<td id=\"%s\" class=\"%s\" %s>", id, className, attributes);
}

CString HtmlFuncs::GetTdTag(CString className, CString id, int width, int height)
{
    return StringUtils::GetFormatedText(u"<td id=\"%s\" class=\"%s\" width=\"%s\" height=\"%s\">", id, className,
                                        StringUtils::IntNumberToString(width), StringUtils::IntNumberToString(height));
}

CString HtmlFuncs::GetTdColTag(CString className, CString colspan)
{
    return StringUtils::GetFormatedText(u"<td class=\"%s\" colspan=\"%s\">", className, colspan);
}

CString HtmlFuncs::GetTdColTag(CString className, CString colspan, CString attributes)
{
    return StringUtils::GetFormatedText(u"<td class=\"%s\" colspan=\"%s\" %s>", className, colspan, attributes);
}

CString HtmlFuncs::GetTdClosingTag()
{
    return u"</td>";
}

CString HtmlFuncs::GetTdPairTag(CString content)
{
    return CString::Join({GetTdTag(), content, GetTdClosingTag()});
}

CString HtmlFuncs::GetTdPairTag(CString className, CString content)
{
    return CString::Join({GetTdTag(className), content, GetTdClosingTag()});
}

CString HtmlFuncs::GetTdPairTag(CString className, CString id, CString content)
{
    return CString::Join({GetTdTag(className, id), content, GetTdClosingTag()});
}

} // namespace VyrLibraryFuncs
