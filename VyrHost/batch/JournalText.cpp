#include <VyrHost/batch/JournalText.h>

#include <VyrHost/batch/JournalLines.h>
#include <VyrHost/model/RenamePlan.h>
#include <VyrPlatform/text/Encoding.h>

#include <array>
#include <utility>

namespace VyrHost::Batch {

namespace {

using VyrHostPlatform::DurableFile::TakePiece;
using VyrPlatform::FileState;
using VyrPlatform::FileSystem::Kind;

constexpr std::string_view format = "vyr-journal";
constexpr std::uint32_t version = 3;
constexpr std::uint32_t versionWithoutKinds = 2;
constexpr std::string_view renameKind = "rename";
constexpr std::string_view checkpointWord = "mark";
constexpr std::string_view protectedWord = "protected";
/// The maximum number of fields in a line of steps.
constexpr std::size_t stepsInLine = 1000;
constexpr std::array<std::pair<bool, char>, 2> directions{{{false, 'f'}, {true, 'b'}}};
constexpr std::array<std::pair<bool, char>, 2> ends{{{false, 'e'}, {true, 's'}}};
constexpr std::array<std::pair<Kind, char>, 4> fileKinds{
    {{Kind::File, 'f'}, {Kind::Folder, 'd'}, {Kind::Other, 'o'}, {Kind::Missing, noneText}}};

void WriteHeading(LineWriter& writer, const Journal& journal)
{
    const JournalHeading& heading = journal.heading;
    writer.Word(format).Number(version).End();
    writer.Word("batch").Number(heading.number).Number(heading.token).Name(heading.started);
    writer.Name(heading.command).Name(heading.folder);
    writer.Number(journal.plan.folders.size()).Number(journal.plan.entries.size()).Number(journal.changes.size());
    writer.Number(journal.plan.steps.size()).Name(heading.firstFrom).Name(heading.firstTo).Check();
    writer.End();
}

void WriteFolder(LineWriter& writer, const Model::PlanFolder& folder)
{
    writer.Word("folder").Index(folder.place.folder).Letter(folder.isNew ? 'n' : 'o').Name(folder.place.name).End();
}

void WriteEntry(LineWriter& writer, const Model::PlanEntry& entry, const FileState& state)
{
    writer.Word(renameKind).Letter(LetterOf(fileKinds, state.kind));
    writer.Number(state.identity.device).Number(state.identity.number).Number(state.size).Number(state.modified);
    writer.Number(state.links).Index(entry.from.folder).Name(entry.from.name);
    writer.Index(entry.to.folder).Name(entry.to.name).Index(entry.folder).Index(entry.waitsFor).End();
}

void WriteChange(LineWriter& writer, const PlannedChange& planned)
{
    writer.Word(planned.change->Kind()).Index(planned.place.folder).Name(planned.place.name);
    writer.Name(planned.change->Before()).Name(planned.change->After()).End();
}

/// Steps of one kind with consecutive subjects are written as a range.
void WriteSteps(LineWriter& writer, const std::vector<Model::PlanStep>& steps)
{
    std::size_t written = 0;
    while (written < steps.size()) {
        writer.Word("steps");
        for (std::size_t field = 0; field < stepsInLine && written < steps.size(); ++field) {
            const std::size_t first = written++;
            while (written < steps.size() &&
                   steps[written] == Model::PlanStep{steps[first].action, steps[written - 1].subject + 1})
                ++written;
            writer.Steps(steps[first].action, steps[first].subject, steps[written - 1].subject);
        }
        writer.End();
    }
}

/// The counts in the heading.
struct Counts
{
    std::size_t folders = 0;
    std::size_t entries = 0;
    std::size_t changes = 0;
    std::size_t steps = 0;
    /// Whether the version has kinds of changes.
    bool hasKinds = true;
};

JournalHeading ReadHeadingLines(LineReader& reader, Counts& counts)
{
    reader.Next(format);
    const auto found = reader.Number<std::uint32_t>();
    if (found != version && found != versionWithoutKinds)
        reader.Fail(u"it is of a version that this program does not know");
    counts.hasKinds = found != versionWithoutKinds;
    reader.End();
    reader.NextChecked("batch");
    JournalHeading heading;
    heading.number = reader.Number<std::uint32_t>();
    heading.token = reader.Number<std::uint64_t>();
    heading.started = reader.Name();
    if (counts.hasKinds) {
        heading.command = reader.Name();
        heading.folder = reader.Name();
    }
    counts.folders = reader.Number<Model::PlanIndex>();
    counts.entries = reader.Number<Model::PlanIndex>();
    if (counts.hasKinds)
        counts.changes = reader.Number<Model::PlanIndex>();
    counts.steps = reader.Number<Model::PlanIndex>();
    heading.entries = counts.entries + counts.changes;
    heading.firstFrom = reader.Name();
    heading.firstTo = reader.Name();
    reader.End();
    return heading;
}

Model::PlanFolder ReadFolder(LineReader& reader, Model::NamePool& texts)
{
    constexpr std::array<std::pair<bool, char>, 2> ages{{{true, 'n'}, {false, 'o'}}};
    reader.Next("folder");
    Model::PlanFolder folder;
    folder.place.folder = reader.Index();
    folder.isNew = reader.Letter(ages);
    folder.place.name = texts.Intern(reader.Name());
    reader.End();
    return folder;
}

Model::PlanEntry ReadEntry(LineReader& reader, bool hasKinds, Model::NamePool& texts, FileState& state)
{
    reader.Next(hasKinds ? renameKind : "entry");
    Model::PlanEntry entry;
    state.kind = reader.Letter(fileKinds);
    entry.kind = state.kind;
    state.identity.device = reader.Number<std::uint64_t>();
    state.identity.number = reader.Number<std::uint64_t>();
    state.size = reader.Number<std::int64_t>();
    state.modified = reader.Number<VyrPlatform::FileTicks>();
    state.links = reader.Number<std::uint32_t>();
    entry.from.folder = reader.Index();
    entry.from.name = texts.Intern(reader.Name());
    entry.to.folder = reader.Index();
    entry.to.name = texts.Intern(reader.Name());
    entry.folder = reader.Index();
    entry.waitsFor = reader.Index();
    reader.End();
    return entry;
}

PlannedChange ReadChange(LineReader& reader, const Model::RenamePlan& plan, const Model::ChangeKinds& kinds)
{
    const std::string_view kind = reader.Next();
    const auto known = kinds.find(kind);
    if (known == kinds.end())
        reader.Fail(CString::Join(
            {u"it holds a kind of change that this program does not know: ", VyrPlatform::Encoding::FromUtf8(kind)}));
    PlannedChange planned;
    planned.place.folder = reader.Index();
    planned.place.name = plan.texts->Intern(reader.Name());
    const CString before = reader.Name();
    const CString after = reader.Name();
    reader.End();
    planned.change = known->second(before, after);
    if (!planned.change || !Model::IsPlaceSound(plan, planned.place))
        reader.Fail(u"a change is not valid");
    return planned;
}

void LinkFolders(LineReader& reader, Model::RenamePlan& plan)
{
    for (Model::PlanIndex entry = 0; entry < plan.entries.size(); ++entry) {
        const Model::PlanIndex folder = plan.entries[entry].folder;
        if (folder == Model::none)
            continue;
        if (folder >= plan.folders.size() || plan.folders[folder].entry != Model::none)
            reader.Fail(u"an entry names a wrong folder");
        plan.folders[folder].entry = entry;
    }
}

void ReadPlan(LineReader& reader, const Counts& counts, const Model::ChangeKinds& kinds, Journal& journal)
{
    // The counts may be anything, so memory is allocated only as lines are read.
    Model::NamePool& texts = *journal.plan.texts;
    while (journal.plan.folders.size() < counts.folders)
        journal.plan.folders.push_back(ReadFolder(reader, texts));
    while (journal.plan.entries.size() < counts.entries)
        journal.plan.entries.push_back(ReadEntry(reader, counts.hasKinds, texts, journal.states.emplace_back()));
    while (journal.changes.size() < counts.changes)
        journal.changes.push_back(ReadChange(reader, journal.plan, kinds));
    // An entry has at most two steps, a folder has one.
    if (counts.steps > 2 * counts.entries + counts.folders)
        reader.Fail(u"there are too many steps");
    while (journal.plan.steps.size() < counts.steps) {
        reader.Next("steps");
        while (reader.HasMoreFields())
            reader.Steps(journal.plan.steps, counts.steps - journal.plan.steps.size());
    }
    reader.NextChecked("end");
    reader.End();
    LinkFolders(reader, journal.plan);
}

/// The appended complete lines that count. Earlier ones are not parsed, since each could list all entries.
struct LastAppended
{
    std::optional<LineReader> checkpoint;
    /// The last that is not of an undo.
    std::optional<LineReader> forward;
    std::optional<LineReader> protectedFiles;
};

LastAppended FindLastAppended(LineReader& reader, std::uint32_t check)
{
    LastAppended found;
    while (reader.HasMore()) {
        const std::string_view word = reader.NextAppended(check);
        if (word == protectedWord)
            found.protectedFiles = reader;
        if (word != checkpointWord)
            continue;
        found.checkpoint = reader;
        found.protectedFiles.reset();
        if (!LineReader(reader).Letter(directions))
            found.forward = reader;
    }
    return found;
}

std::vector<ProtectedFile> ReadProtected(std::optional<LineReader> reader, std::size_t changes)
{
    std::vector<ProtectedFile> files;
    while (reader && reader->HasMoreFields()) {
        ProtectedFile& file = files.emplace_back();
        file.change = reader->Index();
        if (file.change >= changes)
            reader->Fail(u"a protected file belongs to no change");
        file.state = reader->Name();
    }
    return files;
}

/// The checkpoint that `reader` is at.
std::optional<Checkpoint> ReadCheckpoint(std::optional<LineReader> reader, const Journal& journal)
{
    if (!reader)
        return {};
    Checkpoint checkpoint;
    checkpoint.isBackward = reader->Letter(directions);
    checkpoint.wasStopped = reader->Letter(ends);
    checkpoint.entriesBefore = reader->Ranges(journal.plan.entries.size());
    checkpoint.entriesTemporary = reader->Ranges(journal.plan.entries.size());
    checkpoint.foldersMade = reader->Ranges(journal.plan.folders.size());
    if (reader->HasMoreFields()) {
        checkpoint.changesBefore = reader->Ranges(journal.changes.size());
        if (checkpoint.changesBefore.empty())
            reader->Fail(u"it has too many fields");
    }
    reader->End();
    return checkpoint;
}

CheckpointOutline ReadCheckpointOutline(LineReader& reader, std::size_t entries)
{
    CheckpointOutline checkpoint;
    checkpoint.isBackward = reader.Letter(directions);
    checkpoint.wasStopped = reader.Letter(ends);
    checkpoint.entriesBefore = reader.CountOfRanges(entries);
    checkpoint.entriesTemporary = reader.CountOfRanges(entries);
    reader.CountOfRanges(Model::none);
    if (reader.HasMoreFields())
        checkpoint.entriesBefore += reader.CountOfRanges(entries);
    if (checkpoint.entriesBefore > entries || checkpoint.entriesTemporary > entries - checkpoint.entriesBefore)
        reader.Fail(u"an entry stands at two places");
    reader.End();
    return checkpoint;
}

/// A line that is appended, with the fields that `write` writes.
template <class Write>
std::string WriteAppended(std::uint32_t check, Write write)
{
    // The line before may have been cut off.
    std::string text = "\n";
    const TakePiece add = [&text](std::string_view piece) {
        text += piece;
    };
    LineWriter writer(check, add);
    write(writer);
    writer.Check();
    writer.End();
    writer.HandOn();
    return text;
}

CString Describe(const Damage& damage)
{
    CString text;
    text.Format(u"line %u: %s", damage.line, damage.what);
    return text;
}

} // namespace

std::uint32_t WriteJournal(const Journal& journal, const TakePiece& use)
{
    LineWriter writer(0, use);
    WriteHeading(writer, journal);
    for (const Model::PlanFolder& folder : journal.plan.folders)
        WriteFolder(writer, folder);
    for (std::size_t entry = 0; entry < journal.plan.entries.size(); ++entry)
        WriteEntry(writer, journal.plan.entries[entry], journal.states[entry]);
    for (const PlannedChange& planned : journal.changes)
        WriteChange(writer, planned);
    WriteSteps(writer, journal.plan.steps);
    const std::uint32_t check = writer.Word("end").Check();
    writer.End();
    writer.HandOn();
    return check;
}

std::string WriteCheckpoint(const Checkpoint& checkpoint, std::uint32_t check)
{
    return WriteAppended(check, [&checkpoint](LineWriter& writer) {
        writer.Word(checkpointWord);
        writer.Letter(LetterOf(directions, checkpoint.isBackward)).Letter(LetterOf(ends, checkpoint.wasStopped));
        writer.Ranges(checkpoint.entriesBefore).Ranges(checkpoint.entriesTemporary).Ranges(checkpoint.foldersMade);
        if (!checkpoint.changesBefore.empty())
            writer.Ranges(checkpoint.changesBefore);
    });
}

std::string WriteProtected(const std::vector<ProtectedFile>& files, std::uint32_t check)
{
    return WriteAppended(check, [&files](LineWriter& writer) {
        writer.Word(protectedWord);
        for (const ProtectedFile& file : files)
            writer.Index(file.change).Name(file.state);
    });
}

std::optional<Journal> ReadJournal(std::string_view text, CString& problem, const Model::ChangeKinds& kinds)
{
    try {
        LineReader reader(text);
        Journal journal;
        Counts counts;
        journal.heading = ReadHeadingLines(reader, counts);
        ReadPlan(reader, counts, kinds, journal);
        journal.check = reader.Check();
        problem = Model::FindPlanFault(journal.plan);
        if (!problem.IsEmpty())
            return {};
        const LastAppended appended = FindLastAppended(reader, journal.check);
        journal.checkpoint = ReadCheckpoint(appended.checkpoint, journal);
        journal.applied = ReadCheckpoint(appended.forward, journal);
        journal.protectedFiles = ReadProtected(appended.protectedFiles, journal.changes.size());
        return journal;
    } catch (const Damage& damage) {
        problem = Describe(damage);
        return {};
    }
}

bool HasHeading(std::string_view text)
{
    return text.find('\n', text.find('\n') + 1) != text.npos;
}

std::optional<JournalHeading> ReadHeading(std::string_view text, CString& problem)
{
    try {
        LineReader reader(text);
        Counts counts;
        return ReadHeadingLines(reader, counts);
    } catch (const Damage& damage) {
        problem = Describe(damage);
        return {};
    }
}

std::string_view FindCheckpoints(std::string_view tail)
{
    const std::size_t before = tail.find("\nend\t");
    return before == tail.npos ? std::string_view() : tail.substr(before + 1);
}

std::optional<CheckpointOutline> ReadLastCheckpoint(std::string_view checkpoints, std::size_t entries)
{
    try {
        LineReader reader(checkpoints);
        const std::uint32_t check = reader.Skip();
        std::optional<LineReader> last = FindLastAppended(reader, check).checkpoint;
        return last ? ReadCheckpointOutline(*last, entries) : std::optional<CheckpointOutline>();
    } catch (const Damage&) {
        return {};
    }
}

} // namespace VyrHost::Batch
