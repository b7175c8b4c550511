// The change of properties: what the journal keeps of it, how much of old documents, and what is predicted.
#include <VyrHost/documents/Document.h>
#include <VyrHost/documents/Properties.h>

#include <VyrHost/text/Errors.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/documents/PropertyStorage.h>
#include <tests/support/ComThread.h>
#include <tests/support/CompoundDocument.h>
#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

using namespace VyrHost::Documents;
using namespace VyrTests;
using VyrHost::Metadata::Proposal;
using VyrHost::Model::ChangeState;

namespace Result = VyrPlatform::PropertyStorage::Result;

namespace {

std::string Sample()
{
    CompoundDocument document;
    document.streams[summaryName] =
        BuildSummary({{1, StoredCodePage(1252)}, {2, StoredByteText("Old")}, {4, StoredByteText("Ann")}});
    return document.Bytes();
}

PropertyRequest RequestOf(std::u16string_view set)
{
    PropertyRequest request;
    ParseProperty(set, request);
    return request;
}

VyrHost::Model::Entry FileEntry()
{
    VyrHost::Model::Entry entry;
    entry.kind = VyrPlatform::FileSystem::Kind::File;
    return entry;
}

/// The change as it is in a batch that keeps files in `folder`.
std::shared_ptr<const VyrHost::Model::Change> Keeping(const std::shared_ptr<const VyrHost::Model::Change>& change,
                                                      const CString& folder)
{
    const auto& keeping = dynamic_cast<const VyrHost::Model::KeepsFile&>(*change);
    return keeping.KeepingAt(VyrLibraryUtils::FileUtils::GetCombinePath(folder, u"0"));
}

class Properties : public testing::Test
{
protected:
    Proposal Propose(std::u16string_view set) const
    {
        return PropertiesRule(RequestOf(set)).Propose(path, FileEntry(), 0);
    }

    /// The one file in a folder.
    std::filesystem::path KeptIn(std::u16string_view folder) const
    {
        std::vector<std::filesystem::path> files;
        for (const auto& entry : std::filesystem::directory_iterator(ToStdPath(scratch.Path(folder))))
            files.push_back(entry.path());
        EXPECT_EQ(files.size(), 1U);
        return files.empty() ? std::filesystem::path() : files.front();
    }

    static std::string ReadAll(const std::filesystem::path& file)
    {
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    ComThread com;
    ScratchFolder scratch;
    CString path = scratch.WriteFile(u"a.doc", Sample());
};

} // namespace

TEST_F(Properties, ChangeIsReadAgainFromTheJournalAndGoesAndComesBack)
{
    const Proposal proposal = Propose(u"title=Größe; \"<Name>\"\t日");
    ASSERT_TRUE(proposal.change) << ToStdPath(proposal.refusal);
    const auto read = PropertiesChange::Read(proposal.change->Before(), proposal.change->After());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->Before(), proposal.change->Before());
    EXPECT_EQ(read->After(), proposal.change->After());
    EXPECT_EQ(read->ShownBefore(), u"title \"Old\"");
    EXPECT_EQ(read->ShownAfter(), u"title \"Größe; \"a\"\t日\"");
    const auto change = Keeping(read, scratch.Path(u"kept"));
    ASSERT_TRUE(change);
    EXPECT_EQ(change->Look(path).state, ChangeState::Before);
    ASSERT_EQ(change->Apply(path), 0U);
    EXPECT_EQ(change->Look(path).state, ChangeState::After);
    EXPECT_NE(scratch.ReadFile(u"a.doc"), Sample());
    ASSERT_EQ(change->Undo(path), 0U);
    EXPECT_EQ(change->Look(path).state, ChangeState::Before);
    EXPECT_EQ(scratch.ReadFile(u"a.doc"), Sample());
}

TEST_F(Properties, KeptDocumentThatWasDamagedIsNotRestored)
{
    const auto change = Keeping(Propose(u"title=New").change, scratch.Path(u"kept"));
    ASSERT_EQ(change->Apply(path), 0U);
    const std::string changed = scratch.ReadFile(u"a.doc");
    const std::filesystem::path kept = KeptIn(u"kept");
    std::ofstream(kept, std::ios::binary | std::ios::trunc) << "damaged";
    EXPECT_EQ(change->Undo(path), Result::damaged);
    std::filesystem::rename(kept, kept.parent_path() / "another name");
    EXPECT_EQ(change->Look(path).state, ChangeState::Other);
    EXPECT_NE(change->Undo(path), 0U);
    EXPECT_EQ(scratch.ReadFile(u"a.doc"), changed);
}

TEST_F(Properties, OldDocumentIsKeptWholeAndTheNewOneHasOneName)
{
    const auto change = Keeping(Propose(u"title=New").change, scratch.Path(u"kept"));
    ASSERT_EQ(change->Apply(path), 0U);
    EXPECT_EQ(ReadAll(KeptIn(u"kept")), Sample());
    EXPECT_EQ(std::filesystem::hard_link_count(ToStdPath(path)), 1U);
    // As often as it is undone and done again.
    ASSERT_EQ(change->Undo(path), 0U);
    ASSERT_EQ(change->Apply(path), 0U);
    EXPECT_EQ(ReadAll(KeptIn(u"kept")), Sample());
}

TEST_F(Properties, DocumentThatCannotBeKeptStaysWithOneName)
{
    scratch.WriteFile(u"kept", "no folder");
    const auto change = Keeping(Propose(u"title=New").change, scratch.Path(u"kept"));
    EXPECT_NE(change->Apply(path), 0U);
    EXPECT_EQ(scratch.ReadFile(u"a.doc"), Sample());
    EXPECT_EQ(std::filesystem::hard_link_count(ToStdPath(path)), 1U);
    EXPECT_EQ(change->Look(path).state, ChangeState::Before);
}

