// Words batches and their entries as rows and as JSON.
#include <VyrHost/output/BatchOutput.h>

#include <VyrHost/files/FolderPart.h>
#include <VyrHost/output/JsonLines.h>
#include <VyrHost/output/SafeText.h>
#include <VyrHost/output/Summary.h>
#include <VyrHost/output/Table.h>
#include <VyrHost/output/Words.h>
#include <VyrPlatform/text/Encoding.h>

#include <string_view>

namespace VyrHost {

namespace {

std::u16string_view WordFor(BatchState state)
{
    switch (state) {
    case BatchState::Applied:
        return u"applied";
    case BatchState::TakenBackInPart:
        return u"taken back in part";
    case BatchState::TakenBack:
        return u"taken back";
    case BatchState::BeingWorkedOn:
        return u"being worked on";
    case BatchState::CutOff:
        return u"cut off";
    case BatchState::CutOffTakingBack:
        return u"cut off while it was taken back";
    case BatchState::Damaged:
        break;
    }
    return u"damaged";
}

CString WordFor(RenameOutcome outcome)
{
    return VyrPlatform::Encoding::FromUtf8(WordFor(StatusOf(outcome)));
}

/// A rename as it went.
struct Way
{
    const CString& from;
    const CString& to;
};

Way WayOf(const BatchEntry& entry, BatchDirection direction)
{
    return direction == BatchDirection::Forward ? Way{entry.before, entry.after} : Way{entry.after, entry.before};
}

CString NoteFor(const BatchEntry& entry)
{
    CString note;
    if (entry.result.outcome != RenameOutcome::Done)
        note = WordFor(entry.result.outcome);
    if (!entry.result.reason.IsEmpty())
        note = CString::Join({note, note.IsEmpty() ? u"" : u": ", entry.result.reason});
    if (entry.hasChanged)
        note = CString::Join({note, note.IsEmpty() ? u"" : u"; ", u"it has changed since"});
    return note;
}

Tone ToneOf(const BatchEntry& entry)
{
    if (entry.result.outcome == RenameOutcome::Failed || entry.result.outcome == RenameOutcome::Refused)
        return Tone::Bad;
    return entry.hasChanged || entry.result.outcome == RenameOutcome::NotReached ? Tone::Notable : Tone::Plain;
}

TableRow RowOf(const BatchEntry& entry, BatchDirection direction)
{
    const Way way = WayOf(entry, direction);
    const std::u16string_view from = FolderPart(way.from);
    const std::u16string_view to = FolderPart(way.to);
    return {{from, way.from.View().substr(from.size())},
            {from == to ? std::u16string_view() : to, way.to.View().substr(to.size())},
            NoteFor(entry),
            ToneOf(entry)};
}

/// The state, for people.
std::u16string_view StateOf(const BatchInformation& batch)
{
    if (batch.wasStopped && batch.state == BatchState::Applied)
        return u"stopped";
    if (batch.wasStopped && batch.state == BatchState::TakenBackInPart)
        return u"stopped while it was taken back";
    return WordFor(batch.state);
}

/// Of how many entries the state holds, and what of the others.
CString ExtentOf(const BatchInformation& batch)
{
    const std::u16string_view entries = batch.entries == 1 ? u"entry" : u"entries";
    CString text;
    if (!batch.renamed)
        text.Format(u"at most %u %s", batch.entries, entries);
    else if (*batch.renamed == (batch.state == BatchState::TakenBack ? 0 : batch.entries))
        text.Format(u"%u %s", batch.entries, entries);
    else
        text.Format(u"%u of %u %s%s", *batch.renamed, batch.entries, entries,
                    std::u16string_view(batch.state == BatchState::TakenBack         ? u" not found"
                                        : batch.state == BatchState::TakenBackInPart ? u" left"
                                                                                     : u""));
    return text;
}

CString LineOf(const BatchInformation& batch)
{
    CString line;
    line.Format(u"%u  %s  ", batch.number, batch.started);
    if (batch.state == BatchState::Damaged)
        return CString::Join({line, WordFor(batch.state), u"  ", batch.problem});
    return CString::Join(
        {line, StateOf(batch), u", ", ExtentOf(batch), u"  ", batch.firstFrom, u" -> ", batch.firstTo});
}

} // namespace

void WriteBatchLines(OutputBuffer& output, const std::vector<BatchInformation>& batches)
{
    for (const BatchInformation& batch : batches)
        output << SafeText(LineOf(batch)) << "\n";
}

void WriteBatchJson(OutputBuffer& output, const std::vector<BatchInformation>& batches)
{
    for (const BatchInformation& batch : batches) {
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

void WriteEntryTable(OutputBuffer& output, const std::vector<BatchEntry>& entries, BatchDirection direction)
{
    WriteTable(
        output, entries.size(), [&](std::size_t index) { return RowOf(entries[index], direction); }, StyleOfOutput());
}

void WriteEntryJson(OutputBuffer& output, const std::vector<BatchEntry>& entries, BatchDirection direction)
{
    for (const BatchEntry& entry : entries) {
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

std::string SummaryOf(const BatchSummary& summary)
{
    return SummaryOf({{summary.done, WordFor(Status::Renamed)},
                      {summary.refused, WordFor(Status::Refused)},
                      {summary.failed, WordFor(Status::Failed)},
                      {summary.notReached, WordFor(Status::NotReached)}});
}

} // namespace VyrHost
