"""The operations of HtmlFuncs, which VyrLibraryFuncs/html/HtmlFuncs.h describes; written by VyrC/generate from VyrC/interface.txt."""
import dataclasses
import datetime
from typing import List as ListType
from typing import Optional, Sequence, Tuple

from ._library import *  # noqa: F403
from ._library import call

# 30 December 1899, the date-time with the number 0.
ZERO = datetime.datetime(1899, 12, 30)


def get_doctype_tag() -> str:
    """GetDoctypeTag"""
    return call("vyr_html_get_doctype_tag", TEXT)


def get_saved_from_url_tag() -> str:
    """GetSavedFromUrlTag"""
    return call("vyr_html_get_saved_from_url_tag", TEXT)


def get_html_tag(lang: str) -> str:
    """GetHtmlTag"""
    return call("vyr_html_get_html_tag", TEXT, (TEXT, lang))


def get_html_closing_tag() -> str:
    """GetHtmlClosingTag"""
    return call("vyr_html_get_html_closing_tag", TEXT)


def get_head_tag() -> str:
    """GetHeadTag"""
    return call("vyr_html_get_head_tag", TEXT)


def get_head_closing_tag() -> str:
    """GetHeadClosingTag"""
    return call("vyr_html_get_head_closing_tag", TEXT)


def get_meta_xua_compatible_tag(mode: str) -> str:
    """GetMetaXUACompatibleTag"""
    return call("vyr_html_get_meta_xua_compatible_tag", TEXT, (TEXT, mode))


def get_meta_content_type_tag(charset: str) -> str:
    """GetMetaContentTypeTag"""
    return call("vyr_html_get_meta_content_type_tag", TEXT, (TEXT, charset))


def get_meta_generator_tag(generator: str) -> str:
    """GetMetaGeneratorTag"""
    return call("vyr_html_get_meta_generator_tag", TEXT, (TEXT, generator))


def get_link_css_tag(href: str) -> str:
    """GetLinkCSSTag"""
    return call("vyr_html_get_link_css_tag", TEXT, (TEXT, href))


def get_script_src_tag(src: str) -> str:
    """GetScriptSrcTag"""
    return call("vyr_html_get_script_src_tag", TEXT, (TEXT, src))


def get_script_closing_tag() -> str:
    """GetScriptClosingTag"""
    return call("vyr_html_get_script_closing_tag", TEXT)


def get_script_src_pair_tag(src: str) -> str:
    """GetScriptSrcPairTag"""
    return call("vyr_html_get_script_src_pair_tag", TEXT, (TEXT, src))


def get_title_tag(title: str) -> str:
    """GetTitleTag"""
    return call("vyr_html_get_title_tag", TEXT, (TEXT, title))


def get_body_tag() -> str:
    """GetBodyTag"""
    return call("vyr_html_get_body_tag", TEXT)


def get_body_tag_with_attributes(attributes: str) -> str:
    """GetBodyTag"""
    return call("vyr_html_get_body_tag_with_attributes", TEXT, (TEXT, attributes))


def get_body_closing_tag() -> str:
    """GetBodyClosingTag"""
    return call("vyr_html_get_body_closing_tag", TEXT)


def get_header_tag(class_name: str, id: str) -> str:
    """GetHeaderTag"""
    return call("vyr_html_get_header_tag", TEXT, (TEXT, class_name), (TEXT, id))


def get_header_closing_tag() -> str:
    """GetHeaderClosingTag"""
    return call("vyr_html_get_header_closing_tag", TEXT)


def get_footer_tag(class_name: str, id: str) -> str:
    """GetFooterTag"""
    return call("vyr_html_get_footer_tag", TEXT, (TEXT, class_name), (TEXT, id))


def get_footer_closing_tag() -> str:
    """GetFooterClosingTag"""
    return call("vyr_html_get_footer_closing_tag", TEXT)


def get_h1_tag(class_name: str) -> str:
    """GetH1Tag"""
    return call("vyr_html_get_h1_tag", TEXT, (TEXT, class_name))


