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

Way WayOf(const Batch::BatchEntry& entry, BatchDirection direction)
{
    return direction == BatchDirection::Forward ? Way{entry.before, entry.after} : Way{entry.after, entry.before};
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

TableRow RowOf(const Batch::BatchEntry& entry, BatchDirection direction)
{
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
    return CString::Join(
        {line, StateOf(batch), u", ", ExtentOf(batch), u"  ", batch.firstFrom, u" -> ", batch.firstTo});
}

} // namespace

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
        AppendJsonField(line, "state", WordFor(batch.state));
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

void WriteEntryTable(OutputBuffer& output, const std::vector<Batch::BatchEntry>& entries, BatchDirection direction)
{
    WriteTable(
        output, entries.size(), [&](std::size_t index) { return RowOf(entries[index], direction); }, StyleOfOutput());
}

void WriteEntryJson(OutputBuffer& output, const std::vector<Batch::BatchEntry>& entries, BatchDirection direction)
{
    for (const Batch::BatchEntry& entry : entries) {
        const auto [from, to] = WayOf(entry, direction);
        std::string line;
        AppendJsonField(line, "from", from);
        AppendJsonField(line, "to", to);
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
