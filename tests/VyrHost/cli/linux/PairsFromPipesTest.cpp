#include "../VyrProgram.h"

#include <gmock/gmock.h>

#include <fstream>
#include <sys/stat.h>
#include <thread>

using namespace VyrTests;
using testing::HasSubstr;

namespace {

using PairsFromPipes = VyrProgram;

} // namespace

TEST_F(PairsFromPipes, AreReadFromTheStandardInputByItsName)
{
    WriteNamed({u"a", u"b"});
    const ProgramResult result = Rename({u"--pairs", u"/dev/stdin", u"--apply"}, "a,x\nb,y\n");
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(m_folder.ReadFile(u"x"), "a");
    EXPECT_EQ(m_folder.ReadFile(u"y"), "b");
}

TEST_F(PairsFromPipes, AreReadFromANamedPipe)
{
    WriteNamed({u"a"});
    const auto path = ToStdPath(m_folder.Path(u"pipe"));
    ASSERT_EQ(mkfifo(path.c_str(), 0600), 0);
    std::thread writer([&path] { std::ofstream(path) << "a,x\n"; });
    const ProgramResult result = Rename({u"--pairs", u"pipe", u"--apply"});
    writer.join();
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(m_folder.ReadFile(u"x"), "a");
}

TEST_F(PairsFromPipes, AreNotReadFromADeviceThatNeverEnds)
{
    const ProgramResult result = Rename({u"--pairs", u"/dev/zero", u"--apply"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("cannot read '/dev/zero': No such device"));
}
