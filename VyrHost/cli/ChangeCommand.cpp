#include <VyrHost/cli/ChangeCommand.h>

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/cli/FileRecords.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/cli/RecordOptions.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/ui/RecordTable.h>
#include <VyrHost/ui/Terminal.h>
#include <VyrHostPlatform/Interrupt.h>
#include <VyrPlatform/text/Encoding.h>

#include <CLI/CLI.hpp>

#include <cstddef>
#include <utility>
#include <vector>

namespace VyrHost::Cli {

namespace {

constexpr const char* listGroup = "How the list is shown where nothing is changed";

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
{
    if (!m_columns.empty())
        AddListOptions();
}

void ChangeCommand::AddListOptions()
{
    AddText(m_command, "--columns", m_chosen, "LIST",
            ("The columns, separated by commas, or all; they are " + Ui::NamesOf(Ui::ColumnsOf(FileFields()))).c_str(),
            listGroup);
    AddFlag(m_command, "--csv", m_csv, "Write a table for spreadsheets (CSV)", listGroup);
}

int ChangeCommand::Run() const
{
    const ReportStyle style = m_run.Read();
    const std::unique_ptr<const Metadata::ChangeRule> rule = ReadRule();
    if (!m_sources.NamesAny())
        throw Text::UsageError("no file is named; -r . takes those in this folder and below");
    if (!rule)
        return ShowFiles(style);
    RefuseListOptions();
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

void ChangeCommand::RefuseListOptions() const
{
    if (m_chosen || m_csv)
        throw Text::UsageError(std::string(m_csv ? "--csv" : "--columns") +
                               " is for lists; nothing is listed where files are changed");
}

int ChangeCommand::ShowFiles(const ReportStyle& style) const
{
    constexpr ExclusivePair exclusive[] = {{"--csv", "--json"}};
    CheckOptionPairs(m_command, exclusive);
    if (!style.isPreview)
        throw Text::UsageError("--apply changes nothing without an option that says what is to be changed");
    std::vector<std::size_t> shown = Ui::FindColumns(
        Ui::ColumnsOf(FileFields()), m_chosen ? FromParser(*m_chosen) : CString(m_columns), "--columns");
    const FileRecords files(m_sources.Read(), m_order.Read());
    Ui::RecordTable table = files.Table();
    table.shown = std::move(shown);
    return WriteList(table, files.Total(), {m_csv, style.json, style.quiet}, files.Code());
}

} // namespace VyrHost::Cli
