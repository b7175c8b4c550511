// Gives names out in the order of the list, and takes one back when an entry has to stay.
#include <VyrHost/preview/Allotment.h>

#include <VyrHost/preview/NameJudge.h>
#include <VyrHost/preview/NumberedNames.h>

#include <unordered_map>

namespace VyrHost {

namespace {

using VyrPlatform::FileSystem::Kind;

class Allotment
{
public:
    Allotment(EntryList& list, std::vector<Decision>& decisions, const ConflictSettings& settings, bool mayNumber)
        : m_list(list), m_decisions(decisions), m_settings(settings), m_mayNumber(mayNumber)
    {}

    void Run()
    {
        const auto count = static_cast<std::uint32_t>(m_list.entries.size());
        for (std::uint32_t entry = 0; entry < count; ++entry)
            if (!m_decisions[entry].IsRename())
                HoldOwnName(entry);
        for (std::uint32_t entry = 0; entry < count; ++entry)
            if (m_decisions[entry].IsRename())
                Place(entry);
    }

private:
    void Place(std::uint32_t entry)
    {
        m_pending.push_back(entry);
        while (!m_pending.empty()) {
            const std::uint32_t next = m_pending.back();
            m_pending.pop_back();
            Settle(next);
        }
    }

    void Settle(std::uint32_t entry)
    {
        Decision& decision = m_decisions[entry];
        const std::u16string_view wanted = WantedName(entry);
        NameRecord& record = Names(decision).Add(wanted);
        if (IsFree(record)) {
            record.holder = entry;
            return;
        }
        if (m_settings.mode == OnConflict::Number && m_mayNumber)
            Number(entry, wanted);
        else
            Stay(entry, m_settings.mode == OnConflict::Skip ? Status::Skipped : Status::Refused, ClashOf(record));
    }

    void Number(std::uint32_t entry, std::u16string_view wanted)
    {
        Decision& decision = m_decisions[entry];
        NumberedNames& names = NamesFor(entry, wanted);
        for (CString name = names.Next(); !name.IsEmpty(); name = names.Next()) {
            if (const Reason reason = JudgeName(name, m_list.entries[entry].name).reason; reason != Reason::None) {
                Stay(entry, Status::Refused, reason);
                return;
            }
            NameRecord* record = Names(decision).Find(name);
            if (record && !IsFree(*record))
                continue;
            m_wanted.try_emplace(entry, wanted);
            decision.name = m_list.folders.Keep(name);
            if (!record)
                record = &Names(decision).Add(decision.name);
            record->holder = entry;
            const Entry& own = m_list.entries[entry];
            const bool isOwn = decision.folder == own.folder && decision.name == own.name;
            decision.status = isOwn ? Status::Unchanged : Status::Numbered;
            return;
        }
        Stay(entry, Status::Refused, Reason::NoFreeNumber);
    }

    /// The numbered names of `wanted`, from where the last entry that wanted it left off.
    NumberedNames& NamesFor(std::uint32_t entry, std::u16string_view wanted)
    {
        const Decision& decision = m_decisions[entry];
        NameTable& names = Names(decision);
        const NameRecord& record = names.Add(wanted);
        const auto index = static_cast<std::uint64_t>(&record - names.Records().data());
        const std::uint64_t key = (std::uint64_t{decision.folder} << 32) | index;
        const auto found = m_numbered.find(key);
        if (found != m_numbered.end())
            return found->second;
        // As the engine splits: by what stands there, where something does.
        const Kind kind = record.kind == Kind::Missing ? m_list.entries[entry].kind : record.kind;
        const CString path = CString::Join({m_list.folders[decision.folder].path, wanted});
        return m_numbered.try_emplace(key, path, kind == Kind::Folder, m_settings.numbering).first->second;
    }

    /// The entry keeps the name that it has, whoever was to get it.
    void Stay(std::uint32_t entry, Status status, Reason reason)
    {
        Decision& decision = m_decisions[entry];
        decision.name = WantedName(entry);
        decision.status = status;
        decision.reason = reason;
        HoldOwnName(entry);
    }

    void HoldOwnName(std::uint32_t entry)
    {
        const Entry& own = m_list.entries[entry];
        if (own.kind == Kind::Missing)
            return;
        NameRecord& record = m_list.folders[own.folder].names.Add(own.name);
        if (record.holder != NoEntry)
            m_pending.push_back(record.holder);
        record.holder = entry;
    }

    /// What the rules made, before any number.
    [[nodiscard]] std::u16string_view WantedName(std::uint32_t entry) const
    {
        const auto found = m_wanted.find(entry);
        return found != m_wanted.end() ? found->second : m_decisions[entry].name;
    }

    /// Whether nobody else has the name after the batch. An entry that stays holds its own name, so an owner without
    /// a holder leaves.
    static bool IsFree(const NameRecord& record)
    {
        return record.holder == NoEntry && (record.kind == Kind::Missing || record.owner != NoEntry);
    }

    [[nodiscard]] Reason ClashOf(const NameRecord& record) const
    {
        const bool goesToOther = record.holder != NoEntry && m_decisions[record.holder].IsRename();
        return goesToOther ? Reason::TwoToOne : Reason::TargetExists;
    }

    [[nodiscard]] NameTable& Names(const Decision& decision) { return m_list.folders[decision.folder].names; }

    EntryList& m_list;
    std::vector<Decision>& m_decisions;
    const ConflictSettings& m_settings;
    const bool m_mayNumber;
    std::vector<std::uint32_t> m_pending;
    /// What the entries wanted that got a numbered name.
    std::unordered_map<std::uint32_t, std::u16string_view> m_wanted;
    /// By folder and index of the name's record.
    std::unordered_map<std::uint64_t, NumberedNames> m_numbered;
};

} // namespace

void Allot(EntryList& list, std::vector<Decision>& decisions, const ConflictSettings& settings, bool mayNumber)
{
    Allotment(list, decisions, settings, mayNumber).Run();
}

} // namespace VyrHost
