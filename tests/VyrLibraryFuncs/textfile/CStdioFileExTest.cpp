// Byte order marks, lines and code pages, read and written.
#include <VyrLibraryFuncs/textfile/CStdioFileEx.h>

#include <VyrPlatform/files/CInvalidArgException.h>
#include <VyrPlatform/text/CodePage.h>

#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

using testing::ElementsAre;
using testing::IsEmpty;
using VyrTests::ScratchFolder;

namespace {

using namespace std::literals;

using Lines = std::vector<CString>;

constexpr std::uint32_t utf8 = 65001;
constexpr std::uint32_t forWriting = CFile::modeCreate | CFile::modeWrite;
const std::string utf16Mark = "\xFF\xFE";
const std::string utf8Mark = "\xEF\xBB\xBF";

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

Lines ReadLines(CStdioFileEx& file)
{
    Lines lines;
    for (CString line; file.ReadString(line);)
        lines.push_back(line);
    return lines;
}

/// The lines of a file of `bytes`, under `codePage`.
Lines LinesOf(const std::string& bytes, std::uint32_t codePage = 1252)
{
    const ScratchFolder scratch;
    CStdioFileEx file;
    file.m_nCodePage = codePage;
    EXPECT_TRUE(file.Open(scratch.WriteFile(u"a", bytes).GetString(), CFile::modeRead));
    return ReadLines(file);
}

/// The bytes of a file to which `texts` were written.
std::string BytesOf(const Lines& texts, std::uint32_t flags, std::uint32_t codePage, bool mark = true)
{
    const ScratchFolder scratch;
    CStdioFileEx file;
    file.m_nCodePage = codePage;
    file.m_bWriteBOM = mark;
    EXPECT_TRUE(file.Open(scratch.Path(u"a").GetString(), flags));
    for (const CString& text : texts)
        file.WriteString(text.GetString());
    file.Close();
    return scratch.ReadFile(u"a");
}

} // namespace

TEST(CStdioFileEx, DefaultsAreThoseOfTheTable)
{
    const CStdioFileEx file;
    EXPECT_FALSE(file.m_bUnicode);
    EXPECT_EQ(file.m_nOpenFlags, 0U);
    EXPECT_EQ(file.m_nCodePage, 0xFFFFFFFF);
    EXPECT_EQ(file.m_chDefault, '#');
    EXPECT_TRUE(file.m_bWriteBOM);
    EXPECT_EQ(CStdioFileEx::modeUnicode, 0x200000U);
    static_assert(std::is_base_of_v<CStdioFile, CStdioFileEx> && std::is_base_of_v<CFile, CStdioFile>);
}

TEST(CStdioFileEx, Utf16FileReadsWithoutItsMark)
{
    EXPECT_THAT(LinesOf(utf16Mark + Utf16(u"eins\n\u4E2D\U0001F600\nend")),
                ElementsAre(CString(u"eins"), CString(u"\u4E2D\U0001F600"), CString(u"end")));
    EXPECT_THAT(LinesOf(utf16Mark), IsEmpty());
}

TEST(CStdioFileEx, Utf16WithoutAMarkIsReadAs8BitText)
{
    // Each second byte is a NUL, which ends the text of its line.
    EXPECT_THAT(LinesOf(Utf16(u"ab\ncd")), ElementsAre(CString(u"a"), CString(u"")));
    EXPECT_THAT(LinesOf("\xFE\xFF" + Utf16(u"ab")), ElementsAre(CString(u"\u00FE\u00FF"
                                                                        u"a")));
}

TEST(CStdioFileEx, ModeOfTheCallerDoesNotMakeAFileUtf16ThatIsRead)
{
    const ScratchFolder scratch;
    CStdioFileEx file;
    file.m_nCodePage = 1252;
    ASSERT_TRUE(file.Open(scratch.WriteFile(u"a", "ab\n").GetString(), CFile::modeRead | CStdioFileEx::modeUnicode));
    EXPECT_FALSE(file.m_bUnicode);
    EXPECT_THAT(ReadLines(file), ElementsAre(CString(u"ab")));
    ASSERT_TRUE(file.Open(scratch.WriteFile(u"b", utf16Mark).GetString(), CFile::modeRead));
    EXPECT_TRUE(file.m_bUnicode);
}

