// A file that the system stops accepting half-way is removed.
#include <VyrHostPlatform/DurableFile.h>

#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <cerrno>
#include <csignal>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/resource.h>
#include <unistd.h>

using namespace VyrHostPlatform;
using VyrTests::ScratchFolder;

namespace {

/// Writes ten pieces of which the system takes the first two and a half, and leaves with the error's code.
[[noreturn]] void WritePastTheLimit(const CString& path)
{
    const std::string piece(1000, 'x');
    const rlimit limit{2500, 2500};
    std::signal(SIGXFSZ, SIG_IGN);
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0)
        ::_exit(0);
    const std::uint32_t error = DurableFile::WriteNew(path, [&piece](const DurableFile::TakePiece& take) {
        for (int count = 0; count < 10; ++count)
            take(piece);
    });
    ::_exit(static_cast<int>(error));
}

} // namespace

TEST(DurableFileLimitTest, AFileThatDoesNotFitIsNotLeft)
{
    const ScratchFolder scratch;
    EXPECT_EXIT(WritePastTheLimit(scratch.Path(u"file")), testing::ExitedWithCode(EFBIG), "");
    EXPECT_FALSE(std::filesystem::exists(VyrTests::ToStdPath(scratch.Path(u"file"))));
}