def get_h1_closing_tag() -> str:
    """GetH1ClosingTag"""
    return call("vyr_html_get_h1_closing_tag", TEXT)


def get_h1_pair_tag(class_name: str, content: str) -> str:
    """GetH1PairTag"""
    return call("vyr_html_get_h1_pair_tag", TEXT, (TEXT, class_name), (TEXT, content))


def get_p_tag() -> str:
    """GetPTag"""
    return call("vyr_html_get_p_tag", TEXT)


def get_p_tag_with_class_name(class_name: str) -> str:
    """GetPTag"""
    return call("vyr_html_get_p_tag_with_class_name", TEXT, (TEXT, class_name))


def get_p_closing_tag() -> str:
    """GetPClosingTag"""
    return call("vyr_html_get_p_closing_tag", TEXT)


def get_span_tag() -> str:
    """GetSpanTag"""
    return call("vyr_html_get_span_tag", TEXT)


def get_span_tag_with_class_name(class_name: str) -> str:
    """GetSpanTag"""
    return call("vyr_html_get_span_tag_with_class_name", TEXT, (TEXT, class_name))


def get_span_tag_with_class_name_id(class_name: str, id: str) -> str:
    """GetSpanTag"""
    return call("vyr_html_get_span_tag_with_class_name_id", TEXT, (TEXT, class_name), (TEXT, id))


def get_span_closing_tag(new_line: int) -> str:
    """GetSpanClosingTag"""
    return call("vyr_html_get_span_closing_tag", TEXT, (INT, new_line))


def get_span_pair_tag(class_name: str, content: str, new_line: int) -> str:
    """GetSpanPairTag"""
    return call("vyr_html_get_span_pair_tag", TEXT, (TEXT, class_name), (TEXT, content), (INT, new_line))


def get_span_pair_tag_with_id(class_name: str, id: str, content: str, new_line: int) -> str:
    """GetSpanPairTag"""
    return call("vyr_html_get_span_pair_tag_with_id", TEXT, (TEXT, class_name), (TEXT, id), (TEXT, content), (INT, new_line))


def get_div_tag() -> str:
    """GetDivTag"""
    return call("vyr_html_get_div_tag", TEXT)


def get_div_tag_with_class_name(class_name: str) -> str:
    """GetDivTag"""
    return call("vyr_html_get_div_tag_with_class_name", TEXT, (TEXT, class_name))


def get_div_tag_with_class_name_id(class_name: str, id: str) -> str:
    """GetDivTag"""
    return call("vyr_html_get_div_tag_with_class_name_id", TEXT, (TEXT, class_name), (TEXT, id))


def get_div_tag_with_class_name_id_attributes(class_name: str, id: str, attributes: str) -> str:
    """GetDivTag"""
    return call("vyr_html_get_div_tag_with_class_name_id_attributes", TEXT, (TEXT, class_name), (TEXT, id), (TEXT, attributes))


def get_div_closing_tag(new_line: int) -> str:
    """GetDivClosingTag"""
    return call("vyr_html_get_div_closing_tag", TEXT, (INT, new_line))


def get_div_pair_tag(class_name: str, content: str, new_line: int) -> str:
    """GetDivPairTag"""
    return call("vyr_html_get_div_pair_tag", TEXT, (TEXT, class_name), (TEXT, content), (INT, new_line))


def get_div_pair_tag_with_id(class_name: str, id: str, content: str, new_line: int) -> str:
    """GetDivPairTag"""
    return call("vyr_html_get_div_pair_tag_with_id", TEXT, (TEXT, class_name), (TEXT, id), (TEXT, content), (INT, new_line))


def get_div_pair_tag_with_id_attributes(class_name: str, id: str, attributes: str, content: str, new_line: int) -> str:
    """GetDivPairTag"""
    return call("vyr_html_get_div_pair_tag_with_id_attributes", TEXT, (TEXT, class_name), (TEXT, id), (TEXT, attributes), (TEXT, content), (INT, new_line))


def get_br_tag(new_line: int) -> str:
    """GetBrTag"""
    return call("vyr_html_get_br_tag", TEXT, (INT, new_line))


