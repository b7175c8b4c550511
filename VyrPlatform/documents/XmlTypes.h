/// @file
/// XML documents. On Windows the interfaces are those of the system's parser (MSXML 3.0), and the calling thread must
/// have COM initialised (ComApartment). On Linux they have the same names and the members that the library calls, and
/// libxml2 reads the documents:
///
/// - a document is read from a path, or from an address with `file:`, `http:` or `https:`;
/// - nothing that a document refers to is read: an external entity is empty, and a document whose own document type
///   includes external declarations is not loaded;
/// - a document is not loaded when it has more than 16 MB (512 KB with a document type), 256 levels, 1,000 attributes
///   in one element or 50,000 different names, when its tree would take more than 128 MB, or when its entities expand
///   to more than ten times its size.
#pragma once

#include <VyrPlatform/documents/ComPointer.h>

#if defined(_WIN32)
#include <msxml.h>

// MinGW's header lacks them.
// clang-format off
__CRT_UUID_DECL(IXMLDOMNode, 0x2933BF80, 0x7B36, 0x11D2, 0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60)
__CRT_UUID_DECL(IXMLDOMDocument, 0x2933BF81, 0x7B36, 0x11D2, 0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60)
__CRT_UUID_DECL(IXMLDOMNodeList, 0x2933BF82, 0x7B36, 0x11D2, 0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60)
__CRT_UUID_DECL(IXMLDOMElement, 0x2933BF86, 0x7B36, 0x11D2, 0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60)
// clang-format on
#else
#include <VyrPlatform/documents/LinuxXml.h>
#endif

namespace MSXML2 {

using ::IXMLDOMDocument;
using ::IXMLDOMElement;
using ::IXMLDOMNode;
using ::IXMLDOMNodeList;

_COM_SMARTPTR_TYPEDEF(IXMLDOMDocument, __uuidof(IXMLDOMDocument));
_COM_SMARTPTR_TYPEDEF(IXMLDOMElement, __uuidof(IXMLDOMElement));
_COM_SMARTPTR_TYPEDEF(IXMLDOMNode, __uuidof(IXMLDOMNode));
_COM_SMARTPTR_TYPEDEF(IXMLDOMNodeList, __uuidof(IXMLDOMNodeList));

} // namespace MSXML2
