// The functions and records of vyr.h for C#; written by VyrC/generate from VyrC/interface.txt.
// 64-bit. A function gives 0 when it succeeded; vyr.h and docs/c-interface.md describe them.

using System;
using System.Collections.Generic;
using System.Runtime.InteropServices;

namespace Vyr
{
    /// <summary>A text of a record: the address of its UTF-16, and its length.</summary>
    [StructLayout(LayoutKind.Sequential)]
    public struct Text { public IntPtr units; public IntPtr length; }
    [StructLayout(LayoutKind.Sequential)]
    public struct DateAndTime { public double days; public int status; }
    [StructLayout(LayoutKind.Sequential)]
    public struct Rect { public int left, top, right, bottom; }
    [StructLayout(LayoutKind.Sequential)]
    public struct TextAndNumber { public Text text; public int number; }
    [StructLayout(LayoutKind.Sequential)]
    public struct Value
    {
        public UIntPtr struct_size; public int type; public long number; public double real; public Text text;
        public IntPtr bytes; public UIntPtr bytes_count; public Guid guid;
    }
    public delegate int Drain(IntPtr context);
    [StructLayout(LayoutKind.Sequential)]
    public struct AttributesItem
    {
        public UIntPtr struct_size;
        public int read_only;
        public int hidden;
        public int system;
        public int archive;
        public int temporary;
        public int not_content_indexed;
    }
    [StructLayout(LayoutKind.Sequential)]
    public struct DateTimeStaggerItem
    {
        public UIntPtr struct_size;
        public int use_start_date_time;
        public DateAndTime start_date;
        public DateAndTime start_time;
        public int numbering_mode;
        public int direction;
        public int start_number;
        public int years;
        public int months;
        public int days;
        public int hours;
        public int minutes;
        public int seconds;
    }
    [StructLayout(LayoutKind.Sequential)]
    public struct OfficePropertyHandler
    {
        public UIntPtr struct_size;
        public Text extension;
        public Guid clsid;
        public int flag;
    }
    [StructLayout(LayoutKind.Sequential)]
    public struct NameItem
    {
        public UIntPtr struct_size;
        public Text file_path;
        public Text aux_text1;
        public Text aux_text2;
        public Text aux_text3;
        public Text aux_text4;
        public Text dir_path;
        public Text file_name;
        public Text extension;
        public int index;
        public int rename_type;
        public int number_position;
        public Text number_text1;
        public Text number_text2;
        public int start_number;
        public int digits;
        public int step;
        public int date_time_position;
        public int date_time_target;
        public Text date_time_format;
        public int add_delete_type;
        public int position;
        public int delete_count;
        public Text add_text;
        public int convert_type;
        public Text find_text;
        public Text replace_text;
        public int extension_type;
        public Text new_extension;
    }
    [StructLayout(LayoutKind.Sequential)]
    public struct NameConflictItem
    {
        public UIntPtr struct_size;
        public Text number_format;
        public int position;
        public int start_number;
        public int step;
    }
    [StructLayout(LayoutKind.Sequential)]
    public struct NameRenameItem
    {
        public UIntPtr struct_size;
        public Text source_path;
        public Text destination_path;
        public DateAndTime date_created;
        public DateAndTime date_modified;
    }
    [StructLayout(LayoutKind.Sequential)]
    public struct ProgramsItem
    {
        public UIntPtr struct_size;
        public Text key_name;
        public Text sub_key_name;
        public Text display_icon;
        public Text display_name;
        public Text display_name_localized;
        public Text display_version;
        public Text install_location;
        public Text publisher;
        public Text url_info_about;
        public Text url_update_info;
        public Text comments;
        public Text contact;
        public Text help_link;
        public Text help_telephone;
        public Text install_date;
        public Text install_source;
        public Text readme;
        public Text unused18;
        public Text unused19;
        public Text reg_company;
        public Text reg_owner;
        public Text unused22;
        public Text last_write_time;
        public Text parent_display_name;
        public Text parent_key_name;
        public Text uninstall_string;
        public Text unused27;
        public ulong estimated_size_bytes;
        public uint estimated_size;
        public uint system_component;
        public uint windows_installer;
        public uint version_major;
        public uint version_minor;
        public uint unused34;
        public uint language;
        public uint no_modify;
        public uint no_repair;
        public uint no_remove;
        public uint no_elevate_on_modify;
        public Text full_key_name;
        public Text formatted_size;
        public Text unused42;
        public int is_wow6432_node;
    }
    [StructLayout(LayoutKind.Sequential)]
    public struct ProgramsProduct
    {
        public UIntPtr struct_size;
        public Text product_key;
        public Text package_code;
        public Text product_name;
        public Text product_icon;
        public uint deployment_flags;
        public uint language;
        public uint version;
    }
    [StructLayout(LayoutKind.Sequential)]
    public struct FilterCondition
    {
        public UIntPtr struct_size;
        public int filter_value;
        public int enabled;
        public Text text;
        public int condition;
        public int match_case;
    }
    [StructLayout(LayoutKind.Sequential)]
    public struct SearchItem
    {
        public UIntPtr struct_size;
        public DateAndTime date_time;
        public long size;
    }
    [StructLayout(LayoutKind.Sequential)]
    public struct BrowserAppItem
    {
        public UIntPtr struct_size;
        public int app_type;
        public Text app_key;
        public Text display_name;
        public Text command;
        public Text executable_path;
    }
    [StructLayout(LayoutKind.Sequential)]
    public struct UpdatesItem
    {
        public UIntPtr struct_size;
        public int category;
        public Text description;
    }
    [StructLayout(LayoutKind.Sequential)]
    public struct StyleItem
    {
        public UIntPtr struct_size;
        public int id;
        public Text value;
        public Text name;
    }
    [StructLayout(LayoutKind.Sequential)]
    public struct HostRegistryHiveFiles
    {
        public UIntPtr struct_size;
        public Text software;
        public Text system;
        public Text user;
        public Text user_classes;
    }
    [StructLayout(LayoutKind.Sequential)]
    public struct HostRegistryOpenResult
    {
        public UIntPtr struct_size;
        public int outcome;
        public uint error;
        public Text file;
        public Text unclosed_files;
    }

