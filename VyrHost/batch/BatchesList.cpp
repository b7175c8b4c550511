// Reads the state of the batches from their journals.
#include <VyrHost/batch/Batches.h>

#include <VyrHost/model/FolderSet.h>
#include <VyrHost/text/Errors.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/FullPath.h>

#include <algorithm>

namespace VyrHost::Batch {

namespace {

using VyrPlatform::FileState;

BatchState StateOf(BatchPhase phase)
{
    switch (phase) {
    case BatchPhase::Applying:
        return BatchState::CutOff;
    case BatchPhase::Undoing:
        return BatchState::CutOffUndoing;
    case BatchPhase::Undone:
        return BatchState::Undone;
    case BatchPhase::Applied:
        break;
    }
    return BatchState::Applied;
}

/// Takes over the journal's last checkpoint. It may be from earlier work if the last work wrote none.
void AddProgress(BatchInformation& information, const std::optional<CheckpointOutline>& checkpoint)
{
    if (!checkpoint)
        return;
    const std::size_t renamed = information.entries - checkpoint->entriesBefore - checkpoint->entriesTemporary;
    if (information.state == BatchState::Undone && !checkpoint->isBackward && renamed > 0)
        return;
    information.renamed = renamed;
    information.wasStopped = checkpoint->wasStopped;
    if (information.state == BatchState::Applied && checkpoint->isBackward)
        information.state = BatchState::UndonePartly;
}

BatchInformation Describe(const JournalFolder& folder, const JournalFile& file)
{
    BatchInformation information;
    information.number = file.number;
    information.undo = file.undo;
    information.state = StateOf(file.phase);
    std::uint32_t error = 0;
    const std::optional<std::string> text = folder.ReadBeginning(file, error);
    const std::optional<JournalHeading> heading =
        text ? ReadHeading(*text, information.problem) : std::optional<JournalHeading>();
    if (!heading) {
        information.state = BatchState::Damaged;
        if (!text)
            information.problem = Text::ErrorText(error);
        return information;
    }
    information.started = heading->started;
    information.command = heading->command;
    information.folder = heading->folder;
    information.entries = heading->entries;
    information.firstFrom = heading->firstFrom;
    information.firstTo = heading->firstTo;
    if (IsEnded(file.phase))
        AddProgress(information, ReadLastCheckpoint(folder.ReadCheckpoints(file), information.entries));
    return information;
}

bool LiesIn(const CString& path, const FileState& folder)
{
    if (path.IsEmpty() || folder.kind != VyrPlatform::FileSystem::Kind::Folder)
        return false;
    const std::vector<VyrPlatform::FileIdentity> identities = IdentitiesOnPath(path);
    return std::find(identities.begin(), identities.end(), folder.identity) != identities.end();
}

Model::ResultPath PathOf(const CString& path)
{
    const std::u16string_view folder = Model::FolderPart(path);
    return {folder, folder, Model::NamePart(path)};
}

} // namespace

Model::Result BatchResults::At(std::size_t index) const
{
    const BatchEntry& entry = m_entries[index];
    const bool isForward = m_direction == Direction::Forward;
    Model::Result result;
    result.kind = entry.change ? entry.change->Kind() : "rename";
    result.from = PathOf(entry.change || isForward ? entry.before : entry.after);
    if (!entry.change)
        result.to = PathOf(isForward ? entry.after : entry.before);
    else
        result.values = [change = entry.change.get(), isForward] {
            return isForward ? Model::ResultValues{change->ShownBefore(), change->ShownAfter()}
                             : Model::ResultValues{change->ShownAfter(), change->ShownBefore()};
        };
    result.status = entry.result.status;
    result.reason = entry.result.reason;
    result.hasChanged = entry.hasChanged;
    return result;
}

UndoCandidates FindUndoCandidates(const std::vector<BatchInformation>& batches, const CString& folder)
{
    const FileState current = VyrPlatform::LookAtFile(VyrPlatform::GetRealPath(folder));
    UndoCandidates candidates;
    for (const BatchInformation& batch : batches) {
        const bool isDamaged = batch.state == BatchState::Damaged;
        if (isDamaged || CanBeUndone(batch.state))
            (isDamaged || LiesIn(batch.folder, current) ? candidates.here : candidates.elsewhere).push_back(batch);
    }
    return candidates;
}

std::vector<BatchInformation> Batches::List() const
{
    const JournalFolder folder = OpenJournals();
    std::vector<BatchInformation> batches;
    for (const JournalFile& file : folder.List()) {
        BatchInformation& batch = batches.emplace_back(Describe(folder, file));
        if (!IsEnded(file.phase) && folder.IsLockedByAnother())
            batch.state = BatchState::BeingWorkedOn;
    }
    std::reverse(batches.begin(), batches.end());
    return batches;
}

std::optional<BatchInformation> Batches::FindCutOff() const
{
    const JournalFolder folder = OpenJournals();
    if (!folder.FindOpen() || folder.IsLockedByAnother())
        return {};
    // Its program may have just finished it.
    const std::optional<JournalFile> file = folder.FindOpen();
    return file ? Describe(folder, *file) : std::optional<BatchInformation>();
}

} // namespace VyrHost::Batch
