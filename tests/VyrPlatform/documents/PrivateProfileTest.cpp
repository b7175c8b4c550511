// Private-profile files: one table of files and queries, and one of files after writing, for both systems.
#include <VyrPlatform/documents/PrivateProfile.h>

#include <tests/support/Describe.h>
#include <tests/support/FileState.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace PrivateProfile = VyrPlatform::PrivateProfile;
using VyrTests::ScratchFolder;

namespace {

using namespace std::string_literals;

constexpr int capacity = 260;
constexpr int defaultNumber = 77;
/// For the number of a value that is missing or empty.
constexpr int none = defaultNumber;

struct Question
{
    std::string bytes;
    const char16_t* section;
    const char16_t* key;
    const char16_t* text;
    int number;
};

const std::vector<Question> questions = {
    // Line ends.
    {"[S]\r\nk=v\r\n", u"S", u"k", u"v", 0},
    {"[S]\nk=v", u"S", u"k", u"v", 0},
    {"[S]\rk=v\r", u"S", u"k", u"v", 0},
    {"[S]\r\r\nk=v\r\r\n", u"S", u"k", u"v", 0},
    {"\n\n[S]\n\n\nk=v", u"S", u"k", u"v", 0},
    {"", u"S", u"k", u"", none},
    // Sections.
    {"[s]\nK=v", u"S", u"k", u"v", 0},
    {"[ S ]\nk=v", u"S", u"k", u"v", 0},
    {"[ S ]\nk=v", u" S ", u"k", u"v", 0},
    {"[S]\nk=v", u" S ", u"k", u"v", 0},
    {"[S]more\nk=v", u"S", u"k", u"v", 0},
    {"[S\nk=v", u"S", u"k", u"", none},
    {"[S]a]\nk=v", u"S", u"k", u"", none},
    {"[S]a]\nk=v", u"S]a", u"k", u"v", 0},
    {"  [S]  \nk=v", u"S", u"k", u"v", 0},
    {"x[S]\nk=v", u"S", u"k", u"", none},
    {"[[S]]\nk=v", u"S", u"k", u"", none},
    {"[[S]]\nk=v", u"[S]", u"k", u"v", 0},
    {"[]\nk=v", u"", u"k", u"", none},
    {"k=v\n[S]\na=b", u"", u"k", u"v", 0},
    {"k=v\n[S]\na=b", u"S", u"k", u"", none},
    {"[S]\nk=v\n", u"T", u"k", u"", none},
    {"[S]\nk=v\n", u"", u"k", u"", none},
    {";[S]\nk=v\n", u"S", u"k", u"", none},
    {"[A B]\nk=v\n", u"a b", u"k", u"v", 0},
    // The first of several counts.
    {"[S]\nk=1\nk=2\n", u"S", u"k", u"1", 1},
    {"[S]\nk=1\n[S]\nk=2\nm=3", u"S", u"k", u"1", 1},
    {"[S]\nk=1\n[S]\nk=2\nm=3", u"S", u"m", u"", none},
    {"[S]\nk=1\n[T]\nk=2\n[s]\nm=3", u"S", u"m", u"", none},
    {"[S]\nk\nk=2\n", u"S", u"k", u"", none},
    {"[S]\nk=\nk=2\n", u"S", u"k", u"", none},
    // Keys.
    {"[S]\n  k  =  v w  \n", u"S", u"k", u"v w", 0},
    {"\t[S]\n\tk\t=\tv\t", u"S", u"k", u"v", 0},
    {"[S]\nk", u"S", u"k", u"", none},
    {"[S]\nk\n", u"S", u"k", u"", none},
    {"[S]\nk=v\n", u"S", u"l", u"", none},
    {"[S]\nk=v\n", u"S", u"", u"", none},
    {"[S]\n=v\n", u"S", u"", u"v", 0},
    {"[S]\nk=v\n", u"S", u" k ", u"v", 0},
    {"[S]\nk=v\n", u"S", u"k ", u"v", 0},
    {"[S]\na b=v\n", u"S", u"A B", u"v", 0},
    {"[S]\n\"k\"=v\n", u"S", u"k", u"", none},
    {"[S]\n\"k\"=v\n", u"S", u"\"k\"", u"v", 0},
    {"[S]\nkk=1\nk=2\n", u"S", u"k", u"2", 2},
    // Comments.
    {"[S]\n;k=v\n", u"S", u"k", u"", none},
    {"[S]\n;k=v\n", u"S", u";k", u"v", 0},
    {"[S]\n ;k=v\nk=w", u"S", u"k", u"w", 0},
    {"[S]\n#k=v\n", u"S", u"#k", u"v", 0},
    {"[S]\nk=v ; c\n", u"S", u"k", u"v ; c", 0},
    // Values.
    {"[S]\nk=\n", u"S", u"k", u"", none},
    {"[S]\nk=   \n", u"S", u"k", u"", none},
    {"[S]\nk=a=b\n", u"S", u"k", u"a=b", 0},
    {"[S]\nk=[T]\n", u"S", u"k", u"[T]", 0},
    {"[S]\nk=v\v\f\n", u"S", u"k", u"v", 0},
    {"[S]\nk=v\x1A\nl=w", u"S", u"k", u"v", 0},
    {"[S]\nk=v\x1A\nl=w", u"S", u"l", u"w", 0},
    {"[S]\nk=v\0w\nl=x"s, u"S", u"k", u"v", 0},
    {"[S]\nk=v\0w\nl=x"s, u"S", u"l", u"x", 0},
    {"[S]\0\nk=v"s, u"S", u"k", u"v", 0},
    // Quotes.
    {"[S]\nk=\"v\"\n", u"S", u"k", u"v", 0},
    {"[S]\nk='v'\n", u"S", u"k", u"v", 0},
    {"[S]\nk=\"v'\n", u"S", u"k", u"\"v'", 0},
    {"[S]\nk=\"\"v\"\"\n", u"S", u"k", u"\"v\"", 0},
    {"[S]\nk='\"v\"'\n", u"S", u"k", u"\"v\"", 0},
    {"[S]\nk=\" v \"\n", u"S", u"k", u" v ", 0},
    {"[S]\nk= \" v \" \n", u"S", u"k", u" v ", 0},
    {"[S]\nk=\"\n", u"S", u"k", u"\"", 0},
    {"[S]\nk='\n", u"S", u"k", u"'", 0},
    {"[S]\nk=\"\"\n", u"S", u"k", u"", none},
    {"[S]\nk=\"v\"x\n", u"S", u"k", u"\"v\"x", 0},
    {"[S]\nk=x\"v\"\n", u"S", u"k", u"x\"v\"", 0},
    // Encodings.
    {"\xFF\xFE[\0S\0]\0\r\0\n\0k\0=\0\x2D\x4E\n\0"s, u"S", u"k", u"\u4E2D", 0},
    {"\xFE\xFF\0[\0S\0]\0\n\0k\0=\x4E\x2D"s, u"S", u"k", u"\u4E2D", 0},
    {"\xEF\xBB\xBF[S]\nk=\xE4\xB8\xAD", u"S", u"k", u"\u4E2D", 0},
    {"\xEF\xBB\xBF[S]\nk=\xFFv", u"S", u"k", u"\uFFFDv", 0},
    {"\xEF\xBB\xBF[S]\nk=\xE3\x80\x80v\xE3\x80\x80\xC2\xA0", u"S", u"k", u"\u3000v\u3000\u00A0", 0},
    {"\xEF\xBB\xBF[\xE4\xB8\xAD]\n\xC3\xA4=v", u"\u4E2D", u"\u00E4", u"v", 0},
    {"\xEF\xBB\xBF[S]\n\xC3\x9F=v", u"S", u"SS", u"", none},
    {"\xEF\xBB\xBF[S]\ni=v", u"S", u"I", u"v", 0},
    {"[\0S\0]\0\n\0k\0=\0v\0"s, u"S", u"k", u"", none},
    {"\xFF\xFE", u"S", u"k", u"", none},
    {"\xFF", u"S", u"k", u"", none},
    // Numbers.
    {"[S]\nk=12\n", u"S", u"k", u"12", 12},
    {"[S]\nk=-5\n", u"S", u"k", u"-5", -5},
    {"[S]\nk=+7\n", u"S", u"k", u"+7", 7},
    {"[S]\nk=0\n", u"S", u"k", u"0", 0},
    {"[S]\nk=010\n", u"S", u"k", u"010", 10},
    {"[S]\nk=0x1F\n", u"S", u"k", u"0x1F", 31},
    {"[S]\nk=0X1f\n", u"S", u"k", u"0X1f", 0},
    {"[S]\nk=-0x10\n", u"S", u"k", u"-0x10", -16},
    {"[S]\nk=0x1G\n", u"S", u"k", u"0x1G", 1},
    {"[S]\nk=0x\n", u"S", u"k", u"0x", 0},
    {"[S]\nk=0o17\n", u"S", u"k", u"0o17", 15},
    {"[S]\nk=0o8\n", u"S", u"k", u"0o8", 0},
    {"[S]\nk=0O7\n", u"S", u"k", u"0O7", 0},
    {"[S]\nk=-0b11\n", u"S", u"k", u"-0b11", -3},
    {"[S]\nk=0b12\n", u"S", u"k", u"0b12", 1},
    {"[S]\nk=0B1\n", u"S", u"k", u"0B1", 0},
    {"[S]\nk=12abc\n", u"S", u"k", u"12abc", 12},
    {"[S]\nk=abc\n", u"S", u"k", u"abc", 0},
    {"[S]\nk=1.5\n", u"S", u"k", u"1.5", 1},
    {"[S]\nk=1,000\n", u"S", u"k", u"1,000", 1},
    {"[S]\nk=- 5\n", u"S", u"k", u"- 5", 0},
    {"[S]\nk=--5\n", u"S", u"k", u"--5", 0},
    {"[S]\nk=+\n", u"S", u"k", u"+", 0},
    {"[S]\nk=-\n", u"S", u"k", u"-", 0},
    {"[S]\nk= 42 \n", u"S", u"k", u"42", 42},
    {"[S]\nk=\"42\"\n", u"S", u"k", u"42", 42},
    {"[S]\nk=\" 42\"\n", u"S", u"k", u" 42", 42},
    {"[S]\nk='\t -0x1F'\n", u"S", u"k", u"\t -0x1F", -31},
    {"[S]\nk=\x01 5\n", u"S", u"k", u"\x01 5", 5},
    {"[S]\nk=\"   \"\n", u"S", u"k", u"   ", 0},
    {"[S]\nk=4294967295\n", u"S", u"k", u"4294967295", -1},
    {"[S]\nk=4294967296\n", u"S", u"k", u"4294967296", 0},
    {"[S]\nk=2147483648\n", u"S", u"k", u"2147483648", INT32_MIN},
    {"[S]\nk=99999999999\n", u"S", u"k", u"99999999999", 1215752191},
};

/// The content of a file after a value was set in it.
struct Change
{
    std::string before;
    const char16_t* section;
    const char16_t* key;
    const char16_t* value;
    std::string after;
};

const std::vector<Change> changes = {
    // The position of a new key.
    {"[S]\nk=v\n", u"T", u"k", u"x", "[S]\r\nk=v\r\n[T]\r\nk=x\r\n"},
    {"[S]\nk=v\n\n\n", u"T", u"k", u"x", "[S]\r\nk=v\r\n[T]\r\nk=x\r\n"},
    {"[S]\nk=v\n\n[T]\nl=w\n", u"S", u"m", u"x", "[S]\r\nk=v\r\nm=x\r\n[T]\r\nl=w\r\n"},
    {"[S]\nk=v\n; end\n\n[T]\nl=w\n", u"S", u"m", u"x", "[S]\r\nk=v\r\n; end\r\nm=x\r\n[T]\r\nl=w\r\n"},
    {"[A]\n\n[S]\n\n", u"S", u"k", u"x", "[A]\r\n[S]\r\nk=x\r\n"},
    {"[S]", u"S", u"k", u"v", "[S]\r\nk=v\r\n"},
    {"[S]\nk=v\n[T]", u"T", u"k", u"x", "[S]\r\nk=v\r\n[T]\r\nk=x\r\n"},
    {"\n", u"S", u"k", u"v", "[S]\r\nk=v\r\n"},
    {"[S]\nk=v", u"", u"k", u"x", "k=x\r\n[S]\r\nk=v\r\n"},
    {"[S]\nk=v", u"S", u"", u"x", "[S]\r\nk=v\r\n=x\r\n"},
    {"[S]\nk=v", u"S", u" k2 ", u"x", "[S]\r\nk=v\r\nk2 =x\r\n"},
    {"; only\r\n", u"Updates", u"CheckedDate", u"2024/01/05 10:30:00",
     "; only\r\n[Updates]\r\nCheckedDate=2024/01/05 10:30:00\r\n"},
    // Replacing an old value.
    {"[S]\nK=v\n", u"s", u"k", u"x", "[S]\r\nK=x\r\n"},
    {"[S]\nk=1\nk=2\n[S]\nk=3", u"S", u"k", u"x", "[S]\r\nk=x\r\nk=2\r\n[S]\r\nk=3\r\n"},
    {"[S]\nk\n", u"S", u"k", u"x", "[S]\r\nk=x\r\n"},
    {"[S]\nk=v", u" S ", u"k", u"x", "[S]\r\nk=x\r\n"},
    {"[S]\nk=v\n", u"S", u"k", u"", "[S]\r\nk=\r\n"},
    {"[S]\nk=v\n", u"S", u"k", u" x ", "[S]\r\nk=x \r\n"},
    {"[S]\nk=v\n", u"S", u"k", u"\"x\"", "[S]\r\nk=\"x\"\r\n"},
    {"[S]\nk=\"v\"\n", u"S", u"k", u"v", "[S]\r\nk=v\r\n"},
    {"[S]\nk=V\n", u"S", u"k", u"v", "[S]\r\nk=v\r\n"},
    // The rest of the file.
    {"[S]\nk = v\n\n\n[T]\n l=w", u"S", u"k", u"x", "[S]\r\nk=x\r\n[T]\r\nl=w\r\n"},
    {"; c\n\n[S]\n;d\nk=v", u"S", u"n", u"x", "; c\r\n[S]\r\n;d\r\nk=v\r\nn=x\r\n"},
    {"[S]\nk=v\nbare\n= e\n", u"S", u"k", u"x", "[S]\r\nk=x\r\nbare\r\n=e\r\n"},
    {"a=b\nc\n[S]\nk=v", u"S", u"k", u"x", "a=b\r\nc\r\n[S]\r\nk=x\r\n"},
    {"[ S ]tail\nk=v", u"S", u"k", u"x", "[S]\r\nk=x\r\n"},
    {"[S]\n[V\nk=v\n", u"S", u"k", u"x", "[S]\r\n[V\r\nk=x\r\n"},
    {"[S]\nk=a\n\tb=c  \n", u"S", u"k", u"x", "[S]\r\nk=x\r\nb=c\r\n"},
    {"[S]\nk='v'\nl=\"w\"\n", u"S", u"m", u"x", "[S]\r\nk='v'\r\nl=\"w\"\r\nm=x\r\n"},
    // Encodings.
    {"\xFF\xFE;\0 \0c\0\r\0\n\0"s, u"S", u"k", u"v\u4E2D",
     "\xFF\xFE;\0 \0c\0\r\0\n\0[\0S\0]\0\r\0\n\0k\0=\0v\0\x2D\x4E\r\0\n\0"s},
    {"\xFE\xFF\0[\0S\0]\0\n\0k\0=\0v"s, u"S", u"k", u"\u4E2D", "\xFE\xFF\0[\0S\0]\0\r\0\n\0k\0=\x4E\x2D\0\r\0\n"s},
    {"\xEF\xBB\xBF[S]\nk=v", u"S", u"k", u"\u4E2D", "\xEF\xBB\xBF[S]\r\nk=\xE4\xB8\xAD\r\n"},
    // Nothing is written when the value is set already.
    {"[S]\r\nk=v\r\n", u"S", u"k", u"v", "[S]\r\nk=v\r\n"},
    {"[S]\nk = v\n\n", u"S", u"k", u"v", "[S]\nk = v\n\n"},
    {"[s]\nK=v", u"S", u"k", u" v", "[s]\nK=v"},
};

std::string Describe(const std::string& bytes)
{
    return testing::PrintToString(bytes);
}

} // namespace

