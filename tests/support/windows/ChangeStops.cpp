// Breakpoints at the system calls that change a disk, in the one DLL through which every program makes them.
#include <tests/support/windows/ChangeStops.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <utility>

namespace VyrTests {

namespace {

// Each of the calls begins with "mov r10, rcx". The breakpoint takes the place of its first byte; who goes on from
// there is given what the instruction does, so that the breakpoint stays for the other threads.
constexpr std::array<unsigned char, 3> firstInstruction = {0x4c, 0x8b, 0xd1};
constexpr unsigned char breakpoint = 0xcc;
constexpr DWORD second = 1'000;
constexpr DWORD patience = 120 * second;

// Documented for drivers; what is not here changes no file, as the position in it.
constexpr std::uint64_t changingInformation[] = {4, 10, 11, 13, 19, 20, 64, 65, 72};
constexpr std::uint64_t openExisting = 1;
constexpr std::uint64_t deleteOnClose = 0x1000;

void Require(bool isTrue, const char* what)
{
    if (!isTrue)
        throw std::runtime_error(std::string(what) + " failed with " + std::to_string(::GetLastError()));
}

} // namespace

bool ChangeStops::GoToNext()
{
    if (m_held) {
        if (m_awaitsInterrupt)
            m_interrupted = m_held->thread;
        PassStop(*std::exchange(m_held, std::nullopt));
        Require(::ContinueDebugEvent(m_event.dwProcessId, m_event.dwThreadId, DBG_CONTINUE), "ContinueDebugEvent");
    }
    while (!m_hasEnded) {
        // One that makes no event is left to who waits for its end.
        if (!WaitForEvent()) {
            m_hasEnded = true;
            return false;
        }
        const DWORD answer = Answer();
        if (m_held)
            return true;
        Require(::ContinueDebugEvent(m_event.dwProcessId, m_event.dwThreadId, answer), "ContinueDebugEvent");
    }
    return false;
}

bool ChangeStops::WaitForEvent()
{
    const ULONGLONG end = ::GetTickCount64() + patience;
    do {
        // Wine may answer before the time is over that there is none.
        if (!::WaitForDebugEvent(&m_event, second)) {
            ::Sleep(1);
            continue;
        }
        if (m_event.dwProcessId == ::GetProcessId(m_process))
            return true;
        // Of a program of another test, which was killed.
        ::ContinueDebugEvent(m_event.dwProcessId, m_event.dwThreadId, DBG_CONTINUE);
    } while (::GetTickCount64() < end);
    return false;
}

DWORD ChangeStops::Answer()
{
    if (m_event.dwDebugEventCode != EXCEPTION_DEBUG_EVENT) {
        Handle(m_event);
        return DBG_CONTINUE;
    }
    try {
        return HandleException(m_event.dwThreadId, m_event.u.Exception.ExceptionRecord);
    } catch (const std::runtime_error&) {
        // A second interrupt ends the program in one thread while another stops here: the other's registers are gone.
        if (::WaitForSingleObject(m_threads.at(m_event.dwThreadId), patience) != WAIT_OBJECT_0)
            throw;
        return DBG_CONTINUE;
    }
}

void ChangeStops::Handle(const DEBUG_EVENT& event)
{
    switch (event.dwDebugEventCode) {
    case CREATE_PROCESS_DEBUG_EVENT:
        m_threads[event.dwThreadId] = event.u.CreateProcessInfo.hThread;
        ::CloseHandle(event.u.CreateProcessInfo.hFile);
        break;
    case CREATE_THREAD_DEBUG_EVENT:
        m_threads[event.dwThreadId] = event.u.CreateThread.hThread;
        if (m_awaitsInterrupt)
            m_interruptThread = event.dwThreadId;
        break;
    case EXIT_THREAD_DEBUG_EVENT:
        m_threads.erase(event.dwThreadId);
        if (m_interruptThread == event.dwThreadId)
            m_awaitsInterrupt = false;
        break;
    case LOAD_DLL_DEBUG_EVENT:
        ::CloseHandle(event.u.LoadDll.hFile);
        break;
    case EXIT_PROCESS_DEBUG_EVENT:
        m_hasEnded = true;
        break;
    default:
        break;
    }
}

DWORD ChangeStops::HandleException(DWORD thread, const EXCEPTION_RECORD& exception)
{
    if (exception.ExceptionCode != EXCEPTION_BREAKPOINT) {
        WriteByte(m_dispatcher, breakpoint);
        return DBG_EXCEPTION_NOT_HANDLED;
    }
    // The system's own, before the program's first step.
    if (m_stops.empty()) {
        SetStops();
        return DBG_CONTINUE;
    }
    const auto address = reinterpret_cast<DWORD64>(exception.ExceptionAddress);
    if (address == m_dispatcher) {
        BeginDispatch(thread);
        return DBG_CONTINUE;
    }
    if (!m_stops.contains(address))
        return DBG_EXCEPTION_NOT_HANDLED;
    Stop stop{.thread = thread};
    stop.registers.ContextFlags = CONTEXT_FULL;
    Require(::GetThreadContext(m_threads.at(thread), &stop.registers), "GetThreadContext");
    stop.registers.Rip = address;
    if (!m_awaitsInterrupt && m_interrupted != thread && IsChange(stop.registers))
        m_held = stop;
    else
        PassStop(stop);
    return DBG_CONTINUE;
}

void ChangeStops::PassStop(Stop stop)
{
    // While an interrupt is awaited, the thread runs into the breakpoint again and again: a suspended one would not let
    // Wine start the thread that tells the program.
    if (m_awaitsInterrupt) {
        ::Sleep(1);
    } else {
        if (m_interrupted == stop.thread)
            m_interrupted.reset();
        stop.registers.R10 = stop.registers.Rcx;
        stop.registers.Rip += firstInstruction.size();
    }
    // Fails when the program was killed in the meantime.
    ::SetThreadContext(m_threads.at(stop.thread), &stop.registers);
}

void ChangeStops::BeginDispatch(DWORD thread)
{
    // Wine loses Rbp when a debugger has seen the exception, and the handlers would run with a wrong one. The record of
    // the registers, which lies at the top of the stack, still has it.
    CONTEXT registers{};
    registers.ContextFlags = CONTEXT_FULL;
    Require(::GetThreadContext(m_threads.at(thread), &registers), "GetThreadContext");
    const auto* const kept = reinterpret_cast<const void*>(registers.Rsp + offsetof(CONTEXT, Rbp));
    Require(::ReadProcessMemory(m_process, kept, &registers.Rbp, sizeof registers.Rbp, nullptr), "ReadProcessMemory");
    registers.Rip = m_dispatcher;
    Require(::SetThreadContext(m_threads.at(thread), &registers), "SetThreadContext");
    WriteByte(m_dispatcher, m_dispatcherBegin);
}

void ChangeStops::WriteByte(DWORD64 address, unsigned char byte)
{
    void* const place = reinterpret_cast<void*>(address);
    Require(::WriteProcessMemory(m_process, place, &byte, sizeof byte, nullptr), "WriteProcessMemory");
    ::FlushInstructionCache(m_process, place, sizeof byte);
}

void ChangeStops::SetStops()
{
    const HMODULE systemCalls = ::GetModuleHandleW(L"ntdll.dll");
    m_dispatcher = reinterpret_cast<DWORD64>(::GetProcAddress(systemCalls, "KiUserExceptionDispatcher"));
    const auto* const dispatcher = reinterpret_cast<const void*>(m_dispatcher);
    Require(m_dispatcher && ::ReadProcessMemory(m_process, dispatcher, &m_dispatcherBegin, 1, nullptr), "dispatcher");
    const std::pair<const char*, Call> calls[] = {{"NtCreateFile", Call::Create},
                                                  {"NtOpenFile", Call::Open},
                                                  {"NtSetInformationFile", Call::SetInformation},
                                                  {"NtWriteFile", Call::Write},
                                                  {"NtFlushBuffersFile", Call::Flush},
                                                  {"NtDeleteFile", Call::Delete}};
    for (const auto& [name, call] : calls) {
        // It stands at the same address in every process.
        const auto address = reinterpret_cast<DWORD64>(::GetProcAddress(systemCalls, name));
        const auto* const place = reinterpret_cast<const void*>(address);
        std::array<unsigned char, firstInstruction.size()> bytes{};
        Require(address && ::ReadProcessMemory(m_process, place, bytes.data(), bytes.size(), nullptr), name);
        Require(bytes == firstInstruction, name);
        WriteByte(address, breakpoint);
        m_stops[address] = call;
    }
}

bool ChangeStops::IsChange(const CONTEXT& registers) const
{
    switch (m_stops.at(registers.Rip)) {
    case Call::Create:
        return StackArgument(registers, 8) != openExisting || (StackArgument(registers, 9) & deleteOnClose) != 0;
    case Call::Open:
        return (StackArgument(registers, 6) & deleteOnClose) != 0;
    case Call::SetInformation:
        return std::ranges::find(changingInformation, StackArgument(registers, 5)) != std::end(changingInformation);
    case Call::Write:
        return !m_streams.contains(reinterpret_cast<HANDLE>(registers.Rcx));
    default:
        return true;
    }
}

std::uint64_t ChangeStops::StackArgument(const CONTEXT& registers, unsigned number) const
{
    // The first four are in registers, but have their place on the stack, behind the address to return to.
    std::uint32_t argument = 0;
    const auto* const place = reinterpret_cast<const void*>(registers.Rsp + std::uint64_t{number} * 8);
    Require(::ReadProcessMemory(m_process, place, &argument, sizeof argument, nullptr), "ReadProcessMemory");
    return argument;
}

} // namespace VyrTests
