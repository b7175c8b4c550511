// Runs the rules over the list and settles who gets which name.
#include <VyrHost/preview/Preview.h>

#include <VyrHost/preview/Allotment.h>
#include <VyrHost/preview/NameJudge.h>
#include <VyrPlatform/FileSystem.h>

#include <algorithm>

namespace VyrHost {

namespace {

using VyrPlatform::FileSystem::Kind;

Decision Refused(Decision decision, Reason reason)
{
    decision.status = Status::Refused;
    decision.reason = reason;
    return decision;
}

Reason ReasonOf(RuleFault fault)
{
    return fault == RuleFault::BadFolder ? Reason::BadFolder : Reason::NoDate;
}

/// Runs the rules over entry after entry.
class Namer
{
public:
    Namer(EntryList& list, const Rules& rules) : m_list(list), m_rules(rules) {}

    Decision Name(const Entry& entry)
    {
        Decision decision;
        decision.folder = entry.folder;
        if (m_list.folders[entry.folder].error != 0)
            return Refused(decision, Reason::FolderNotRead);
        if (entry.kind == Kind::Missing)
            return Refused(decision, Reason::NoSuchEntry);
        Fill(entry);
        for (const auto& rule : m_rules)
            if (const RuleFault fault = rule->Apply(m_subject); fault != RuleFault::None)
                return Refused(decision, ReasonOf(fault));
        if (m_subject.name.IsEmpty())
            return Refused(decision, Reason::EmptyName);
        return Judge(entry, decision);
    }

private:
    void Fill(const Entry& entry)
    {
        m_subject.folder = m_list.folders[entry.folder].path;
        m_subject.path = CString::Join({m_subject.folder, entry.name});
        m_subject.isFolder = entry.kind == Kind::Folder;
        m_subject.index = m_index++;
        SplitName split = Split(m_subject.path, entry);
        m_subject.name.Swap(split.name);
        m_subject.extension.Swap(split.extension);
    }

    Decision Judge(const Entry& entry, Decision decision)
    {
        if (m_subject.folder != m_list.folders[entry.folder].path)
            decision.folder = OpenTarget(entry);
        const CString name = m_subject.name + m_subject.extension;
        if (decision.folder == entry.folder && name == entry.name) {
            decision.name = entry.name;
            decision.status = Status::Unchanged;
            return decision;
        }
        decision.name = m_list.folders.Keep(name);
        const NameJudgement judgement = JudgeName(decision.name, entry.name);
        if (judgement.reason != Reason::None)
            return Refused(decision, judgement.reason);
        decision.warning = judgement.warning;
        return decision;
    }

    std::uint32_t OpenTarget(const Entry& entry)
    {
        const Folder& now = m_list.folders[entry.folder];
        const CString shown = now.shown + m_subject.folder.Mid(now.path.GetLength());
        return m_list.folders.Open(m_subject.folder, shown);
    }

    EntryList& m_list;
    const Rules& m_rules;
    Subject m_subject;
    int m_index = 0;
};

} // namespace

std::vector<Decision> Decide(EntryList& list, const Rules& rules, const ConflictSettings& settings)
{
    std::vector<Decision> decisions;
    decisions.reserve(list.entries.size());
    Namer namer(list, rules);
    for (const Entry& entry : list.entries)
        decisions.push_back(namer.Name(entry));
    const bool mayNumber = std::any_of(rules.begin(), rules.end(), [](const auto& rule) { return rule->MayNumber(); });
    Allot(list, decisions, settings, mayNumber);
    return decisions;
}

} // namespace VyrHost
