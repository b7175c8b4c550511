// Takes snapshots, checks, transfers and compares.
#include <VyrHost/foldercopy/TransferBatch.h>

#include <VyrHost/foldercopy/Transfer.h>
#include <VyrHostPlatform/FreeSpace.h>
#include <VyrLibraryUtils/FileUtils.h>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <utility>

namespace VyrHost::FolderCopy {

TransferResults::TransferResults(const std::vector<TransferReport>& reports, TransferAction action)
{
    for (const TransferReport& report : reports) {
        Model::Result& whole = Add(report.task, {}, action);
        whole.status = report.status;
        whole.size = report.size;
        TransferProblems problems = report.problems;
        std::stable_sort(problems.begin(), problems.end(),
                         [](const TransferProblem& left, const TransferProblem& right) {
                             return left.path.View() < right.path.View();
                         });
        for (const TransferProblem& problem : problems) {
            Model::Result& part = Add(report.task, problem.path, action);
            part.isPart = true;
            // A refused tree has only conflicts, which are found before anything is changed.
            part.status = report.status == Model::Status::Refused ? Model::Status::Refused : Model::Status::Failed;
            part.reason = ReasonOf(problem);
        }
    }
}

Model::Result& TransferResults::Add(const TransferTask& task, const CString& path, TransferAction action)
{
    const auto below = [&path](const CString& folder) {
        return path.IsEmpty() ? folder : VyrLibraryUtils::FileUtils::GetCombinePath(folder, path);
    };
    Row& row = m_rows.emplace_back();
    row.texts = {below(task.source), below(task.shownSource), below(task.target), below(task.shownTarget)};
    row.result.kind = action == TransferAction::Copy ? "copy" : "move";
    row.result.from = {row.texts[0], row.texts[1], {}};
    row.result.to = {row.texts[2], row.texts[3], {}};
    return row.result;
}

TransferBatch::TransferBatch(const std::vector<CString>& sources, const CString& destination, TransferAction action,
                             Trial trial)
    : m_action(action)
{
    for (TransferTask& task : MakeTransferTasks(sources, destination))
        Check(std::move(task), trial);
    if (IsRefused())
        StopAll();
    else
        PredictLittleSpace();
}

bool TransferBatch::IsRefused() const
{
    return std::any_of(m_reports.begin(), m_reports.end(),
                       [](const TransferReport& report) { return report.status == Model::Status::Refused; });
}

void TransferBatch::Check(TransferTask task, Trial trial)
{
    FolderSnapshot tree = TakeSnapshot(task.source);
    TargetCheck check = CheckTarget(tree, task.target, trial);
    if (m_action == TransferAction::Move) {
        TransferProblems staying = CheckLeaving(tree);
        std::move(staying.begin(), staying.end(), std::back_inserter(check.conflicts));
    }
    TransferReport report;
    report.size = SizeOf(tree);
    if (!check.conflicts.empty()) {
        report.status = Model::Status::Refused;
        report.problems = std::move(check.conflicts);
    } else {
        report.problems = PredictProblems(tree, task.target, m_action);
        report.status = report.problems.empty() ? Model::Status::Done : Model::Status::Incomplete;
    }
    report.task = std::move(task);
    m_reports.push_back(std::move(report));
    m_trees.push_back(std::move(tree));
    m_newFolders.push_back(check.newFolders);
}

/// With one conflict no folder is copied or moved.
void TransferBatch::StopAll()
{
    for (TransferReport& report : m_reports)
        if (report.status != Model::Status::Refused) {
            report.status = Model::Status::NotReached;
            report.problems.clear();
        }
}

/// All trees go into one folder.
void TransferBatch::PredictLittleSpace()
{
    std::uint64_t needed = 0;
    for (std::size_t index = 0; index < m_reports.size(); ++index) {
        TransferReport& report = m_reports[index];
        if (!CopiesFiles(m_trees[index], report.task.target, m_action))
            continue;
        needed += static_cast<std::uint64_t>(report.size.bytes);
        const CString folder = VyrLibraryUtils::FileUtils::GetSplitDirPath(report.task.target);
        const auto space = VyrHostPlatform::GetSpaceForCopies(report.task.source, folder);
        if (!space || needed <= *space)
            continue;
        report.problems.push_back({CString(), TransferFault::LittleSpace, 0});
        report.status = Model::Status::Incomplete;
    }
}

void TransferBatch::Apply(TransferWatch& watch)
{
    if (IsRefused())
        return;
    for (std::size_t index = 0; index < m_reports.size(); ++index) {
        m_reports[index].problems.clear();
        m_wasStopped = watch.IsStopAsked();
        if (m_wasStopped)
            m_reports[index].status = Model::Status::NotReached;
        else
            Transfer(index, watch);
    }
}

void TransferBatch::Transfer(std::size_t index, TransferWatch& watch)
{
    TransferReport& report = m_reports[index];
    const FolderSnapshot& tree = m_trees[index];
    TransferRecords records;
    watch.Begin(report.task, m_newFolders[index]);
    const std::uint32_t error =
        TransferFolder(tree, report.task.target, m_action, records, [&watch](std::size_t made) { watch.Show(made); });
    watch.End();
    if (error != 0) {
        report.status = Model::Status::Failed;
        report.problems.push_back({CString(), TransferFault::System, error});
        return;
    }
    report.problems = FinishTransfer(tree, report.task.target, m_action, records);
    CreatedFoldersResult made = CompleteFolders(tree, records);
    std::move(made.problems.begin(), made.problems.end(), std::back_inserter(report.problems));
    report.status = report.problems.empty() ? Model::Status::Done : Model::Status::Incomplete;
    if (made.creationError != 0)
        m_creationError = made.creationError;
}

} // namespace VyrHost::FolderCopy
