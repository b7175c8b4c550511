// For tests: what operations do outside of files and the registry.
#pragma once

#include <memory>
#include <string>

namespace VyrCTests {

/// Records what is written to the debugger output and, on Linux, which programs are started: none is then. On Windows
/// the library for C starts them itself, as the operations in C++ do.
class OutsideCalls
{
public:
    OutsideCalls();
    OutsideCalls(const OutsideCalls&) = delete;
    OutsideCalls& operator=(const OutsideCalls&) = delete;
    ~OutsideCalls();

    [[nodiscard]] const std::string& Text() const;
    void Clear();

private:
    struct Record;
    std::unique_ptr<Record> m_record;
};

} // namespace VyrCTests
