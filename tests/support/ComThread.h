// For tests: what a host does before its thread calls the system's components.
#pragma once

namespace VyrTests {

/// The calling thread has COM initialised as long as it lives. Linux has no COM: nothing happens there.
class ComThread
{
public:
    ComThread();
    ComThread(const ComThread&) = delete;
    ComThread& operator=(const ComThread&) = delete;
    ~ComThread();
};

} // namespace VyrTests
