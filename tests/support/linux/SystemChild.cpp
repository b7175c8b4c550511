// A program started with posix_spawn, its streams pipes; one that stops at changes is traced.
#include <tests/support/SystemChild.h>

#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/ptrace.h>
#include <sys/syscall.h>
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

/// The shell stops itself before it becomes the program, so that it can be traced from its first step on.
constexpr const char* shell = "/bin/sh";
constexpr const char* stopAndBecome = "kill -STOP $$; exec \"$0\" \"$@\"";

ExecTexts ArgumentsOf(const ProgramCall& call)
{
    ExecTexts texts;
    if (call.stopsAtChanges) {
        for (const char* const text : {shell, "-c", stopAndBecome})
            texts.Add(text);
    }
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
    // The search for leaks is a tracer itself, and a process has one at most.
    if (call.stopsAtChanges)
        texts.Add("LSAN_OPTIONS=detect_leaks=0");
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
        SetFlags(POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
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
    /// The process becomes the first of a process group of its own.
    void MakeGroup() { SetFlags(POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP); }

    posix_spawn_file_actions_t files;
    posix_spawnattr_t attributes;

private:
    void SetFlags(int flags) { ::posix_spawnattr_setflags(&attributes, static_cast<short>(flags)); }
};

/// Whether the call changes a disk.
bool IsChange(std::uint64_t number, const std::uint64_t (&arguments)[6])
{
    switch (number) {
    case SYS_open:
        return (arguments[1] & (O_CREAT | O_TRUNC)) != 0;
    case SYS_openat:
        return (arguments[2] & (O_CREAT | O_TRUNC)) != 0;
    case SYS_write:
    case SYS_writev:
        return arguments[0] > STDERR_FILENO;
    default:
        constexpr long changes[] = {
            SYS_pwrite64,  SYS_copy_file_range, SYS_sendfile,     SYS_truncate,    SYS_ftruncate, SYS_fallocate,
            SYS_rename,    SYS_renameat,        SYS_renameat2,    SYS_link,        SYS_linkat,    SYS_symlink,
            SYS_symlinkat, SYS_unlink,          SYS_unlinkat,     SYS_mkdir,       SYS_mkdirat,   SYS_rmdir,
            SYS_fsync,     SYS_fdatasync,       SYS_syncfs,       SYS_utimensat,   SYS_chmod,     SYS_fchmod,
            SYS_fchmodat,  SYS_chown,           SYS_fchown,       SYS_fchownat,    SYS_setxattr,  SYS_lsetxattr,
            SYS_fsetxattr, SYS_removexattr,     SYS_lremovexattr, SYS_fremovexattr};
        return std::ranges::find(changes, static_cast<long>(number)) != std::end(changes);
    }
}

/// Whether a traced thread that stopped is about to change a disk.
bool IsBeforeChange(pid_t thread, int status)
{
    if (WSTOPSIG(status) != (SIGTRAP | 0x80))
        return false;
    __ptrace_syscall_info call{};
    const long size = ::ptrace(PTRACE_GET_SYSCALL_INFO, thread, sizeof call, &call);
    return size > 0 && call.op == PTRACE_SYSCALL_INFO_ENTRY && IsChange(call.entry.nr, call.entry.args);
}

/// The signal that a traced thread stopped for, and now gets; 0 when it stopped for another reason.
int SignalOf(int status)
{
    const bool isEvent = status >> 16 != 0 || WSTOPSIG(status) == (SIGTRAP | 0x80);
    return isEvent ? 0 : WSTOPSIG(status);
}

/// Begins to trace a process that is about to stop itself.
void Trace(pid_t process)
{
    ::waitpid(process, nullptr, WUNTRACED);
    constexpr long options = PTRACE_O_EXITKILL | PTRACE_O_TRACESYSGOOD | PTRACE_O_TRACECLONE;
    if (::ptrace(PTRACE_SEIZE, process, nullptr, options) != 0)
        throw std::system_error(errno, std::generic_category(), "ptrace");
    ::kill(process, SIGCONT);
}

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
    bool isTraced = false;
    /// The thread that is held before a change; 0: none.
    pid_t held = 0;
};

SystemChild::SystemChild(const ProgramCall& call) : m_handles(std::make_unique<Handles>())
{
    SpawnActions actions;
    if (!call.inputFrom.IsEmpty())
        m_handles->input.reader = Descriptor(::open(ToNameBytes(call.inputFrom).c_str(), O_RDONLY | O_CLOEXEC));
    actions.PassAs(m_handles->input.reader, STDIN_FILENO);
    actions.PassAs(m_handles->output.writer, STDOUT_FILENO);
    actions.PassAs(m_handles->errors.writer, STDERR_FILENO);
    if (!call.folder.IsEmpty())
        ::posix_spawn_file_actions_addchdir_np(&actions.files, ToNameBytes(call.folder).c_str());
    if (call.isOutputClosed)
        m_handles->output.reader.Close();
    m_handles->isTraced = call.stopsAtChanges;
    if (call.stopsAtChanges)
        actions.MakeGroup();
    const std::string program = call.stopsAtChanges ? shell : ToNameBytes(call.program);
    const int error = ::posix_spawn(&m_handles->process, program.c_str(), &actions.files, &actions.attributes,
                                    ArgumentsOf(call).Pointers(), EnvironmentOf(call).Pointers());
    if (error != 0)
        throw std::system_error(error, std::generic_category(), program);
    if (call.stopsAtChanges)
        Trace(m_handles->process);
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

bool SystemChild::GoToNextChange()
{
    if (!m_handles->isTraced)
        return false;
    if (m_handles->held)
        ::ptrace(PTRACE_SYSCALL, std::exchange(m_handles->held, 0), nullptr, nullptr);
    while (!m_handles->exitCode) {
        int status = 0;
        const pid_t thread = ::waitpid(-m_handles->process, &status, __WALL);
        if (thread < 0 && errno != EINTR)
            throw std::system_error(errno, std::generic_category(), "waitpid");
        if (thread == m_handles->process && !WIFSTOPPED(status))
            m_handles->exitCode = ExitCode(status);
        if (thread < 0 || !WIFSTOPPED(status))
            continue;
        if (IsBeforeChange(thread, status)) {
            m_handles->held = thread;
            return true;
        }
        ::ptrace(PTRACE_SYSCALL, thread, nullptr, SignalOf(status));
    }
    return false;
}

std::optional<int> SystemChild::WaitFor(std::chrono::milliseconds patience)
{
    while (GoToNextChange())
        continue;
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