/// What a program leaves that is killed when the old document is kept, and the new one has not taken its place.
TEST_F(Properties, DocumentThatIsKeptWhileItStillStandsThereIsFreedByTheRecovery)
{
    const auto change = Keeping(Propose(u"title=New").change, scratch.Path(u"kept"));
    const std::filesystem::path folder = ToStdPath(scratch.MakeFolder(u"kept"));
    std::filesystem::create_hard_link(ToStdPath(path), folder / "0.5 12345678");
    change->Repair(path);
    EXPECT_EQ(std::filesystem::hard_link_count(ToStdPath(path)), 1U);
    std::filesystem::create_hard_link(ToStdPath(path), folder / "0.5 12345678");
    EXPECT_EQ(change->Apply(path), 0U);
    EXPECT_EQ(ReadAll(KeptIn(u"kept")), Sample());
}

TEST_F(Properties, DocumentThatWasWrittenToSinceItWasListedIsNotKept)
{
    const CString folder = scratch.MakeFolder(u"kept");
    const auto change = Keeping(Propose(u"title=New").change, folder);
    CompoundDocument other;
    other.streams[summaryName] = BuildSummary({{1, StoredCodePage(1252)}});
    scratch.WriteFile(u"a.doc", other.Bytes());
    EXPECT_EQ(change->Look(path).state, ChangeState::Other);
    EXPECT_NE(change->Apply(path), 0U);
    EXPECT_EQ(scratch.ReadFile(u"a.doc"), other.Bytes());
}

TEST_F(Properties, MoreThanABatchKeepsIsRefused)
{
    const std::size_t size = Sample().size();
    const PropertiesRule rule(RequestOf(u"title=New"), 2 * size);
    EXPECT_TRUE(rule.Propose(path, FileEntry(), 0).change);
    EXPECT_TRUE(rule.Propose(path, FileEntry(), 1).change);
    const Proposal third = rule.Propose(path, FileEntry(), 2);
    EXPECT_FALSE(third.change);
    EXPECT_EQ(third.refusal, u"a batch keeps at most 2 GB of old documents; change this one in another batch");
}

TEST_F(Properties, WhatIsSoAlreadyIsNoChange)
{
    const Proposal proposal = Propose(u"title=Old");
    EXPECT_FALSE(proposal.change);
    EXPECT_EQ(proposal.refusal, u"");
    PropertyRequest request;
    ParseCleared(u"subject,keywords", request);
    EXPECT_FALSE(PropertiesRule(request).Propose(path, FileEntry(), 0).change);
}

TEST(PropertiesText, ThatNoChangeWritesIsRefused)
{
    for (const char16_t* const before :
         {u"", u"1", u"1 xyz", u"-1 00000000", u"1 123456789", u"1 00000000;0", u"1 0;zz"})
        EXPECT_FALSE(PropertiesChange::Read(before, u"some;title 4100")) << ToStdPath(before);
    for (const char16_t* const after :
         {u"", u"some", u"any;title", u"some;titel", u"some;title 41", u"some;title zz00", u"some;created 41x0",
          u"some;created 0", u"some;created 4100;created", u"some;thumbnail 4100", u"some;title;title", u"some;"})
        EXPECT_FALSE(PropertiesChange::Read(u"1 00000000", after)) << ToStdPath(after);
    EXPECT_TRUE(PropertiesChange::Read(u"1 00000000", u"all"));
    EXPECT_TRUE(PropertiesChange::Read(u"1 00000000;4100", u"some;title 4100;created"));
    EXPECT_TRUE(PropertiesChange::Read(u"1 00000000", u"all;created 4100"));
}

TEST(PropertyDates, ThatAreAcceptedAreReadAgainFromTheJournal)
{
    int accepted = 0;
    for (int year = 100; year <= 9999; ++year) {
        const bool isNearAnEnd = (year > 1590 && year < 1610) || year > 9990;
        if (!isNearAnEnd && year % 37 != 0)
            continue;
        for (const char16_t* const day : {u"01-01", u"01-01 00:00:01", u"01-02", u"06-30 12:00", u"12-31 23:59:59"}) {
            CString text;
            text.Format(u"created=%04d-%s", year, CString(day));
            SCOPED_TRACE(ToStdPath(text));
            PropertyRequest request;
            try {
                ParseProperty(text, request);
            } catch (const VyrHost::Text::UsageError& error) {
                EXPECT_TRUE(year <= 1601 || year == 9999) << error.what();
                continue;
            }
            ++accepted;
            EXPECT_GE(year, 1600);
            auto document = std::make_shared<PropertiesChange::Document>();
            document->edit.times = request.times;
            const PropertiesChange change(document);
            const auto read = PropertiesChange::Read(change.Before(), change.After());
            ASSERT_TRUE(read);
            EXPECT_EQ(read->After(), change.After());
        }
    }
    EXPECT_GT(accepted, 1000);
}

TEST(PropertyTokens, AreThoseOfTheFile)
{
    for (const char16_t* const text : {u"title=<name>", u"title=<Folder>", u"title=a<Nmae>b"}) {
        PropertyRequest request;
        EXPECT_THROW(ParseProperty(text, request), VyrHost::Text::UsageError) << ToStdPath(text);
    }
    PropertyRequest request;
    EXPECT_NO_THROW(ParseProperty(u"title=1 < 2 <> <Name> <a b>", request));
}
