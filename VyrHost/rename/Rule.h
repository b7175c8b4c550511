/// @file
/// Rules: what they work on, what they may answer, and those that the engine carries out.
#pragma once

#include <VyrHost/model/DateSource.h>
#include <VyrHost/rename/Decision.h>
#include <VyrHost/rename/FileDates.h>
#include <VyrHost/rename/FileValues.h>
#include <VyrHost/rename/PatternGroups.h>
#include <VyrLibraryFuncs/name/NameFuncs.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace VyrHost::Rename {

/// One entry while the rules work on it, one after the other.
struct Subject
{
    /// Where the entry is now: the source of its dates and picture data. Absolute.
    CString path;
    bool isFolder = false;
    /// The place that counts for sequence numbers, from 0.
    int index = 0;
    /// The number of the entries that it keeps together with, and whether another one of them decides for it.
    std::size_t group = 0;
    bool isFollower = false;

    /// What the rules have made of it so far. The folder ends in its separator, the extension begins with its dot.
    CString folder;
    CString name;
    CString extension;

    /// What the last pattern matched.
    PatternGroups groups = {};

    /// What the file at `path` tells (FileValuesOf).
    FileValues values = {};

    /// Set by a rule that gives no name: what there is to say beyond the reason.
    CString cause = {};

    /// The rank of the date that a rule took among those asked for, from 0; of several rules the highest.
    std::size_t dateRank = 0;
    /// The dates that rules with a choice took.
    Model::DateSourceSet datesTaken = {};
};

class Rule
{
public:
    virtual ~Rule() = default;
    /// Changes the subject's folder, name and extension.
    /// @return why there is no name; the subject is not to be used then.
    virtual Reason Apply(Subject& subject) = 0;
    /// Whether names that clash under this rule are to be numbered.
    [[nodiscard]] virtual bool MayNumber() const = 0;
    /// The groups of its pattern, for the templates of later rules; nothing for a rule without one.
    [[nodiscard]] virtual std::optional<PatternShape> ShapeOfPattern() const { return std::nullopt; }
};

/// What the file at the subject's path tells.
[[nodiscard]] FileValues& FileValuesOf(Subject& subject);

/// Moves the subject into the folder `name` of the folder that it is in. Refuses "", "." and "..".
[[nodiscard]] Reason StepDown(Subject& subject, const CString& name);

/// The longest text that a rule makes for a name, in code units; more than any system takes.
inline constexpr int longestText = 32'767;

/// Makes `whole` the subject's name and extension. A folder has no extension.
void SetWholeName(Subject& subject, const CString& whole);

using Rules = std::vector<std::unique_ptr<Rule>>;

/// A single rule of the class `Made`, made of `arguments`.
template <typename Made, typename... Arguments>
[[nodiscard]] Rules OneRule(Arguments&&... arguments)
{
    Rules rules;
    rules.push_back(std::make_unique<Made>(std::forward<Arguments>(arguments)...));
    return rules;
}

/// A record of the engine for `kind` without any settings yet.
[[nodiscard]] VyrLibraryFuncs::NameFuncs::ITEM NewItem(VyrLibraryFuncs::NameFuncs::RenameType kind);
/// A record that inserts `text` at `position` (in code units, 0 or more).
/// @param type  InsertFromStart or InsertFromEnd: where the position is counted from.
[[nodiscard]] VyrLibraryFuncs::NameFuncs::ITEM InsertItem(VyrLibraryFuncs::NameFuncs::AddDeleteType type, int position,
                                                          std::u16string_view text);

/// Applies one record of the engine to entry after entry.
class EngineRule : public Rule
{
public:
    explicit EngineRule(VyrLibraryFuncs::NameFuncs::ITEM settings);

    Reason Apply(Subject& subject) override;
    [[nodiscard]] bool MayNumber() const override;

protected:
    /// The engine's answer for `subject`, cut into the subject's folder, the name and the extension.
    void Compute(Subject& subject);

    /// The one record that serves all entries.
    VyrLibraryFuncs::NameFuncs::ITEM m_item;
};

/// Writes the first date that an entry has, of those asked for, and replaces the tokens: "<Make>" and
/// "<Model>" the camera, "<Folder>" a step down into a folder. A blank beside a "<Make>" or "<Model>" that the picture
/// does not tell goes with it. A picture that cannot be read is a fault, not one without a date.
class DateRule : public Rule
{
public:
    using Position = VyrLibraryFuncs::NameFuncs::DateTimePosition;

    /// @param position  where the date goes.
    DateRule(std::u16string_view format, Position position, DateSettings settings);

    Reason Apply(Subject& subject) override;
    [[nodiscard]] bool MayNumber() const override { return true; }

private:
    /// Writes the first date that is there.
    [[nodiscard]] Reason WriteDate(Subject& subject, CString& text) const;
    /// Puts the camera into `text`, which stands in the new name where the position says.
    [[nodiscard]] Reason PutInCamera(Subject& subject, CString& text) const;
    /// Moves the subject down the folders that `text` begins with, which are taken off it.
    static Reason TakeFolders(Subject& subject, CString& text);

    DateWriter m_format;
    Position m_position;
    DateSettings m_settings;
    bool m_hasMake;
    bool m_hasModel;
    bool m_hasFolder;
    Media::MediaQuestion m_question;
};

} // namespace VyrHost::Rename
