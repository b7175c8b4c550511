// Tests of the program: vyr times, attributes, unblock and properties, and renames that empty folders, and the undo of
// each, killed between any two of their changes on the disk, also between the parts of what is done to one file.
#include <tests/VyrHost/cli/VyrProgram.h>

#include <VyrPlatform/files/FileAttributes.h>
#include <tests/support/CompoundDocument.h>
#include <tests/support/FileMoments.h>
#include <tests/support/FileState.h>
#include <tests/support/PackageHandlers.h>
#include <tests/support/StdPath.h>
#include <tests/support/TreeState.h>
#include <tests/support/ZipArchives.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

using namespace VyrTests;

namespace {

using Tree = std::map<std::string, std::string>;

constexpr std::int64_t moment = 1'704'450'600;

class KilledBatch : public VyrProgram
{
protected:
    KilledBatch() { m_environment[u"TZ"] = u"UTC"; }

    [[nodiscard]] Tree Now() const { return TreeState(m_folder.Path()); }

    /// From now on the program keeps its journal in a folder that is not there yet, so that it makes the same changes
    /// each time.
    void BeginJournal()
    {
        CString folder;
        folder.Format(u"journal %d", m_journals++);
        m_environment[u"VYR_JOURNAL_DIR"] = m_journalFolder.Path(folder);
    }

    /// Starts a program, lets it make `changes`, and kills it before the next one.
    void KillAfter(int changes, const std::vector<CString>& arguments) const
    {
        ProgramCall call = CallOf(arguments);
        call.stopsAtChanges = true;
        ChildProcess child(call);
        for (int change = 0; change <= changes; ++change)
            ASSERT_TRUE(child.GoToNextChange());
        child.Kill();
        EXPECT_NE(child.Wait().exitCode, 0);
    }

    /// Whether a batch was cut off, and has been recovered.
    bool Recover(bool isUndone) const
    {
        const ProgramResult result =
            isUndone ? Run({u"recover", u"--take-back"}) : Run(std::vector<CString>{u"recover"});
        EXPECT_EQ(result.exitCode, 0) << result.output << result.errors;
        return result.output.find("No batch was cut off") == std::string::npos;
    }

    void UndoFrom(const Tree& after) const
    {
        if (Now() == m_before)
            return;
        ASSERT_EQ(Now(), after);
        const ProgramResult undone = Run(std::vector<CString>{u"undo"});
        EXPECT_EQ(undone.exitCode, 0) << undone.output << undone.errors;
        ASSERT_EQ(Now(), m_before);
    }

    /// Applies the call `arguments`, killed before each change that it makes, and recovers; then likewise its undo.
    void KillEverywhere(const std::vector<CString>& arguments)
    {
        BeginJournal();
        const int changes = CountChanges(CallOf(arguments));
        const Tree after = Now();
        ASSERT_NE(after, m_before);
        const int changesOfUndo = CountChanges(CallOf({u"undo"}));
        ASSERT_EQ(Now(), m_before);
        const int first = FirstOwnChange();
        ASSERT_LT(first, changes);
        int recovered = 0;
        for (int made = first; made < changes; ++made) {
            SCOPED_TRACE("apply, " + std::to_string(made));
            BeginJournal();
            ASSERT_NO_FATAL_FAILURE(KillAfter(made, arguments));
            JudgeCutOff(after);
            const bool isUndone = made % 2 == 0;
            if (Recover(isUndone)) {
                ++recovered;
                ASSERT_EQ(Now(), isUndone ? m_before : after);
            }
            ASSERT_NO_FATAL_FAILURE(UndoFrom(after));
        }
        for (int made = first; made < changesOfUndo; ++made) {
            SCOPED_TRACE("undo, " + std::to_string(made));
            BeginJournal();
            ASSERT_EQ(Run(arguments).exitCode, 0);
            ASSERT_NO_FATAL_FAILURE(KillAfter(made, {u"undo"}));
            JudgeCutOff(after);
            if (Recover(false)) {
                ++recovered;
                ASSERT_EQ(Now(), m_before);
            }
            ASSERT_NO_FATAL_FAILURE(UndoFrom(after));
        }
        EXPECT_GT(recovered, 4);
    }

    /// Applies the call `arguments` to the file at `path`, protects the file, and undoes the call, killed before each
    /// change that the undo makes; then recovers.
    void KillUndoOfProtected(const CString& path, const std::vector<CString>& arguments)
    {
        SetReadOnly(path, true);
        const Tree undone = Now();
        const auto applyAndProtect = [&] {
            SetReadOnly(path, false);
            ASSERT_EQ(Now(), m_before);
            BeginJournal();
            ASSERT_EQ(Run(arguments).exitCode, 0);
            SetReadOnly(path, true);
        };
        ASSERT_NO_FATAL_FAILURE(applyAndProtect());
        const int changes = CountChanges(CallOf({u"undo"}));
        ASSERT_EQ(Now(), undone);
        int recovered = 0;
        for (int made = FirstOwnChange(); made < changes; ++made) {
            SCOPED_TRACE(made);
            ASSERT_NO_FATAL_FAILURE(applyAndProtect());
            ASSERT_NO_FATAL_FAILURE(KillAfter(made, {u"undo"}));
            if (Recover(false))
                ++recovered;
            else
                Run(std::vector<CString>{u"undo"});
            ASSERT_EQ(Now(), undone);
        }
        SetReadOnly(path, false);
        EXPECT_GT(recovered, 2);
    }