TEST(CStdioFileEx, FileOfOneByteOrNoneIs8BitText)
{
    EXPECT_THAT(LinesOf("\xFF"), ElementsAre(CString(u"\u00FF")));
    EXPECT_THAT(LinesOf("\n"), ElementsAre(CString()));
    EXPECT_THAT(LinesOf(""), IsEmpty());
}

TEST(CStdioFileEx, MarkIsLookedForUnlessTheFileIsWrittenOrCreated)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", utf16Mark + Utf16(u"x"));
    struct
    {
        std::uint32_t flags;
        bool isUtf16;
    } const rows[] = {
        {CFile::modeRead, true},
        {CFile::modeReadWrite, true},
        {CFile::modeWrite, false},
        {CFile::modeWrite | CStdioFileEx::modeUnicode, true},
        {CFile::modeReadWrite | CFile::modeCreate | CFile::modeNoTruncate, false},
        {CFile::modeReadWrite | CFile::modeCreate | CFile::modeNoTruncate | CStdioFileEx::modeUnicode, true},
    };
    for (const auto& row : rows) {
        CStdioFileEx file;
        ASSERT_TRUE(file.Open(path.GetString(), row.flags));
        EXPECT_EQ(file.m_bUnicode, row.isUtf16) << row.flags;
        EXPECT_EQ(file.GetPosition(), 0U);
    }
    EXPECT_EQ(scratch.ReadFile(u"a"), utf16Mark + Utf16(u"x"));
}

TEST(CStdioFileEx, FileIsAlwaysABinaryOne)
{
    const ScratchFolder scratch;
    CStdioFileEx file;
    ASSERT_TRUE(file.Open(scratch.Path(u"a").GetString(), forWriting | CFile::typeText | CStdioFileEx::modeUnicode));
    EXPECT_EQ(file.m_nOpenFlags, forWriting | CFile::typeBinary | CStdioFileEx::modeUnicode);
    file.m_bWriteBOM = false;
    file.WriteString(u"a\nb\x1A");
    file.Close();
    EXPECT_EQ(scratch.ReadFile(u"a"), Utf16(u"a\nb\x1A"));
}

TEST(CStdioFileEx, FailureOfOpeningIsTheBasesOwn)
{
    const ScratchFolder scratch;
    CStdioFileEx file;
    CFileException error;
    EXPECT_EQ(file.Open(scratch.Path(u"missing").GetString(), CFile::modeRead, &error), 0);
    EXPECT_EQ(error.m_cause, CFileException::fileNotFound);
    EXPECT_EQ(error.m_strFileName, scratch.Path(u"missing"));
    EXPECT_EQ(file.Open(scratch.Path(u"no/folder").GetString(), forWriting), 0);
}

TEST(CStdioFileEx, Utf8SkipsAnyThreeBytes)
{
    EXPECT_THAT(LinesOf(utf8Mark + "\xE4\xB8\xAD\nb", utf8), ElementsAre(CString(u"\u4E2D"), CString(u"b")));
    EXPECT_THAT(LinesOf("abcdef\nghi\n", utf8), ElementsAre(CString(u"def"), CString(u"ghi")));
    EXPECT_THAT(LinesOf("a\nbc\nd", utf8), ElementsAre(CString(u"c"), CString(u"d")));
    EXPECT_THAT(LinesOf("ab", utf8), IsEmpty());
}

TEST(CStdioFileEx, OtherCodePagesSkipNothing)
{
    EXPECT_THAT(LinesOf(utf8Mark + "a", 1252), ElementsAre(CString(u"\u00EF\u00BB\u00BF"
                                                                   u"a")));
    EXPECT_THAT(LinesOf("\xCF\xF0\xE8\n", 1251), ElementsAre(CString(u"При")));
    EXPECT_THAT(LinesOf("\x93\xFA\x96{\n\x8C\xEA", 932), ElementsAre(CString(u"日本"), CString(u"語")));
}

