/// @file
/// What is installed, as lists of records. docs/inventory.md describes every column.
#pragma once

#include <VyrHost/inventory/Inventory.h>
#include <VyrHost/ui/RecordTable.h>

#include <string>
#include <vector>

namespace VyrHost::Ui {

/// The columns of programs: those of the system's own list, whose they are, the key, and the rest of what the registry
/// tells.
[[nodiscard]] std::vector<RecordColumn> ProgramColumns();
/// A list of `programs`, which must outlive it. `key` sorts by ProgramsFeaturesFuncs::CompareRegKey, those of 32-bit
/// programs behind the others. Hidden ones are faint.
[[nodiscard]] RecordTable TableOfPrograms(const std::vector<Inventory::Program>& programs);

[[nodiscard]] std::vector<RecordColumn> ProductColumns();
/// A list of `products`, which must outlive it.
[[nodiscard]] RecordTable TableOfProducts(const std::vector<Inventory::Product>& products);

[[nodiscard]] std::vector<RecordColumn> BrowserColumns();
/// A list of `browsers`, which must outlive it.
[[nodiscard]] RecordTable TableOfBrowsers(const std::vector<Inventory::Browser>& browsers);

} // namespace VyrHost::Ui