    /// Looks at what stands there between the end of the program and the recovery.
    virtual void JudgeCutOff(const Tree& /*after*/) const {}

    Tree m_before;

private:
    ScratchFolder m_journalFolder;
    int m_journals = 0;
};

class KilledChanges : public KilledBatch
{
protected:
    void SetUp() override
    {
        for (const char16_t* const name : {u"plain", u"protected", u"hidden"}) {
            const CString path = m_folder.WriteFile(name, "content");
            MarkAsDownloaded(path);
            if (CString(name) == u"hidden") {
                ASSERT_EQ(VyrPlatform::FileAttributes::Set(path, 0x22), 0U);
            }
            StampFile(path, TicksOfUnixTime(moment, 1'234'567), TicksOfUnixTime(moment + 60, 7));
        }
        SetReadOnly(m_folder.Path(u"protected"), true);
        m_before = Now();
    }
    void TearDown() override { SetReadOnly(m_folder.Path(u"protected"), false); }
};

class KilledDocuments : public KilledBatch
{
protected:
    void Place(std::u16string_view name, const std::string& bytes)
    {
        // Documents are read, and a reader sets only an access time that is in the past.
        constexpr std::int64_t inFuture = 4'000'000'000;
        StampFile(m_folder.WriteFile(name, bytes), TicksOfUnixTime(moment, 1'234'567), TicksOfUnixTime(inFuture, 7));
        m_before = Now();
    }

    /// Each document is the old or the new one, whole.
    void JudgeCutOff(const Tree& after) const override
    {
        const Tree now = Now();
        for (const auto& [name, state] : m_before)
            EXPECT_TRUE(now.contains(name) && (now.at(name) == state || now.at(name) == after.at(name))) << name;
    }
};

} // namespace

TEST_F(KilledChanges, TimesAreRecovered)
{
    std::vector<CString> arguments = {
        u"times", u"--set-modified=2020-02-03 04:05", u"--set-accessed=2021-01-01", u"--apply", u"plain", u"hidden"};
    const CString probe = m_folder.WriteFile(u"probe");
    if (KeepsCreationTime(probe))
        arguments.emplace_back(u"--set-created=2019-09-09 09:09");
    ASSERT_TRUE(std::filesystem::remove(ToStdPath(probe)));
    KillEverywhere(arguments);
}

TEST_F(KilledChanges, AttributesAreRecovered)
{
    KillEverywhere({u"attributes", u"--set=read-only,system", u"--clear=hidden", u"--apply", u"plain", u"hidden"});
    KillEverywhere({u"attributes", u"--clear=read-only", u"--set=hidden", u"--apply", u"protected"});
}

TEST_F(KilledChanges, MarksAreRecovered)
{
    KillEverywhere({u"unblock", u"--apply", u"plain", u"protected"});
}

TEST_F(KilledChanges, CreationTimesOfFilesProtectedSinceAreRecovered)
{
    const CString probe = m_folder.WriteFile(u"probe");
    const bool keepsCreated = KeepsCreationTime(probe);
    ASSERT_TRUE(std::filesystem::remove(ToStdPath(probe)));
    if (!keepsCreated)
        GTEST_SKIP() << "creation times are not kept here";
    KillUndoOfProtected(m_folder.Path(u"plain"),
                        {u"times", u"--set-created=2019-09-09 09:09", u"--apply", u"plain", u"hidden"});
}

TEST_F(KilledChanges, AttributesOfFilesProtectedSinceAreRecovered)
{
    KillUndoOfProtected(m_folder.Path(u"plain"), {u"attributes", u"--set=system", u"--apply", u"plain", u"hidden"});
}

TEST_F(KilledChanges, MarksOfFilesProtectedSinceAreRecovered)
{
    KillUndoOfProtected(m_folder.Path(u"plain"), {u"unblock", u"--apply", u"plain", u"hidden"});
}

TEST_F(KilledDocuments, CompoundOneIsTheOldOrTheNewOneAndIsRecovered)
{
    CompoundDocument document;
    document.streams[summaryName] = BuildSummary({{1, StoredCodePage(1252)}, {2, StoredByteText("Old title")}});
    document.streams[u"Body"] = std::string(5'000, 'b');
    Place(u"a.doc", document.Bytes());
    KillEverywhere({u"properties", u"--set=title=Another title", u"--set=author=Ann", u"--apply", u"a.doc"});
}

TEST_F(KilledDocuments, PackageIsTheOldOrTheNewOneAndIsRecovered)
{
    if (!HasPackageHandlers())
        GTEST_SKIP() << "no handler of such documents is registered";
    const std::string meta = R"(<o:document-meta xmlns:o="urn:oasis:names:tc:opendocument:xmlns:office:1.0"><o:meta/>)"
                             R"(</o:document-meta>)";
    Place(u"b.odt", BuildArchive({{"mimetype", "application/vnd.oasis.opendocument.text"},
                                  {"content.xml", std::string(5'000, 'c')},
                                  {"meta.xml", meta}}));
    KillEverywhere({u"properties", u"--set=title=Another title", u"--apply", u"b.odt"});
}

TEST_F(KilledChanges, FoldersThatRenamesEmptyAreRecovered)
{
    m_folder.WriteFile(u"a/b/c/1", "1");
    m_folder.WriteFile(u"a/2", "2");
    ASSERT_EQ(VyrPlatform::FileAttributes::Set(m_folder.Path(u"a/b"), 0x12), 0U);
    m_before = Now();
    KillEverywhere({u"rename", u"--into=out", u"--remove-empty", u"-r", u"a", u"--apply"});
}
