// Words batches and their entries as rows and as JSON.
#include <VyrHost/ui/BatchOutput.h>

#include <VyrHost/text/FolderPart.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/JsonLines.h>
#include <VyrHost/ui/Summary.h>
#include <VyrHost/ui/Table.h>
#include <VyrHost/ui/Words.h>
#include <VyrPlatform/text/Encoding.h>

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

CString LineOf(const Batch::BatchInformation& batch)
{
    CString line;
    line.Format(u"%u  %s  ", batch.number, batch.started);
    if (batch.state == Batch::BatchState::Damaged)
        return CString::Join({line, WordFor(batch.state), u"  ", batch.problem});
    CString undo;
    if (batch.state == Batch::BatchState::Undone && batch.undo != 0)
        undo.Format(u" (undo %u)", batch.undo);
    return CString::Join(
        {line, StateOf(batch), undo, u", ", ExtentOf(batch), u"  ", batch.firstFrom, u" -> ", batch.firstTo});
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

void WriteBatchLines(OutputBuffer& output, const std::vector<Batch::BatchInformation>& batches)
{
    for (const Batch::BatchInformation& batch : batches)
        output << Text::SafeText(LineOf(batch)) << "\n";
}

void WriteBatchJson(OutputBuffer& output, const std::vector<Batch::BatchInformation>& batches)
{
    for (const Batch::BatchInformation& batch : batches) {
        std::string line = "{\"number\":" + std::to_string(batch.number);
        AppendJsonField(line, "started", batch.started);
        if (!batch.command.IsEmpty())
            AppendJsonField(line, "command", batch.command);
        if (!batch.folder.IsEmpty())
            AppendJsonField(line, "folder", batch.folder);
        AppendJsonField(line, "state", WordFor(batch.state));
        if (batch.undo != 0)
            line += ",\"undo\":" + std::to_string(batch.undo);
        line += ",\"entries\":" + std::to_string(batch.entries);
        if (batch.renamed)
            line += ",\"renamed\":" + std::to_string(*batch.renamed);
        line += batch.wasStopped ? ",\"stopped\":true" : ",\"stopped\":false";
        AppendJsonField(line, "from", batch.firstFrom);
        AppendJsonField(line, "to", batch.firstTo);
        if (!batch.problem.IsEmpty())
            AppendJsonField(line, "problem", batch.problem);
        output << line << "}\n";
    }
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
