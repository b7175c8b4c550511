// Tests of the program: Ctrl-C while folders are copied and moved.
#include "VyrProgram.h"

#include <VyrPlatform/text/Encoding.h>

#include <gmock/gmock.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

using namespace VyrTests;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

namespace fs = std::filesystem;

class InterruptedTransfer : public VyrProgram
{
protected:
    static constexpr int filesInOne = 500;

    using Files = std::map<std::string, std::string>;

    /// "one" takes a while, "two" is small; both go to "to".
    Files Arrange() const
    {
        fs::remove_all(PathOf("one"));
        fs::remove_all(PathOf("two"));
        fs::remove_all(PathOf("to"));
        fs::create_directories(PathOf("one"));
        fs::create_directories(PathOf("two"));
        fs::create_directories(PathOf("to"));
        for (int number = 0; number < filesInOne; ++number)
            std::ofstream(PathOf("one/" + std::to_string(number)), std::ios::binary) << "content of " << number;
        m_folder.WriteFile(u"two/file", "2");
        return FilesIn("");
    }

    /// Starts a call, and interrupts it `times` as soon as something of "one" has come to the target.
    ProgramResult RunInterrupted(const std::vector<CString>& arguments, int times = 1) const
    {
        ChildProcess child(CallOf(arguments));
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
        while ((!fs::exists(PathOf("to/one")) || fs::is_empty(PathOf("to/one"))) &&
               std::chrono::steady_clock::now() < end)
            std::this_thread::yield();
        for (int time = 0; time < times; ++time) {
            child.Interrupt();
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        }
        return child.Wait();
    }

    /// RunInterrupted on what Arrange makes, anew where the work had ended before the interrupt came.
    ProgramResult RunInterruptedInTime(const std::vector<CString>& arguments) const
    {
        constexpr int attempts = 5;
        ProgramResult result;
        for (int attempt = 0; attempt < attempts; ++attempt) {
            Arrange();
            result = RunInterrupted(arguments);
            if (result.exitCode != 0)
                break;
        }
        return result;
    }

    [[nodiscard]] Files FilesIn(const std::string& folder) const
    {
        Files files;
        for (auto& [name, content] : VyrProgram::Files())
            if (name.starts_with(folder))
                files.emplace(name.substr(folder.size()), content);
        return files;
    }

    [[nodiscard]] fs::path PathOf(const std::string& name) const
    {
        return ToStdPath(m_folder.Path(VyrPlatform::Encoding::FromUtf8(name)));
    }
};

} // namespace

TEST_F(InterruptedTransfer, CopyEndsTheFolderInHandAndSaysWhatWasNotReached)
{
    const ProgramResult result = RunInterruptedInTime({u"copy", u"one", u"two", u"to", u"--apply"});
    EXPECT_EQ(result.exitCode, 130) << result.errors;
    EXPECT_THAT(result.output, AllOf(StartsWith("one  ->  to"), HasSubstr("one  1 folder, 500 files, ")));
    EXPECT_THAT(result.output, HasSubstr("two  not reached; 1 folder, 1 file, 1 byte\n"
                                         "2 folders: 1 copied, 1 not reached.\n"
                                         "Interrupted: folders that were not reached are as they were.\n"));
    EXPECT_EQ(FilesIn("one/").size(), std::size_t{filesInOne});
    EXPECT_EQ(FilesIn("to/one/"), FilesIn("one/"));
    EXPECT_FALSE(m_folder.Has(u"to/two"));
    EXPECT_EQ(m_folder.ReadFile(u"two/file"), "2");
}

TEST_F(InterruptedTransfer, MoveLeavesTheSourceOfWhatWasNotReachedWhole)
{
    const ProgramResult result = RunInterruptedInTime({u"move", u"one", u"two", u"to", u"--apply", u"--quiet"});
    EXPECT_EQ(result.exitCode, 130) << result.errors;
    EXPECT_THAT(result.errors, HasSubstr("vyr: 'two' not reached\n"));
    EXPECT_EQ(FilesIn("to/one/").size(), std::size_t{filesInOne});
    EXPECT_FALSE(m_folder.Has(u"one"));
    EXPECT_EQ(FilesIn("two/"), (Files{{"file", "2"}}));
    EXPECT_FALSE(m_folder.Has(u"to/two"));
}

TEST_F(InterruptedTransfer, SecondInterruptEndsAMoveAtOnceAndLosesNothing)
{
    const Files before = Arrange();
    const ProgramResult result = RunInterrupted({u"move", u"one", u"two", u"to", u"--apply"}, 2);
    EXPECT_THAT(result.exitCode, testing::Ne(1));
    // Every file is whole at one of its two places.
    for (const auto& [name, content] : before) {
        const bool isAtSource = fs::exists(PathOf(name));
        const CString there = VyrPlatform::Encoding::FromUtf8(isAtSource ? name : "to/" + name);
        EXPECT_EQ(m_folder.ReadFile(there), content) << name;
    }
    // And the rest can go after.
    if (m_folder.Has(u"one")) {
        EXPECT_EQ(Run({u"move", u"one", u"to", u"--apply", u"--quiet"}).exitCode, 0);
    }
    EXPECT_EQ(FilesIn("to/one/").size(), std::size_t{filesInOne});
}
