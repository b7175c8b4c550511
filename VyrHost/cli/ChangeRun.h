/// @file
/// What the commands that change files in place have in common: "vyr times", "vyr attributes", "vyr unblock".
#pragma once

#include <VyrHost/cli/SourceOptions.h>
#include <VyrHost/metadata/Changes.h>

#include <string>
#include <string_view>

namespace CLI {
class App;
}

namespace VyrHost::Cli {

/// The options of such a command that say what is done and shown. Not to be moved once it has added them.
class ChangeOptions
{
public:
    explicit ChangeOptions(CLI::App& command);
    ChangeOptions(const ChangeOptions&) = delete;
    ChangeOptions& operator=(const ChangeOptions&) = delete;

    /// @throws UsageError for options that contradict each other.
    void Check() const;
    [[nodiscard]] bool IsApplied() const { return m_apply; }
    [[nodiscard]] bool IsJson() const { return m_json; }
    [[nodiscard]] bool IsQuiet() const { return m_quiet; }

private:
    CLI::App& m_command;
    bool m_apply = false;
    bool m_json = false;
    bool m_quiet = false;
};

/// What such a call is about.
struct ChangeRequest
{
    /// The command, such as "times".
    std::string command;
    /// The kind of its changes.
    std::string_view kind;
    Collect::SourceSettings sources;
    Collect::SortSettings order;
};

/// Changes files by `rule`, or shows what it would change.
/// @return the program's exit code.
/// @throws UsageError
[[nodiscard]] int RunChanges(const ChangeRequest& request, const Metadata::ChangeRule& rule,
                             const ChangeOptions& options);

/// Shows `columns` of the files of `sources` instead, a list of names separated by commas.
/// @return the program's exit code.
[[nodiscard]] int ShowFiles(const Collect::SourceSettings& sources, std::u16string_view columns,
                            const ChangeOptions& options);

} // namespace VyrHost::Cli
