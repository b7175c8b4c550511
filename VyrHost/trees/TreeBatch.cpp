// Takes trees down, checks, transfers and compares them.
#include <VyrHost/trees/TreeBatch.h>

#include <VyrHost/trees/MadeFolders.h>
#include <VyrHost/trees/TreeFinish.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace VyrHost {

TreeBatch::TreeBatch(const std::vector<CString>& sources, const CString& destination, TreeAction action, Trial trial)
    : m_action(action)
{
    for (TreeTask& task : MakeTreeTasks(sources, destination))
        Check(std::move(task), trial);
    if (IsRefused())
        StopAll();
}

bool TreeBatch::IsRefused() const
{
    return std::any_of(m_reports.begin(), m_reports.end(),
                       [](const TreeReport& report) { return report.status == TreeStatus::Refused; });
}

void TreeBatch::Check(TreeTask task, Trial trial)
{
    Tree tree = ScanTree(task.source);
    TargetCheck check = CheckTarget(tree, task.target, trial);
    TreeReport report;
    report.size = SizeOf(tree);
    if (!check.clashes.empty()) {
        report.status = TreeStatus::Refused;
        report.problems = std::move(check.clashes);
    } else {
        report.problems = ForeseeProblems(tree, task.target, m_action);
        report.status = report.problems.empty() ? TreeStatus::Done : TreeStatus::Incomplete;
    }
    report.task = std::move(task);
    m_reports.push_back(std::move(report));
    m_trees.push_back(std::move(tree));
    m_newFolders.push_back(check.newFolders);
}

/// One clash leaves every folder where it is.
void TreeBatch::StopAll()
{
    for (TreeReport& report : m_reports)
        if (report.status != TreeStatus::Refused) {
            report.status = TreeStatus::NotReached;
            report.problems.clear();
        }
}

void TreeBatch::Apply(TreeWatch& watch)
{
    if (IsRefused())
        return;
    for (std::size_t index = 0; index < m_reports.size(); ++index) {
        m_reports[index].problems.clear();
        m_wasStopped = watch.IsStopAsked();
        if (m_wasStopped)
            m_reports[index].status = TreeStatus::NotReached;
        else
            Transfer(index, watch);
    }
}

void TreeBatch::Transfer(std::size_t index, TreeWatch& watch)
{
    TreeReport& report = m_reports[index];
    const Tree& tree = m_trees[index];
    TreeRecords records;
    watch.Begin(report.task, m_newFolders[index]);
    const std::uint32_t error =
        TransferTree(tree, report.task.target, m_action, records, [&watch](std::size_t made) { watch.Show(made); });
    watch.End();
    if (error != 0) {
        report.status = TreeStatus::Failed;
        report.problems.push_back({CString(), TreeFault::System, error});
        return;
    }
    report.problems = FinishTree(tree, report.task.target, m_action, records);
    MadeFoldersResult made = CompleteFolders(tree, records);
    std::move(made.problems.begin(), made.problems.end(), std::back_inserter(report.problems));
    report.status = report.problems.empty() ? TreeStatus::Done : TreeStatus::Incomplete;
    if (made.creationError != 0)
        m_creationError = made.creationError;
}

} // namespace VyrHost
