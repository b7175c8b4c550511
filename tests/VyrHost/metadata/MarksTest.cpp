// Marks of downloads: reading, removing and restoring them.
#include <VyrHost/metadata/Marks.h>

#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/text/Encoding.h>
#include <tests/support/Describe.h>
#include <tests/support/FileState.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <string>

using namespace VyrHost::Metadata;
using VyrHost::Model::ChangeState;
using VyrPlatform::NamedStreams::ReadZoneMark;
using VyrPlatform::NamedStreams::ZoneForm;
using VyrTests::ScratchFolder;

namespace {

ZoneForm Stream(const std::string& bytes)
{
    return {CString(VyrPlatform::NamedStreams::zoneStream), bytes};
}

/// `text` as UTF-16 with a byte order mark.
std::string Utf16(const std::string& text, bool isBig)
{
    const CString marked = u"\xFEFF" + VyrPlatform::Encoding::FromUtf8(text);
    std::string bytes;
    for (const char16_t unit : marked.View()) {
        const char low = static_cast<char>(unit & 0xFF);
        const char high = static_cast<char>(unit >> 8);
        bytes += isBig ? high : low;
        bytes += isBig ? low : high;
    }
    return bytes;
}

Proposal Propose(const CString& path)
{
    return MarkRule().Propose(path, VyrHost::Model::Entry(), 0);
}

ZoneForms FormsOf(const CString& path)
{
    std::uint32_t error = 0;
    return ReadZoneMark(path, error).value_or(ZoneForms());
}

} // namespace

TEST(Mark, IsRemovedAndRestoredWithItsBytes)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    VyrTests::MarkAsDownloaded(path);
    const ZoneForms before = FormsOf(path);
    const Proposal proposal = Propose(path);
    ASSERT_TRUE(proposal.change);
    const auto change = MarkChange::Read(proposal.change->Before(), proposal.change->After());
    ASSERT_TRUE(change);
    EXPECT_EQ(change->Before(), proposal.change->Before());
    EXPECT_EQ(change->Look(path).state, ChangeState::Before);
    EXPECT_EQ(change->Apply(path), 0U);
    EXPECT_EQ(change->Look(path).state, ChangeState::After);
    EXPECT_FALSE(VyrTests::IsMarkedAsDownloaded(path));
    EXPECT_FALSE(Propose(path).change);
    EXPECT_EQ(change->Undo(path), 0U);
    EXPECT_EQ(change->Look(path).state, ChangeState::Before);
    EXPECT_EQ(FormsOf(path), before);
    EXPECT_EQ(scratch.ReadFile(u"a"), "content");
}

TEST(Mark, OfAReadOnlyFileIsRemovedAndRestored)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    VyrTests::MarkAsDownloaded(path);
    VyrTests::SetReadOnly(path, true);
    const Proposal proposal = Propose(path);
    ASSERT_TRUE(proposal.change);
    const auto read = MarkChange::Read(proposal.change->Before(), proposal.change->After());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->Before(), proposal.change->Before());
    EXPECT_EQ(read->Apply(path), 0U);
    EXPECT_FALSE(VyrTests::IsMarkedAsDownloaded(path));
    EXPECT_TRUE(VyrPlatform::FileAttributes::IsReadOnly(path));
    VyrTests::SetReadOnly(path, false);
    read->Repair(path);
    EXPECT_TRUE(VyrPlatform::FileAttributes::IsReadOnly(path)) << "as where the work was cut off";
    EXPECT_EQ(proposal.change->Undo(path), 0U);
    EXPECT_TRUE(VyrTests::IsMarkedAsDownloaded(path));
    EXPECT_TRUE(VyrPlatform::FileAttributes::IsReadOnly(path));
    VyrTests::SetReadOnly(path, false);
}

TEST(Mark, WhoseWritingWasCutOffIsEmptyAndAPart)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    const ZoneForm whole = Stream("[ZoneTransfer]\r\nZoneId=3\r\n");
    const MarkChange change({whole});
    ASSERT_EQ(VyrPlatform::NamedStreams::WriteZoneForm(path, Stream("")), 0U);
    EXPECT_EQ(change.Look(path).state, ChangeState::Partly);
    EXPECT_EQ(change.Undo(path), 0U);
    EXPECT_EQ(FormsOf(path), ZoneForms{whole});
}

