// Changes files in place, or shows them.
#include <VyrHost/cli/ChangeCommand.h>

#include <VyrHost/cli/FileRecords.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/ui/RecordWriters.h>
#include <VyrHost/ui/Terminal.h>
#include <VyrHostPlatform/Console.h>
#include <VyrHostPlatform/Interrupt.h>
#include <VyrPlatform/text/Encoding.h>

#include <CLI/CLI.hpp>

#include <cstddef>
#include <utility>
#include <vector>

namespace VyrHost::Cli {

namespace {

std::vector<Metadata::Proposal> Propose(const Metadata::ChangeRule& rule, const Model::EntryList& list,
                                        const ReportStyle& style)
{
    Ui::Progress progress("looking", list.entries.size(), style.IsSilent());
    return Metadata::ProposeChanges(rule, list, [&progress](std::size_t done) { progress.Show(done); });
}

} // namespace

ChangeCommand::ChangeCommand(CLI::App& command, const std::string& verb, std::string_view kind,
                             std::u16string_view columns)
    : Command(command), m_sources(command, verb), m_order(command, "Order of the list"),
      m_run(command, {"Change the files; without it the result is only shown", "Write one JSON object for each entry",
                      "Show only what is not changed as asked"}),
      m_kind(kind), m_columns(columns)
{}

int ChangeCommand::Run() const
{
    const ReportStyle style = m_run.Read();
    const std::unique_ptr<const Metadata::ChangeRule> rule = ReadRule();
    if (!m_sources.NamesAny())
        throw Text::UsageError("no file is named");
    if (!rule)
        return ShowFiles(style);
    if (style.isPreview)
        OfferRecovery();
    return RunChanges(m_command.get_name(), m_kind, *rule, TakeEntries(m_sources.Read(), m_order.Read()), style);
}

int RunChanges(const std::string& command, std::string_view kind, const Metadata::ChangeRule& rule,
               const Collect::CollectedEntries& collected, const ReportStyle& style)
{
    const Model::EntryList& list = collected.list;
    std::vector<Metadata::Proposal> proposals = Propose(rule, list, style);
    std::vector<std::size_t> entries;
    Batch::NewBatch batch = Metadata::MakeBatch(VyrPlatform::Encoding::FromUtf8(command), list, proposals, entries);
    Metadata::ChangeResults results(kind, list, std::move(proposals));
    const auto apply = [&batch](Batch::Batches& batches, const Batch::RenameReport& report) {
        return batches.Apply([&batch] { return std::move(batch); }, report, VyrHostPlatform::Interrupt::WasAsked);
    };
    const auto note = [&](Model::PlanIndex change, const Model::Outcome& outcome) {
        results.Set(entries[change], outcome);
    };
    return ApplyAndReport({"changing", "changed", entries.size(), false, apply, note}, results, style, collected);
}

int ChangeCommand::ShowFiles(const ReportStyle& style) const
{
    if (!style.isPreview)
        throw Text::UsageError("--apply changes nothing without an option that says what is to be changed");
    const FileRecords files(m_sources.Read());
    Ui::RecordTable table = files.Table();
    table.shown = Ui::FindColumns(table.columns, m_columns, "columns");
    Ui::OutputBuffer output;
    if (style.json)
        Ui::WriteRecordJson(output, table);
    else
        Ui::WriteRecords(output, table, Ui::StyleOfOutput(), !style.quiet);
    const std::string total = files.Total() + "\n";
    if (style.json)
        VyrHostPlatform::Console::Write(VyrHostPlatform::Console::Stream::Error, total);
    else if (!style.quiet)
        output << total;
    return Finish(output, files.Code());
}

} // namespace VyrHost::Cli
