#include <VyrHost/ui/Terminal.h>

#include <VyrHostPlatform/Console.h>
#include <VyrPlatform/process/Process.h>

#include <algorithm>
#include <utility>

namespace VyrHost::Ui {

bool ObeysEscapes(VyrHostPlatform::Console::Stream stream)
{
    const auto terminal = VyrPlatform::Process::GetEnvironment(u"TERM");
    return VyrHostPlatform::Console::IsTerminal(stream) && (!terminal || *terminal != u"dumb");
}

namespace {

using VyrHostPlatform::Console::Stream;

constexpr std::chrono::milliseconds patience{500};
constexpr std::chrono::milliseconds pause{100};
constexpr std::size_t barWidth = 30;
constexpr const char* eraseLine = "\r\x1b[K";

std::string Bar(std::size_t done, std::size_t total)
{
    const std::size_t filled = total == 0 ? barWidth : std::min(barWidth * done / total, barWidth);
    return std::string(filled, '#') + std::string(barWidth - filled, '.');
}

} // namespace

Progress::Progress(std::string what, std::size_t total, bool isSilent)
    : m_what(std::move(what)), m_total(total), m_isShown(!isSilent && ObeysEscapes(Stream::Error)),
      m_next(Clock::now() + patience)
{}

Progress::~Progress()
{
    Close();
}

void Progress::Close()
{
    if (m_hasLine)
        VyrHostPlatform::Console::Write(Stream::Error, eraseLine);
    m_hasLine = false;
}

void Progress::Show(std::size_t done)
{
    if (!m_isShown || Clock::now() < m_next)
        return;
    m_next = Clock::now() + pause;
    m_hasLine = true;
    VyrHostPlatform::Console::Write(Stream::Error, eraseLine + m_what + " [" + Bar(done, m_total) + "] " +
                                                       std::to_string(done) + " of " + std::to_string(m_total));
}

} // namespace VyrHost::Ui
