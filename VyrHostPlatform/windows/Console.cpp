// The console and the standard streams through their handles.
#include <VyrHostPlatform/Console.h>
#include <VyrHostPlatform/Interrupt.h>
#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/text/WindowsCString.h>

#include <algorithm>
#include <memory>
#include <windows.h>

#include <shellapi.h>

namespace VyrHostPlatform::Console {

using namespace VyrPlatform;

namespace {

constexpr std::size_t largestPiece = std::size_t{1} << 20;

HANDLE Handle(Stream stream) noexcept
{
    return ::GetStdHandle(stream == Stream::Output ? STD_OUTPUT_HANDLE : STD_ERROR_HANDLE);
}

bool IsConsole(HANDLE handle) noexcept
{
    DWORD mode = 0;
    return ::GetConsoleMode(handle, &mode) != 0;
}

std::uint32_t WriteText(HANDLE console, std::string_view bytes)
{
    // The console takes less than 64 KiB at once on older systems.
    constexpr std::size_t largestText = 16384;
    const CString text = Encoding::FromUtf8(bytes);
    std::u16string_view rest = text;
    while (!rest.empty()) {
        DWORD written = 0;
        const auto count = static_cast<DWORD>(std::min(rest.size(), largestText));
        if (!::WriteConsoleW(console, rest.data(), count, &written, nullptr))
            return ::GetLastError();
        if (written == 0)
            return ERROR_WRITE_FAULT;
        rest.remove_prefix(written);
    }
    return ERROR_SUCCESS;
}

std::uint32_t WriteBytes(HANDLE file, std::string_view bytes)
{
    while (!bytes.empty()) {
        DWORD written = 0;
        const auto count = static_cast<DWORD>(std::min(bytes.size(), largestPiece));
        if (!::WriteFile(file, bytes.data(), count, &written, nullptr))
            return ::GetLastError();
        if (written == 0)
            return ERROR_WRITE_FAULT;
        bytes.remove_prefix(written);
    }
    return ERROR_SUCCESS;
}

std::string ReadText(HANDLE console, std::uint32_t& error)
{
    // One typed line; Ctrl-Z and Enter end the input.
    constexpr char16_t endOfInput = 26;
    std::u16string text(8192, u'\0');
    DWORD count = 0;
    if (!::ReadConsoleW(console, text.data(), static_cast<DWORD>(text.size()), &count, nullptr)) {
        error = ::GetLastError();
        return {};
    }
    text.resize(count);
    if (text.starts_with(endOfInput))
        return {};
    return Encoding::ToUtf8(text);
}

} // namespace

std::vector<CString> GetArguments(int /*count*/, const char* const* /*arguments*/)
{
    int count = 0;
    const std::unique_ptr<LPWSTR[], decltype(&::LocalFree)> arguments(::CommandLineToArgvW(::GetCommandLineW(), &count),
                                                                      ::LocalFree);
    std::vector<CString> result;
    for (int i = 1; arguments && i < count; ++i)
        result.push_back(FromWide(arguments[static_cast<std::size_t>(i)]));
    return result;
}

bool IsTerminal(Stream stream)
{
    const HANDLE handle = Handle(stream);
    DWORD mode = 0;
    if (!::GetConsoleMode(handle, &mode))
        return false;
    // The caller is about to send colours.
    ::SetConsoleMode(handle, mode | ENABLE_PROCESSED_OUTPUT | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
    return true;
}

bool IsInputTerminal()
{
    return IsConsole(::GetStdHandle(STD_INPUT_HANDLE));
}

int GetWidth(Stream stream)
{
    CONSOLE_SCREEN_BUFFER_INFO info;
    if (!::GetConsoleScreenBufferInfo(Handle(stream), &info))
        return 0;
    return info.srWindow.Right - info.srWindow.Left + 1;
}

std::uint32_t Write(Stream stream, std::string_view bytes)
{
    const HANDLE handle = Handle(stream);
    return IsConsole(handle) ? WriteText(handle, bytes) : WriteBytes(handle, bytes);
}

std::string ReadInput(std::uint32_t& error)
{
    error = 0;
    if (Interrupt::WasAsked())
        return {};
    const HANDLE input = ::GetStdHandle(STD_INPUT_HANDLE);
    if (IsConsole(input))
        return ReadText(input, error);
    std::string piece(largestPiece, '\0');
    DWORD count = 0;
    // A write of no bytes to a pipe reads as an empty piece, which is not the end. A closed pipe fails; under Wine a
    // pipe of the Linux side gives empty pieces without end, and cannot be examined.
    BOOL succeeded = FALSE;
    do {
        succeeded = ::ReadFile(input, piece.data(), static_cast<DWORD>(piece.size()), &count, nullptr);
    } while (succeeded && count == 0 && ::PeekNamedPipe(input, nullptr, 0, nullptr, nullptr, nullptr));
    // The other end of a pipe is closed.
    if (!succeeded && ::GetLastError() != ERROR_BROKEN_PIPE)
        error = ::GetLastError();
    piece.resize(succeeded ? count : 0);
    return piece;
}

} // namespace VyrHostPlatform::Console
