// A program started with CreateProcess, its streams pipes; one that stops at changes is debugged.
#include <tests/support/SystemChild.h>
#include <tests/support/windows/ChangeStops.h>
#include <tests/support/windows/OwnConsole.h>

#include <VyrPlatform/text/WindowsCString.h>

#include <memory>
#include <stdexcept>
#include <windows.h>

namespace VyrTests {

namespace {

using VyrPlatform::FromWide;
using VyrPlatform::ToWide;

[[noreturn]] void Fail(const char* call)
{
    throw std::runtime_error(std::string(call) + " failed with " + std::to_string(::GetLastError()));
}

/// A handle that closes itself.
class Handle
{
public:
    explicit Handle(HANDLE value = nullptr) noexcept : m_value(value) {}
    Handle(Handle&& other) noexcept : m_value(std::exchange(other.m_value, nullptr)) {}
    Handle& operator=(Handle&& other) noexcept
    {
        std::swap(m_value, other.m_value);
        return *this;
    }
    ~Handle() { Close(); }

    void Close() noexcept
    {
        if (m_value)
            ::CloseHandle(std::exchange(m_value, nullptr));
    }
    [[nodiscard]] HANDLE Get() const noexcept { return m_value; }

private:
    HANDLE m_value;
};

/// A pipe of which the started program gets one end.
struct Pipe
{
    enum class Passed : std::uint8_t
    {
        Reader,
        Writer
    };
    explicit Pipe(Passed passed)
    {
        HANDLE ends[2];
        if (!::CreatePipe(&ends[0], &ends[1], nullptr, 0))
            Fail("CreatePipe");
        reader = Handle(ends[0]);
        writer = Handle(ends[1]);
        const Handle& inherited = passed == Passed::Reader ? reader : writer;
        if (!::SetHandleInformation(inherited.Get(), HANDLE_FLAG_INHERIT, HANDLE_FLAG_INHERIT))
            Fail("SetHandleInformation");
    }

