/// @file
/// The journal of a batch as text: what was to be done, and afterwards how far it came.
///
/// The text is UTF-8, a line for each record, its fields separated by tabs:
///
///     vyr-journal  2
///     batch        number  token  started  folders  entries  steps  first path  its new path  check
///     folder       parent  n(ew) or o(ld)  name
///     entry        kind  device  number  size  modified  links  folder  name  new folder  new name  itself  waits for
///     steps        m(ake), a(side) or r(ename) with the number of the folder or entry, in order;
///                  r3-7 stands for r3, r4 and so on to r7
///     end          check
///     mark         f(orward) or b(ackward)  e(nded) or s(topped)  entries that stand at their old paths
///                  entries under temporary names  folders that the batch has made  check
///
/// Numbers are decimal; folders and entries are numbered from 0 in the order of their lines, "-" stands for none. A
/// check is the CRC-32, in eight hexadecimal digits, of all the text before its tab; of a checkpoint, of its own line
/// alone, started from the check of "end". A checkpoint is appended, behind an empty line, whenever work on the batch
/// has ended; the last whole one counts.
#pragma once

#include <VyrHost/model/RenamePlan.h>

#include <VyrHostPlatform/DurableFile.h>
#include <VyrPlatform/files/FileIdentity.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VyrHost::Batch {

/// What is known of a batch before it is begun.
struct JournalHeading
{
    std::uint32_t number = 0;
    /// By chance, for the temporary names of the batch.
    std::uint64_t token = 0;
    /// Local time as yyyy/MM/dd HH:mm:ss.
    CString started;
    std::size_t entries = 0;
    CString firstFrom;
    CString firstTo;
};

/// How far a batch came.
struct Checkpoint
{
    /// The work that ended was an undo.
    bool isBackward = false;
    /// It ended because it was asked to.
    bool wasStopped = false;
    /// In rising order.
    std::vector<Model::PlanIndex> entriesBefore;
    std::vector<Model::PlanIndex> entriesTemporary;
    std::vector<Model::PlanIndex> foldersMade;
};

/// What a checkpoint says, in numbers.
struct CheckpointOutline
{
    bool isBackward = false;
    bool wasStopped = false;
    std::size_t entriesBefore = 0;
    std::size_t entriesTemporary = 0;
};

struct Journal
{
    JournalHeading heading;
    Model::RenamePlan plan;
    /// For each entry what stood at its old path before the batch; Missing where nothing did.
    std::vector<VyrPlatform::FileState> states;
    std::optional<Checkpoint> checkpoint;
    /// The check of all lines up to "end"; checkpoints start from it.
    std::uint32_t check = 0;
};

/// Gives `use` the text of a batch that is about to begin, piece by piece: `journal` without its checkpoint and check.
/// @return the check.
std::uint32_t WriteJournal(const Journal& journal, const VyrHostPlatform::DurableFile::TakePiece& use);
/// What is appended to the text with the check `check`.
[[nodiscard]] std::string WriteCheckpoint(const Checkpoint& checkpoint, std::uint32_t check);

/// Reads a journal that may be anything: what it gives is a plan that can be worked with, every index in it in range,
/// every name a single part of a path.
/// @return nothing, with `problem` saying why and where, when it is damaged.
[[nodiscard]] std::optional<Journal> ReadJournal(std::string_view text, CString& problem);
/// Whether the first part of a journal reaches to the end of the heading.
[[nodiscard]] bool HasHeading(std::string_view text);
/// The heading alone, from the first part of a journal.
[[nodiscard]] std::optional<JournalHeading> ReadHeading(std::string_view text, CString& problem);

/// The checkpoints of a journal, with the line "end" before them.
/// @param tail  the last part of a journal, from anywhere on.
/// @return empty when `tail` does not reach back to them.
[[nodiscard]] std::string_view FindCheckpoints(std::string_view tail);
/// The last whole one of `checkpoints`, as FindCheckpoints gives them.
/// @param entries  how many the batch has.
/// @return nothing when there is none.
[[nodiscard]] std::optional<CheckpointOutline> ReadLastCheckpoint(std::string_view checkpoints, std::size_t entries);

} // namespace VyrHost::Batch
