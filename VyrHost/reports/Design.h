/// @file
/// The designs of reports.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <string>
#include <vector>

namespace VyrHost::Reports {

/// How a report looks.
struct Design
{
    CString name;
    /// Its style sheet, which stands behind the one that all reports have.
    CString style;
};

/// The design document that is shipped with the program: designs.xml beside it, or in the share folder next to its own.
[[nodiscard]] CString ShippedDesignsPath();

/// The designs of a design document (StyleFuncs): the `name` of an item is the design's, its `value` the style sheet.
/// @param option  what the path was given with, for messages; for the shipped document, its path.
/// @throws UsageError  no document at `path` with a design in it, or one whose style sheet would end the style element.
[[nodiscard]] std::vector<Design> ReadDesigns(const CString& path, const std::string& option);

/// The design of that name, whatever its case; the first one where `name` is empty.
/// @throws UsageError  there is none; the message names those that there are.
[[nodiscard]] Design ChooseDesign(const std::vector<Design>& designs, const CString& name);

} // namespace VyrHost::Reports
