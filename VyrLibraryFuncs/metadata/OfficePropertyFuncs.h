/// @file
/// Properties of documents.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <utility>
#include <vector>

struct IPropertySetStorage;

namespace VyrLibraryFuncs {

/// Writes a property of a document's summary information (title, subject, author and the like), and finds the handlers
/// that write properties of documents other than compound documents.
///
/// On Windows the calling thread must have COM initialised. VyrPlatform/documents/PropertyStorage.h describes how each
/// system writes a document. The two diagnostics below are written to the debugger output.
class VYR_FUNCS_API OfficePropertyFuncs
{
public:
    OfficePropertyFuncs();
    ~OfficePropertyFuncs();
    OfficePropertyFuncs& operator=(const OfficePropertyFuncs&);

    /// The handler for the documents of an extension.
    struct CLSID_ITEM
    {
        /// With its dot.
        CString extension;
        /// The handler's class id; all zero when there is none.
        GUID clsid = {};
        /// The number that the host gave for the extension; non-zero means that a handler was searched for.
        int flag = 0;
    };

    /// The handlers for extensions, in their order, from the registry. Handles one pending event of the calling thread
    /// for each extension.
    /// @param extensions each with its dot, and a number: 0 makes an entry without a handler; with any other number the
    /// handler is searched for, and without one (or where its value is not a class id) there is no entry.
    static std::vector<CLSID_ITEM> GetClassIdItemList(std::vector<std::pair<CString, int>> extensions);
    /// The class id of the first entry of `items` with this extension, ignoring case; all zero when there is none.
    /// Handles one pending event of the calling thread for each entry.
    static GUID GetClassId(CString extension, std::vector<CLSID_ITEM> items);
    /// The path below HKEY_CLASSES_ROOT of the key whose default value is the class id of an extension's handler:
    /// ".docx" gives `.docx\ShellEx\PropertyHandler`.
    static CString GetPropertyHandlerRegKey(CString extension);

    /// Writes a property of the document at `path`: of a compound document directly, of other documents by their
    /// handler.
    /// @param propertyId the id in the summary-information set: 2 is the title, 3 the subject, 4 the author, 5 the
    ///     keywords, 6 the comments.
    /// @param value the value with its type; VT_EMPTY removes the property. A null pointer is refused.
    /// @param clsid the handler's class id, not needed for a compound document; all zero for none.
    /// @return 1 when it was written. 0 when the document could not be opened, has no handler, has no summary
    /// information (diagnostic: "No Summary-Information.") or could not be written (diagnostic:
    /// "IPropertyStg::WriteMultiple() failed w/error" and the result code in hexadecimal digits). Both end with a line
    /// end.
    static int SetDumpProps(CString path, std::uint32_t propertyId, PROPVARIANT* value, GUID clsid);

private:
    friend struct PrivateOperations;

    static int SetDumpBuiltInProps(IPropertySetStorage* storage, std::uint32_t propertyId, PROPVARIANT* value);

    static CString m_propertyHandlerPattern;
};

} // namespace VyrLibraryFuncs