TEST(CStdioFileEx, DefaultCodePageIsTheSystems)
{
    const std::uint32_t ansi = VyrPlatform::CodePage::GetAnsi();
    const std::string bytes = "a\xC3\xA4\xE4\n";
    // The three bytes are dropped where the code page is 65001 itself, not where the system's is.
    char16_t text[32];
    ASSERT_GT(VyrPlatform::CodePage::ToText(ansi, "a\xC3\xA4\xE4", text), 0U);
    EXPECT_THAT(LinesOf(bytes, 0xFFFFFFFF), ElementsAre(CString(text)));
    char narrow[32];
    ASSERT_GT(VyrPlatform::CodePage::ToBytes(ansi, u"aä中", '#', narrow), 0U);
    EXPECT_EQ(BytesOf({u"aä中"}, forWriting, 0xFFFFFFFF), narrow) << "and no mark is written";
}

TEST(CStdioFileEx, CarriageReturnIsRemovedOnlyBeforeTheLineFeed)
{
    const Lines expected = {u"a", u"", u"b\rc", u"d\r", u"e"};
    EXPECT_EQ(LinesOf("a\r\n\r\nb\rc\r\nd\r\r\ne\r"), expected);
    EXPECT_EQ(LinesOf(utf16Mark + Utf16(u"a\r\n\r\nb\rc\r\nd\r\r\ne\r")), expected);
}

