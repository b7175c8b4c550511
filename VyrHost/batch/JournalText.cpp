// Writes and reads journals.
#include <VyrHost/batch/JournalText.h>

#include <VyrHost/batch/Checksum.h>
#include <VyrHost/batch/JournalName.h>
#include <VyrHost/model/PlanCheck.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <concepts>
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
constexpr char noneText = '-';
constexpr std::size_t checkLength = 8;
/// Fields, in a line of steps.
constexpr std::size_t stepsInLine = 1000;
/// The least length of a piece of text, in bytes.
constexpr std::size_t pieceLength = std::size_t{1} << 16;
constexpr std::array<std::pair<bool, char>, 2> directions{{{false, 'f'}, {true, 'b'}}};
constexpr std::array<std::pair<bool, char>, 2> ends{{{false, 'e'}, {true, 's'}}};
constexpr std::array<std::pair<Kind, char>, 4> fileKinds{
    {{Kind::File, 'f'}, {Kind::Folder, 'd'}, {Kind::Other, 'o'}, {Kind::Missing, noneText}}};
constexpr std::array<std::pair<Model::PlanStep::Action, char>, 3> actions{
    {{Model::PlanStep::Action::MakeFolder, 'm'},
     {Model::PlanStep::Action::UseTemporaryName, 'a'},
     {Model::PlanStep::Action::Rename, 'r'}}};

template <class Value, std::size_t Count>
char LetterOf(const std::array<std::pair<Value, char>, Count>& letters, Value value) noexcept
{
    return std::find_if(letters.begin(), letters.end(), [value](const auto& pair) { return pair.first == value; })
        ->second;
}

void AppendHexadecimal(std::string& text, std::uint32_t value)
{
    constexpr const char* digits = "0123456789abcdef";
    for (int shift = 28; shift >= 0; shift -= 4)
        text += digits[value >> shift & 0xF];
}

/// Writes lines field by field, and hands them on in pieces.
class LineWriter
{
public:
    /// @param check  of what stands before.
    LineWriter(std::uint32_t check, const TakePiece& use) : m_use(use), m_check(check) {}

    LineWriter& Word(std::string_view word)
    {
        Separate();
        m_text += word;
        return *this;
    }
    LineWriter& Letter(char letter) { return Word({&letter, 1}); }
    template <std::integral Integer>
    LineWriter& Number(Integer number)
    {
        Separate();
        AppendNumber(number);
        return *this;
    }
    LineWriter& Index(Model::PlanIndex index) { return index == Model::none ? Letter(noneText) : Number(index); }
    LineWriter& Name(std::u16string_view name)
    {
        Separate();
        AppendJournalName(m_text, name);
        return *this;
    }
    LineWriter& Steps(Model::PlanStep::Action action, Model::PlanIndex first, Model::PlanIndex last)
    {
        Letter(LetterOf(actions, action));
        AppendRange(first, last);
        return *this;
    }
    /// As in 3,17,19-25.
    LineWriter& Ranges(const std::vector<Model::PlanIndex>& indexes)
    {
        Separate();
        for (std::size_t first = 0; first < indexes.size();) {
            std::size_t last = first;
            while (last + 1 < indexes.size() && indexes[last + 1] == indexes[last] + 1)
                ++last;
            if (first > 0)
                m_text += ',';
            AppendRange(indexes[first], indexes[last]);
            first = last + 1;
        }
        return *this;
    }
    /// Writes the check of all the text so far.
    std::uint32_t Check()
    {
        const std::uint32_t check = UpdateCheck();
        Separate();
        AppendHexadecimal(m_text, check);
        return check;
    }
    void End()
    {
        m_text += '\n';
        if (m_text.size() >= pieceLength)
            HandOn();
        m_line = m_text.size();
    }
    void HandOn()
    {
        UpdateCheck();
        m_use(m_text);
        m_text.clear();
        m_checked = 0;
    }

private:
    std::uint32_t UpdateCheck()
    {
        m_check = Checksum(m_check, std::string_view(m_text).substr(m_checked));
        m_checked = m_text.size();
        return m_check;
    }
    void Separate()
    {
        if (m_text.size() > m_line)
            m_text += '\t';
    }
    void AppendRange(Model::PlanIndex first, Model::PlanIndex last)
    {
        AppendNumber(first);
        if (last > first) {
            m_text += '-';
            AppendNumber(last);
        }
    }
    template <std::integral Integer>
    void AppendNumber(Integer number)
    {
        char digits[24];
        const auto [end, error] = std::to_chars(std::begin(digits), std::end(digits), number);
        m_text.append(digits, static_cast<std::size_t>(end - digits));
    }

    const TakePiece& m_use;
    std::uint32_t m_check;
    std::string m_text;
    /// Where the line in hand begins.
    std::size_t m_line = 0;
    /// How much the check has taken in.
    std::size_t m_checked = 0;
};

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

/// Steps of one kind whose subjects follow each other stand together.
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

/// Thrown inside this file when a journal is not as it must be.
struct Damage
{
    std::size_t line;
    CString what;
};

