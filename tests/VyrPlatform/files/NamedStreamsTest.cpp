// NamedStreams: the mark of a download goes, the file stays.
#include <VyrPlatform/files/NamedStreams.h>
#include <tests/support/FileState.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

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

TEST(NamedStreams, ZoneMarkOfNothingGivesAnError)
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
