// Tests of the program: dates of files, the camera, and folders to move into.
#include "VyrProgram.h"

#include <VyrPlatform/files/FileSystem.h>

#include <gmock/gmock.h>
#include <tests/support/FileMoments.h>
#include <tests/support/PictureBuilder.h>

using namespace VyrTests;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

class DateTokens : public VyrProgram
{
protected:
    void WritePicture(std::u16string_view name, const std::string& taken, const std::string& make = "Maker",
                      const std::string& model = "Model") const
    {
        PictureFacts facts;
        facts.dateTimeOriginal = taken;
        facts.make = make;
        facts.model = model;
        m_folder.WriteFile(name, BuildJpeg(facts));
        Change(name, COleDateTime(2001, 2, 3, 4, 5, 6));
    }

    void Change(std::u16string_view name, const COleDateTime& date) const
    {
        StampFile(m_folder.Path(name), ToFileTicks(date), ToFileTicks(COleDateTime(2003, 1, 1, 0, 0, 0)));
    }

    /// The new name of the one file.
    [[nodiscard]] std::string Named(const std::vector<CString>& call) const
    {
        const std::string output = Rename(call).output;
        const std::size_t arrow = output.find("  ->  ");
        if (arrow == std::string::npos)
            return output;
        const std::string row = output.substr(arrow + 6, output.find('\n') - arrow - 6);
        return row.substr(0, row.find("  date: "));
    }
};

} // namespace

TEST_F(DateTokens, TheFirstDateThatAFileHasWins)
{
    WritePicture(u"p.jpg", "2024:07:19 18:45:03");
    m_folder.WriteFile(u"t.txt");
    Change(u"t.txt", COleDateTime(2002, 12, 31, 23, 59, 58));
    const CString format = u"yyyyMMdd HHmmss";
    // Reading a picture may count as an access, so this comes first.
    EXPECT_EQ(Named({u"--date", format, u"--date-from", u"accessed,modified", u"t.txt"}), "20030101 000000.txt");
    EXPECT_EQ(Named({u"--date", format, u"--date-from", u"picture,modified", u"p.jpg"}), "20240719 184503.jpg");
    EXPECT_EQ(Named({u"--date", format, u"--date-from", u"modified,picture", u"p.jpg"}), "20010203 040506.jpg");
    EXPECT_EQ(Named({u"--date", format, u"--date-from", u"picture,modified", u"t.txt"}), "20021231 235958.txt");
    EXPECT_EQ(Named({u"--date", format, u"t.txt"}), "20021231 235958.txt");
    const ProgramResult none = Rename({u"--date", format, u"--date-from", u"picture", u"t.txt", u"p.jpg"});
    EXPECT_EQ(none.exitCode, 1);
    EXPECT_THAT(none.output, HasSubstr("refused: it has no date of the kind asked for\n"));
    EXPECT_THAT(none.output, HasSubstr("2 entries: 1 renamed, 1 refused.\n"));
}

TEST_F(DateTokens, DatesAndCameraComeFromTheFileWhateverRulesDidToItsName)
{
    WritePicture(u"p.jpg", "2024:07:19 18:45:03");
    EXPECT_EQ(Named({u"--replace", u"p", u"other", u"--extension", u"txt", u"--date", u"<Name> yyyy <Model>",
                     u"--date-from", u"picture", u"--case", u"upper", u"p.jpg"}),
              "OTHER 2024 MODEL.txt");
}

TEST_F(DateTokens, TheCameraLosesWhatNoNameMayHold)
{
    WritePicture(u"p.jpg", "2024:07:19 18:45:03", "A/B\\C:D", "*?\"<>|E");
    EXPECT_EQ(Named({u"--date", u"<Make> <Model>", u"--date-from", u"picture", u"p.jpg"}), "A_B_C_D ______E.jpg");
    WritePicture(u"c.jpg", "2024:07:19 18:45:03", "A\x01\x1F\x7F\tB", "  C D  ");
    EXPECT_EQ(Named({u"--date", u"(<Make>)(<Model>)", u"--date-from", u"picture", u"c.jpg"}), "(A____B)(C D).jpg");
}

TEST_F(DateTokens, MakeAndModelCannotNameAnotherFolder)
{
    WritePicture(u"p.jpg", "2024:07:19 18:45:03", "..", ".");
    for (const char16_t* const format : {u"<Make><Folder><Name>", u"<Model><Folder><Name>"}) {
        const ProgramResult result = Rename({u"--date", format, u"--date-from", u"picture", u"--apply", u"p.jpg"});
        EXPECT_EQ(result.exitCode, 1);
        EXPECT_THAT(result.output, HasSubstr("refused: "));
    }
    EXPECT_TRUE(m_folder.Has(u"p.jpg"));
}

TEST_F(DateTokens, FoldersAreCreatedByApplyAndRemovedByUndo)
{
    WritePicture(u"p.jpg", "2024:07:19 18:45:03");
    WritePicture(u"d/q.jpg", "2023:01:02 03:04:05");
    const std::vector<CString> call = {u"--date", u"yyyy<Folder>MM<Folder><Name>", u"--date-from", u"picture", u"p.jpg",
                                       u"d/q.jpg"};
    EXPECT_EQ(Rename(call).exitCode, 0);
    EXPECT_FALSE(m_folder.Has(u"2024"));
    std::vector<CString> applied = call;
    applied.emplace_back(u"--apply");
    EXPECT_EQ(Rename(applied).exitCode, 0);
    EXPECT_TRUE(m_folder.Has(u"2024/07/p.jpg"));
    EXPECT_TRUE(m_folder.Has(u"d/2023/01/q.jpg"));
    EXPECT_EQ(Run({u"undo"}).exitCode, 0);
    EXPECT_TRUE(m_folder.Has(u"p.jpg"));
    EXPECT_TRUE(m_folder.Has(u"d/q.jpg"));
    EXPECT_FALSE(m_folder.Has(u"2024"));
    EXPECT_FALSE(m_folder.Has(u"d/2023"));
}

