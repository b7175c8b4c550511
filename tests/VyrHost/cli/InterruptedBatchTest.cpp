// Tests of the program: Ctrl-C while a batch of renames is applied and while it is undone.
#include "VyrProgram.h"

#include <VyrPlatform/text/Encoding.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

using namespace VyrTests;
using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

namespace fs = std::filesystem;

class InterruptedBatch : public VyrProgram
{
protected:
    static constexpr int count = 40;

    using FolderSnapshot = std::map<std::string, std::string>;

    /// Writes files that each contain their name.
    void Arrange()
    {
        for (int number = 0; number < count; ++number) {
            const std::string name = "f" + std::to_string(number);
            std::ofstream(PathOf(name), std::ios::binary) << name;
            m_names += name + "\n";
        }
    }

    /// Starts the program and interrupts it between the change that creates `name` and the next one.
    ProgramResult InterruptWhenThere(const std::vector<CString>& arguments, const std::string& name,
                                     const std::string& input = {}) const
    {
        ProgramCall call = CallOf(arguments, input);
        call.stopsAtChanges = true;
        ChildProcess child(call);
        while (child.GoToNextChange()) {
            if (fs::exists(PathOf(name))) {
                child.Interrupt();
                return child.Wait();
            }
        }
        ADD_FAILURE() << "it ended without " << name;
        return child.Wait();
    }

    ProgramResult InterruptRename(const std::vector<CString>& more = {}) const
    {
        std::vector<CString> arguments = {u"rename", u"--prefix", u"x", u"--stdin", u"--apply"};
        arguments.insert(arguments.end(), more.begin(), more.end());
        return InterruptWhenThere(arguments, "xf0", m_names);
    }

    /// The number of files with the new name; also tests that each has its own content.
    [[nodiscard]] int CountRenamed() const
    {
        const FolderSnapshot files = Files();
        EXPECT_EQ(files.size(), std::size_t{count});
        int renamed = 0;
        for (const auto& [name, content] : files) {
            const bool isRenamed = name.front() == 'x';
            EXPECT_EQ(isRenamed ? name.substr(1) : name, content);
            renamed += isRenamed ? 1 : 0;
        }
        return renamed;
    }

    [[nodiscard]] fs::path PathOf(const std::string& name) const
    {
        return ToStdPath(m_folder.Path(VyrPlatform::Encoding::FromUtf8(name)));
    }

    static std::string Counts(int renamed)
    {
        return std::to_string(count) + " entries: " + std::to_string(renamed) + " renamed, " +
               std::to_string(count - renamed) + " not reached.\n";
    }

    std::string m_names;
};

} // namespace

TEST_F(InterruptedBatch, ReportsWhatWasDoneAndCanBeUndone)
{
    Arrange();
    const ProgramResult result = InterruptRename();
    const int renamed = CountRenamed();
    EXPECT_GT(renamed, 0);
    EXPECT_LT(renamed, count);
    EXPECT_EQ(result.exitCode, 130) << result.errors;
    EXPECT_THAT(result.output,
                AllOf(HasSubstr(Counts(renamed) + "This was batch "), HasSubstr("; \"vyr undo\" undoes it.\n")));
    EXPECT_EQ(Run({u"recover"}).output, "No batch was cut off.\n");
    EXPECT_EQ(Run({u"undo", u"--quiet"}).exitCode, 0);
    EXPECT_EQ(CountRenamed(), 0);
}

TEST_F(InterruptedBatch, WithQuietPrintsOneSummaryAndTheNextCommand)
{
    Arrange();
    const ProgramResult result = InterruptRename({u"--quiet"});
    const int renamed = CountRenamed();
    EXPECT_EQ(result.exitCode, 130) << result.errors;
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.errors, AllOf(StartsWith("vyr: interrupted: " + Counts(renamed) + "This was batch "),
                                     HasSubstr("; \"vyr undo\" ")));
    EXPECT_EQ(std::count(result.errors.begin(), result.errors.end(), '\n'), 2) << result.errors;
}

TEST_F(InterruptedBatch, UndoReportsWhatWasDoneAndCanBeContinued)
{
    Arrange();
    ASSERT_EQ(Rename({u"--prefix", u"x", u"--apply", u"--quiet", u"f*"}).exitCode, 0);
    // Undo begins with the last one.
    const ProgramResult result = InterruptWhenThere({u"undo"}, "f" + std::to_string(count - 1));
    const int left = CountRenamed();
    EXPECT_GT(left, 0);
    EXPECT_LT(left, count);
    EXPECT_EQ(result.exitCode, 130) << result.errors;
    EXPECT_THAT(result.output, HasSubstr(": " + Counts(count - left)));
    EXPECT_EQ(Run({u"recover"}).output, "No batch was cut off.\n");
    EXPECT_EQ(Run({u"undo", u"--quiet"}).exitCode, 0);
    EXPECT_EQ(CountRenamed(), 0);
}
