// Feeds and reads a started program's streams, each on a thread of its own so that none waits for another.
#include <tests/support/ChildProcess.h>
#include <tests/support/SystemChild.h>

#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/process/Process.h>

#include <condition_variable>
#include <gtest/gtest.h>
#include <mutex>
#include <thread>

namespace VyrTests {

namespace {

constexpr std::chrono::milliseconds patience = std::chrono::minutes(2);

/// What a program has written so far.
class Written
{
public:
    void ReadAll(SystemChild& child, SystemChild::Stream stream)
    {
        for (std::string bytes = child.Read(stream); !bytes.empty(); bytes = child.Read(stream)) {
            const std::lock_guard lock(m_mutex);
            m_bytes += bytes;
            m_changed.notify_all();
        }
        const std::lock_guard lock(m_mutex);
        m_isComplete = true;
        m_changed.notify_all();
    }

    [[nodiscard]] bool WaitFor(std::string_view text)
    {
        std::unique_lock lock(m_mutex);
        const auto contains = [&] {
            return m_bytes.find(text) != std::string::npos;
        };
        m_changed.wait_for(lock, patience, [&] { return m_isComplete || contains(); });
        return contains();
    }

    /// To be called after ReadAll has ended.
    [[nodiscard]] std::string Take() { return std::move(m_bytes); }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::string m_bytes;
    bool m_isComplete = false;
};

} // namespace

struct ChildProcess::State
{
    explicit State(const ProgramCall& call)
        : child(call), inputWriter([this, call] { Feed(call); }),
          outputReader([this] { output.ReadAll(child, SystemChild::Stream::Output); }),
          errorReader([this] { errors.ReadAll(child, SystemChild::Stream::Errors); })
    {}

    void Feed(const ProgramCall& call)
    {
        child.WriteInput(call.input);
        if (!call.staysInputOpen)
            child.EndInput();
    }

    void Join()
    {
        inputWriter.join();
        outputReader.join();
        errorReader.join();
    }

    SystemChild child;
    Written output;
    Written errors;
    std::thread inputWriter;
    std::thread outputReader;
    std::thread errorReader;
};

ChildProcess::ChildProcess(const ProgramCall& call) : m_state(std::make_unique<State>(call)) {}

ChildProcess::~ChildProcess()
{
    if (!m_state->inputWriter.joinable())
        return;
    m_state->child.Kill();
    static_cast<void>(m_state->child.WaitFor(patience));
    m_state->Join();
}

bool ChildProcess::WaitForOutput(std::string_view text)
{
    return m_state->output.WaitFor(text);
}

bool ChildProcess::GoToNextChange()
{
    return m_state->child.GoToNextChange();
}

void ChildProcess::Interrupt()
{
    m_state->child.Interrupt();
}

void ChildProcess::Kill()
{
    m_state->child.Kill();
}

ProgramResult ChildProcess::Wait()
{
    std::optional<int> exitCode = m_state->child.WaitFor(patience);
    if (!exitCode) {
        ADD_FAILURE() << "the program did not end; it was killed";
        m_state->child.Kill();
        exitCode = m_state->child.WaitFor(patience);
    }
    m_state->Join();
    return {exitCode.value_or(-1), m_state->output.Take(), m_state->errors.Take()};
}

ProgramResult RunProgram(const ProgramCall& call)
{
    return ChildProcess(call).Wait();
}

int CountChanges(ProgramCall call)
{
    call.stopsAtChanges = true;
    ChildProcess child(call);
    int count = 0;
    while (child.GoToNextChange())
        ++count;
    EXPECT_EQ(child.Wait().exitCode, 0);
    return count;
}

CString BesideThisProgram(std::u16string_view name)
{
    const CString own = VyrPlatform::Process::GetProgramPath();
    const int folderLength = own.ReverseFind(VyrPlatform::FileSystem::Separator()) + 1;
    return CString::Join({own.Left(folderLength), name, ProgramEnding()});
}

} // namespace VyrTests
