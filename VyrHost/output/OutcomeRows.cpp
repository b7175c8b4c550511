// Words the decision on an entry as a row.
#include <VyrHost/output/OutcomeRows.h>

#include <VyrHost/output/Words.h>
#include <VyrPlatform/text/Encoding.h>

#include <string>

namespace VyrHost {

namespace {

ShownName NewName(const EntryList& list, const Entry& entry, const Decision& decision)
{
    if (decision.status == Status::Unchanged || decision.name.IsEmpty())
        return {};
    if (decision.folder == entry.folder)
        return {{}, decision.name};
    return {list.folders[decision.folder].shown, decision.name};
}

CString NoteFor(const Outcome& outcome, std::size_t index)
{
    const Decision& decision = outcome.decisions[index];
    if (decision.status == Status::Renamed && decision.warning == VyrHostPlatform::NameFault::None)
        return {};
    std::string note;
    if (decision.status != Status::Renamed)
        note = WordFor(decision.status);
    if (const std::string reason = ReasonFor(outcome, index); !reason.empty())
        note.append(": ").append(reason);
    if (decision.warning != VyrHostPlatform::NameFault::None && decision.IsRename())
        note.append(note.empty() ? "" : "; ").append("warning: ").append(WarningFor(decision.warning));
    return VyrPlatform::Encoding::FromUtf8(note);
}

Tone ToneOf(const Decision& decision)
{
    switch (decision.status) {
    case Status::Renamed:
        return decision.warning == VyrHostPlatform::NameFault::None ? Tone::Plain : Tone::Notable;
    case Status::Numbered:
    case Status::Skipped:
    case Status::NotReached:
        return Tone::Notable;
    case Status::Unchanged:
        return Tone::Faint;
    case Status::Refused:
    case Status::Failed:
        break;
    }
    return Tone::Bad;
}

} // namespace

TableRow RowOf(const EntryList& list, const Outcome& outcome, std::size_t index)
{
    const Entry& entry = list.entries[index];
    const Decision& decision = outcome.decisions[index];
    return {{list.folders[entry.folder].shown, entry.name},
            NewName(list, entry, decision),
            NoteFor(outcome, index),
            ToneOf(decision)};
}

} // namespace VyrHost
