// Carries out a call of "vyr rename": gathers, names, shows, and applies.
#include <VyrHost/cli/RenameRequest.h>

#include <VyrHost/batch/Batches.h>
#include <VyrHost/cli/BatchReport.h>
#include <VyrHost/cli/EditNames.h>
#include <VyrHost/cli/ExitCode.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/rename/GivenNames.h>
#include <VyrHost/rename/Pairs.h>
#include <VyrHost/rename/PictureAccess.h>
#include <VyrHost/text/ErrorText.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/text/StandardInput.h>
#include <VyrHost/text/UsageError.h>
#include <VyrHost/ui/JsonLines.h>
#include <VyrHost/ui/OutcomeRows.h>
#include <VyrHost/ui/Progress.h>
#include <VyrHost/ui/Summary.h>
#include <VyrHost/ui/Table.h>
#include <VyrHost/ui/Words.h>
#include <VyrHostPlatform/Console.h>
#include <VyrHostPlatform/Interrupt.h>
#include <VyrHostPlatform/ReadToEnd.h>
#include <VyrPlatform/files/FileSystem.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace VyrHost::Cli {

namespace {

std::string ReadPairsFile(const CString& path)
{
    if (path != u"-") {
        std::uint32_t error = 0;
        std::optional<std::string> bytes = VyrHostPlatform::ReadToEnd(path, error);
        if (!bytes)
            throw Text::UsageError("cannot read '" + Text::SafeText(path) +
                                   "': " + Text::SafeText(Text::ErrorText(error)));
        return std::move(*bytes);
    }
    std::string bytes;
    Text::ReadStandardInput([&bytes](std::string_view piece) { bytes += piece; });
    return bytes;
}

std::vector<Rename::NamePair> ReadPairs(const CString& path)
{
    std::vector<Rename::NamePair> pairs = Rename::ParsePairs(ReadPairsFile(path));
    if (pairs.empty())
        throw Text::UsageError("there are no pairs of names in " +
                               (path == u"-" ? std::string("the standard input") : "'" + Text::SafeText(path) + "'"));
    return pairs;
}

class RenameRun
{
public:
    explicit RenameRun(RenameRequest& request) : m_request(request) {}

    int Run()
    {
        if (!m_request.apply)
            OfferRecovery();
        TakeEntries();
        const Rename::Groups groups =
            m_request.together ? Rename::Groups::ByStem(List()) : Rename::Groups::OfOne(List());
        Decide(groups);
        if (m_request.edit)
            Edit();
        const bool isStopped =
            m_request.conflicts.mode == Rename::OnConflict::Refuse && Rename::StopAtConflict(m_preview);
        if (isStopped)
            Complain("a name is taken, and --on-conflict=fail was asked for: nothing is renamed");
        m_outcome.decisions = std::move(m_preview.decisions);
        NoteCauses();
        const int applied = m_request.apply && !isStopped ? Apply() : ExitCode::Success;
        if (applied == ExitCode::Blocked)
            return applied;
        return std::max({applied, Show(isStopped)});
    }

private:
    void TakeEntries()
    {
        if (m_request.pairs) {
            TakePairs(ReadPairs(*m_request.pairs));
        } else {
            m_collected = Collect::CollectEntries(m_request.sources);
            m_names = std::make_unique<Rename::RuleNames>(m_request.rules, m_request.counting);
        }
        for (const CString& problem : m_collected.problems)
            Complain(Text::SafeText(problem));
        Collect::Sort(List(), m_request.order);
    }

    void TakePairs(std::vector<Rename::NamePair> pairs)
    {
        std::unordered_map<std::uint32_t, CString> names;
        Collect::SourceSettings sources;
        sources.areNames = true;
        for (Rename::NamePair& pair : pairs) {
            names.emplace(static_cast<std::uint32_t>(names.size()), std::move(pair.to));
            sources.paths.push_back(std::move(pair.from));
        }
        m_collected = Collect::CollectEntries(sources);
        m_names = std::make_unique<Rename::GivenNames>(std::move(names));
    }

    void Decide(const Rename::Groups& groups)
    {
        Ui::Progress progress("naming", groups.Count(), IsSilent());
        m_preview = Rename::MakePreview(List(), groups, *m_names, m_request.conflicts,
                                        [&progress](std::size_t named) { progress.Show(named); });
    }

    /// What the system says about what could not be read.
    void NoteCauses()
    {
        for (std::uint32_t entry = 0; entry < m_outcome.decisions.size(); ++entry) {
            const Model::Decision& decision = m_outcome.decisions[entry];
            if (decision.reason == Model::Reason::FolderNotRead)
                m_outcome.causes.emplace(entry, Text::ErrorText(List().folders[decision.folder].error));
            else if (decision.reason == Model::Reason::PictureNotRead)
                m_outcome.causes.emplace(
                    entry, Text::ErrorText(Rename::PictureReadError(List().PathOf(List().entries[entry]))));
        }
    }

    /// Has the user look through the names, and decides again for what comes back.
    void Edit()
    {
        std::vector<CString> names;
        for (std::size_t entry = 0; entry < m_preview.decisions.size(); ++entry)
            names.push_back(NameForEditing(List().entries[entry], m_preview.decisions[entry]));
        m_names = std::make_unique<Rename::GivenNames>(EditNames(names));
        List().ForgetHolders();
        Decide(Rename::Groups::OfOne(List()));
    }

