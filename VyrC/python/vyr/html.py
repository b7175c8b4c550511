r"""The operations of HtmlFuncs (VyrLibraryFuncs/html/HtmlFuncs.h); written by VyrC/generate from VyrC/interface.txt.

Gives the pieces of an HTML5 page; a host joins them in the order of the document and writes the page.

- Nothing is escaped or checked: every text is in the result exactly as given, also one with `"`, `<` or `%s`. An
  empty text gives an empty value: the attribute is kept.
- Lines end in CR LF. Tags of the head are indented by one tab. Each operation says whether its piece ends a line.
- `newLine`: any value but 0 appends one CR LF.
- `attributes`: further attributes in the form of a tag, such as `colspan="2" title="x"`.
- A pair is the opening tag, the content and the closing tag, with nothing between them.

Example: `GetTrPairTag(GetTdPairTag(u"a") + GetTdPairTag(u"b"))` gives `<tr><td>a</td><td>b</td></tr>`.
"""
import dataclasses
import datetime
import uuid
from typing import Callable, Optional, Sequence, Tuple
from typing import List as ListType

from ._library import *  # noqa: F403
from ._library import call

# 30 December 1899, the date-time with the number 0.
ZERO = datetime.datetime(1899, 12, 30)
NO_ID = uuid.UUID(int=0)


def get_doctype_tag() -> str:
    r"""GetDoctypeTag

    The document type, followed by an empty line.
    """
    return call("vyr_html_get_doctype_tag", TEXT)


def get_saved_from_url_tag() -> str:
    r"""GetSavedFromUrlTag

    The comment that lets the old browser engine run the scripts of a local page, followed by an empty line.
    """
    return call("vyr_html_get_saved_from_url_tag", TEXT)


def get_html_tag(lang: str) -> str:
    r"""GetHtmlTag

    `<html>` on a line of its own.
    lang: the language of the page, such as "en".
    """
    return call("vyr_html_get_html_tag", TEXT, (TEXT, lang))


def get_html_closing_tag() -> str:
    r"""GetHtmlClosingTag

    `</html>` on a line of its own.

    >>> get_html_closing_tag()
    '</html>\r\n'
    """
    return call("vyr_html_get_html_closing_tag", TEXT)


def get_head_tag() -> str:
    r"""GetHeadTag

    `<head>` on a line of its own.
    """
    return call("vyr_html_get_head_tag", TEXT)


def get_head_closing_tag() -> str:
    r"""GetHeadClosingTag

    `</head>` on a line of its own.
    """
    return call("vyr_html_get_head_closing_tag", TEXT)


def get_meta_xua_compatible_tag(mode: str) -> str:
    r"""GetMetaXUACompatibleTag

    The mode of the old browser engine, in a conditional comment of three lines.
    mode: such as "edge".
    """
    return call("vyr_html_get_meta_xua_compatible_tag", TEXT, (TEXT, mode))


def get_meta_content_type_tag(charset: str) -> str:
    r"""GetMetaContentTypeTag

    The encoding of the page, such as "utf-8", on an indented line.
    """
    return call("vyr_html_get_meta_content_type_tag", TEXT, (TEXT, charset))


def get_meta_generator_tag(generator: str) -> str:
    r"""GetMetaGeneratorTag

    The program that wrote the page, on an indented line.
    """
    return call("vyr_html_get_meta_generator_tag", TEXT, (TEXT, generator))


def get_link_css_tag(href: str) -> str:
    r"""GetLinkCSSTag

    The link to a style sheet, on an indented line.
    """
    return call("vyr_html_get_link_css_tag", TEXT, (TEXT, href))


def get_script_src_tag(src: str) -> str:
    r"""GetScriptSrcTag

    The opening tag of a script in a file, indented.
    """
    return call("vyr_html_get_script_src_tag", TEXT, (TEXT, src))


def get_script_closing_tag() -> str:
    r"""GetScriptClosingTag

    `</script>` and the end of the line.
    """
    return call("vyr_html_get_script_closing_tag", TEXT)


