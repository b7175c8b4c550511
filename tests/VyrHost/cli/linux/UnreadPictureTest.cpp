// Tests of the program: pictures that the user may not read.
#include "UnprivilegedProgram.h"

#include <gmock/gmock.h>
#include <tests/support/PictureBuilder.h>

#include <sys/stat.h>

using namespace VyrTests;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

class UnreadPicture : public UnprivilegedProgram
{
protected:
    /// False where nobody else can run the program.
    bool Arrange() const
    {
        for (const char16_t* const name : {u"p.jpg", u"locked.jpg"})
            m_folder.WriteFile(name, BuildJpeg(PictureFacts{}));
        m_folder.WriteFile(u"locked.xmp");
        chmod(Bytes(m_folder.Path()).c_str(), 0777);
        chmod(Bytes(m_folder.Path(u"locked.jpg")).c_str(), 0);
        return RunUnprivileged({u"--version"}).exitCode == 0;
    }

    static std::string Bytes(const CString& path) { return VyrPlatform::Encoding::ToNameBytes(path); }
};

constexpr const char* reason = "refused: the picture cannot be read: Permission denied\n";

} // namespace

TEST_F(UnreadPicture, IsNotOneWithoutADate)
{
    if (!Arrange())
        GTEST_SKIP() << "root can read every file, and nobody else can run the program here";
    const ProgramResult result =
        RunUnprivileged({u"rename", u"--date", u"yyyy", u"--date-from", u"picture,modified", u"p.jpg", u"locked.jpg"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("p.jpg       ->  2024.jpg  date: picture\nlocked.jpg                "));
    EXPECT_THAT(result.output, HasSubstr(reason));
    EXPECT_THAT(result.output, HasSubstr("2 entries: 1 renamed, 1 refused.\n"));
    // Where the file has an earlier date of the list, the picture is not read.
    EXPECT_EQ(RunUnprivileged({u"rename", u"--date", u"yyyy-MM-dd", u"--date-from", u"modified,picture", u"locked.jpg"})
                  .exitCode,
              0);
}

TEST_F(UnreadPicture, IsRefusedForTheTimesOfTheFile)
{
    if (!Arrange())
        GTEST_SKIP() << "root can read every file, and nobody else can run the program here";
    EXPECT_THAT(RunUnprivileged({u"times", u"--set-modified", u"from:picture", u"locked.jpg"}).output,
                HasSubstr("the picture cannot be read: Permission denied\n"));
}

TEST_F(UnreadPicture, IsRefusedForTheCamera)
{
    if (!Arrange())
        GTEST_SKIP() << "root can read every file, and nobody else can run the program here";
    EXPECT_THAT(RunUnprivileged({u"rename", u"--date", u"yyyy <Make>", u"locked.jpg"}).output, HasSubstr(reason));
}

TEST_F(UnreadPicture, RefusesTheFilesOfItsGroup)
{
    if (!Arrange())
        GTEST_SKIP() << "root can read every file, and nobody else can run the program here";
    const std::string output = RunUnprivileged({u"rename", u"--date", u"yyyy", u"--date-from", u"picture,modified",
                                                u"--together", u"locked.xmp", u"locked.jpg"})
                                   .output;
    EXPECT_THAT(output, HasSubstr("locked.xmp        refused: a file that it belongs to cannot get its name\n"));
    EXPECT_THAT(output, HasSubstr(reason));
}
