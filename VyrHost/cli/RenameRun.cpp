// Carries out a call of "vyr rename": collects entries, makes names, shows them, and applies them.
#include <VyrHost/cli/RenameRun.h>

#include <VyrHost/cli/BatchRun.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/SourceOptions.h>
#include <VyrHost/rename/EmptiedFolders.h>
#include <VyrHost/rename/NameLists.h>
#include <VyrHost/rename/NameSources.h>
#include <VyrHost/reports/ResultTable.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/Input.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/ResultOutput.h>
#include <VyrHost/ui/Terminal.h>
#include <VyrHostPlatform/Console.h>
#include <VyrHostPlatform/Editor.h>
#include <VyrHostPlatform/Interrupt.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FullPath.h>
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
using VyrPlatform::FileSystem::WithSeparator;

/// Shows the mistake and waits for the user; false when there is no terminal, or the user stops.
bool WaitForCorrection(const std::string& mistake)
{
    if (!Console::IsInputTerminal())
        return false;
    Complain(mistake);
    // An interrupt must not end the program before it has said where the text is.
    VyrHostPlatform::Interrupt::Catch();
    Console::Write(Console::Stream::Error, "Press Enter to edit the text again, or Ctrl-C to stop. ");
    std::uint32_t error = 0;
    return !Console::ReadInput(error).empty();
}

/// Lets the user edit `names`, and returns the new ones by their indexes (ParseEdited). Shows a mistake; on a terminal
/// the editor opens again with the text as it is, otherwise the text is kept in its file.
/// @throws UsageError when the editor fails, and for a mistake that is not corrected; it names the file of the text.
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
            if (!WaitForCorrection(mistake.what()))
                throw Text::UsageError(std::string(mistake.what()) + "\nThe edited text is kept in " +
                                       Text::SafeText(file.Keep()));
        }
    }
}

/// The heading that "vyr list --csv --columns path,name" writes, unless a file has that name.
bool IsHeading(const Rename::NamePair& pair)
{
    return pair.from == u"path" && pair.to == u"name" && !VyrPlatform::FileSystem::Exists(pair.from);
}

std::vector<Rename::NamePair> ReadPairs(const CString& path)
{
    std::vector<Rename::NamePair> pairs = Rename::ParsePairs(Text::ReadInputFile(path));
    if (!pairs.empty() && IsHeading(pairs.front()))
        pairs.erase(pairs.begin());
    if (pairs.empty())
        throw Text::UsageError("there are no pairs of names in " +
                               (path == u"-" ? std::string("the standard input") : "'" + Text::SafeText(path) + "'"));
    return pairs;
}

/// The entries of a call, and the source of their names.
struct RenameTask
{
    Collect::CollectedEntries collected;
    std::unique_ptr<Rename::NameSource> names;
};

std::optional<Rename::RuleNames::Destination> DestinationOf(const RenameRequest& request)
{
    if (!request.into)
        return {};
    return Rename::RuleNames::Destination{WithSeparator(VyrPlatform::GetFullPath(*request.into)),
                                          WithSeparator(*request.into)};
}

RenameTask MakeTask(const RenameRequest& request)
{
    if (!request.pairs)
        return {TakeEntries(request.sources, request.order),
                std::make_unique<Rename::RuleNames>(request.rules, request.counting, DestinationOf(request))};
    std::unordered_map<std::uint32_t, CString> names;
    Collect::SourceSettings sources;
    sources.areNames = true;
    for (Rename::NamePair& pair : ReadPairs(*request.pairs)) {
        names.emplace(static_cast<std::uint32_t>(names.size()), std::move(pair.to));
        sources.paths.push_back(std::move(pair.from));
    }
    return {TakeEntries(sources, request.order), std::make_unique<Rename::GivenNames>(std::move(names))};
}

Rename::Preview Decide(Model::EntryList& list, const Rename::Groups& groups, Rename::NameSource& names,
                       const RenameRequest& request)
{
    Ui::Progress progress("naming", groups.Count(), request.style.IsSilent());
    return Rename::MakePreview(list, groups, names, request.conflicts, OpenBatches().ReasonsToStay(),
                               [&progress](std::size_t named) { progress.Show(named); });
}

/// With slashes on every system: a backslash would begin an escape.
CString FolderForEditing(const Model::EntryList& list, std::uint32_t folder)
{
    std::u16string text(list.folders[folder].shown.View());
    std::replace(text.begin(), text.end(), VyrPlatform::FileSystem::Separator(), u'/');
    return CString(std::u16string_view(text));
}

