// Tags of the document, the head and the body.
#include <VyrLibraryFuncs/html/HtmlFuncs.h>

#include "HtmlFrames.h"

#include <VyrLibraryUtils/StringUtils.h>

using VyrLibraryUtils::StringUtils;

namespace VyrLibraryFuncs {

HtmlFuncs::HtmlFuncs() = default;
HtmlFuncs::~HtmlFuncs() = default;
HtmlFuncs& HtmlFuncs::operator=(const HtmlFuncs&) = default;

CString HtmlFuncs::GetDoctypeTag()
{
    return BeforeEmptyLine(u"<!DOCTYPE html>");
}

CString HtmlFuncs::GetSavedFromUrlTag()
{
    return BeforeEmptyLine(u"<!-- saved from url=(0014)about:internet -->");
}

CString HtmlFuncs::GetHtmlTag(CString lang)
{
    return OnLine(StringUtils::GetFormatedText(u"<html lang=\"%s\">", lang));
}

CString HtmlFuncs::GetHtmlClosingTag()
{
    return OnLine(u"</html>");
}

CString HtmlFuncs::GetHeadTag()
{
    return OnLine(u"<head>");
}

CString HtmlFuncs::GetHeadClosingTag()
{
    return OnLine(u"</head>");
}

CString HtmlFuncs::GetMetaXUACompatibleTag(CString mode)
{
    const CString tag = StringUtils::GetFormatedText(u"<meta http-equiv=\"X-UA-Compatible\" content=\"IE=%s\">", mode);
    return OnIndentedLine(u"<!--[if IE]>") + OnIndentedLine(tag) + OnIndentedLine(u"<![endif]-->");
}

CString HtmlFuncs::GetMetaContentTypeTag(CString charset)
{
    return OnIndentedLine(StringUtils::GetFormatedText(u"<meta charset=\"%s\">", charset));
}

CString HtmlFuncs::GetMetaGeneratorTag(CString generator)
{
    return OnIndentedLine(StringUtils::GetFormatedText(u"<meta name=\"generator\" content=\"%s\">", generator));
}

CString HtmlFuncs::GetLinkCSSTag(CString href)
{
    return OnIndentedLine(
        StringUtils::GetFormatedText(u"<link rel=\"stylesheet\" href=\"%s\" type=\"text/css\">", href));
}

CString HtmlFuncs::GetScriptSrcTag(CString src)
{
    return StringUtils::GetFormatedText(u"\t<script src=\"%s\">", src);
}

CString HtmlFuncs::GetScriptClosingTag()
{
    return OnLine(u"</script>");
}

CString HtmlFuncs::GetScriptSrcPairTag(CString src)
{
    return GetScriptSrcTag(src) + GetScriptClosingTag();
}

CString HtmlFuncs::GetTitleTag(CString title)
{
    return OnIndentedLine(StringUtils::GetFormatedText(u"<title>%s</title>", title));
}

CString HtmlFuncs::GetBodyTag()
{
    return OnLine(u"<body>");
}

CString HtmlFuncs::GetBodyTag(CString attributes)
{
    return OnLine(StringUtils::GetFormatedText(u"<body %s>", attributes));
}

CString HtmlFuncs::GetBodyClosingTag()
{
    return OnLine(u"</body>");
}

} // namespace VyrLibraryFuncs
