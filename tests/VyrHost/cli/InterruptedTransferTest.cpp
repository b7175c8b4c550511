// Tests of the program: Ctrl-C while folders are copied and moved.
#include "VyrProgram.h"

#include <VyrPlatform/text/Encoding.h>

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>

using namespace VyrTests;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

namespace fs = std::filesystem;

class InterruptedTransfer : public VyrProgram
{
protected:
    static constexpr int filesInOne = 40;

    using Files = std::map<std::string, std::string>;

    /// Writes "one" with many files and "two" with one; both are to go to "to".
    Files Arrange() const
    {
        fs::create_directories(PathOf("one"));
        fs::create_directories(PathOf("two"));
        fs::create_directories(PathOf("to"));
        for (int number = 0; number < filesInOne; ++number)
            std::ofstream(PathOf("one/" + std::to_string(number)), std::ios::binary) << "content of " << number;
        m_folder.WriteFile(u"two/file", "2");
        return FilesIn("");
    }

    /// Starts the program and interrupts it `times` times once something of "one" is at the target, before each of the
    /// next changes.
    ProgramResult RunInterrupted(const std::vector<CString>& arguments, int times = 1) const
    {
        ProgramCall call = CallOf(arguments);
        call.stopsAtChanges = true;
        ChildProcess child(call);
        bool isHeld = child.GoToNextChange();
        while (isHeld && (!fs::exists(PathOf("to/one")) || fs::is_empty(PathOf("to/one"))))
            isHeld = child.GoToNextChange();
        for (int time = 0; time < times; ++time) {
            EXPECT_TRUE(isHeld);
            child.Interrupt();
            isHeld = time + 1 < times && child.GoToNextChange();
        }
        return child.Wait();
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

TEST_F(InterruptedTransfer, CopyFinishesTheCurrentFolderAndNamesThoseNotReached)
{
    Arrange();
    const ProgramResult result = RunInterrupted({u"copy", u"one", u"two", u"to", u"--apply"});
    EXPECT_EQ(result.exitCode, 130) << result.errors;
    EXPECT_THAT(result.output, AllOf(StartsWith("one  ->  to"), HasSubstr("one  1 folder, 40 files, ")));
    EXPECT_THAT(result.output, HasSubstr("two  not reached; 1 folder, 1 file, 1 byte\n"
                                         "2 folders: 1 copied, 1 not reached.\n"
                                         "Interrupted: folders that were not reached are as they were.\n"));
    EXPECT_EQ(FilesIn("one/").size(), std::size_t{filesInOne});
    EXPECT_EQ(FilesIn("to/one/"), FilesIn("one/"));
    EXPECT_FALSE(m_folder.Has(u"to/two"));
    EXPECT_EQ(m_folder.ReadFile(u"two/file"), "2");
}

TEST_F(InterruptedTransfer, MoveDoesNotTouchFoldersNotReached)
{
    Arrange();
    const ProgramResult result = RunInterrupted({u"move", u"one", u"two", u"to", u"--apply", u"--quiet"});
    EXPECT_EQ(result.exitCode, 130) << result.errors;
    EXPECT_THAT(result.errors, HasSubstr("vyr: 'two' not reached\n"));
    EXPECT_EQ(FilesIn("to/one/").size(), std::size_t{filesInOne});
    EXPECT_FALSE(m_folder.Has(u"one"));
    EXPECT_EQ(FilesIn("two/"), (Files{{"file", "2"}}));
    EXPECT_FALSE(m_folder.Has(u"to/two"));
}

TEST_F(InterruptedTransfer, SecondInterruptEndsAMoveAtOnceAndLosesNoFile)
{
    const Files before = Arrange();
    const ProgramResult result = RunInterrupted({u"move", u"one", u"two", u"to", u"--apply"}, 2);
    EXPECT_THAT(result.exitCode, testing::Ne(1));
    EXPECT_EQ(result.output.find("2 folders"), std::string::npos) << result.output;
    EXPECT_FALSE(FilesIn("one/").empty());
    // Every file is complete at one of its two paths.
    for (const auto& [name, content] : before) {
        const bool isAtSource = fs::exists(PathOf(name));
        const CString there = VyrPlatform::Encoding::FromUtf8(isAtSource ? name : "to/" + name);
        EXPECT_EQ(m_folder.ReadFile(there), content) << name;
    }
    // The next call moves the rest.
    EXPECT_EQ(Run({u"move", u"one", u"to", u"--apply", u"--quiet"}).exitCode, 0);
    EXPECT_EQ(FilesIn("to/one/").size(), std::size_t{filesInOne});
}
