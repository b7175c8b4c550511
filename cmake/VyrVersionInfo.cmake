# Gives a program what VyrLibrary's version operations read of it: a version resource on Windows, an ELF note elsewhere.
#
#   vyr_add_version_info(<target>
#     VERSION <a[.b[.c[.d]]]> [PRODUCT_NAME <text>] [PRODUCT_VERSION <text>])
#
# <target> is an executable. VERSION holds one to four numbers from 0 to 65535; those left out are 0. The texts are
# UTF-8, of one line; one left out is empty.
# It needs no other file, so a project of its own may include it.
include_guard(GLOBAL)

function(vyr_add_version_info target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "PRODUCT_NAME;VERSION;PRODUCT_VERSION" "")
  foreach(text "${arg_PRODUCT_NAME}" "${arg_PRODUCT_VERSION}")
    if(text MATCHES "[\r\n]")
      message(FATAL_ERROR "vyr_add_version_info: \"${text}\" has more than one line")
    endif()
  endforeach()
  if(DEFINED arg_UNPARSED_ARGUMENTS)
    message(FATAL_ERROR "vyr_add_version_info: unknown arguments: ${arg_UNPARSED_ARGUMENTS}")
  endif()
  if(NOT arg_VERSION MATCHES "^[0-9]+(\\.[0-9]+)?(\\.[0-9]+)?(\\.[0-9]+)?$")
    message(FATAL_ERROR "vyr_add_version_info: VERSION is \"${arg_VERSION}\", which is not one to four numbers with dots")
  endif()
  string(REPLACE "." ";" numbers "${arg_VERSION}.0.0.0")
  list(SUBLIST numbers 0 4 numbers)
  foreach(number IN LISTS numbers)
    if(number GREATER 65535)
      message(FATAL_ERROR "vyr_add_version_info: ${number} in VERSION is above 65535")
    endif()
  endforeach()
  # A zero in front would make the number octal.
  list(TRANSFORM numbers REPLACE "^0+([0-9])" "\\1")
  list(JOIN numbers ", " numbers)
  string(REPLACE "\\" "\\\\" product_name "${arg_PRODUCT_NAME}")
  string(REPLACE "\\" "\\\\" product_version "${arg_PRODUCT_VERSION}")

  if(WIN32)
    set(quote "\"\"")
    set(extension "rc")
    set(content [[
#pragma code_page(65001)
1 VERSIONINFO
FILEVERSION @numbers@
PRODUCTVERSION @numbers@
FILEFLAGSMASK 0x3f
FILEOS 0x40004
FILETYPE 1
BEGIN
  BLOCK "StringFileInfo"
  BEGIN
    BLOCK "040904b0"
    BEGIN
      VALUE "FileVersion", "@arg_VERSION@"
      VALUE "ProductName", "@product_name@"
      VALUE "ProductVersion", "@product_version@"
    END
  END
  BLOCK "VarFileInfo"
  BEGIN
    VALUE "Translation", 0x0409, 1200
  END
END
]])
  else()
    set(quote "\\\"")
    set(extension "cpp")
    # The content is four 32-bit numbers, then two texts, each ended by a NUL. Written as assembly, so that no sanitizer
    # or optimiser adds to the section or drops it.
    set(content [[
// The version of this program, as a note of type 1 with the owner "Vyr".
asm(R"(
    .pushsection .note.Vyr, "a", %note
    .balign 4
    .long 4, 2f - 1f, 1
    .asciz "Vyr"
1:  .long @numbers@
    .asciz "@product_name@"
    .asciz "@product_version@"
2:  .balign 4
    .popsection
)");
]])
  endif()
  string(REPLACE "\"" "${quote}" product_name "${product_name}")
  string(REPLACE "\"" "${quote}" product_version "${product_version}")
  set(source "${CMAKE_CURRENT_BINARY_DIR}/${target}VersionInfo.${extension}")
  file(CONFIGURE OUTPUT "${source}" CONTENT "${content}" @ONLY)
  target_sources(${target} PRIVATE "${source}")
endfunction()
