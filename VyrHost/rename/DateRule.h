/// @file
/// The rule that puts a date of the entry into its name.
#pragma once

#include <VyrHost/rename/EngineRule.h>

#include <vector>

namespace VyrHost::Rename {

/// The dates of an entry, by the numbers of ITEM::dateTimeTarget.
enum class DateSource : int
{
    Modified,
    Created,
    Accessed,
    Picture
};

/// Writes the first date that an entry has, of those asked for, and puts in what the tokens stand for: "<Make>" and
/// "<Model>" the camera, "<Folder>" a step down into a folder.
class DateRule : public EngineRule
{
public:
    /// `settings` is a record of the kind DateTime with its format and position.
    DateRule(VyrLibraryFuncs::NameFuncs::ITEM settings, std::vector<DateSource> sources);

    RuleFault Apply(Subject& subject) override;

private:
    /// False when none of the dates is there.
    [[nodiscard]] bool ComputeDated(Subject& subject);
    /// Moves the subject down the folders that its name begins with.
    static RuleFault TakeFolders(Subject& subject);

    std::vector<DateSource> m_sources;
    bool m_hasMake;
    bool m_hasModel;
    bool m_hasFolder;
};

} // namespace VyrHost::Rename
