/// @file
/// The journal of a batch as text: what is to be done, and afterwards how much was done.
///
/// The text is UTF-8, a line for each record, its fields separated by tabs:
///
///     vyr-journal  3
///     batch        number  token  started  command  folder  folders  renames  changes  steps  first path
///                  its new path or value  check
///     folder       parent  n(ew) or o(ld)  name
///     rename       kind  device  number  size  modified  links  folder  name  new folder  new name  itself  waits for
///     KIND         folder  name  before  after
///     steps        m(ake), a(side) or r(ename) with the number of the folder or entry, in order;
///                  r3-7 stands for r3, r4 and so on to r7
///     end          check
///     mark         f(orward) or b(ackward)  e(nded) or s(topped)  entries that are at their old paths
///                  entries under temporary names  folders that the batch has made  changes that are not done  check
///     protected    for each change whose file was protected against writing when work on the batch began, and may lose
///                  that for the time of the work: its number  the state to restore  and at last the check
///
/// A change other than a rename has the name of its kind as its first word, and a before and after that only its kind
/// can read (model/Change.h). A mark lacks its last field if all changes are done.
///
/// Version 2 had "entry" for "rename", no changes, and in its heading neither the command nor the folder nor the number
/// of changes. It is still read, and marks are appended to it.
///
/// Numbers are decimal. Folders, entries and changes are numbered from 0 in the order of their lines; "-" stands for
/// none. A check is the CRC-32, in eight hexadecimal digits, of all the text before its tab; of a line after "end", of
/// that line alone, started from the check of "end". Such lines are appended, each after an empty one: a checkpoint
/// ("mark") whenever work on the batch has ended, of which the last complete one counts; and "protected" before an
/// undo, a redo or a recovery, which counts until the next checkpoint.
#pragma once

#include <VyrHost/model/Change.h>
#include <VyrHost/model/RenamePlan.h>
#include <VyrHostPlatform/DurableFile.h>
#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VyrHost::Batch {

/// What is known about a batch before it begins.
struct JournalHeading
{
    std::uint32_t number = 0;
    /// A random number in the temporary names of the batch.
    std::uint64_t token = 0;
    /// Local time as yyyy/MM/dd HH:mm:ss.
    CString started;
    /// The command that made it, such as "rename"; empty in a journal of version 2.
    CString command;
    /// The folder that contains all of it, before the batch and after it; empty if there is none, and in a journal of
    /// version 2.
    CString folder;
    /// Renames, and changes of other kinds.
    std::size_t entries = 0;
    CString firstFrom;
    CString firstTo;
};

/// How far the work on a batch got.
struct Checkpoint
{
    /// The work that ended was an undo.
    bool isBackward = false;
    /// The user stopped it.
    bool wasStopped = false;
    /// In ascending order.
    std::vector<Model::PlanIndex> entriesBefore;
    std::vector<Model::PlanIndex> entriesTemporary;
    std::vector<Model::PlanIndex> foldersMade;
    std::vector<Model::PlanIndex> changesBefore;
};

/// A checkpoint in numbers.
struct CheckpointOutline
{
    bool isBackward = false;
    bool wasStopped = false;
    /// Includes the changes that are not done.
    std::size_t entriesBefore = 0;
    std::size_t entriesTemporary = 0;
};

/// A change other than a rename, and the place of its file before the batch.
struct PlannedChange
{
    Model::Place place;
    std::shared_ptr<const Model::Change> change;
};

/// A file that was read-only when the work on the batch began, and may be writable during the work.
struct ProtectedFile
{
    Model::PlanIndex change = 0;
    /// Its attributes in the form of ExactState.
    CString state;
};

struct Journal
{
    JournalHeading heading;
    Model::RenamePlan plan;
    /// For each entry, the state at its old path before the batch; Missing if there was nothing.
    std::vector<VyrPlatform::FileState> states;
    /// The changes of other kinds.
    std::vector<PlannedChange> changes;
    /// The last one.
    std::optional<Checkpoint> checkpoint;
    /// The last one that is not from an undo: what the batch did, and what a redo repeats.
    std::optional<Checkpoint> applied;
    /// Of the work since the last checkpoint.
    std::vector<ProtectedFile> protectedFiles;
    /// The checksum of all lines up to "end"; those of checkpoints start from it.
    std::uint32_t check = 0;
};

/// Passes the text of a batch that is about to begin to `use`, piece by piece: `journal` without its checkpoint and
/// checksum.
/// @return the checksum.
std::uint32_t WriteJournal(const Journal& journal, const VyrHostPlatform::DurableFile::TakePiece& use);
/// The text to append to a journal with the checksum `check`.
[[nodiscard]] std::string WriteCheckpoint(const Checkpoint& checkpoint, std::uint32_t check);
[[nodiscard]] std::string WriteProtected(const std::vector<ProtectedFile>& files, std::uint32_t check);

/// Parses a journal of any content. The result is valid: every index is in range, every name is a single part of a
/// path.
/// @param kinds  the known kinds of change other than renames.
/// @return nothing when it is damaged, or has an unknown version or kind of change; `problem` then says why and where.
[[nodiscard]] std::optional<Journal> ReadJournal(std::string_view text, CString& problem,
                                                 const Model::ChangeKinds& kinds = {});
/// Whether the first part of a journal includes the whole heading.
[[nodiscard]] bool HasHeading(std::string_view text);
/// The heading alone, from the first part of a journal.
[[nodiscard]] std::optional<JournalHeading> ReadHeading(std::string_view text, CString& problem);

/// The checkpoints of a journal, with the line "end" before them.
/// @param tail  the last part of a journal, from anywhere on.
/// @return empty when `tail` does not reach back to them.
[[nodiscard]] std::string_view FindCheckpoints(std::string_view tail);
/// The last complete one of `checkpoints`, a result of FindCheckpoints.
/// @param entries  the number of entries of the batch.
/// @return nothing when there is none.
[[nodiscard]] std::optional<CheckpointOutline> ReadLastCheckpoint(std::string_view checkpoints, std::size_t entries);

} // namespace VyrHost::Batch
