/// @file
/// The designs of reports.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <string>
#include <vector>

namespace VyrHost::Reports {

/// The appearance of a report.
struct Design
{
    CString name;
    /// Its style sheet, which follows the one of all reports.
    CString style;
};

/// The path of the design document that comes with the program: designs.xml beside it, or in the share folder next to
/// the program's folder.
[[nodiscard]] CString ShippedDesignsPath();

/// The designs of a design document (StyleFuncs): the `name` of an item is the design's, its `value` the style sheet.
/// @param option  the option that the path was given with, for messages; for the shipped document, its path.
/// @throws UsageError  there is no document with a design at `path`, or a style sheet would end the style element.
[[nodiscard]] std::vector<Design> ReadDesigns(const CString& path, const std::string& option);

/// The design with that name, ignoring case; the first one where `name` is empty.
/// @throws UsageError  for an unknown name; the message lists the known ones.
[[nodiscard]] Design ChooseDesign(const std::vector<Design>& designs, const CString& name);

} // namespace VyrHost::Reports