def get_script_src_pair_tag(src: str) -> str:
    r"""GetScriptSrcPairTag

    A script in a file, on an indented line.
    """
    return call("vyr_html_get_script_src_pair_tag", TEXT, (TEXT, src))


def get_title_tag(title: str) -> str:
    r"""GetTitleTag

    The title with its closing tag, on an indented line.
    """
    return call("vyr_html_get_title_tag", TEXT, (TEXT, title))


def get_body_tag() -> str:
    r"""GetBodyTag

    `<body>` on a line of its own.
    """
    return call("vyr_html_get_body_tag", TEXT)


def get_body_tag_with_attributes(attributes: str) -> str:
    r"""GetBodyTag

    `<body>` with attributes, on a line of its own.
    """
    return call("vyr_html_get_body_tag_with_attributes", TEXT, (TEXT, attributes))


def get_body_closing_tag() -> str:
    r"""GetBodyClosingTag

    `</body>` on a line of its own.
    """
    return call("vyr_html_get_body_closing_tag", TEXT)


def get_header_tag(class_name: str, id: str) -> str:
    r"""GetHeaderTag

    `<header>`.
    """
    return call("vyr_html_get_header_tag", TEXT, (TEXT, class_name), (TEXT, id))


def get_header_closing_tag() -> str:
    r"""GetHeaderClosingTag

    `</header>` and the end of the line.
    """
    return call("vyr_html_get_header_closing_tag", TEXT)


def get_footer_tag(class_name: str, id: str) -> str:
    r"""GetFooterTag

    `<footer>`.
    """
    return call("vyr_html_get_footer_tag", TEXT, (TEXT, class_name), (TEXT, id))


def get_footer_closing_tag() -> str:
    r"""GetFooterClosingTag

    `</footer>` and the end of the line.
    """
    return call("vyr_html_get_footer_closing_tag", TEXT)


def get_h1_tag(class_name: str) -> str:
    r"""GetH1Tag

    `<h1>`.
    """
    return call("vyr_html_get_h1_tag", TEXT, (TEXT, class_name))


def get_h1_closing_tag() -> str:
    r"""GetH1ClosingTag

    `</h1>` and the end of the line.
    """
    return call("vyr_html_get_h1_closing_tag", TEXT)


def get_h1_pair_tag(class_name: str, content: str) -> str:
    r"""GetH1PairTag

    A heading; it ends its line.
    """
    return call("vyr_html_get_h1_pair_tag", TEXT, (TEXT, class_name), (TEXT, content))


def get_p_tag() -> str:
    r"""GetPTag

    `<p>`.
    """
    return call("vyr_html_get_p_tag", TEXT)


def get_p_tag_with_class_name(class_name: str) -> str:
    r"""GetPTag

    `<p>`.
    """
    return call("vyr_html_get_p_tag_with_class_name", TEXT, (TEXT, class_name))


def get_p_closing_tag() -> str:
    r"""GetPClosingTag

    `</p>` and the end of the line.
    """
    return call("vyr_html_get_p_closing_tag", TEXT)


def get_span_tag() -> str:
    r"""GetSpanTag

    `<span>`.
    """
    return call("vyr_html_get_span_tag", TEXT)


def get_span_tag_with_class_name(class_name: str) -> str:
    r"""GetSpanTag

    `<span>`.
    """
    return call("vyr_html_get_span_tag_with_class_name", TEXT, (TEXT, class_name))


def get_span_tag_with_class_name_id(class_name: str, id: str) -> str:
    r"""GetSpanTag

    `<span>`.
    """
    return call("vyr_html_get_span_tag_with_class_name_id", TEXT, (TEXT, class_name), (TEXT, id))


def get_span_closing_tag(new_line: int) -> str:
    r"""GetSpanClosingTag

    `</span>`.
    """
    return call("vyr_html_get_span_closing_tag", TEXT, (INT, new_line))


def get_span_pair_tag(class_name: str, content: str, new_line: int) -> str:
    r"""GetSpanPairTag
    """
    return call("vyr_html_get_span_pair_tag", TEXT, (TEXT, class_name), (TEXT, content), (INT, new_line))


