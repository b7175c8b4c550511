/// @file
/// Lists of records as pages for a browser.
#pragma once

#include <VyrHost/reports/Design.h>
#include <VyrHost/reports/Thumbnail.h>
#include <VyrHost/ui/RecordTable.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>

namespace VyrHost::Reports {

/// Takes a piece of the page (UTF-8).
using TakePiece = std::function<void(std::string_view piece)>;

/// The texts around the list.
struct ReportText
{
    CString title;
    /// Such as "3 programs.".
    CString total;
};

/// The picture of a row; nothing where it has none.
using PictureOf = std::function<std::optional<Thumbnail>(std::size_t row)>;

/// Writes a complete page with the shown columns and rows of `table`. It needs nothing from the network, and without
/// scripts only sorting and the search box are missing. Every text is escaped; an address with `http:` or `https:`
/// becomes a link. Time and memory are linear in the size of the page.
/// @param pictureOf  gives the pictures of a first column; without it there is no such column.
void WriteRecordReport(const TakePiece& take, const Ui::RecordTable& table, const ReportText& text,
                       const Design& design, const PictureOf& pictureOf = {});

} // namespace VyrHost::Reports
