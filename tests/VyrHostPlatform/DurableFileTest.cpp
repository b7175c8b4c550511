// DurableFile: writing that is on the disk, and the lock between programs.
#include <tests/support/ScratchFolder.h>

#include <VyrHostPlatform/DurableFile.h>

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace {

using namespace VyrHostPlatform;
using VyrTests::ScratchFolder;

std::uint32_t WriteNew(const CString& path, std::string_view content)
{
    return DurableFile::WriteNew(path, [content](const DurableFile::TakePiece& take) { take(content); });
}

TEST(DurableFile, WritesAndAppends)
{
    const ScratchFolder scratch;
    const CString path = scratch.Path(u"file");
    const std::string large(3'000'000, 'x');
    EXPECT_EQ(WriteNew(path, large), 0u);
    EXPECT_EQ(DurableFile::Append(path, "more"), 0u);
    EXPECT_EQ(DurableFile::Append(path, ""), 0u);
    EXPECT_EQ(DurableFile::FlushFolder(scratch.Path()), 0u);
    EXPECT_EQ(scratch.ReadFile(u"file"), large + "more");
}

TEST(DurableFile, WritesPiecesOneBehindAnother)
{
    const ScratchFolder scratch;
    const auto content = [](const DurableFile::TakePiece& take) {
        for (const char* piece : {"one, ", "", "two, ", "three"})
            take(piece);
    };
    EXPECT_EQ(DurableFile::WriteNew(scratch.Path(u"file"), content), 0u);
    EXPECT_EQ(scratch.ReadFile(u"file"), "one, two, three");
    EXPECT_EQ(DurableFile::WriteNew(scratch.Path(u"none"), [](const DurableFile::TakePiece&) {}), 0u);
    EXPECT_EQ(scratch.ReadFile(u"none"), "");
}

TEST(DurableFile, ClosesTheFileWhoseContentThrows)
{
    const ScratchFolder scratch;
    const CString path = scratch.Path(u"file");
    const auto content = [](const DurableFile::TakePiece& take) {
        take("part");
        throw std::runtime_error("no more");
    };
    EXPECT_THROW(static_cast<void>(DurableFile::WriteNew(path, content)), std::runtime_error);
    EXPECT_EQ(scratch.ReadFile(u"file"), "part");
    // Windows removes no file that is open.
    EXPECT_EQ(DurableFile::Remove(path), 0u);
}

TEST(DurableFile, DoesNotReplaceAnExistingFile)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"file", "first");
    EXPECT_NE(WriteNew(path, "second"), 0u);
    EXPECT_EQ(scratch.ReadFile(u"file"), "first");
}

TEST(DurableFile, AppendsOnlyToAnExistingFile)
{
    const ScratchFolder scratch;
    EXPECT_NE(DurableFile::Append(scratch.Path(u"file"), "x"), 0u);
    EXPECT_FALSE(scratch.Has(u"file"));
}

TEST(DurableFile, Removes)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"file");
    EXPECT_EQ(DurableFile::Remove(path), 0u);
    EXPECT_FALSE(scratch.Has(u"file"));
    EXPECT_NE(DurableFile::Remove(path), 0u);
}

TEST(DurableFile, FailsInAMissingFolder)
{
    const ScratchFolder scratch;
    EXPECT_NE(WriteNew(scratch.Path(u"no/file"), "x"), 0u);
}

TEST(FileLock, IsHeldByOneAtATime)
{
    const ScratchFolder scratch;
    const CString path = scratch.Path(u"lock");
    {
        const FileLock first(path);
        EXPECT_TRUE(first.IsHeld());
        EXPECT_EQ(first.Error(), 0u);
        const FileLock second(path);
        EXPECT_FALSE(second.IsHeld());
        EXPECT_TRUE(second.IsTaken());
        EXPECT_NE(second.Error(), 0u);
    }
    EXPECT_TRUE(FileLock(path).IsHeld());
}

TEST(FileLock, GivesTheReasonWhenItCannotBeTaken)
{
    const ScratchFolder scratch;
    const FileLock lock(scratch.Path(u"no/lock"));
    EXPECT_FALSE(lock.IsHeld());
    EXPECT_FALSE(lock.IsTaken());
    EXPECT_NE(lock.Error(), 0u);
}

} // namespace
