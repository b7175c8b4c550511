// Orders renames after those that they wait for, and breaks cycles.
#include <VyrHost/rename/Planner.h>

#include <array>

namespace VyrHost::Rename {

namespace {

/// A rename waits for the entry at its new path to leave and for its new folder to be made; the making of a folder
/// waits for its parent and for the entry at its path to leave. Both are tasks here: the entries first, then the
/// folders.
class StepOrder
{
public:
    StepOrder(const Model::RenamePlan& plan, const std::vector<Model::PlanIndex>& standingAt)
        : m_plan(plan), m_standingAt(standingAt), m_states(plan.entries.size() + plan.folders.size(), State::Untouched)
    {}

    std::vector<Model::PlanStep> Order()
    {
        m_steps.reserve(m_plan.entries.size());
        for (Model::PlanIndex entry = 0; entry < m_plan.entries.size(); ++entry)
            Visit(entry);
        return std::move(m_steps);
    }

private:
    using Task = std::size_t;
    static constexpr Task nothing = ~Task{0};

    enum class State : std::uint8_t
    {
        Untouched,
        /// Its dependencies are being ordered.
        Open,
        /// An entry that has left its place already.
        UseTemporaryName,
        Done
    };

    /// A visited task, and the number of its dependencies that are ordered.
    struct Visited
    {
        Task task;
        unsigned next = 0;
    };

    [[nodiscard]] bool IsEntry(Task task) const { return task < m_plan.entries.size(); }
    [[nodiscard]] Model::PlanIndex FolderOf(Task task) const
    {
        return static_cast<Model::PlanIndex>(task - m_plan.entries.size());
    }
    [[nodiscard]] Task MakingOf(Model::PlanIndex folder) const
    {
        return folder != Model::none && m_plan.folders[folder].isNew ? m_plan.entries.size() + folder : nothing;
    }
    [[nodiscard]] static Task RenameOf(Model::PlanIndex entry) { return entry == Model::none ? nothing : Task{entry}; }

    /// Folders come first, to keep their order from the top down.
    [[nodiscard]] std::array<Task, 2> WaitsFor(Task task) const
    {
        if (IsEntry(task))
            return {MakingOf(m_plan.entries[task].to.folder), RenameOf(m_plan.entries[task].waitsFor)};
        const Model::PlanIndex folder = FolderOf(task);
        return {MakingOf(m_plan.folders[folder].place.folder), RenameOf(m_standingAt[folder])};
    }

    // Without recursion: a chain can be as long as the list.
    void Visit(Task first)
    {
        if (m_states[first] != State::Untouched)
            return;
        Open(first);
        while (!m_way.empty()) {
            Visited& visited = m_way.back();
            const auto waitsFor = WaitsFor(visited.task);
            if (visited.next == waitsFor.size()) {
                Finish(visited.task);
                m_way.pop_back();
                continue;
            }
            const Task other = waitsFor[visited.next++];
            if (other == nothing)
                continue;
            if (m_states[other] == State::Untouched)
                Open(other);
            else if (m_states[other] == State::Open)
                BreakCycle(other);
        }
    }

    void Open(Task task)
    {
        m_states[task] = State::Open;
        m_way.push_back({task});
    }

    /// Breaks the cycle in which `task` waits for itself.
    void BreakCycle(Task task)
    {
        if (IsEntry(task))
            UseTemporaryName(static_cast<Model::PlanIndex>(task));
        else
            MakeAtOnce(FolderOf(task));
    }

    void UseTemporaryName(Model::PlanIndex entry)
    {
        m_steps.push_back({Model::PlanStep::Action::UseTemporaryName, entry});
        m_states[entry] = State::UseTemporaryName;
    }

    /// Makes a folder that a visited task waits for: only the entry at the place of the topmost new folder can be in
    /// the way, and it is visited, too.
    void MakeAtOnce(Model::PlanIndex folder)
    {
        std::vector<Model::PlanIndex> line;
        for (Model::PlanIndex at = folder; MakingOf(at) != nothing && m_states[MakingOf(at)] != State::Done;
             at = m_plan.folders[at].place.folder)
            line.push_back(at);
        for (; !line.empty(); line.pop_back()) {
            const Model::PlanIndex inTheWay = m_standingAt[line.back()];
            if (inTheWay != Model::none && m_states[inTheWay] == State::Open)
                UseTemporaryName(inTheWay);
            Finish(MakingOf(line.back()));
        }
    }

    void Finish(Task task)
    {
        if (m_states[task] == State::Done)
            return;
        m_states[task] = State::Done;
        if (IsEntry(task))
            m_steps.push_back({Model::PlanStep::Action::Rename, static_cast<Model::PlanIndex>(task)});
        else
            m_steps.push_back({Model::PlanStep::Action::MakeFolder, FolderOf(task)});
    }

    const Model::RenamePlan& m_plan;
    const std::vector<Model::PlanIndex>& m_standingAt;
    std::vector<State> m_states;
    std::vector<Visited> m_way;
    std::vector<Model::PlanStep> m_steps;
};

} // namespace

std::vector<Model::PlanStep> OrderSteps(const Model::RenamePlan& plan, const std::vector<Model::PlanIndex>& standingAt)
{
    return StepOrder(plan, standingAt).Order();
}

} // namespace VyrHost::Rename
