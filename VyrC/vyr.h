/* clang-format off */
/* The operations of VyrLibrary for C and for every language that can call C.
 *
 * VyrC/generate writes this file from VyrC/interface.txt. Each function is one operation of a C++ class. The comments
 * name both; the class's header describes the operation.
 *
 * Status     Each function returns whether it succeeded; results come through its last parameters. They are written
 *            only with VYR_OK (and the length also with VYR_BUFFER_TOO_SMALL).
 * Text       UTF-16. An argument has a length in code units; a negative length means that it ends at its first zero. A
 *            null pointer with the length 0 is the empty text. A result is written with a terminating zero into a buffer
 *            of `capacity` code units; `length` gets its length without that zero, also when the buffer is too small.
 *            Such a call can be repeated with a larger buffer.
 * Record     A structure whose first field, `struct_size`, is sizeof of the structure. Later versions add fields at the
 *            end; a library accepts the sizes of earlier versions, and refuses those of later ones.
 * List       An argument is a pointer to the first element, and the number of elements. A result is a handle; the
 *            record's own function reads one record at a time, and vyr_list_release frees the list. The texts of such a
 *            record live as long as the list.
 * Date-time  Days since 30 December 1899, local time, and a status: 0 valid, 1 invalid, 2 null.
 * File time  Intervals of 100 nanoseconds since 1 January 1601 UTC; 0 is none.
 * Object     An XML document or element that the library gave out: on Windows an interface of COM, on Linux the library's
 *            own. The host gives it back with vyr_xml_release, on the same thread. Any other pointer is a wrong argument.
 *            A page's document object is the host's own: on Windows an interface of COM, on Linux an object whose first
 *            word is the address of a table of functions in the order of that interface. What cannot be such an object
 *            is a wrong argument.
 * Version    A function that came after the first version says so in its name in the library, as
 *            vyr_name_of_operation_since_0_2: a host that needs it does not link with an older library.
 * Yes, no    1 and 0, as an int32_t.
 *
 * A null or misaligned pointer, a wrong size of a structure and an unknown handle give VYR_WRONG_ARGUMENT, before
 * anything is done. No exception leaves a function. Call the functions on one thread, like the C++ library. On Windows
 * that thread must have initialised COM before documents are read.
 */
#ifndef VYR_H
#define VYR_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

typedef int32_t vyr_status;

#define VYR_OK 0
#define VYR_BUFFER_TOO_SMALL 1
#define VYR_WRONG_ARGUMENT 2
#define VYR_OUT_OF_MEMORY 3
/* The operation failed with an exception; vyr_get_last_error has its text. */
#define VYR_FAILED 4

/* The version of this file: major * 1000000 + minor * 1000 + patch. */
#define VYR_VERSION 1000

typedef struct vyr_text
{
    const uint16_t* units;
    ptrdiff_t length;
} vyr_text;

typedef struct vyr_date_time
{
    double days;
    int32_t status;
} vyr_date_time;

/* In pixels; the right and bottom edges are not part of it. */
typedef struct vyr_rect
{
    int32_t left;
    int32_t top;
    int32_t right;
    int32_t bottom;
} vyr_rect;

/* A class id, as on Windows. */
typedef struct vyr_guid
{
    uint32_t data1;
    uint16_t data2;
    uint16_t data3;
    uint8_t data4[8];
} vyr_guid;

typedef struct vyr_text_and_number
{
    vyr_text text;
    int32_t number;
} vyr_text_and_number;

/* A value with its type, by Windows' numbers for the types of property values. */
typedef struct vyr_value
{
    size_t struct_size;
    /* 0 empty, 1 null; 8 and 31 text; 30 a byte text, 65 bytes; 4, 5 and 7 (date) real; 72 guid; 2, 3, 6 (10,000 times
       an amount), 10, 11 (yes or no), 16 to 23 and 64 (file time) number. */
    int32_t type;
    int64_t number;
    double real;
    vyr_text text;
    const uint8_t* bytes;
    size_t bytes_count;
    vyr_guid guid;
} vyr_value;

/* Handles at most one pending event of the host without waiting, and returns whether that event asks for a stop. It is
   called on the thread that set it. */
typedef int32_t (*vyr_drain)(void* context);

/* The handle of a list that is a result; 0 is none. */
typedef uint64_t vyr_list;

/* The version of the library, in the form of VYR_VERSION. An older library lacks newer functions. */
uint32_t vyr_version(void);
/* The text of the last error on this thread. */
vyr_status vyr_get_last_error(uint16_t* buffer, size_t capacity, size_t* length);
vyr_status vyr_list_get_count(vyr_list list, size_t* count);
/* The text at `index`, from 0, of a list of texts. It lives as long as the list. */
vyr_status vyr_text_get(vyr_list list, size_t index, vyr_text* text);
vyr_status vyr_list_release(vyr_list list);

