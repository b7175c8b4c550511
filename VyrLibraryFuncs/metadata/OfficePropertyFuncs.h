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
/// that do so for documents which are not compound documents.
///
/// On Windows the calling thread must have COM initialised. VyrPlatform/documents/PropertyStorage.h tells how a
/// document is written on each system. The two diagnostics below go to the debugger output.
class VYR_FUNCS_API OfficePropertyFuncs
{
public:
    OfficePropertyFuncs();
    ~OfficePropertyFuncs();
    OfficePropertyFuncs& operator=(const OfficePropertyFuncs&);

    /// The handler of an extension's documents.
    struct CLSID_ITEM
    {
        /// With its dot.
        CString extension;
        /// The handler's class id; all zero when there is none.
        GUID clsid;
        /// The number that the host gave with the extension; non-zero means that a handler was looked up.
        int flag;
    };

    /// The handlers of extensions, in their order, by the registry. One pending event of the calling thread is handled
    /// for each.
    /// @param extensions each with its dot, and a number: 0 makes an entry without a handler; with any other number the
    ///     handler is looked up, and without one (or where its value is no class id) there is no entry.
    static std::vector<CLSID_ITEM> GetClassIdItemList(std::vector<std::pair<CString, int>> extensions);
    /// The class id of the first entry of `items` with this extension, without regard to case; all zero when there is
    /// none. One pending event of the calling thread is handled for each entry.
    static GUID GetClassId(CString extension, std::vector<CLSID_ITEM> items);
    /// The path below HKEY_CLASSES_ROOT of the key whose default value is the class id of an extension's handler:
    /// ".docx" gives `.docx\ShellEx\PropertyHandler`.
    static CString GetPropertyHandlerRegKey(CString extension);

    /// Writes a property of the document at `path`: of a compound document directly, of any other by its handler.
    /// @param propertyId the id in the summary-information set: 2 is the title, 3 the subject, 4 the author, 5 the
    ///     keywords, 6 the comments.
    /// @param value the value with its type; VT_EMPTY removes the property. A null pointer is refused.
    /// @param clsid the handler's class id, which a compound document does not need; all zero for none.
    /// @return 1 when it was written. 0 when the document could not be opened or written, when it has no handler, and
    ///     when it has no summary information (diagnostic: "No Summary-Information.\n").
    static int SetDumpProps(CString path, std::uint32_t propertyId, PROPVARIANT* value, GUID clsid);

private:
    friend struct PrivateOperations;

    static int SetDumpBuiltInProps(IPropertySetStorage* storage, std::uint32_t propertyId, PROPVARIANT* value);

    static CString m_propertyHandlerPattern;
};

} // namespace VyrLibraryFuncs
