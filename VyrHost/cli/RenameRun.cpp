// Carries out a call of "vyr rename": gathers, names, shows, and applies.
#include <VyrHost/cli/RenameRun.h>

#include <VyrHost/batch/Batches.h>
#include <VyrHost/cli/BatchRun.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/SourceOptions.h>
#include <VyrHost/rename/NameLists.h>
#include <VyrHost/rename/NameSources.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/Input.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/ResultOutput.h>
#include <VyrHost/ui/Terminal.h>
#include <VyrHostPlatform/Console.h>
#include <VyrHostPlatform/Editor.h>
#include <VyrHostPlatform/Interrupt.h>
#include <VyrHostPlatform/ReadToEnd.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/CString.h>

#include <algorithm>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace VyrHost::Cli {

namespace {

namespace Console = VyrHostPlatform::Console;

/// Shows the mistake; false where nobody is there to mend it, or does not want to.
bool IsToBeMended(const std::string& mistake)
{
    if (!Console::IsInputTerminal())
        return false;
    Complain(mistake);
    // An interrupt must not end the program before it has named the file of the text.
    VyrHostPlatform::Interrupt::Catch();
    Console::Write(Console::Stream::Error, "Press Enter to edit the text again, or Ctrl-C to stop. ");
    std::uint32_t error = 0;
    return !Console::ReadInput(error).empty();
}

/// Has the user edit `names` and answers what came of them, by their places (ParseEdited). A mistake is shown; on a
/// terminal the editor opens again with the text as it was left, elsewhere the text is kept in its file.
/// @throws UsageError where the editor fails, and for a mistake that is not mended; it names the file of the text.
std::unordered_map<std::uint32_t, CString> EditNames(const std::vector<CString>& names)
{
    VyrHostPlatform::EditorFile file(Rename::TextForEditing(names));
    for (;;) {
        const VyrHostPlatform::EditedText edited = file.Edit();
        if (!edited.text)
            throw Text::UsageError(Text::SafeText(edited.error));
        try {
            return Rename::ParseEdited(*edited.text, names.size());
        } catch (const Text::UsageError& mistake) {
            if (!IsToBeMended(mistake.what()))
                throw Text::UsageError(std::string(mistake.what()) + "\nThe edited text is kept in " +
                                       Text::SafeText(file.Keep()));
        }
    }
}

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
        m_results.emplace(List(), std::move(m_preview.decisions), std::move(m_preview.causes));
        const int applied = m_request.apply && !isStopped ? Apply() : ExitCode::success;
        if (applied == ExitCode::blocked)
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
    [[nodiscard]] CString NameForEditing(const Model::Entry& entry, const Rename::Decision& decision)
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

    /// Renames, and notes what became of each entry.
    int Apply()
    {
        const std::size_t count = m_preview.entries.size();
        if (count == 0)
            return ExitCode::success;
        Batch::Batches batches = OpenBatches(WaitTenSeconds());
        if (const auto cutOff = batches.FindCutOff()) {
            Complain(CutOffNotice(*cutOff) + "; nothing was done");
            return ExitCode::blocked;
        }
        VyrHostPlatform::Interrupt::Catch();
        Ui::Progress progress("renaming", count, IsSilent());
        std::size_t done = 0;
        const Batch::RenameReport report = [&](Model::PlanIndex entry, const Model::Outcome& outcome) {
            m_results->Set(m_preview.entries[entry], outcome);
            progress.Show(++done);
        };
        m_summary = batches.Apply(std::move(m_preview.plan), report, VyrHostPlatform::Interrupt::WasAsked);
        progress.Close();
        return JudgeSummary(m_summary);
    }

    /// Writes the results; what is not renamed decides the exit code.
    int Show(bool isStopped)
    {
        const int code =
            WriteReport(*m_results, {m_request.json, m_request.quiet, !m_request.apply, LeftOutNotice(m_collected)}, {},
                        Ending(isStopped));
        if (m_request.quiet && m_summary.wasStopped)
            Complain("interrupted: " + Ui::SummaryOf(Model::Tally(*m_results)) + Ending(isStopped));
        return std::max(code, m_collected.problems.empty() ? ExitCode::success : ExitCode::partly);
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
    std::optional<Rename::RenameResults> m_results;
    Batch::BatchSummary m_summary;
};

} // namespace

int RunRename(RenameRequest& request)
{
    return RenameRun(request).Run();
}

} // namespace VyrHost::Cli
