/// @file
/// The journal of a batch as text: what was to be done, and afterwards how far it came.
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
///     mark         f(orward) or b(ackward)  e(nded) or s(topped)  entries that stand at their old paths
///                  entries under temporary names  folders that the batch has made  changes that are not done  check
///     protected    for each change whose file was protected against writing when work on the batch began, and may lose
///                  that for the time of the work: its number  the state to restore  and at last the check
///
/// A change other than a rename has the name of its kind as its first word, and a before and after that only its kind
/// can read (model/Change.h). The last field of a mark is missing where all changes are done.
///
/// Version 2 had "entry" for "rename", no changes, and in its heading neither the command nor the folder nor the number
/// of changes. It is still read, and marks are appended to it.
///
/// Numbers are decimal; folders, entries and changes are numbered from 0 in the order of their lines, "-" stands for
/// none. A check is the CRC-32, in eight hexadecimal digits, of all the text before its tab; of a line behind "end", of
/// that line alone, started from the check of "end". Such lines are appended, each behind an empty one: a checkpoint
/// ("mark") whenever work on the batch has ended, of which the last whole one counts, and "protected" before an undo, a
/// redo or a recovery, which counts until the next checkpoint.
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

/// What is known of a batch before it is begun.
struct JournalHeading
{
    std::uint32_t number = 0;
    /// A random number for the temporary names of the batch.
    std::uint64_t token = 0;
    /// Local time as yyyy/MM/dd HH:mm:ss.
    CString started;
    /// The command that made it, such as "rename"; empty in a journal of version 2.
    CString command;
    /// The folder that all of it lies in, before the batch and after it; empty where there is none, and in a journal of
    /// version 2.
    CString folder;
    /// Renames, and changes of other kinds.
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
    std::vector<Model::PlanIndex> changesBefore;
};

/// What a checkpoint says, in numbers.
struct CheckpointOutline
{
    bool isBackward = false;
    bool wasStopped = false;
    /// With the changes that are not done.
    std::size_t entriesBefore = 0;
    std::size_t entriesTemporary = 0;
};

/// A change other than a rename, and the file it is done to: its place before the batch.
struct PlannedChange
{
    Model::Place place;
    std::shared_ptr<const Model::Change> change;
};

/// A file that was protected against writing when work on the batch began, and may lose that while the work lasts.
struct ProtectedFile
{
    Model::PlanIndex change = 0;
    /// What ExactState restores as its attributes.
    CString state;
};

struct Journal
{
    JournalHeading heading;
    Model::RenamePlan plan;
    /// For each entry what stood at its old path before the batch; Missing where nothing did.
    std::vector<VyrPlatform::FileState> states;
    /// The changes of other kinds.
    std::vector<PlannedChange> changes;
    /// The last one.
    std::optional<Checkpoint> checkpoint;
    /// The last one that is not of an undo: what the batch did. A redo does that again.
    std::optional<Checkpoint> applied;
    /// Of the work since the last checkpoint.
    std::vector<ProtectedFile> protectedFiles;
    /// The check of all lines up to "end"; checkpoints start from it.
    std::uint32_t check = 0;
};

/// Gives `use` the text of a batch that is about to begin, piece by piece: `journal` without its checkpoint and check.
/// @return the check.
std::uint32_t WriteJournal(const Journal& journal, const VyrHostPlatform::DurableFile::TakePiece& use);
/// What is appended to the text with the check `check`.
[[nodiscard]] std::string WriteCheckpoint(const Checkpoint& checkpoint, std::uint32_t check);
[[nodiscard]] std::string WriteProtected(const std::vector<ProtectedFile>& files, std::uint32_t check);

/// Reads a journal that may be anything: what it gives is a plan that can be worked with, every index in it in range,
/// every name a single part of a path.
/// @param kinds  the kinds of change that are known besides the rename.
/// @return nothing, with `problem` saying why and where, when it is damaged, or of a version or with a kind of change
/// that is not known.
[[nodiscard]] std::optional<Journal> ReadJournal(std::string_view text, CString& problem,
                                                 const Model::ChangeKinds& kinds = {});
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
