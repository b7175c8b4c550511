// Writes collected text to the standard output.
#include <VyrHost/ui/OutputBuffer.h>

#include <VyrHostPlatform/Console.h>

namespace VyrHost::Ui {

void OutputBuffer::Flush()
{
    if (!m_text.empty() && m_error == 0)
        m_error = VyrHostPlatform::Console::Write(VyrHostPlatform::Console::Stream::Output, m_text);
    m_text.clear();
}

} // namespace VyrHost::Ui
