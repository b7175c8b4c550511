// Carries out a call of "vyr copy" or "vyr move", and shows what becomes of the folders.
#include <VyrHost/cli/TreeRequest.h>

#include <VyrHost/cli/ExitCode.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/files/ErrorText.h>
#include <VyrHost/output/Progress.h>
#include <VyrHost/output/SafeText.h>
#include <VyrHost/output/TreeOutput.h>
#include <VyrHost/trees/TreeBatch.h>
#include <VyrHostPlatform/Console.h>
#include <VyrHostPlatform/Interrupt.h>

#include <algorithm>
#include <optional>
#include <utility>

namespace VyrHost {

namespace {

/// Shows how far the work is, and looks for an interrupt.
class TerminalWatch final : public TreeWatch
{
public:
    TerminalWatch(const char* what, bool isSilent) : m_what(what), m_isSilent(isSilent) {}

    bool IsStopAsked() override { return VyrHostPlatform::Interrupt::WasAsked(); }

    void Begin(const TreeTask& task, std::size_t newFolders) override
    {
        m_source = task.shownSource;
        m_progress.emplace(m_what, newFolders, m_isSilent);
    }
    void Show(std::size_t made) override
    {
        if (IsStopAsked() && !std::exchange(m_isTold, true)) {
            m_progress->Close();
            Complain("interrupted; '" + SafeText(m_source) +
                     "' is brought to its end first (a second interrupt ends that, too)");
        }
        m_progress->Show(made);
    }
    void End() override { m_progress.reset(); }

private:
    const char* m_what;
    const bool m_isSilent;
    CString m_source;
    std::optional<Progress> m_progress;
    bool m_isTold = false;
};

class TreeRun
{
public:
    explicit TreeRun(const TreeRequest& request)
        : m_request(request),
          m_batch(request.sources, request.destination, request.action, request.apply ? Trial::Allowed : Trial::No)
    {}

    int Run()
    {
        if (m_request.apply && !m_batch.IsRefused())
            Apply();
        OutputBuffer output;
        Show(output);
        output.Flush();
        if (m_batch.CreationError() != 0)
            Complain("warning: folders do not keep their creation times there: " +
                     SafeText(ErrorText(m_batch.CreationError())));
        return output.HasFailed() ? ExitCode::Output : Judge();
    }

private:
    void Apply()
    {
        VyrHostPlatform::Interrupt::Catch();
        TerminalWatch watch(m_request.action == TreeAction::Copy ? "copying folders" : "moving folders",
                            m_request.quiet || m_request.json);
        m_batch.Apply(watch);
    }

    void Show(OutputBuffer& output) const
    {
        const std::string summary = SummaryOf(m_batch.Reports(), m_request.action);
        if (m_request.json) {
            WriteTreeJson(output, m_batch.Reports(), m_request.action);
            VyrHostPlatform::Console::Write(VyrHostPlatform::Console::Stream::Error, summary);
        } else if (m_request.quiet) {
            for (const std::string& line : ProblemLines(m_batch.Reports(), m_request.action))
                Complain(line);
        } else {
            WriteTreeTable(output, m_batch.Reports(), m_request.action);
            output << summary << Ending();
        }
    }

    [[nodiscard]] const char* Ending() const
    {
        if (!m_request.apply)
            return "This is a preview: nothing was changed.\n";
        if (m_batch.WasStopped())
            return "Interrupted: folders that were not reached are as they were.\n";
        if (!m_batch.IsRefused())
            return "";
        return m_request.action == TreeAction::Copy ? "Nothing was copied.\n" : "Nothing was moved.\n";
    }

    [[nodiscard]] int Judge() const
    {
        if (m_batch.WasStopped())
            return ExitCode::Interrupted;
        const bool isWhole = std::all_of(m_batch.Reports().begin(), m_batch.Reports().end(),
                                         [](const TreeReport& report) { return report.status == TreeStatus::Done; });
        return isWhole ? ExitCode::Success : ExitCode::Partly;
    }

    const TreeRequest& m_request;
    TreeBatch m_batch;
};

} // namespace

int RunTrees(const TreeRequest& request)
{
    OfferRecovery();
    return TreeRun(request).Run();
}

} // namespace VyrHost
