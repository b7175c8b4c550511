// Carries out a call of "vyr copy" or "vyr move": takes the trees down, checks, transfers, compares, and shows.
#include <VyrHost/cli/TreeRequest.h>

#include <VyrHost/cli/ExitCode.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/files/ErrorText.h>
#include <VyrHost/output/Progress.h>
#include <VyrHost/output/SafeText.h>
#include <VyrHost/output/TreeOutput.h>
#include <VyrHost/trees/MadeFolders.h>
#include <VyrHost/trees/TreeClashes.h>
#include <VyrHost/trees/TreeFinish.h>
#include <VyrPlatform/Console.h>
#include <VyrPlatform/Interrupt.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace VyrHost {

namespace {

class TreeRun
{
public:
    explicit TreeRun(const TreeRequest& request) : m_request(request) {}

    int Run()
    {
        OfferRecovery();
        for (TreeTask& task : MakeTreeTasks(m_request.sources, m_request.destination))
            Check(std::move(task));
        const bool isRefused = std::any_of(m_reports.begin(), m_reports.end(), [](const TreeReport& report) {
            return report.status == TreeStatus::Refused;
        });
        if (isRefused)
            StopAll();
        else if (m_request.apply)
            Apply();
        return Show(isRefused);
    }

private:
    void Check(TreeTask task)
    {
        Tree tree = ScanTree(task.source);
        TargetCheck check = CheckTarget(tree, task.target, m_request.apply ? Trial::Allowed : Trial::No);
        TreeReport report;
        report.size = SizeOf(tree);
        report.problems = std::move(check.clashes);
        if (!report.problems.empty())
            report.status = TreeStatus::Refused;
        else
            Foresee(report, tree);
        report.task = std::move(task);
        m_reports.push_back(std::move(report));
        m_trees.push_back(std::move(tree));
        m_newFolders.push_back(check.newFolders);
    }

    void Foresee(TreeReport& report, const Tree& tree) const
    {
        report.problems = ForeseeProblems(tree, m_request.action);
        if (!report.problems.empty())
            report.status = TreeStatus::Incomplete;
    }

    /// One clash leaves every folder where it is.
    void StopAll()
    {
        for (TreeReport& report : m_reports)
            if (report.status != TreeStatus::Refused) {
                report.status = TreeStatus::NotReached;
                report.problems.clear();
            }
    }

    void Apply()
    {
        VyrPlatform::Interrupt::Catch();
        for (std::size_t index = 0; index < m_reports.size(); ++index) {
            TreeReport& report = m_reports[index];
            report.problems.clear();
            m_wasInterrupted = VyrPlatform::Interrupt::WasAsked();
            if (m_wasInterrupted)
                report.status = TreeStatus::NotReached;
            else
                Transfer(report, m_trees[index], m_newFolders[index]);
        }
    }

    void Transfer(TreeReport& report, const Tree& tree, std::size_t newFolders)
    {
        const CString& target = report.task.target;
        Progress progress(m_request.action == TreeAction::Copy ? "copying folders" : "moving folders", newFolders,
                          IsSilent());
        bool isTold = false;
        const auto show = [&](std::size_t made) {
            if (VyrPlatform::Interrupt::WasAsked() && !std::exchange(isTold, true)) {
                progress.Close();
                Complain("interrupted; '" + SafeText(report.task.shownSource) +
                         "' is brought to its end first (a second interrupt ends that, too)");
            }
            progress.Show(made);
        };
        TreeRecords records;
        const std::uint32_t error = TransferTree(tree, target, m_request.action, records, show);
        progress.Close();
        if (error != 0) {
            report.status = TreeStatus::Failed;
            report.problems.push_back({CString(), TreeFault::System, error});
            return;
        }
        report.problems = FinishTree(tree, target, m_request.action, records);
        MadeFoldersResult made = CompleteFolders(tree, records);
        std::move(made.problems.begin(), made.problems.end(), std::back_inserter(report.problems));
        report.status = report.problems.empty() ? TreeStatus::Done : TreeStatus::Incomplete;
        if (made.creationError != 0)
            m_creationError = made.creationError;
    }

    int Show(bool isRefused)
    {
        OutputBuffer output;
        const std::string summary = SummaryOf(m_reports, m_request.action);
        if (m_request.json) {
            WriteTreeJson(output, m_reports, m_request.action);
            VyrPlatform::Console::Write(VyrPlatform::Console::Stream::Error, summary);
        } else if (m_request.quiet) {
            for (const std::string& line : ProblemLines(m_reports, m_request.action))
                Complain(line);
        } else {
            WriteTreeTable(output, m_reports, m_request.action);
            output << summary << Ending(isRefused);
        }
        output.Flush();
        if (m_creationError != 0)
            Complain("warning: folders do not keep their creation times there: " +
                     SafeText(ErrorText(m_creationError)));
        if (output.HasFailed())
            return ExitCode::Output;
        if (m_wasInterrupted)
            return ExitCode::Interrupted;
        const bool isWhole = std::all_of(m_reports.begin(), m_reports.end(),
                                         [](const TreeReport& report) { return report.status == TreeStatus::Done; });
        return isWhole ? ExitCode::Success : ExitCode::Partly;
    }

    [[nodiscard]] const char* Ending(bool isRefused) const
    {
        if (!m_request.apply)
            return "This is a preview: nothing was changed.\n";
        if (!isRefused)
            return "";
        return m_request.action == TreeAction::Copy ? "Nothing was copied.\n" : "Nothing was moved.\n";
    }

    [[nodiscard]] bool IsSilent() const { return m_request.quiet || m_request.json; }

    const TreeRequest& m_request;
    std::vector<TreeReport> m_reports;
    /// For each report: the tree, and how many folders it will make.
    std::vector<Tree> m_trees;
    std::vector<std::size_t> m_newFolders;
    std::uint32_t m_creationError = 0;
    bool m_wasInterrupted = false;
};

} // namespace

int RunTrees(const TreeRequest& request)
{
    return TreeRun(request).Run();
}

} // namespace VyrHost
