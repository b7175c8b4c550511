/// @file
/// The folders of one call: where each goes, checked together, then copied or moved one after the other.
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

/// A folder that is to be copied or moved.
struct TransferTask
{
    /// Full path of the folder.
    CString source;
    /// Full path that it gets, its name included.
    CString target;
    /// Both as the user wrote them.
    CString shownSource;
    CString shownTarget;
};

/// Where the folders `sources` go. Into the folder `destination` under their own names where that is there; else the
/// one source gets `destination` for its new path, whose folder must be there.
///
/// Folders are compared by identity, so that links and other spellings of a path make no difference.
/// @throws UsageError when a source is no folder, is named twice, or stands inside another one; when `destination` is
/// no folder that it could be, stands inside a source, or makes a source go onto itself or onto a folder that it stands
/// in; when two sources would get one path.
[[nodiscard]] std::vector<TransferTask> MakeTransferTasks(const std::vector<CString>& sources,
                                                          const CString& destination);

/// What becomes of a tree. Failed: nothing of it, since its root could not be made.
struct TransferReport
{
    TransferTask task;
    Model::Status status = Model::Status::Done;
    Model::TreeSize size;
    TransferProblems problems;
};

/// The results of a call: one for each tree, and behind it, as its parts, one for each problem, by path.
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
    /// The result of the task, or of the entry at `path` in its folder; good until the next one is added.
    Model::Result& Add(const TransferTask& task, const CString& path, TransferAction action);

    std::vector<Row> m_rows;
};

/// Looks on while trees are copied or moved.
class TransferWatch
{
public:
    TransferWatch() = default;
    TransferWatch(const TransferWatch&) = delete;
    TransferWatch& operator=(const TransferWatch&) = delete;
    virtual ~TransferWatch() = default;

    /// Whether to begin no further tree.
    [[nodiscard]] virtual bool IsStopAsked() = 0;
    /// The tree of `task` is begun, and will make `newFolders` folders.
    virtual void Begin(const TransferTask& task, std::size_t newFolders) = 0;
    /// Now and then: how many folders it has made.
    virtual void Show(std::size_t made) = 0;
    /// It has come to its end.
    virtual void End() = 0;
};

class TransferBatch
{
public:
    /// Takes each tree down, and looks at what is in its way. Of the folders only those of an allowed trial are made.
    /// @throws UsageError where MakeTransferTasks does.
    TransferBatch(const std::vector<CString>& sources, const CString& destination, TransferAction action, Trial trial);

    /// Something is in the way of a tree: none is to be touched.
    [[nodiscard]] bool IsRefused() const;
    /// Copies or moves the trees, unless they are refused. A stop ends nothing that is begun.
    void Apply(TransferWatch& watch);

    /// What becomes of each tree; before Apply, what would.
    [[nodiscard]] const std::vector<TransferReport>& Reports() const { return m_reports; }
    /// Whether a tree was not begun since a stop was asked for.
    [[nodiscard]] bool WasStopped() const { return m_wasStopped; }
    /// Why creation times were not set, see CreatedFoldersResult.
    [[nodiscard]] std::uint32_t CreationError() const { return m_creationError; }

private:
    void Check(TransferTask task, Trial trial);
    void StopAll();
    void Transfer(std::size_t index, TransferWatch& watch);

    const TransferAction m_action;
    std::vector<TransferReport> m_reports;
    /// For each report: the tree, and how many folders it will make.
    std::vector<FolderSnapshot> m_trees;
    std::vector<std::size_t> m_newFolders;
    std::uint32_t m_creationError = 0;
    bool m_wasStopped = false;
};

} // namespace VyrHost::FolderCopy