TEST(CStdioFileEx, NulEndsTheTextAndTheRestOfItsLineIsDropped)
{
    const Lines expected = {u"ab", u"", u"d", u"e", u"f"};
    EXPECT_EQ(LinesOf("ab\0c\n\0x\nd\ne\r\0z\r\nf\0"s), expected);
    EXPECT_EQ(LinesOf(utf16Mark + Utf16(u"ab\0c\n\0x\nd\ne\r\0z\r\nf\0"sv)), expected);
    // Beyond the buffer, and within.
    const std::string longRest = "ab\0"s + std::string(10'000, 'x') + "\nnext";
    EXPECT_THAT(LinesOf(longRest), ElementsAre(CString(u"ab"), CString(u"next")));
    const std::string longText = std::string(5'000, 'x') + "\0rest\nnext"s;
    EXPECT_THAT(LinesOf(longText), ElementsAre(CString(u'x', 5'000), CString(u"next")));
}

TEST(CStdioFileEx, OddLastByteOfUtf16IsDropped)
{
    EXPECT_THAT(LinesOf(utf16Mark + Utf16(u"ab") + "x"), ElementsAre(CString(u"ab")));
    EXPECT_THAT(LinesOf(utf16Mark + Utf16(u"ab\n") + "\n"), ElementsAre(CString(u"ab")));
    EXPECT_THAT(LinesOf(utf16Mark + "x"), IsEmpty());
}

TEST(CStdioFileEx, LineFeedIsOneUnitOfUtf16)
{
    // U+0A0A and U+0A41 contain the byte of a line feed.
    EXPECT_THAT(LinesOf(utf16Mark + Utf16(u"\u0A0A\u0A41\u410A\nb")),
                ElementsAre(CString(u"\u0A0A\u0A41\u410A"), CString(u"b")));
}

// The buffers have 4096 code units with the terminator, and longer lines are read in steps of 128.
TEST(CStdioFileEx, LinesOfEveryLengthAroundTheBuffersReadWhole)
{
    for (const int length : {0, 1, 127, 128, 4093, 4094, 4095, 4096, 4097, 4222, 4223, 4224, 8191, 8192, 10'000}) {
        for (const std::string& ending : {""s, "\n"s, "\r\n"s}) {
            const CString text(u'z', length);
            const std::string bytes(static_cast<std::size_t>(length), 'z');
            const bool isThere = length > 0 || !ending.empty();
            Lines expected = isThere ? Lines{text} : Lines{};
            if (!ending.empty())
                expected.emplace_back(u"next");
            const std::string following = ending.empty() ? "" : "next";
            ASSERT_EQ(LinesOf(bytes + ending + following), expected) << length;
            ASSERT_EQ(LinesOf(utf8Mark + bytes + ending + following, utf8), expected) << length;
            const std::u16string wide(ending.begin(), ending.end());
            const std::u16string wideFollowing(following.begin(), following.end());
            ASSERT_EQ(LinesOf(utf16Mark + Utf16(std::u16string(text.View()) + wide + wideFollowing)), expected)
                << length;
        }
    }
}

TEST(CStdioFileEx, CharactersAcrossTheStepsStayWhole)
{
    // Two bytes each, of which every step of an odd place would cut one.
    for (const int shift : {0, 1}) {
        std::string bytes(static_cast<std::size_t>(shift), 'a');
        CString text(u'a', shift);
        for (int i = 0; i < 5'000; ++i) {
            bytes += "\x93\xFA";
            text += u"日";
        }
        EXPECT_THAT(LinesOf(bytes + "\nb", 932), ElementsAre(text, CString(u"b")));
    }
}

TEST(CStdioFileEx, SeekingToTheBeginningDropsTheMarkAgain)
{
    const ScratchFolder scratch;
    for (const std::string& bytes : {utf16Mark + Utf16(u"ab\ncd"), utf8Mark + "ab\ncd"}) {
        CStdioFileEx file;
        file.m_nCodePage = utf8;
        ASSERT_TRUE(file.Open(scratch.WriteFile(u"a", bytes).GetString(), CFile::modeRead));
        for (int round = 0; round < 3; ++round) {
            EXPECT_THAT(ReadLines(file), ElementsAre(CString(u"ab"), CString(u"cd")));
            EXPECT_EQ(file.Seek(0, CFile::begin), 0U);
        }
        CString line;
        EXPECT_TRUE(file.ReadString(line));
        EXPECT_EQ(file.Seek(0, CFile::current), file.GetPosition());
        EXPECT_TRUE(file.ReadString(line));
        EXPECT_EQ(line, u"cd") << "nothing is dropped elsewhere";
    }
}

TEST(CStdioFileEx, ObjectReadsOneFileAfterTheOther)
{
    const ScratchFolder scratch;
    CStdioFileEx file;
    file.m_nCodePage = 1252;
    ASSERT_TRUE(file.Open(scratch.WriteFile(u"a", utf16Mark + Utf16(u"a")).GetString(), CFile::modeRead));
    EXPECT_THAT(ReadLines(file), ElementsAre(CString(u"a")));
    file.Close();
    ASSERT_TRUE(file.Open(scratch.WriteFile(u"b", "b").GetString(), CFile::modeRead));
    EXPECT_THAT(ReadLines(file), ElementsAre(CString(u"b")));
    ASSERT_TRUE(file.Open(scratch.WriteFile(u"c", utf16Mark + Utf16(u"c")).GetString(), CFile::modeRead));
    EXPECT_THAT(ReadLines(file), ElementsAre(CString(u"c")));
}

TEST(CStdioFileEx, LineIsEmptiedAtTheEnd)
{
    const ScratchFolder scratch;
    CStdioFileEx file;
    ASSERT_TRUE(file.Open(scratch.WriteFile(u"a").GetString(), CFile::modeRead));
    CString line = u"former";
    EXPECT_EQ(file.ReadString(line), 0);
    EXPECT_EQ(line, u"");
}

TEST(CStdioFileEx, WritingBeginsWithTheMarkOfItsKind)
{
    EXPECT_EQ(BytesOf({u"a\u4E2D\n", u"b"}, forWriting | CStdioFileEx::modeUnicode, 1252),
              utf16Mark + Utf16(u"a\u4E2D\nb"));
    EXPECT_EQ(BytesOf({u"a\u4E2D\n", u"b"}, forWriting, utf8), utf8Mark + "a\xE4\xB8\xAD\nb");
    EXPECT_EQ(BytesOf({u"aä\n", u"b"}, forWriting, 1252), "a\xE4\nb");
    EXPECT_EQ(BytesOf({u"a"}, forWriting | CStdioFileEx::modeUnicode, utf8), utf16Mark + Utf16(u"a"))
        << "UTF-16 goes before the code page";
    EXPECT_EQ(BytesOf({u"a"}, forWriting | CStdioFileEx::modeUnicode, 1252, false), Utf16(u"a"));
    EXPECT_EQ(BytesOf({u"a"}, forWriting, utf8, false), "a");
    EXPECT_EQ(BytesOf({u""}, forWriting, utf8), utf8Mark);
    EXPECT_EQ(BytesOf({}, forWriting, utf8), "");
}

TEST(CStdioFileEx, WritingElsewhereHasNoMark)
{
    const ScratchFolder scratch;
    CStdioFileEx file;
    ASSERT_TRUE(file.Open(scratch.WriteFile(u"a", "abc").GetString(), CFile::modeWrite | CStdioFileEx::modeUnicode));
    file.Seek(0, CFile::end);
    file.WriteString(u"d");
    file.Seek(0, CFile::begin);
    file.WriteString(u"");
    file.Close();
    EXPECT_EQ(scratch.ReadFile(u"a"), "\xFF\xFE"
                                      "c" +
                                          Utf16(u"d"));
}

TEST(CStdioFileEx, MissingCharacterIsWrittenAsTheDefaultOne)
{
    EXPECT_EQ(BytesOf({u"a\u4E2D\U0001F600A\u0308e\u0301"}, forWriting, 1252), "a###\xC4\xE9");
    EXPECT_EQ(BytesOf({u"\U0001F600\xD83D"}, forWriting, utf8, false), "\xF0\x9F\x98\x80\xEF\xBF\xBD");
    const ScratchFolder scratch;
    CStdioFileEx file;
    file.m_nCodePage = 1252;
    file.m_chDefault = '_';
    ASSERT_TRUE(file.Open(scratch.Path(u"a").GetString(), forWriting));
    file.WriteString(u"a\u4E2D");
    file.Close();
    EXPECT_EQ(scratch.ReadFile(u"a"), "a_");
}

TEST(CStdioFileEx, TextsOfEveryLengthAroundTheBufferAreWrittenWhole)
{
    for (const int length : {1, 4094, 4095, 4096, 4097, 20'000}) {
        const std::string narrow(static_cast<std::size_t>(length), 'z');
        EXPECT_EQ(BytesOf({CString(u'z', length), u"end"}, forWriting, 1252), narrow + "end");
        EXPECT_EQ(BytesOf({CString(u'z', length), u"end"}, forWriting | CStdioFileEx::modeUnicode, 1252),
                  utf16Mark + Utf16(std::u16string(narrow.begin(), narrow.end()) + u"end"));
    }
    std::string bytes;
    for (int i = 0; i < 3'000; ++i)
        bytes += "\xE4\xB8\xAD";
    EXPECT_EQ(BytesOf({CString(u'\u4E2D', 3'000)}, forWriting, utf8, false), bytes);
}

TEST(CStdioFileEx, WrittenTextIsReadBack)
{
    const ScratchFolder scratch;
    const Lines lines = {u"Größe", u"", u"a\rb", CString(u'ß', 9'000), u"end"};
    struct
    {
        std::uint32_t flags;
        std::uint32_t codePage;
    } const kinds[] = {{CStdioFileEx::modeUnicode, 1252}, {0, utf8}, {0, 1252}, {0, 850}};
    for (const auto& kind : kinds) {
        CStdioFileEx file;
        file.m_nCodePage = kind.codePage;
        ASSERT_TRUE(file.Open(scratch.Path(u"a").GetString(), CFile::modeCreate | CFile::modeReadWrite | kind.flags));
        for (const CString& line : lines)
            file.WriteString((line + u"\r\n").GetString());
        file.Seek(0, CFile::begin);
        EXPECT_EQ(ReadLines(file), lines) << "in the same session";
        ASSERT_TRUE(file.Open(scratch.Path(u"a").GetString(), CFile::modeRead));
        EXPECT_EQ(ReadLines(file), lines) << "opened again";
    }
}

TEST(CStdioFileEx, UnknownCodePageReadsEmptyLinesAndWritesNothing)
{
    EXPECT_THAT(LinesOf("ab\ncd\n", 12345), ElementsAre(CString(), CString()));
    EXPECT_EQ(BytesOf({u"ab"}, forWriting, 12345), "");
}

TEST(CStdioFileEx, NullTextAndPathAreInvalidArguments)
{
    const ScratchFolder scratch;
    CStdioFileEx file;
    file.m_nCodePage = utf8;
    ASSERT_TRUE(file.Open(scratch.Path(u"a").GetString(), forWriting));
    EXPECT_THROW(file.WriteString(nullptr), CInvalidArgException);
    EXPECT_THROW(file.SetFilePath(nullptr), CInvalidArgException);
    EXPECT_EQ(file.GetFilePath(), scratch.Path(u"a"));
    file.SetFilePath(u"b");
    EXPECT_EQ(file.GetFilePath(), u"b");
    file.Close();
    EXPECT_EQ(scratch.ReadFile(u"a"), "") << "no mark either";
}

TEST(CStdioFileEx, ReadingAndWritingWithoutAFileThrows)
{
    CStdioFileEx file;
    CString line;
    EXPECT_THROW(file.ReadString(line), CFileException);
    EXPECT_THROW(file.WriteString(u"a"), CFileException);
    file.m_nCodePage = utf8;
    EXPECT_THROW(file.WriteString(u""), CFileException) << "the mark goes out first";
}

TEST(CStdioFileEx, BufferIsReadAsTheBaseReadsIt)
{
    const ScratchFolder scratch;
    CStdioFileEx file;
    ASSERT_TRUE(file.Open(scratch.WriteFile(u"a", utf16Mark + Utf16(u"ab\ncd")).GetString(), CFile::modeRead));
    char16_t buffer[10];
    EXPECT_EQ(file.ReadString(buffer, 10), buffer);
    EXPECT_EQ(CString(buffer), u"\uFEFF"
                               u"ab\n");
    EXPECT_EQ(file.ReadString(buffer, 10), buffer);
    EXPECT_EQ(CString(buffer), u"cd");
    EXPECT_EQ(file.ReadString(buffer, 10), nullptr);
}

namespace {

/// Says which of the overridable operations ran.
class Tracing : public CStdioFileEx
{
public:
    void Write(const void* buffer, std::uint32_t count) override
    {
        m_written.append(static_cast<const char*>(buffer), count);
    }
    std::string m_written;
};

} // namespace

TEST(CStdioFileEx, MarkIsWrittenWithoutAStream)
{
    // A derived class that writes elsewhere has no position in a file, so each of its texts begins with the mark.
    Tracing file;
    file.m_nCodePage = utf8;
    file.WriteString(u"a");
    file.WriteString(u"b");
    EXPECT_EQ(file.m_written, utf8Mark + "a" + utf8Mark + "b");
}

TEST(CTemplateSmartPtrArray, RefersToTheCallersBufferOrItsOwn)
{
    char fixed[4] = "abc";
    {
        CTemplateSmartPtrArray<char> holder(fixed);
        EXPECT_EQ(holder.Get(), fixed);
        holder.Allocate(100, 3);
        ASSERT_NE(holder.Get(), fixed);
        EXPECT_EQ(std::string(holder.Get(), 3), "abc");
        holder.Get()[0] = 'x';
        holder.Allocate(200, 3);
        EXPECT_EQ(std::string(holder.Get(), 3), "xbc");
    }
    EXPECT_STREQ(fixed, "abc");
    static_assert(std::has_virtual_destructor_v<CTemplateSmartPtrArray<char16_t>>);
}
