// Tests of the program: whole names by templates, and the tables of docs/name-tokens.md.
#include "VyrProgram.h"

#include <VyrHost/model/DateSource.h>
#include <VyrHost/rename/Counter.h>
#include <VyrHost/rename/NameTokens.h>
#include <VyrHost/rename/TextChange.h>

#include <gmock/gmock.h>
#include <tests/support/FileMoments.h>
#include <tests/support/PictureBuilder.h>

#include <fstream>
#include <sstream>

using namespace VyrTests;
using testing::HasSubstr;

namespace {

class NameTokens : public VyrProgram
{
protected:
    void WritePicture(std::u16string_view name, const std::string& taken) const
    {
        PictureFacts facts;
        facts.dateTimeOriginal = taken;
        facts.make = "Maker";
        facts.model = "Model 7";
        m_folder.WriteFile(name, BuildJpeg(facts));
    }

    /// The new names in the order of the list; a row without one is what follows the old name.
    [[nodiscard]] std::vector<std::string> Named(const std::vector<CString>& call) const
    {
        std::vector<std::string> names;
        std::istringstream rows(Rename(call).output);
        for (std::string row; std::getline(rows, row) && !row.empty() && row.find("entr") == std::string::npos;) {
            const std::size_t arrow = row.find("->  ");
            names.push_back(arrow == std::string::npos ? row : row.substr(arrow + 4));
        }
        return names;
    }
};

using Names = std::vector<std::string>;

/// The first two cells of the rows of the document's table under `heading`, without their decoration.
std::vector<std::pair<std::string, std::string>> TableUnder(const std::string& heading)
{
    std::ifstream document(VYR_SOURCE_FOLDER "/docs/name-tokens.md");
    EXPECT_TRUE(document.is_open());
    std::vector<std::pair<std::string, std::string>> rows;
    bool isUnder = false;
    for (std::string line; std::getline(document, line);) {
        if (line.starts_with("## "))
            isUnder = line == "## " + heading;
        if (!isUnder || !line.starts_with("| `"))
            continue;
        const std::size_t middle = line.find("` | ");
        rows.emplace_back(line.substr(3, middle - 3), line.substr(middle + 4, line.rfind(" |") - middle - 4));
    }
    return rows;
}

} // namespace

TEST_F(NameTokens, TheDocumentHasThoseOfTheProgram)
{
    std::vector<std::pair<std::string, std::string>> expected;
    for (const VyrHost::Rename::TokenHelp& help : VyrHost::Rename::TokenTable())
        expected.emplace_back(help.form, help.meaning);
    EXPECT_EQ(TableUnder("Tokens"), expected);
}

TEST_F(NameTokens, TheDocumentsChangesAndCountersAreKnown)
{
    const auto changes = TableUnder("Changes");
    EXPECT_EQ(changes.size(), 7u);
    for (const auto& row : changes) {
        std::string change = row.first;
        if (change.ends_with(" N"))
            change.back() = '3';
        std::string fault;
        EXPECT_TRUE(VyrHost::Rename::ParseChange(VyrPlatform::Encoding::FromUtf8(change), fault)) << fault;
    }
    const auto counters = TableUnder("Counters");
    EXPECT_EQ(counters.size(), 8u);
    for (const auto& row : counters) {
        std::string words = row.first;
        if (words.ends_with(" N"))
            words.back() = '3';
        VyrHost::Rename::CounterForm form;
        EXPECT_EQ(VyrHost::Rename::ParseCounter(VyrPlatform::Encoding::FromUtf8(words), 1, form), nullptr) << words;
    }
}

TEST_F(NameTokens, TheDocumentsDatesAreThoseOfTheProgram)
{
    std::vector<std::string> words;
    for (const auto& row : TableUnder("Dates"))
        words.push_back(row.first);
    std::vector<std::string> expected;
    for (const VyrHost::Model::DateSourceWord& known : VyrHost::Model::dateSourceWords)
        expected.push_back(VyrPlatform::Encoding::ToUtf8(known.word));
    EXPECT_EQ(words, expected);
}

TEST_F(NameTokens, NamePicturesByDateCameraAndCounter)
{
    WritePicture(u"a.JPG", "2024:07:19 18:45:03");
    WritePicture(u"b.JPG", "2024:07:20 08:00:00");
    WritePicture(u"c.JPG", "2024:07:19 19:00:00");
    EXPECT_EQ(Named({u"--name", u"<Taken:yyyy-MM-dd> <Model|replace ' ' _> <##:per day>.<Extension|lower>", u"a.JPG",
                     u"b.JPG", u"c.JPG"}),
              (Names{"2024-07-19 Model_7 01.jpg", "2024-07-20 Model_7 01.jpg", "2024-07-19 Model_7 02.jpg"}));
}

TEST_F(NameTokens, AreAppliedWithTheFoldersThatTheyMake)
{
    WritePicture(u"a.jpg", "2024:07:19 18:45:03");
    WritePicture(u"b.jpg", "2023:01:02 08:00:00");
    const std::string first = m_folder.ReadFile(u"a.jpg");
    EXPECT_EQ(Rename({u"--name", u"<Taken:yyyy><Folder><#:per folder>", u"--apply", u"a.jpg", u"b.jpg"}).exitCode, 0);
    const auto files = Files();
    ASSERT_EQ(files.size(), 2u);
    EXPECT_EQ(files.at("2024/1.jpg"), first);
    EXPECT_TRUE(files.contains("2023/1.jpg"));
    EXPECT_EQ(Run({u"undo"}).exitCode, 0);
    EXPECT_EQ(Files().at("a.jpg"), first);
}