/// Hands out lines field by field.
class LineReader
{
public:
    explicit LineReader(std::string_view text) : m_text(text), m_unchecked(text.data()) {}

    /// Goes to the next line, whose first field must be `word`.
    void Next(std::string_view word) { Begin(TakeLine(), word); }
    /// Goes to the next line.
    /// @return its first field.
    std::string_view Next()
    {
        m_fields = TakeLine();
        m_isAtEnd = false;
        return Word();
    }
    /// Goes to the next line, whose check, the last field, must be right.
    void NextChecked(std::string_view word)
    {
        const std::string_view content = TakeCheckedLine();
        m_check = Checksum(m_check, {m_unchecked, content.data() + content.size()});
        m_unchecked = content.data() + content.size();
        if (m_check != m_lineCheck)
            Fail(u"the text up to here has been changed");
        Begin(content, word);
    }
    /// Goes to the next line if it is a whole checkpoint; else past it.
    [[nodiscard]] bool NextMark(std::uint32_t check)
    {
        try {
            m_check = check;
            m_unchecked = m_text.data();
            NextChecked("mark");
            return true;
        } catch (const Damage&) {
            return false;
        }
    }
    /// Goes past a line whose check cannot be told to be right or wrong.
    /// @return that check.
    std::uint32_t Skip()
    {
        TakeCheckedLine();
        return m_lineCheck;
    }
    [[nodiscard]] bool HasMore() const { return !m_text.empty(); }
    [[nodiscard]] bool HasMoreFields() const { return !m_isAtEnd; }

    std::string_view Word()
    {
        if (m_isAtEnd)
            Fail(u"a field is missing");
        const std::size_t end = std::min(m_fields.find('\t'), m_fields.size());
        const std::string_view word = m_fields.substr(0, end);
        m_isAtEnd = end == m_fields.size();
        m_fields.remove_prefix(m_isAtEnd ? end : end + 1);
        return word;
    }
    template <std::integral Integer>
    Integer Number()
    {
        return ParseNumber<Integer>(Word());
    }
    Model::PlanIndex Index()
    {
        const std::string_view word = Word();
        return word == std::string_view(&noneText, 1) ? Model::none : ParseNumber<Model::PlanIndex>(word);
    }
    CString Name()
    {
        std::optional<CString> name = ReadJournalName(Word());
        if (!name)
            Fail(u"a name is not written as names are");
        return std::move(*name);
    }
    template <class Value, std::size_t Count>
    Value Letter(const std::array<std::pair<Value, char>, Count>& letters)
    {
        return ParseLetter(Word(), letters);
    }
    /// Adds steps, `most` at most.
    void Steps(std::vector<Model::PlanStep>& steps, std::size_t most)
    {
        const std::string_view word = Word();
        const Model::PlanStep::Action action = ParseLetter(word.substr(0, 1), actions);
        const auto [first, last] = ParseRange(word.substr(std::min<std::size_t>(1, word.size())));
        if (last < first || last - first >= most)
            Fail(u"there are too many steps");
        for (std::size_t subject = first; subject <= last; ++subject)
            steps.push_back({action, static_cast<Model::PlanIndex>(subject)});
    }
    /// Each below `bound`, in rising order.
    std::vector<Model::PlanIndex> Ranges(std::size_t bound)
    {
        std::vector<Model::PlanIndex> indexes;
        ForEachRange(bound, [&indexes](std::size_t first, std::size_t behind) {
            for (; first < behind; ++first)
                indexes.push_back(static_cast<Model::PlanIndex>(first));
        });
        return indexes;
    }
    /// How many Ranges would give.
    std::size_t CountOfRanges(std::size_t bound)
    {
        std::size_t count = 0;
        ForEachRange(bound, [&count](std::size_t first, std::size_t behind) { count += behind - first; });
        return count;
    }
    void End() const
    {
        if (!m_isAtEnd)
            Fail(u"it has too many fields");
    }
    [[nodiscard]] std::uint32_t Check() const { return m_check; }
    [[noreturn]] void Fail(const CString& what) const { throw Damage{m_line, what}; }

private:
    void Begin(std::string_view content, std::string_view word)
    {
        m_fields = content;
        m_isAtEnd = false;
        if (Word() != word)
            Fail(u"it is not the line that belongs there");
    }
    std::string_view TakeLine()
    {
        ++m_line;
        const std::size_t end = m_text.find('\n');
        if (end == m_text.npos) {
            m_text = {};
            Fail(u"the journal ends too early");
        }
        const std::string_view line = m_text.substr(0, end);
        m_text.remove_prefix(end + 1);
        return line;
    }
    /// What stands before the line's check, which is taken too.
    std::string_view TakeCheckedLine()
    {
        const std::string_view line = TakeLine();
        if (line.size() <= checkLength || line[line.size() - checkLength - 1] != '\t')
            Fail(u"the line has no check");
        m_lineCheck = ParseNumber<std::uint32_t>(line.substr(line.size() - checkLength), 16);
        return line.substr(0, line.size() - checkLength - 1);
    }
    template <std::integral Integer>
    Integer ParseNumber(std::string_view digits, int base = 10) const
    {
        Integer number = 0;
        const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number, base);
        if (error != std::errc() || end != digits.data() + digits.size())
            Fail(u"a number is not one");
        return number;
    }
    template <class Value, std::size_t Count>
    Value ParseLetter(std::string_view word, const std::array<std::pair<Value, char>, Count>& letters) const
    {
        for (const auto& [value, letter] : letters)
            if (word == std::string_view(&letter, 1))
                return value;
        Fail(u"a letter has no meaning");
    }
    /// As in 17 or 19-25: the first number and the last.
    [[nodiscard]] std::pair<Model::PlanIndex, Model::PlanIndex> ParseRange(std::string_view range) const
    {
        const std::size_t dash = range.find('-');
        const auto first = ParseNumber<Model::PlanIndex>(range.substr(0, dash));
        return {first, dash == range.npos ? first : ParseNumber<Model::PlanIndex>(range.substr(dash + 1))};
    }
    /// Calls `use` with the first index of each range, and the one behind its last.
    template <class Use>
    void ForEachRange(std::size_t bound, Use use)
    {
        std::size_t least = 0;
        for (std::string_view rest = Word(); !rest.empty();) {
            const std::size_t end = std::min(rest.find(','), rest.size());
            const std::string_view range = rest.substr(0, end);
            const auto [first, last] = ParseRange(range);
            if (first < least || last < first || last >= bound)
                Fail(u"a range is out of order");
            least = std::size_t{last} + 1;
            use(first, least);
            rest.remove_prefix(std::min(end + 1, rest.size()));
        }
    }

    std::string_view m_text;
    std::string_view m_fields;
    bool m_isAtEnd = true;
    std::size_t m_line = 0;
    /// The check of the text before `m_unchecked`.
    std::uint32_t m_check = 0;
    const char* m_unchecked;
    std::uint32_t m_lineCheck = 0;
};

