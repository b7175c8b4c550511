// Carries out a call of "vyr rename": gathers, names, shows, and applies.
#include <VyrHost/cli/RenameRequest.h>

#include <VyrHost/UsageError.h>
#include <VyrHost/apply/Batches.h>
#include <VyrHost/cli/BatchReport.h>
#include <VyrHost/cli/ExitCode.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/entries/EditedList.h>
#include <VyrHost/entries/Pairs.h>
#include <VyrHost/files/ErrorText.h>
#include <VyrHost/files/FileOperations.h>
#include <VyrHost/output/JsonLines.h>
#include <VyrHost/output/OutcomeRows.h>
#include <VyrHost/output/Progress.h>
#include <VyrHost/output/SafeText.h>
#include <VyrHost/output/Summary.h>
#include <VyrHost/output/Table.h>
#include <VyrHost/output/Words.h>
#include <VyrHost/plan/Planner.h>
#include <VyrHost/preview/GivenNames.h>
#include <VyrHost/preview/PlannedRenames.h>
#include <VyrHost/preview/SourceLooks.h>
#include <VyrHostPlatform/Console.h>
#include <VyrHostPlatform/Editor.h>
#include <VyrHostPlatform/Interrupt.h>
#include <VyrHostPlatform/ReadToEnd.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/process/Process.h>

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace VyrHost {

namespace {

std::string ReadPairsFile(const CString& path)
{
    if (path != u"-") {
        std::uint32_t error = 0;
        std::optional<std::string> bytes = VyrHostPlatform::ReadToEnd(path, error);
        if (!bytes)
            throw UsageError("cannot read '" + SafeText(path) + "': " + SafeText(ErrorText(error)));
        return std::move(*bytes);
    }
    std::string bytes;
    for (std::string piece = VyrHostPlatform::Console::ReadInput(); !piece.empty();
         piece = VyrHostPlatform::Console::ReadInput())
        bytes += piece;
    return bytes;
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
        const Groups groups = m_request.together ? Groups::ByStem(List()) : Groups::OfOne(List());
        Decide(groups, !m_request.edit);
        if (m_request.edit)
            Edit();
        const bool isStopped = m_request.conflicts.mode == OnConflict::Refuse && HasConflict();
        if (isStopped)
            StopAll();
        const int applied = m_request.apply && !isStopped ? Apply() : ExitCode::Success;
        if (applied == ExitCode::Blocked)
            return applied;
        return std::max({applied, Show(isStopped)});
    }

private:
    void TakeEntries()
    {
        if (m_request.pairs) {
            TakePairs(ParsePairs(ReadPairsFile(*m_request.pairs)));
        } else {
            m_gathered = Gather(m_request.sources);
            m_names = std::make_unique<RuleNames>(m_request.rules, m_request.counting);
        }
        for (const CString& problem : m_gathered.problems)
            Complain(SafeText(problem));
        Sort(List(), m_request.order);
    }

    void TakePairs(std::vector<NamePair> pairs)
    {
        std::unordered_map<std::uint32_t, CString> names;
        SourceSettings sources;
        sources.areNames = true;
        for (NamePair& pair : pairs) {
            names.emplace(static_cast<std::uint32_t>(names.size()), std::move(pair.to));
            sources.paths.push_back(std::move(pair.from));
        }
        m_gathered = Gather(sources);
        m_names = std::make_unique<GivenNames>(std::move(names));
    }

    /// @param areFinal  the names are those that are applied.
    void Decide(const Groups& groups, bool areFinal)
    {
        Progress progress("naming", groups.Count(), IsSilent());
        WishReport onWish;
        if (m_request.apply && areFinal) {
            m_looks = std::make_unique<SourceLooks>(List(), SystemFiles());
            onWish = [this](std::uint32_t entry) {
                m_looks->Ask(entry);
            };
        }
        m_outcome.decisions = VyrHost::Decide(
            List(), groups, *m_names, m_request.conflicts, [&progress](std::size_t named) { progress.Show(named); },
            onWish);
        for (std::uint32_t entry = 0; entry < m_outcome.decisions.size(); ++entry)
            if (m_outcome.decisions[entry].reason == Reason::FolderNotRead)
                m_outcome.causes.emplace(entry, WhyNotRead(entry));
        if (MovesAFolder())
            RefuseWhatHasNoPlan();
    }

    [[nodiscard]] bool MovesAFolder()
    {
        const std::vector<Entry>& entries = List().entries;
        for (std::size_t index = 0; index < entries.size(); ++index) {
            const Decision& decision = m_outcome.decisions[index];
            if (decision.IsRename() && decision.folder != entries[index].folder &&
                entries[index].kind == VyrPlatform::FileSystem::Kind::Folder)
                return true;
        }
        return false;
    }

    /// A folder that would end up inside itself, and what needs its name: only the plan as a whole shows them.
    void RefuseWhatHasNoPlan()
    {
        const PlannedRenames planned = PlanOf(List(), m_outcome.decisions);
        const PlannerResult plan =
            PlanRenames(planned.list, [](const CString& path) { return SystemFiles().GetNameFolding(path); });
        for (const PlanRefusal& refusal : plan.refused)
            Note(planned.entries[refusal.index],
                 {.outcome = RenameOutcome::Refused, .error = 0, .reason = refusal.reason});
    }

    [[nodiscard]] CString WhyNotRead(std::uint32_t entry) const
    {
        const Folder& folder = m_gathered.list.folders[m_outcome.decisions[entry].folder];
        return VyrPlatform::Process::GetErrorMessage(folder.error);
    }

    /// Has the user look through the names, and decides again for what comes back.
    void Edit()
    {
        std::vector<CString> names;
        for (std::size_t entry = 0; entry < m_outcome.decisions.size(); ++entry)
            names.push_back(NameForEditing(List().entries[entry], m_outcome.decisions[entry]));
        const VyrHostPlatform::EditedText edited = VyrHostPlatform::EditText(TextForEditing(names));
        if (!edited.text)
            throw UsageError(SafeText(edited.error));
        m_names = std::make_unique<GivenNames>(ParseEdited(*edited.text, names.size()));
        m_outcome = {};
        List().ForgetHolders();
        Decide(Groups::OfOne(List()), true);
    }

    /// With its folder as it is shown: a bare name would leave the entry where it is.
    [[nodiscard]] CString NameForEditing(const Entry& entry, const Decision& decision)
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

    [[nodiscard]] bool HasConflict() const
    {
        return std::any_of(m_outcome.decisions.begin(), m_outcome.decisions.end(), [](const Decision& decision) {
            return decision.reason == Reason::TargetExists || decision.reason == Reason::TwoToOne;
        });
    }

    void StopAll()
    {
        Complain("a name is taken, and --on-conflict=fail was asked for: nothing is renamed");
        for (Decision& decision : m_outcome.decisions)
            if (decision.IsRename()) {
                decision.status = Status::NotReached;
                decision.reason = Reason::Stopped;
            }
    }

    /// Renames, and writes what became of each entry into the outcome.
    int Apply()
    {
        const PlannedRenames planned = PlanOf(List(), m_outcome.decisions);
        if (planned.list.renames.empty())
            return ExitCode::Success;
        Batches batches;
        if (const auto cutOff = batches.FindCutOff()) {
            Complain(CutOffNotice(*cutOff) + "; nothing was done");
            return ExitCode::Blocked;
        }
        VyrHostPlatform::Interrupt::Catch();
        Progress progress("renaming", planned.list.renames.size(), IsSilent());
        std::size_t done = 0;
        const RenameReport report = [&](std::size_t index, const RenameResult& result) {
            Note(planned.entries[index], result);
            progress.Show(++done);
        };
        m_summary = batches.Apply(
            planned.list, [this, &planned] { return m_looks->Take(planned.entries); }, report,
            VyrHostPlatform::Interrupt::WasAsked);
        progress.Close();
        return JudgeSummary(m_summary);
    }

    void Note(std::uint32_t entry, const RenameResult& result)
    {
        Decision& decision = m_outcome.decisions[entry];
        if (result.outcome == RenameOutcome::Done)
            return;
        decision.status = StatusOf(result.outcome);
        decision.reason = Reason::Applying;
        if (!result.reason.IsEmpty())
            m_outcome.causes.insert_or_assign(entry, result.reason);
    }

    /// Writes the outcome; what is not renamed decides the exit code.
    int Show(bool isStopped)
    {
        OutputBuffer output;
        const Tally tally(m_outcome.decisions);
        if (m_request.json) {
            WriteJsonLines(output, List(), m_outcome);
            VyrHostPlatform::Console::Write(VyrHostPlatform::Console::Stream::Error, SummaryOf(tally));
        } else if (m_request.quiet) {
            ShowProblems();
        } else {
            const auto rowOf = [this](std::size_t index) {
                return RowOf(List(), m_outcome, index);
            };
            WriteTable(output, m_outcome.decisions.size(), rowOf, StyleOfOutput());
            output << SummaryOf(tally) << Ending(isStopped);
        }
        output.Flush();
        if (output.HasFailed())
            return ExitCode::Output;
        const bool isWhole = tally[Status::Refused] + tally[Status::Failed] + tally[Status::NotReached] == 0;
        return isWhole && m_gathered.problems.empty() ? ExitCode::Success : ExitCode::Partly;
    }

    void ShowProblems() const
    {
        for (std::size_t index = 0; index < m_outcome.decisions.size(); ++index) {
            const Decision& decision = m_outcome.decisions[index];
            if (decision.IsRename() || decision.status == Status::Unchanged)
                continue;
            const Entry& entry = m_gathered.list.entries[index];
            const std::string reason = ReasonFor(m_outcome, index);
            Complain("'" + SafeText(CString::Join({m_gathered.list.folders[entry.folder].shown, entry.name})) + "' " +
                     std::string(WordFor(decision.status)) + (reason.empty() ? "" : ": " + reason));
        }
    }

    [[nodiscard]] std::string Ending(bool isStopped) const
    {
        if (m_summary.number != 0)
            return "This was batch " + std::to_string(m_summary.number) + "; \"vyr undo\" takes it back.\n";
        if (m_request.apply || isStopped)
            return "Nothing was renamed.\n";
        return "This is a preview: nothing was changed.\n";
    }

    [[nodiscard]] bool IsSilent() const { return m_request.quiet || m_request.json; }
    [[nodiscard]] EntryList& List() { return m_gathered.list; }

    RenameRequest& m_request;
    Gathered m_gathered;
    std::unique_ptr<NameSource> m_names;
    std::unique_ptr<SourceLooks> m_looks;
    Outcome m_outcome;
    BatchSummary m_summary;
};

} // namespace

int RunRename(RenameRequest& request)
{
    return RenameRun(request).Run();
}

} // namespace VyrHost
