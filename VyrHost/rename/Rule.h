/// @file
/// The interface of rules, and the rules that the engine carries out.
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

/// An entry to which rules are applied, one after the other.
struct Subject
{
    /// The present path of the entry, from which dates and picture data are read. Absolute.
    CString path;
    bool isFolder = false;
    /// The index for sequence numbers, from 0.
    int index = 0;
    /// The number of its group, and whether another entry of the group decides its name.
    std::size_t group = 0;
    bool isFollower = false;

    /// The result of the rules so far. The folder ends in a separator, the extension begins with a dot.
    CString folder;
    CString name;
    CString extension;

    /// The match of the last pattern.
    PatternGroups groups = {};

    /// The values of the file at `path`; use FileValuesOf.
    FileValues values = {};

    /// A further explanation from a rule that makes no name.
    CString cause = {};

    /// The index of the used date among the requested ones, from 0; the highest one of several rules.
    std::size_t dateRank = 0;
    /// The dates that rules with a choice used.
    Model::DateSourceSet datesTaken = {};
};

class Rule
{
public:
    virtual ~Rule() = default;
    /// Changes the subject's folder, name and extension.
    /// @return the reason if there is no name; the subject must not be used then.
    virtual Reason Apply(Subject& subject) = 0;
    /// Whether conflicting names of this rule are numbered.
    [[nodiscard]] virtual bool MayNumber() const = 0;
    /// The groups of its pattern, for the templates of later rules; nothing for a rule without one.
    [[nodiscard]] virtual std::optional<PatternShape> ShapeOfPattern() const { return std::nullopt; }
};

/// The values of the file at the subject's path.
[[nodiscard]] FileValues& FileValuesOf(Subject& subject);

/// Moves the subject into the subfolder `name` of its folder. Refuses "", "." and "..".
[[nodiscard]] Reason StepDown(Subject& subject, const CString& name);

/// The longest text that a rule makes for a name, in code units; more than any system takes.
inline constexpr int longestText = 32'767;

/// Makes `whole` the subject's name and extension. A folder has no extension.
void SetWholeName(Subject& subject, const CString& whole);

using Rules = std::vector<std::unique_ptr<Rule>>;

/// A single rule of the class `Made`, made from `arguments`.
template <typename Made, typename... Arguments>
[[nodiscard]] Rules OneRule(Arguments&&... arguments)
{
    Rules rules;
    rules.push_back(std::make_unique<Made>(std::forward<Arguments>(arguments)...));
    return rules;
}

/// A record of the engine for `kind`, without settings.
[[nodiscard]] VyrLibraryFuncs::NameFuncs::ITEM NewItem(VyrLibraryFuncs::NameFuncs::RenameType kind);
/// A record that inserts `text` at `position` (in code units, 0 or more).
/// @param type  InsertFromStart or InsertFromEnd: the end from which the position is counted.
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
    /// Computes the engine's result for `subject`, and splits it into the subject's folder, name and extension.
    void Compute(Subject& subject);

    /// The one record that serves all entries.
    VyrLibraryFuncs::NameFuncs::ITEM m_item;
};

/// Writes the first of the requested dates that an entry has, and replaces the tokens: "<Make>" and "<Model>" with the
/// camera, "<Folder>" with a step down into a folder. A blank beside a missing "<Make>" or "<Model>" is removed with
/// it. A picture that cannot be read is an error, not a picture without a date.
class DateRule : public Rule
{
public:
    using Position = VyrLibraryFuncs::NameFuncs::DateTimePosition;

    /// @param position  the position of the date.
    DateRule(std::u16string_view format, Position position, DateSettings settings);

    Reason Apply(Subject& subject) override;
    [[nodiscard]] bool MayNumber() const override { return true; }

private:
    /// Writes the first date that exists.
    [[nodiscard]] Reason WriteDate(Subject& subject, CString& text) const;
    /// Inserts the camera into `text`, which is at `position` in the new name.
    [[nodiscard]] Reason PutInCamera(Subject& subject, CString& text) const;
    /// Moves the subject down the folders at the start of `text`, and removes them from it.
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
