/// @file
/// The options that say whose registry is looked at.
#pragma once

#include <VyrHost/inventory/Place.h>

#include <optional>
#include <string>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// WHERE, --disk, --hives and --wine.
class PlaceOptions
{
public:
    explicit PlaceOptions(CLI::App& command);
    PlaceOptions(const PlaceOptions&) = delete;
    PlaceOptions& operator=(const PlaceOptions&) = delete;

    /// @throws UsageError
    [[nodiscard]] Inventory::PlaceRequest Read() const;

private:
    CLI::App& m_command;
    std::optional<std::string> m_where;
    std::optional<std::string> m_disk;
    std::optional<std::string> m_hives;
    std::optional<std::string> m_wine;
};

/// Says what could not be read, and what may be missing.
/// @return the exit code that tells it.
[[nodiscard]] int Complain(const Inventory::Notes& notes);

} // namespace VyrHost::Cli
