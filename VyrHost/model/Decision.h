/// @file
/// What a preview says of one entry.
#pragma once

#include <VyrHost/model/DateSource.h>
#include <VyrHost/model/NamePool.h>
#include <VyrHostPlatform/NameRules.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace VyrHost::Model {

enum class Status : std::uint8_t
{
    /// Gets the name that the rules made.
    Renamed,
    /// Gets that name with a number, since the name itself is taken.
    Numbered,
    /// The rules make the name that it has.
    Unchanged,
    /// Its new name is taken, and the user asked to leave such entries alone.
    Skipped,
    /// Cannot get its new name; the reason says why.
    Refused,
    /// Was to get its new name, but the system did not do it.
    Failed,
    /// Was to get its new name, but the work was ended before.
    NotReached
};

/// The number of statuses.
inline constexpr std::size_t StatusCount = static_cast<std::size_t>(Status::NotReached) + 1;

enum class Reason : std::uint8_t
{
    None,
    /// Nothing stands at the path.
    NoSuchEntry,
    /// The entry's folder, or the one that it would move into, cannot be read.
    FolderNotRead,
    NoDate,
    /// The picture whose date or camera was asked for cannot be read; the cause says why.
    PictureNotRead,
    /// The rules give a folder to move into no name that a folder can have on any system.
    NamelessFolder,
    /// A folder to move into cannot be made: its name is none for this system, or something else has it.
    BadFolder,
    /// The folder to move into is on another file system.
    OtherFileSystem,
    EmptyName,
    /// Something that the batch leaves in place has the name.
    TargetExists,
    /// Another entry of the list gets the name.
    TwoToOne,
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
    Stopped,
    /// What applying found; the cause says it.
    Applying
};

struct Decision
{
    /// The new name; for an entry that is not renamed, the one that it would have had. Empty when there is none.
    InternedName name;
    /// The folder that the name is in.
    std::uint32_t folder = 0;
    Status status = Status::Renamed;
    Reason reason = Reason::None;
    /// What the new name would be in trouble for on Windows, on a system that takes it.
    VyrHostPlatform::NameFault warning = VyrHostPlatform::NameFault::None;
    /// The dates that rules with a choice took for it.
    DateSourceSet datesTaken = {};

    void Refuse(Reason why)
    {
        status = Status::Refused;
        reason = why;
    }
    [[nodiscard]] bool IsRename() const { return status == Status::Renamed || status == Status::Numbered; }
};

/// A preview, or what became of it.
struct Outcome
{
    /// One for each entry of the list.
    std::vector<Decision> decisions;
    /// What there is to say beyond the reason, by entry.
    std::unordered_map<std::uint32_t, CString> causes;
};

} // namespace VyrHost::Model
