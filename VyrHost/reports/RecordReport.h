/// @file
/// Lists of records as pages for a browser.
#pragma once

#include <VyrHost/reports/Design.h>
#include <VyrHost/ui/RecordTable.h>

#include <functional>
#include <string_view>

namespace VyrHost::Reports {

/// Takes a piece of the page (UTF-8).
using TakePiece = std::function<void(std::string_view piece)>;

/// What stands around the list.
struct ReportText
{
    CString title;
    /// Such as "3 programs.".
    CString total;
};

/// Writes a whole page with the shown columns and rows of `table`: one that needs nothing from the network, and shows
/// all but sorting and the search box without scripts. Every text is escaped; a text that is an address with `http:`
/// or `https:` becomes a link. Time and memory grow with the page alone.
void WriteRecordReport(const TakePiece& take, const Ui::RecordTable& table, const ReportText& text,
                       const Design& design);

} // namespace VyrHost::Reports
