// Any bytes as a journal: one that is read can be used, stays in its folders, and is written back the same.
#include <VyrHost/batch/JournalLines.h>
#include <VyrHost/batch/JournalText.h>
#include <VyrHost/model/RenamePlan.h>

#include <VyrPlatform/files/FileSystem.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

using namespace VyrHost::Batch;
using namespace VyrHost::Model;

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

void AppendCheck(std::string& text, std::uint32_t check)
{
    char digits[16];
    std::snprintf(digits, sizeof(digits), "\t%08x", static_cast<unsigned>(check));
    text += digits;
}

/// `text` with correct checksums, so that its content is reached.
std::string WithChecks(std::string_view text)
{
    std::string whole;
    std::uint32_t planCheck = 0;
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = text.substr(0, end);
        whole += line;
        if (line.starts_with("batch"))
            AppendCheck(whole, Checksum(0, whole));
        else if (line.starts_with("end"))
            AppendCheck(whole, planCheck = Checksum(0, whole));
        else if (line.starts_with("mark"))
            AppendCheck(whole, Checksum(planCheck, line));
        whole += '\n';
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return whole;
}

/// A kind of change that accepts any two different texts.
class AnyChange final : public Change
{
public:
    AnyChange(const CString& before, const CString& after) : m_before(before), m_after(after) {}

    std::string_view Kind() const override { return "any"; }
    CString Before() const override { return m_before; }
    CString After() const override { return m_after; }
    CString ShownBefore() const override { return m_before; }
    CString ShownAfter() const override { return m_after; }
    ChangeLook Look(const CString&) const override { return {}; }
    std::uint32_t Apply(const CString&) const override { return 0; }
    std::uint32_t Undo(const CString&) const override { return 0; }

private:
    CString m_before;
    CString m_after;
};

const ChangeKinds& Kinds()
{
    static const ChangeKinds kinds{
        {"any", [](const CString& before, const CString& after) -> std::shared_ptr<const Change> {
             return before == after ? nullptr : std::make_shared<AnyChange>(before, after);
         }}};
    return kinds;
}

std::string TextOf(const Journal& journal, std::uint32_t& check)
{
    std::string text;
    check = WriteJournal(journal, [&text](std::string_view piece) { text += piece; });
    if (journal.checkpoint)
        text += WriteCheckpoint(*journal.checkpoint, check);
    return text;
}

bool IsPart(std::u16string_view name)
{
    return !name.empty() && name != u"." && name != u".." && std::none_of(name.begin(), name.end(), [](char16_t unit) {
        return unit == 0 || VyrPlatform::FileSystem::IsSeparator(unit);
    });
}

void CheckPlan(const Journal& journal)
{
    const RenamePlan& plan = journal.plan;
    Require(FindPlanFault(plan).IsEmpty());
    Require(journal.states.size() == plan.entries.size());
    for (const PlanEntry& entry : plan.entries) {
        Require(IsPart(entry.from.name) && IsPart(entry.to.name));
        Require(entry.from.folder < plan.folders.size() && entry.to.folder < plan.folders.size());
    }
    for (const PlannedChange& planned : journal.changes)
        Require(planned.change && planned.place.folder < plan.folders.size() && IsPart(planned.place.name));
    for (PlanIndex folder = 0; folder < plan.folders.size(); ++folder) {
        Require(!PathBefore(plan, folder).IsEmpty());
        Require(!plan.folders[folder].isNew || IsPart(plan.folders[folder].place.name));
    }
    for (const PlanStep& step : plan.steps)
        Require(step.subject <
                (step.action == PlanStep::Action::MakeFolder ? plan.folders.size() : plan.entries.size()));
    if (!journal.checkpoint)
        return;
    for (const PlanIndex entry : journal.checkpoint->entriesBefore)
        Require(entry < plan.entries.size());
    for (const PlanIndex change : journal.checkpoint->changesBefore)
        Require(change < journal.changes.size());
    for (const PlanIndex entry : journal.checkpoint->entriesTemporary)
        Require(entry < plan.entries.size());
    for (const PlanIndex folder : journal.checkpoint->foldersMade)
        Require(folder < plan.folders.size());
}

/// Its text, written again, has the same content.
void CheckRoundTrip(const Journal& journal)
{
    std::uint32_t check = 0;
    const std::string text = TextOf(journal, check);
    CString problem;
    const std::optional<Journal> again = ReadJournal(text, problem, Kinds());
    Require(again.has_value());
    std::uint32_t checkAgain = 0;
    Require(TextOf(*again, checkAgain) == text && again->check == check);
}

/// Reading only the end gives the same as reading the whole.
void CheckLastMark(const std::optional<Journal>& journal, std::string_view text)
{
    const std::size_t entries = journal ? journal->plan.entries.size() + journal->changes.size() : 1000;
    const std::optional<CheckpointOutline> checkpoint = ReadLastCheckpoint(FindCheckpoints(text), entries);
    Require(!checkpoint || checkpoint->entriesBefore + checkpoint->entriesTemporary <= entries);
    if (!journal || !checkpoint)
        return;
    Require(journal->checkpoint && journal->checkpoint->isBackward == checkpoint->isBackward &&
            journal->checkpoint->wasStopped == checkpoint->wasStopped);
    Require(journal->checkpoint->entriesBefore.size() + journal->checkpoint->changesBefore.size() ==
                checkpoint->entriesBefore &&
            journal->checkpoint->entriesTemporary.size() == checkpoint->entriesTemporary);
}

void CheckText(std::string_view text)
{
    CString problem;
    const std::optional<Journal> journal = ReadJournal(text, problem, Kinds());
    Require(journal.has_value() == problem.IsEmpty());
    if (journal) {
        CheckPlan(*journal);
        CheckRoundTrip(*journal);
    }
    CheckLastMark(journal, text);
    CString headingProblem;
    Require(ReadHeading(text, headingProblem).has_value() || !journal);
}

void CheckName(std::string_view bytes)
{
    const std::optional<CString> name = ReadJournalName(bytes);
    if (!name)
        return;
    std::string text;
    AppendJournalName(text, *name);
    Require(text.find_first_of("\n\t") == std::string::npos);
    Require(ReadJournalName(text) == name);
}

} // namespace

/// Refusals throw, and with this check every throw scans the whole stack: a third of the time.
extern "C" const char* __asan_default_options()
{
    return "detect_stack_use_after_return=0";
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string bytes(data, data + size);
    CheckText(bytes);
    CheckText(WithChecks(bytes));
    CheckName(bytes);
    return 0;
}
