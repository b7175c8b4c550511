// Looks at the sources of a batch on two threads.
#include <VyrHost/batch/SourceStates.h>

#include <VyrHost/batch/FolderCache.h>

#include <thread>

namespace VyrHost::Batch {

std::vector<VyrPlatform::FileState> LookAtSources(const Model::RenamePlan& plan, FileOperations& files)
{
    constexpr std::size_t enoughForTwo = 256;
    const PlanProgress before(plan, 0);
    std::vector<VyrPlatform::FileState> states(plan.entries.size());
    const auto look = [&](std::size_t first, std::size_t end) {
        FolderCache folders(before, files);
        for (std::size_t entry = first; entry < end; ++entry)
            states[entry] = folders.Look(plan.entries[entry].from);
    };
    std::size_t middle = 0;
    std::jthread other;
    if (states.size() >= enoughForTwo) {
        middle = states.size() / 2;
        other = std::jthread(look, 0, middle);
    }
    look(middle, states.size());
    return states;
}

} // namespace VyrHost::Batch