    /// With its folder as it is shown: a bare name would leave the entry where it is.
    [[nodiscard]] CString NameForEditing(const Model::Entry& entry, const Model::Decision& decision)
    {
        if (!decision.IsRename())
            return CString::Join({FolderForEditing(entry.folder), entry.name});
        const CString folder = FolderForEditing(decision.folder);
        const bool goesToCurrentFolder = folder.IsEmpty() && decision.folder != entry.folder;
        return CString::Join({goesToCurrentFolder ? std::u16string_view(u"./") : folder.View(), decision.name});
    }

    /// With slashes on every system: a backslash would begin an escape.
    [[nodiscard]] CString FolderForEditing(std::uint32_t folder)
    {
        std::u16string text(List().folders[folder].shown.View());
        std::replace(text.begin(), text.end(), VyrPlatform::FileSystem::Separator(), u'/');
        return CString(std::u16string_view(text));
    }

    /// Renames, and writes what became of each entry into the outcome.
    int Apply()
    {
        const std::size_t count = m_preview.entries.size();
        if (count == 0)
            return ExitCode::Success;
        Batch::Batches batches(WaitTenSeconds());
        if (const auto cutOff = batches.FindCutOff()) {
            Complain(CutOffNotice(*cutOff) + "; nothing was done");
            return ExitCode::Blocked;
        }
        VyrHostPlatform::Interrupt::Catch();
        Ui::Progress progress("renaming", count, IsSilent());
        std::size_t done = 0;
        const Batch::RenameReport report = [&](Model::PlanIndex entry, const Model::RenameResult& result) {
            Note(m_preview.entries[entry], result);
            progress.Show(++done);
        };
        m_summary = batches.Apply(std::move(m_preview.plan), report, VyrHostPlatform::Interrupt::WasAsked);
        progress.Close();
        return JudgeSummary(m_summary);
    }

    void Note(std::uint32_t entry, const Model::RenameResult& result)
    {
        Model::Decision& decision = m_outcome.decisions[entry];
        if (result.outcome == Model::RenameOutcome::Done)
            return;
        decision.status = Ui::StatusOf(result.outcome);
        decision.reason = Model::Reason::Applying;
        if (!result.reason.IsEmpty())
            m_outcome.causes.insert_or_assign(entry, result.reason);
    }

    /// Writes the outcome; what is not renamed decides the exit code.
    int Show(bool isStopped)
    {
        Ui::OutputBuffer output;
        const Model::Tally tally(m_outcome.decisions);
        if (m_request.json) {
            Ui::WriteJsonLines(output, List(), m_outcome);
            VyrHostPlatform::Console::Write(VyrHostPlatform::Console::Stream::Error, Ui::SummaryOf(tally));
        } else if (m_request.quiet) {
            ShowProblems();
            if (m_summary.wasStopped)
                Complain("interrupted: " + Ui::SummaryOf(tally) + Ending(isStopped));
        } else {
            const auto rowOf = [this](std::size_t index) {
                return Ui::RowOf(List(), m_outcome, index);
            };
            Ui::WriteTable(output, m_outcome.decisions.size(), rowOf, Ui::StyleOfOutput());
            output << Ui::SummaryOf(tally) << Ending(isStopped);
        }
        const bool isWhole =
            tally[Model::Status::Refused] + tally[Model::Status::Failed] + tally[Model::Status::NotReached] == 0;
        return Finish(output, isWhole && m_collected.problems.empty() ? ExitCode::Success : ExitCode::Partly);
    }

    /// Entries that were not reached are only counted: they may be very many, and nothing is wrong with them.
    void ShowProblems() const
    {
        for (std::size_t index = 0; index < m_outcome.decisions.size(); ++index) {
            const Model::Decision& decision = m_outcome.decisions[index];
            if (decision.IsRename() || decision.status == Model::Status::Unchanged ||
                decision.status == Model::Status::NotReached)
                continue;
            const Model::Entry& entry = m_collected.list.entries[index];
            const std::string reason = Ui::ReasonFor(m_outcome, index);
            Complain("'" + Text::SafeText(CString::Join({m_collected.list.folders[entry.folder].shown, entry.name})) +
                     "' " + std::string(Ui::WordFor(decision.status)) + (reason.empty() ? "" : ": " + reason));
        }
    }

    [[nodiscard]] std::string Ending(bool isStopped) const
    {
        if (m_summary.number != 0)
            return "This was batch " + std::to_string(m_summary.number) + "; \"vyr undo\" undoes it.\n";
        if (m_request.apply || isStopped)
            return "Nothing was renamed.\n";
        return "This is a preview: nothing was changed.\n";
    }

    [[nodiscard]] bool IsSilent() const { return m_request.quiet || m_request.json; }
    [[nodiscard]] Model::EntryList& List() { return m_collected.list; }

    RenameRequest& m_request;
    Collect::CollectedEntries m_collected;
    std::unique_ptr<Rename::NameSource> m_names;
    Rename::Preview m_preview;
    Model::Outcome m_outcome;
    Batch::BatchSummary m_summary;
};

} // namespace

int RunRename(RenameRequest& request)
{
    return RenameRun(request).Run();
}

} // namespace VyrHost::Cli
