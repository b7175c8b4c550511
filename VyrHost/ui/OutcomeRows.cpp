// Words the decision on an entry as a row.
#include <VyrHost/ui/OutcomeRows.h>

#include <VyrHost/ui/Words.h>
#include <VyrPlatform/text/Encoding.h>

#include <string>
#include <string_view>

namespace VyrHost::Ui {

namespace {

ShownName NewName(const Model::EntryList& list, const Model::Entry& entry, const Model::Decision& decision)
{
    if (decision.status == Model::Status::Unchanged || decision.name.IsEmpty())
        return {};
    if (decision.folder == entry.folder)
        return {{}, decision.name};
    return {list.folders[decision.folder].shown, decision.name};
}

void AppendRemark(std::string& note, std::string_view what, std::string_view words)
{
    if (!words.empty())
        note.append(note.empty() ? "" : "; ").append(what).append(words);
}

CString NoteFor(const Model::Outcome& outcome, std::size_t index)
{
    const Model::Decision& decision = outcome.decisions[index];
    const bool hasWarning = decision.warning != VyrHostPlatform::NameFault::None;
    if (decision.status == Model::Status::Renamed && !hasWarning && decision.datesTaken.IsEmpty())
        return {};
    std::string note;
    if (decision.status != Model::Status::Renamed)
        note = WordFor(decision.status);
    if (const std::string reason = ReasonFor(outcome, index); !reason.empty())
        note.append(": ").append(reason);
    if (decision.IsRename()) {
        AppendRemark(note, "date: ", WordsFor(decision.datesTaken));
        AppendRemark(note, "warning: ", WarningFor(decision.warning));
    }
    return VyrPlatform::Encoding::FromUtf8(note);
}

Tone ToneOf(const Model::Decision& decision)
{
    switch (decision.status) {
    case Model::Status::Renamed:
        return decision.warning == VyrHostPlatform::NameFault::None ? Tone::Plain : Tone::Notable;
    case Model::Status::Numbered:
    case Model::Status::Skipped:
    case Model::Status::NotReached:
        return Tone::Notable;
    case Model::Status::Unchanged:
        return Tone::Faint;
    case Model::Status::Refused:
    case Model::Status::Failed:
        break;
    }
    return Tone::Bad;
}

} // namespace

TableRow RowOf(const Model::EntryList& list, const Model::Outcome& outcome, std::size_t index)
{
    const Model::Entry& entry = list.entries[index];
    const Model::Decision& decision = outcome.decisions[index];
    return {{list.folders[entry.folder].shown, entry.name},
            NewName(list, entry, decision),
            NoteFor(outcome, index),
            ToneOf(decision)};
}

} // namespace VyrHost::Ui
