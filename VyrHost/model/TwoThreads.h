/// @file
/// Shares work on many files between two threads: most of its time goes by in calls of the system.
#pragma once

#include <cstddef>
#include <thread>

namespace VyrHost::Model {

/// Calls `work` for the indexes from `first` up to `end` in two halves, the first of which gets a thread of its own
/// where they are worth one. Returns when both are done.
/// @param work  takes the first index of its half and the one behind its last. It throws nothing.
template <class Work>
void OnTwoThreads(std::size_t first, std::size_t end, const Work& work)
{
    constexpr std::size_t enoughForTwo = 256;
    std::size_t middle = first;
    std::jthread other;
    if (end - first >= enoughForTwo) {
        middle = first + (end - first) / 2;
        other = std::jthread([&work, first, middle] { work(first, middle); });
    }
    work(middle, end);
}

} // namespace VyrHost::Model
