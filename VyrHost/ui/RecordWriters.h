/// @file
/// Writes lists of records: as a table for people, as CSV and as JSON lines for programs.
#pragma once

#include <VyrHost/ui/Output.h>
#include <VyrHost/ui/RecordTable.h>

namespace VyrHost::Ui {

/// Writes a line of headings, then a line for each row. Texts are shown as SafeText makes them, and nothing is left
/// out: where not all columns fit into the terminal, they share it, and a value that is wider than its column stands
/// below its row on a line of its own, behind its heading; in the first column, above it. Where the columns would be
/// too narrow to read, each value of a row gets a line of its own.
/// @param hasHeadings  without them, and without any line where there are no rows.
void WriteRecords(OutputBuffer& output, const RecordTable& table, TableStyle style, bool hasHeadings);

/// Writes CSV (RFC 4180): UTF-8 with its mark, lines ended by CR LF, first the names of the columns, a field in double
/// quotes where it needs them. Values stand as PlainText gives them; a name of a file has the bytes that it has on the
/// disk.
void WriteRecordCsv(OutputBuffer& output, const RecordTable& table);

/// Writes a JSON object for each row, a line each. Its keys are the names of the columns; what has no value has no key.
/// Numbers and sizes (in bytes) are numbers, flags true or false, dates texts as PlainText gives them.
void WriteRecordJson(OutputBuffer& output, const RecordTable& table);

} // namespace VyrHost::Ui
