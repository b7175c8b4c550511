// Conflicts of a tree at its destination.
#include <VyrHost/foldercopy/TargetCheck.h>

#include <VyrHostPlatform/NameFolding.h>
#include <tests/support/Links.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <set>

using namespace VyrHost::FolderCopy;

namespace {

class TargetConflicts : public testing::Test
{
protected:
    [[nodiscard]] TargetCheck Check() const
    {
        return CheckTarget(TakeSnapshot(m_scratch.Path(u"from")), m_scratch.Path(u"to"), Trial::Allowed);
    }

    /// The paths in conflict, with slashes.
    [[nodiscard]] std::set<CString> Conflicts() const
    {
        std::set<CString> paths;
        for (const TransferProblem& conflict : Check().conflicts) {
            EXPECT_EQ(conflict.fault, TransferFault::TargetExists);
            CString path = conflict.path;
            path.Replace(u"\\", u"/");
            paths.insert(path);
        }
        return paths;
    }

    const VyrTests::ScratchFolder m_scratch;
};

using Paths = std::set<CString>;

} // namespace

TEST_F(TargetConflicts, AreNoneWhereNothingExists)
{
    m_scratch.WriteFile(u"from/a/b/c");
    m_scratch.MakeFolder(u"from/d");
    const TargetCheck check = Check();
    EXPECT_TRUE(check.conflicts.empty());
    EXPECT_EQ(check.newFolders, 4u);
}

TEST_F(TargetConflicts, AreNoneWhereFoldersHaveOtherEntries)
{
    m_scratch.WriteFile(u"from/a/b/c");
    m_scratch.WriteFile(u"from/d/e");
    m_scratch.WriteFile(u"to/a/b/other");
    m_scratch.WriteFile(u"to/c");
    const TargetCheck check = Check();
    EXPECT_TRUE(check.conflicts.empty());
    EXPECT_EQ(check.newFolders, 1u);
}

TEST_F(TargetConflicts, AreFilesOfTheSameName)
{
    m_scratch.WriteFile(u"from/a/b", "1");
    m_scratch.WriteFile(u"from/c", "1");
    m_scratch.WriteFile(u"from/d", "1");
    m_scratch.WriteFile(u"to/a/b", "1");
    m_scratch.WriteFile(u"to/c", "2");
    EXPECT_EQ(Conflicts(), (Paths{u"a/b", u"c"}));
}

TEST_F(TargetConflicts, AreAFileAndAFolderEitherWay)
{
    m_scratch.WriteFile(u"from/a/inner");
    m_scratch.WriteFile(u"from/b");
    m_scratch.WriteFile(u"to/a");
    m_scratch.WriteFile(u"to/b/inner");
    EXPECT_EQ(Conflicts(), (Paths{u"a", u"b"}));
}

TEST_F(TargetConflicts, IsAFileForTheRoot)
{
    m_scratch.WriteFile(u"from/a");
    m_scratch.WriteFile(u"to");
    EXPECT_EQ(Conflicts(), Paths{u""});
    EXPECT_EQ(Check().newFolders, 0u);
}

TEST_F(TargetConflicts, AreNamesThatTheFolderTakesForTheSame)
{
    m_scratch.WriteFile(u"from/é.txt");
    m_scratch.WriteFile(u"to/É.TXT");
    const bool isOne = VyrHostPlatform::GetNameFolding(m_scratch.Path(u"to")) != VyrHostPlatform::NameFolding::None;
    EXPECT_EQ(Conflicts(), isOne ? Paths{u"é.txt"} : Paths{});
}

TEST_F(TargetConflicts, IsALinkEvenToAFolder)
{
    m_scratch.WriteFile(u"from/a/inner");
    m_scratch.MakeFolder(u"to");
    if (const auto reason = VyrTests::MakeLink(m_scratch.MakeFolder(u"elsewhere"), m_scratch.Path(u"to/a"));
        !reason.empty())
        GTEST_SKIP() << reason;
    ASSERT_EQ(VyrTests::MakeLink(m_scratch.Path(u"missing"), m_scratch.Path(u"to/b")), "");
    m_scratch.WriteFile(u"from/b");
    EXPECT_EQ(Conflicts(), (Paths{u"a", u"b"}));
}
