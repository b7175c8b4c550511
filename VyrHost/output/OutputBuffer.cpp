// Writes collected text to the standard output.
#include <VyrHost/output/OutputBuffer.h>

#include <VyrHostPlatform/Console.h>

namespace VyrHost {

void OutputBuffer::Flush()
{
    if (!m_text.empty() && !m_hasFailed)
        m_hasFailed = !VyrHostPlatform::Console::Write(VyrHostPlatform::Console::Stream::Output, m_text);
    m_text.clear();
}

} // namespace VyrHost
