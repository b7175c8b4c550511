// Samples of formats, and the tokens in formats.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <VyrPlatform/time/Clock.h>

#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/TimeZone.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>

#include <ctime>
#include <limits>
#include <string>

using VyrLibraryFuncs::NameFuncs;
using VyrTests::ScratchFolder;

namespace {

/// Holds the clock at one moment.
class FixedClock
{
public:
    explicit FixedClock(const COleDateTime& moment) { VyrPlatform::Clock::SetNow(moment); }
    FixedClock(const FixedClock&) = delete;
    FixedClock& operator=(const FixedClock&) = delete;
    ~FixedClock() { VyrPlatform::Clock::SetNow({}); }
};

CString WritePicture(const ScratchFolder& scratch)
{
    VyrTests::PictureFacts facts;
    facts.dateTimeOriginal = "2024:07:19 18:45:03";
    facts.make = "Maker & Sons";
    facts.model = "M-1 <Make>";
    return scratch.WriteFile(u"picture.jpg", VyrTests::BuildJpeg(facts));
}

/// The current time of UTC, by the C library.
CString CurrentText()
{
    const std::time_t now = std::time(nullptr);
    char text[100];
    const std::size_t length = std::strftime(text, sizeof text, "%Y%m%d_%H%M%S", std::gmtime(&now));
    return CString(std::u16string(text, text + length));
}

} // namespace

TEST(NameFuncsFormat, SampleIsWrittenForTheCurrentTime)
{
    const FixedClock clock(COleDateTime(2024, 2, 29, 23, 5, 59));
    EXPECT_EQ(NameFuncs::GetRenameToSampleFormated(u"yyyy-MM-dd HH.mm.ss"), u"2024-02-29 23.05.59");
}

TEST(NameFuncsFormat, SampleFollowsTheSystemsClock)
{
    const VyrTests::TimeZone zone("UTC");
    if (!zone.IsSet())
        GTEST_SKIP() << zone.WhyNot();
    CString before;
    CString sample;
    do {
        before = CurrentText();
        sample = NameFuncs::GetRenameToSampleFormated(u"yyyyMMdd_HHmmss");
    } while (before != CurrentText());
    EXPECT_EQ(sample, before);
}

TEST(NameFuncsFormat, SampleShowsFoldersAsBackslashes)
{
    const FixedClock clock(COleDateTime(2024, 2, 29, 23, 5, 59));
    EXPECT_EQ(NameFuncs::GetRenameToSampleFormated(u"yyyy<Folder>MM<Folder>dd"), u"2024\\02\\29");
    EXPECT_EQ(NameFuncs::GetRenameToSampleFormated(u"<Folder>"), u"\\");
    EXPECT_EQ(NameFuncs::GetRenameToSampleFormated(u"yyyy<Make>"), u"2024<Make>");
}

TEST(NameFuncsFormat, FoldersOfASampleAreLookedForOnceItIsWritten)
{
    const FixedClock clock(COleDateTime(2024, 2, 29, 23, 5, 59));
    EXPECT_EQ(NameFuncs::GetRenameToSampleFormated(u"'<'Fol'der>'"), u"\\")
        << "the token is put together by the format";
    // Before the format is read, the inner token would go, and the rest would be no token any more.
    EXPECT_EQ(NameFuncs::GetRenameToSampleFormated(u"<yyyy<Folder>"), u"<yyyy\\");
}

TEST(NameFuncsFormat, EmptyFormatsGiveEmptyTexts)
{
    const ScratchFolder scratch;
    const CString picture = WritePicture(scratch);
    EXPECT_EQ(NameFuncs::GetRenameToSampleFormated(u""), u"");
    for (int target = -1; target <= 4; ++target)
        EXPECT_EQ(NameFuncs::GetDateTimeFormat(picture, u"", target), u"");
    EXPECT_EQ(NameFuncs::GetFolderFormat(u""), u"");
    EXPECT_EQ(NameFuncs::GetExifFormat(picture, u""), u"");
}

TEST(NameFuncsFormat, DateTimeOfAFileIsTheOneThatTheRenameTakes)
{
    const ScratchFolder scratch;
    const CString picture = WritePicture(scratch);
    for (const int target : {0, 1, 2, 3, 4, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        NameFuncs::ITEM item;
        item.filePath = picture;
        item.dateTimeTarget = target;
        item.dateTimeFormat = u"yyyy-MM-dd HH:mm:ss <Folder>";
        EXPECT_EQ(NameFuncs::GetDateTimeFormat(picture, item.dateTimeFormat, target),
                  NameFuncs::GetDateTimeFilePath(item))
            << target;
    }
    EXPECT_EQ(NameFuncs::GetDateTimeFormat(picture, u"yyyy-MM-dd HH:mm:ss", 3), u"2024-07-19 18:45:03");
    EXPECT_EQ(NameFuncs::GetDateTimeFormat(picture, u"yyyy-MM-dd HH:mm:ss", 5), u"1899-12-30 00:00:00");
}

TEST(NameFuncsFormat, EveryFolderTokenIsABackslash)
{
    EXPECT_EQ(NameFuncs::GetFolderFormat(u"<Folder>x<Folder>"), u"\\x\\");
    EXPECT_EQ(NameFuncs::GetFolderFormat(u"<Folder><Folder>"), u"\\\\");
    EXPECT_EQ(NameFuncs::GetFolderFormat(u"yyyy<folder>MM"), u"yyyy<folder>MM");
    EXPECT_EQ(NameFuncs::GetFolderFormat(u"Folder <Folder"), u"Folder <Folder");
}

TEST(NameFuncsFormat, MakerAndModelComeFromThePicture)
{
    const ScratchFolder scratch;
    const CString picture = WritePicture(scratch);
    EXPECT_EQ(NameFuncs::GetExifFormat(picture, u"<Make>_<Make>-yyyy"), u"Maker & Sons_Maker & Sons-yyyy");
    EXPECT_EQ(NameFuncs::GetExifFormat(picture, u"<Model>"), u"M-1 <Make>") << "a text put in is not searched";
}

TEST(NameFuncsFormat, TokensInAnotherCaseAreNotReplaced)
{
    const ScratchFolder scratch;
    const CString picture = WritePicture(scratch);
    for (const char16_t* const format : {u"<make>", u"<MAKE>", u"<model>", u"Make Model", u"< Make>"})
        EXPECT_EQ(NameFuncs::GetExifFormat(picture, format), format);
}

TEST(NameFuncsFormat, TokensOfAPictureWithoutThemDisappear)
{
    const ScratchFolder scratch;
    VyrTests::PictureFacts facts;
    facts.make = "";
    facts.model = "";
    const CString bare = scratch.WriteFile(u"bare.jpg", VyrTests::BuildJpeg(facts));
    for (const CString& path :
         {bare, scratch.WriteFile(u"text.jpg", "no picture"), scratch.Path(u"missing.jpg"), scratch.Path(), CString()})
        EXPECT_EQ(NameFuncs::GetExifFormat(path, u"a<Make>b<Model>c"), u"abc");
}

TEST(NameFuncsFormat, MakeIsPutInBeforeModelIsLookedFor)
{
    const ScratchFolder scratch;
    VyrTests::PictureFacts facts;
    facts.make = "A<Model>B";
    facts.model = "<Make>";
    const CString picture = scratch.WriteFile(u"p.jpg", VyrTests::BuildJpeg(facts));
    EXPECT_EQ(NameFuncs::GetExifFormat(picture, u"<Make>"), u"A<Make>B");
    EXPECT_EQ(NameFuncs::GetExifFormat(picture, u"<Model>"), u"<Make>");
}