TEST(Mark, ChangedByAnotherProgramIsNotTouched)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    VyrTests::MarkAsDownloaded(path);
    const Proposal proposal = Propose(path);
    ASSERT_TRUE(proposal.change);
    ASSERT_EQ(proposal.change->Apply(path), 0U);
    for (const char* const bytes : {"[ZoneTransfer]\r\nZoneId=4\r\n", "[ZoneTransfer]\r\n"}) {
        ASSERT_EQ(VyrPlatform::NamedStreams::WriteZoneForm(path, Stream(bytes)), 0U);
        EXPECT_EQ(proposal.change->Look(path).state, ChangeState::Other) << bytes;
    }
}

TEST(Mark, TellsTheZoneAndTheOriginOfTheFile)
{
    EXPECT_EQ(Shown(ZoneForms()), u"");
    EXPECT_EQ(Shown({Stream("[ZoneTransfer]\r\nZoneId=3\r\nHostUrl=https://example.org/a.zip\r\n")}),
              u"internet, https://example.org/a.zip");
    EXPECT_EQ(Shown({Stream("[ZoneTransfer]\r\nZoneId=3\r\nReferrerUrl=https://example.org/\r\n")}),
              u"internet, https://example.org/");
    EXPECT_EQ(Shown({Stream("ZoneId=9")}), u"9");
    EXPECT_EQ(Shown({{u"user.xdg.origin.url", "https://example.org/b"}, {u"user.xdg.referrer.url", "x"}}),
              u"https://example.org/b");
    EXPECT_EQ(Shown({Stream("ZoneId=2\nHostUrl=https://a/"), {u"user.xdg.origin.url", "https://b/"}}),
              u"trusted, https://a/");
    const std::string loose = "[zonetransfer]\r\nzoneid = 3\r\n\tHOSTURL\t= https://example.org/ä \r\n";
    EXPECT_EQ(Shown({Stream(loose)}), u"internet, https://example.org/ä");
    EXPECT_EQ(Shown({Stream("\xEF\xBB\xBF" + loose)}), u"internet, https://example.org/ä");
    EXPECT_EQ(Shown({Stream("\xEF\xBB\xBFZoneId=1")}), u"local network");
    for (const bool isBig : {false, true})
        EXPECT_EQ(Shown({Stream(Utf16(loose, isBig))}), u"internet, https://example.org/ä");
    for (const std::string& bytes : {std::string(), std::string("\0\xff=\r\r", 5), std::string("ZoneId"),
                                     std::string("\xFF\xFE"), std::string("\xFF\xFE="), std::string("\xFE\xFF=")})
        EXPECT_EQ(Shown({Stream(bytes)}), u"marked");
}

TEST(Mark, JournalTextsThatAreWrongAreRefused)
{
    EXPECT_TRUE(MarkChange::Read(u":Zone.Identifier 00ff", u"none"));
    EXPECT_TRUE(MarkChange::Read(u"a ;b 00", u"none")) << "a form may be empty";
    EXPECT_TRUE(MarkChange::Read(u"attributes 0444 - -;a 00", u"none"));
    const auto withState = MarkChange::Read(u":Zone.Identifier 00 0600 1.000000005 2.000000000;b 01", u"none");
    ASSERT_TRUE(withState);
    EXPECT_EQ(withState->Before(), u":Zone.Identifier 00 0600 1.000000005 2.000000000;b 01");
    EXPECT_FALSE(MarkChange::Read(u"attributes 0444 - -", u"none"));
    EXPECT_FALSE(MarkChange::Read(u"attributes 0444 - -;attributes 0444 - -;a 00", u"none"));
    for (const char16_t* const text : {u"", u" 00", u"a 0", u"a 0g", u"a 00;;"})
        EXPECT_FALSE(MarkChange::Read(text, u"none")) << VyrPlatform::Encoding::ToUtf8(text);
    EXPECT_FALSE(MarkChange::Read(u"a 00", u""));
}
