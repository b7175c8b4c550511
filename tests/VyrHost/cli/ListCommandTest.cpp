// Tests of the program: vyr list.
#include "VyrProgram.h"

#include <VyrPlatform/files/FileAttributes.h>

#include <gmock/gmock.h>
#include <tests/support/FileMoments.h>
#include <tests/support/FileState.h>
#include <tests/support/Links.h>
#include <tests/support/PictureBuilder.h>

using namespace VyrTests;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

namespace {

class ListCommand : public VyrProgram
{
protected:
    ListCommand()
    {
        m_environment[u"TZ"] = u"UTC";
        m_environment[u"LC_ALL"] = u"C.UTF-8";
    }

    /// Files of 10 and 2,000 bytes and a folder, changed on 5 January 2024 10:30 UTC.
    void MakeFiles() const
    {
        m_folder.WriteFile(u"a.txt", "0123456789");
        m_folder.WriteFile(u"b, c.txt", std::string(2000, 'x'));
        m_folder.MakeFolder(u"folder");
        constexpr std::int64_t moment = 1'704'450'600;
        for (const char16_t* const name : {u"a.txt", u"b, c.txt", u"folder"})
            StampFile(m_folder.Path(name), TicksOfUnixTime(moment, 1'234'567), TicksOfUnixTime(moment + 60));
    }
};

} // namespace

TEST_F(ListCommand, ShowsNameSizeAndTheTimeOfTheLastChange)
{
    MakeFiles();
    const ProgramResult result = Run({u"list", u"a.txt", u"folder"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, StartsWith("Name"));
    EXPECT_THAT(result.output, HasSubstr("a.txt"));
    EXPECT_THAT(result.output, HasSubstr("10 bytes"));
    EXPECT_THAT(result.output, HasSubstr("2 entries."));
}

TEST_F(ListCommand, WritesCsvAsTheRfcSays)
{
    MakeFiles();
    const ProgramResult result =
        Run({u"list", u"--csv", u"--columns=name,kind,size,modified", u"-r", u"--only=all", u".", u"--sort=size"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(result.output, "\xEF\xBB\xBFname,kind,size,modified\r\n"
                             "a.txt,file,10,2024-01-05T10:30:00+00:00\r\n"
                             "\"b, c.txt\",file,2000,2024-01-05T10:30:00+00:00\r\n"
                             "folder,folder,,2024-01-05T10:30:00+00:00\r\n");
    EXPECT_EQ(result.errors, "3 entries.\n");
}

TEST_F(ListCommand, ShowsThePictureTheMarkAndTheAttributes)
{
    PictureFacts facts;
    facts.dateTimeOriginal = "2019:03:04 05:06:07";
    const CString path = m_folder.WriteFile(u"a.jpg", BuildJpeg(facts));
    MarkAsDownloaded(path);
    ASSERT_EQ(VyrPlatform::FileAttributes::Set(path, 0x2), 0U);
    const ProgramResult result =
        Run({u"list", u"--json", u"--columns=taken,maker,model,downloaded,zone,attributes", u"a.jpg"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("\"taken\":\"2019-03-04T05:06:07\""));
    EXPECT_THAT(result.output, HasSubstr("\"maker\":\"Testmaker\",\"model\":\"Model 1\""));
    EXPECT_THAT(result.output, HasSubstr("\"downloaded\":true,\"zone\":\"internet\""));
    EXPECT_THAT(result.output, HasSubstr("\"attributes\":\"H"));
}

TEST_F(ListCommand, ChoosesFiles)
{
    MakeFiles();
    const ProgramResult result = Run({u"list", u"-r", u".", u"--size=1KB..", u"--columns=name", u"--json"});
    EXPECT_EQ(result.output, "{\"name\":\"b, c.txt\"}\n");
    EXPECT_EQ(result.errors, "1 entry. 1 entry was left out.\n");
}

TEST_F(ListCommand, MissingFilesAreReported)
{
    MakeFiles();
    const ProgramResult result = Run({u"list", u"a.txt", u"missing"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.errors, HasSubstr("'missing'"));
    EXPECT_THAT(result.output, Not(HasSubstr("missing")));
    EXPECT_THAT(result.output, HasSubstr("1 entry."));
}

TEST_F(ListCommand, LinkThatLeadsNowhereHasNoTimes)
{
    if (const std::string why = MakeLink(m_folder.Path(u"nothing"), m_folder.Path(u"dangling")); !why.empty())
        GTEST_SKIP() << why;
    for (const char16_t* const command : {u"list", u"times"}) {
        const ProgramResult result =
            Run({command, u"dangling", u"--json", u"--columns=name,size,modified,created,accessed"});
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        EXPECT_EQ(result.output, "{\"name\":\"dangling\"}\n");
    }
}

TEST_F(ListCommand, WrongCallsAreRefused)
{
    EXPECT_EQ(Run({u"list"}).exitCode, 2);
    EXPECT_THAT(Run({u"list", u"--columns=name,colour", u"."}).errors, HasSubstr("colour"));
    EXPECT_EQ(Run({u"list", u"--csv", u"--json", u"."}).exitCode, 2);
}
