// Sources and destinations of folders, and calls that are refused.
#include <VyrHost/foldercopy/TransferBatch.h>

#include <VyrHost/text/Errors.h>
#include <VyrPlatform/files/FileSystem.h>
#include <tests/support/Links.h>
#include <tests/support/ScratchFolder.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace VyrHost::FolderCopy;
using namespace VyrHost::Text;
using testing::HasSubstr;

namespace {

class TransferTasks : public testing::Test
{
protected:
    /// The error of a call with these names in the scratch folder; empty when it is correct.
    [[nodiscard]] std::string Refusal(const std::vector<CString>& sources, const CString& destination) const
    {
        try {
            static_cast<void>(Make(sources, destination));
        } catch (const UsageError& error) {
            return error.what();
        }
        return {};
    }
    [[nodiscard]] std::vector<TransferTask> Make(const std::vector<CString>& sources, const CString& destination) const
    {
        std::vector<CString> paths;
        for (const CString& source : sources)
            paths.push_back(m_scratch.Path(source));
        return MakeTransferTasks(paths, m_scratch.Path(destination));
    }

    const VyrTests::ScratchFolder m_scratch;
};

} // namespace

TEST_F(TransferTasks, DestinationIsTheNewPathOfOneFolder)
{
    m_scratch.MakeFolder(u"a");
    const auto tasks = Make({u"a"}, u"b");
    ASSERT_EQ(tasks.size(), 1u);
    EXPECT_EQ(tasks[0].source, m_scratch.Path(u"a"));
    EXPECT_EQ(tasks[0].target, m_scratch.Path(u"b"));
}

TEST_F(TransferTasks, FoldersGoIntoAnExistingFolder)
{
    m_scratch.MakeFolder(u"a");
    m_scratch.MakeFolder(u"x/b");
    m_scratch.MakeFolder(u"to");
    const auto tasks = Make({u"a", u"x/b"}, u"to");
    ASSERT_EQ(tasks.size(), 2u);
    EXPECT_EQ(tasks[0].target, m_scratch.Path(u"to/a"));
    EXPECT_EQ(tasks[1].target, m_scratch.Path(u"to/b"));
    EXPECT_EQ(Make({u"a"}, u"to")[0].target, m_scratch.Path(u"to/a"));
    EXPECT_EQ(MakeTransferTasks({m_scratch.Path(u"x/./b/") + u"/"}, m_scratch.Path(u"to/"))[0].target,
              m_scratch.Path(u"to/b"));
    EXPECT_EQ(Make({u"x/b/../../a"}, u"to")[0].target, m_scratch.Path(u"to/a"));
}

TEST_F(TransferTasks, FilesAreRefused)
{
    m_scratch.WriteFile(u"file");
    m_scratch.MakeFolder(u"to");
    EXPECT_THAT(Refusal({u"file"}, u"to"), HasSubstr("is not a folder"));
    EXPECT_THAT(Refusal({u"missing"}, u"to"), HasSubstr("cannot be found"));
}

TEST_F(TransferTasks, ALinkIsNoFolder)
{
    m_scratch.MakeFolder(u"to");
    if (const auto reason = VyrTests::MakeLink(m_scratch.MakeFolder(u"a"), m_scratch.Path(u"link")); !reason.empty())
        GTEST_SKIP() << reason;
    EXPECT_THAT(Refusal({u"link"}, u"to"), HasSubstr("is a link"));
    EXPECT_THAT(Refusal({u"link/"}, u"to"), HasSubstr("is a link"));
    EXPECT_EQ(Refusal({u"a"}, u"link2"), "");
}

TEST_F(TransferTasks, NoFolderIsNamedTwice)
{
    m_scratch.MakeFolder(u"a");
    m_scratch.MakeFolder(u"to");
    EXPECT_THAT(Refusal({u"a", u"a"}, u"to"), HasSubstr("is named twice"));
    EXPECT_THAT(Refusal({u"a", u"to/../a"}, u"to"), HasSubstr("is named twice"));
}