def get_a_tag(href: str) -> str:
    """GetATag"""
    return call("vyr_html_get_a_tag", TEXT, (TEXT, href))


def get_a_tag_with_class_name(href: str, class_name: str) -> str:
    """GetATag"""
    return call("vyr_html_get_a_tag_with_class_name", TEXT, (TEXT, href), (TEXT, class_name))


def get_a_tag_with_class_name_target(href: str, class_name: str, target: str) -> str:
    """GetATag"""
    return call("vyr_html_get_a_tag_with_class_name_target", TEXT, (TEXT, href), (TEXT, class_name), (TEXT, target))


def get_a_closing_tag() -> str:
    """GetAClosingTag"""
    return call("vyr_html_get_a_closing_tag", TEXT)


def get_a_pair_tag(href: str, content: str) -> str:
    """GetAPairTag"""
    return call("vyr_html_get_a_pair_tag", TEXT, (TEXT, href), (TEXT, content))


def get_a_pair_tag_with_class_name(href: str, class_name: str, content: str) -> str:
    """GetAPairTag"""
    return call("vyr_html_get_a_pair_tag_with_class_name", TEXT, (TEXT, href), (TEXT, class_name), (TEXT, content))


def get_a_pair_tag_with_class_name_target(href: str, class_name: str, target: str, content: str) -> str:
    """GetAPairTag"""
    return call("vyr_html_get_a_pair_tag_with_class_name_target", TEXT, (TEXT, href), (TEXT, class_name), (TEXT, target), (TEXT, content))


def get_img_tag(src: str, width: int, height: int, alt: str) -> str:
    """GetImgTag"""
    return call("vyr_html_get_img_tag", TEXT, (TEXT, src), (INT, width), (INT, height), (TEXT, alt))


def get_img_tag_with_class_name(src: str, class_name: str, width: int, height: int, alt: str) -> str:
    """GetImgTag"""
    return call("vyr_html_get_img_tag_with_class_name", TEXT, (TEXT, src), (TEXT, class_name), (INT, width), (INT, height), (TEXT, alt))


def get_img_tag_with_class_name_id(src: str, class_name: str, width: int, height: int, alt: str, id: str) -> str:
    """GetImgTag"""
    return call("vyr_html_get_img_tag_with_class_name_id", TEXT, (TEXT, src), (TEXT, class_name), (INT, width), (INT, height), (TEXT, alt), (TEXT, id))


def get_img_tag_with_class_name_id_title(src: str, class_name: str, width: int, height: int, alt: str, id: str, title: str) -> str:
    """GetImgTag"""
    return call("vyr_html_get_img_tag_with_class_name_id_title", TEXT, (TEXT, src), (TEXT, class_name), (INT, width), (INT, height), (TEXT, alt), (TEXT, id), (TEXT, title))


def get_table_tag(class_name: str, id: str) -> str:
    """GetTableTag"""
    return call("vyr_html_get_table_tag", TEXT, (TEXT, class_name), (TEXT, id))


def get_table_closing_tag() -> str:
    """GetTableClosingTag"""
    return call("vyr_html_get_table_closing_tag", TEXT)


def get_thead_tag() -> str:
    """GetTheadTag"""
    return call("vyr_html_get_thead_tag", TEXT)


def get_thead_closing_tag() -> str:
    """GetTheadClosingTag"""
    return call("vyr_html_get_thead_closing_tag", TEXT)


def get_tbody_tag() -> str:
    """GetTbodyTag"""
    return call("vyr_html_get_tbody_tag", TEXT)


def get_tbody_closing_tag() -> str:
    """GetTbodyClosingTag"""
    return call("vyr_html_get_tbody_closing_tag", TEXT)


def get_tr_tag() -> str:
    """GetTrTag"""
    return call("vyr_html_get_tr_tag", TEXT)


def get_tr_tag_with_class_name(class_name: str) -> str:
    """GetTrTag"""
    return call("vyr_html_get_tr_tag_with_class_name", TEXT, (TEXT, class_name))


