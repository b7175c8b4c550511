// Opening files in every way, and reading and writing at a moving position.
#include <VyrPlatform/files/CFileException.h>
#include <VyrPlatform/files/FileStream.h>

#include <tests/support/Describe.h>
#include <tests/support/FileState.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <limits>
#include <string>

using VyrPlatform::FileStream;
using VyrTests::ScratchFolder;
using Access = FileStream::Access;
using Creation = FileStream::Creation;

namespace {

constexpr FileStream::Sharing shareAll{};

std::string Read(FileStream& stream, std::size_t count)
{
    std::string bytes(count, '?');
    std::size_t taken = 0;
    EXPECT_EQ(stream.Read(std::as_writable_bytes(std::span(bytes)), taken), 0U);
    bytes.resize(taken);
    return bytes;
}

std::uint32_t Write(FileStream& stream, const std::string& bytes)
{
    return stream.Write(std::as_bytes(std::span(bytes)));
}

std::uint64_t Seek(FileStream& stream, std::int64_t offset, FileStream::Origin origin)
{
    std::uint64_t place = 0;
    EXPECT_EQ(stream.Seek(offset, origin, place), 0U);
    return place;
}

int CauseOf(std::uint32_t error)
{
    return CFileException::OsErrorToException(static_cast<std::int32_t>(error));
}

} // namespace

TEST(FileStream, ReadsFromItsPlace)
{
    const ScratchFolder scratch;
    FileStream stream;
    EXPECT_FALSE(stream.IsOpen());
    ASSERT_EQ(stream.Open(scratch.WriteFile(u"a", "content"), Access::Read, Creation::Open, shareAll), 0U);
    EXPECT_TRUE(stream.IsOpen());
    EXPECT_EQ(Read(stream, 3), "con");
    EXPECT_EQ(Read(stream, 100), "tent");
    EXPECT_EQ(Read(stream, 1), "");
    EXPECT_EQ(Seek(stream, -3, FileStream::Origin::End), 4U);
    EXPECT_EQ(Read(stream, 1), "e");
    EXPECT_EQ(Seek(stream, -2, FileStream::Origin::Current), 3U);
    EXPECT_EQ(Read(stream, 2), "te");
    EXPECT_EQ(Seek(stream, 1, FileStream::Origin::Begin), 1U);
    EXPECT_EQ(Read(stream, 2), "on");
    EXPECT_EQ(stream.Close(), 0U);
    EXPECT_FALSE(stream.IsOpen());
    EXPECT_EQ(stream.Close(), 0U);
}

TEST(FileStream, WritesAtItsPlace)
{
    const ScratchFolder scratch;
    FileStream stream;
    const CString path = scratch.WriteFile(u"a", "content");
    ASSERT_EQ(stream.Open(path, Access::ReadWrite, Creation::Open, shareAll), 0U);
    EXPECT_EQ(Write(stream, "CON"), 0U);
    EXPECT_EQ(Read(stream, 2), "te");
    EXPECT_EQ(Seek(stream, 9, FileStream::Origin::Begin), 9U);
    EXPECT_EQ(Write(stream, "end"), 0U);
    EXPECT_EQ(stream.Close(), 0U);
    EXPECT_EQ(scratch.ReadFile(u"a"), std::string("CONtent\0\0end", 12));
}

TEST(FileStream, CreationDecidesOnExistingAndMissingFiles)
{
    const ScratchFolder scratch;
    const CString path = scratch.Path(u"a");
    FileStream stream;
    EXPECT_EQ(CauseOf(stream.Open(path, Access::Write, Creation::Open, shareAll)), CFileException::fileNotFound);
    EXPECT_FALSE(scratch.Has(u"a"));
    ASSERT_EQ(stream.Open(path, Access::Write, Creation::OpenOrCreate, shareAll), 0U);
    EXPECT_EQ(Write(stream, "abc"), 0U);
    ASSERT_EQ(stream.Open(path, Access::Write, Creation::OpenOrCreate, shareAll), 0U);
    EXPECT_EQ(Write(stream, "X"), 0U);
    EXPECT_EQ(stream.Close(), 0U);
    EXPECT_EQ(scratch.ReadFile(u"a"), "Xbc");
    ASSERT_EQ(stream.Open(path, Access::Read, Creation::CreateEmpty, shareAll), 0U);
    EXPECT_EQ(Read(stream, 9), "Xbc") << "what is only read is not emptied";
    ASSERT_EQ(stream.Open(path, Access::ReadWrite, Creation::CreateEmpty, shareAll), 0U);
    EXPECT_EQ(Read(stream, 9), "");
    EXPECT_EQ(stream.Close(), 0U);
    EXPECT_EQ(scratch.ReadFile(u"a"), "");
}