TEST_F(DateTokens, OnlyTheTokenInTheFormatNamesAFolder)
{
    m_folder.WriteFile(u"p.txt");
    Change(u"p.txt", COleDateTime(2002, 12, 31, 23, 59, 58));
    // In other texts the token's letters are literal.
    EXPECT_THAT(Named({u"--replace", u"p", u"<Folder>", u"--date", u"yyyy<Name>", u"p.txt"}),
                StartsWith("2002<Folder>.txt"));
    EXPECT_THAT(Named({u"--date", u"yyyy'<folder>'<Name>", u"p.txt"}), StartsWith("2002<folder>p.txt"));
}

TEST_F(DateTokens, AMoveIsRefusedWhereAFileHasTheNameOfTheFolder)
{
    m_folder.WriteFile(u"p.txt", "p");
    Change(u"p.txt", COleDateTime(2002, 12, 31, 23, 59, 58));
    m_folder.WriteFile(u"2002", "in the way");
    const ProgramResult result = Rename({u"--date", u"yyyy<Folder><Name>", u"--apply", u"p.txt"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("refused: "));
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{{"2002", "in the way"}, {"p.txt", "p"}}));
}

TEST_F(DateTokens, APictureDecidesForItsSidecarWhereItsDateComesFirst)
{
    WritePicture(u"p.jpg", "2024:07:19 18:45:03", "Aster");
    for (const char16_t* const name : {u"p.aae", u"p.raw", u"q.aae"}) {
        m_folder.WriteFile(name);
        Change(name, COleDateTime(2002, 12, 31, 23, 59, 58));
    }
    const ProgramResult result = Rename({u"--date", u"yyyy <Make>", u"--date-from", u"picture,modified", u"--together",
                                         u"p.aae", u"p.raw", u"p.jpg", u"q.aae"});
    EXPECT_THAT(result.output, StartsWith("p.aae  ->  2024 Aster.aae  date: picture\n"
                                          "p.raw  ->  2024 Aster.raw  date: picture\n"
                                          "p.jpg  ->  2024 Aster.jpg  date: picture\n"
                                          "q.aae  ->  2002.aae        date: modified\n"));
    EXPECT_THAT(
        Rename({u"--date", u"yyyy", u"--date-from", u"modified,picture", u"--together", u"p.jpg", u"p.aae"}).output,
        StartsWith("p.jpg  ->  2001.jpg  date: modified\np.aae  ->  2001.aae  date: modified\n"));
    // The rule that takes the later date is reported, whatever date the next rules take.
    EXPECT_THAT(Rename({u"--date", u"yyyy", u"--date-from", u"picture,modified", u"--date", u"<Name>-MM",
                        u"--date-from", u"modified", u"--together", u"p.aae", u"p.jpg"})
                    .output,
                StartsWith("p.aae  ->  2024-02.aae  date: picture\np.jpg  ->  2024-02.jpg  date: picture\n"));
}

TEST_F(DateTokens, TheRowNamesTheDateThatWasTaken)
{
    WritePicture(u"p.jpg", "2024:07:19 18:45:03");
    m_folder.WriteFile(u"t.txt");
    Change(u"t.txt", COleDateTime(2002, 12, 31, 23, 59, 58));
    const std::vector<CString> choice = {u"--date", u"yyyy", u"--date-from", u"picture,modified", u"p.jpg", u"t.txt"};
    EXPECT_THAT(Rename(choice).output, StartsWith("p.jpg  ->  2024.jpg  date: picture\n"
                                                  "t.txt  ->  2002.txt  date: modified\n"));
    std::vector<CString> json = choice;
    json.emplace_back(u"--json");
    const std::string lines = Rename(json).output;
    EXPECT_THAT(lines, HasSubstr("\"dateFrom\":\"picture\""));
    EXPECT_THAT(lines, HasSubstr("\"dateFrom\":\"modified\""));
    EXPECT_THAT(Rename({u"--date", u"yyyy", u"p.jpg"}).output, StartsWith("p.jpg  ->  2001.jpg\n"));
}

TEST_F(DateTokens, LiteralRulesTakeTokensAsText)
{
    m_folder.WriteFile(u"p.txt");
    EXPECT_EQ(Named({u"--replace", u"p", u"<Foo><Name>", u"p.txt"}).substr(0, 15), "<Foo><Name>.txt");
}

TEST_F(DateTokens, AFolderIsDatedByItsLastChange)
{
    m_folder.MakeFolder(u"f.olders");
    StampFile(m_folder.Path(u"f.olders"), ToFileTicks(COleDateTime(2010, 1, 2, 0, 0, 0)),
              ToFileTicks(COleDateTime(2010, 1, 2, 0, 0, 0)));
    EXPECT_EQ(Named({u"--date", u"yyyy-MM-dd <Name>", u"--date-from", u"picture,modified", u"f.olders"}),
              "2010-01-02 f.olders");
}
