/// @file
/// XML documents.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/documents/XmlTypes.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryFuncs {

/// Loads XML documents, for the whole library.
///
/// The parser is the system's (VyrPlatform/documents/XmlTypes.h), with its defaults. On Windows COM must be initialised
/// on the calling thread, and there is no time limit for a server that never answers or redirects in a cycle; on Linux
/// there is.
class VYR_FUNCS_API MSXMLFuncs
{
public:
    MSXMLFuncs();
    ~MSXMLFuncs();
    MSXMLFuncs& operator=(const MSXMLFuncs& other);

    /// The document in a file.
    /// @param path  a path, or an address that the parser can load from.
    /// @return null when it cannot be read or is not well-formed.
    /// @throws _com_error  COM is not initialised, or the system has no such parser.
    static MSXML2::IXMLDOMDocumentPtr LoadXmlFile(CString path);
    /// The same, as a document that several threads may use: XSLT processors need it for a style sheet.
    static MSXML2::IXMLDOMDocumentPtr LoadXsltFile(CString path);
};

} // namespace VyrLibraryFuncs