TEST(FileStream, ReadOnlyFileIsNotOpenedForWriting)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    VyrTests::SetReadOnly(path, true);
    FileStream stream;
    for (const auto access : {Access::Write, Access::ReadWrite})
        for (const auto creation : {Creation::Open, Creation::OpenOrCreate, Creation::CreateEmpty}) {
            EXPECT_EQ(CauseOf(stream.Open(path, access, creation, shareAll)), CFileException::accessDenied);
            EXPECT_FALSE(stream.IsOpen());
        }
    EXPECT_EQ(scratch.ReadFile(u"a"), "content");
    EXPECT_EQ(stream.Open(path, Access::Read, Creation::Open, shareAll), 0U);
    EXPECT_EQ(Read(stream, 100), "content");
}

TEST(FileStream, OnlyFilesOpen)
{
    const ScratchFolder scratch;
    constexpr char16_t withNul[] = u"a\0b";
    scratch.WriteFile(u"a", "content");
    FileStream stream;
    for (const CString& path : {scratch.Path(u"missing/b"), scratch.MakeFolder(u"folder"), scratch.Path(u"a/below"),
                                CString(), scratch.Path(u"") + CString(std::u16string_view(withNul, 3))})
        for (const auto access : {Access::Read, Access::Write, Access::ReadWrite})
            for (const auto creation : {Creation::Open, Creation::OpenOrCreate, Creation::CreateEmpty}) {
                EXPECT_NE(stream.Open(path, access, creation, shareAll), 0U);
                EXPECT_FALSE(stream.IsOpen());
            }
    EXPECT_EQ(scratch.ReadFile(u"a"), "content");
}

TEST(FileStream, FailuresCarryTheSystemsCode)
{
    const ScratchFolder scratch;
    FileStream stream;
    std::uint64_t place = 7;
    std::size_t count = 7;
    std::byte byte{};
    ASSERT_EQ(stream.Open(scratch.WriteFile(u"a", "content"), Access::Read, Creation::Open, shareAll), 0U);
    EXPECT_EQ(CauseOf(stream.Seek(-1, FileStream::Origin::Begin, place)), CFileException::badSeek);
    EXPECT_EQ(CauseOf(stream.Seek(std::numeric_limits<std::int64_t>::min(), FileStream::Origin::End, place)),
              CFileException::badSeek);
    EXPECT_EQ(place, 7U);
    EXPECT_NE(Write(stream, "a"), 0U) << "opened for reading";
    ASSERT_EQ(stream.Open(scratch.Path(u"a"), Access::Write, Creation::Open, shareAll), 0U);
    EXPECT_NE(stream.Read({&byte, 1}, count), 0U) << "opened for writing";
    EXPECT_EQ(count, 0U);
    EXPECT_EQ(stream.Close(), 0U);
    EXPECT_NE(Write(stream, "a"), 0U) << "not open";
}

TEST(FileStream, ReadsAndWritesBeyondFourGigabytes)
{
    const ScratchFolder scratch;
    FileStream stream;
    constexpr std::int64_t far = 5'000'000'000;
    ASSERT_EQ(stream.Open(scratch.Path(u"large"), Access::ReadWrite, Creation::CreateEmpty, shareAll), 0U);
    EXPECT_EQ(Seek(stream, far, FileStream::Origin::Begin), std::uint64_t{far});
    EXPECT_EQ(Write(stream, "far"), 0U);
    EXPECT_EQ(Seek(stream, 0, FileStream::Origin::Current), std::uint64_t{far} + 3);
    EXPECT_EQ(Seek(stream, -3, FileStream::Origin::End), std::uint64_t{far});
    EXPECT_EQ(Read(stream, 9), "far");
}
