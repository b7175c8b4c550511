// Compares the entries on the disk with the journal of a batch.
#include <VyrHost/batch/Locator.h>

namespace VyrHost::Batch {

namespace {

using VyrPlatform::FileState;
using VyrPlatform::FileSystem::Kind;
using Action = Model::PlanStep::Action;

bool IsSameContent(const FileState& left, const FileState& right)
{
    return left.size == right.size && left.modified == right.modified;
}

} // namespace

Locator::Locator(const Journal& journal, PlanProgress& progress, FileOperations& files)
    : m_journal(journal), m_progress(progress), m_files(files), m_folders(progress, files),
      m_hasTemporaryName(journal.plan.entries.size()), m_isMade(journal.plan.folders.size(), !journal.checkpoint),
      m_isKept(journal.plan.entries.size()), m_hasChanged(journal.plan.entries.size()),
      m_errors(journal.plan.entries.size())
{
    for (const Model::PlanStep& step : journal.plan.steps)
        if (step.action == Action::UseTemporaryName)
            m_hasTemporaryName[step.subject] = true;
    if (journal.checkpoint)
        for (const Model::PlanIndex folder : journal.checkpoint->foldersMade)
            m_isMade[folder] = true;
}

void Locator::TrustCheckpoint()
{
    if (!m_journal.checkpoint)
        return;
    for (const Model::PlanIndex entry : m_journal.checkpoint->entriesBefore) {
        m_isKept[entry] = true;
        m_taken.Put(m_journal.plan.entries[entry].from, entry);
    }
}

void Locator::Locate(LastWork lastWork)
{
    // Folders first, parents before children, since the entries are searched in them.
    for (const Model::PlanIndex folder : Model::OrderFolders(m_journal.plan)) {
        const Model::PlanFolder& planned = m_journal.plan.folders[folder];
        if (planned.isNew)
            LocateNewFolder(folder);
        else if (planned.entry != Model::none)
            LocateEntry(planned.entry, lastWork);
    }
    // In the order of the steps, so that an entry has left a place before another one is searched there.
    for (const Model::PlanStep& step : m_journal.plan.steps)
        if (step.action == Action::Rename && m_journal.plan.entries[step.subject].folder == Model::none)
            LocateEntry(step.subject, lastWork);
}

void Locator::LocateNewFolder(Model::PlanIndex folder)
{
    if (m_folders.Look(m_journal.plan.folders[folder].place).kind == Kind::Folder)
        m_progress.SetFolder(folder, m_isMade[folder] ? NewFolder::Made : NewFolder::Found);
}

void Locator::LocateEntry(Model::PlanIndex entry, LastWork lastWork)
{
    if (m_isKept[entry])
        return;
    if (m_journal.states[entry].kind == Kind::Missing) {
        m_progress.Set(entry, Location::Unknown);
        return;
    }
    const bool isOneSlot = m_journal.plan.entries[entry].waitsFor == entry;
    const Candidate temporary = m_hasTemporaryName[entry] ? LookAt(entry, Location::Temporary) : Candidate();
    if (isOneSlot && temporary.match == Match::None) {
        LocateByName(entry);
        return;
    }
    const Candidate before = LookAt(entry, Location::Before);
    const Candidate after = isOneSlot ? Candidate() : LookAt(entry, Location::After);
    const Candidate chosen = temporary.match != Match::None ? temporary : Choose(before, after, lastWork);
    for (const Candidate& other : {before, temporary, after})
        if (lastWork == LastWork::CutOff && IsHalfRenamed(entry, chosen, other) && !EndHalfRename(entry, chosen, other))
            return;
    SetLocation(entry, chosen);
}

/// Whether a rename in two calls has added the new name but not yet removed the old one.
bool Locator::IsHalfRenamed(Model::PlanIndex entry, const Candidate& kept, const Candidate& left) const
{
    return left.location != kept.location && left.match == Match::All && kept.match == Match::All &&
           left.state.kind != Kind::Folder && m_journal.states[entry].links == 1 && left.state.links > 1;
}

/// The old and the new name are equal for the file system: the listing says which one is stored.
void Locator::LocateByName(Model::PlanIndex entry)
{
    const Model::PlanEntry& planned = m_journal.plan.entries[entry];
    const std::unordered_set<CString>& names = NamesIn(planned.from.folder);
    Candidate candidate = LookAt(entry, Location::After);
    if (!names.contains(planned.to.name.View()))
        candidate.location = names.contains(planned.from.name.View()) ? Location::Before : Location::Unknown;
    SetLocation(entry, candidate);
}

Locator::Candidate Locator::LookAt(Model::PlanIndex entry, Location location)
{
    const Model::Place place = m_progress.PlaceOf(entry, location);
    Candidate candidate;
    candidate.location = location;
    candidate.state = m_folders.Look(place);
    if (!m_taken.Find(place))
        candidate.match = Compare(entry, candidate.state);
    return candidate;
}

Locator::Match Locator::Compare(Model::PlanIndex entry, const FileState& state) const
{
    const FileState& known = m_journal.states[entry];
    if (state.kind == Kind::Missing || state.kind != known.kind)
        return Match::None;
    const bool hasSameNumber = state.identity.number == known.identity.number;
    if (known.kind == Kind::Folder)
        return hasSameNumber ? Match::All : Match::Kind;
    if (IsSameContent(state, known))
        return hasSameNumber ? Match::All : Match::Content;
    return hasSameNumber ? Match::Number : Match::Kind;
}

/// The better match; of two equal ones that at the new path, if `lastWork` allows it.
Locator::Candidate Locator::Choose(const Candidate& before, const Candidate& after, LastWork lastWork)
{
    if (before.match > after.match)
        return before;
    const bool isClear = after.match > before.match || after.match == Match::All || lastWork == LastWork::Applied;
    if (isClear && after.match != Match::None)
        return after;
    Candidate unknown;
    unknown.state.error = after.state.error ? after.state.error : before.state.error;
    return unknown;
}

bool Locator::EndHalfRename(Model::PlanIndex entry, const Candidate& kept, const Candidate& left)
{
    const Model::Place leftPlace = m_progress.PlaceOf(entry, left.location);
    const Model::Place keptPlace = m_progress.PlaceOf(entry, kept.location);
    const OpenedFolder leftFolder = m_folders.Open(leftPlace.folder);
    const OpenedFolder keptFolder = m_folders.Open(keptPlace.folder);
    const std::uint32_t error = leftFolder.folder->DropSecondName(leftPlace.name, *keptFolder.folder, keptPlace.name);
    if (error == 0)
        return true;
    m_errors[entry] = error;
    m_progress.Set(entry, Location::Unknown);
    return false;
}

void Locator::SetLocation(Model::PlanIndex entry, const Candidate& candidate)
{
    m_progress.Set(entry, candidate.location);
    if (candidate.location == Location::Unknown) {
        m_errors[entry] = candidate.state.error;
        return;
    }
    m_taken.Put(m_progress.PlaceOf(entry, candidate.location), entry);
    m_hasChanged[entry] = candidate.state.kind == Kind::File && candidate.match != Match::All;
}

const std::unordered_set<CString>& Locator::NamesIn(Model::PlanIndex folder)
{
    const auto [known, isNew] = m_names.try_emplace(folder);
    const std::optional<CString> path = isNew ? m_progress.PathOfFolder(folder) : std::nullopt;
    if (path && m_files.List(*path, [&names = known->second](const CString& name) { names.insert(name); }) != 0)
        known->second.clear();
    return known->second;
}

} // namespace VyrHost::Batch
