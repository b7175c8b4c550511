// The terminal and the standard streams through their file descriptors.
#include <VyrPlatform/Console.h>
#include <VyrPlatform/Encoding.h>
#include <VyrPlatform/Interrupt.h>

#include <cerrno>
#include <csignal>
#include <ctime>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace VyrPlatform::Console {

namespace {

constexpr std::size_t largestPiece = std::size_t{1} << 20;

int Descriptor(Stream stream) noexcept
{
    return stream == Stream::Output ? STDOUT_FILENO : STDERR_FILENO;
}

/// Keeps a write to a closed pipe from ending the program: it fails with EPIPE instead. Signal settings that child
/// processes inherit stay as they are.
class PipeSignalBlocked
{
public:
    PipeSignalBlocked() noexcept
    {
        ::sigemptyset(&m_pipeSignal);
        ::sigaddset(&m_pipeSignal, SIGPIPE);
        ::pthread_sigmask(SIG_BLOCK, &m_pipeSignal, &m_previousMask);
    }
    PipeSignalBlocked(const PipeSignalBlocked&) = delete;
    PipeSignalBlocked& operator=(const PipeSignalBlocked&) = delete;
    ~PipeSignalBlocked() { ::pthread_sigmask(SIG_SETMASK, &m_previousMask, nullptr); }

    /// Takes back the signal that a failing write has left waiting.
    void Discard() const noexcept
    {
        // Whoever blocked the signal before means to look at it.
        if (::sigismember(&m_previousMask, SIGPIPE))
            return;
        constexpr std::timespec atOnce{};
        while (::sigtimedwait(&m_pipeSignal, nullptr, &atOnce) < 0 && errno == EINTR)
            ;
    }

private:
    sigset_t m_pipeSignal;
    sigset_t m_previousMask;
};

/// Waits until there is input; false when an interrupt was noted meanwhile.
bool WaitForInput()
{
    pollfd input{STDIN_FILENO, POLLIN, 0};
    while (::poll(&input, 1, -1) < 0 && errno == EINTR)
        if (Interrupt::WasAsked())
            return false;
    return true;
}

} // namespace

std::vector<CString> GetArguments(int count, const char* const* arguments)
{
    std::vector<CString> result;
    for (int i = 1; i < count; ++i)
        result.push_back(Encoding::FromNameBytes(arguments[i]));
    return result;
}

bool IsTerminal(Stream stream)
{
    return ::isatty(Descriptor(stream)) == 1;
}

bool IsInputTerminal()
{
    return ::isatty(STDIN_FILENO) == 1;
}

int GetWidth(Stream stream)
{
    winsize size{};
    if (!IsTerminal(stream) || ::ioctl(Descriptor(stream), TIOCGWINSZ, &size) != 0)
        return 0;
    // A terminal that does not know its size (a serial line) says 0.
    constexpr int usualWidth = 80;
    return size.ws_col == 0 ? usualWidth : size.ws_col;
}

bool Write(Stream stream, std::string_view bytes)
{
    const PipeSignalBlocked blocked;
    while (!bytes.empty()) {
        const ssize_t written = ::write(Descriptor(stream), bytes.data(), bytes.size());
        if (written >= 0) {
            bytes.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno == EPIPE) {
            blocked.Discard();
            return false;
        } else if (errno == EAGAIN) {
            // The terminal or pipe was made non-blocking by a program that shares it.
            pollfd output{Descriptor(stream), POLLOUT, 0};
            ::poll(&output, 1, -1);
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}

std::string ReadInput()
{
    std::string piece(largestPiece, '\0');
    ssize_t count = -1;
    do {
        if (!WaitForInput())
            return {};
        count = ::read(STDIN_FILENO, piece.data(), piece.size());
    } while (count < 0 && (errno == EINTR || errno == EAGAIN));
    piece.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return piece;
}

} // namespace VyrPlatform::Console
