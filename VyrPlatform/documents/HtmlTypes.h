/// @file
/// The document object of a page in a web control. On Windows the interfaces are the system's own; on Linux they have
/// the same names and the members that the library calls, for hosts whose web control provides such an object.
#pragma once

#include <VyrPlatform/documents/ComPointer.h>

#if defined(_WIN32)
#include <mshtml.h>
#else
#include <VyrPlatform/documents/LinuxHtml.h>
#endif

_COM_SMARTPTR_TYPEDEF(IHTMLDocument2, __uuidof(IHTMLDocument2));
_COM_SMARTPTR_TYPEDEF(IHTMLElementCollection, __uuidof(IHTMLElementCollection));
_COM_SMARTPTR_TYPEDEF(IHTMLElement, __uuidof(IHTMLElement));
_COM_SMARTPTR_TYPEDEF(IHTMLImgElement, __uuidof(IHTMLImgElement));
_COM_SMARTPTR_TYPEDEF(IHTMLStyle, __uuidof(IHTMLStyle));