/* HtmlFuncs: VyrLibraryFuncs/html/HtmlFuncs.h */
/* GetDoctypeTag */
vyr_status vyr_html_get_doctype_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetSavedFromUrlTag */
vyr_status vyr_html_get_saved_from_url_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetHtmlTag */
vyr_status vyr_html_get_html_tag(
    const uint16_t* lang,
    ptrdiff_t lang_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetHtmlClosingTag */
vyr_status vyr_html_get_html_closing_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetHeadTag */
vyr_status vyr_html_get_head_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetHeadClosingTag */
vyr_status vyr_html_get_head_closing_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetMetaXUACompatibleTag */
vyr_status vyr_html_get_meta_xua_compatible_tag(
    const uint16_t* mode,
    ptrdiff_t mode_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetMetaContentTypeTag */
vyr_status vyr_html_get_meta_content_type_tag(
    const uint16_t* charset,
    ptrdiff_t charset_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetMetaGeneratorTag */
vyr_status vyr_html_get_meta_generator_tag(
    const uint16_t* generator,
    ptrdiff_t generator_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetLinkCSSTag */
vyr_status vyr_html_get_link_css_tag(
    const uint16_t* href,
    ptrdiff_t href_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetScriptSrcTag */
vyr_status vyr_html_get_script_src_tag(
    const uint16_t* src,
    ptrdiff_t src_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetScriptClosingTag */
vyr_status vyr_html_get_script_closing_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetScriptSrcPairTag */
vyr_status vyr_html_get_script_src_pair_tag(
    const uint16_t* src,
    ptrdiff_t src_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetTitleTag */
vyr_status vyr_html_get_title_tag(
    const uint16_t* title,
    ptrdiff_t title_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetBodyTag */
vyr_status vyr_html_get_body_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetBodyTag */
vyr_status vyr_html_get_body_tag_with_attributes(
    const uint16_t* attributes,
    ptrdiff_t attributes_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetBodyClosingTag */
vyr_status vyr_html_get_body_closing_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetHeaderTag */
vyr_status vyr_html_get_header_tag(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetHeaderClosingTag */
vyr_status vyr_html_get_header_closing_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetFooterTag */
vyr_status vyr_html_get_footer_tag(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetFooterClosingTag */
vyr_status vyr_html_get_footer_closing_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetH1Tag */
vyr_status vyr_html_get_h1_tag(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetH1ClosingTag */
vyr_status vyr_html_get_h1_closing_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetH1PairTag */
vyr_status vyr_html_get_h1_pair_tag(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetPTag */
vyr_status vyr_html_get_p_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetPTag */
vyr_status vyr_html_get_p_tag_with_class_name(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetPClosingTag */
vyr_status vyr_html_get_p_closing_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetSpanTag */
vyr_status vyr_html_get_span_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetSpanTag */
vyr_status vyr_html_get_span_tag_with_class_name(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetSpanTag */
vyr_status vyr_html_get_span_tag_with_class_name_id(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetSpanClosingTag */
vyr_status vyr_html_get_span_closing_tag(int32_t new_line, uint16_t* buffer, size_t capacity, size_t* length);
/* GetSpanPairTag */
vyr_status vyr_html_get_span_pair_tag(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    int32_t new_line,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetSpanPairTag */
vyr_status vyr_html_get_span_pair_tag_with_id(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    int32_t new_line,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetDivTag */
vyr_status vyr_html_get_div_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetDivTag */
vyr_status vyr_html_get_div_tag_with_class_name(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetDivTag */
vyr_status vyr_html_get_div_tag_with_class_name_id(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetDivTag */
vyr_status vyr_html_get_div_tag_with_class_name_id_attributes(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    const uint16_t* attributes,
    ptrdiff_t attributes_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetDivClosingTag */
vyr_status vyr_html_get_div_closing_tag(int32_t new_line, uint16_t* buffer, size_t capacity, size_t* length);
/* GetDivPairTag */
vyr_status vyr_html_get_div_pair_tag(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    int32_t new_line,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetDivPairTag */
vyr_status vyr_html_get_div_pair_tag_with_id(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    int32_t new_line,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetDivPairTag */
vyr_status vyr_html_get_div_pair_tag_with_id_attributes(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    const uint16_t* attributes,
    ptrdiff_t attributes_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    int32_t new_line,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetBrTag */
vyr_status vyr_html_get_br_tag(int32_t new_line, uint16_t* buffer, size_t capacity, size_t* length);
/* GetATag */
vyr_status vyr_html_get_a_tag(
    const uint16_t* href,
    ptrdiff_t href_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetATag */
vyr_status vyr_html_get_a_tag_with_class_name(
    const uint16_t* href,
    ptrdiff_t href_length,
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetATag */
vyr_status vyr_html_get_a_tag_with_class_name_target(
    const uint16_t* href,
    ptrdiff_t href_length,
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* target,
    ptrdiff_t target_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetAClosingTag */
vyr_status vyr_html_get_a_closing_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetAPairTag */
vyr_status vyr_html_get_a_pair_tag(
    const uint16_t* href,
    ptrdiff_t href_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetAPairTag */
vyr_status vyr_html_get_a_pair_tag_with_class_name(
    const uint16_t* href,
    ptrdiff_t href_length,
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetAPairTag */
vyr_status vyr_html_get_a_pair_tag_with_class_name_target(
    const uint16_t* href,
    ptrdiff_t href_length,
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* target,
    ptrdiff_t target_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetImgTag */
vyr_status vyr_html_get_img_tag(
    const uint16_t* src,
    ptrdiff_t src_length,
    int32_t width,
    int32_t height,
    const uint16_t* alt,
    ptrdiff_t alt_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetImgTag */
vyr_status vyr_html_get_img_tag_with_class_name(
    const uint16_t* src,
    ptrdiff_t src_length,
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    int32_t width,
    int32_t height,
    const uint16_t* alt,
    ptrdiff_t alt_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetImgTag */
vyr_status vyr_html_get_img_tag_with_class_name_id(
    const uint16_t* src,
    ptrdiff_t src_length,
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    int32_t width,
    int32_t height,
    const uint16_t* alt,
    ptrdiff_t alt_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetImgTag */
vyr_status vyr_html_get_img_tag_with_class_name_id_title(
    const uint16_t* src,
    ptrdiff_t src_length,
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    int32_t width,
    int32_t height,
    const uint16_t* alt,
    ptrdiff_t alt_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    const uint16_t* title,
    ptrdiff_t title_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetTableTag */
vyr_status vyr_html_get_table_tag(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetTableClosingTag */
vyr_status vyr_html_get_table_closing_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetTheadTag */
vyr_status vyr_html_get_thead_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetTheadClosingTag */
vyr_status vyr_html_get_thead_closing_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetTbodyTag */
vyr_status vyr_html_get_tbody_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetTbodyClosingTag */
vyr_status vyr_html_get_tbody_closing_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetTrTag */
vyr_status vyr_html_get_tr_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetTrTag */
vyr_status vyr_html_get_tr_tag_with_class_name(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetTrTag */
vyr_status vyr_html_get_tr_tag_with_class_name_id(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetTrClosingTag */
vyr_status vyr_html_get_tr_closing_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetTrPairTag */
vyr_status vyr_html_get_tr_pair_tag(
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetTrPairTag */
vyr_status vyr_html_get_tr_pair_tag_with_class_name(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetTrPairTag */
vyr_status vyr_html_get_tr_pair_tag_with_class_name_id(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetThTag */
vyr_status vyr_html_get_th_tag(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetThClosingTag */
vyr_status vyr_html_get_th_closing_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetThPairTag */
vyr_status vyr_html_get_th_pair_tag(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetTdTag */
vyr_status vyr_html_get_td_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetTdTag */
vyr_status vyr_html_get_td_tag_with_class_name(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetTdTag */
vyr_status vyr_html_get_td_tag_with_class_name_id(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetTdTag */
vyr_status vyr_html_get_td_tag_with_class_name_id_attributes(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    const uint16_t* attributes,
    ptrdiff_t attributes_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetTdTag */
vyr_status vyr_html_get_td_tag_with_class_name_id_width_height(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    int32_t width,
    int32_t height,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetTdColTag */
vyr_status vyr_html_get_td_col_tag(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* colspan,
    ptrdiff_t colspan_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetTdColTag */
vyr_status vyr_html_get_td_col_tag_with_attributes(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* colspan,
    ptrdiff_t colspan_length,
    const uint16_t* attributes,
    ptrdiff_t attributes_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetTdClosingTag */
vyr_status vyr_html_get_td_closing_tag(uint16_t* buffer, size_t capacity, size_t* length);
/* GetTdPairTag */
vyr_status vyr_html_get_td_pair_tag(
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetTdPairTag */
vyr_status vyr_html_get_td_pair_tag_with_class_name(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetTdPairTag */
vyr_status vyr_html_get_td_pair_tag_with_class_name_id(
    const uint16_t* class_name,
    ptrdiff_t class_name_length,
    const uint16_t* id,
    ptrdiff_t id_length,
    const uint16_t* content,
    ptrdiff_t content_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);

/* MSHTMLImgFuncs: VyrLibraryFuncs/html/MSHTMLImgFuncs.h */
/* SetResizeImgStyle */
vyr_status vyr_mshtml_img_set_resize_img_style(void* document, const vyr_rect* client);

/* OutputFuncs: VyrLibraryFuncs/html/OutputFuncs.h */
/* GetOutputFilePath */
vyr_status vyr_output_get_output_file_path(uint16_t* buffer, size_t capacity, size_t* length);
/* SetOutputFilePath */
vyr_status vyr_output_set_output_file_path(const uint16_t* path, ptrdiff_t path_length);
/* GetOutputFilterIndex */
vyr_status vyr_output_get_output_filter_index(int32_t* result);
/* SetOutputFilterIndex */
vyr_status vyr_output_set_output_filter_index(int32_t index);
/* GetGeneratorOutputString */
vyr_status vyr_output_get_generator_output_string(uint16_t* buffer, size_t capacity, size_t* length);
/* GetGeneratorOutputString */
vyr_status vyr_output_get_generator_output_string_with_name(
    const uint16_t* name,
    ptrdiff_t name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetPropertySize */
vyr_status vyr_output_get_property_size(int32_t choice, int32_t custom, int32_t* result);
/* GetDialogPropertyWidth */
vyr_status vyr_output_get_dialog_property_width(int32_t width, uint16_t* buffer, size_t capacity, size_t* length);

/* AttributesFuncs: VyrLibraryFuncs/metadata/AttributesFuncs.h */

/* AttributesFuncs::ATTRIBUTESITEM */
typedef struct vyr_attributes_item
{
    size_t struct_size;
    int32_t read_only;
    int32_t hidden;
    int32_t system;
    int32_t archive;
    int32_t temporary;
    int32_t not_content_indexed;
} vyr_attributes_item;

/* SetModifiedFileAttributes */
vyr_status vyr_attributes_set_modified_file_attributes(
    const uint16_t* path,
    ptrdiff_t path_length,
    const vyr_attributes_item* item,
    int32_t* result);
/* GetSelectedReadOnlyAttributes */
vyr_status vyr_attributes_get_selected_read_only_attributes(
    const uint16_t* text,
    ptrdiff_t text_length,
    int32_t* result);
/* GetSelectedHiddenAttributes */
vyr_status vyr_attributes_get_selected_hidden_attributes(const uint16_t* text, ptrdiff_t text_length, int32_t* result);
/* GetSelectedSystemAttributes */
vyr_status vyr_attributes_get_selected_system_attributes(const uint16_t* text, ptrdiff_t text_length, int32_t* result);
/* GetSelectedArchiveAttributes */
vyr_status vyr_attributes_get_selected_archive_attributes(const uint16_t* text, ptrdiff_t text_length, int32_t* result);
/* GetSelectedTemporaryAttributes */
vyr_status vyr_attributes_get_selected_temporary_attributes(
    const uint16_t* text,
    ptrdiff_t text_length,
    int32_t* result);
/* GetSelectedNotContentIndexedAttributes */
vyr_status vyr_attributes_get_selected_not_content_indexed_attributes(
    const uint16_t* text,
    ptrdiff_t text_length,
    int32_t* result);
/* SetReadOnlyAttributes */
vyr_status vyr_attributes_set_read_only_attributes(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t is_on,
    int32_t* result);
/* SetHiddenAttributes */
vyr_status vyr_attributes_set_hidden_attributes(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t is_on,
    int32_t* result);
/* SetSystemAttributes */
vyr_status vyr_attributes_set_system_attributes(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t is_on,
    int32_t* result);
/* SetArchiveAttributes */
vyr_status vyr_attributes_set_archive_attributes(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t is_on,
    int32_t* result);
/* SetTemporaryAttributes */
vyr_status vyr_attributes_set_temporary_attributes(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t is_on,
    int32_t* result);
/* SetNotContentIndexedAttributes */
vyr_status vyr_attributes_set_not_content_indexed_attributes(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t is_on,
    int32_t* result);
/* GetArrtibutesPriority */
vyr_status vyr_attributes_get_arrtibutes_priority(const uint16_t* letter, ptrdiff_t letter_length, int32_t* result);

/* DateTimeFuncs: VyrLibraryFuncs/metadata/DateTimeFuncs.h */

/* DateTimeFuncs::STAGGERITEM */
typedef struct vyr_date_time_stagger_item
{
    size_t struct_size;
    int32_t use_start_date_time;
    vyr_date_time start_date;
    vyr_date_time start_time;
    int32_t numbering_mode;
    int32_t direction;
    int32_t start_number;
    int32_t years;
    int32_t months;
    int32_t days;
    int32_t hours;
    int32_t minutes;
    int32_t seconds;
} vyr_date_time_stagger_item;

/* GetOtherDateTime */
vyr_status vyr_date_time_get_other_date_time(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t date_time_target,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetSelectedFileDateTime */
vyr_status vyr_date_time_get_selected_file_date_time(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t date_time_target,
    int32_t is_enabled,
    uint64_t* result);
/* GetModifiedFileDateTime */
vyr_status vyr_date_time_get_modified_file_date_time(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t is_enabled,
    double date,
    int32_t date_status,
    double time,
    int32_t time_status,
    int32_t date_time_mode,
    uint64_t* result);
/* SetModifiedFileDateTime */
vyr_status vyr_date_time_set_modified_file_date_time(
    const uint16_t* path,
    ptrdiff_t path_length,
    const uint64_t* created,
    const uint64_t* modified,
    const uint64_t* accessed,
    int32_t* result);
/* GetStaggerFileDateTime */
vyr_status vyr_date_time_get_stagger_file_date_time(
    int32_t index,
    int32_t is_enabled,
    double base,
    int32_t base_status,
    const vyr_date_time_stagger_item* item,
    uint64_t* result);
/* GetCalDateTime */
vyr_status vyr_date_time_get_cal_date_time(
    double date_time,
    int32_t date_time_status,
    int32_t years,
    int32_t months,
    int32_t days,
    vyr_date_time* result);
/* GetTimeDifferenceDateTime */
vyr_status vyr_date_time_get_time_difference_date_time(
    double date_time,
    int32_t date_time_status,
    int32_t hours,
    vyr_date_time* result);
/* GetYesterdayDateTime */
vyr_status vyr_date_time_get_yesterday_date_time(double date_time, int32_t date_time_status, vyr_date_time* result);
/* GetLastMonthDateTime */
vyr_status vyr_date_time_get_last_month_date_time(double date_time, int32_t date_time_status, vyr_date_time* result);
/* GetLastYearDateTime */
vyr_status vyr_date_time_get_last_year_date_time(double date_time, int32_t date_time_status, vyr_date_time* result);
/* GetBeginThisWeekDateTime */
vyr_status vyr_date_time_get_begin_this_week_date_time(
    double date_time,
    int32_t date_time_status,
    vyr_date_time* result);
/* GetBeginLastWeekDateTime */
vyr_status vyr_date_time_get_begin_last_week_date_time(
    double date_time,
    int32_t date_time_status,
    vyr_date_time* result);
/* GetEndWeekDateTime */
vyr_status vyr_date_time_get_end_week_date_time(double date_time, int32_t date_time_status, vyr_date_time* result);
/* IsMatchDateMonth */
vyr_status vyr_date_time_is_match_date_month(
    double left,
    int32_t left_status,
    double right,
    int32_t right_status,
    int32_t* result);
/* IsMatchDate */
vyr_status vyr_date_time_is_match_date(
    double left,
    int32_t left_status,
    double right,
    int32_t right_status,
    int32_t* result);

/* OfficePropertyFuncs: VyrLibraryFuncs/metadata/OfficePropertyFuncs.h */

/* OfficePropertyFuncs::CLSID_ITEM */
typedef struct vyr_office_property_handler
{
    size_t struct_size;
    vyr_text extension;
    vyr_guid clsid;
    int32_t flag;
} vyr_office_property_handler;

/* Writes the record at `index`, from 0, of such a list. */
vyr_status vyr_office_property_handler_get(vyr_list list, size_t index, vyr_office_property_handler* record);
/* GetClassIdItemList */
vyr_status vyr_office_property_get_class_id_item_list(
    const vyr_text_and_number* extensions,
    size_t extensions_count,
    vyr_list* result);
/* GetClassId */
vyr_status vyr_office_property_get_class_id(
    const uint16_t* extension,
    ptrdiff_t extension_length,
    const vyr_office_property_handler* items,
    size_t items_count,
    vyr_guid* result);
/* GetPropertyHandlerRegKey */
vyr_status vyr_office_property_get_property_handler_reg_key(
    const uint16_t* extension,
    ptrdiff_t extension_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* SetDumpProps */
vyr_status vyr_office_property_set_dump_props(
    const uint16_t* path,
    ptrdiff_t path_length,
    uint32_t property_id,
    const vyr_value* value,
    const vyr_guid* clsid,
    int32_t* result);

/* UnblockFuncs: VyrLibraryFuncs/metadata/UnblockFuncs.h */
/* DeleteZoneId */
vyr_status vyr_unblock_delete_zone_id(const uint16_t* path, ptrdiff_t path_length, int32_t* result);

/* NameFuncs: VyrLibraryFuncs/name/NameFuncs.h */

/* NameFuncs::ITEM */
typedef struct vyr_name_item
{
    size_t struct_size;
    vyr_text file_path;
    vyr_text aux_text1;
    vyr_text aux_text2;
    vyr_text aux_text3;
    vyr_text aux_text4;
    vyr_text dir_path;
    vyr_text file_name;
    vyr_text extension;
    int32_t index;
    int32_t rename_type;
    int32_t number_position;
    vyr_text number_text1;
    vyr_text number_text2;
    int32_t start_number;
    int32_t digits;
    int32_t step;
    int32_t date_time_position;
    int32_t date_time_target;
    vyr_text date_time_format;
    int32_t add_delete_type;
    int32_t position;
    int32_t delete_count;
    vyr_text add_text;
    int32_t convert_type;
    vyr_text find_text;
    vyr_text replace_text;
    int32_t extension_type;
    vyr_text new_extension;
} vyr_name_item;


/* NameFuncs::CONFLICTITEM */
typedef struct vyr_name_conflict_item
{
    size_t struct_size;
    vyr_text number_format;
    int32_t position;
    int32_t start_number;
    int32_t step;
} vyr_name_conflict_item;


/* NameFuncs::RENAMEITEM */
typedef struct vyr_name_rename_item
{
    size_t struct_size;
    vyr_text source_path;
    vyr_text destination_path;
    vyr_date_time date_created;
    vyr_date_time date_modified;
} vyr_name_rename_item;

/* Writes the record at `index`, from 0, of such a list. */
vyr_status vyr_name_rename_item_get(vyr_list list, size_t index, vyr_name_rename_item* record);
/* GetRenameFilePath */
vyr_status vyr_name_get_rename_file_path(const vyr_name_item* item, uint16_t* buffer, size_t capacity, size_t* length);
/* GetRenameFilePaths */
vyr_status vyr_name_get_rename_file_paths(const vyr_name_item* items, size_t items_count, vyr_list* result);
/* GetFName */
vyr_status vyr_name_get_f_name(
    const uint16_t* path,
    ptrdiff_t path_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetExtension */
vyr_status vyr_name_get_extension(
    const uint16_t* path,
    ptrdiff_t path_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* IsResolveConflict */
vyr_status vyr_name_is_resolve_conflict(const vyr_name_item* item, int32_t* result);
/* GetSequenceNumberFilePath */
vyr_status vyr_name_get_sequence_number_file_path(
    const vyr_name_item* item,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetDateTimeFilePath */
vyr_status vyr_name_get_date_time_file_path(
    const vyr_name_item* item,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetAddDeleteFilePath */
vyr_status vyr_name_get_add_delete_file_path(
    const vyr_name_item* item,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetConvertFilePath */
vyr_status vyr_name_get_convert_file_path(const vyr_name_item* item, uint16_t* buffer, size_t capacity, size_t* length);
/* GetReplaceFilePath */
vyr_status vyr_name_get_replace_file_path(const vyr_name_item* item, uint16_t* buffer, size_t capacity, size_t* length);
/* GetExtensionFilePath */
vyr_status vyr_name_get_extension_file_path(
    const vyr_name_item* item,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetResolveConflictFilePath */
vyr_status vyr_name_get_resolve_conflict_file_path(
    const uint16_t* path,
    ptrdiff_t path_length,
    const vyr_name_conflict_item* item,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetRenameToSampleFormated */
vyr_status vyr_name_get_rename_to_sample_formated(
    const uint16_t* format,
    ptrdiff_t format_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetDateTimeFormat */
vyr_status vyr_name_get_date_time_format(
    const uint16_t* path,
    ptrdiff_t path_length,
    const uint16_t* format,
    ptrdiff_t format_length,
    int32_t target,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetFolderFormat */
vyr_status vyr_name_get_folder_format(
    const uint16_t* format,
    ptrdiff_t format_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetExifFormat */
vyr_status vyr_name_get_exif_format(
    const uint16_t* path,
    ptrdiff_t path_length,
    const uint16_t* format,
    ptrdiff_t format_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* CopyFolder */
vyr_status vyr_name_copy_folder(
    const uint16_t* source,
    ptrdiff_t source_length,
    const uint16_t* destination,
    ptrdiff_t destination_length,
    vyr_list* records,
    int32_t* result);
/* MoveFolder */
vyr_status vyr_name_move_folder(
    const uint16_t* source,
    ptrdiff_t source_length,
    const uint16_t* destination,
    ptrdiff_t destination_length,
    vyr_list* records,
    int32_t* result);

/* ProgramsFeaturesFuncs: VyrLibraryFuncs/programs/ProgramsFeaturesFuncs.h */

/* ProgramsFeaturesFuncs::ITEM */
typedef struct vyr_programs_item
{
    size_t struct_size;
    vyr_text key_name;
    vyr_text sub_key_name;
    vyr_text display_icon;
    vyr_text display_name;
    vyr_text display_name_localized;
    vyr_text display_version;
    vyr_text install_location;
    vyr_text publisher;
    vyr_text url_info_about;
    vyr_text url_update_info;
    vyr_text comments;
    vyr_text contact;
    vyr_text help_link;
    vyr_text help_telephone;
    vyr_text install_date;
    vyr_text install_source;
    vyr_text readme;
    vyr_text unused18;
    vyr_text unused19;
    vyr_text reg_company;
    vyr_text reg_owner;
    vyr_text unused22;
    vyr_text last_write_time;
    vyr_text parent_display_name;
    vyr_text parent_key_name;
    vyr_text uninstall_string;
    vyr_text unused27;
    uint64_t estimated_size_bytes;
    uint32_t estimated_size;
    uint32_t system_component;
    uint32_t windows_installer;
    uint32_t version_major;
    uint32_t version_minor;
    uint32_t unused34;
    uint32_t language;
    uint32_t no_modify;
    uint32_t no_repair;
    uint32_t no_remove;
    uint32_t no_elevate_on_modify;
    vyr_text full_key_name;
    vyr_text formatted_size;
    vyr_text unused42;
    int32_t is_wow6432_node;
} vyr_programs_item;

/* Writes the record at `index`, from 0, of such a list. */
vyr_status vyr_programs_item_get(vyr_list list, size_t index, vyr_programs_item* record);

/* ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM */
typedef struct vyr_programs_product
{
    size_t struct_size;
    vyr_text product_key;
    vyr_text package_code;
    vyr_text product_name;
    vyr_text product_icon;
    uint32_t deployment_flags;
    uint32_t language;
    uint32_t version;
} vyr_programs_product;

/* Writes the record at `index`, from 0, of such a list. */
vyr_status vyr_programs_product_get(vyr_list list, size_t index, vyr_programs_product* record);
/* GetProgramsFeaturesItemsList */
vyr_status vyr_programs_get_programs_features_items_list(int32_t scope, int32_t include_wow6432_node, vyr_list* result);
/* GetProgramsFeaturesWindowsInstallerItemsList */
vyr_status vyr_programs_get_programs_features_windows_installer_items_list(int32_t scope, vyr_list* result);
/* GetListViewItemText */
vyr_status vyr_programs_get_list_view_item_text(
    int32_t column,
    const vyr_programs_item* item,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetProgramsFeaturesInstallerProductsItemsList */
vyr_status vyr_programs_get_programs_features_installer_products_items_list(vyr_list* result);
/* GetProductIcon */
vyr_status vyr_programs_get_product_icon(
    const uint16_t* icon_filter,
    ptrdiff_t icon_filter_length,
    const uint16_t* product_name,
    ptrdiff_t product_name_length,
    const vyr_programs_product* products,
    size_t products_count,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetApplicationIcon */
vyr_status vyr_programs_get_application_icon(
    const uint16_t* icon_text,
    ptrdiff_t icon_text_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length,
    int32_t* result);
/* GetInstallDate */
vyr_status vyr_programs_get_install_date(
    const uint16_t* install_date,
    ptrdiff_t install_date_length,
    const uint16_t* fallback_date,
    ptrdiff_t fallback_date_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetFormatedSize */
vyr_status vyr_programs_get_formated_size(
    const uint16_t* text,
    ptrdiff_t text_length,
    uint64_t size,
    int32_t format,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* CompareRegKey */
vyr_status vyr_programs_compare_reg_key(
    const uint16_t* key1,
    ptrdiff_t key1_length,
    const uint16_t* key2,
    ptrdiff_t key2_length,
    int32_t flag1,
    int32_t flag2,
    int32_t descending,
    int32_t* result);
/* GetKeyParentName */
vyr_status vyr_programs_get_key_parent_name(intptr_t root, uint16_t* buffer, size_t capacity, size_t* length);
/* IsWow6432Node */
vyr_status vyr_programs_is_wow6432_node(const uint16_t* key_path, ptrdiff_t key_path_length, int32_t* result);
/* GetIconFolderName */
vyr_status vyr_programs_get_icon_folder_name(uint16_t* buffer, size_t capacity, size_t* length);
/* SetOutputFilePath */
vyr_status vyr_programs_set_output_file_path(const uint16_t* path, ptrdiff_t path_length);
/* GetOutputFilePath */
vyr_status vyr_programs_get_output_file_path(uint16_t* buffer, size_t capacity, size_t* length);
/* SetOpenOutputFile */
vyr_status vyr_programs_set_open_output_file(int32_t is_opened);
/* GetOpenOutputFile */
vyr_status vyr_programs_get_open_output_file(int32_t* result);

/* RegistryFuncs: VyrLibraryFuncs/programs/RegistryFuncs.h */
/* GetProductRegKey */
vyr_status vyr_registry_get_product_reg_key(
    const uint16_t* vendor_name,
    ptrdiff_t vendor_name_length,
    const uint16_t* product_name,
    ptrdiff_t product_name_length,
    int32_t version,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetUninstallProductRegKey */
vyr_status vyr_registry_get_uninstall_product_reg_key(
    const uint16_t* uninstall_key_name,
    ptrdiff_t uninstall_key_name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* GetProductInstallDate */
vyr_status vyr_registry_get_product_install_date(
    const uint16_t* uninstall_key_name,
    ptrdiff_t uninstall_key_name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);

/* ColumnFuncs: VyrLibraryFuncs/select/ColumnFuncs.h */
/* IsVisibleColumn */
vyr_status vyr_column_is_visible_column(
    intptr_t list_control,
    const uint16_t* name,
    ptrdiff_t name_length,
    int32_t* result);
/* GetColumnHeaderItem */
vyr_status vyr_column_get_column_header_item(
    intptr_t list_control,
    const uint16_t* name,
    ptrdiff_t name_length,
    int32_t* result);
/* GetColumnItemOrder */
vyr_status vyr_column_get_column_item_order(
    intptr_t list_control,
    const uint16_t* name,
    ptrdiff_t name_length,
    int32_t* result);
/* GetColumnItemText */
vyr_status vyr_column_get_column_item_text(
    intptr_t list_control,
    int32_t index,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);

/* FilterFuncs: VyrLibraryFuncs/select/FilterFuncs.h */

/* FilterFuncs::FILTERITEM */
typedef struct vyr_filter_condition
{
    size_t struct_size;
    int32_t filter_value;
    int32_t enabled;
    vyr_text text;
    int32_t condition;
    int32_t match_case;
} vyr_filter_condition;

/* IsMatch */
vyr_status vyr_filter_is_match(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t mode,
    const vyr_filter_condition* items,
    size_t items_count,
    int32_t* result);
/* IsMatchName */
vyr_status vyr_filter_is_match_name(
    const uint16_t* name,
    ptrdiff_t name_length,
    int32_t mode,
    const vyr_filter_condition* items,
    size_t items_count,
    int32_t* result);
/* IsAlreadyAdded */
vyr_status vyr_filter_is_already_added(
    const uint16_t* text,
    ptrdiff_t text_length,
    const vyr_text* list,
    size_t list_count,
    int32_t* result);

/* SearchFuncs: VyrLibraryFuncs/select/SearchFuncs.h */

/* SearchFuncs::ITEM */
typedef struct vyr_search_item
{
    size_t struct_size;
    vyr_date_time date_time;
    int64_t size;
} vyr_search_item;

/* IsMatch */
vyr_status vyr_search_is_match_path(const uint16_t* path, ptrdiff_t path_length, int32_t reserved, int32_t* result);
/* IsMatch */
vyr_status vyr_search_is_match(const vyr_search_item* item, int32_t* result);
/* IsMatchDateTime */
vyr_status vyr_search_is_match_date_time(const uint16_t* path, ptrdiff_t path_length, int32_t* result);
/* IsMatchDateTime */
vyr_status vyr_search_is_match_date_time_value(double value, int32_t value_status, int32_t* result);
/* IsMatchSize */
vyr_status vyr_search_is_match_size_path(
    const uint16_t* path,
    ptrdiff_t path_length,
    int32_t with_folders,
    int32_t* result);
/* IsMatchSize */
vyr_status vyr_search_is_match_size(int64_t size, int32_t* result);
/* GetSearchClosed */
vyr_status vyr_search_get_search_closed(int32_t* result);
/* SetSearchClosed */
vyr_status vyr_search_set_search_closed(int32_t closed);
/* GetDateTimeSearch */
vyr_status vyr_search_get_date_time_search(int32_t* result);
/* SetDateTimeSearch */
vyr_status vyr_search_set_date_time_search(int32_t search);
/* GetDateTimeTarget */
vyr_status vyr_search_get_date_time_target(int32_t* result);
/* SetDateTimeTarget */
vyr_status vyr_search_set_date_time_target(int32_t target);
/* GetDateTimeRange */
vyr_status vyr_search_get_date_time_range(int32_t* result);
/* SetDateTimeRange */
vyr_status vyr_search_set_date_time_range(int32_t range);
/* GetDateTimeFromDateTime */
vyr_status vyr_search_get_date_time_from_date_time(vyr_date_time* result);
/* SetDateTimeFromDateTime */
vyr_status vyr_search_set_date_time_from_date_time(double from, int32_t from_status);
/* GetDateTimeToDateTime */
vyr_status vyr_search_get_date_time_to_date_time(vyr_date_time* result);
/* SetDateTimeToDateTime */
vyr_status vyr_search_set_date_time_to_date_time(double to, int32_t to_status);
/* GetSizeSearch */
vyr_status vyr_search_get_size_search(int32_t* result);
/* SetSizeSearch */
vyr_status vyr_search_set_size_search(int32_t search);
/* GetSizeTarget */
vyr_status vyr_search_get_size_target(int32_t* result);
/* SetSizeTarget */
vyr_status vyr_search_set_size_target(int32_t target);
/* GetSizeRange */
vyr_status vyr_search_get_size_range(int32_t* result);
/* SetSizeRange */
vyr_status vyr_search_set_size_range(int32_t range);
/* GetSizeFromSize */
vyr_status vyr_search_get_size_from_size(int64_t* result);
/* SetSizeFromSize */
vyr_status vyr_search_set_size_from_size(int64_t from);
/* GetSizeToSize */
vyr_status vyr_search_get_size_to_size(int64_t* result);
/* SetSizeToSize */
vyr_status vyr_search_set_size_to_size(int64_t to);

/* BrowserFuncs: VyrLibraryFuncs/shell/BrowserFuncs.h */

/* BrowserFuncs::APPITEM */
typedef struct vyr_browser_app_item
{
    size_t struct_size;
    int32_t app_type;
    vyr_text app_key;
    vyr_text display_name;
    vyr_text command;
    vyr_text executable_path;
} vyr_browser_app_item;

/* Writes the record at `index`, from 0, of such a list. */
vyr_status vyr_browser_app_item_get(vyr_list list, size_t index, vyr_browser_app_item* record);
/* GetBrowserItemsList */
vyr_status vyr_browser_get_browser_items_list(vyr_list* result);
/* GetMicrosoftEdgeAppItem */
vyr_status vyr_browser_get_microsoft_edge_app_item(vyr_list* result);
/* IsInstalledMicrosoftEdgeChromium */
vyr_status vyr_browser_is_installed_microsoft_edge_chromium(int32_t* result);

/* ControlPanelFuncs: VyrLibraryFuncs/shell/ControlPanelFuncs.h */
/* ExecDateAndTime */
vyr_status vyr_control_panel_exec_date_and_time(intptr_t owner, int32_t* result);
/* ExecProgramsAndFeatures */
vyr_status vyr_control_panel_exec_programs_and_features(intptr_t owner, int32_t* result);

/* FeatureControlFuncs: VyrLibraryFuncs/shell/FeatureControlFuncs.h */
/* SetFeatureSecurityBand */
vyr_status vyr_feature_control_set_feature_security_band(int32_t enable);
/* SetFeatureWebocPopupManagement */
vyr_status vyr_feature_control_set_feature_weboc_popup_management(int32_t enable);
/* SetFeatureLocalMachineLockDown */
vyr_status vyr_feature_control_set_feature_local_machine_lock_down(int32_t enable);
/* SetFeatureRestrictFileDownload */
vyr_status vyr_feature_control_set_feature_restrict_file_download(int32_t enable);
/* SetFeatureRestrictActiveXInstall */
vyr_status vyr_feature_control_set_feature_restrict_active_x_install(int32_t enable);
/* SetFeatureTabbedBrowsing */
vyr_status vyr_feature_control_set_feature_tabbed_browsing(int32_t enable);
/* SetFeatureDisableNavigationSounds */
vyr_status vyr_feature_control_set_feature_disable_navigation_sounds(int32_t enable);
/* SetFeatureFeeds */
vyr_status vyr_feature_control_set_feature_feeds(int32_t enable);
/* SetFeatureBlockLMZImg */
vyr_status vyr_feature_control_set_feature_block_lmz_img(uint32_t value);
/* SetFeatureBlockLMZObject */
vyr_status vyr_feature_control_set_feature_block_lmz_object(uint32_t value);
/* SetFeatureBlockLMZScript */
vyr_status vyr_feature_control_set_feature_block_lmz_script(uint32_t value);
/* SetFeatureBrowserEmulation */
vyr_status vyr_feature_control_set_feature_browser_emulation(uint32_t value);

/* LogFuncs: VyrLibraryFuncs/textfile/LogFuncs.h */
/* GetLogFileName */
vyr_status vyr_log_get_log_file_name(uint16_t* buffer, size_t capacity, size_t* length);
/* GetApplicationLogFilePath */
vyr_status vyr_log_get_application_log_file_path(uint16_t* buffer, size_t capacity, size_t* length);
/* Write */
vyr_status vyr_log_write_with_path_level(
    const uint16_t* path,
    ptrdiff_t path_length,
    const uint16_t* message,
    ptrdiff_t message_length,
    int32_t level,
    int32_t* result);
/* Write */
vyr_status vyr_log_write_with_level(const uint16_t* message, ptrdiff_t message_length, int32_t level, int32_t* result);
/* Write */
vyr_status vyr_log_write(const uint16_t* message, ptrdiff_t message_length, int32_t* result);

/* ApplicationFuncs: VyrLibraryFuncs/xmlinfo/ApplicationFuncs.h */
/* GetLocalDataApplicationVersion */
vyr_status vyr_application_get_local_data_application_version(uint16_t* buffer, size_t capacity, size_t* length);
/* IsAlphaVersion */
vyr_status vyr_application_is_alpha_version(int32_t* result);
/* IsBetaVersion */
vyr_status vyr_application_is_beta_version(int32_t* result);
/* IsReleaseCandidateVersion */
vyr_status vyr_application_is_release_candidate_version(int32_t* result);
/* IsReleaseToManufacturingVersion */
vyr_status vyr_application_is_release_to_manufacturing_version(int32_t* result);
/* IsReleaseVersion */
vyr_status vyr_application_is_release_version(int32_t* result);
/* IsProductReleaseVersion */
vyr_status vyr_application_is_product_release_version(int32_t* result);
/* GetOnlineSupportUrl */
vyr_status vyr_application_get_online_support_url(uint16_t* buffer, size_t capacity, size_t* length);
/* GetSendFeedbackUrl */
vyr_status vyr_application_get_send_feedback_url(uint16_t* buffer, size_t capacity, size_t* length);
/* GetSendQuestionnaireUrl */
vyr_status vyr_application_get_send_questionnaire_url(uint16_t* buffer, size_t capacity, size_t* length);

/* UpdatesFuncs: VyrLibraryFuncs/xmlinfo/UpdatesFuncs.h */

/* UpdatesFuncs::UPDATEITEM */
typedef struct vyr_updates_item
{
    size_t struct_size;
    int32_t category;
    vyr_text description;
} vyr_updates_item;

/* Writes the record at `index`, from 0, of such a list. */
vyr_status vyr_updates_item_get(vyr_list list, size_t index, vyr_updates_item* record);
/* InitializeUpdatesInformation */
vyr_status vyr_updates_initialize_updates_information(void);
/* SetType */
vyr_status vyr_updates_set_type(const uint16_t* type, ptrdiff_t type_length);
/* GetType */
vyr_status vyr_updates_get_type(uint16_t* buffer, size_t capacity, size_t* length);
/* SetProductName */
vyr_status vyr_updates_set_product_name(const uint16_t* product_name, ptrdiff_t product_name_length);
/* GetProductName */
vyr_status vyr_updates_get_product_name(uint16_t* buffer, size_t capacity, size_t* length);
/* SetVersion */
vyr_status vyr_updates_set_version(const uint16_t* version, ptrdiff_t version_length);
/* GetVersion */
vyr_status vyr_updates_get_version(uint16_t* buffer, size_t capacity, size_t* length);
/* SetEdition */
vyr_status vyr_updates_set_edition(const uint16_t* edition, ptrdiff_t edition_length);
/* GetEdition */
vyr_status vyr_updates_get_edition(uint16_t* buffer, size_t capacity, size_t* length);
/* SetPlatformBit */
vyr_status vyr_updates_set_platform_bit(const uint16_t* platform_bit, ptrdiff_t platform_bit_length);
/* GetPlatformBit */
vyr_status vyr_updates_get_platform_bit(uint16_t* buffer, size_t capacity, size_t* length);
/* SetDetailsURL */
vyr_status vyr_updates_set_details_url(const uint16_t* details_url, ptrdiff_t details_url_length);
/* GetDetailsURL */
vyr_status vyr_updates_get_details_url(uint16_t* buffer, size_t capacity, size_t* length);
/* SetDownloadURL */
vyr_status vyr_updates_set_download_url(const uint16_t* download_url, ptrdiff_t download_url_length);
/* GetDownloadURL */
vyr_status vyr_updates_get_download_url(uint16_t* buffer, size_t capacity, size_t* length);
/* SetUpdateItemsList */
vyr_status vyr_updates_set_update_items_list(const vyr_updates_item* items, size_t items_count);
/* GetUpdateItemsList */
vyr_status vyr_updates_get_update_items_list(vyr_list* result);
/* SetCheckedDate */
vyr_status vyr_updates_set_checked_date(const uint16_t* checked_date, ptrdiff_t checked_date_length);
/* GetCheckedDate */
vyr_status vyr_updates_get_checked_date(uint16_t* buffer, size_t capacity, size_t* length);
/* CheckForUpdates */
vyr_status vyr_updates_check_for_updates(const uint16_t* version, ptrdiff_t version_length, int32_t* result);
/* GetCheckForUpdatesUrl */
vyr_status vyr_updates_get_check_for_updates_url(uint16_t* buffer, size_t capacity, size_t* length);
/* GetAgreeIgnoreServer */
vyr_status vyr_updates_get_agree_ignore_server(int32_t* result);
/* GetUpdatesInformation */
vyr_status vyr_updates_get_updates_information(const uint16_t* path, ptrdiff_t path_length, int32_t* result);
/* LoadCheckForUpdatesDate */
vyr_status vyr_updates_load_check_for_updates_date(void);
/* SaveCheckForUpdatesDate */
vyr_status vyr_updates_save_check_for_updates_date(void);
/* IsDateIntervalCheckForUpdates */
vyr_status vyr_updates_is_date_interval_check_for_updates(int32_t days, int32_t* result);

/* MSXMLFuncs: VyrLibraryFuncs/xmlinfo/MSXMLFuncs.h */
/* LoadXmlFile */
vyr_status vyr_msxml_load_xml_file(const uint16_t* path, ptrdiff_t path_length, void** result);
/* LoadXsltFile */
vyr_status vyr_msxml_load_xslt_file(const uint16_t* path, ptrdiff_t path_length, void** result);

/* StyleFuncs: VyrLibraryFuncs/xmlinfo/StyleFuncs.h */

/* StyleFuncs::DESIGNITEM */
typedef struct vyr_style_item
{
    size_t struct_size;
    int32_t id;
    vyr_text value;
    vyr_text name;
} vyr_style_item;

/* Writes the record at `index`, from 0, of such a list. */
vyr_status vyr_style_item_get(vyr_list list, size_t index, vyr_style_item* record);
/* InitializeStylesInformation */
vyr_status vyr_style_initialize_styles_information(void);
/* GetStylesInformation */
vyr_status vyr_style_get_styles_information(const uint16_t* path, ptrdiff_t path_length, int32_t* result);
/* SetDesignItemsList */
vyr_status vyr_style_set_design_items_list(const vyr_style_item* items, size_t items_count);
/* GetDesignItemsList */
vyr_status vyr_style_get_design_items_list(vyr_list* result);

/* XmlNodes: VyrC/XmlNodes.h */
/* GetRoot */
vyr_status vyr_xml_get_root(void* document, void** result);
/* GetText */
vyr_status vyr_xml_get_text(void* element, uint16_t* buffer, size_t capacity, size_t* length);
/* GetAttribute */
vyr_status vyr_xml_get_attribute(
    void* element,
    const uint16_t* name,
    ptrdiff_t name_length,
    uint16_t* buffer,
    size_t capacity,
    size_t* length);
/* CountElements */
vyr_status vyr_xml_count_elements(void* element, const uint16_t* name, ptrdiff_t name_length, int32_t* result);
/* GetElement */
vyr_status vyr_xml_get_element(
    void* element,
    const uint16_t* name,
    ptrdiff_t name_length,
    int32_t index,
    void** result);
/* Release */
vyr_status vyr_xml_release(void* object);

/* HostLists: VyrC/HostLists.h */
/* Create */
vyr_status vyr_host_list_create(intptr_t* result);
/* Destroy */
vyr_status vyr_host_list_destroy(intptr_t list, int32_t* result);
/* InsertColumn */
vyr_status vyr_host_list_insert_column(
    intptr_t list,
    int32_t index,
    const uint16_t* heading,
    ptrdiff_t heading_length,
    int32_t* result);
/* DeleteColumn */
vyr_status vyr_host_list_delete_column(intptr_t list, int32_t index, int32_t* result);
/* MoveColumn */
vyr_status vyr_host_list_move_column(intptr_t list, int32_t index, int32_t position, int32_t* result);
/* SetHasHeader */
vyr_status vyr_host_list_set_has_header(intptr_t list, int32_t has_header, int32_t* result);

/* HostRegistry: VyrC/HostRegistry.h */

/* HostRegistry::HIVEFILES */
typedef struct vyr_host_registry_hive_files
{
    size_t struct_size;
    vyr_text software;
    vyr_text system;
    vyr_text user;
    vyr_text user_classes;
} vyr_host_registry_hive_files;


/* HostRegistry::OPENRESULT */
typedef struct vyr_host_registry_open_result
{
    size_t struct_size;
    int32_t outcome;
    uint32_t error;
    vyr_text file;
    vyr_text unclosed_files;
} vyr_host_registry_open_result;

/* Writes the record at `index`, from 0, of such a list. */
vyr_status vyr_host_registry_open_result_get(vyr_list list, size_t index, vyr_host_registry_open_result* record);
/* ShowWinePrefix */
vyr_status vyr_host_registry_show_wine_prefix(const uint16_t* folder, ptrdiff_t folder_length, vyr_list* result);
/* ShowHives */
vyr_status vyr_host_registry_show_hives(const vyr_host_registry_hive_files* files, vyr_list* result);
/* ShowUserHives */
vyr_status vyr_host_registry_show_user_hives(
    const uint16_t* user,
    ptrdiff_t user_length,
    const uint16_t* user_classes,
    ptrdiff_t user_classes_length,
    vyr_list* result);
/* Close */
vyr_status vyr_host_registry_close(void);

/* HostQueue: VyrC/HostQueue.h */
/* SetDrain */
vyr_status vyr_host_queue_set_drain(vyr_drain drain, void* context);
#ifdef __cplusplus
}
#endif

#endif
