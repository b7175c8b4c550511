/// @file
/// The content of XML documents.
#pragma once

#include <VyrPlatform/documents/XmlTypes.h>
#include <VyrPlatform/text/CString.h>

namespace VyrC {

/// Reads the documents that MSXMLFuncs loads. On Windows these are the system's own objects, which a host may also use
/// by their interfaces; on Linux they are the library's. Each document and element that an operation gives is one
/// reference, which the host must release.
class XmlNodes
{
public:
    /// The root element of a document; null for null and for another kind of object.
    static IDispatch* GetRoot(IDispatch* document);
    /// The text below an element; empty for null and for another kind of object.
    static CString GetText(IDispatch* element);
    /// The attribute `name` of an element; empty where there is none.
    static CString GetAttribute(IDispatch* element, CString name);
    /// The number of elements with that name, at any depth below `element`; "*" is every name.
    static int CountElements(IDispatch* element, CString name);
    /// The element at `index`, from 0 in document order, of those that CountElements counts; null when there is none.
    static IDispatch* GetElement(IDispatch* element, CString name, int index);
    /// Gives a reference back. Null is accepted.
    static void Release(IDispatch* object);
};

} // namespace VyrC