/// The heading's counts of what follows.
struct Counts
{
    std::size_t folders = 0;
    std::size_t entries = 0;
    std::size_t changes = 0;
    std::size_t steps = 0;
    /// The version has kinds of changes.
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
        reader.Fail(u"a change is not as it can be");
    return planned;
}

void LinkFolders(LineReader& reader, Model::RenamePlan& plan)
{
    for (Model::PlanIndex entry = 0; entry < plan.entries.size(); ++entry) {
        const Model::PlanIndex folder = plan.entries[entry].folder;
        if (folder == Model::none)
            continue;
        if (folder >= plan.folders.size() || plan.folders[folder].entry != Model::none)
            reader.Fail(u"an entry is a folder that there is not");
        plan.folders[folder].entry = entry;
    }
}

void ReadPlan(LineReader& reader, const Counts& counts, const Model::ChangeKinds& kinds, Journal& journal)
{
    // The counts may be anything: room is made as lines come.
    Model::NamePool& texts = *journal.plan.texts;
    while (journal.plan.folders.size() < counts.folders)
        journal.plan.folders.push_back(ReadFolder(reader, texts));
    while (journal.plan.entries.size() < counts.entries)
        journal.plan.entries.push_back(ReadEntry(reader, counts.hasKinds, texts, journal.states.emplace_back()));
    while (journal.changes.size() < counts.changes)
        journal.changes.push_back(ReadChange(reader, journal.plan, kinds));
    // No entry has more steps than two, no folder more than one.
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

/// The last whole checkpoints. Those before them are not read: each could name all entries.
struct LastCheckpoints
{
    std::optional<LineReader> last;
    /// The last that is not of an undo.
    std::optional<LineReader> forward;
};

LastCheckpoints FindLastCheckpoints(LineReader& reader, std::uint32_t check)
{
    LastCheckpoints found;
    while (reader.HasMore()) {
        if (!reader.NextMark(check))
            continue;
        found.last = reader;
        if (!LineReader(reader).Letter(directions))
            found.forward = reader;
    }
    return found;
}

/// The checkpoint that `reader` stands at.
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
    // The line before may have been cut off.
    std::string text = "\n";
    const TakePiece add = [&text](std::string_view piece) {
        text += piece;
    };
    LineWriter writer(check, add);
    writer.Word("mark")
        .Letter(LetterOf(directions, checkpoint.isBackward))
        .Letter(LetterOf(ends, checkpoint.wasStopped));
    writer.Ranges(checkpoint.entriesBefore).Ranges(checkpoint.entriesTemporary).Ranges(checkpoint.foldersMade);
    if (!checkpoint.changesBefore.empty())
        writer.Ranges(checkpoint.changesBefore);
    writer.Check();
    writer.End();
    writer.HandOn();
    return text;
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
        const LastCheckpoints checkpoints = FindLastCheckpoints(reader, journal.check);
        journal.checkpoint = ReadCheckpoint(checkpoints.last, journal);
        journal.applied = ReadCheckpoint(checkpoints.forward, journal);
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
        std::optional<LineReader> last = FindLastCheckpoints(reader, check).last;
        return last ? ReadCheckpointOutline(*last, entries) : std::optional<CheckpointOutline>();
    } catch (const Damage&) {
        return {};
    }
}

} // namespace VyrHost::Batch