def get_tr_tag_with_class_name_id(class_name: str, id: str) -> str:
    """GetTrTag"""
    return call("vyr_html_get_tr_tag_with_class_name_id", TEXT, (TEXT, class_name), (TEXT, id))


def get_tr_closing_tag() -> str:
    """GetTrClosingTag"""
    return call("vyr_html_get_tr_closing_tag", TEXT)


def get_tr_pair_tag(content: str) -> str:
    """GetTrPairTag"""
    return call("vyr_html_get_tr_pair_tag", TEXT, (TEXT, content))


def get_tr_pair_tag_with_class_name(class_name: str, content: str) -> str:
    """GetTrPairTag"""
    return call("vyr_html_get_tr_pair_tag_with_class_name", TEXT, (TEXT, class_name), (TEXT, content))


def get_tr_pair_tag_with_class_name_id(class_name: str, id: str, content: str) -> str:
    """GetTrPairTag"""
    return call("vyr_html_get_tr_pair_tag_with_class_name_id", TEXT, (TEXT, class_name), (TEXT, id), (TEXT, content))


def get_th_tag(class_name: str) -> str:
    """GetThTag"""
    return call("vyr_html_get_th_tag", TEXT, (TEXT, class_name))


def get_th_closing_tag() -> str:
    """GetThClosingTag"""
    return call("vyr_html_get_th_closing_tag", TEXT)


def get_th_pair_tag(class_name: str, content: str) -> str:
    """GetThPairTag"""
    return call("vyr_html_get_th_pair_tag", TEXT, (TEXT, class_name), (TEXT, content))


def get_td_tag() -> str:
    """GetTdTag"""
    return call("vyr_html_get_td_tag", TEXT)


def get_td_tag_with_class_name(class_name: str) -> str:
    """GetTdTag"""
    return call("vyr_html_get_td_tag_with_class_name", TEXT, (TEXT, class_name))


def get_td_tag_with_class_name_id(class_name: str, id: str) -> str:
    """GetTdTag"""
    return call("vyr_html_get_td_tag_with_class_name_id", TEXT, (TEXT, class_name), (TEXT, id))


def get_td_tag_with_class_name_id_attributes(class_name: str, id: str, attributes: str) -> str:
    """GetTdTag"""
    return call("vyr_html_get_td_tag_with_class_name_id_attributes", TEXT, (TEXT, class_name), (TEXT, id), (TEXT, attributes))


def get_td_tag_with_class_name_id_width_height(class_name: str, id: str, width: int, height: int) -> str:
    """GetTdTag"""
    return call("vyr_html_get_td_tag_with_class_name_id_width_height", TEXT, (TEXT, class_name), (TEXT, id), (INT, width), (INT, height))


def get_td_col_tag(class_name: str, colspan: str) -> str:
    """GetTdColTag"""
    return call("vyr_html_get_td_col_tag", TEXT, (TEXT, class_name), (TEXT, colspan))


def get_td_col_tag_with_attributes(class_name: str, colspan: str, attributes: str) -> str:
    """GetTdColTag"""
    return call("vyr_html_get_td_col_tag_with_attributes", TEXT, (TEXT, class_name), (TEXT, colspan), (TEXT, attributes))


def get_td_closing_tag() -> str:
    """GetTdClosingTag"""
    return call("vyr_html_get_td_closing_tag", TEXT)


def get_td_pair_tag(content: str) -> str:
    """GetTdPairTag"""
    return call("vyr_html_get_td_pair_tag", TEXT, (TEXT, content))


def get_td_pair_tag_with_class_name(class_name: str, content: str) -> str:
    """GetTdPairTag"""
    return call("vyr_html_get_td_pair_tag_with_class_name", TEXT, (TEXT, class_name), (TEXT, content))


def get_td_pair_tag_with_class_name_id(class_name: str, id: str, content: str) -> str:
    """GetTdPairTag"""
    return call("vyr_html_get_td_pair_tag_with_class_name_id", TEXT, (TEXT, class_name), (TEXT, id), (TEXT, content))
