// Writes collected text to the standard output.
#include <VyrHost/output/OutputBuffer.h>

#include <VyrPlatform/Console.h>

namespace VyrHost {

void OutputBuffer::Flush()
{
    if (!m_text.empty() && !m_hasFailed)
        m_hasFailed = !VyrPlatform::Console::Write(VyrPlatform::Console::Stream::Output, m_text);
    m_text.clear();
}

} // namespace VyrHost
