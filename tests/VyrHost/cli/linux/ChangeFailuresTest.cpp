// Tests of the program: changes in place that the system refuses, said in their rows, with nothing half done.
#include "UnprivilegedProgram.h"

#include <VyrPlatform/files/FileTimes.h>

#include <gmock/gmock.h>
#include <tests/support/CompoundDocument.h>
#include <tests/support/FileMoments.h>
#include <tests/support/TreeState.h>
#include <tests/support/ZipArchives.h>
#include <tests/support/linux/MountedFolder.h>

#include <fstream>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <utility>
#include <vector>

using namespace VyrTests;
using testing::HasSubstr;

namespace FileTimes = VyrPlatform::FileTimes;

namespace {

using ChangeFailures = UnprivilegedProgram;

constexpr auto before = TicksOfUnixTime(1'600'000'000);
/// A reader sets only an access time that is in the past.
constexpr auto inFuture = TicksOfUnixTime(4'000'000'000);

std::string Document()
{
    CompoundDocument document;
    document.streams[summaryName] = BuildSummary({{1, StoredCodePage(1252)}, {2, StoredByteText("Old")}});
    document.streams[u"Body"] = std::string(30'000, 'b');
    return document.Bytes();
}

/// A document that is an archive, with the given parts in front of its text.
std::string Archive(ZipMembers members)
{
    members.emplace_back("content.xml", std::string(30'000, 'c'));
    return BuildArchive(members);
}

/// Documents of every form by their names.
std::vector<std::pair<std::u16string_view, std::string>> DocumentsOfEveryForm()
{
    return {{u"a.doc", Document()},
            {u"a.docx",
             Archive({{"[Content_Types].xml",
                       R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types"/>)"},
                      {"_rels/.rels",
                       R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships"/>)"}})},
            {u"a.odt",
             Archive({{"mimetype", "application/vnd.oasis.opendocument.text"},
                      {"meta.xml", R"(<o:document-meta xmlns:o="urn:oasis:names:tc:opendocument:xmlns:office:1.0">)"
                                   R"(<o:meta/></o:document-meta>)"}})}};
}

} // namespace

TEST_F(ChangeFailures, OnAFileSystemWithoutExtendedAttributesLeaveAllAsItWas)
{
    const MountedFolder disk(MountedFolder::Kind::Exfat);
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    const CString path = disk.Path(u"a");
    std::ofstream(ToStdPath(path)) << "content";
    StampFile(path, before, before);
    // The first look sets the access time: this file system does not keep readers from that.
    static_cast<void>(TreeState(disk.Path()));
    const auto tree = TreeState(disk.Path());
    const std::vector<CString> calls[] = {
        {u"times", u"--set-created=2019-09-09", u"--set-modified=2019-09-09", path, u"--apply"},
        {u"attributes", u"--set=hidden", path, u"--apply"},
        {u"attributes", u"--set=hidden,read-only", path, u"--apply"}};
    for (const std::vector<CString>& call : calls) {
        const ProgramResult result = Run(call);
        EXPECT_EQ(result.exitCode, 1) << result.output << result.errors;
        EXPECT_THAT(result.output, HasSubstr("failed: "));
        EXPECT_THAT(result.output, HasSubstr("1 entry: 1 failed.\nNothing was changed.\n"));
        EXPECT_EQ(TreeState(disk.Path()), tree);
    }
    EXPECT_THAT(Run({u"unblock", path, u"--apply"}).output, HasSubstr("1 entry: 1 unchanged."));
    EXPECT_EQ(Run({u"times", u"--set-modified=2019-09-09 10:00", path, u"--apply"}).exitCode, 0);
    EXPECT_NE(FileTimes::GetModified(path), before);
    EXPECT_EQ(Run({u"undo", u"1"}).exitCode, 0);
    EXPECT_EQ(TreeState(disk.Path()), tree);
}

TEST_F(ChangeFailures, OfSeveralAttributesWhereOnlyThePermissionsCanBeSetLeaveThemAsTheyWere)
{
    const MountedFolder disk(MountedFolder::Kind::PassedThrough, "--xattr-none");
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    const CString path = disk.Path(u"a");
    std::ofstream(ToStdPath(path)) << "content";
    const auto tree = TreeState(disk.Path());
    const ProgramResult result = Run({u"attributes", u"--set=hidden,read-only", path, u"--apply"});
    EXPECT_EQ(result.exitCode, 1) << result.output << result.errors;
    EXPECT_EQ(TreeState(disk.Path()), tree);
}

TEST_F(ChangeFailures, OfFilesOfOthersStandInTheirRows)
{
    for (const char16_t* const name : {u"mine", u"others", u"writable"})
        StampFile(m_folder.WriteFile(name, "content"), before, before);
    const ScratchFolder journal;
    m_environment[u"VYR_JOURNAL_DIR"] = journal.Path(u"journal");
    for (const CString& path : {m_folder.Path(), journal.Path()})
        ASSERT_EQ(chmod(ToStdPath(path).c_str(), 0777), 0);
    if (geteuid() != 0 || RunUnprivileged({u"--version"}).exitCode != 0)
        GTEST_SKIP() << "needs root, and a program that others can run";
    ASSERT_EQ(chown(ToStdPath(m_folder.Path(u"mine")).c_str(), 65534, 65534), 0);
    // Everybody may change its extended attributes, but only its owner its permissions and times.
    ASSERT_EQ(chmod(ToStdPath(m_folder.Path(u"writable")).c_str(), 0666), 0);
    const std::vector<CString> calls[] = {
        {u"times", u"--set-modified=2019-09-09", u"mine", u"others", u"writable", u"--apply"},
        {u"attributes", u"--set=read-only,hidden", u"mine", u"others", u"writable", u"--apply"}};
    for (const std::vector<CString>& call : calls) {
        const auto tree = TreeState(m_folder.Path());
        const ProgramResult result = RunUnprivileged(call);
        EXPECT_EQ(result.exitCode, 1) << result.errors;
        EXPECT_THAT(result.output, HasSubstr("failed: "));
        EXPECT_THAT(result.output, HasSubstr("3 entries: 1 changed, 2 failed.\n"));
        const auto changed = TreeState(m_folder.Path());
        EXPECT_NE(changed.at("mine"), tree.at("mine"));
        EXPECT_EQ(changed.at("others"), tree.at("others"));
        EXPECT_EQ(changed.at("writable"), tree.at("writable"));
        EXPECT_EQ(RunUnprivileged({u"undo"}).exitCode, 0);
        EXPECT_EQ(TreeState(m_folder.Path()), tree);
    }
}

TEST_F(ChangeFailures, WhatOneMayNotReadIsNotShownAndNotChanged)
{
    const std::string path = ToStdPath(m_folder.WriteFile(u"a", "content"));
    ASSERT_EQ(setxattr(path.c_str(), "user.DOSATTRIB", "0x2", 3, 0), 0);
    ASSERT_EQ(setxattr(path.c_str(), "user.xdg.origin.url", "http://x", 8, 0), 0);
    ASSERT_EQ(chmod(ToStdPath(m_folder.Path()).c_str(), 0755), 0);
    ASSERT_EQ(chmod(path.c_str(), 0200), 0);
    if (geteuid() == 0 && RunUnprivileged({u"--version"}).exitCode != 0)
        GTEST_SKIP() << "needs a program that others can run";
    const ProgramResult list =
        RunUnprivileged({u"list", u"a", u"--json", u"--columns=name,created,attributes,downloaded"});
    EXPECT_EQ(list.output, "{\"name\":\"a\"}\n");
    const ProgramResult change = RunUnprivileged({u"attributes", u"--clear=hidden", u"a"});
    EXPECT_THAT(change.output, HasSubstr("Permission denied"));
    EXPECT_THAT(change.output, testing::Not(HasSubstr("unchanged")));
}

TEST_F(ChangeFailures, OfMarksOfWhichOneFormCannotBeRemovedLeaveAllForms)
{
    const ScratchFolder journal;
    m_environment[u"VYR_JOURNAL_DIR"] = journal.Path(u"journal");
    const std::string path = ToStdPath(m_folder.WriteFile(u"a", "content"));
    StampFile(m_folder.WriteFile(u"a:Zone.Identifier", "[ZoneTransfer]\r\nZoneId=3\r\n"), before, inFuture);
    ASSERT_EQ(setxattr(path.c_str(), "user.xdg.origin.url", "http://x", 8, 0), 0);
    ASSERT_EQ(chmod(ToStdPath(journal.Path()).c_str(), 0777), 0);
    ASSERT_EQ(chmod(ToStdPath(m_folder.Path()).c_str(), 0755), 0);
    if (geteuid() != 0 || RunUnprivileged({u"--version"}).exitCode != 0)
        GTEST_SKIP() << "needs root, and a program that others can run";
    ASSERT_EQ(chown(path.c_str(), 65534, 65534), 0);
    const auto tree = TreeState(m_folder.Path());
    const ProgramResult result = RunUnprivileged({u"unblock", u"a", u"--apply"});
    EXPECT_EQ(result.exitCode, 1) << result.output << result.errors;
    EXPECT_THAT(result.output, HasSubstr("failed: "));
    EXPECT_EQ(TreeState(m_folder.Path()), tree);
}

TEST_F(ChangeFailures, OfDocumentsWithoutPermissionStandInTheirRows)
{
    const ScratchFolder journal;
    m_environment[u"VYR_JOURNAL_DIR"] = journal.Path(u"journal");
    m_folder.MakeFolder(u"protected");
    for (const char16_t* const name : {u"mine.doc", u"unreadable.doc", u"unwritable.doc", u"protected/mine.doc"})
        StampFile(m_folder.WriteFile(name, Document()), before, inFuture);
    for (const CString& path : {m_folder.Path(), journal.Path()})
        ASSERT_EQ(chmod(ToStdPath(path).c_str(), 0777), 0);
    if (geteuid() != 0 || RunUnprivileged({u"--version"}).exitCode != 0)
        GTEST_SKIP() << "needs root, and a program that others can run";
    for (const char16_t* const name : {u"mine.doc", u"protected/mine.doc"})
        ASSERT_EQ(chown(ToStdPath(m_folder.Path(name)).c_str(), 65534, 65534), 0);
    ASSERT_EQ(chmod(ToStdPath(m_folder.Path(u"unreadable.doc")).c_str(), 0600), 0);
    const auto tree = TreeState(m_folder.Path());
    const ProgramResult result = RunUnprivileged({u"properties", u"--set=title=New", u"--apply", u"mine.doc",
                                                  u"unreadable.doc", u"unwritable.doc", u"protected/mine.doc"});
    EXPECT_EQ(result.exitCode, 1) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("4 entries: 1 changed, 2 refused, 1 failed.\n"));
    auto changed = TreeState(m_folder.Path());
    EXPECT_NE(changed.at("mine.doc"), tree.at("mine.doc"));
    changed["mine.doc"] = tree.at("mine.doc");
    EXPECT_EQ(changed, tree);
    EXPECT_EQ(RunUnprivileged({u"undo"}).exitCode, 0);
    EXPECT_EQ(TreeState(m_folder.Path()), tree);
}

TEST_F(ChangeFailures, FullDiskUnderTheJournalKeepsAllAsItIs)
{
    const MountedFolder disk(MountedFolder::Kind::Memory, "size=64k");
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    const CString path = m_folder.WriteFile(u"a", "content");
    StampFile(path, before, before);
    m_environment[u"VYR_JOURNAL_DIR"] = disk.Path(u"journal");
    std::ofstream(ToStdPath(disk.Path(u"filler"))) << std::string(1 << 17, 'x');
    const auto tree = TreeState(m_folder.Path());
    const std::vector<CString> calls[] = {{u"times", u"--shift=1h", u"a", u"--apply"},
                                          {u"attributes", u"--set=hidden", u"a", u"--apply"}};
    for (const std::vector<CString>& call : calls) {
        const ProgramResult result = Run(call);
        EXPECT_EQ(result.exitCode, 4) << result.output;
        EXPECT_THAT(result.errors, HasSubstr("the journal cannot be written, so that nothing was done: No space left"));
        EXPECT_EQ(TreeState(m_folder.Path()), tree);
    }
    std::filesystem::remove(ToStdPath(disk.Path(u"filler")));
    EXPECT_EQ(Run(calls[0]).exitCode, 0);
    EXPECT_NE(TreeState(m_folder.Path()), tree);
}

TEST_F(ChangeFailures, DiskThatIsFullAtAnyMomentLeavesTheOldOrTheNewDocument)
{
    constexpr std::size_t size = 144 * 1024;
    const MountedFolder disk(MountedFolder::Kind::Memory, "size=" + std::to_string(size));
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    ASSERT_TRUE(std::filesystem::create_directory(ToStdPath(disk.Path(u"files"))));
    m_environment[u"VYR_JOURNAL_DIR"] = disk.Path(u"journal");
    for (const auto& [name, bytes] : DocumentsOfEveryForm()) {
        const CString path = disk.Path(CString::Join({u"files/", name}).View());
        SCOPED_TRACE(ToStdPath(path));
        std::ofstream(ToStdPath(path), std::ios::binary) << bytes;
        StampFile(path, before, inFuture);
        const auto tree = TreeState(disk.Path(u"files"));
        int failed = 0;
        int applied = 0;
        // One page less is free each time.
        for (std::size_t filled = 0; filled <= size; filled += 4096) {
            SCOPED_TRACE(filled);
            std::ofstream(ToStdPath(disk.Path(u"filler"))) << std::string(filled, 'x');
            const ProgramResult result = Run({u"properties", u"--set=title=New", path, u"--apply"});
            if (result.exitCode != 0) {
                ++failed;
                EXPECT_THAT(result.output + result.errors, HasSubstr("o space left"));
                EXPECT_EQ(TreeState(disk.Path(u"files")), tree);
            }
            std::filesystem::remove(ToStdPath(disk.Path(u"filler")));
            EXPECT_EQ(Run({u"recover", u"--take-back"}).exitCode, 0);
            if (result.exitCode == 0) {
                ++applied;
                const ProgramResult undone = Run({u"undo", u"1"});
                EXPECT_EQ(undone.exitCode, 0) << undone.output << undone.errors;
            }
            ASSERT_EQ(TreeState(disk.Path(u"files")), tree);
            std::filesystem::remove_all(ToStdPath(disk.Path(u"journal")));
        }
        EXPECT_GT(applied, 0);
        EXPECT_GT(failed, 0);
        std::filesystem::remove(ToStdPath(path));
    }
}

TEST_F(ChangeFailures, UndoOnAFullDiskKeepsTheNewDocumentUntilThereIsSpace)
{
    const MountedFolder disk(MountedFolder::Kind::Memory, "size=256k");
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    const CString path = disk.Path(u"a.doc");
    std::ofstream(ToStdPath(path), std::ios::binary) << Document();
    StampFile(path, before, inFuture);
    const auto tree = TreeState(disk.Path());
    ASSERT_EQ(Run({u"properties", u"--set=title=New", path, u"--apply"}).exitCode, 0);
    const auto changed = TreeState(disk.Path());
    std::ofstream(ToStdPath(disk.Path(u"filler"))) << std::string(1 << 19, 'x');
    const ProgramResult undone = Run({u"undo", u"1"});
    EXPECT_EQ(undone.exitCode, 1) << undone.output;
    EXPECT_THAT(undone.output, HasSubstr("o space left"));
    std::filesystem::remove(ToStdPath(disk.Path(u"filler")));
    EXPECT_EQ(TreeState(disk.Path()), changed);
    EXPECT_EQ(Run({u"undo", u"1"}).exitCode, 0);
    EXPECT_EQ(TreeState(disk.Path()), tree);
}
