// Files open in the same way with and without it.
#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/files/WorkingFolder.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>

using VyrPlatform::FileReader;
using VyrPlatform::WorkingFolder;
using VyrPlatform::FileSystem::WithSeparator;
using VyrTests::ScratchFolder;

namespace {

std::string Content(const CString& path)
{
    const FileReader reader(path);
    std::string content(reader.Size(), '\0');
    content.resize(reader.ReadAt(0, std::as_writable_bytes(std::span(content))));
    return content;
}

} // namespace

TEST(WorkingFolder, OpensFilesInItBelowItAndElsewhere)
{
    const ScratchFolder scratch;
    const CString inside = scratch.WriteFile(u"folder/é", "inside");
    const CString below = scratch.WriteFile(u"folder/below/a", "below");
    const CString beside = scratch.WriteFile(u"folder2/a", "beside");
    const CString above = scratch.WriteFile(u"a", "above");
    WorkingFolder working;
    working.Enter(WithSeparator(scratch.Path(u"folder")));
    for (int pass = 0; pass < 2; ++pass) {
        EXPECT_EQ(Content(inside), "inside");
        EXPECT_EQ(Content(below), "below");
        EXPECT_EQ(Content(beside), "beside");
        EXPECT_EQ(Content(above), "above");
        EXPECT_FALSE(FileReader(scratch.Path(u"folder/missing")).IsOpen());
        EXPECT_FALSE(FileReader(WithSeparator(scratch.Path(u"folder"))).IsOpen());
    }
}

TEST(WorkingFolder, IsTheOneEnteredLast)
{
    const ScratchFolder scratch;
    const CString first = scratch.WriteFile(u"first/a", "one");
    const CString second = scratch.WriteFile(u"second/a", "two");
    WorkingFolder working;
    for (int pass = 0; pass < 2; ++pass) {
        working.Enter(WithSeparator(scratch.Path(u"first")));
        EXPECT_EQ(Content(first), "one");
        EXPECT_EQ(Content(second), "two");
        working.Enter(WithSeparator(scratch.Path(u"second")));
        EXPECT_EQ(Content(first), "one");
        EXPECT_EQ(Content(second), "two");
    }
}

TEST(WorkingFolder, ThatIsMissingChangesNothing)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a", "content");
    WorkingFolder working;
    working.Enter(WithSeparator(scratch.Path(u"missing")));
    EXPECT_FALSE(FileReader(scratch.Path(u"missing/a")).IsOpen());
    EXPECT_EQ(Content(file), "content");
    // Made later, it is found by its path.
    EXPECT_EQ(Content(scratch.WriteFile(u"missing/a", "late")), "late");
}

TEST(WorkingFolder, IsLeftAtItsEnd)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"folder/a", "old");
    {
        WorkingFolder working;
        working.Enter(WithSeparator(scratch.Path(u"folder")));
        EXPECT_EQ(Content(file), "old");
    }
    std::filesystem::rename(VyrTests::ToStdPath(scratch.Path(u"folder")), VyrTests::ToStdPath(scratch.Path(u"moved")));
    EXPECT_EQ(Content(scratch.WriteFile(u"folder/a", "new")), "new");
}
