/// @file
/// Decisions about entries, and the results made from them.
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
    /// There is no such entry.
    NoSuchEntry,
    /// The entry's folder, or its destination folder, cannot be read.
    FolderNotRead,
    NoDate,
    /// Its shifted date would be out of range.
    DateOutOfRange,
    /// The picture whose date or camera is needed cannot be read; the cause says why.
    PictureNotRead,
    /// A token of a template has no value for it; the cause names the token.
    NoValue,
    /// The rules give the destination folder a name that is invalid on every system.
    NamelessFolder,
    /// The destination folder cannot be created: its name is invalid on this system, or taken.
    BadFolder,
    /// The destination folder is on another file system.
    OtherFileSystem,
    /// The user may not change the names in its folder, or in its destination folder; the cause says why.
    FolderLocked,
    /// Its folder is sticky: only the owner of an entry may rename it.
    NotOwnEntry,
    /// The entry is needed where it is; the cause says for what.
    MustStay,
    /// A rule inserts or deletes past the end of the name; the cause gives its length.
    BeyondName,
    /// A pattern takes too many steps for the name; the cause says which limit it reached.
    PatternGaveUp,
    /// The content of the file, which is needed, cannot be read; the cause says why.
    ContentNotRead,
    /// The content of the file is of an unknown kind.
    UnknownContent,
    EmptyName,
    /// An entry that the batch does not rename has the name.
    TargetExists,
    /// Another entry of the list gets the name.
    TwoToOne,
    /// Under --together another group of files gets the name before the extension.
    StemTaken,
    NoFreeNumber,
    /// Another entry of its group cannot get its name.
    CompanionRefused,
    /// The name has a lone surrogate that the old name did not have.
    NewLoneSurrogate,
    DotName,
    ForbiddenCharacter,
    TooLong,
    ReservedWord,
    TrailingDotOrBlank,
    /// A folder would end up inside itself.
    InsideItself,
    /// The entry that has the name was to get another one, but cannot.
    PlaceKept,
    /// A destination folder cannot be created: the entry that has its name was to get another one, but cannot.
    FolderKept,
    /// Another entry's name is taken, which stops the whole call.
    Stopped
};

/// The reason in words; empty for Reason::None.
[[nodiscard]] std::u16string_view WordsFor(Reason reason);
/// The fault of a name on Windows in words; empty for NameFault::None.
[[nodiscard]] std::u16string_view WarningFor(VyrHostPlatform::NameFault fault);

struct Decision
{
    /// The new name; for an entry that is not renamed, the name that it would have got. Empty when there is none.
    Model::InternedName name;
    /// The folder of the name.
    std::uint32_t folder = 0;
    Model::Status status = Model::Status::Done;
    Reason reason = Reason::None;
    /// The fault of the new name on Windows, if this system allows it.
    VyrHostPlatform::NameFault warning = VyrHostPlatform::NameFault::None;
    /// The dates that rules with a choice used.
    Model::DateSourceSet datesTaken = {};

    void Refuse(Reason why)
    {
        status = Model::Status::Refused;
        reason = why;
    }
    [[nodiscard]] bool IsRename() const { return status == Model::Status::Done || status == Model::Status::Numbered; }
};

/// Further explanations why entries do not get a name, by the index of the entry in its list.
using Causes = std::unordered_map<std::uint32_t, CString>;

/// The results of a preview, or of its batch.
class RenameResults final : public Model::Results
{
public:
    /// @param list  the entries; must outlive the results.
    /// @param causes  further explanations, by entry.
    RenameResults(const Model::EntryList& list, std::vector<Decision> decisions, Causes causes);

    [[nodiscard]] std::size_t Count() const override { return m_decisions.size(); }
    [[nodiscard]] Model::Result At(std::size_t index) const override;

    /// Sets the outcome of a rename.
    void Set(std::uint32_t entry, const Model::Outcome& outcome);

private:
    [[nodiscard]] std::uint32_t CauseOf(std::uint32_t entry) const;

    const Model::EntryList& m_list;
    std::vector<Decision> m_decisions;
    Causes m_causes;
};

} // namespace VyrHost::Rename
