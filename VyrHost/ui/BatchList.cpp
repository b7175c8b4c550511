#include <VyrHost/ui/BatchList.h>

#include <VyrPlatform/time/DateTimePattern.h>

#include <span>
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

/// The state in words.
std::u16string_view StateOf(const Batch::BatchInformation& batch)
{
    if (batch.wasStopped && batch.state == Batch::BatchState::Applied)
        return u"stopped";
    if (batch.wasStopped && batch.state == Batch::BatchState::UndonePartly)
        return u"stopped while it was undone";
    return WordFor(batch.state);
}

/// The number of entries in that state, and what happened to the others.
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
                    std::u16string_view(batch.state == Batch::BatchState::Undone         ? u" not undone"
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

const RecordField<Information> batchFields[] = {
    {{"number", "Batch", RecordKind::Number, true}, ValueAt<CountOf, &Information::number>},
    {{"started", "Started", RecordKind::Date, true}, StartOf},
    {{"command", "Command"}, TextAt<&Information::command>},
    {{"folder", "Folder"}, TextAt<&Information::folder>},
    {{"state", "State"},
     [](const Information& batch) {
         return RecordValue(CString(WordFor(batch.state)));
     }},
    {{"undo", "Undo", RecordKind::Number},
     [](const Information& batch) {
         return batch.undo == 0 ? RecordValue() : CountOf(batch.undo);
     }},
    {{"entries", "Entries", RecordKind::Number}, ValueAt<CountOf, &Information::entries>},
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
    {{"from", "First entry", RecordKind::Text, true}, TextAt<&Information::firstFrom>},
    {{"to", "To", RecordKind::Text, true}, TextAt<&Information::firstTo>},
    {{"problem", "Problem"}, TextAt<&Information::problem>},
};

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
    const CString started = ShownText(StartOf(batch), RecordKind::Date);
    return CString::Join({number, started.IsEmpty() ? u"" : u" of ", started, batch.command.IsEmpty() ? u"" : u", ",
                          batch.command, batch.folder.IsEmpty() ? u"" : u" in ", batch.folder, u", ", entries});
}

std::vector<RecordColumn> BatchColumns()
{
    return ColumnsOf(std::span<const RecordField<Information>>(batchFields));
}

RecordTable TableOfBatches(const std::vector<Batch::BatchInformation>& batches)
{
    RecordTable table = TableOf(batches, std::span<const RecordField<Information>>(batchFields));
    table.title = "Batches";
    table.toneOf = [&batches](std::size_t row) {
        return ToneOf(batches[row]);
    };
    return table;
}

} // namespace VyrHost::Ui
