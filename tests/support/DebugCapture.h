// For tests: what is written to the debugger output.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <mutex>
#include <vector>

namespace VyrTests {

/// Collects the texts that any thread writes to the debugger output during its life. One at a time.
class DebugCapture
{
public:
    DebugCapture();
    DebugCapture(const DebugCapture&) = delete;
    DebugCapture& operator=(const DebugCapture&) = delete;
    ~DebugCapture();

    /// The texts so far, in the order of their writing.
    [[nodiscard]] std::vector<CString> Texts() const;

private:
    mutable std::mutex m_mutex;
    std::vector<CString> m_texts;
};

} // namespace VyrTests
