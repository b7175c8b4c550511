// A program started with posix_spawn, its streams pipes.
#include <tests/support/SystemChild.h>

#include <VyrPlatform/text/Encoding.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>

extern char** environ;

namespace VyrTests {

namespace {

using VyrPlatform::Encoding::ToNameBytes;

/// A file descriptor that closes itself.
class Descriptor
{
public:
    explicit Descriptor(int number = -1) noexcept : m_number(number) {}
    Descriptor(Descriptor&& other) noexcept : m_number(std::exchange(other.m_number, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept
    {
        std::swap(m_number, other.m_number);
        return *this;
    }
    ~Descriptor() { Close(); }

    void Close() noexcept
    {
        if (m_number >= 0)
            ::close(std::exchange(m_number, -1));
    }
    [[nodiscard]] int Number() const noexcept { return m_number; }

private:
    int m_number;
};

struct Pipe
{
    Pipe()
    {
        int ends[2];
        if (::pipe2(ends, O_CLOEXEC) != 0)
            throw std::system_error(errno, std::generic_category(), "pipe2");
        reader = Descriptor(ends[0]);
        writer = Descriptor(ends[1]);
    }

    Descriptor reader;
    Descriptor writer;
};

/// The pointers that exec takes, to texts that live on beside them.
class ExecTexts
{
public:
    void Add(std::string text) { m_texts.push_back(std::move(text)); }
    /// Good until the next Add.
    [[nodiscard]] char** Pointers()
    {
        m_pointers.clear();
        for (std::string& text : m_texts)
            m_pointers.push_back(text.data());
        m_pointers.push_back(nullptr);
        return m_pointers.data();
    }

private:
    std::vector<std::string> m_texts;
    std::vector<char*> m_pointers;
};

ExecTexts ArgumentsOf(const ProgramCall& call)
{
    ExecTexts texts;
    texts.Add(ToNameBytes(call.program));
    for (const CString& argument : call.arguments)
        texts.Add(ToNameBytes(argument));
    return texts;
}

ExecTexts EnvironmentOf(const ProgramCall& call)
{
    ExecTexts texts;
    for (char** variable = environ; *variable; ++variable) {
        const std::string_view text(*variable);
        const CString name = VyrPlatform::Encoding::FromNameBytes(text.substr(0, text.find('=')));
        if (!call.environment.contains(name))
            texts.Add(std::string(text));
    }
    for (const auto& [name, value] : call.environment) {
        if (value)
            texts.Add(ToNameBytes(name) + "=" + ToNameBytes(*value));
    }
    return texts;
}

/// What posix_spawn does in the new process before the program starts there.
class SpawnActions
{
public:
    SpawnActions()
    {
        ::posix_spawn_file_actions_init(&files);
        ::posix_spawnattr_init(&attributes);
        // The program starts with signals as a shell would give them to it, whatever the test was started with.
        sigset_t none;
        ::sigemptyset(&none);
        ::posix_spawnattr_setsigmask(&attributes, &none);
        sigset_t defaults = none;
        for (const int signal : {SIGINT, SIGTERM, SIGPIPE})
            ::sigaddset(&defaults, signal);
        ::posix_spawnattr_setsigdefault(&attributes, &defaults);
        ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    }
    SpawnActions(const SpawnActions&) = delete;
    SpawnActions& operator=(const SpawnActions&) = delete;
    ~SpawnActions()
    {
        ::posix_spawnattr_destroy(&attributes);
        ::posix_spawn_file_actions_destroy(&files);
    }

    void PassAs(const Descriptor& descriptor, int number)
    {
        ::posix_spawn_file_actions_adddup2(&files, descriptor.Number(), number);
    }

    posix_spawn_file_actions_t files;
    posix_spawnattr_t attributes;
};

int ExitCode(int status) noexcept
{
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

} // namespace

struct SystemChild::Handles
{
    Pipe input;
    Pipe output;
    Pipe errors;
    pid_t process = -1;
    std::optional<int> exitCode;
};

SystemChild::SystemChild(const ProgramCall& call) : m_handles(std::make_unique<Handles>())
{
    SpawnActions actions;
    actions.PassAs(m_handles->input.reader, STDIN_FILENO);
    actions.PassAs(m_handles->output.writer, STDOUT_FILENO);
    actions.PassAs(m_handles->errors.writer, STDERR_FILENO);
    if (!call.folder.IsEmpty())
        ::posix_spawn_file_actions_addchdir_np(&actions.files, ToNameBytes(call.folder).c_str());
    if (call.isOutputClosed)
        m_handles->output.reader.Close();
    const int error = ::posix_spawn(&m_handles->process, ToNameBytes(call.program).c_str(), &actions.files,
                                    &actions.attributes, ArgumentsOf(call).Pointers(), EnvironmentOf(call).Pointers());
    if (error != 0)
        throw std::system_error(error, std::generic_category(), ToNameBytes(call.program));
    m_handles->input.reader.Close();
    m_handles->output.writer.Close();
    m_handles->errors.writer.Close();
}

SystemChild::~SystemChild()
{
    if (!m_handles->exitCode)
        ::waitpid(m_handles->process, nullptr, 0);
}

void SystemChild::WriteInput(std::string_view bytes)
{
    // A program that ends before it has read all must not end the test. The signal waits for this thread, and dies with
    // it.
    sigset_t pipeSignal;
    ::sigemptyset(&pipeSignal);
    ::sigaddset(&pipeSignal, SIGPIPE);
    ::pthread_sigmask(SIG_BLOCK, &pipeSignal, nullptr);
    while (!bytes.empty()) {
        const ssize_t written = ::write(m_handles->input.writer.Number(), bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR)
            break;
        bytes.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
    }
}

void SystemChild::EndInput()
{
    m_handles->input.writer.Close();
}

std::string SystemChild::Read(Stream stream)
{
    const Descriptor& source = (stream == Stream::Output ? m_handles->output : m_handles->errors).reader;
    std::string bytes(65536, '\0');
    ssize_t count = -1;
    do
        count = ::read(source.Number(), bytes.data(), bytes.size());
    while (count < 0 && errno == EINTR);
    bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return bytes;
}

std::optional<int> SystemChild::WaitFor(std::chrono::milliseconds patience)
{
    const auto deadline = std::chrono::steady_clock::now() + patience;
    int status = 0;
    while (!m_handles->exitCode && std::chrono::steady_clock::now() < deadline) {
        if (::waitpid(m_handles->process, &status, WNOHANG) == m_handles->process)
            m_handles->exitCode = ExitCode(status);
        else
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
    return m_handles->exitCode;
}

void SystemChild::Interrupt()
{
    ::kill(m_handles->process, SIGINT);
}

void SystemChild::Kill()
{
    if (!m_handles->exitCode)
        ::kill(m_handles->process, SIGKILL);
}

CString ProgramEnding()
{
    return {};
}

} // namespace VyrTests
