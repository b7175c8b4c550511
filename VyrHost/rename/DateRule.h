/// @file
/// The rule that puts a date of the entry into its name.
#pragma once

#include <VyrHost/model/DateSource.h>
#include <VyrHost/rename/EngineRule.h>

#include <vector>

namespace VyrHost::Rename {

/// Writes the first date that an entry has, of those asked for, and puts in what the tokens stand for: "<Make>" and
/// "<Model>" the camera, "<Folder>" a step down into a folder. A blank beside a "<Make>" or "<Model>" that the picture
/// does not tell goes with it. A picture that cannot be read is a fault, not one without a date.
class DateRule : public EngineRule
{
public:
    /// `settings` is a record of the kind DateTime with its format and position.
    DateRule(VyrLibraryFuncs::NameFuncs::ITEM settings, std::vector<Model::DateSource> sources);

    Reason Apply(Subject& subject) override;

private:
    /// Puts the first date that is there into the name.
    [[nodiscard]] Reason ComputeDated(Subject& subject);
    /// Puts the camera into `text`, which stands in the new name where the record says.
    [[nodiscard]] Reason PutInCamera(const Subject& subject, CString& text) const;
    /// Moves the subject down the folders that its name begins with.
    static Reason TakeFolders(Subject& subject);

    std::vector<Model::DateSource> m_sources;
    bool m_hasMake;
    bool m_hasModel;
    bool m_hasFolder;
};

} // namespace VyrHost::Rename
