// Carries out a call of "vyr copy" or "vyr move", and shows what becomes of the folders.
#include <VyrHost/cli/TransferRequest.h>

#include <VyrHost/cli/ExitCode.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/Report.h>
#include <VyrHost/foldercopy/TransferBatch.h>
#include <VyrHost/text/ErrorText.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/Progress.h>
#include <VyrHostPlatform/Interrupt.h>

#include <optional>
#include <utility>

namespace VyrHost::Cli {

namespace {

/// Shows how far the work is, and looks for an interrupt.
class TerminalWatch final : public FolderCopy::TransferWatch
{
public:
    TerminalWatch(const char* what, bool isSilent) : m_what(what), m_isSilent(isSilent) {}

    bool IsStopAsked() override { return VyrHostPlatform::Interrupt::WasAsked(); }

    void Begin(const FolderCopy::TransferTask& task, std::size_t newFolders) override
    {
        m_source = task.shownSource;
        m_progress.emplace(m_what, newFolders, m_isSilent);
    }
    void Show(std::size_t made) override
    {
        if (IsStopAsked() && !std::exchange(m_isTold, true)) {
            m_progress->Close();
            Complain("interrupted; '" + Text::SafeText(m_source) +
                     "' is brought to its end first (a second interrupt ends that, too)");
        }
        m_progress->Show(made);
    }
    void End() override { m_progress.reset(); }

private:
    const char* m_what;
    const bool m_isSilent;
    CString m_source;
    std::optional<Ui::Progress> m_progress;
    bool m_isTold = false;
};

class TransferRun
{
public:
    explicit TransferRun(const TransferRequest& request)
        : m_request(request), m_batch(request.sources, request.destination, request.action,
                                      request.apply ? FolderCopy::Trial::Allowed : FolderCopy::Trial::No)
    {}

    int Run()
    {
        if (m_request.apply && !m_batch.IsRefused())
            Apply();
        const int code = WriteReport(FolderCopy::TransferResults(m_batch.Reports(), m_request.action),
                                     {m_request.json, m_request.quiet, !m_request.apply}, {}, Ending());
        if (m_batch.CreationError() != 0)
            Complain("warning: folders do not keep their creation times there: " +
                     Text::SafeText(Text::ErrorText(m_batch.CreationError())));
        return m_batch.WasStopped() ? ExitCode::Interrupted : code;
    }

private:
    void Apply()
    {
        VyrHostPlatform::Interrupt::Catch();
        TerminalWatch watch(m_request.action == FolderCopy::TransferAction::Copy ? "copying folders" : "moving folders",
                            m_request.quiet || m_request.json);
        m_batch.Apply(watch);
    }

    [[nodiscard]] const char* Ending() const
    {
        if (!m_request.apply)
            return "This is a preview: nothing was changed.\n";
        if (m_batch.WasStopped())
            return "Interrupted: folders that were not reached are as they were.\n";
        if (!m_batch.IsRefused())
            return "";
        return m_request.action == FolderCopy::TransferAction::Copy ? "Nothing was copied.\n" : "Nothing was moved.\n";
    }

    const TransferRequest& m_request;
    FolderCopy::TransferBatch m_batch;
};

} // namespace

int RunTransfer(const TransferRequest& request)
{
    OfferRecovery();
    return TransferRun(request).Run();
}

} // namespace VyrHost::Cli
