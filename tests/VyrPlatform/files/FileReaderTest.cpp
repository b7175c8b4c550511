// Reading any bytes of a file, while others use it.
#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/files/FileSystem.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <limits>
#include <string>

using VyrPlatform::FileReader;
using VyrTests::ScratchFolder;

namespace {

std::string ReadAt(const FileReader& reader, std::uint64_t offset, std::size_t count)
{
    std::string bytes(count, '?');
    bytes.resize(reader.ReadAt(offset, std::as_writable_bytes(std::span(bytes))));
    return bytes;
}

} // namespace

TEST(FileReader, ReadsAtAnyPlace)
{
    const ScratchFolder scratch;
    const FileReader reader(scratch.WriteFile(u"a", "0123456789"));
    ASSERT_TRUE(reader.IsOpen());
    EXPECT_EQ(reader.Error(), 0U);
    EXPECT_EQ(reader.Size(), 10U);
    EXPECT_EQ(ReadAt(reader, 0, 10), "0123456789");
    EXPECT_EQ(ReadAt(reader, 7, 2), "78");
    EXPECT_EQ(ReadAt(reader, 2, 3), "234");
}

TEST(FileReader, ReadsNoFurtherThanTheEnd)
{
    const ScratchFolder scratch;
    const FileReader reader(scratch.WriteFile(u"a", "0123456789"));
    EXPECT_EQ(ReadAt(reader, 8, 100), "89");
    EXPECT_EQ(ReadAt(reader, 10, 1), "");
    EXPECT_EQ(ReadAt(reader, 1'000'000, 1), "");
    EXPECT_EQ(ReadAt(reader, std::numeric_limits<std::uint64_t>::max(), 1), "");
    EXPECT_EQ(ReadAt(reader, 0, 0), "");
}

TEST(FileReader, OpensAnEmptyFile)
{
    const ScratchFolder scratch;
    const FileReader reader(scratch.WriteFile(u"empty"));
    EXPECT_TRUE(reader.IsOpen());
    EXPECT_EQ(reader.Size(), 0U);
    EXPECT_EQ(ReadAt(reader, 0, 1), "");
}

TEST(FileReader, ReadsBeyondFourGigabytes)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"large");
    constexpr std::uint64_t offset = 5'000'000'000;
    {
        std::ofstream stream(VyrTests::ToStdPath(path), std::ios::binary);
        stream.seekp(static_cast<std::streamoff>(offset));
        stream << "far away";
    }
    const FileReader reader(path);
    EXPECT_EQ(reader.Size(), offset + 8);
    EXPECT_EQ(ReadAt(reader, offset + 4, 100), "away");
    EXPECT_EQ(ReadAt(reader, offset - 2, 3), std::string("\0\0f", 3));
}

TEST(FileReader, ReadsMoreThanOneCallReturns)
{
    const ScratchFolder scratch;
    std::string content(3'000'000, '\0');
    for (std::size_t index = 0; index < content.size(); ++index)
        content[index] = static_cast<char>(index * 31 >> 3);
    const FileReader reader(scratch.WriteFile(u"a", content));
    EXPECT_TRUE(ReadAt(reader, 0, content.size() + 1) == content);
}

TEST(FileReader, OpensOnlyFiles)
{
    const ScratchFolder scratch;
    constexpr char16_t withNul[] = u"a\0b";
    scratch.WriteFile(u"a", "content");
    for (const CString& path : {scratch.Path(u"missing"), scratch.MakeFolder(u"folder"), scratch.Path(u"a/below"),
                                CString(), scratch.Path(u"") + CString(std::u16string_view(withNul, 3))}) {
        const FileReader reader(path);
        EXPECT_FALSE(reader.IsOpen());
        EXPECT_NE(reader.Error(), 0U);
        EXPECT_EQ(reader.Size(), 0U);
        EXPECT_EQ(ReadAt(reader, 0, 1), "");
    }
}

TEST(FileReader, ReadsTheBeginningWhileItOpens)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    std::array<std::byte, 4> four{};
    const FileReader part(path, four);
    EXPECT_TRUE(part.IsOpen());
    EXPECT_EQ(part.Size(), 7U);
    EXPECT_EQ(part.BeginningSize(), 4U);
    EXPECT_EQ(std::memcmp(four.data(), "cont", 4), 0);
    EXPECT_EQ(ReadAt(part, 4, 3), "ent");

    std::array<std::byte, 100> hundred{};
    const FileReader all(path, hundred);
    EXPECT_EQ(all.BeginningSize(), 7U);
    EXPECT_EQ(std::memcmp(hundred.data(), "content", 8), 0);

    const FileReader empty(scratch.WriteFile(u"empty"), hundred);
    EXPECT_TRUE(empty.IsOpen());
    EXPECT_EQ(empty.Size(), 0U);
    EXPECT_EQ(empty.BeginningSize(), 0U);
}

TEST(FileReader, ReadsTheBeginningOnlyOfFiles)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"full/file", "content");
    std::array<std::byte, 100> beginning{};
    for (const CString& path :
         {scratch.Path(u"missing"), scratch.MakeFolder(u"folder"), scratch.Path(u"full"), CString()}) {
        const FileReader reader(path, beginning);
        EXPECT_FALSE(reader.IsOpen());
        EXPECT_NE(reader.Error(), 0U);
        EXPECT_EQ(reader.Size(), 0U);
        EXPECT_EQ(reader.BeginningSize(), 0U);
    }
}

TEST(FileReader, FileMayBeRenamedWhileItIsRead)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    const FileReader reader(path);
    std::filesystem::rename(VyrTests::ToStdPath(path), VyrTests::ToStdPath(scratch.Path(u"b")));
    EXPECT_EQ(ReadAt(reader, 0, 7), "content");
    EXPECT_TRUE(scratch.Has(u"b"));
}

TEST(FileReader, FileMayBeDeletedWhileItIsRead)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    const FileReader reader(path);
    EXPECT_TRUE(std::filesystem::remove(VyrTests::ToStdPath(path)));
    EXPECT_EQ(ReadAt(reader, 0, 7), "content");
}

TEST(FileReader, FileMayGrowWhileItIsRead)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    const FileReader reader(path);
    std::ofstream(VyrTests::ToStdPath(path), std::ios::binary | std::ios::app) << " and more";
    EXPECT_EQ(reader.Size(), 7U);
    EXPECT_EQ(ReadAt(reader, 0, 100), "content and more");
}

TEST(FileReader, OpensALongPath)
{
    const ScratchFolder scratch;
    CString folder = scratch.Path();
    for (int level = 0; level < 3; ++level) {
        folder = folder + CString(VyrPlatform::FileSystem::Separator(), 1) + CString(u'd', 120);
        ASSERT_EQ(VyrPlatform::FileSystem::CreateFolder(folder), 0U);
    }
    const CString path = folder + CString(VyrPlatform::FileSystem::Separator(), 1) + u"a";
    std::filesystem::rename(VyrTests::ToStdPath(scratch.WriteFile(u"a", "deep")), VyrTests::ToStdPath(path));
    EXPECT_EQ(ReadAt(FileReader(path), 0, 4), "deep");
}
