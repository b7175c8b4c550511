/// @file
/// Divides work on many files between two threads: it mostly waits for the system.
#pragma once

#include <cstddef>
#include <thread>

namespace VyrHost::Model {

/// Calls `work` for the two halves of the indexes from `first` to `end`, the first on a second thread if there are
/// enough of them. Returns when both are done.
/// @param work  takes the first index of its half and the one after its last. It must not throw.
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
