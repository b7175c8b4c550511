/// @file
/// Where new names come from: rules, or the user.
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

/// What an entry is to be called, whatever else has that name.
struct WantedName
{
    /// Absolute, its separator at the end; and how it is shown.
    CString folder;
    CString shownFolder;
    /// With its extension.
    CString name;
    /// Why there is no name.
    Reason reason = Reason::None;
    /// What there is to say beyond the reason; empty for nothing.
    CString cause = {};
    /// The dates that rules with a choice took for it.
    Model::DateSourceSet datesTaken = {};
};

class NameSource
{
public:
    virtual ~NameSource() = default;

    /// Names the entries of `list` that keep together. Called for one group after the other, in the order of the list,
    /// with what is there alone; `names` gets one name for each of `members`.
    virtual void Name(const Model::EntryList& list, const Groups& groups, std::span<const std::uint32_t> members,
                      std::vector<WantedName>& names) = 0;
    /// Whether names that clash are to be numbered.
    [[nodiscard]] virtual bool MayNumber() const = 0;
};

/// Which entries sequence numbers count.
enum class Counting : std::uint8_t
{
    WholeList,
    /// Starts anew in each folder.
    EachFolder
};

/// Runs rules over entries. Entries that keep together get one number and one new name before the extension: that of
/// the first of them for which the rules have one, whose dates and picture data count for all. Where several dates may
/// serve, one that has an earlier of them goes before it, so that a picture decides for its sidecar. A sidecar that has
/// the whole name of its file before its own extension keeps that form: `X.JPG.xmp` follows `X.JPG`.
class RuleNames : public NameSource
{
public:
    /// A folder to move all entries into; the folders that rules make are below it.
    struct Destination
    {
        /// Absolute, its separator at the end; and how it is shown.
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
    /// One stem for all, from the first that has a date of the best source.
    void NameTogether(const Model::EntryList& list, const Groups& groups, std::span<const std::uint32_t> members,
                      int index, std::vector<WantedName>& names);
    /// Gives the members the stem and the folder of `made`, which the rules made for `leader`; the extensions stay
    /// theirs.
    void FollowLeader(const Model::EntryList& list, const Groups& groups, std::span<const std::uint32_t> members,
                      int index, const Model::Entry& leader, const Subject& made, std::vector<WantedName>& names);
    Reason Run(const Model::EntryList& list, const Model::Entry& entry, int index, const Model::Entry& dated);
    WantedName Wanted(const Model::EntryList& list, const Model::Entry& entry) const;

    const Rules& m_rules;
    const Counting m_counting;
    const std::optional<Destination> m_into;
    /// By folder; the whole list counts as the folder 0.
    std::vector<int> m_next;
    /// How many groups were named.
    std::size_t m_group = 0;
    Subject m_subject;
    /// Where the files are that dates and picture data come from.
    VyrPlatform::WorkingFolder m_workingFolder;
};

/// Gives each entry the name that was written down for it, and its own where none was. A bare name stays in the entry's
/// folder; one with a separator is a path, from the current folder on where it is not a full one.
class GivenNames : public NameSource
{
public:
    /// `names` are by places in the list.
    explicit GivenNames(std::unordered_map<std::uint32_t, CString> names) : m_names(std::move(names)) {}

    void Name(const Model::EntryList& list, const Groups& groups, std::span<const std::uint32_t> members,
              std::vector<WantedName>& names) override;
    /// A name that the user wrote is not changed.
    [[nodiscard]] bool MayNumber() const override { return false; }

private:
    std::unordered_map<std::uint32_t, CString> m_names;
};

} // namespace VyrHost::Rename