TEST_F(TransferTasks, NoFolderIsInsideAnother)
{
    m_scratch.MakeFolder(u"a/b/c");
    m_scratch.MakeFolder(u"to");
    EXPECT_THAT(Refusal({u"a", u"a/b/c"}, u"to"), HasSubstr("is inside"));
    EXPECT_THAT(Refusal({u"a/b", u"a"}, u"to"), HasSubstr("is inside"));
    m_scratch.MakeFolder(u"ab");
    EXPECT_EQ(Refusal({u"a", u"ab"}, u"to"), "");
}

TEST_F(TransferTasks, TheDestinationIsInNoSource)
{
    m_scratch.MakeFolder(u"a/b/c");
    EXPECT_THAT(Refusal({u"a"}, u"a"), HasSubstr("is inside"));
    EXPECT_THAT(Refusal({u"a"}, u"a/b/c"), HasSubstr("is inside"));
    EXPECT_THAT(Refusal({u"a"}, u"a/new"), HasSubstr("is inside"));
    EXPECT_THAT(Refusal({u"a"}, u"a/b/../b/new"), HasSubstr("is inside"));
    EXPECT_EQ(Refusal({u"a"}, u"a new"), "");
}

TEST_F(TransferTasks, TheDestinationIsInNoSourceThroughALink)
{
    m_scratch.MakeFolder(u"elsewhere");
    if (const auto reason = VyrTests::MakeLink(m_scratch.MakeFolder(u"a/b"), m_scratch.Path(u"elsewhere/link"));
        !reason.empty())
        GTEST_SKIP() << reason;
    EXPECT_THAT(Refusal({u"a"}, u"elsewhere/link"), HasSubstr("is inside"));
    EXPECT_THAT(Refusal({u"a"}, u"elsewhere/link/new"), HasSubstr("is inside"));
}

TEST_F(TransferTasks, TheDestinationIsNeitherTheSourceNorAFolderThatContainsIt)
{
    m_scratch.MakeFolder(u"a/b/a");
    EXPECT_THAT(Refusal({u"a"}, u""), HasSubstr("itself"));
    EXPECT_THAT(Refusal({u"a/b/a"}, u""), HasSubstr("would become one"));
    EXPECT_EQ(Refusal({u"a/b"}, u""), "");
}

TEST_F(TransferTasks, TheDestinationIsAFolderOrCanBeCreated)
{
    m_scratch.MakeFolder(u"a");
    m_scratch.MakeFolder(u"b");
    m_scratch.WriteFile(u"file");
    EXPECT_THAT(Refusal({u"a"}, u"file"), HasSubstr("is not a folder"));
    EXPECT_THAT(Refusal({u"a"}, u"file/new"), HasSubstr("is not there"));
    EXPECT_THAT(Refusal({u"a"}, u"missing/new"), HasSubstr("is not there"));
    EXPECT_THAT(Refusal({u"a", u"b"}, u"new"), HasSubstr("several folders"));
    EXPECT_THROW(static_cast<void>(MakeTransferTasks({m_scratch.Path(u"a")}, CString())), UsageError);
    EXPECT_FALSE(m_scratch.Has(u"new"));
}

TEST_F(TransferTasks, NewPathsAreDifferent)
{
    m_scratch.MakeFolder(u"x/a");
    m_scratch.MakeFolder(u"y/a");
    m_scratch.MakeFolder(u"to");
    EXPECT_THAT(Refusal({u"x/a", u"y/a"}, u"to"), HasSubstr("two of the folders"));
}

TEST_F(TransferTasks, ARootHasNoNameToKeep)
{
    m_scratch.MakeFolder(u"to");
    // It contains the destination, too, and this is checked first.
    const char16_t separator = VyrPlatform::FileSystem::Separator();
    const CString root = m_scratch.Path().Left(m_scratch.Path().Find(std::u16string_view(&separator, 1)) + 1);
    EXPECT_THROW(static_cast<void>(MakeTransferTasks({root}, m_scratch.Path(u"to"))), UsageError);
}
