// Tests of the program: new paths on another file system.
#include "../VyrProgram.h"

#include <VyrPlatform/text/Encoding.h>

#include <gmock/gmock.h>
#include <tests/support/linux/MountedFolder.h>

#include <filesystem>
#include <fstream>

using namespace VyrTests;
using testing::HasSubstr;

namespace {

class OtherFileSystem : public VyrProgram
{
protected:
    void SetUp() override
    {
        VyrProgram::SetUp();
        if (!m_disk.WhyNot().empty())
            GTEST_SKIP() << m_disk.WhyNot();
        m_folder.WriteFile(u"a", "1");
    }

    /// Renames "a" to `name` on the other disk.
    [[nodiscard]] ProgramResult RenameThere(const char16_t* name, std::vector<CString> options)
    {
        options.insert(options.end(), {u"--pairs", u"-"});
        return Rename(options, "a," + VyrPlatform::Encoding::ToUtf8(m_disk.Path(name)) + "\n");
    }

    const MountedFolder m_disk{MountedFolder::Kind::Memory};
};

} // namespace

TEST_F(OtherFileSystem, IsRefusedByThePreviewAndByApplying)
{
    for (const char16_t* const name : {u"a", u"new folder/deeper/a"}) {
        const ProgramResult preview = RenameThere(name, {});
        EXPECT_EQ(preview.exitCode, 1);
        EXPECT_THAT(preview.output,
                    HasSubstr("  refused: the new path is on another file system\n1 entry: 1 refused."));
        EXPECT_EQ(RenameThere(name, {u"--apply"}).exitCode, 1);
    }
    EXPECT_EQ(m_folder.ReadFile(u"a"), "1");
}

TEST_F(OtherFileSystem, RenamesWithinItAreDone)
{
    std::ofstream(ToStdPath(m_disk.Path(u"b"))) << "2";
    const ProgramResult result =
        Rename({u"--date", u"'new'<Folder>'deeper'<Folder><Name>", u"--apply", m_disk.Path(u"b")});
    EXPECT_EQ(result.exitCode, 0) << result.output << result.errors;
    EXPECT_EQ(std::filesystem::file_size(ToStdPath(m_disk.Path(u"new/deeper/b"))), 1u);
}
