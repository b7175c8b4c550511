// The members of CFile and CStdioFile that text files use.
#include <VyrPlatform/files/CInvalidArgException.h>
#include <VyrPlatform/files/CStdioFile.h>

#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <string>

using VyrTests::ScratchFolder;

namespace {

std::string Read(CFile& file, std::uint32_t count)
{
    std::string bytes(count, '?');
    bytes.resize(file.Read(bytes.data(), count));
    return bytes;
}

void Write(CFile& file, const std::string& bytes)
{
    file.Write(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
}

/// The bytes of `text` in UTF-16, little-endian.
std::string Utf16(std::u16string_view text)
{
    std::string bytes;
    for (const char16_t unit : text) {
        bytes += static_cast<char>(unit & 0xFF);
        bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
}

/// The cause of the file exception that `work` throws; -1 when it throws none.
template <class Work>
int CauseOf(Work work)
{
    try {
        work();
    } catch (const CFileException& exception) {
        return exception.m_cause;
    }
    return -1;
}

/// Reaches the lines of a file as derived classes do.
class LineFile : public CStdioFile
{
public:
    using CStdioFile::ReadLine;
};

template <class File>
class AnyFile : public testing::Test
{};

using FileTypes = testing::Types<CFile, CStdioFile>;

} // namespace

TYPED_TEST_SUITE(AnyFile, FileTypes);

TYPED_TEST(AnyFile, FlagsHaveTheirValues)
{
    EXPECT_EQ(TypeParam::modeRead, 0U);
    EXPECT_EQ(TypeParam::modeWrite, 1U);
    EXPECT_EQ(TypeParam::modeReadWrite, 2U);
    EXPECT_EQ(TypeParam::shareCompat, 0U);
    EXPECT_EQ(TypeParam::shareExclusive, 0x10U);
    EXPECT_EQ(TypeParam::shareDenyWrite, 0x20U);
    EXPECT_EQ(TypeParam::shareDenyRead, 0x30U);
    EXPECT_EQ(TypeParam::shareDenyNone, 0x40U);
    EXPECT_EQ(TypeParam::modeCreate, 0x1000U);
    EXPECT_EQ(TypeParam::modeNoTruncate, 0x2000U);
    EXPECT_EQ(TypeParam::typeText, 0x4000U);
    EXPECT_EQ(TypeParam::typeBinary, 0x8000U);
}

TYPED_TEST(AnyFile, WritesSeeksAndReads)
{
    const ScratchFolder scratch;
    const CString path = scratch.Path(u"a");
    TypeParam file;
    ASSERT_TRUE(file.Open(path.GetString(), CFile::modeCreate | CFile::modeReadWrite));
    EXPECT_EQ(file.GetFilePath(), path);
    EXPECT_EQ(file.GetPosition(), 0U);
    Write(file, "content\r\n");
    EXPECT_EQ(file.GetPosition(), 9U);
    EXPECT_EQ(file.Seek(2, CFile::begin), 2U);
    EXPECT_EQ(Read(file, 3), "nte");
    EXPECT_EQ(file.GetPosition(), 5U);
    EXPECT_EQ(file.Seek(-4, CFile::current), 1U);
    Write(file, "ON");
    EXPECT_EQ(Read(file, 100), "tent\r\n");
    EXPECT_EQ(Read(file, 100), "");
    EXPECT_EQ(file.Seek(-1, CFile::end), 8U);
    EXPECT_EQ(Read(file, 1), "\n");
    file.Close();
    EXPECT_EQ(scratch.ReadFile(u"a"), "cONtent\r\n");
    file.Close();
}

TYPED_TEST(AnyFile, OpenSaysWhyItFails)
{
    const ScratchFolder scratch;
    TypeParam file;
    CFileException error;
    EXPECT_EQ(file.Open(scratch.Path(u"missing").GetString(), CFile::modeRead, &error), 0);
    EXPECT_EQ(error.m_cause, CFileException::fileNotFound);
    EXPECT_EQ(error.m_strFileName, scratch.Path(u"missing"));
    EXPECT_EQ(CFileException::OsErrorToException(error.m_lOsError), CFileException::fileNotFound);
    EXPECT_EQ(file.Open(scratch.MakeFolder(u"folder").GetString(), CFile::modeRead, &error), 0);
    EXPECT_EQ(error.m_cause, CFileException::accessDenied);
    EXPECT_EQ(file.Open(scratch.Path(u"missing").GetString(), CFile::modeRead), 0);
    EXPECT_EQ(file.Open(nullptr, CFile::modeCreate | CFile::modeWrite, &error), 0);
    EXPECT_EQ(error.m_strFileName, u"");
}

TYPED_TEST(AnyFile, ErrorIsLeftAloneWhenTheFileOpens)
{
    const ScratchFolder scratch;
    TypeParam file;
    CFileException error(CFileException::hardIO, 5, u"x");
    ASSERT_TRUE(file.Open(scratch.WriteFile(u"a").GetString(), CFile::modeRead, &error));
    EXPECT_EQ(error.m_cause, CFileException::hardIO);
}

TYPED_TEST(AnyFile, CreatingEmptiesUnlessToldNotTo)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    TypeParam file;
    ASSERT_TRUE(file.Open(path.GetString(), CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite));
    Write(file, "C");
    file.Close();
    EXPECT_EQ(scratch.ReadFile(u"a"), "Content");
    ASSERT_TRUE(file.Open(path.GetString(), CFile::modeCreate | CFile::modeRead));
    EXPECT_EQ(Read(file, 100), "Content") << "what is only read is not emptied";
    ASSERT_TRUE(file.Open(path.GetString(), CFile::modeCreate | CFile::modeWrite));
    file.Close();
    EXPECT_EQ(scratch.ReadFile(u"a"), "");
}

TYPED_TEST(AnyFile, OpeningClosesTheFormerFile)
{
    const ScratchFolder scratch;
    TypeParam file;
    ASSERT_TRUE(file.Open(scratch.Path(u"a").GetString(), CFile::modeCreate | CFile::modeWrite));
    Write(file, "first");
    ASSERT_TRUE(file.Open(scratch.Path(u"b").GetString(), CFile::modeCreate | CFile::modeWrite));
    EXPECT_EQ(scratch.ReadFile(u"a"), "first");
    EXPECT_EQ(file.GetPosition(), 0U);
}

TYPED_TEST(AnyFile, EndOfTheObjectWritesEverything)
{
    const ScratchFolder scratch;
    {
        TypeParam file;
        ASSERT_TRUE(file.Open(scratch.Path(u"a").GetString(), CFile::modeCreate | CFile::modeWrite));
        Write(file, "all of it");
    }
    EXPECT_EQ(scratch.ReadFile(u"a"), "all of it");
}

TYPED_TEST(AnyFile, ThrowsWhereNoFileIsOpen)
{
    TypeParam file;
    char byte = 0;
    EXPECT_EQ(CauseOf([&] { file.Read(&byte, 1); }), CFileException::invalidFile);
    EXPECT_EQ(CauseOf([&] { file.Write(&byte, 1); }), CFileException::invalidFile);
    EXPECT_EQ(CauseOf([&] { file.Seek(0, CFile::begin); }), CFileException::invalidFile);
    EXPECT_EQ(CauseOf([&] { static_cast<void>(file.GetPosition()); }), CFileException::invalidFile);
    EXPECT_EQ(CauseOf([&] { file.Close(); }), -1);
    file.Abort();
}

TYPED_TEST(AnyFile, PlacesBeforeTheBeginningAreRefused)
{
    const ScratchFolder scratch;
    TypeParam file;
    ASSERT_TRUE(file.Open(scratch.WriteFile(u"a", "content").GetString(), CFile::modeRead));
    EXPECT_EQ(Read(file, 3), "con");
    constexpr std::int64_t least = std::numeric_limits<std::int64_t>::min();
    EXPECT_EQ(CauseOf([&] { file.Seek(-1, CFile::begin); }), CFileException::badSeek);
    EXPECT_EQ(CauseOf([&] { file.Seek(-4, CFile::current); }), CFileException::badSeek);
    EXPECT_EQ(CauseOf([&] { file.Seek(least, CFile::current); }), CFileException::badSeek);
    EXPECT_EQ(CauseOf([&] { file.Seek(-8, CFile::end); }), CFileException::badSeek);
    EXPECT_THROW(file.Seek(0, 3), CInvalidArgException);
    EXPECT_EQ(Read(file, 3), "ten") << "it stands where it stood";
}

TYPED_TEST(AnyFile, WritingToAFileOpenedForReadingThrows)
{
    const ScratchFolder scratch;
    TypeParam file;
    ASSERT_TRUE(file.Open(scratch.WriteFile(u"a", "content").GetString(), CFile::modeRead));
    EXPECT_NE(CauseOf([&] {
                  Write(file, "x");
                  file.Close();
              }),
              -1);
    file.Abort();
    EXPECT_EQ(scratch.ReadFile(u"a"), "content");
}

TYPED_TEST(AnyFile, PathIsSetWithoutTouchingTheFile)
{
    const ScratchFolder scratch;
    TypeParam file;
    ASSERT_TRUE(file.Open(scratch.WriteFile(u"a", "content").GetString(), CFile::modeRead));
    file.SetFilePath(u"elsewhere");
    EXPECT_EQ(file.GetFilePath(), u"elsewhere");
    EXPECT_EQ(Read(file, 100), "content");
    EXPECT_FALSE(scratch.Has(u"elsewhere"));
    EXPECT_THROW(file.SetFilePath(nullptr), CInvalidArgException);
    EXPECT_EQ(file.GetFilePath(), u"elsewhere");
}

// The same random reads, writes and seeks on a file behind a buffer and on a text in memory.
TEST(CStdioFile, BufferDoesNotShow)
{
    const ScratchFolder scratch;
    std::mt19937 random(20240105);
    const auto below = [&random](std::size_t bound) {
        return static_cast<std::size_t>(random() % bound);
    };
    std::string expected;
    std::size_t place = 0;
    CStdioFile file;
    ASSERT_TRUE(file.Open(scratch.Path(u"a").GetString(), CFile::modeCreate | CFile::modeReadWrite));
    for (int step = 0; step < 3000; ++step) {
        const std::size_t count = below(10) == 0 ? below(60'000) : below(300);
        switch (below(3)) {
        case 0: {
            const std::string bytes(count, static_cast<char>('a' + step % 26));
            Write(file, bytes);
            expected.resize(std::max(expected.size(), place + count));
            expected.replace(place, count, bytes);
            place += count;
            break;
        }
        case 1: {
            const std::string bytes = Read(file, static_cast<std::uint32_t>(count));
            ASSERT_TRUE(bytes == expected.substr(std::min(place, expected.size()), count)) << step;
            place += bytes.size();
            break;
        }
        default:
            place = below(std::min<std::size_t>(expected.size(), 200'000) + 100);
            file.Seek(static_cast<std::int64_t>(place) - static_cast<std::int64_t>(file.GetPosition()), CFile::current);
            break;
        }
        ASSERT_EQ(file.GetPosition(), place) << step;
    }
    file.Close();
    EXPECT_TRUE(scratch.ReadFile(u"a") == expected);
}

TEST(CStdioFile, WritesAndReadsLinesOfUtf16)
{
    const ScratchFolder scratch;
    CStdioFile file;
    ASSERT_TRUE(file.Open(scratch.Path(u"a").GetString(), CFile::modeCreate | CFile::modeReadWrite));
    file.WriteString(u"eins\r\n\u4E2D\U0001F600\n\nend");
    EXPECT_THROW(file.WriteString(nullptr), CInvalidArgException);
    file.Seek(0, CFile::begin);
    CString line = u"former";
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, u"eins\r");
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, u"\u4E2D\U0001F600");
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, u"");
    EXPECT_TRUE(file.ReadString(line));
    EXPECT_EQ(line, u"end");
    EXPECT_FALSE(file.ReadString(line));
    EXPECT_EQ(line, u"");
    file.Close();
    EXPECT_EQ(scratch.ReadFile(u"a"), Utf16(u"eins\r\n\u4E2D\U0001F600\n\nend"));
}

TEST(CStdioFile, ReadsLinesIntoABuffer)
{
    const ScratchFolder scratch;
    CStdioFile file;
    ASSERT_TRUE(file.Open(scratch.WriteFile(u"a", Utf16(u"abcdef\ngh") + "x").GetString(), CFile::modeRead));
    char16_t buffer[5] = u"";
    EXPECT_EQ(file.ReadString(buffer, 5), buffer);
    EXPECT_EQ(CString(buffer), u"abcd");
    EXPECT_EQ(file.ReadString(buffer, 5), buffer);
    EXPECT_EQ(CString(buffer), u"ef\n");
    EXPECT_EQ(file.ReadString(buffer, 5), buffer);
    EXPECT_EQ(CString(buffer), u"gh");
    EXPECT_EQ(file.ReadString(buffer, 5), nullptr);
    EXPECT_THROW(file.ReadString(nullptr, 5), CInvalidArgException);
    EXPECT_THROW(file.ReadString(buffer, 0), CInvalidArgException);
}

TEST(CStdioFile, DerivedClassesReadLinesOfBytesAndOfUnits)
{
    const ScratchFolder scratch;
    LineFile file;
    // Units that begin at an odd place, across the end of the buffer.
    const std::string filler(16381, 'x');
    ASSERT_TRUE(
        file.Open(scratch.WriteFile(u"a", filler + "\n" + Utf16(u"ab\u0A0Ac\nrest")).GetString(), CFile::modeRead));
    std::string bytes(20'000, '?');
    EXPECT_EQ(file.ReadLine(bytes.data(), 381), 381U);
    EXPECT_EQ(file.ReadLine(bytes.data(), bytes.size()), 16001U);
    EXPECT_EQ(bytes.substr(0, 16001), std::string(16000, 'x') + "\n");
    std::u16string units(10, u'?');
    EXPECT_EQ(file.ReadLine(units.data(), units.size()), 5U);
    EXPECT_EQ(units.substr(0, 5), u"ab\u0A0Ac\n");
    EXPECT_EQ(file.ReadLine(units.data(), units.size()), 4U);
    EXPECT_EQ(units.substr(0, 4), u"rest");
    EXPECT_EQ(file.ReadLine(units.data(), units.size()), 0U);
}
