/// @file
/// The folder in which the journals of all batches stand, one file each.
#pragma once

#include <VyrHost/batch/FileOperations.h>
#include <VyrHost/batch/JournalText.h>

#include <VyrHostPlatform/DurableFile.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string_view>
#include <vector>

namespace VyrHost::Batch {

/// How far the work on a batch has come. It is the ending of the journal's file name, so that it changes in one step.
enum class BatchPhase : std::uint8_t
{
    /// It is being applied, or that was cut off.
    Applying,
    Applied,
    /// It is being undone, or that was cut off.
    Undoing,
    Undone
};

/// Whether the work on a batch has ended.
[[nodiscard]] bool IsEnded(BatchPhase phase);

struct JournalFile
{
    std::uint32_t number = 0;
    BatchPhase phase = BatchPhase::Applied;
    /// The number of the last undo of the batch, by which it is redone; 0 before the first. It stands in the file's
    /// name, too.
    std::uint32_t undo = 0;
    CString path;
};

/// How long journals are kept once the work on their batches has ended.
struct JournalKeeping
{
    /// The latest batches, at most this many.
    std::size_t batches = 200;
    /// Days since the last work on the batch.
    std::int64_t days = 90;
};

/// Called while another program holds the lock: waits, and tells whether to try again.
using LockWait = std::function<bool()>;

/// The identities of the folder at `path` and of the folders and links that its path leads through, as it is written
/// and with its links followed.
[[nodiscard]] std::vector<VyrPlatform::FileIdentity> IdentitiesOnPath(const CString& path);

class JournalFolder
{
public:
    /// The folder at `path`; Lock makes it when it is not there.
    JournalFolder(FileOperations& files, const CString& path, const JournalKeeping& keeping = {});

    /// Takes the lock that one program has while it works on a batch, for as long as this object lives. While another
    /// program has it, tries again as long as `wait` says so; without `wait` it tries once.
    /// @return why that is not possible, for people; empty when it is held.
    [[nodiscard]] CString Lock(const LockWait& wait = {});
    /// Whether another program holds the lock.
    [[nodiscard]] bool IsLockedByAnother() const;

    /// Why the entry `name` must not be renamed; empty for all but the lock, the journals, and the folders and links on
    /// the way to them. (Without those the batches would not be found again, or the lock would not keep others away.)
    [[nodiscard]] std::u16string_view ReasonToStay(std::u16string_view name, const VyrPlatform::FileState& state) const;
    /// Whether ReasonToStay might give a reason: then `state` has to be looked at.
    [[nodiscard]] static bool MayHaveToStay(std::u16string_view name, VyrPlatform::FileSystem::Kind kind);
    /// The journals by rising numbers.
    [[nodiscard]] std::vector<JournalFile> List() const;
    /// The journal of a batch that is being worked on, or was when that was cut off.
    [[nodiscard]] std::optional<JournalFile> FindOpen() const;
    /// The text of a journal; nothing, with `error` set, when it cannot be read.
    [[nodiscard]] std::optional<std::string> Read(const JournalFile& file, std::uint32_t& error) const;
    /// The first part of it, as far as its heading reaches.
    [[nodiscard]] std::optional<std::string> ReadBeginning(const JournalFile& file, std::uint32_t& error) const;

    /// Its checkpoints, as FindCheckpoints gives them: read from its end on, as far back as they reach. Empty when it
    /// has none, or cannot be read.
    [[nodiscard]] std::string ReadCheckpoints(const JournalFile& file) const;

    // Under the lock.

    /// Gives `journal` the next number, and returns once it is safely on the disk: then the work may begin.
    /// Removes the journals that are no longer kept, but never that of a batch whose work has not ended.
    /// @return the system's error code, 0 when it is there.
    [[nodiscard]] std::uint32_t Begin(Journal& journal, JournalFile& file);
    /// Appends to a journal.
    [[nodiscard]] std::uint32_t Append(const JournalFile& file, std::string_view text);
    /// The next number for a batch or an undo.
    [[nodiscard]] std::uint32_t NextNumber() const;
    /// Changes to another phase, and writes `file.undo` into the file's name.
    [[nodiscard]] std::uint32_t SetPhase(JournalFile& file, BatchPhase phase);
    /// Waits until the phases are on the disk.
    [[nodiscard]] std::uint32_t Flush();
    /// Gives a journal another name, under which it is kept and counts as no batch until it has its old name again. Its
    /// number is not given again.
    /// @return the system's error code, 0 when `file.path` is its new path.
    [[nodiscard]] std::uint32_t Abandon(JournalFile& file);
    /// Removes the journal of a batch of which nothing was done.
    [[nodiscard]] std::uint32_t Remove(const JournalFile& file);

private:
    [[nodiscard]] CString PathOf(const CString& name) const;
    void RemoveOld();
    /// The identities of the folders and links that its path leads through, and of the folder itself.
    [[nodiscard]] const std::vector<VyrPlatform::FileIdentity>& PathIdentities() const;

    FileOperations& m_files;
    CString m_path;
    JournalKeeping m_keeping;
    std::unique_ptr<VyrHostPlatform::FileLock> m_lock;
    /// Once asked for.
    mutable std::optional<std::vector<VyrPlatform::FileIdentity>> m_pathIdentities;
};

} // namespace VyrHost::Batch