def get_span_pair_tag_with_id(class_name: str, id: str, content: str, new_line: int) -> str:
    r"""GetSpanPairTag
    """
    return call("vyr_html_get_span_pair_tag_with_id", TEXT, (TEXT, class_name), (TEXT, id), (TEXT, content), (INT, new_line))


def get_div_tag() -> str:
    r"""GetDivTag

    `<div>`.
    """
    return call("vyr_html_get_div_tag", TEXT)


def get_div_tag_with_class_name(class_name: str) -> str:
    r"""GetDivTag

    `<div>`.
    """
    return call("vyr_html_get_div_tag_with_class_name", TEXT, (TEXT, class_name))


def get_div_tag_with_class_name_id(class_name: str, id: str) -> str:
    r"""GetDivTag

    `<div>`.
    """
    return call("vyr_html_get_div_tag_with_class_name_id", TEXT, (TEXT, class_name), (TEXT, id))


def get_div_tag_with_class_name_id_attributes(class_name: str, id: str, attributes: str) -> str:
    r"""GetDivTag

    `<div>`.
    """
    return call("vyr_html_get_div_tag_with_class_name_id_attributes", TEXT, (TEXT, class_name), (TEXT, id), (TEXT, attributes))


def get_div_closing_tag(new_line: int) -> str:
    r"""GetDivClosingTag

    `</div>`.
    """
    return call("vyr_html_get_div_closing_tag", TEXT, (INT, new_line))


def get_div_pair_tag(class_name: str, content: str, new_line: int) -> str:
    r"""GetDivPairTag
    """
    return call("vyr_html_get_div_pair_tag", TEXT, (TEXT, class_name), (TEXT, content), (INT, new_line))


def get_div_pair_tag_with_id(class_name: str, id: str, content: str, new_line: int) -> str:
    r"""GetDivPairTag
    """
    return call("vyr_html_get_div_pair_tag_with_id", TEXT, (TEXT, class_name), (TEXT, id), (TEXT, content), (INT, new_line))


def get_div_pair_tag_with_id_attributes(class_name: str, id: str, attributes: str, content: str, new_line: int) -> str:
    r"""GetDivPairTag
    """
    return call("vyr_html_get_div_pair_tag_with_id_attributes", TEXT, (TEXT, class_name), (TEXT, id), (TEXT, attributes), (TEXT, content), (INT, new_line))


def get_br_tag(new_line: int) -> str:
    r"""GetBrTag

    A line break.
    """
    return call("vyr_html_get_br_tag", TEXT, (INT, new_line))


def get_a_tag(href: str) -> str:
    r"""GetATag

    `<a>`.
    """
    return call("vyr_html_get_a_tag", TEXT, (TEXT, href))


def get_a_tag_with_class_name(href: str, class_name: str) -> str:
    r"""GetATag

    `<a>`.
    """
    return call("vyr_html_get_a_tag_with_class_name", TEXT, (TEXT, href), (TEXT, class_name))


def get_a_tag_with_class_name_target(href: str, class_name: str, target: str) -> str:
    r"""GetATag

    `<a>`.
    """
    return call("vyr_html_get_a_tag_with_class_name_target", TEXT, (TEXT, href), (TEXT, class_name), (TEXT, target))


def get_a_closing_tag() -> str:
    r"""GetAClosingTag

    `</a>`.
    """
    return call("vyr_html_get_a_closing_tag", TEXT)


def get_a_pair_tag(href: str, content: str) -> str:
    r"""GetAPairTag
    """
    return call("vyr_html_get_a_pair_tag", TEXT, (TEXT, href), (TEXT, content))


def get_a_pair_tag_with_class_name(href: str, class_name: str, content: str) -> str:
    r"""GetAPairTag
    """
    return call("vyr_html_get_a_pair_tag_with_class_name", TEXT, (TEXT, href), (TEXT, class_name), (TEXT, content))


