// Starts programs in a session of their own, without leaving zombies.
#include <VyrPlatform/common/process/SystemShell.h>
#include <VyrPlatform/text/Encoding.h>

#include <cerrno>
#include <fcntl.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace VyrPlatform::Shell {

namespace {

constexpr std::uintptr_t started = 33;

std::vector<std::string> TakeApart(std::u16string_view arguments)
{
    std::vector<std::string> parts;
    std::u16string part;
    bool isQuoted = false;
    bool hasPart = false;
    const auto finish = [&] {
        if (hasPart)
            parts.push_back(Encoding::ToNameBytes(part));
        part.clear();
        hasPart = false;
    };
    for (const char16_t unit : arguments) {
        if (unit == u'"') {
            isQuoted = !isQuoted;
            hasPart = true;
        } else if (unit == u' ' && !isQuoted) {
            finish();
        } else {
            part += unit;
            hasPart = true;
        }
    }
    finish();
    return parts;
}

/// The shell's error number for `error`.
std::uintptr_t NumberOf(int error) noexcept
{
    switch (error) {
    case ENOENT:
        return 2;
    case ENOTDIR:
        return 3;
    case EACCES:
    case EPERM:
        return 5;
    case ENOEXEC:
        return 11;
    default:
        return 8;
    }
}

/// Becomes the program, or writes the error code to `report`. Calls only functions that are allowed after fork.
[[noreturn]] void Become(const char* path, char* const* arguments, int report) noexcept
{
    ::setsid();
    int error = 0;
    const pid_t child = ::fork();
    if (child == 0)
        ::execv(path, arguments);
    if (child <= 0) {
        error = errno;
        static_cast<void>(!::write(report, &error, sizeof error));
    }
    ::_exit(0);
}

} // namespace

std::uintptr_t StartBySystem(Window /*owner*/, const CString& path, const CString& arguments)
{
    const std::string program = Encoding::ToNameBytes(path);
    std::vector<std::string> texts = TakeApart(arguments);
    texts.insert(texts.begin(), program);
    std::vector<char*> pointers;
    for (std::string& text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);

    // The writing end closes when the program begins; bytes before that give the error.
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0)
        return NumberOf(errno);
    const pid_t child = ::fork();
    if (child == 0)
        Become(program.c_str(), pointers.data(), ends[1]);
    int error = child < 0 ? errno : 0;
    ::close(ends[1]);
    if (child > 0) {

        while (::read(ends[0], &error, sizeof error) < 0 && errno == EINTR) {
        }
        while (::waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
        }
    }
    ::close(ends[0]);
    return error == 0 ? started : NumberOf(error);
}

} // namespace VyrPlatform::Shell
