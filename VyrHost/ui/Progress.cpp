// Draws a bar over itself.
#include <VyrHost/ui/Progress.h>

#include <VyrHost/ui/Terminal.h>
#include <VyrHostPlatform/Console.h>

#include <algorithm>
#include <utility>

namespace VyrHost::Ui {

namespace {

using VyrHostPlatform::Console::Stream;

constexpr std::chrono::milliseconds Patience{500};
constexpr std::chrono::milliseconds Pause{100};
constexpr std::size_t BarWidth = 30;
constexpr const char* EraseLine = "\r\x1b[K";

std::string Bar(std::size_t done, std::size_t total)
{
    const std::size_t filled = total == 0 ? BarWidth : std::min(BarWidth * done / total, BarWidth);
    return std::string(filled, '#') + std::string(BarWidth - filled, '.');
}

} // namespace

Progress::Progress(std::string what, std::size_t total, bool isSilent)
    : m_what(std::move(what)), m_total(total), m_isShown(!isSilent && ObeysEscapes(Stream::Error)),
      m_next(Clock::now() + Patience)
{}

Progress::~Progress()
{
    Close();
}

void Progress::Close()
{
    if (m_hasLine)
        VyrHostPlatform::Console::Write(Stream::Error, EraseLine);
    m_hasLine = false;
}

void Progress::Show(std::size_t done)
{
    if (!m_isShown || Clock::now() < m_next)
        return;
    m_next = Clock::now() + Pause;
    m_hasLine = true;
    VyrHostPlatform::Console::Write(Stream::Error, EraseLine + m_what + " [" + Bar(done, m_total) + "] " +
                                                       std::to_string(done) + " of " + std::to_string(m_total));
}

} // namespace VyrHost::Ui
