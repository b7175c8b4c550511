// The terminal and the standard streams through their file descriptors.
#include <VyrHostPlatform/Console.h>
#include <VyrHostPlatform/Interrupt.h>
#include <VyrPlatform/text/Encoding.h>

#include <cerrno>
#include <csignal>
#include <ctime>
#include <initializer_list>
#include <poll.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace VyrHostPlatform::Console {

using namespace VyrPlatform;

namespace {

constexpr std::size_t largestPiece = std::size_t{1} << 20;

int Descriptor(Stream stream) noexcept
{
    return stream == Stream::Output ? STDOUT_FILENO : STDERR_FILENO;
}

sigset_t SetOf(std::initializer_list<int> signals) noexcept
{
    sigset_t set;
    ::sigemptyset(&set);
    for (const int signal : signals)
        ::sigaddset(&set, signal);
    return set;
}

/// Blocks signals to the calling thread while it exists.
class SignalsBlocked
{
public:
    explicit SignalsBlocked(std::initializer_list<int> signals) noexcept
    {
        const sigset_t blocked = SetOf(signals);
        ::pthread_sigmask(SIG_BLOCK, &blocked, &m_before);
    }
    SignalsBlocked(const SignalsBlocked&) = delete;
    SignalsBlocked& operator=(const SignalsBlocked&) = delete;
    ~SignalsBlocked() { ::pthread_sigmask(SIG_SETMASK, &m_before, nullptr); }

    /// The signals that were blocked before.
    [[nodiscard]] const sigset_t& Before() const noexcept { return m_before; }

private:
    sigset_t m_before;
};

/// Removes the SIGPIPE that a failed write has left pending, unless the caller had blocked it to handle it later.
void DiscardPipeSignal(const SignalsBlocked& blocked) noexcept
{
    if (::sigismember(&blocked.Before(), SIGPIPE))
        return;
    const sigset_t pipeSignal = SetOf({SIGPIPE});
    constexpr std::timespec atOnce{};
    while (::sigtimedwait(&pipeSignal, nullptr, &atOnce) < 0 && errno == EINTR)
        ;
}

/// Waits until there is input; false when an interrupt was noted before or comes meanwhile.
bool WaitForInput()
{
    // Signals are delivered only during the wait, so that none is missed between check and wait.
    const SignalsBlocked blocked({SIGINT, SIGTERM, SIGHUP});
    pollfd input{STDIN_FILENO, POLLIN, 0};
    while (!Interrupt::WasAsked()) {
        if (::ppoll(&input, 1, nullptr, &blocked.Before()) >= 0 || errno != EINTR)
            return true;
    }
    return false;
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

std::uint32_t Write(Stream stream, std::string_view bytes)
{
    // A write to a closed pipe fails with EPIPE, but its signal would end the program silently. The signal is blocked
    // and not ignored, because child processes inherit ignored signals.
    const SignalsBlocked blocked({SIGPIPE});
    while (!bytes.empty()) {
        const ssize_t written = ::write(Descriptor(stream), bytes.data(), bytes.size());
        if (written >= 0) {
            bytes.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno == EPIPE) {
            DiscardPipeSignal(blocked);
            return EPIPE;
        } else if (errno == EAGAIN) {
            // The terminal or pipe was made non-blocking by a program that shares it.
            pollfd output{Descriptor(stream), POLLOUT, 0};
            ::poll(&output, 1, -1);
        } else if (errno != EINTR) {
            return static_cast<std::uint32_t>(errno);
        }
    }
    return 0;
}

std::string ReadInput(std::uint32_t& error)
{
    error = 0;
    std::string piece(largestPiece, '\0');
    ssize_t count = -1;
    do {
        if (!WaitForInput())
            return {};
        count = ::read(STDIN_FILENO, piece.data(), piece.size());
    } while (count < 0 && (errno == EINTR || errno == EAGAIN));
    if (count < 0)
        error = static_cast<std::uint32_t>(errno);
    piece.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return piece;
}

} // namespace VyrHostPlatform::Console
