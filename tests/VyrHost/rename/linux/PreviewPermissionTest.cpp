// Renames that the system would refuse are refused in the preview.
#include <VyrHost/rename/Preview.h>

#include <VyrHost/collect/CollectEntries.h>
#include <VyrHost/rename/NameSources.h>
#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/text/Errors.h>

#include <gtest/gtest.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>
#include <tests/support/linux/Unprivileged.h>

#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>

using namespace VyrHost::Rename;
using VyrTests::ScratchFolder;
using VyrTests::ToStdPath;
using VyrTests::Unprivileged;

namespace {

void SetMode(const CString& path, mode_t mode)
{
    ASSERT_EQ(chmod(ToStdPath(path).c_str(), mode), 0);
}

Preview PreviewOf(const std::vector<CString>& paths, const Rules& rules)
{
    VyrHost::Collect::SourceSettings sources;
    sources.paths = paths;
    VyrHost::Collect::CollectedEntries collected = VyrHost::Collect::CollectEntries(sources);
    RuleNames names(rules, Counting::WholeList);
    return MakePreview(collected.list, Groups::OfOne(collected.list), names, {});
}

} // namespace

TEST(PreviewPermission, EntriesOfAFolderWithoutWritePermissionAreRefusedWithTheCause)
{
    const ScratchFolder scratch;
    const std::vector<CString> paths = {scratch.WriteFile(u"locked/a"), scratch.WriteFile(u"locked/b"),
                                        scratch.WriteFile(u"open/c")};
    SetMode(scratch.Path(), 0755);
    SetMode(scratch.Path(u"locked"), 0555);
    SetMode(scratch.Path(u"open"), 0777);
    const Unprivileged user;
    if (!user.IsDone())
        GTEST_SKIP() << "only root can take the rights of another user";
    const Preview preview = PreviewOf(paths, PrefixRules(u"x"));
    for (const std::uint32_t entry : {0U, 1U}) {
        EXPECT_EQ(preview.decisions[entry].reason, Reason::FolderLocked);
        EXPECT_EQ(preview.causes.at(entry), VyrHost::Text::ErrorText(EACCES));
    }
    EXPECT_TRUE(preview.decisions[2].IsRename());
    EXPECT_EQ(preview.plan.entries.size(), 1U);
}

TEST(PreviewPermission, OnlyOwnEntriesOfAStickyFolderCanBeRenamed)
{
    const ScratchFolder scratch;
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can take the rights of another user";
    scratch.MakeFolder(u"sticky");
    SetMode(scratch.Path(), 0755);
    SetMode(scratch.Path(u"sticky"), 01777);
    const CString ofOther = scratch.WriteFile(u"sticky/other");
    const Unprivileged user;
    ASSERT_TRUE(user.IsDone());
    const CString own = scratch.WriteFile(u"sticky/own");
    const Preview preview = PreviewOf({ofOther, own}, PrefixRules(u"x"));
    EXPECT_EQ(preview.decisions[0].reason, Reason::NotOwnEntry);
    EXPECT_TRUE(preview.decisions[1].IsRename());
}