    public static class Native
    {
        const string Library = "VyrLibraryC";
        [DllImport(Library)]
        public static extern uint vyr_version();
        [DllImport(Library, EntryPoint = "vyr_get_last_error", CharSet = CharSet.Unicode)]
        public static extern int vyr_get_last_error([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_list_get_count", CharSet = CharSet.Unicode)]
        public static extern int vyr_list_get_count(ulong list, out UIntPtr count);
        [DllImport(Library, EntryPoint = "vyr_list_release", CharSet = CharSet.Unicode)]
        public static extern int vyr_list_release(ulong list);
        [DllImport(Library, EntryPoint = "vyr_text_get", CharSet = CharSet.Unicode)]
        public static extern int vyr_text_get(ulong list, UIntPtr index, out Text text);
        // HtmlFuncs
        [DllImport(Library, EntryPoint = "vyr_html_get_doctype_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_doctype_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_saved_from_url_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_saved_from_url_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_html_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_html_tag([MarshalAs(UnmanagedType.LPWStr)] string lang, IntPtr lang_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_html_closing_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_html_closing_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_head_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_head_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_head_closing_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_head_closing_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_meta_xua_compatible_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_meta_xua_compatible_tag([MarshalAs(UnmanagedType.LPWStr)] string mode, IntPtr mode_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_meta_content_type_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_meta_content_type_tag([MarshalAs(UnmanagedType.LPWStr)] string charset, IntPtr charset_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_meta_generator_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_meta_generator_tag([MarshalAs(UnmanagedType.LPWStr)] string generator, IntPtr generator_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_link_css_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_link_css_tag([MarshalAs(UnmanagedType.LPWStr)] string href, IntPtr href_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_script_src_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_script_src_tag([MarshalAs(UnmanagedType.LPWStr)] string src, IntPtr src_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_script_closing_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_script_closing_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_script_src_pair_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_script_src_pair_tag([MarshalAs(UnmanagedType.LPWStr)] string src, IntPtr src_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_title_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_title_tag([MarshalAs(UnmanagedType.LPWStr)] string title, IntPtr title_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_body_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_body_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_body_tag_with_attributes", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_body_tag_with_attributes([MarshalAs(UnmanagedType.LPWStr)] string attributes, IntPtr attributes_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_body_closing_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_body_closing_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_header_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_header_tag([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string id, IntPtr id_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_header_closing_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_header_closing_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_footer_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_footer_tag([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string id, IntPtr id_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_footer_closing_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_footer_closing_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_h1_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_h1_tag([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_h1_closing_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_h1_closing_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_h1_pair_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_h1_pair_tag([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string content, IntPtr content_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_p_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_p_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_p_tag_with_class_name", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_p_tag_with_class_name([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_p_closing_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_p_closing_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_span_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_span_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_span_tag_with_class_name", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_span_tag_with_class_name([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_span_tag_with_class_name_id", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_span_tag_with_class_name_id([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string id, IntPtr id_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_span_closing_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_span_closing_tag(int new_line, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_span_pair_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_span_pair_tag([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string content, IntPtr content_length, int new_line, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_span_pair_tag_with_id", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_span_pair_tag_with_id([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string id, IntPtr id_length, [MarshalAs(UnmanagedType.LPWStr)] string content, IntPtr content_length, int new_line, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_div_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_div_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_div_tag_with_class_name", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_div_tag_with_class_name([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_div_tag_with_class_name_id", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_div_tag_with_class_name_id([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string id, IntPtr id_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_div_tag_with_class_name_id_attributes", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_div_tag_with_class_name_id_attributes([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string id, IntPtr id_length, [MarshalAs(UnmanagedType.LPWStr)] string attributes, IntPtr attributes_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_div_closing_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_div_closing_tag(int new_line, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_div_pair_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_div_pair_tag([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string content, IntPtr content_length, int new_line, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_div_pair_tag_with_id", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_div_pair_tag_with_id([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string id, IntPtr id_length, [MarshalAs(UnmanagedType.LPWStr)] string content, IntPtr content_length, int new_line, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_div_pair_tag_with_id_attributes", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_div_pair_tag_with_id_attributes([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string id, IntPtr id_length, [MarshalAs(UnmanagedType.LPWStr)] string attributes, IntPtr attributes_length, [MarshalAs(UnmanagedType.LPWStr)] string content, IntPtr content_length, int new_line, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_br_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_br_tag(int new_line, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_a_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_a_tag([MarshalAs(UnmanagedType.LPWStr)] string href, IntPtr href_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_a_tag_with_class_name", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_a_tag_with_class_name([MarshalAs(UnmanagedType.LPWStr)] string href, IntPtr href_length, [MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_a_tag_with_class_name_target", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_a_tag_with_class_name_target([MarshalAs(UnmanagedType.LPWStr)] string href, IntPtr href_length, [MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string target, IntPtr target_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_a_closing_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_a_closing_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_a_pair_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_a_pair_tag([MarshalAs(UnmanagedType.LPWStr)] string href, IntPtr href_length, [MarshalAs(UnmanagedType.LPWStr)] string content, IntPtr content_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_a_pair_tag_with_class_name", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_a_pair_tag_with_class_name([MarshalAs(UnmanagedType.LPWStr)] string href, IntPtr href_length, [MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string content, IntPtr content_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_a_pair_tag_with_class_name_target", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_a_pair_tag_with_class_name_target([MarshalAs(UnmanagedType.LPWStr)] string href, IntPtr href_length, [MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string target, IntPtr target_length, [MarshalAs(UnmanagedType.LPWStr)] string content, IntPtr content_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_img_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_img_tag([MarshalAs(UnmanagedType.LPWStr)] string src, IntPtr src_length, int width, int height, [MarshalAs(UnmanagedType.LPWStr)] string alt, IntPtr alt_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_img_tag_with_class_name", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_img_tag_with_class_name([MarshalAs(UnmanagedType.LPWStr)] string src, IntPtr src_length, [MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, int width, int height, [MarshalAs(UnmanagedType.LPWStr)] string alt, IntPtr alt_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_img_tag_with_class_name_id", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_img_tag_with_class_name_id([MarshalAs(UnmanagedType.LPWStr)] string src, IntPtr src_length, [MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, int width, int height, [MarshalAs(UnmanagedType.LPWStr)] string alt, IntPtr alt_length, [MarshalAs(UnmanagedType.LPWStr)] string id, IntPtr id_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_img_tag_with_class_name_id_title", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_img_tag_with_class_name_id_title([MarshalAs(UnmanagedType.LPWStr)] string src, IntPtr src_length, [MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, int width, int height, [MarshalAs(UnmanagedType.LPWStr)] string alt, IntPtr alt_length, [MarshalAs(UnmanagedType.LPWStr)] string id, IntPtr id_length, [MarshalAs(UnmanagedType.LPWStr)] string title, IntPtr title_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_table_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_table_tag([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string id, IntPtr id_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_table_closing_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_table_closing_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_thead_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_thead_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_thead_closing_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_thead_closing_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_tbody_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_tbody_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_tbody_closing_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_tbody_closing_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_tr_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_tr_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_tr_tag_with_class_name", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_tr_tag_with_class_name([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_tr_tag_with_class_name_id", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_tr_tag_with_class_name_id([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string id, IntPtr id_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_tr_closing_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_tr_closing_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_tr_pair_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_tr_pair_tag([MarshalAs(UnmanagedType.LPWStr)] string content, IntPtr content_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_tr_pair_tag_with_class_name", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_tr_pair_tag_with_class_name([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string content, IntPtr content_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_tr_pair_tag_with_class_name_id", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_tr_pair_tag_with_class_name_id([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string id, IntPtr id_length, [MarshalAs(UnmanagedType.LPWStr)] string content, IntPtr content_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_th_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_th_tag([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_th_closing_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_th_closing_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_th_pair_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_th_pair_tag([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string content, IntPtr content_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_td_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_td_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_td_tag_with_class_name", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_td_tag_with_class_name([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_td_tag_with_class_name_id", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_td_tag_with_class_name_id([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string id, IntPtr id_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_td_tag_with_class_name_id_attributes", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_td_tag_with_class_name_id_attributes([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string id, IntPtr id_length, [MarshalAs(UnmanagedType.LPWStr)] string attributes, IntPtr attributes_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_td_tag_with_class_name_id_width_height", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_td_tag_with_class_name_id_width_height([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string id, IntPtr id_length, int width, int height, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_td_col_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_td_col_tag([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string colspan, IntPtr colspan_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_td_col_tag_with_attributes", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_td_col_tag_with_attributes([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string colspan, IntPtr colspan_length, [MarshalAs(UnmanagedType.LPWStr)] string attributes, IntPtr attributes_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_td_closing_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_td_closing_tag([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_td_pair_tag", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_td_pair_tag([MarshalAs(UnmanagedType.LPWStr)] string content, IntPtr content_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_td_pair_tag_with_class_name", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_td_pair_tag_with_class_name([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string content, IntPtr content_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_html_get_td_pair_tag_with_class_name_id", CharSet = CharSet.Unicode)]
        public static extern int vyr_html_get_td_pair_tag_with_class_name_id([MarshalAs(UnmanagedType.LPWStr)] string class_name, IntPtr class_name_length, [MarshalAs(UnmanagedType.LPWStr)] string id, IntPtr id_length, [MarshalAs(UnmanagedType.LPWStr)] string content, IntPtr content_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        // MSHTMLImgFuncs
        [DllImport(Library, EntryPoint = "vyr_mshtml_img_set_resize_img_style", CharSet = CharSet.Unicode)]
        public static extern int vyr_mshtml_img_set_resize_img_style(IntPtr document, ref Rect client);
        // OutputFuncs
        [DllImport(Library, EntryPoint = "vyr_output_get_output_file_path", CharSet = CharSet.Unicode)]
        public static extern int vyr_output_get_output_file_path([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_output_set_output_file_path", CharSet = CharSet.Unicode)]
        public static extern int vyr_output_set_output_file_path([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length);
        [DllImport(Library, EntryPoint = "vyr_output_get_output_filter_index", CharSet = CharSet.Unicode)]
        public static extern int vyr_output_get_output_filter_index(out int result);
        [DllImport(Library, EntryPoint = "vyr_output_set_output_filter_index", CharSet = CharSet.Unicode)]
        public static extern int vyr_output_set_output_filter_index(int index);
        [DllImport(Library, EntryPoint = "vyr_output_get_generator_output_string", CharSet = CharSet.Unicode)]
        public static extern int vyr_output_get_generator_output_string([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_output_get_generator_output_string_with_name", CharSet = CharSet.Unicode)]
        public static extern int vyr_output_get_generator_output_string_with_name([MarshalAs(UnmanagedType.LPWStr)] string name, IntPtr name_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_output_get_property_size", CharSet = CharSet.Unicode)]
        public static extern int vyr_output_get_property_size(int choice, int custom, out int result);
        [DllImport(Library, EntryPoint = "vyr_output_get_dialog_property_width", CharSet = CharSet.Unicode)]
        public static extern int vyr_output_get_dialog_property_width(int width, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        // AttributesFuncs
        [DllImport(Library, EntryPoint = "vyr_attributes_set_modified_file_attributes", CharSet = CharSet.Unicode)]
        public static extern int vyr_attributes_set_modified_file_attributes([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, ref AttributesItem item, out int result);
        [DllImport(Library, EntryPoint = "vyr_attributes_get_selected_read_only_attributes", CharSet = CharSet.Unicode)]
        public static extern int vyr_attributes_get_selected_read_only_attributes([MarshalAs(UnmanagedType.LPWStr)] string text, IntPtr text_length, out int result);
        [DllImport(Library, EntryPoint = "vyr_attributes_get_selected_hidden_attributes", CharSet = CharSet.Unicode)]
        public static extern int vyr_attributes_get_selected_hidden_attributes([MarshalAs(UnmanagedType.LPWStr)] string text, IntPtr text_length, out int result);
        [DllImport(Library, EntryPoint = "vyr_attributes_get_selected_system_attributes", CharSet = CharSet.Unicode)]
        public static extern int vyr_attributes_get_selected_system_attributes([MarshalAs(UnmanagedType.LPWStr)] string text, IntPtr text_length, out int result);
        [DllImport(Library, EntryPoint = "vyr_attributes_get_selected_archive_attributes", CharSet = CharSet.Unicode)]
        public static extern int vyr_attributes_get_selected_archive_attributes([MarshalAs(UnmanagedType.LPWStr)] string text, IntPtr text_length, out int result);
        [DllImport(Library, EntryPoint = "vyr_attributes_get_selected_temporary_attributes", CharSet = CharSet.Unicode)]
        public static extern int vyr_attributes_get_selected_temporary_attributes([MarshalAs(UnmanagedType.LPWStr)] string text, IntPtr text_length, out int result);
        [DllImport(Library, EntryPoint = "vyr_attributes_get_selected_not_content_indexed_attributes", CharSet = CharSet.Unicode)]
        public static extern int vyr_attributes_get_selected_not_content_indexed_attributes([MarshalAs(UnmanagedType.LPWStr)] string text, IntPtr text_length, out int result);
        [DllImport(Library, EntryPoint = "vyr_attributes_set_read_only_attributes", CharSet = CharSet.Unicode)]
        public static extern int vyr_attributes_set_read_only_attributes([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, int is_on, out int result);
        [DllImport(Library, EntryPoint = "vyr_attributes_set_hidden_attributes", CharSet = CharSet.Unicode)]
        public static extern int vyr_attributes_set_hidden_attributes([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, int is_on, out int result);
        [DllImport(Library, EntryPoint = "vyr_attributes_set_system_attributes", CharSet = CharSet.Unicode)]
        public static extern int vyr_attributes_set_system_attributes([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, int is_on, out int result);
        [DllImport(Library, EntryPoint = "vyr_attributes_set_archive_attributes", CharSet = CharSet.Unicode)]
        public static extern int vyr_attributes_set_archive_attributes([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, int is_on, out int result);
        [DllImport(Library, EntryPoint = "vyr_attributes_set_temporary_attributes", CharSet = CharSet.Unicode)]
        public static extern int vyr_attributes_set_temporary_attributes([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, int is_on, out int result);
        [DllImport(Library, EntryPoint = "vyr_attributes_set_not_content_indexed_attributes", CharSet = CharSet.Unicode)]
        public static extern int vyr_attributes_set_not_content_indexed_attributes([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, int is_on, out int result);
        [DllImport(Library, EntryPoint = "vyr_attributes_get_arrtibutes_priority", CharSet = CharSet.Unicode)]
        public static extern int vyr_attributes_get_arrtibutes_priority([MarshalAs(UnmanagedType.LPWStr)] string letter, IntPtr letter_length, out int result);
        // DateTimeFuncs
        [DllImport(Library, EntryPoint = "vyr_date_time_get_other_date_time", CharSet = CharSet.Unicode)]
        public static extern int vyr_date_time_get_other_date_time([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, int date_time_target, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_date_time_get_selected_file_date_time", CharSet = CharSet.Unicode)]
        public static extern int vyr_date_time_get_selected_file_date_time([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, int date_time_target, int is_enabled, out ulong result);
        [DllImport(Library, EntryPoint = "vyr_date_time_get_modified_file_date_time", CharSet = CharSet.Unicode)]
        public static extern int vyr_date_time_get_modified_file_date_time([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, int is_enabled, double date, int date_status, double time, int time_status, int date_time_mode, out ulong result);
        [DllImport(Library, EntryPoint = "vyr_date_time_set_modified_file_date_time", CharSet = CharSet.Unicode)]
        public static extern int vyr_date_time_set_modified_file_date_time([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, ulong[] created, ulong[] modified, ulong[] accessed, out int result);
        [DllImport(Library, EntryPoint = "vyr_date_time_get_stagger_file_date_time", CharSet = CharSet.Unicode)]
        public static extern int vyr_date_time_get_stagger_file_date_time(int index, int is_enabled, double @base, int base_status, ref DateTimeStaggerItem item, out ulong result);
        [DllImport(Library, EntryPoint = "vyr_date_time_get_cal_date_time", CharSet = CharSet.Unicode)]
        public static extern int vyr_date_time_get_cal_date_time(double date_time, int date_time_status, int years, int months, int days, out DateAndTime result);
        [DllImport(Library, EntryPoint = "vyr_date_time_get_time_difference_date_time", CharSet = CharSet.Unicode)]
        public static extern int vyr_date_time_get_time_difference_date_time(double date_time, int date_time_status, int hours, out DateAndTime result);
        [DllImport(Library, EntryPoint = "vyr_date_time_get_yesterday_date_time", CharSet = CharSet.Unicode)]
        public static extern int vyr_date_time_get_yesterday_date_time(double date_time, int date_time_status, out DateAndTime result);
        [DllImport(Library, EntryPoint = "vyr_date_time_get_last_month_date_time", CharSet = CharSet.Unicode)]
        public static extern int vyr_date_time_get_last_month_date_time(double date_time, int date_time_status, out DateAndTime result);
        [DllImport(Library, EntryPoint = "vyr_date_time_get_last_year_date_time", CharSet = CharSet.Unicode)]
        public static extern int vyr_date_time_get_last_year_date_time(double date_time, int date_time_status, out DateAndTime result);
        [DllImport(Library, EntryPoint = "vyr_date_time_get_begin_this_week_date_time", CharSet = CharSet.Unicode)]
        public static extern int vyr_date_time_get_begin_this_week_date_time(double date_time, int date_time_status, out DateAndTime result);
        [DllImport(Library, EntryPoint = "vyr_date_time_get_begin_last_week_date_time", CharSet = CharSet.Unicode)]
        public static extern int vyr_date_time_get_begin_last_week_date_time(double date_time, int date_time_status, out DateAndTime result);
        [DllImport(Library, EntryPoint = "vyr_date_time_get_end_week_date_time", CharSet = CharSet.Unicode)]
        public static extern int vyr_date_time_get_end_week_date_time(double date_time, int date_time_status, out DateAndTime result);
        [DllImport(Library, EntryPoint = "vyr_date_time_is_match_date_month", CharSet = CharSet.Unicode)]
        public static extern int vyr_date_time_is_match_date_month(double left, int left_status, double right, int right_status, out int result);
        [DllImport(Library, EntryPoint = "vyr_date_time_is_match_date", CharSet = CharSet.Unicode)]
        public static extern int vyr_date_time_is_match_date(double left, int left_status, double right, int right_status, out int result);
        // OfficePropertyFuncs
        [DllImport(Library, EntryPoint = "vyr_office_property_handler_get", CharSet = CharSet.Unicode)]
        public static extern int vyr_office_property_handler_get(ulong list, UIntPtr index, ref OfficePropertyHandler record);
        [DllImport(Library, EntryPoint = "vyr_office_property_get_class_id_item_list", CharSet = CharSet.Unicode)]
        public static extern int vyr_office_property_get_class_id_item_list(TextAndNumber[] extensions, UIntPtr extensions_count, out ulong result);
        [DllImport(Library, EntryPoint = "vyr_office_property_get_class_id", CharSet = CharSet.Unicode)]
        public static extern int vyr_office_property_get_class_id([MarshalAs(UnmanagedType.LPWStr)] string extension, IntPtr extension_length, OfficePropertyHandler[] items, UIntPtr items_count, out Guid result);
        [DllImport(Library, EntryPoint = "vyr_office_property_get_property_handler_reg_key", CharSet = CharSet.Unicode)]
        public static extern int vyr_office_property_get_property_handler_reg_key([MarshalAs(UnmanagedType.LPWStr)] string extension, IntPtr extension_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_office_property_set_dump_props", CharSet = CharSet.Unicode)]
        public static extern int vyr_office_property_set_dump_props([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, uint property_id, ref Value value, ref Guid clsid, out int result);
        // UnblockFuncs
        [DllImport(Library, EntryPoint = "vyr_unblock_delete_zone_id", CharSet = CharSet.Unicode)]
        public static extern int vyr_unblock_delete_zone_id([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, out int result);
        // NameFuncs
        [DllImport(Library, EntryPoint = "vyr_name_rename_item_get", CharSet = CharSet.Unicode)]
        public static extern int vyr_name_rename_item_get(ulong list, UIntPtr index, ref NameRenameItem record);
        [DllImport(Library, EntryPoint = "vyr_name_get_rename_file_path", CharSet = CharSet.Unicode)]
        public static extern int vyr_name_get_rename_file_path(ref NameItem item, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_name_get_rename_file_paths", CharSet = CharSet.Unicode)]
        public static extern int vyr_name_get_rename_file_paths(NameItem[] items, UIntPtr items_count, out ulong result);
        [DllImport(Library, EntryPoint = "vyr_name_get_f_name", CharSet = CharSet.Unicode)]
        public static extern int vyr_name_get_f_name([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_name_get_extension", CharSet = CharSet.Unicode)]
        public static extern int vyr_name_get_extension([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_name_is_resolve_conflict", CharSet = CharSet.Unicode)]
        public static extern int vyr_name_is_resolve_conflict(ref NameItem item, out int result);
        [DllImport(Library, EntryPoint = "vyr_name_get_sequence_number_file_path", CharSet = CharSet.Unicode)]
        public static extern int vyr_name_get_sequence_number_file_path(ref NameItem item, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_name_get_date_time_file_path", CharSet = CharSet.Unicode)]
        public static extern int vyr_name_get_date_time_file_path(ref NameItem item, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_name_get_add_delete_file_path", CharSet = CharSet.Unicode)]
        public static extern int vyr_name_get_add_delete_file_path(ref NameItem item, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_name_get_convert_file_path", CharSet = CharSet.Unicode)]
        public static extern int vyr_name_get_convert_file_path(ref NameItem item, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_name_get_replace_file_path", CharSet = CharSet.Unicode)]
        public static extern int vyr_name_get_replace_file_path(ref NameItem item, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_name_get_extension_file_path", CharSet = CharSet.Unicode)]
        public static extern int vyr_name_get_extension_file_path(ref NameItem item, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_name_get_resolve_conflict_file_path", CharSet = CharSet.Unicode)]
        public static extern int vyr_name_get_resolve_conflict_file_path([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, ref NameConflictItem item, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_name_get_rename_to_sample_formated", CharSet = CharSet.Unicode)]
        public static extern int vyr_name_get_rename_to_sample_formated([MarshalAs(UnmanagedType.LPWStr)] string format, IntPtr format_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_name_get_date_time_format", CharSet = CharSet.Unicode)]
        public static extern int vyr_name_get_date_time_format([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, [MarshalAs(UnmanagedType.LPWStr)] string format, IntPtr format_length, int target, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_name_get_folder_format", CharSet = CharSet.Unicode)]
        public static extern int vyr_name_get_folder_format([MarshalAs(UnmanagedType.LPWStr)] string format, IntPtr format_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_name_get_exif_format", CharSet = CharSet.Unicode)]
        public static extern int vyr_name_get_exif_format([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, [MarshalAs(UnmanagedType.LPWStr)] string format, IntPtr format_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_name_copy_folder", CharSet = CharSet.Unicode)]
        public static extern int vyr_name_copy_folder([MarshalAs(UnmanagedType.LPWStr)] string source, IntPtr source_length, [MarshalAs(UnmanagedType.LPWStr)] string destination, IntPtr destination_length, out ulong records, out int result);
        [DllImport(Library, EntryPoint = "vyr_name_move_folder", CharSet = CharSet.Unicode)]
        public static extern int vyr_name_move_folder([MarshalAs(UnmanagedType.LPWStr)] string source, IntPtr source_length, [MarshalAs(UnmanagedType.LPWStr)] string destination, IntPtr destination_length, out ulong records, out int result);
        // ProgramsFeaturesFuncs
        [DllImport(Library, EntryPoint = "vyr_programs_item_get", CharSet = CharSet.Unicode)]
        public static extern int vyr_programs_item_get(ulong list, UIntPtr index, ref ProgramsItem record);
        [DllImport(Library, EntryPoint = "vyr_programs_product_get", CharSet = CharSet.Unicode)]
        public static extern int vyr_programs_product_get(ulong list, UIntPtr index, ref ProgramsProduct record);
        [DllImport(Library, EntryPoint = "vyr_programs_get_programs_features_items_list", CharSet = CharSet.Unicode)]
        public static extern int vyr_programs_get_programs_features_items_list(int scope, int include_wow6432_node, out ulong result);
        [DllImport(Library, EntryPoint = "vyr_programs_get_programs_features_windows_installer_items_list", CharSet = CharSet.Unicode)]
        public static extern int vyr_programs_get_programs_features_windows_installer_items_list(int scope, out ulong result);
        [DllImport(Library, EntryPoint = "vyr_programs_get_list_view_item_text", CharSet = CharSet.Unicode)]
        public static extern int vyr_programs_get_list_view_item_text(int column, ref ProgramsItem item, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_programs_get_programs_features_installer_products_items_list", CharSet = CharSet.Unicode)]
        public static extern int vyr_programs_get_programs_features_installer_products_items_list(out ulong result);
        [DllImport(Library, EntryPoint = "vyr_programs_get_product_icon", CharSet = CharSet.Unicode)]
        public static extern int vyr_programs_get_product_icon([MarshalAs(UnmanagedType.LPWStr)] string icon_filter, IntPtr icon_filter_length, [MarshalAs(UnmanagedType.LPWStr)] string product_name, IntPtr product_name_length, ProgramsProduct[] products, UIntPtr products_count, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_programs_get_application_icon", CharSet = CharSet.Unicode)]
        public static extern int vyr_programs_get_application_icon([MarshalAs(UnmanagedType.LPWStr)] string icon_text, IntPtr icon_text_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length, out int result);
        [DllImport(Library, EntryPoint = "vyr_programs_get_install_date", CharSet = CharSet.Unicode)]
        public static extern int vyr_programs_get_install_date([MarshalAs(UnmanagedType.LPWStr)] string install_date, IntPtr install_date_length, [MarshalAs(UnmanagedType.LPWStr)] string fallback_date, IntPtr fallback_date_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_programs_get_formated_size", CharSet = CharSet.Unicode)]
        public static extern int vyr_programs_get_formated_size([MarshalAs(UnmanagedType.LPWStr)] string text, IntPtr text_length, ulong size, int format, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_programs_compare_reg_key", CharSet = CharSet.Unicode)]
        public static extern int vyr_programs_compare_reg_key([MarshalAs(UnmanagedType.LPWStr)] string key1, IntPtr key1_length, [MarshalAs(UnmanagedType.LPWStr)] string key2, IntPtr key2_length, int flag1, int flag2, int descending, out int result);
        [DllImport(Library, EntryPoint = "vyr_programs_get_key_parent_name", CharSet = CharSet.Unicode)]
        public static extern int vyr_programs_get_key_parent_name(IntPtr root, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_programs_is_wow6432_node", CharSet = CharSet.Unicode)]
        public static extern int vyr_programs_is_wow6432_node([MarshalAs(UnmanagedType.LPWStr)] string key_path, IntPtr key_path_length, out int result);
        [DllImport(Library, EntryPoint = "vyr_programs_get_icon_folder_name", CharSet = CharSet.Unicode)]
        public static extern int vyr_programs_get_icon_folder_name([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_programs_set_output_file_path", CharSet = CharSet.Unicode)]
        public static extern int vyr_programs_set_output_file_path([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length);
        [DllImport(Library, EntryPoint = "vyr_programs_get_output_file_path", CharSet = CharSet.Unicode)]
        public static extern int vyr_programs_get_output_file_path([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_programs_set_open_output_file", CharSet = CharSet.Unicode)]
        public static extern int vyr_programs_set_open_output_file(int is_opened);
        [DllImport(Library, EntryPoint = "vyr_programs_get_open_output_file", CharSet = CharSet.Unicode)]
        public static extern int vyr_programs_get_open_output_file(out int result);
        // RegistryFuncs
        [DllImport(Library, EntryPoint = "vyr_registry_get_product_reg_key", CharSet = CharSet.Unicode)]
        public static extern int vyr_registry_get_product_reg_key([MarshalAs(UnmanagedType.LPWStr)] string vendor_name, IntPtr vendor_name_length, [MarshalAs(UnmanagedType.LPWStr)] string product_name, IntPtr product_name_length, int version, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_registry_get_uninstall_product_reg_key", CharSet = CharSet.Unicode)]
        public static extern int vyr_registry_get_uninstall_product_reg_key([MarshalAs(UnmanagedType.LPWStr)] string uninstall_key_name, IntPtr uninstall_key_name_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_registry_get_product_install_date", CharSet = CharSet.Unicode)]
        public static extern int vyr_registry_get_product_install_date([MarshalAs(UnmanagedType.LPWStr)] string uninstall_key_name, IntPtr uninstall_key_name_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        // ColumnFuncs
        [DllImport(Library, EntryPoint = "vyr_column_is_visible_column", CharSet = CharSet.Unicode)]
        public static extern int vyr_column_is_visible_column(IntPtr list_control, [MarshalAs(UnmanagedType.LPWStr)] string name, IntPtr name_length, out int result);
        [DllImport(Library, EntryPoint = "vyr_column_get_column_header_item", CharSet = CharSet.Unicode)]
        public static extern int vyr_column_get_column_header_item(IntPtr list_control, [MarshalAs(UnmanagedType.LPWStr)] string name, IntPtr name_length, out int result);
        [DllImport(Library, EntryPoint = "vyr_column_get_column_item_order", CharSet = CharSet.Unicode)]
        public static extern int vyr_column_get_column_item_order(IntPtr list_control, [MarshalAs(UnmanagedType.LPWStr)] string name, IntPtr name_length, out int result);
        [DllImport(Library, EntryPoint = "vyr_column_get_column_item_text", CharSet = CharSet.Unicode)]
        public static extern int vyr_column_get_column_item_text(IntPtr list_control, int index, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        // FilterFuncs
        [DllImport(Library, EntryPoint = "vyr_filter_is_match", CharSet = CharSet.Unicode)]
        public static extern int vyr_filter_is_match([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, int mode, FilterCondition[] items, UIntPtr items_count, out int result);
        [DllImport(Library, EntryPoint = "vyr_filter_is_match_name", CharSet = CharSet.Unicode)]
        public static extern int vyr_filter_is_match_name([MarshalAs(UnmanagedType.LPWStr)] string name, IntPtr name_length, int mode, FilterCondition[] items, UIntPtr items_count, out int result);
        [DllImport(Library, EntryPoint = "vyr_filter_is_already_added", CharSet = CharSet.Unicode)]
        public static extern int vyr_filter_is_already_added([MarshalAs(UnmanagedType.LPWStr)] string text, IntPtr text_length, Text[] list, UIntPtr list_count, out int result);
        // SearchFuncs
        [DllImport(Library, EntryPoint = "vyr_search_is_match_path", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_is_match_path([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, int reserved, out int result);
        [DllImport(Library, EntryPoint = "vyr_search_is_match", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_is_match(ref SearchItem item, out int result);
        [DllImport(Library, EntryPoint = "vyr_search_is_match_date_time", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_is_match_date_time([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, out int result);
        [DllImport(Library, EntryPoint = "vyr_search_is_match_date_time_value", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_is_match_date_time_value(double value, int value_status, out int result);
        [DllImport(Library, EntryPoint = "vyr_search_is_match_size_path", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_is_match_size_path([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, int with_folders, out int result);
        [DllImport(Library, EntryPoint = "vyr_search_is_match_size", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_is_match_size(long size, out int result);
        [DllImport(Library, EntryPoint = "vyr_search_get_search_closed", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_get_search_closed(out int result);
        [DllImport(Library, EntryPoint = "vyr_search_set_search_closed", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_set_search_closed(int closed);
        [DllImport(Library, EntryPoint = "vyr_search_get_date_time_search", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_get_date_time_search(out int result);
        [DllImport(Library, EntryPoint = "vyr_search_set_date_time_search", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_set_date_time_search(int search);
        [DllImport(Library, EntryPoint = "vyr_search_get_date_time_target", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_get_date_time_target(out int result);
        [DllImport(Library, EntryPoint = "vyr_search_set_date_time_target", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_set_date_time_target(int target);
        [DllImport(Library, EntryPoint = "vyr_search_get_date_time_range", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_get_date_time_range(out int result);
        [DllImport(Library, EntryPoint = "vyr_search_set_date_time_range", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_set_date_time_range(int range);
        [DllImport(Library, EntryPoint = "vyr_search_get_date_time_from_date_time", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_get_date_time_from_date_time(out DateAndTime result);
        [DllImport(Library, EntryPoint = "vyr_search_set_date_time_from_date_time", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_set_date_time_from_date_time(double from, int from_status);
        [DllImport(Library, EntryPoint = "vyr_search_get_date_time_to_date_time", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_get_date_time_to_date_time(out DateAndTime result);
        [DllImport(Library, EntryPoint = "vyr_search_set_date_time_to_date_time", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_set_date_time_to_date_time(double to, int to_status);
        [DllImport(Library, EntryPoint = "vyr_search_get_size_search", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_get_size_search(out int result);
        [DllImport(Library, EntryPoint = "vyr_search_set_size_search", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_set_size_search(int search);
        [DllImport(Library, EntryPoint = "vyr_search_get_size_target", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_get_size_target(out int result);
        [DllImport(Library, EntryPoint = "vyr_search_set_size_target", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_set_size_target(int target);
        [DllImport(Library, EntryPoint = "vyr_search_get_size_range", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_get_size_range(out int result);
        [DllImport(Library, EntryPoint = "vyr_search_set_size_range", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_set_size_range(int range);
        [DllImport(Library, EntryPoint = "vyr_search_get_size_from_size", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_get_size_from_size(out long result);
        [DllImport(Library, EntryPoint = "vyr_search_set_size_from_size", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_set_size_from_size(long from);
        [DllImport(Library, EntryPoint = "vyr_search_get_size_to_size", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_get_size_to_size(out long result);
        [DllImport(Library, EntryPoint = "vyr_search_set_size_to_size", CharSet = CharSet.Unicode)]
        public static extern int vyr_search_set_size_to_size(long to);
        // BrowserFuncs
        [DllImport(Library, EntryPoint = "vyr_browser_app_item_get", CharSet = CharSet.Unicode)]
        public static extern int vyr_browser_app_item_get(ulong list, UIntPtr index, ref BrowserAppItem record);
        [DllImport(Library, EntryPoint = "vyr_browser_get_browser_items_list", CharSet = CharSet.Unicode)]
        public static extern int vyr_browser_get_browser_items_list(out ulong result);
        [DllImport(Library, EntryPoint = "vyr_browser_get_microsoft_edge_app_item", CharSet = CharSet.Unicode)]
        public static extern int vyr_browser_get_microsoft_edge_app_item(out ulong result);
        [DllImport(Library, EntryPoint = "vyr_browser_is_installed_microsoft_edge_chromium", CharSet = CharSet.Unicode)]
        public static extern int vyr_browser_is_installed_microsoft_edge_chromium(out int result);
        // ControlPanelFuncs
        [DllImport(Library, EntryPoint = "vyr_control_panel_exec_date_and_time", CharSet = CharSet.Unicode)]
        public static extern int vyr_control_panel_exec_date_and_time(IntPtr owner, out int result);
        [DllImport(Library, EntryPoint = "vyr_control_panel_exec_programs_and_features", CharSet = CharSet.Unicode)]
        public static extern int vyr_control_panel_exec_programs_and_features(IntPtr owner, out int result);
        // FeatureControlFuncs
        [DllImport(Library, EntryPoint = "vyr_feature_control_set_feature_security_band", CharSet = CharSet.Unicode)]
        public static extern int vyr_feature_control_set_feature_security_band(int enable);
        [DllImport(Library, EntryPoint = "vyr_feature_control_set_feature_weboc_popup_management", CharSet = CharSet.Unicode)]
        public static extern int vyr_feature_control_set_feature_weboc_popup_management(int enable);
        [DllImport(Library, EntryPoint = "vyr_feature_control_set_feature_local_machine_lock_down", CharSet = CharSet.Unicode)]
        public static extern int vyr_feature_control_set_feature_local_machine_lock_down(int enable);
        [DllImport(Library, EntryPoint = "vyr_feature_control_set_feature_restrict_file_download", CharSet = CharSet.Unicode)]
        public static extern int vyr_feature_control_set_feature_restrict_file_download(int enable);
        [DllImport(Library, EntryPoint = "vyr_feature_control_set_feature_restrict_active_x_install", CharSet = CharSet.Unicode)]
        public static extern int vyr_feature_control_set_feature_restrict_active_x_install(int enable);
        [DllImport(Library, EntryPoint = "vyr_feature_control_set_feature_tabbed_browsing", CharSet = CharSet.Unicode)]
        public static extern int vyr_feature_control_set_feature_tabbed_browsing(int enable);
        [DllImport(Library, EntryPoint = "vyr_feature_control_set_feature_disable_navigation_sounds", CharSet = CharSet.Unicode)]
        public static extern int vyr_feature_control_set_feature_disable_navigation_sounds(int enable);
        [DllImport(Library, EntryPoint = "vyr_feature_control_set_feature_feeds", CharSet = CharSet.Unicode)]
        public static extern int vyr_feature_control_set_feature_feeds(int enable);
        [DllImport(Library, EntryPoint = "vyr_feature_control_set_feature_block_lmz_img", CharSet = CharSet.Unicode)]
        public static extern int vyr_feature_control_set_feature_block_lmz_img(uint value);
        [DllImport(Library, EntryPoint = "vyr_feature_control_set_feature_block_lmz_object", CharSet = CharSet.Unicode)]
        public static extern int vyr_feature_control_set_feature_block_lmz_object(uint value);
        [DllImport(Library, EntryPoint = "vyr_feature_control_set_feature_block_lmz_script", CharSet = CharSet.Unicode)]
        public static extern int vyr_feature_control_set_feature_block_lmz_script(uint value);
        [DllImport(Library, EntryPoint = "vyr_feature_control_set_feature_browser_emulation", CharSet = CharSet.Unicode)]
        public static extern int vyr_feature_control_set_feature_browser_emulation(uint value);
        // LogFuncs
        [DllImport(Library, EntryPoint = "vyr_log_get_log_file_name", CharSet = CharSet.Unicode)]
        public static extern int vyr_log_get_log_file_name([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_log_get_application_log_file_path", CharSet = CharSet.Unicode)]
        public static extern int vyr_log_get_application_log_file_path([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_log_write_with_path_level", CharSet = CharSet.Unicode)]
        public static extern int vyr_log_write_with_path_level([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, [MarshalAs(UnmanagedType.LPWStr)] string message, IntPtr message_length, int level, out int result);
        [DllImport(Library, EntryPoint = "vyr_log_write_with_level", CharSet = CharSet.Unicode)]
        public static extern int vyr_log_write_with_level([MarshalAs(UnmanagedType.LPWStr)] string message, IntPtr message_length, int level, out int result);
        [DllImport(Library, EntryPoint = "vyr_log_write", CharSet = CharSet.Unicode)]
        public static extern int vyr_log_write([MarshalAs(UnmanagedType.LPWStr)] string message, IntPtr message_length, out int result);
        // ApplicationFuncs
        [DllImport(Library, EntryPoint = "vyr_application_get_local_data_application_version", CharSet = CharSet.Unicode)]
        public static extern int vyr_application_get_local_data_application_version([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_application_is_alpha_version", CharSet = CharSet.Unicode)]
        public static extern int vyr_application_is_alpha_version(out int result);
        [DllImport(Library, EntryPoint = "vyr_application_is_beta_version", CharSet = CharSet.Unicode)]
        public static extern int vyr_application_is_beta_version(out int result);
        [DllImport(Library, EntryPoint = "vyr_application_is_release_candidate_version", CharSet = CharSet.Unicode)]
        public static extern int vyr_application_is_release_candidate_version(out int result);
        [DllImport(Library, EntryPoint = "vyr_application_is_release_to_manufacturing_version", CharSet = CharSet.Unicode)]
        public static extern int vyr_application_is_release_to_manufacturing_version(out int result);
        [DllImport(Library, EntryPoint = "vyr_application_is_release_version", CharSet = CharSet.Unicode)]
        public static extern int vyr_application_is_release_version(out int result);
        [DllImport(Library, EntryPoint = "vyr_application_is_product_release_version", CharSet = CharSet.Unicode)]
        public static extern int vyr_application_is_product_release_version(out int result);
        [DllImport(Library, EntryPoint = "vyr_application_get_online_support_url", CharSet = CharSet.Unicode)]
        public static extern int vyr_application_get_online_support_url([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_application_get_send_feedback_url", CharSet = CharSet.Unicode)]
        public static extern int vyr_application_get_send_feedback_url([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_application_get_send_questionnaire_url", CharSet = CharSet.Unicode)]
        public static extern int vyr_application_get_send_questionnaire_url([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        // UpdatesFuncs
        [DllImport(Library, EntryPoint = "vyr_updates_item_get", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_item_get(ulong list, UIntPtr index, ref UpdatesItem record);
        [DllImport(Library, EntryPoint = "vyr_updates_initialize_updates_information", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_initialize_updates_information();
        [DllImport(Library, EntryPoint = "vyr_updates_set_type", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_set_type([MarshalAs(UnmanagedType.LPWStr)] string type, IntPtr type_length);
        [DllImport(Library, EntryPoint = "vyr_updates_get_type", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_get_type([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_updates_set_product_name", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_set_product_name([MarshalAs(UnmanagedType.LPWStr)] string product_name, IntPtr product_name_length);
        [DllImport(Library, EntryPoint = "vyr_updates_get_product_name", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_get_product_name([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_updates_set_version", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_set_version([MarshalAs(UnmanagedType.LPWStr)] string version, IntPtr version_length);
        [DllImport(Library, EntryPoint = "vyr_updates_get_version", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_get_version([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_updates_set_edition", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_set_edition([MarshalAs(UnmanagedType.LPWStr)] string edition, IntPtr edition_length);
        [DllImport(Library, EntryPoint = "vyr_updates_get_edition", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_get_edition([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_updates_set_platform_bit", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_set_platform_bit([MarshalAs(UnmanagedType.LPWStr)] string platform_bit, IntPtr platform_bit_length);
        [DllImport(Library, EntryPoint = "vyr_updates_get_platform_bit", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_get_platform_bit([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_updates_set_details_url", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_set_details_url([MarshalAs(UnmanagedType.LPWStr)] string details_url, IntPtr details_url_length);
        [DllImport(Library, EntryPoint = "vyr_updates_get_details_url", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_get_details_url([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_updates_set_download_url", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_set_download_url([MarshalAs(UnmanagedType.LPWStr)] string download_url, IntPtr download_url_length);
        [DllImport(Library, EntryPoint = "vyr_updates_get_download_url", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_get_download_url([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_updates_set_update_items_list", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_set_update_items_list(UpdatesItem[] items, UIntPtr items_count);
        [DllImport(Library, EntryPoint = "vyr_updates_get_update_items_list", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_get_update_items_list(out ulong result);
        [DllImport(Library, EntryPoint = "vyr_updates_set_checked_date", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_set_checked_date([MarshalAs(UnmanagedType.LPWStr)] string checked_date, IntPtr checked_date_length);
        [DllImport(Library, EntryPoint = "vyr_updates_get_checked_date", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_get_checked_date([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_updates_check_for_updates", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_check_for_updates([MarshalAs(UnmanagedType.LPWStr)] string version, IntPtr version_length, out int result);
        [DllImport(Library, EntryPoint = "vyr_updates_get_check_for_updates_url", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_get_check_for_updates_url([Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_updates_get_agree_ignore_server", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_get_agree_ignore_server(out int result);
        [DllImport(Library, EntryPoint = "vyr_updates_get_updates_information", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_get_updates_information([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, out int result);
        [DllImport(Library, EntryPoint = "vyr_updates_load_check_for_updates_date", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_load_check_for_updates_date();
        [DllImport(Library, EntryPoint = "vyr_updates_save_check_for_updates_date", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_save_check_for_updates_date();
        [DllImport(Library, EntryPoint = "vyr_updates_is_date_interval_check_for_updates", CharSet = CharSet.Unicode)]
        public static extern int vyr_updates_is_date_interval_check_for_updates(int days, out int result);
        // MSXMLFuncs
        [DllImport(Library, EntryPoint = "vyr_msxml_load_xml_file", CharSet = CharSet.Unicode)]
        public static extern int vyr_msxml_load_xml_file([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, out IntPtr result);
        [DllImport(Library, EntryPoint = "vyr_msxml_load_xslt_file", CharSet = CharSet.Unicode)]
        public static extern int vyr_msxml_load_xslt_file([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, out IntPtr result);
        // StyleFuncs
        [DllImport(Library, EntryPoint = "vyr_style_item_get", CharSet = CharSet.Unicode)]
        public static extern int vyr_style_item_get(ulong list, UIntPtr index, ref StyleItem record);
        [DllImport(Library, EntryPoint = "vyr_style_initialize_styles_information", CharSet = CharSet.Unicode)]
        public static extern int vyr_style_initialize_styles_information();
        [DllImport(Library, EntryPoint = "vyr_style_get_styles_information", CharSet = CharSet.Unicode)]
        public static extern int vyr_style_get_styles_information([MarshalAs(UnmanagedType.LPWStr)] string path, IntPtr path_length, out int result);
        [DllImport(Library, EntryPoint = "vyr_style_set_design_items_list", CharSet = CharSet.Unicode)]
        public static extern int vyr_style_set_design_items_list(StyleItem[] items, UIntPtr items_count);
        [DllImport(Library, EntryPoint = "vyr_style_get_design_items_list", CharSet = CharSet.Unicode)]
        public static extern int vyr_style_get_design_items_list(out ulong result);
        // XmlNodes
        [DllImport(Library, EntryPoint = "vyr_xml_get_root", CharSet = CharSet.Unicode)]
        public static extern int vyr_xml_get_root(IntPtr document, out IntPtr result);
        [DllImport(Library, EntryPoint = "vyr_xml_get_text", CharSet = CharSet.Unicode)]
        public static extern int vyr_xml_get_text(IntPtr element, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_xml_get_attribute", CharSet = CharSet.Unicode)]
        public static extern int vyr_xml_get_attribute(IntPtr element, [MarshalAs(UnmanagedType.LPWStr)] string name, IntPtr name_length, [Out] char[] buffer, UIntPtr capacity, out UIntPtr length);
        [DllImport(Library, EntryPoint = "vyr_xml_count_elements", CharSet = CharSet.Unicode)]
        public static extern int vyr_xml_count_elements(IntPtr element, [MarshalAs(UnmanagedType.LPWStr)] string name, IntPtr name_length, out int result);
        [DllImport(Library, EntryPoint = "vyr_xml_get_element", CharSet = CharSet.Unicode)]
        public static extern int vyr_xml_get_element(IntPtr element, [MarshalAs(UnmanagedType.LPWStr)] string name, IntPtr name_length, int index, out IntPtr result);
        [DllImport(Library, EntryPoint = "vyr_xml_release", CharSet = CharSet.Unicode)]
        public static extern int vyr_xml_release(IntPtr @object);
        // HostLists
        [DllImport(Library, EntryPoint = "vyr_host_list_create", CharSet = CharSet.Unicode)]
        public static extern int vyr_host_list_create(out IntPtr result);
        [DllImport(Library, EntryPoint = "vyr_host_list_destroy", CharSet = CharSet.Unicode)]
        public static extern int vyr_host_list_destroy(IntPtr list, out int result);
        [DllImport(Library, EntryPoint = "vyr_host_list_insert_column", CharSet = CharSet.Unicode)]
        public static extern int vyr_host_list_insert_column(IntPtr list, int index, [MarshalAs(UnmanagedType.LPWStr)] string heading, IntPtr heading_length, out int result);
        [DllImport(Library, EntryPoint = "vyr_host_list_delete_column", CharSet = CharSet.Unicode)]
        public static extern int vyr_host_list_delete_column(IntPtr list, int index, out int result);
        [DllImport(Library, EntryPoint = "vyr_host_list_move_column", CharSet = CharSet.Unicode)]
        public static extern int vyr_host_list_move_column(IntPtr list, int index, int position, out int result);
        [DllImport(Library, EntryPoint = "vyr_host_list_set_has_header", CharSet = CharSet.Unicode)]
        public static extern int vyr_host_list_set_has_header(IntPtr list, int has_header, out int result);
        // HostRegistry
        [DllImport(Library, EntryPoint = "vyr_host_registry_open_result_get", CharSet = CharSet.Unicode)]
        public static extern int vyr_host_registry_open_result_get(ulong list, UIntPtr index, ref HostRegistryOpenResult record);
        [DllImport(Library, EntryPoint = "vyr_host_registry_show_wine_prefix", CharSet = CharSet.Unicode)]
        public static extern int vyr_host_registry_show_wine_prefix([MarshalAs(UnmanagedType.LPWStr)] string folder, IntPtr folder_length, out ulong result);
        [DllImport(Library, EntryPoint = "vyr_host_registry_show_hives", CharSet = CharSet.Unicode)]
        public static extern int vyr_host_registry_show_hives(ref HostRegistryHiveFiles files, out ulong result);
        [DllImport(Library, EntryPoint = "vyr_host_registry_show_user_hives", CharSet = CharSet.Unicode)]
        public static extern int vyr_host_registry_show_user_hives([MarshalAs(UnmanagedType.LPWStr)] string user, IntPtr user_length, [MarshalAs(UnmanagedType.LPWStr)] string user_classes, IntPtr user_classes_length, out ulong result);
        [DllImport(Library, EntryPoint = "vyr_host_registry_close", CharSet = CharSet.Unicode)]
        public static extern int vyr_host_registry_close();
        // HostQueue
        [DllImport(Library, EntryPoint = "vyr_host_queue_set_drain", CharSet = CharSet.Unicode)]
        public static extern int vyr_host_queue_set_drain(Drain drain, IntPtr context);
    }

    /// <summary>The sizes that C gives the records, to be compared with those of C#.</summary>
    public static class Layout
    {
        public static readonly Dictionary<Type, int> Sizes = new Dictionary<Type, int>
        {
            { typeof(Text), 16 },
            { typeof(DateAndTime), 16 },
            { typeof(Rect), 16 },
            { typeof(TextAndNumber), 24 },
            { typeof(Value), 80 },
            { typeof(AttributesItem), 32 },
            { typeof(DateTimeStaggerItem), 88 },
            { typeof(OfficePropertyHandler), 48 },
            { typeof(NameItem), 320 },
            { typeof(NameConflictItem), 40 },
            { typeof(NameRenameItem), 72 },
            { typeof(ProgramsItem), 552 },
            { typeof(ProgramsProduct), 88 },
            { typeof(FilterCondition), 40 },
            { typeof(SearchItem), 32 },
            { typeof(BrowserAppItem), 80 },
            { typeof(UpdatesItem), 32 },
            { typeof(StyleItem), 48 },
            { typeof(HostRegistryHiveFiles), 72 },
            { typeof(HostRegistryOpenResult), 48 },
        };
    }
}
