/// @file
/// The folders of one call: their targets, checked together, then copied or moved one after the other.
#pragma once

#include <VyrHost/foldercopy/FolderSnapshot.h>
#include <VyrHost/foldercopy/TargetCheck.h>
#include <VyrHost/foldercopy/Transfer.h>
#include <VyrHost/model/Result.h>
#include <VyrPlatform/text/CString.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace VyrHost::FolderCopy {

/// A folder to be copied or moved.
struct TransferTask
{
    /// Full path of the folder.
    CString source;
    /// Its new full path, including its name.
    CString target;
    /// Both as the user wrote them.
    CString shownSource;
    CString shownTarget;
};

/// The tasks for the folders `sources`. Where `destination` is an existing folder, they go into it under their own
/// names; otherwise it is the new path of a single source, and its parent must exist.
///
/// Folders are compared by identity, so links and different spellings of a path make no difference.
/// @throws UsageError when a source is not a folder, is named twice, or is inside another one; when `destination`
/// cannot be a folder, is inside a source, or would put a source onto itself or onto one of its parents; when two
/// sources would have the same new path.
[[nodiscard]] std::vector<TransferTask> MakeTransferTasks(const std::vector<CString>& sources,
                                                          const CString& destination);

/// The state of a tree. Failed: nothing of it was done, since its root could not be created.
struct TransferReport
{
    TransferTask task;
    Model::Status status = Model::Status::Done;
    Model::TreeSize size;
    TransferProblems problems;
};

/// The results of a call: one for each tree, followed by one for each problem in it, by path.
class TransferResults final : public Model::Results
{
public:
    TransferResults(const std::vector<TransferReport>& reports, TransferAction action);

    [[nodiscard]] std::size_t Count() const override { return m_rows.size(); }
    [[nodiscard]] Model::Result At(std::size_t index) const override { return m_rows[index].result; }

private:
    /// A result, and the texts of its paths.
    struct Row
    {
        std::array<CString, 4> texts;
        Model::Result result;
    };
    /// The result of the task, or of the entry at `path` in its folder; valid until the next one is added.
    Model::Result& Add(const TransferTask& task, const CString& path, TransferAction action);

    std::vector<Row> m_rows;
};

/// Called while trees are copied or moved.
class TransferWatch
{
public:
    TransferWatch() = default;
    TransferWatch(const TransferWatch&) = delete;
    TransferWatch& operator=(const TransferWatch&) = delete;
    virtual ~TransferWatch() = default;

    /// Whether to begin no other tree.
    [[nodiscard]] virtual bool IsStopAsked() = 0;
    /// The tree of `task` begins; it will create `newFolders` folders.
    virtual void Begin(const TransferTask& task, std::size_t newFolders) = 0;
    /// Called now and then with the number of folders created so far.
    virtual void Show(std::size_t made) = 0;
    /// The current tree is finished.
    virtual void End() = 0;
};

class TransferBatch
{
public:
    /// Takes a snapshot of each tree and finds its conflicts. Creates no folders except those of an allowed trial.
    /// @throws UsageError where MakeTransferTasks does.
    TransferBatch(const std::vector<CString>& sources, const CString& destination, TransferAction action, Trial trial);

    /// Whether a tree has a conflict: then none may be changed.
    [[nodiscard]] bool IsRefused() const;
    /// Copies or moves the trees, unless they are refused. A stop does not end a tree that has begun.
    void Apply(TransferWatch& watch);

    /// The state of each tree; before Apply, the expected one.
    [[nodiscard]] const std::vector<TransferReport>& Reports() const { return m_reports; }
    /// Whether a tree was not begun because of a stop.
    [[nodiscard]] bool WasStopped() const { return m_wasStopped; }
    /// The reason why creation times were not set, see CreatedFoldersResult.
    [[nodiscard]] std::uint32_t CreationError() const { return m_creationError; }

private:
    void Check(TransferTask task, Trial trial);
    void StopAll();
    void PredictLittleSpace();
    void Transfer(std::size_t index, TransferWatch& watch);

    const TransferAction m_action;
    std::vector<TransferReport> m_reports;
    /// For each report: the tree, and the number of folders to be created.
    std::vector<FolderSnapshot> m_trees;
    std::vector<std::size_t> m_newFolders;
    std::uint32_t m_creationError = 0;
    bool m_wasStopped = false;
};

} // namespace VyrHost::FolderCopy
