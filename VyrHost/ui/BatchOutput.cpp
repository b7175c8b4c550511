// Words batches and their entries as rows and as JSON.
#include <VyrHost/ui/BatchOutput.h>

#include <VyrHost/text/FolderPart.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/JsonLines.h>
#include <VyrHost/ui/Summary.h>
#include <VyrHost/ui/Table.h>
#include <VyrHost/ui/Words.h>
#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/time/DateTimePattern.h>

#include <span>
#include <string_view>
#include <utility>

namespace VyrHost::Ui {

namespace {

std::u16string_view WordFor(Batch::BatchState state)
{
    switch (state) {
    case Batch::BatchState::Applied:
        return u"applied";
    case Batch::BatchState::UndonePartly:
        return u"undone in part";
    case Batch::BatchState::Undone:
        return u"undone";
    case Batch::BatchState::BeingWorkedOn:
        return u"being worked on";
    case Batch::BatchState::CutOff:
        return u"cut off";
    case Batch::BatchState::CutOffUndoing:
        return u"cut off while it was undone";
    case Batch::BatchState::Damaged:
        break;
    }
    return u"damaged";
}

CString WordFor(Model::RenameOutcome outcome)
{
    return VyrPlatform::Encoding::FromUtf8(Ui::WordFor(StatusOf(outcome)));
}

/// A rename as it went.
struct Way
{
    const CString& from;
    const CString& to;
};

Way WayOf(const Batch::BatchEntry& entry, Batch::Direction direction)
{
    return direction == Batch::Direction::Forward ? Way{entry.before, entry.after} : Way{entry.after, entry.before};
}

CString NoteFor(const Batch::BatchEntry& entry)
{
    CString note;
    if (entry.result.outcome != Model::RenameOutcome::Done)
        note = WordFor(entry.result.outcome);
    if (!entry.result.reason.IsEmpty())
        note = CString::Join({note, note.IsEmpty() ? u"" : u": ", entry.result.reason});
    if (entry.hasChanged)
        note = CString::Join({note, note.IsEmpty() ? u"" : u"; ", u"it has changed since"});
    return note;
}

Tone ToneOf(const Batch::BatchEntry& entry)
{
    if (entry.result.outcome == Model::RenameOutcome::Failed || entry.result.outcome == Model::RenameOutcome::Refused)
        return Tone::Bad;
    return entry.hasChanged || entry.result.outcome == Model::RenameOutcome::NotReached ? Tone::Notable : Tone::Plain;
}

/// What a change that is no rename has made of what.
std::pair<CString, CString> ValuesOf(const Batch::Change& change, Batch::Direction direction)
{
    std::pair<CString, CString> values(change.ShownBefore(), change.ShownAfter());
    if (direction == Batch::Direction::Backward)
        std::swap(values.first, values.second);
    return values;
}

TableRow RowOf(const Batch::BatchEntry& entry, Batch::Direction direction)
{
    if (entry.change) {
        const std::u16string_view folder = Text::FolderPart(entry.before);
        const auto [from, to] = ValuesOf(*entry.change, direction);
        const CString note = NoteFor(entry);
        return {{folder, entry.before.View().substr(folder.size())},
                {{}, {}},
                CString::Join({from, u" -> ", to, note.IsEmpty() ? u"" : u"; ", note}),
                ToneOf(entry)};
    }
    const Way way = WayOf(entry, direction);
    const std::u16string_view from = Text::FolderPart(way.from);
    const std::u16string_view to = Text::FolderPart(way.to);
    return {{from, way.from.View().substr(from.size())},
            {from == to ? std::u16string_view() : to, way.to.View().substr(to.size())},
            NoteFor(entry),
            ToneOf(entry)};
}

/// The state, for people.
std::u16string_view StateOf(const Batch::BatchInformation& batch)
{
    if (batch.wasStopped && batch.state == Batch::BatchState::Applied)
        return u"stopped";
    if (batch.wasStopped && batch.state == Batch::BatchState::UndonePartly)
        return u"stopped while it was undone";
    return WordFor(batch.state);
}

/// Of how many entries the state holds, and what of the others.
CString ExtentOf(const Batch::BatchInformation& batch)
{
    const std::u16string_view entries = batch.entries == 1 ? u"entry" : u"entries";
    CString text;
    if (!batch.renamed)
        text.Format(u"at most %u %s", batch.entries, entries);
    else if (*batch.renamed == (batch.state == Batch::BatchState::Undone ? 0 : batch.entries))
        text.Format(u"%u %s", batch.entries, entries);
    else
        text.Format(u"%u of %u %s%s", *batch.renamed, batch.entries, entries,
                    std::u16string_view(batch.state == Batch::BatchState::Undone         ? u" not found"
                                        : batch.state == Batch::BatchState::UndonePartly ? u" left"
                                                                                         : u""));
    return text;
}

CString SummaryTextOf(const Batch::BatchInformation& batch)
{
    if (batch.state == Batch::BatchState::Damaged)
        return CString::Join({WordFor(batch.state), u": ", batch.problem});
    CString undo;
    if (batch.state == Batch::BatchState::Undone && batch.undo != 0)
        undo.Format(u" (undo %u)", batch.undo);
    return CString::Join({StateOf(batch), undo, u", ", ExtentOf(batch)});
}

RecordValue StartOf(const Batch::BatchInformation& batch)
{
    const COleDateTime started =
        VyrPlatform::DateTimePattern::Read(batch.started, VyrPlatform::DateTimePattern::stored);
    return started.GetStatus() == COleDateTime::valid ? RecordValue(RecordDate{started}) : RecordValue();
}

RecordValue CountOf(std::size_t count)
{
    return static_cast<std::int64_t>(count);
}

using Information = Batch::BatchInformation;

const RecordField<Information> batchFields[] = {{{"number", "Batch", RecordKind::Number, true},
                                                 [](const Information& batch) {
                                                     return CountOf(batch.number);
                                                 }},
                                                {{"started", "Started", RecordKind::Date, true}, StartOf},
                                                {{"command", "Command"},
                                                 [](const Information& batch) {
                                                     return ValueOf(batch.command);
                                                 }},
                                                {{"folder", "Folder"},
                                                 [](const Information& batch) {
                                                     return ValueOf(batch.folder);
                                                 }},
                                                {{"state", "State"},
                                                 [](const Information& batch) {
                                                     return RecordValue(CString(WordFor(batch.state)));
                                                 }},
                                                {{"undo", "Undo", RecordKind::Number},
                                                 [](const Information& batch) {
                                                     return batch.undo == 0 ? RecordValue() : CountOf(batch.undo);
                                                 }},
                                                {{"entries", "Entries", RecordKind::Number},
                                                 [](const Information& batch) {
                                                     return CountOf(batch.entries);
                                                 }},
                                                {{"renamed", "Renamed", RecordKind::Number},
                                                 [](const Information& batch) {
                                                     return batch.renamed ? CountOf(*batch.renamed) : RecordValue();
                                                 }},
                                                {{"stopped", "Stopped", RecordKind::Flag},
                                                 [](const Information& batch) {
                                                     return RecordValue(batch.wasStopped);
                                                 }},
                                                {{"summary", "What has become of it", RecordKind::Text, true},
                                                 [](const Information& batch) {
                                                     return RecordValue(SummaryTextOf(batch));
                                                 }},
                                                {{"from", "First entry", RecordKind::Text, true},
                                                 [](const Information& batch) {
                                                     return ValueOf(batch.firstFrom);
                                                 }},
                                                {{"to", "To", RecordKind::Text, true},
                                                 [](const Information& batch) {
                                                     return ValueOf(batch.firstTo);
                                                 }},
                                                {{"problem", "Problem"}, [](const Information& batch) {
                                                     return ValueOf(batch.problem);
                                                 }}};

Tone ToneOf(const Information& batch)
{
    switch (batch.state) {
    case Batch::BatchState::Damaged:
        return Tone::Bad;
    case Batch::BatchState::CutOff:
    case Batch::BatchState::CutOffUndoing:
        return Tone::Notable;
    default:
        return Tone::Plain;
    }
}

} // namespace

CString NameOf(const Batch::BatchInformation& batch)
{
    CString number;
    number.Format(u"batch %u", batch.number);
    if (batch.state == Batch::BatchState::Damaged)
        return number;
    CString entries;
    entries.Format(u"%u %s", batch.entries, std::u16string_view(batch.entries == 1 ? u"entry" : u"entries"));
    return CString::Join({number, u" of ", batch.started, batch.command.IsEmpty() ? u"" : u", ", batch.command,
                          batch.folder.IsEmpty() ? u"" : u" in ", batch.folder, u", ", entries});
}

std::vector<RecordColumn> BatchColumns()
{
    return ColumnsOf(std::span<const RecordField<Information>>(batchFields));
}

RecordTable TableOfBatches(const std::vector<Batch::BatchInformation>& batches)
{
    RecordTable table = TableOf(batches, std::span<const RecordField<Information>>(batchFields));
    table.toneOf = [&batches](std::size_t row) {
        return ToneOf(batches[row]);
    };
    return table;
}

void WriteEntryTable(OutputBuffer& output, const std::vector<Batch::BatchEntry>& entries, Batch::Direction direction)
{
    WriteTable(
        output, entries.size(), [&](std::size_t index) { return RowOf(entries[index], direction); }, StyleOfOutput());
}

void WriteEntryJson(OutputBuffer& output, const std::vector<Batch::BatchEntry>& entries, Batch::Direction direction)
{
    for (const Batch::BatchEntry& entry : entries) {
        std::string line;
        if (entry.change) {
            const auto [from, to] = ValuesOf(*entry.change, direction);
            AppendJsonField(line, "kind", VyrPlatform::Encoding::FromUtf8(entry.change->Kind()));
            AppendJsonField(line, "path", entry.before);
            AppendJsonField(line, "from", from);
            AppendJsonField(line, "to", to);
        } else {
            const auto [from, to] = WayOf(entry, direction);
            AppendJsonField(line, "from", from);
            AppendJsonField(line, "to", to);
        }
        AppendJsonField(line, "status", WordFor(entry.result.outcome));
        if (!entry.result.reason.IsEmpty())
            AppendJsonField(line, "reason", entry.result.reason);
        line += entry.hasChanged ? ",\"changed\":true}\n" : ",\"changed\":false}\n";
        output << line;
    }
}

std::string SummaryOf(const Batch::BatchSummary& summary)
{
    return SummaryOf({{summary.done, WordFor(Model::Status::Renamed)},
                      {summary.refused, WordFor(Model::Status::Refused)},
                      {summary.failed, WordFor(Model::Status::Failed)},
                      {summary.notReached, WordFor(Model::Status::NotReached)}});
}

} // namespace VyrHost::Ui
