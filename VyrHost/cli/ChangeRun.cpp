// Carries out a call that changes files in place: gathers, proposes, shows, and applies.
#include <VyrHost/cli/ChangeRun.h>

#include <VyrHost/cli/BatchRun.h>
#include <VyrHost/cli/FileRecords.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/metadata/Changes.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/RecordWriters.h>
#include <VyrHost/ui/ResultOutput.h>
#include <VyrHost/ui/Terminal.h>
#include <VyrHostPlatform/Console.h>
#include <VyrHostPlatform/Interrupt.h>
#include <VyrPlatform/text/Encoding.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace VyrHost::Cli {

namespace {

class ChangeRun
{
public:
    ChangeRun(const ChangeRequest& request, const Metadata::ChangeRule& rule, const ChangeOptions& options)
        : m_request(request), m_rule(rule), m_style{options.IsJson(), options.IsQuiet(), !options.IsApplied()}
    {}

    int Run()
    {
        if (m_style.isPreview)
            OfferRecovery();
        TakeEntries();
        const int applied = m_style.isPreview ? ExitCode::success : Apply();
        return applied == ExitCode::blocked ? applied : std::max(applied, Show());
    }

private:
    void TakeEntries()
    {
        m_collected = Collect::CollectEntries(m_request.sources);
        for (const CString& problem : m_collected.problems)
            Complain(Text::SafeText(problem));
        Model::EntryList& list = m_collected.list;
        Collect::Sort(list, m_request.order);
        Ui::Progress progress("looking", list.entries.size(), m_style.IsSilent());
        std::vector<Metadata::Proposal> proposals =
            Metadata::ProposeChanges(m_rule, list, [&progress](std::size_t done) { progress.Show(done); });
        m_batch = Metadata::MakeBatch(VyrPlatform::Encoding::FromUtf8(m_request.command), list, proposals, m_entries);
        m_results.emplace(m_request.kind, list, std::move(proposals));
    }

    int Apply()
    {
        if (m_entries.empty())
            return ExitCode::success;
        Batch::Batches batches = OpenBatches(WaitTenSeconds());
        if (const auto cutOff = batches.FindCutOff()) {
            Complain(CutOffNotice(*cutOff) + "; nothing was done");
            return ExitCode::blocked;
        }
        VyrHostPlatform::Interrupt::Catch();
        Ui::Progress progress("changing", m_entries.size(), m_style.IsSilent());
        std::size_t done = 0;
        const Batch::RenameReport report = [&](Model::PlanIndex change, const Model::Outcome& outcome) {
            m_results->Set(m_entries[change], outcome);
            progress.Show(++done);
        };
        m_summary = batches.Apply([this] { return std::move(m_batch); }, report, VyrHostPlatform::Interrupt::WasAsked);
        progress.Close();
        return JudgeSummary(m_summary);
    }

    int Show()
    {
        m_style.remark = LeftOutNotice(m_collected);
        const int code = WriteReport(*m_results, m_style, {}, Ending());
        if (m_style.quiet && m_summary.wasStopped)
            Complain("interrupted: " + Ui::SummaryOf(Model::Tally(*m_results)) + Ending());
        return std::max(code, m_collected.problems.empty() ? ExitCode::success : ExitCode::partly);
    }

    [[nodiscard]] std::string Ending() const
    {
        if (m_summary.number != 0)
            return "This was batch " + std::to_string(m_summary.number) + "; \"vyr undo\" undoes it.\n";
        return m_style.isPreview ? "This is a preview: nothing was changed.\n" : "Nothing was changed.\n";
    }

    const ChangeRequest& m_request;
    const Metadata::ChangeRule& m_rule;
    ReportStyle m_style;
    Collect::CollectedEntries m_collected;
    Batch::NewBatch m_batch;
    /// The entry of each change of the batch.
    std::vector<std::size_t> m_entries;
    std::optional<Metadata::ChangeResults> m_results;
    Batch::BatchSummary m_summary;
};

} // namespace

ChangeOptions::ChangeOptions(CLI::App& command) : m_command(command)
{
    constexpr const char* group = "What is done and shown";
    AddFlag(command, "--apply", m_apply, "Change the files; without it the result is only shown", group);
    AddFlag(command, "--json", m_json, "Write one JSON object for each entry", group);
    AddFlag(command, "-q,--quiet", m_quiet, "Show only what is not changed as asked", group);
}

void ChangeOptions::Check() const
{
    constexpr ExclusivePair exclusive[] = {{"--json", "--quiet"}};
    CheckOptionPairs(m_command, exclusive);
}

int RunChanges(const ChangeRequest& request, const Metadata::ChangeRule& rule, const ChangeOptions& options)
{
    return ChangeRun(request, rule, options).Run();
}

int ShowFiles(const Collect::SourceSettings& sources, std::u16string_view columns, const ChangeOptions& options)
{
    if (options.IsApplied())
        throw Text::UsageError("--apply changes nothing without an option that says what is to be changed");
    const FileRecords files(sources);
    Ui::RecordTable table = files.Table();
    table.shown = Ui::FindColumns(table.columns, columns, "columns");
    Ui::OutputBuffer output;
    if (options.IsJson())
        Ui::WriteRecordJson(output, table);
    else
        Ui::WriteRecords(output, table, Ui::StyleOfOutput(), !options.IsQuiet());
    const std::string total = files.Total() + "\n";
    if (options.IsJson())
        VyrHostPlatform::Console::Write(VyrHostPlatform::Console::Stream::Error, total);
    else if (!options.IsQuiet())
        output << total;
    return Finish(output, files.Code());
}

} // namespace VyrHost::Cli
