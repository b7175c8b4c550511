// Asks the environment what the terminal is.
#include <VyrHost/ui/Terminal.h>

#include <VyrPlatform/process/Process.h>

namespace VyrHost::Ui {

bool ObeysEscapes(VyrHostPlatform::Console::Stream stream)
{
    const auto terminal = VyrPlatform::Process::GetEnvironment(u"TERM");
    return VyrHostPlatform::Console::IsTerminal(stream) && (!terminal || *terminal != u"dumb");
}

} // namespace VyrHost::Ui