def get_a_pair_tag_with_class_name_target(href: str, class_name: str, target: str, content: str) -> str:
    r"""GetAPairTag
    """
    return call("vyr_html_get_a_pair_tag_with_class_name_target", TEXT, (TEXT, href), (TEXT, class_name), (TEXT, target), (TEXT, content))


def get_img_tag(src: str, width: int, height: int, alt: str) -> str:
    r"""GetImgTag

    An image. `width` and `height` are in pixels of the page; a negative number is written with its minus sign.
    """
    return call("vyr_html_get_img_tag", TEXT, (TEXT, src), (INT, width), (INT, height), (TEXT, alt))


def get_img_tag_with_class_name(src: str, class_name: str, width: int, height: int, alt: str) -> str:
    r"""GetImgTag

    An image. `width` and `height` are in pixels of the page; a negative number is written with its minus sign.
    """
    return call("vyr_html_get_img_tag_with_class_name", TEXT, (TEXT, src), (TEXT, class_name), (INT, width), (INT, height), (TEXT, alt))


def get_img_tag_with_class_name_id(src: str, class_name: str, width: int, height: int, alt: str, id: str) -> str:
    r"""GetImgTag

    An image. `width` and `height` are in pixels of the page; a negative number is written with its minus sign.
    """
    return call("vyr_html_get_img_tag_with_class_name_id", TEXT, (TEXT, src), (TEXT, class_name), (INT, width), (INT, height), (TEXT, alt), (TEXT, id))


def get_img_tag_with_class_name_id_title(src: str, class_name: str, width: int, height: int, alt: str, id: str, title: str) -> str:
    r"""GetImgTag

    An image. `width` and `height` are in pixels of the page; a negative number is written with its minus sign.
    """
    return call("vyr_html_get_img_tag_with_class_name_id_title", TEXT, (TEXT, src), (TEXT, class_name), (INT, width), (INT, height), (TEXT, alt), (TEXT, id), (TEXT, title))


def get_table_tag(class_name: str, id: str) -> str:
    r"""GetTableTag

    `<table>` on a line of its own.
    """
    return call("vyr_html_get_table_tag", TEXT, (TEXT, class_name), (TEXT, id))


def get_table_closing_tag() -> str:
    r"""GetTableClosingTag

    `</table>` on a line of its own.
    """
    return call("vyr_html_get_table_closing_tag", TEXT)


def get_thead_tag() -> str:
    r"""GetTheadTag

    `<thead>` on a line of its own.
    """
    return call("vyr_html_get_thead_tag", TEXT)


def get_thead_closing_tag() -> str:
    r"""GetTheadClosingTag

    `</thead>` on a line of its own.
    """
    return call("vyr_html_get_thead_closing_tag", TEXT)


def get_tbody_tag() -> str:
    r"""GetTbodyTag

    `<tbody>` on a line of its own.
    """
    return call("vyr_html_get_tbody_tag", TEXT)


def get_tbody_closing_tag() -> str:
    r"""GetTbodyClosingTag

    `</tbody>` on a line of its own.
    """
    return call("vyr_html_get_tbody_closing_tag", TEXT)


def get_tr_tag() -> str:
    r"""GetTrTag

    `<tr>`.
    """
    return call("vyr_html_get_tr_tag", TEXT)


def get_tr_tag_with_class_name(class_name: str) -> str:
    r"""GetTrTag

    `<tr>`.
    """
    return call("vyr_html_get_tr_tag_with_class_name", TEXT, (TEXT, class_name))


def get_tr_tag_with_class_name_id(class_name: str, id: str) -> str:
    r"""GetTrTag

    `<tr>`.
    """
    return call("vyr_html_get_tr_tag_with_class_name_id", TEXT, (TEXT, class_name), (TEXT, id))


def get_tr_closing_tag() -> str:
    r"""GetTrClosingTag

    `</tr>`.
    """
    return call("vyr_html_get_tr_closing_tag", TEXT)


def get_tr_pair_tag(content: str) -> str:
    r"""GetTrPairTag
    """
    return call("vyr_html_get_tr_pair_tag", TEXT, (TEXT, content))