/// With its shown folder: a bare name would leave the entry in its folder.
CString NameForEditing(const Model::EntryList& list, const Model::Entry& entry, const Rename::Decision& decision)
{
    if (!decision.IsRename())
        return CString::Join({FolderForEditing(list, entry.folder), entry.name});
    const CString folder = FolderForEditing(list, decision.folder);
    const bool goesToCurrentFolder = folder.IsEmpty() && decision.folder != entry.folder;
    return CString::Join({goesToCurrentFolder ? std::u16string_view(u"./") : folder.View(), decision.name});
}

/// Lets the user edit the names, and decides again.
Rename::Preview DecideEdited(Model::EntryList& list, const Rename::Preview& preview, const RenameRequest& request)
{
    std::vector<CString> names;
    for (std::size_t entry = 0; entry < list.entries.size(); ++entry)
        names.push_back(NameForEditing(list, list.entries[entry], preview.decisions[entry]));
    Rename::GivenNames edited(EditNames(names));
    return Decide(list, Rename::Groups::OfOne(list), edited, request);
}

/// The folders that are removed because the batch empties them.
class Removals
{
public:
    Removals(const Model::RenamePlan& plan, const Model::FolderSet& folders, bool areWanted)
    {
        if (!areWanted)
            return;
        for (Rename::EmptiedFolder& emptied : Rename::FindEmptied(plan, folders)) {
            m_changes.push_back({emptied.place, std::move(emptied.removal)});
            m_paths.push_back(
                VyrPlatform::FileSystem::JoinPath(Model::PathBefore(plan, emptied.place.folder), emptied.place.name));
        }
    }

    [[nodiscard]] std::size_t Count() const { return m_paths.size(); }
    [[nodiscard]] const std::vector<Batch::PlannedChange>& Changes() const { return m_changes; }

    /// Complains about a folder that was not removed.
    void Note(std::size_t removal, const Model::Outcome& outcome) const
    {
        if (outcome.status == Model::Status::Failed || outcome.status == Model::Status::Refused)
            Complain("the folder '" + Text::SafeText(m_paths[removal]) + "' stays: " + Text::SafeText(outcome.reason));
    }

    /// A line; empty if there is none to remove.
    [[nodiscard]] std::string Notice(bool isPreview) const
    {
        if (m_paths.empty())
            return {};
        const bool isOne = m_paths.size() == 1;
        return std::to_string(m_paths.size()) + (isOne ? " folder that becomes" : " folders that become") + " empty " +
               (isPreview ? "will be"
                : isOne   ? "is"
                          : "are") +
               " removed.\n";
    }

private:
    std::vector<Batch::PlannedChange> m_changes;
    std::vector<CString> m_paths;
};

} // namespace

int RunRename(const RenameRequest& request)
{
    if (request.style.isPreview)
        OfferRecovery();
    RenameTask task = MakeTask(request);
    Model::EntryList& list = task.collected.list;
    const Rename::Groups groups = request.together ? Rename::Groups::ByStem(list) : Rename::Groups::OfOne(list);
    Rename::Preview preview = Decide(list, groups, *task.names, request);
    if (request.edit)
        preview = DecideEdited(list, preview, request);
    const bool isStopped = request.conflicts.mode == Rename::OnConflict::Refuse && Rename::StopAtConflict(preview);
    if (isStopped)
        Complain("a name is taken, and --on-conflict=fail was asked for: nothing is renamed");
    Rename::RenameResults results(list, std::move(preview.decisions), std::move(preview.causes));
    Removals removals(preview.plan, list.folders, request.removesEmpty);
    const auto apply = [&](Batch::Batches& batches, const Batch::RenameReport& report) {
        return batches.Apply(std::move(preview.plan), removals.Changes(), report, VyrHostPlatform::Interrupt::WasAsked);
    };
    const auto note = [&](Model::PlanIndex change, const Model::Outcome& outcome) {
        if (change < preview.entries.size())
            results.Set(preview.entries[change], outcome);
        else
            removals.Note(change - preview.entries.size(), outcome);
    };
    ReportStyle style = request.style;
    style.remark = removals.Notice(style.isPreview);
    const int code =
        ApplyAndReport({"renaming", "renamed", preview.entries.size() + removals.Count(), isStopped, apply, note},
                       results, style, task.collected);
    if (!request.page || code == ExitCode::blocked)
        return code;
    return request.page->Write(Reports::TableOfResults(results, request.style.isPreview),
                               Ui::SummaryOf(Model::Tally(results)), code);
}

} // namespace VyrHost::Cli