TEST_F(NameTokens, TakeTheGroupsOfThePatternBefore)
{
    WriteNamed({u"Artist - Title.mp3", u"other.mp3"});
    EXPECT_EQ(
        Named({u"--regex", u"^(.*) - (?<what>.*)$", u"$0", u"--name", u"<what> - <1|upper>", u"Artist - Title.mp3"}),
        Names{"Title - ARTIST.mp3"});
    EXPECT_THAT(Rename({u"--regex", u"^(.*) - (.*)$", u"$0", u"--name", u"<2>", u"other.mp3"}).output,
                HasSubstr("refused: it has no value for a token: <2>"));
    const ProgramResult wrong = Rename({u"--regex", u"(a)", u"b", u"--name", u"<2>", u"other.mp3"});
    EXPECT_EQ(wrong.exitCode, 2);
    EXPECT_THAT(wrong.errors, HasSubstr("the last --regex has 1 group"));
}

TEST_F(NameTokens, TakeFieldsFromATable)
{
    WriteNamed({u"a.txt", u"b.txt"});
    m_folder.WriteFile(u"data.csv", "file,title\r\na.txt,\"First, one\"\r\n");
    EXPECT_EQ(Named({u"--name", u"<Csv:title?none>", u"--csv-data", u"data.csv", u"a.txt", u"b.txt"}),
              (Names{"First, one.txt", "none.txt"}));
    EXPECT_THAT(Rename({u"--name", u"<Csv:title>", u"--csv-data", u"missing.csv", u"a.txt"}).errors,
                HasSubstr("cannot read 'missing.csv'"));
    EXPECT_THAT(Rename({u"--prefix", u"x", u"--csv-data", u"data.csv", u"a.txt"}).errors, HasSubstr("--name"));
}

TEST_F(NameTokens, ThatAreMisspeltEndTheProgramWithASuggestion)
{
    WriteNamed({u"a.txt"});
    const ProgramResult result = Rename({u"--name", u"<Tkaen:yyyy>", u"a.txt"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, HasSubstr("it knows no <Tkaen:yyyy>; did you mean <Taken>?"));
}

TEST_F(NameTokens, RefuseWhatHasNoValueInItsRow)
{
    WriteNamed({u"a.txt"});
    const ProgramResult result = Rename({u"--name", u"<Make> <Name>", u"a.txt"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("refused: it has no value for a token: <Make>"));
}

TEST_F(NameTokens, GiveFilesThatKeepTogetherOneCounter)
{
    WritePicture(u"a.jpg", "2024:07:19 18:45:03");
    WritePicture(u"b.jpg", "2024:07:19 19:00:00");
    WriteNamed({u"a.xmp", u"a.raw", u"b.jpg.xmp"});
    EXPECT_EQ(Named({u"--name", u"<Taken:dd> <#:per day>", u"--together", u"a.raw", u"a.xmp", u"a.jpg", u"b.jpg.xmp",
                     u"b.jpg"}),
              (Names{"19 1.raw", "19 1.xmp", "19 1.jpg", "19 2.jpg.xmp", "19 2.jpg"}));
}

TEST_F(NameTokens, ShiftDatesAndShowThemOnAnotherClock)
{
    m_folder.WriteFile(u"a.txt");
    // 2024-01-05 22:30:00.123 UTC
    const VyrPlatform::FileTicks ticks = TicksOfUnixTime(1'704'493'800, 1'230'000);
    StampFile(m_folder.Path(u"a.txt"), ticks, ticks);
    const auto shown = [this](const CString& zone, const CString& shift) {
        return Named({u"--name", u"<Modified:dd HHmm ss SSS>", u"--time-zone", zone, u"--date-shift", shift, u"a.txt"});
    };
    EXPECT_EQ(shown(u"UTC", u"+1s"), Names{"05 2230 01 123.txt"});
    EXPECT_EQ(shown(u"+05:30", u"-1h"), Names{"06 0300 00 123.txt"});
    EXPECT_EQ(shown(u"-9:30", u"1d"), Names{"06 1300 00 123.txt"});
    // What the clock of the camera was ahead is not known, so the date stays.
    WritePicture(u"p.jpg", "2024:07:19 18:45:03");
    EXPECT_EQ(Named({u"--date", u"dd HHmm SSS", u"--date-from", u"picture", u"--time-zone", u"+05:30", u"--date-shift",
                     u"-1h", u"p.jpg"}),
              Names{"19 1745 000.jpg"});
    EXPECT_EQ(Rename({u"--date", u"yyyy", u"--time-zone", u"Mars", u"a.txt"}).exitCode, 2);
    EXPECT_EQ(Rename({u"--date", u"yyyy", u"--date-shift", u"1", u"a.txt"}).exitCode, 2);
}

TEST_F(NameTokens, TakeTheDateInTheName)
{
    WriteNamed({u"IMG_20240105_103000.txt", u"none.txt"});
    EXPECT_EQ(Named({u"--date", u"yyyy-MM-dd HH.mm", u"--date-from", u"name", u"IMG_20240105_103000.txt"}),
              Names{"2024-01-05 10.30.txt"});
    EXPECT_THAT(Rename({u"--date", u"yyyy", u"--date-from", u"name", u"none.txt"}).output,
                HasSubstr("it has no date of the kind asked for"));
}
