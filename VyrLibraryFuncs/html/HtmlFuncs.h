/// @file
/// The tags of an HTML5 report.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryFuncs {

/// Gives the pieces of an HTML5 page; a host joins them in the order of the document and writes the page.
///
/// - Nothing is escaped or checked: every text is in the result exactly as given, also one with `"`, `<` or `%s`. An
///   empty text gives an empty value: the attribute is kept.
/// - Lines end in CR LF. Tags of the head are indented by one tab. Each operation says whether its piece ends a line.
/// - `newLine`: any value but 0 appends one CR LF.
/// - `attributes`: further attributes in the form of a tag, such as `colspan="2" title="x"`.
/// - A pair is the opening tag, the content and the closing tag, with nothing between them.
///
/// Example: `GetTrPairTag(GetTdPairTag(u"a") + GetTdPairTag(u"b"))` gives `<tr><td>a</td><td>b</td></tr>`.
class VYR_FUNCS_API HtmlFuncs
{
public:
    HtmlFuncs();
    ~HtmlFuncs();
    HtmlFuncs& operator=(const HtmlFuncs&);

    // The document.

    /// The document type, followed by an empty line.
    static CString GetDoctypeTag();
    /// The comment that lets the old browser engine run the scripts of a local page, followed by an empty line.
    static CString GetSavedFromUrlTag();
    /// `<html>` on a line of its own.
    /// @param lang  the language of the page, such as "en".
    static CString GetHtmlTag(CString lang);
    /// `</html>` on a line of its own.
    static CString GetHtmlClosingTag();
    /// `<head>` on a line of its own.
    static CString GetHeadTag();
    /// `</head>` on a line of its own.
    static CString GetHeadClosingTag();
    /// The mode of the old browser engine, in a conditional comment of three lines.
    /// @param mode  such as "edge".
    static CString GetMetaXUACompatibleTag(CString mode);
    /// The encoding of the page, such as "utf-8", on an indented line.
    static CString GetMetaContentTypeTag(CString charset);
    /// The program that wrote the page, on an indented line.
    static CString GetMetaGeneratorTag(CString generator);
    /// The link to a style sheet, on an indented line.
    static CString GetLinkCSSTag(CString href);
    /// The opening tag of a script in a file, indented.
    static CString GetScriptSrcTag(CString src);
    /// `</script>` and the end of the line.
    static CString GetScriptClosingTag();
    /// A script in a file, on an indented line.
    static CString GetScriptSrcPairTag(CString src);
    /// The title with its closing tag, on an indented line.
    static CString GetTitleTag(CString title);
    /// `<body>` on a line of its own.
    static CString GetBodyTag();
    /// `<body>` with attributes, on a line of its own.
    static CString GetBodyTag(CString attributes);
    /// `</body>` on a line of its own.
    static CString GetBodyClosingTag();

    // Text blocks.

    /// `<header>`.
    static CString GetHeaderTag(CString className, CString id);
    /// `</header>` and the end of the line.
    static CString GetHeaderClosingTag();
    /// `<footer>`.
    static CString GetFooterTag(CString className, CString id);
    /// `</footer>` and the end of the line.
    static CString GetFooterClosingTag();
    /// `<h1>`.
    static CString GetH1Tag(CString className);
    /// `</h1>` and the end of the line.
    static CString GetH1ClosingTag();
    /// A heading; it ends its line.
    static CString GetH1PairTag(CString className, CString content);
    /// `<p>`.
    static CString GetPTag();
    static CString GetPTag(CString className);
    /// `</p>` and the end of the line.
    static CString GetPClosingTag();
    /// `<span>`.
    static CString GetSpanTag();
    static CString GetSpanTag(CString className);
    static CString GetSpanTag(CString className, CString id);
    /// `</span>`.
    static CString GetSpanClosingTag(int newLine);
    static CString GetSpanPairTag(CString className, CString content, int newLine);
    static CString GetSpanPairTag(CString className, CString id, CString content, int newLine);
    /// `<div>`.
    static CString GetDivTag();
    static CString GetDivTag(CString className);
    static CString GetDivTag(CString className, CString id);
    static CString GetDivTag(CString className, CString id, CString attributes);
    /// `</div>`.
    static CString GetDivClosingTag(int newLine);
    static CString GetDivPairTag(CString className, CString content, int newLine);
    static CString GetDivPairTag(CString className, CString id, CString content, int newLine);
    static CString GetDivPairTag(CString className, CString id, CString attributes, CString content, int newLine);
    /// A line break.
    static CString GetBrTag(int newLine);

    // Links and images.

    /// `<a>`.
    static CString GetATag(CString href);
    static CString GetATag(CString href, CString className);
    static CString GetATag(CString href, CString className, CString target);
    /// `</a>`.
    static CString GetAClosingTag();
    static CString GetAPairTag(CString href, CString content);
    static CString GetAPairTag(CString href, CString className, CString content);
    static CString GetAPairTag(CString href, CString className, CString target, CString content);
    /// An image. `width` and `height` are in pixels of the page; a negative number is written with its minus sign.
    static CString GetImgTag(CString src, int width, int height, CString alt);
    static CString GetImgTag(CString src, CString className, int width, int height, CString alt);
    static CString GetImgTag(CString src, CString className, int width, int height, CString alt, CString id);
    static CString GetImgTag(CString src, CString className, int width, int height, CString alt, CString id,
                             CString title);

    // Tables.

    /// `<table>` on a line of its own.
    static CString GetTableTag(CString className, CString id);
    /// `</table>` on a line of its own.
    static CString GetTableClosingTag();
    /// `<thead>` on a line of its own.
    static CString GetTheadTag();
    /// `</thead>` on a line of its own.
    static CString GetTheadClosingTag();
    /// `<tbody>` on a line of its own.
    static CString GetTbodyTag();
    /// `</tbody>` on a line of its own.
    static CString GetTbodyClosingTag();
    /// `<tr>`.
    static CString GetTrTag();
    static CString GetTrTag(CString className);
    static CString GetTrTag(CString className, CString id);
    /// `</tr>`.
    static CString GetTrClosingTag();
    static CString GetTrPairTag(CString content);
    static CString GetTrPairTag(CString className, CString content);
    static CString GetTrPairTag(CString className, CString id, CString content);
    /// `<th>`.
    static CString GetThTag(CString className);
    /// `</th>`.
    static CString GetThClosingTag();
    static CString GetThPairTag(CString className, CString content);
    /// `<td>`.
    static CString GetTdTag();
    static CString GetTdTag(CString className);
    static CString GetTdTag(CString className, CString id);
    static CString GetTdTag(CString className, CString id, CString attributes);
    /// `width` and `height` as in GetImgTag.
    static CString GetTdTag(CString className, CString id, int width, int height);
    /// `<td>` of a cell that spans columns.
    /// @param colspan  the number of columns, as text.
    static CString GetTdColTag(CString className, CString colspan);
    static CString GetTdColTag(CString className, CString colspan, CString attributes);
    /// `</td>`.
    static CString GetTdClosingTag();
    static CString GetTdPairTag(CString content);
    static CString GetTdPairTag(CString className, CString content);
    static CString GetTdPairTag(CString className, CString id, CString content);
};

} // namespace VyrLibraryFuncs
