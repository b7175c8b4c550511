/// @file
/// What is decided about an entry, and the results made of it.
#pragma once

#include <VyrHost/model/DateSource.h>
#include <VyrHost/model/EntryList.h>
#include <VyrHost/model/Result.h>
#include <VyrHostPlatform/NameRules.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace VyrHost::Rename {

/// Why an entry does not get a name.
enum class Reason : std::uint8_t
{
    None,
    /// Nothing stands at the path.
    NoSuchEntry,
    /// The entry's folder, or the one that it would move into, cannot be read.
    FolderNotRead,
    NoDate,
    /// Its date cannot be shifted as far as it was asked to be.
    DateOutOfRange,
    /// The picture whose date or camera was asked for cannot be read; the cause says why.
    PictureNotRead,
    /// A token of a template has no value for it; the cause names the token.
    NoValue,
    /// The rules give a folder to move into no name that a folder can have on any system.
    NamelessFolder,
    /// A folder to move into cannot be made: this system does not allow its name, or something else has it.
    BadFolder,
    /// The folder to move into is on another file system.
    OtherFileSystem,
    /// The user may not change the names in its folder, or in the one that it would move into; the cause says why.
    FolderLocked,
    /// Its folder is sticky: only the owner of an entry may rename it.
    NotOwnEntry,
    /// Other parts need the entry where it is; the cause says what for.
    MustStay,
    /// A rule inserts or deletes behind the end of the name; the cause tells how long it is.
    BeyondName,
    /// A pattern takes too many steps for the name; the cause tells which bound it met.
    PatternGaveUp,
    /// The content of the file, which was asked for, cannot be read; the cause says why.
    ContentNotRead,
    /// The content of the file is of no known kind.
    UnknownContent,
    EmptyName,
    /// Something that the batch leaves in place has the name.
    TargetExists,
    /// Another entry of the list gets the name.
    TwoToOne,
    /// Under --together another group of files gets the name before the extension.
    StemTaken,
    NoFreeNumber,
    /// An entry that keeps together with this one cannot get its name.
    CompanionRefused,
    /// The name has a lone surrogate that the old name did not have.
    NewLoneSurrogate,
    DotName,
    ForbiddenCharacter,
    TooLong,
    ReservedWord,
    TrailingDotOrBlank,
    /// A folder that would stand in itself.
    InsideItself,
    /// Who has the name was to get another one, but cannot.
    PlaceKept,
    /// A folder that it moves into cannot be created: who has the name was to get another one, but cannot.
    FolderKept,
    /// Another entry's name is taken, which stops all.
    Stopped
};

/// A few words for people; empty for Reason::None.
[[nodiscard]] std::u16string_view WordsFor(Reason reason);
/// What is wrong with the name on Windows; empty for NameFault::None.
[[nodiscard]] std::u16string_view WarningFor(VyrHostPlatform::NameFault fault);

struct Decision
{
    /// The new name; for an entry that is not renamed, the one that it would have had. Empty when there is none.
    Model::InternedName name;
    /// The folder that the name is in.
    std::uint32_t folder = 0;
    Model::Status status = Model::Status::Done;
    Reason reason = Reason::None;
    /// What is wrong with the new name on Windows, on a system that allows it.
    VyrHostPlatform::NameFault warning = VyrHostPlatform::NameFault::None;
    /// The dates that rules with a choice took for it.
    Model::DateSourceSet datesTaken = {};

    void Refuse(Reason why)
    {
        status = Model::Status::Refused;
        reason = why;
    }
    [[nodiscard]] bool IsRename() const { return status == Model::Status::Done || status == Model::Status::Numbered; }
};

/// What there is to say beyond the reason why an entry does not get a name, by the place of the entry in its list.
using Causes = std::unordered_map<std::uint32_t, CString>;

/// The results of a preview, or of the batch that was made of it.
class RenameResults final : public Model::Results
{
public:
    /// @param list  what is decided about; must outlive the results.
    /// @param causes  what there is to say beyond the reasons, by entry.
    RenameResults(const Model::EntryList& list, std::vector<Decision> decisions, Causes causes);

    [[nodiscard]] std::size_t Count() const override { return m_decisions.size(); }
    [[nodiscard]] Model::Result At(std::size_t index) const override;

    /// What the batch made of an entry that was to be renamed.
    void Set(std::uint32_t entry, const Model::Outcome& outcome);

private:
    [[nodiscard]] std::uint32_t CauseOf(std::uint32_t entry) const;

    const Model::EntryList& m_list;
    std::vector<Decision> m_decisions;
    Causes m_causes;
};

} // namespace VyrHost::Rename
