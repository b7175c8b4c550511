// Collects debugger output through the sink.
#include <tests/support/DebugCapture.h>

#include <VyrPlatform/process/DebugOutput.h>

namespace VyrTests {

DebugCapture::DebugCapture()
{
    VyrPlatform::DebugOutput::SetSink([this](const CString& text) {
        const std::lock_guard lock(m_mutex);
        m_texts.push_back(text);
    });
}

DebugCapture::~DebugCapture()
{
    VyrPlatform::DebugOutput::SetSink({});
}

std::vector<CString> DebugCapture::Texts() const
{
    const std::lock_guard lock(m_mutex);
    return m_texts;
}

} // namespace VyrTests
