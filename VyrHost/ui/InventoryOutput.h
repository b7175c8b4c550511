/// @file
/// Installed programs, products and browsers as lists of records. docs/inventory.md describes every column.
#pragma once

#include <VyrHost/inventory/Inventory.h>
#include <VyrHost/ui/RecordTable.h>

#include <string>
#include <vector>

namespace VyrHost::Ui {

/// The columns of programs: those of the system's own list, the user, the key, and all other values in the registry.
[[nodiscard]] std::vector<RecordColumn> ProgramColumns();
/// A list of `programs`, which must outlive it. Sorting by `key` uses ProgramsFeaturesFuncs::CompareRegKey, with 32-bit
/// programs last. Hidden ones are faint.
[[nodiscard]] RecordTable TableOfPrograms(const std::vector<Inventory::Program>& programs);

[[nodiscard]] std::vector<RecordColumn> ProductColumns();
/// A list of `products`, which must outlive it.
[[nodiscard]] RecordTable TableOfProducts(const std::vector<Inventory::Product>& products);

[[nodiscard]] std::vector<RecordColumn> BrowserColumns();
/// A list of `browsers`, which must outlive it.
[[nodiscard]] RecordTable TableOfBrowsers(const std::vector<Inventory::Browser>& browsers);

} // namespace VyrHost::Ui
