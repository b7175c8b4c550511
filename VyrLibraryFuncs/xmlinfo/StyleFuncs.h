/// @file
/// The designs that a host offers for its reports.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/documents/XmlTypes.h>
#include <VyrPlatform/text/CString.h>

#include <vector>

namespace VyrLibraryFuncs {

/// Reads design documents, and keeps the list of their items for the life of the process, without a lock: for the
/// host's interface thread.
class VYR_FUNCS_API StyleFuncs
{
public:
    /// One design.
    struct DESIGNITEM
    {
        /// Its number.
        int id = 0;
        /// Its meaning is up to the host.
        CString value;
        /// Its name for people.
        CString name;
    };

    StyleFuncs();
    ~StyleFuncs();
    StyleFuncs& operator=(const StyleFuncs& other);

    /// Empties the list.
    static void InitializeStylesInformation();
    /// Reads a design document into the list:
    ///
    ///     <designs>
    ///       <design>
    ///         <moreinfo>
    ///           <item id="1" value="plain.css" name="Plain"/>
    ///           <item id="2" value="cards.css" name="Cards"/>
    ///         </moreinfo>
    ///       </design>
    ///     </designs>
    ///
    /// Names match with their case, at any depth, without a prefix; the root may have any name. Of several `design`
    /// elements the last one counts. An item without an attribute has the value of the item before it in the same
    /// `moreinfo`; at first 0 and empty texts. A stop ends only the list of elements that is being read: after one
    /// among the items of a `moreinfo`, the next `moreinfo` is read.
    /// @return 1 when a `design` element was read; 0 when there is none, when a stop comes before the first, when the
    /// document does not load (the list is then empty), and when there is no file at `path` (the list is kept).
    /// @throws _com_error  as MSXMLFuncs::LoadXmlFile does.
    static int GetStylesInformation(CString path);

    static void SetDesignItemsList(std::vector<DESIGNITEM> items);
    static std::vector<DESIGNITEM> GetDesignItemsList();

private:
    friend struct PrivateOperations;

    static int SetStylesAttributes(MSXML2::IXMLDOMDocumentPtr document);
    static std::vector<DESIGNITEM> GetDesignMoreInfoElementItems(MSXML2::IXMLDOMNodeListPtr moreInfos);

    static std::vector<DESIGNITEM> m_designItemsList;
};

} // namespace VyrLibraryFuncs
