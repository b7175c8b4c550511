/// @file
/// Writes lists of records: as a table for people, as CSV and as JSON lines for programs.
#pragma once

#include <VyrHost/ui/Output.h>
#include <VyrHost/ui/RecordTable.h>

namespace VyrHost::Ui {

/// Writes a line of headings, then a line for each row. Texts are escaped by SafeText, and nothing is left out: where
/// the columns do not fit into the terminal, they share its width. A value that is wider than its column is on a line
/// of its own below its row, after its heading; in the first column, above the row. Where the columns would be
/// unreadably narrow, each value has a line of its own.
/// @param hasHeadings  whether headings are written; there are never any without rows.
void WriteRecords(OutputBuffer& output, const RecordTable& table, TableStyle style, bool hasHeadings);

/// Writes CSV (RFC 4180): UTF-8 with a byte order mark, lines ended by CR LF, first the names of the columns, fields in
/// double quotes where necessary. Values are written by PlainText; file names have the same bytes as on the disk.
void WriteRecordCsv(OutputBuffer& output, const RecordTable& table);

/// Writes a JSON object for each row, one a line. Its keys are the names of the columns; columns without a value are
/// left out. Numbers and sizes (in bytes) are numbers, flags true or false, dates texts of PlainText.
void WriteRecordJson(OutputBuffer& output, const RecordTable& table);

} // namespace VyrHost::Ui
