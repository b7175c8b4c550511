/// @file
/// The sources of new names: rules, or the user.
#pragma once

#include <VyrHost/model/EntryList.h>
#include <VyrHost/rename/Decision.h>
#include <VyrHost/rename/Groups.h>
#include <VyrHost/rename/Rule.h>
#include <VyrPlatform/files/WorkingFolder.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <optional>
#include <span>
#include <unordered_map>
#include <utility>
#include <vector>

namespace VyrHost::Rename {

/// The wanted name of an entry, even if it is taken.
struct WantedName
{
    /// Absolute, with a separator at its end; and as it is shown.
    CString folder;
    CString shownFolder;
    /// With its extension.
    CString name;
    /// Why there is no name.
    Reason reason = Reason::None;
    /// A further explanation; empty for none.
    CString cause = {};
    /// The dates that rules with a choice used.
    Model::DateSourceSet datesTaken = {};
};

class NameSource
{
public:
    virtual ~NameSource() = default;

    /// Names the entries of a group. Called for one group after the other, in the order of the list; only with members
    /// that exist. `names` gets one name for each of `members`.
    virtual void Name(const Model::EntryList& list, const Groups& groups, std::span<const std::uint32_t> members,
                      std::vector<WantedName>& names) = 0;
    /// Whether conflicting names are numbered.
    [[nodiscard]] virtual bool MayNumber() const = 0;
};

/// Which entries sequence numbers count.
enum class Counting : std::uint8_t
{
    WholeList,
    /// Restarts in each folder.
    EachFolder
};

/// Applies rules to entries. The entries of a group get one number and one new stem: that of the first member for which
/// the rules make a name, whose dates and picture data are used for all. If the rules have several date sources, a
/// member with an earlier source goes first, so that a picture decides for its sidecar. A sidecar whose name is that of
/// its file plus an extension keeps this form: `X.JPG.xmp` follows `X.JPG`.
class RuleNames : public NameSource
{
public:
    /// A folder to move all entries into; rules create folders below it.
    struct Destination
    {
        /// Absolute, with a separator at its end; and as it is shown.
        CString path;
        CString shown;
    };

    RuleNames(const Rules& rules, Counting counting, std::optional<Destination> into = {})
        : m_rules(rules), m_counting(counting), m_into(std::move(into))
    {}

    void Name(const Model::EntryList& list, const Groups& groups, std::span<const std::uint32_t> members,
              std::vector<WantedName>& names) override;
    [[nodiscard]] bool MayNumber() const override;

private:
    [[nodiscard]] int TakeIndex(std::uint32_t folder);
    void NameOne(const Model::EntryList& list, const Model::Entry& entry, int index, WantedName& name);
    /// Gives all members one stem: that of the first one with a date from the best source.
    void NameTogether(const Model::EntryList& list, const Groups& groups, std::span<const std::uint32_t> members,
                      int index, std::vector<WantedName>& names);
    /// Gives the members the stem and the folder of `made`, which the rules made for `leader`; they keep their
    /// extensions.
    void FollowLeader(const Model::EntryList& list, const Groups& groups, std::span<const std::uint32_t> members,
                      int index, const Model::Entry& leader, const Subject& made, std::vector<WantedName>& names);
    Reason Run(const Model::EntryList& list, const Model::Entry& entry, int index, const Model::Entry& dated);
    WantedName Wanted(const Model::EntryList& list, const Model::Entry& entry) const;

    const Rules& m_rules;
    const Counting m_counting;
    const std::optional<Destination> m_into;
    /// By folder; the whole list counts as the folder 0.
    std::vector<int> m_next;
    /// The number of named groups.
    std::size_t m_group = 0;
    Subject m_subject;
    /// The folder of the files whose dates and picture data are read.
    VyrPlatform::WorkingFolder m_workingFolder;
};

/// Gives each entry its name from a list, or keeps its own. A bare name stays in the entry's folder; one with a
/// separator is a path, relative to the current folder or full.
class GivenNames : public NameSource
{
public:
    /// @param names by index in the list.
    explicit GivenNames(std::unordered_map<std::uint32_t, CString> names) : m_names(std::move(names)) {}

    void Name(const Model::EntryList& list, const Groups& groups, std::span<const std::uint32_t> members,
              std::vector<WantedName>& names) override;
    /// Names given by the user are not changed.
    [[nodiscard]] bool MayNumber() const override { return false; }

private:
    std::unordered_map<std::uint32_t, CString> m_names;
};

} // namespace VyrHost::Rename
