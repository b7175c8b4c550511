// Tests of the program: the order of the list, by which numbers count.
#include "VyrProgram.h"

#include <gmock/gmock.h>
#include <tests/support/FileMoments.h>
#include <tests/support/PictureBuilder.h>

using namespace VyrTests;

namespace {

class ListOrder : public VyrProgram
{
protected:
    /// The names in the order in which they are numbered.
    [[nodiscard]] std::string Numbered(const std::vector<CString>& options, const std::vector<CString>& names) const
    {
        std::vector<CString> call = {u"--number", u"#"};
        call.insert(call.end(), options.begin(), options.end());
        call.insert(call.end(), names.begin(), names.end());
        const ProgramResult result = Rename(call);
        EXPECT_EQ(result.exitCode, 0) << result.errors;
        std::string order;
        std::size_t number = 0;
        for (std::string_view rest = result.output; rest.find("  ->  ") != std::string_view::npos;) {
            const std::string_view row = rest.substr(0, rest.find('\n'));
            rest.remove_prefix(row.size() + 1);
            order.append(order.empty() ? "" : " ").append(row.substr(0, row.find(' ')));
            EXPECT_EQ(row.substr(row.find("->") + 4), std::to_string(++number));
        }
        return order;
    }
};

} // namespace

TEST_F(ListOrder, IsAsGivenOrReversed)
{
    const std::vector<CString> names = {u"c", u"a", u"b"};
    WriteNamed({u"a", u"b", u"c"});
    EXPECT_EQ(Numbered({}, names), "c a b");
    EXPECT_EQ(Numbered({u"--sort", u"given"}, names), "c a b");
    EXPECT_EQ(Numbered({u"--descending"}, names), "b a c");
}

TEST_F(ListOrder, PutsTwoBeforeTenByName)
{
    const std::vector<CString> names = {u"p10", u"p9", u"p1", u"p02", u"q1", u"p100"};
    WriteNamed({u"p10", u"p9", u"p1", u"p02", u"q1", u"p100"});
    EXPECT_EQ(Numbered({u"--sort=name"}, names), "p1 p02 p9 p10 p100 q1");
    EXPECT_EQ(Numbered({u"--sort=name", u"--descending"}, names), "q1 p100 p10 p9 p02 p1");
}

TEST_F(ListOrder, IsByTheDateOfTheLastChange)
{
    const std::vector<CString> names = {u"new", u"old", u"middle"};
    WriteNamed({u"new", u"old", u"middle"});
    constexpr std::int64_t Day = 86400;
    StampFile(m_folder.Path(u"old"), TicksOfUnixTime(1000 * Day), TicksOfUnixTime(3000 * Day));
    StampFile(m_folder.Path(u"middle"), TicksOfUnixTime(1001 * Day), TicksOfUnixTime(1 * Day));
    StampFile(m_folder.Path(u"new"), TicksOfUnixTime(1002 * Day), TicksOfUnixTime(2 * Day));
    EXPECT_EQ(Numbered({u"--sort=date"}, names), "old middle new");
    EXPECT_EQ(Numbered({u"--sort=date", u"--descending"}, names), "new middle old");
    EXPECT_EQ(Numbered({u"--sort=modified"}, names), "old middle new");
}

TEST_F(ListOrder, IsBySize)
{
    m_folder.WriteFile(u"three", "123");
    m_folder.WriteFile(u"none");
    m_folder.WriteFile(u"many", std::string(100000, 'x'));
    EXPECT_EQ(Numbered({u"--sort=size"}, {u"three", u"many", u"none"}), "none three many");
    EXPECT_EQ(Numbered({u"--sort=size", u"--descending"}, {u"three", u"many", u"none"}), "many three none");
}

TEST_F(ListOrder, IsByTheDateOfThePictureWithUndatedFilesLast)
{
    PictureFacts facts;
    facts.dateTimeOriginal = "2019:12:31 23:59:59";
    m_folder.WriteFile(u"first", BuildJpeg(facts));
    facts.dateTimeOriginal = "2020:01:01 00:00:00";
    m_folder.WriteFile(u"second", BuildJpeg(facts));
    m_folder.WriteFile(u"text", "no picture");
    const std::vector<CString> names = {u"text", u"second", u"first"};
    EXPECT_EQ(Numbered({u"--sort=picture-date"}, names), "first second text");
    EXPECT_EQ(Numbered({u"--sort=picture-date", u"--descending"}, names), "second first text");
    EXPECT_EQ(Numbered({u"--sort=taken"}, names), "first second text");
}

TEST_F(ListOrder, CountsAgainInEachFolder)
{
    WriteNamed({u"d/a", u"e/a", u"d/b", u"e/b", u"e/c"});
    const ProgramResult result =
        Rename({u"--number", u"##", u"--number-per-folder", u"--sort", u"name", u"--descending", u"--start", u"5",
                u"--step", u"5", u"--apply", u"d/a", u"e/a", u"e/c", u"d/b", u"e/b"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(Files(), (std::map<std::string, std::string>{
                           {"d/05", "d/b"}, {"d/10", "d/a"}, {"e/05", "e/c"}, {"e/10", "e/b"}, {"e/15", "e/a"}}));
}

TEST_F(ListOrder, FilesOfAGroupTakeOneNumber)
{
    WriteNamed({u"b.raw", u"b.jpg", u"b.xmp", u"a.jpg", u"d/b.jpg"});
    const ProgramResult result =
        Rename({u"--number", u"#", u"--together", u"--apply", u"b.raw", u"a.jpg", u"b.jpg", u"d/b.jpg", u"b.xmp"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_EQ(
        Files(),
        (std::map<std::string, std::string>{
            {"1.jpg", "b.jpg"}, {"1.raw", "b.raw"}, {"1.xmp", "b.xmp"}, {"2.jpg", "a.jpg"}, {"d/3.jpg", "d/b.jpg"}}));
}