TEST(PrivateProfile, EveryQueryGivesTheExpectedValue)
{
    const ScratchFolder scratch;
    for (const Question& question : questions) {
        const CString path = scratch.WriteFile(u"a.ini", question.bytes);
        EXPECT_EQ(PrivateProfile::ReadText(path, question.section, question.key, capacity), question.text)
            << Describe(question.bytes);
        EXPECT_EQ(PrivateProfile::ReadInteger(path, question.section, question.key, defaultNumber), question.number)
            << Describe(question.bytes);
        EXPECT_EQ(scratch.ReadFile(u"a.ini"), question.bytes);
    }
    EXPECT_GE(questions.size(), 100U);
}

TEST(PrivateProfile, WritingGivesTheNormalForm)
{
    const ScratchFolder scratch;
    for (const Change& change : changes) {
        const CString path = scratch.WriteFile(u"a.ini", change.before);
        EXPECT_EQ(PrivateProfile::WriteText(path, change.section, change.key, change.value), 0U);
        EXPECT_EQ(scratch.ReadFile(u"a.ini"), change.after) << Describe(change.before);
    }
}

TEST(PrivateProfile, MissingFileIsCreated)
{
    const ScratchFolder scratch;
    const CString path = scratch.Path(u"new.ini");
    EXPECT_EQ(PrivateProfile::ReadText(path, u"S", u"k", capacity), u"");
    EXPECT_EQ(PrivateProfile::ReadInteger(path, u"S", u"k", -3), -3);
    EXPECT_FALSE(scratch.Has(u"new.ini"));
    EXPECT_EQ(PrivateProfile::WriteText(path, u"S", u"k", u"v"), 0U);
    EXPECT_EQ(scratch.ReadFile(u"new.ini"), "[S]\r\nk=v\r\n");
    EXPECT_EQ(PrivateProfile::ReadText(path, u"S", u"k", capacity), u"v");
}

