/// @file
/// The folder with the journals of all batches, one file each.
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

/// The phase of the work on a batch. The ending of the journal's file name says it, so that it changes in one step.
enum class BatchPhase : std::uint8_t
{
    /// It is being applied, or this was cut off.
    Applying,
    Applied,
    /// It is being undone, or this was cut off.
    Undoing,
    Undone
};

/// Whether the work on a batch has ended.
[[nodiscard]] bool IsEnded(BatchPhase phase);

struct JournalFile
{
    std::uint32_t number = 0;
    BatchPhase phase = BatchPhase::Applied;
    /// The number of the last undo of the batch, which is used to redo it; 0 before the first. The file's name has it,
    /// too.
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

/// The identities of the folder at `path`, and of all folders and links on the way to it: of the path as written, and
/// of the path with its links resolved.
[[nodiscard]] std::vector<VyrPlatform::FileIdentity> IdentitiesOnPath(const CString& path);

class JournalFolder
{
public:
    /// The folder at `path`; Lock creates it if it is missing.
    JournalFolder(FileOperations& files, const CString& path, const JournalKeeping& keeping = {});

    /// Takes the lock, which only one program can hold, until this object is destroyed. While another program holds it,
    /// tries again as long as `wait` returns true; without `wait` it tries once.
    /// @return a message that says why it failed; empty on success.
    [[nodiscard]] CString Lock(const LockWait& wait = {});
    /// Whether another program holds the lock.
    [[nodiscard]] bool IsLockedByAnother() const;

    /// The reason why the entry `name` must not be renamed: it is the lock, a journal, or a folder or link on the way
    /// to them. Empty for all others. (Otherwise batches would not be found again, or the lock would not keep others
    /// away.)
    [[nodiscard]] std::u16string_view ReasonToStay(std::u16string_view name, const VyrPlatform::FileState& state) const;
    /// Whether ReasonToStay might return a reason; only then is the entry's state needed.
    [[nodiscard]] static bool MayHaveToStay(std::u16string_view name, VyrPlatform::FileSystem::Kind kind);
    /// The journals in ascending order of their numbers.
    [[nodiscard]] std::vector<JournalFile> List() const;
    /// The journal of the batch that is being worked on, or whose work was cut off.
    [[nodiscard]] std::optional<JournalFile> FindOpen() const;
    /// The text of a journal; nothing, with `error` set, when it cannot be read.
    [[nodiscard]] std::optional<std::string> Read(const JournalFile& file, std::uint32_t& error) const;
    /// The first part of it, including its heading.
    [[nodiscard]] std::optional<std::string> ReadBeginning(const JournalFile& file, std::uint32_t& error) const;

    /// Its checkpoints, as from FindCheckpoints, read from its end. Empty when it has none or cannot be read.
    [[nodiscard]] std::string ReadCheckpoints(const JournalFile& file) const;

    // Under the lock.

    /// Gives `journal` the next number and flushes it to the disk: then the work may begin. Removes old journals, but
    /// never that of a batch whose work has not ended.
    /// @return the system's error code, 0 when it is there.
    [[nodiscard]] std::uint32_t Begin(Journal& journal, JournalFile& file);
    /// Appends to a journal.
    [[nodiscard]] std::uint32_t Append(const JournalFile& file, std::string_view text);
    /// The next number for a batch or an undo.
    [[nodiscard]] std::uint32_t NextNumber() const;
    /// Changes the phase, and writes `file.undo` into the file's name.
    [[nodiscard]] std::uint32_t SetPhase(JournalFile& file, BatchPhase phase);
    /// Flushes the phases to the disk.
    [[nodiscard]] std::uint32_t Flush();
    /// Renames a journal, so that it is kept but does not count as a batch until it gets its old name back. Its number
    /// is not reused.
    /// @return 0, with the new path in `file.path`, else the system's error code.
    [[nodiscard]] std::uint32_t Abandon(JournalFile& file);
    /// Removes the journal of a batch that did nothing.
    [[nodiscard]] std::uint32_t Remove(const JournalFile& file);

private:
    [[nodiscard]] CString PathOf(const CString& name) const;
    void RemoveOld();
    /// IdentitiesOnPath of this folder.
    [[nodiscard]] const std::vector<VyrPlatform::FileIdentity>& PathIdentities() const;

    FileOperations& m_files;
    CString m_path;
    JournalKeeping m_keeping;
    std::unique_ptr<VyrHostPlatform::FileLock> m_lock;
    /// Set on first use.
    mutable std::optional<std::vector<VyrPlatform::FileIdentity>> m_pathIdentities;
};

} // namespace VyrHost::Batch
