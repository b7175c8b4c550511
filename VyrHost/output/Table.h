/// @file
/// A preview for people: a table of old and new names.
#pragma once

#include <VyrHost/entries/EntryList.h>
#include <VyrHost/output/OutputBuffer.h>
#include <VyrHost/preview/Decision.h>

namespace VyrHost {

/// How a table is laid out.
struct TableStyle
{
    /// The columns of the terminal, which each row fits; 0: rows are as long as their names.
    int width = 0;
    bool inColour = false;
};

/// The style for the standard output: that of the terminal, in colour unless NO_COLOR is set; plain text elsewhere.
[[nodiscard]] TableStyle StyleOfOutput();

/// One row for each entry: its name, the new one, and what there is to say. Names are shown as SafeText makes them.
void WriteTable(OutputBuffer& output, const EntryList& list, const Outcome& outcome, TableStyle style);

} // namespace VyrHost
