// ReadToEnd on Linux: pipes are read until their writers are done, endless devices are refused.
#include <VyrHostPlatform/ReadToEnd.h>

#include <gtest/gtest.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <string>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

using VyrHostPlatform::ReadToEnd;

namespace {

/// The number of bytes in a named pipe that was opened by a writer and a reader.
int CountUnread(const std::filesystem::path& pipe)
{
    const int descriptor = open(pipe.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    int count = 0;
    ioctl(descriptor, FIONREAD, &count);
    close(descriptor);
    return count;
}

} // namespace

TEST(ReadToEndPipe, ReadsANamedPipeToItsEnd)
{
    const VyrTests::ScratchFolder scratch;
    const auto path = VyrTests::ToStdPath(scratch.Path(u"pipe"));
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    const std::string half(700'000, 'x');
    // More than fits into a pipe, and with a wait in the middle.
    std::thread writer([&] {
        std::ofstream stream(path, std::ios::binary);
        stream << half << std::flush;
        while (CountUnread(path) > 0)
            std::this_thread::yield();
        stream << half << "end";
    });
    std::uint32_t error = 1;
    EXPECT_EQ(ReadToEnd(scratch.Path(u"pipe"), error), half + half + "end");
    EXPECT_EQ(error, 0u);
    writer.join();
}

TEST(ReadToEndPipe, RefusesDevicesThatNeverEnd)
{
    for (const char16_t* const path : {u"/dev/zero", u"/dev/urandom"}) {
        std::uint32_t error = 0;
        EXPECT_EQ(ReadToEnd(path, error), std::nullopt);
        EXPECT_EQ(error, std::uint32_t{ENODEV});
    }
}
