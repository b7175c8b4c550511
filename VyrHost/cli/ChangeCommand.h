/// @file
/// The common part of the commands that change files in place: "vyr times", "vyr attributes", "vyr unblock", "vyr
/// properties".
#pragma once

#include <VyrHost/cli/BatchRun.h>
#include <VyrHost/cli/Commands.h>
#include <VyrHost/cli/SourceOptions.h>
#include <VyrHost/collect/CollectEntries.h>
#include <VyrHost/metadata/Changes.h>

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace VyrHost::Cli {

/// Changes the entries of `collected` by `rule`, or shows what it would change.
/// @param command  such as "times".
/// @param kind  the kind of the changes.
/// @return the program's exit code.
[[nodiscard]] int RunChanges(const std::string& command, std::string_view kind, const Metadata::ChangeRule& rule,
                             const Collect::CollectedEntries& collected, const ReportStyle& style);

/// Changes files by a rule, or shows what it would change; without a rule lists the files.
class ChangeCommand : public Command
{
public:
    [[nodiscard]] int Run() const override;

protected:
    /// @param verb     what the command does to the files, such as "change".
    /// @param kind  the kind of its changes.
    /// @param columns  the default columns (of FileFields, separated by commas) of the list without changes; empty for
    ///     a command that always changes files.
    ChangeCommand(CLI::App& command, const std::string& verb, std::string_view kind, std::u16string_view columns = {});

    /// The rule that the options describe; null if they describe no change.
    /// @throws UsageError
    [[nodiscard]] virtual std::unique_ptr<const Metadata::ChangeRule> ReadRule() const = 0;

private:
    void AddListOptions();
    /// @throws UsageError for an option that is for lists.
    void RefuseListOptions() const;
    [[nodiscard]] int ShowFiles(const ReportStyle& style) const;

    SourceOptions m_sources;
    OrderOptions m_order;
    RunOptions m_run;
    std::string_view m_kind;
    std::u16string_view m_columns;
    std::optional<std::string> m_chosen;
    bool m_csv = false;
};

} // namespace VyrHost::Cli