    Handle reader;
    Handle writer;
};

/// `argument` so that CommandLineToArgvW reads it back: backslashes are doubled where a quote follows them.
void AppendArgument(CString& line, const CString& argument)
{
    line += u" \"";
    int backslashes = 0;
    for (const char16_t unit : argument.View()) {
        if (unit == u'"')
            line += CString(u'\\', backslashes + 1);
        backslashes = unit == u'\\' ? backslashes + 1 : 0;
        line += unit;
    }
    line += CString(u'\\', backslashes);
    line += u'"';
}

CString CommandLine(const ProgramCall& call)
{
    CString line = u"\"" + call.program + u"\"";
    for (const CString& argument : call.arguments)
        AppendArgument(line, argument);
    return line;
}

/// The file or folder at `path` for a child to read.
Handle OpenForChild(const CString& path)
{
    SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
    return Handle(::CreateFileW(ToWide(path), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited,
                                OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

/// Orders names of variables as Windows does: without regard to case.
struct NameOrder
{
    bool operator()(const CString& left, const CString& right) const
    {
        return ::CompareStringOrdinal(ToWide(left), left.GetLength(), ToWide(right), right.GetLength(), TRUE) ==
               CSTR_LESS_THAN;
    }
};

std::map<CString, CString, NameOrder> OwnEnvironment()
{
    const std::unique_ptr<wchar_t[], decltype(&::FreeEnvironmentStringsW)> block(::GetEnvironmentStringsW(),
                                                                                 ::FreeEnvironmentStringsW);
    std::map<CString, CString, NameOrder> variables;
    for (const wchar_t* text = block.get(); *text; text += std::wstring_view(text).size() + 1) {
        const std::wstring_view variable(text);
        // The current folders of the drives have names that begin with the equals sign.
        const std::size_t equals = variable.find(L'=', 1);
        variables[FromWide(variable.substr(0, equals))] = FromWide(variable.substr(equals + 1));
    }
    return variables;
}

CString EnvironmentBlock(const ProgramCall& call)
{
    std::map<CString, CString, NameOrder> variables = OwnEnvironment();
    for (const auto& [name, value] : call.environment) {
        if (value)
            variables[name] = *value;
        else
            variables.erase(name);
    }
    CString block;
    for (const auto& [name, value] : variables) {
        block += CString::Join({name, u"=", value});
        block += u'\0';
    }
    block += u'\0';
    return block;
}

/// Once in some thousand starts Wine answers ERROR_INTERNAL_ERROR: the new process ended before it was initialised.
/// None of the program's own code ran, so nothing is done twice when it is started again. Windows does not do this.
PROCESS_INFORMATION Start(const ProgramCall& call, STARTUPINFOW& start, DWORD flags)
{
    constexpr int mostTries = 5;
    const CString line = CommandLine(call);
    const CString environment = EnvironmentBlock(call);
    std::wstring block(ToWide(environment), static_cast<std::size_t>(environment.GetLength()));
    for (int tries = 1;; ++tries) {
        std::wstring writableLine(ToWide(line));
        PROCESS_INFORMATION process{};
        if (::CreateProcessW(ToWide(call.program), writableLine.data(), nullptr, nullptr, TRUE,
                             CREATE_UNICODE_ENVIRONMENT | flags, block.data(),
                             call.folder.IsEmpty() ? nullptr : ToWide(call.folder), &start, &process))
            return process;
        if (::GetLastError() != ERROR_INTERNAL_ERROR || tries == mostTries)
            Fail("CreateProcessW");
        ::Sleep(100);
    }
}

} // namespace

struct SystemChild::Handles
{
    /// Asked before the pipes are made.
    bool isConsoleOwn = HasConsoleOfItsOwn();
    Pipe input{Pipe::Passed::Reader};
    Pipe output{Pipe::Passed::Writer};
    Pipe errors{Pipe::Passed::Writer};
    Handle process;
    /// 0: everything in the console.
    DWORD group = 0;
    /// Of a program that stops at changes.
    std::optional<ChangeStops> stops;
};

SystemChild::SystemChild(const ProgramCall& call) : m_handles(std::make_unique<Handles>())
{
    STARTUPINFOW start{};
    start.cb = sizeof start;
    start.dwFlags = STARTF_USESTDHANDLES;
    if (!call.inputFrom.IsEmpty())
        m_handles->input.reader = OpenForChild(call.inputFrom);
    start.hStdInput = m_handles->input.reader.Get();
    start.hStdOutput = m_handles->output.writer.Get();
    start.hStdError = m_handles->errors.writer.Get();
    if (call.isOutputClosed)
        m_handles->output.reader.Close();
    const DWORD flags = (m_handles->isConsoleOwn ? 0UL : CREATE_NEW_PROCESS_GROUP) |
                        (call.stopsAtChanges ? DEBUG_ONLY_THIS_PROCESS : 0UL);
    const PROCESS_INFORMATION process = Start(call, start, flags);
    ::CloseHandle(process.hThread);
    m_handles->process = Handle(process.hProcess);
    // The program has the handles under the same numbers.
    if (call.stopsAtChanges)
        m_handles->stops.emplace(process.hProcess, std::set{start.hStdOutput, start.hStdError});
    m_handles->group = m_handles->isConsoleOwn ? 0 : process.dwProcessId;
    m_handles->input.reader.Close();
    m_handles->output.writer.Close();
    m_handles->errors.writer.Close();
}

SystemChild::~SystemChild() = default;

void SystemChild::WriteInput(std::string_view bytes)
{
    while (!bytes.empty()) {
        DWORD written = 0;
        if (!::WriteFile(m_handles->input.writer.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written,
                         nullptr))
            break;
        bytes.remove_prefix(written);
    }
}

void SystemChild::EndInput()
{
    m_handles->input.writer.Close();
}

std::string SystemChild::Read(Stream stream)
{
    const Handle& source = (stream == Stream::Output ? m_handles->output : m_handles->errors).reader;
    std::string bytes(65536, '\0');
    DWORD count = 0;
    if (!source.Get() || !::ReadFile(source.Get(), bytes.data(), static_cast<DWORD>(bytes.size()), &count, nullptr))
        count = 0;
    bytes.resize(count);
    return bytes;
}

bool SystemChild::GoToNextChange()
{
    return m_handles->stops && m_handles->stops->GoToNext();
}

std::optional<int> SystemChild::WaitFor(std::chrono::milliseconds patience)
{
    while (GoToNextChange())
        continue;
    DWORD exitCode = 0;
    if (::WaitForSingleObject(m_handles->process.Get(), static_cast<DWORD>(patience.count())) != WAIT_OBJECT_0 ||
        !::GetExitCodeProcess(m_handles->process.Get(), &exitCode))
        return std::nullopt;
    return static_cast<int>(exitCode);
}

void SystemChild::Interrupt()
{
    // In its own console the test can send Ctrl-C to all that share it (Wine knows no Ctrl-Break); elsewhere it reaches
    // the program alone, with Ctrl-Break.
    const DWORD event = m_handles->isConsoleOwn ? CTRL_C_EVENT : CTRL_BREAK_EVENT;
    if (!::GenerateConsoleCtrlEvent(event, m_handles->group))
        Fail("GenerateConsoleCtrlEvent");
    if (m_handles->stops)
        m_handles->stops->AwaitInterrupt();
}

void SystemChild::Kill()
{
    ::TerminateProcess(m_handles->process.Get(), 1);
}

CString ProgramEnding()
{
    return u".exe";
}

} // namespace VyrTests
