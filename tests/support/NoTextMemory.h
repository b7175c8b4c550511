// For tests: a process without memory for the texts of COM.
#pragma once

#include <memory>

namespace VyrTests {

/// As long as it lives, SysAllocString gives a null pointer.
class NoTextMemory
{
public:
    NoTextMemory();
    NoTextMemory(const NoTextMemory&) = delete;
    NoTextMemory& operator=(const NoTextMemory&) = delete;
    ~NoTextMemory();

private:
    struct Spy;
    std::unique_ptr<Spy> m_spy;
};

} // namespace VyrTests