TEST(PrivateProfile, NothingIsWrittenWhereNoFileIsPossible)
{
    const ScratchFolder scratch;
    EXPECT_NE(PrivateProfile::WriteText(scratch.Path(u"missing/a.ini"), u"S", u"k", u"v"), 0U);
    const CString folder = scratch.MakeFolder(u"folder");
    EXPECT_NE(PrivateProfile::WriteText(folder, u"S", u"k", u"v"), 0U);
    EXPECT_EQ(PrivateProfile::ReadText(folder, u"S", u"k", capacity), u"");
    EXPECT_FALSE(scratch.Has(u"missing"));
}

TEST(PrivateProfile, LongValuesAreCut)
{
    const ScratchFolder scratch;
    const std::string x(258, 'x');
    const std::pair<std::string, std::string> rows[] = {
        {x, x},
        {x + "y", x + "y"},
        {x + "yz", x + "y"},
        {"\"" + x + "\"", x},
        {x + " z", x + " "},
        {"\"" + x + x + "\"", x + "x"},
    };
    for (const auto& [written, expected] : rows) {
        const CString path = scratch.WriteFile(u"a.ini", "[S]\nk=" + written + "\nl=2\n");
        const std::u16string text(expected.begin(), expected.end());
        EXPECT_EQ(PrivateProfile::ReadText(path, u"S", u"k", capacity), std::u16string_view(text));
        EXPECT_EQ(PrivateProfile::ReadText(path, u"S", u"l", capacity), u"2");
        EXPECT_EQ(PrivateProfile::ReadText(path, u"S", u"k", 4), u"xxx");
    }
}

TEST(PrivateProfile, ChangedFileIsReadAgain)
{
    const ScratchFolder scratch;
    for (const char16_t value : {u'a', u'b', u'c', u'd'}) {
        const CString path = scratch.WriteFile(u"a.ini", std::string("[S]\nk=") + static_cast<char>(value));
        EXPECT_EQ(PrivateProfile::ReadText(path, u"S", u"k", capacity), CString(value, 1));
    }
}
