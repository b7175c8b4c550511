// For SystemChild on Windows: holds a program before each change that it makes on a disk, as its debugger.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <windows.h>

namespace VyrTests {

/// The debugger of a program that was started with DEBUG_ONLY_THIS_PROCESS. To be used on the thread that started it.
class ChangeStops
{
public:
    /// `process` and `streams`, its standard streams, belong to the caller. What it writes to them is no change.
    ChangeStops(HANDLE process, std::set<HANDLE> streams) : m_process(process), m_streams(std::move(streams)) {}

    /// Lets it work until it is about to make another change, and holds it there; false when it ended instead, or made
    /// nothing known for two minutes.
    bool GoToNext();
    /// An interrupt is on its way to the program, which is held: it goes on when it knows of it.
    void AwaitInterrupt() noexcept { m_awaitsInterrupt = true; }

private:
    enum class Call : std::uint8_t
    {
        Create,
        Open,
        SetInformation,
        Write,
        Flush,
        Delete
    };
    struct Stop
    {
        DWORD thread = 0;
        CONTEXT registers{};
    };

    /// Waits for the program's next event; false when it makes none for two minutes.
    bool WaitForEvent();
    void SetStops();
    /// @return what the program is answered to the event that holds it.
    DWORD Answer();
    void Handle(const DEBUG_EVENT& event);
    DWORD HandleException(DWORD thread, const EXCEPTION_RECORD& exception);
    /// The thread stops where the system begins to look for a handler of an exception.
    void BeginDispatch(DWORD thread);
    void WriteByte(DWORD64 address, unsigned char byte);
    /// Lets the thread go on from its breakpoint.
    void PassStop(Stop stop);
    [[nodiscard]] bool IsChange(const CONTEXT& registers) const;
    [[nodiscard]] std::uint64_t StackArgument(const CONTEXT& registers, unsigned number) const;

    HANDLE m_process;
    std::set<HANDLE> m_streams;
    std::map<DWORD64, Call> m_stops;
    /// Where the system begins to look for a handler, and the byte that stands there.
    DWORD64 m_dispatcher = 0;
    unsigned char m_dispatcherBegin = 0;
    std::map<DWORD, HANDLE> m_threads;
    std::optional<Stop> m_held;
    /// The event that holds the program.
    DEBUG_EVENT m_event{};
    bool m_awaitsInterrupt = false;
    /// The thread in which the program learns of an interrupt.
    std::optional<DWORD> m_interruptThread;
    /// The thread that was held when the program was interrupted.
    std::optional<DWORD> m_interrupted;
    bool m_hasEnded = false;
};

} // namespace VyrTests
