// The mark of a download is removed, the file is kept.
#include <VyrPlatform/files/NamedStreams.h>
#include <tests/support/FileMoments.h>
#include <tests/support/FileState.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace NamedStreams = VyrPlatform::NamedStreams;
using VyrTests::ScratchFolder;

TEST(NamedStreams, ZoneMarkIsDeleted)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.zip", "content");
    VyrTests::MarkAsDownloaded(path);
    ASSERT_TRUE(VyrTests::IsMarkedAsDownloaded(path));
    EXPECT_EQ(NamedStreams::DeleteZoneMark(path), 0U);
    EXPECT_FALSE(VyrTests::IsMarkedAsDownloaded(path));
    EXPECT_EQ(scratch.ReadFile(u"a.zip"), "content");
}

TEST(NamedStreams, FileWithoutZoneMarkGivesAnError)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.zip", "content");
    EXPECT_NE(NamedStreams::DeleteZoneMark(path), 0U);
    VyrTests::MarkAsDownloaded(path);
    EXPECT_EQ(NamedStreams::DeleteZoneMark(path), 0U);
    EXPECT_NE(NamedStreams::DeleteZoneMark(path), 0U);
    EXPECT_EQ(scratch.ReadFile(u"a.zip"), "content");
}

TEST(NamedStreams, ZoneMarkOfAMissingFileGivesAnError)
{
    const ScratchFolder scratch;
    constexpr char16_t withNul[] = u"a\0b";
    const CString path = scratch.WriteFile(u"a");
    VyrTests::MarkAsDownloaded(path);
    EXPECT_NE(NamedStreams::DeleteZoneMark(scratch.Path(u"missing")), 0U);
    EXPECT_NE(NamedStreams::DeleteZoneMark(scratch.Path(u"a/below")), 0U);
    EXPECT_NE(NamedStreams::DeleteZoneMark(u""), 0U);
    EXPECT_NE(NamedStreams::DeleteZoneMark(scratch.Path(u"") + CString(std::u16string_view(withNul, 3))), 0U);
    EXPECT_TRUE(VyrTests::IsMarkedAsDownloaded(path));
}

TEST(NamedStreams, ZoneMarkOfANeighbourStays)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    const CString neighbour = scratch.WriteFile(u"ab");
    VyrTests::MarkAsDownloaded(path);
    VyrTests::MarkAsDownloaded(neighbour);
    EXPECT_EQ(NamedStreams::DeleteZoneMark(path), 0U);
    EXPECT_TRUE(VyrTests::IsMarkedAsDownloaded(neighbour));
}

TEST(NamedStreams, TimesOfTheFileStay)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    const auto modified = VyrTests::TicksOfUnixTime(1'600'000'000, 1'234'567);
    const auto accessed = VyrTests::TicksOfUnixTime(1'700'000'000, 7);
    VyrTests::StampFile(path, modified, accessed);
    ASSERT_EQ(NamedStreams::WriteZoneForm(path, {CString(NamedStreams::zoneStream), "ZoneId=3"}), 0U);
    EXPECT_EQ(VyrPlatform::FileTimes::GetModified(path), modified);
    EXPECT_EQ(VyrPlatform::FileTimes::GetAccessed(path), accessed);
    ASSERT_EQ(NamedStreams::DeleteZoneMark(path), 0U);
    EXPECT_EQ(VyrPlatform::FileTimes::GetModified(path), modified);
    EXPECT_EQ(VyrPlatform::FileTimes::GetAccessed(path), accessed);
}

TEST(NamedStreams, ZoneMarkThatWasReadIsWrittenBack)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a.zip", "content");
    std::uint32_t error = 0;
    EXPECT_EQ(NamedStreams::ReadZoneMark(path, error), std::vector<NamedStreams::ZoneForm>());
    VyrTests::MarkAsDownloaded(path);
    const auto forms = NamedStreams::ReadZoneMark(path, error);
    ASSERT_TRUE(forms);
    ASSERT_EQ(forms->size(), 1U);
    EXPECT_NE(forms->front().bytes.find("ZoneId=3"), std::string::npos);
    ASSERT_EQ(NamedStreams::DeleteZoneMark(path), 0U);
    EXPECT_EQ(NamedStreams::WriteZoneForm(path, forms->front()), 0U);
    EXPECT_TRUE(VyrTests::IsMarkedAsDownloaded(path));
    EXPECT_EQ(NamedStreams::ReadZoneMark(path, error), forms);
    EXPECT_EQ(scratch.ReadFile(u"a.zip"), "content");
}

TEST(NamedStreams, StreamKeepsEveryByte)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    for (const std::string& content : {bytes, std::string(), std::string(64 * 1024, 'x')}) {
        EXPECT_EQ(NamedStreams::WriteZoneForm(path, {CString(NamedStreams::zoneStream), content}), 0U);
        std::uint32_t error = 0;
        const auto forms = NamedStreams::ReadZoneMark(path, error);
        ASSERT_TRUE(forms);
        ASSERT_EQ(forms->size(), 1U);
        EXPECT_EQ(forms->front().bytes, content);
    }
}

TEST(NamedStreams, StreamThatIsLargerThanAMarkIsNotRead)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    ASSERT_EQ(NamedStreams::WriteZoneForm(path, {CString(NamedStreams::zoneStream), std::string(64 * 1024 + 1, 'x')}),
              0U);
    std::uint32_t error = 0;
    EXPECT_FALSE(NamedStreams::ReadZoneMark(path, error));
    EXPECT_NE(error, 0U);
}

TEST(NamedStreams, ZoneMarkOfAMissingFileIsNeitherReadNorWritten)
{
    const ScratchFolder scratch;
    std::uint32_t error = 0;
    EXPECT_FALSE(NamedStreams::ReadZoneMark(scratch.Path(u"missing"), error));
    EXPECT_NE(error, 0U);
    EXPECT_NE(NamedStreams::WriteZoneForm(scratch.Path(u"missing"), {CString(NamedStreams::zoneStream), "x"}), 0U);
    EXPECT_FALSE(scratch.Has(u"missing"));
    const CString path = scratch.WriteFile(u"a");
    EXPECT_NE(NamedStreams::WriteZoneForm(path, {u"user.other", "x"}), 0U);
    EXPECT_NE(NamedStreams::WriteZoneForm(path, {u":other", "x"}), 0U);
}