def get_tr_pair_tag_with_class_name(class_name: str, content: str) -> str:
    r"""GetTrPairTag
    """
    return call("vyr_html_get_tr_pair_tag_with_class_name", TEXT, (TEXT, class_name), (TEXT, content))


def get_tr_pair_tag_with_class_name_id(class_name: str, id: str, content: str) -> str:
    r"""GetTrPairTag
    """
    return call("vyr_html_get_tr_pair_tag_with_class_name_id", TEXT, (TEXT, class_name), (TEXT, id), (TEXT, content))


def get_th_tag(class_name: str) -> str:
    r"""GetThTag

    `<th>`.
    """
    return call("vyr_html_get_th_tag", TEXT, (TEXT, class_name))


def get_th_closing_tag() -> str:
    r"""GetThClosingTag

    `</th>`.
    """
    return call("vyr_html_get_th_closing_tag", TEXT)


def get_th_pair_tag(class_name: str, content: str) -> str:
    r"""GetThPairTag
    """
    return call("vyr_html_get_th_pair_tag", TEXT, (TEXT, class_name), (TEXT, content))


def get_td_tag() -> str:
    r"""GetTdTag

    `<td>`.
    """
    return call("vyr_html_get_td_tag", TEXT)


def get_td_tag_with_class_name(class_name: str) -> str:
    r"""GetTdTag

    `<td>`.
    """
    return call("vyr_html_get_td_tag_with_class_name", TEXT, (TEXT, class_name))


def get_td_tag_with_class_name_id(class_name: str, id: str) -> str:
    r"""GetTdTag

    `<td>`.
    """
    return call("vyr_html_get_td_tag_with_class_name_id", TEXT, (TEXT, class_name), (TEXT, id))


def get_td_tag_with_class_name_id_attributes(class_name: str, id: str, attributes: str) -> str:
    r"""GetTdTag

    `<td>`.
    """
    return call("vyr_html_get_td_tag_with_class_name_id_attributes", TEXT, (TEXT, class_name), (TEXT, id), (TEXT, attributes))


def get_td_tag_with_class_name_id_width_height(class_name: str, id: str, width: int, height: int) -> str:
    r"""GetTdTag

    `width` and `height` as in GetImgTag.
    """
    return call("vyr_html_get_td_tag_with_class_name_id_width_height", TEXT, (TEXT, class_name), (TEXT, id), (INT, width), (INT, height))


def get_td_col_tag(class_name: str, colspan: str) -> str:
    r"""GetTdColTag

    `<td>` of a cell that spans columns.
    colspan: the number of columns, as text.
    """
    return call("vyr_html_get_td_col_tag", TEXT, (TEXT, class_name), (TEXT, colspan))


def get_td_col_tag_with_attributes(class_name: str, colspan: str, attributes: str) -> str:
    r"""GetTdColTag

    `<td>` of a cell that spans columns.
    colspan: the number of columns, as text.
    """
    return call("vyr_html_get_td_col_tag_with_attributes", TEXT, (TEXT, class_name), (TEXT, colspan), (TEXT, attributes))


def get_td_closing_tag() -> str:
    r"""GetTdClosingTag

    `</td>`.
    """
    return call("vyr_html_get_td_closing_tag", TEXT)


def get_td_pair_tag(content: str) -> str:
    r"""GetTdPairTag
    """
    return call("vyr_html_get_td_pair_tag", TEXT, (TEXT, content))


def get_td_pair_tag_with_class_name(class_name: str, content: str) -> str:
    r"""GetTdPairTag
    """
    return call("vyr_html_get_td_pair_tag_with_class_name", TEXT, (TEXT, class_name), (TEXT, content))


def get_td_pair_tag_with_class_name_id(class_name: str, id: str, content: str) -> str:
    r"""GetTdPairTag
    """
    return call("vyr_html_get_td_pair_tag_with_class_name_id", TEXT, (TEXT, class_name), (TEXT, id), (TEXT, content))
