// Starts the editor through the shell, since the command may have arguments.
#include <VyrHostPlatform/Editor.h>

#include <VyrHostPlatform/common/EditorCommand.h>
#include <VyrPlatform/process/Process.h>
#include <VyrPlatform/text/Encoding.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <string_view>
#include <sys/wait.h>
#include <unistd.h>

namespace VyrHostPlatform {

using namespace VyrPlatform;

namespace {

/// While the editor has the terminal, Ctrl-C is meant for it.
class TerminalSignalsIgnored
{
public:
    TerminalSignalsIgnored() noexcept
    {
        struct sigaction ignore = {};
        ignore.sa_handler = SIG_IGN;
        ::sigaction(SIGINT, &ignore, &m_interrupt);
        ::sigaction(SIGQUIT, &ignore, &m_quit);
    }
    TerminalSignalsIgnored(const TerminalSignalsIgnored&) = delete;
    TerminalSignalsIgnored& operator=(const TerminalSignalsIgnored&) = delete;
    ~TerminalSignalsIgnored()
    {
        ::sigaction(SIGINT, &m_interrupt, nullptr);
        ::sigaction(SIGQUIT, &m_quit, nullptr);
    }

private:
    struct sigaction m_interrupt = {};
    struct sigaction m_quit = {};
};

/// Runs `command` with `path` as its last argument.
/// @return its exit code; -1, with errno set, when it could not be started.
int RunOnFile(const std::string& command, const std::string& path)
{
    posix_spawnattr_t attributes;
    ::posix_spawnattr_init(&attributes);
    sigset_t usual;
    ::sigemptyset(&usual);
    ::sigaddset(&usual, SIGINT);
    ::sigaddset(&usual, SIGQUIT);
    ::posix_spawnattr_setsigdefault(&attributes, &usual);
    ::posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);

    std::string script = command + " \"$1\"";
    std::string file = path;
    std::array<char, 3> shell{"sh"};
    std::array<char, 3> option{"-c"};
    std::array<char*, 6> arguments{shell.data(), option.data(), script.data(), shell.data(), file.data(), nullptr};
    pid_t process = 0;
    const int error = ::posix_spawn(&process, "/bin/sh", nullptr, &attributes, arguments.data(), environ);
    ::posix_spawnattr_destroy(&attributes);
    if (error != 0) {
        errno = error;
        return -1;
    }
    int status = 0;
    while (::waitpid(process, &status, 0) < 0)
        if (errno != EINTR)
            return -1;
    constexpr int signalBase = 128;
    return WIFEXITED(status) ? WEXITSTATUS(status) : signalBase + WTERMSIG(status);
}

EditedText Failure(const CString& what, int error)
{
    const CString message = Process::GetErrorMessage(static_cast<std::uint32_t>(error));
    return {std::nullopt, CString::Join({what, u": ", message})};
}

} // namespace

/// A new file in the folder for temporary files.
class EditorFile::TemporaryFile
{
public:
    explicit TemporaryFile(std::string_view text)
    {
        const char* const folder = std::getenv("TMPDIR");
        m_path = std::string(folder && *folder ? folder : "/tmp") + "/vyr-names-XXXXXX.txt";
        constexpr int suffixLength = 4;
        m_file = ::mkostemps(m_path.data(), suffixLength, O_CLOEXEC);
        m_error = m_file >= 0 && Write(text) ? 0 : errno;
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile()
    {
        if (m_file < 0)
            return;
        ::close(m_file);
        if (!m_isKept)
            ::unlink(m_path.c_str());
    }

    void Keep() noexcept { m_isKept = true; }
    [[nodiscard]] const std::string& Path() const noexcept { return m_path; }
    /// The error code if the text could not be written; else 0.
    [[nodiscard]] int Error() const noexcept { return m_error; }

    /// Reads the present file at the path: an editor may have replaced it.
    [[nodiscard]] bool Read(std::string& bytes) const
    {
        const int file = ::open(m_path.c_str(), O_RDONLY | O_CLOEXEC);
        if (file < 0)
            return false;
        std::array<char, 65536> piece;
        ssize_t count = 0;
        while ((count = ::read(file, piece.data(), piece.size())) > 0 || (count < 0 && errno == EINTR))
            bytes.append(piece.data(), count > 0 ? static_cast<std::size_t>(count) : 0);
        const int error = errno;
        ::close(file);
        errno = error;
        return count == 0;
    }

private:
    [[nodiscard]] bool Write(std::string_view bytes) const
    {
        while (!bytes.empty()) {
            const ssize_t written = ::write(m_file, bytes.data(), bytes.size());
            if (written < 0 && errno != EINTR)
                return false;
            bytes.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
        }
        return true;
    }

    std::string m_path;
    int m_file;
    int m_error = 0;
    bool m_isKept = false;
};

EditorFile::EditorFile(const std::string& text) : m_file(std::make_unique<TemporaryFile>(text)) {}

EditorFile::~EditorFile() = default;

EditedText EditorFile::Edit()
{
    const CString path = Encoding::FromNameBytes(m_file->Path());
    if (m_file->Error() != 0)
        return Failure(path, m_file->Error());
    const CString command = GetEditorCommand(u"vi");
    const TerminalSignalsIgnored signals;
    const int code = RunOnFile(Encoding::ToNameBytes(command), m_file->Path());
    if (code < 0)
        return Failure(command, errno);
    if (code != 0) {
        CString message;
        message.Format(u"the editor (%s) ended with the code %d", command, code);
        return {std::nullopt, message};
    }
    std::string edited;
    if (!m_file->Read(edited))
        return Failure(path, errno);
    return {std::move(edited), {}};
}

CString EditorFile::Keep()
{
    m_file->Keep();
    return Encoding::FromNameBytes(m_file->Path());
}

} // namespace VyrHostPlatform
