// For tests: prints what a separate program gets from a platform service. The first argument says which.
#include <VyrHostPlatform/Console.h>
#include <VyrHostPlatform/Interrupt.h>
#include <VyrLibraryUtils/PathUtils.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/process/Process.h>
#include <VyrPlatform/text/CodePage.h>
#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/text/Locale.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <map>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace VyrHostPlatform;
using namespace VyrPlatform;
using Arguments = std::vector<CString>;

constexpr int refused = 3;
constexpr int notRead = 4;

int Print(const CString& text)
{
    return Console::Write(Console::Stream::Output, Encoding::ToNameBytes(text + u"\n")) == 0 ? 0 : refused;
}

int PrintArguments(const Arguments& arguments)
{
    for (const CString& argument : arguments)
        Print(argument);
    return 0;
}

/// Writes the input to both streams; tests see that neither changes a byte.
int CopyInput(const Arguments& /*arguments*/)
{
    std::uint32_t error = 0;
    for (std::string piece = Console::ReadInput(error); !piece.empty(); piece = Console::ReadInput(error)) {
        if (Console::Write(Console::Stream::Output, piece) != 0 || Console::Write(Console::Stream::Error, piece) != 0)
            return refused;
    }
    return error == 0 ? 0 : notRead;
}

int PrintEnvironment(const Arguments& arguments)
{
    const std::optional<CString> value = Process::GetEnvironment(arguments.at(0));
    return value ? Print(*value) : refused;
}

int PrintVersion(const Arguments& /*arguments*/)
{
    const Process::ProgramVersion& version = Process::GetProgramVersion();
    CString text;
    text.Format(u"%d.%d.%d.%d|%s|%s", version.file[0], version.file[1], version.file[2], version.file[3],
                version.productName, version.productVersion);
    return Print(text);
}

int PrintPath(const Arguments& /*arguments*/)
{
    return Print(Process::GetProgramPath());
}

/// Prints the path of this program once its file is gone or another one stands there.
int PrintPathWhenGone(const Arguments& /*arguments*/)
{
    const CString path = Process::GetProgramPath();
    const std::int64_t size = FileSystem::Query(path).size;
    Print(u"ready");
    for (int i = 0; i < 30000 && FileSystem::Query(path).size == size; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    return Print(Process::GetProgramPath());
}

int PrintCurrentFolder(const Arguments& /*arguments*/)
{
    return Print(Process::GetCurrentFolder());
}

int PrintFolders(const Arguments& /*arguments*/)
{
    Print(Process::GetDataFolder(Process::DataLocation::Local));
    Print(Process::GetDataFolder(Process::DataLocation::Roaming));
    return Print(Process::GetDataFolder(Process::DataLocation::State));
}

int PrintLogFolder(const Arguments& /*arguments*/)
{
    return Print(VyrLibraryUtils::PathUtils::GetApplicationLogFolderPath());
}

int PrintLocale(const Arguments& /*arguments*/)
{
    const int order = Locale::Compare(u"z", u"ö");
    return Print(CString::Join({order < 0   ? u"<"
                                : order > 0 ? u">"
                                            : u"=",
                                u"|", Locale::GetNumberTexts().thousands, u"|", Locale::GetDateTexts().months[0]}));
}

int PrintAnsiCodePage(const Arguments& /*arguments*/)
{
    CString text;
    text.Format(u"%u", CodePage::GetAnsi());
    return Print(text);
}

int PrintTerminals(const Arguments& /*arguments*/)
{
    CString text;
    text.Format(u"%d %d %d %d", Console::IsInputTerminal(), Console::IsTerminal(Console::Stream::Output),
                Console::IsTerminal(Console::Stream::Error), Console::GetWidth(Console::Stream::Output));
    return Print(text);
}

/// Writes its further arguments to the file that the first one names; the file appears when it is complete.
int WriteArguments(const Arguments& arguments)
{
    const std::filesystem::path path(std::u16string(arguments.at(0).View()));
    std::filesystem::path unfinished = path;
    unfinished += u".unfinished";
    {
        std::ofstream stream(unfinished, std::ios::binary);
        for (std::size_t i = 1; i < arguments.size(); ++i)
            stream << Encoding::ToUtf8(arguments[i]) << '\n';
    }
    std::filesystem::rename(unfinished, path);
    return 0;
}

/// Waits for a file, half a minute at most, and then creates another.
int WaitForFile(const Arguments& arguments)
{
    const std::filesystem::path awaited(std::u16string(arguments.at(0).View()));
    for (int i = 0; i < 1000 && !std::filesystem::exists(awaited); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(30));
    if (!std::filesystem::exists(awaited))
        return refused;
    std::ofstream(std::filesystem::path(std::u16string(arguments.at(1).View())));
    return 0;
}

int CatchInterrupt(const Arguments& /*arguments*/)
{
    Interrupt::Catch();
    Print(u"ready");
    while (!Interrupt::WasAsked())
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    Print(u"asked");
    // Only a second interrupt ends it.
    for (;;)
        std::this_thread::sleep_for(std::chrono::minutes(1));
}

int InterruptedInput(const Arguments& /*arguments*/)
{
    Interrupt::Catch();
    Print(u"ready");
    std::uint32_t error = 0;
    const bool isAtEnd = Console::ReadInput(error).empty() && error == 0;
    return isAtEnd && Interrupt::WasAsked() ? 0 : refused;
}

} // namespace

int main(int count, char** argumentBytes)
{
    const std::map<CString, int (*)(const Arguments&)> answers = {
        {u"arguments", PrintArguments},
        {u"copy", CopyInput},
        {u"environment", PrintEnvironment},
        {u"version", PrintVersion},
        {u"path", PrintPath},
        {u"path-when-gone", PrintPathWhenGone},
        {u"current-folder", PrintCurrentFolder},
        {u"folders", PrintFolders},
        {u"locale", PrintLocale},
        {u"ansi-code-page", PrintAnsiCodePage},
        {u"log-folder", PrintLogFolder},
        {u"terminals", PrintTerminals},
        {u"write", WriteArguments},
        {u"wait-for", WaitForFile},
        {u"interrupt", CatchInterrupt},
        {u"interrupted-input", InterruptedInput},
    };
    Arguments arguments = Console::GetArguments(count, argumentBytes);
    const auto answer = answers.find(arguments.at(0));
    arguments.erase(arguments.begin());
    return answer->second(arguments);
}
