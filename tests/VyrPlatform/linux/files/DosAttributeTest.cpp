// Samba's extended attribute: every version, and other bytes.
#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/linux/files/DosAttribute.h>
#include <tests/support/FileMoments.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <sys/xattr.h>
#include <vector>

namespace FileAttributes = VyrPlatform::FileAttributes;
namespace FileTimes = VyrPlatform::FileTimes;
using VyrPlatform::DosAttribute;
using VyrPlatform::FileTicks;
using VyrTests::ScratchFolder;
using namespace std::string_literals;
using namespace std::string_view_literals;

namespace {

constexpr FileTicks created = 0x01'DC'AA'54'2B'1A'9C'99;
constexpr auto createdBytes = "\x99\x9c\x1a\x2b\x54\xaa\xdc\x01"sv;
constexpr auto eightBytes = "\x11\x22\x33\x44\x55\x66\x77\x88"sv;
constexpr auto fourBytes = "\xaa\xbb\xcc\xdd"sv;

DosAttribute Parse(std::string_view value)
{
    return VyrPlatform::ParseDosAttribute(std::as_bytes(std::span(value)));
}

std::string Join(std::initializer_list<std::string_view> parts)
{
    std::string joined;
    for (const std::string_view part : parts)
        joined += part;
    return joined;
}

/// A value of version 5 with the attributes 0x21 and a creation time.
std::string Version5()
{
    return Join({"\0\0\5\0\5\0\0\0\x11\0\0\0\x21\0\0\0"sv, createdBytes});
}

std::string Changed(std::string_view value, FileTicks time)
{
    std::string changed;
    for (const std::byte byte : VyrPlatform::WithCreated(std::as_bytes(std::span(value)), time))
        changed += static_cast<char>(byte);
    return changed;
}

std::string Attributed(std::string_view value, std::uint32_t attributes)
{
    std::string changed;
    for (const std::byte byte : VyrPlatform::WithAttributes(std::as_bytes(std::span(value)), attributes))
        changed += static_cast<char>(byte);
    return changed;
}

/// The value of the attribute; empty when there is none.
std::string ValueOf(const CString& path)
{
    std::string value(256, '\0');
    const ssize_t size = getxattr(VyrTests::ToStdPath(path).c_str(), "user.DOSATTRIB", value.data(), value.size());
    value.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    return value;
}

void SetValue(const CString& path, const char* name, std::string_view value)
{
    ASSERT_EQ(setxattr(VyrTests::ToStdPath(path).c_str(), name, value.data(), value.size(), 0), 0);
}

} // namespace

TEST(DosAttribute, SampleOfVersion5IsRead)
{
    const DosAttribute parsed = Parse("\0\0\x05\0\x05\0\0\0\x11\0\0\0\x20\x04\0\0\x99\x9c\x19\xae\x54\xaa\xdc\x01"sv);
    EXPECT_EQ(parsed.attributes, 0x420U);
    EXPECT_EQ(parsed.created, 0x01'DC'AA'54'AE'19'9C'99);
}

TEST(DosAttribute, EveryVersionIsRead)
{
    const std::string values[] = {
        Join({"\0\0\1\0\1\0\0\0"sv, "\x21\0\0\0"sv, fourBytes, eightBytes, eightBytes, createdBytes, eightBytes}),
        Join({"\0\0\2\0\2\0\0\0"sv, fourBytes, "\x21\0\0\0"sv, fourBytes, eightBytes, eightBytes, createdBytes,
              eightBytes, eightBytes, "name\0"sv}),
        Join({"\0\0\3\0\3\0\0\0"sv, "\x11\0\0\0"sv, "\x21\0\0\0"sv, fourBytes, eightBytes, eightBytes, createdBytes,
              eightBytes}),
        Join({"\0\0\4\0\4\0\0\0"sv, "\x51\0\0\0"sv, "\x21\0\0\0"sv, eightBytes, createdBytes}),
        Version5(),
    };
    for (const std::string& value : values) {
        EXPECT_EQ(Parse(value).attributes, 0x21U) << static_cast<int>(value[2]);
        EXPECT_EQ(Parse(value).created, created) << static_cast<int>(value[2]);
    }
}

TEST(DosAttribute, TextAndPaddingBeforeTheNumbersAreSkipped)
{
    const std::string rest = Join({"\x11\0\0\0\x21\0\0\0"sv, createdBytes});
    for (const std::string_view start : {"0x2\0\5\0\5\0"sv, "0x21\0\0\5\0\5\0\0\0"sv, "0x221\0\5\0\5\0\0\0"sv}) {
        EXPECT_EQ(Parse(Join({start, rest})).attributes, 0x21U) << start.size();
        EXPECT_EQ(Parse(Join({start, rest})).created, created) << start.size();
    }
}

TEST(DosAttribute, OnlyTheFieldsThatAreValidAreTaken)
{
    std::string value = Version5();
    value[8] = '\x01';
    EXPECT_EQ(Parse(value).attributes, 0x21U);
    EXPECT_EQ(Parse(value).created, std::nullopt);
    value[8] = '\x10';
    EXPECT_EQ(Parse(value).attributes, std::nullopt);
    EXPECT_EQ(Parse(value).created, created);
    value[8] = '\0';
    EXPECT_EQ(Parse(value).attributes, std::nullopt);
    EXPECT_EQ(Parse(value).created, std::nullopt);
}

TEST(DosAttribute, CreationTimeZeroIsNone)
{
    const DosAttribute parsed = Parse(Join({Version5().substr(0, 16), std::string(8, '\0')}));
    EXPECT_EQ(parsed.attributes, 0x21U);
    EXPECT_EQ(parsed.created, std::nullopt);
}

TEST(DosAttribute, TextAloneIsANumber)
{
    EXPECT_EQ(Parse("0x20").attributes, 0x20U);
    EXPECT_EQ(Parse("0x20\0"sv).attributes, 0x20U);
    EXPECT_EQ(Parse("0xFfFfFfFf").attributes, 0xFFFFFFFFU);
    EXPECT_EQ(Parse("0x20").created, std::nullopt);
}

TEST(DosAttribute, OtherBytesGiveNothing)
{
    for (const std::string_view value :
         {""sv, "\0"sv, "0x"sv, "0x\0"sv, "32"sv, "0x20z"sv, "0x123456789"sv, "0x-1"sv, "x20"sv, "\0\0"sv, "\0\0\5\0"sv,
          "\0\0\0\0\0\0\0\0\x11\0\0\0\x21\0\0\0\0\0\0\0\0\0\0\0"sv, "\xff\xff\xff\xff\xff\xff\xff\xff"sv}) {
        EXPECT_EQ(Parse(value).attributes, std::nullopt) << testing::PrintToString(value);
        EXPECT_EQ(Parse(value).created, std::nullopt) << testing::PrintToString(value);
    }
}

TEST(DosAttribute, VersionThatIsUnknownOrContradictsItselfGivesNothing)
{
    for (const auto& [first, second] : {std::pair{'\0', '\0'}, {'\6', '\6'}, {'\5', '\4'}, {'\4', '\5'}}) {
        std::string value = Version5() + std::string(64, '\1');
        value[2] = first;
        value[4] = second;
        EXPECT_EQ(Parse(value).attributes, std::nullopt);
        EXPECT_EQ(Parse(value).created, std::nullopt);
    }
}

TEST(DosAttribute, TruncatedValueGivesNothing)
{
    const std::string whole = Version5();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        EXPECT_EQ(Parse(std::string_view(whole).substr(0, size)).attributes, std::nullopt) << size;
        EXPECT_EQ(Parse(std::string_view(whole).substr(0, size)).created, std::nullopt) << size;
    }
}

TEST(DosAttribute, CreationTimeIsWrittenIntoEveryVersionAndNothingElseChanges)
{
    const std::string starts[] = {
        Join({"\0\0\1\0\1\0\0\0"sv, "\x21\0\0\0"sv, fourBytes, eightBytes, eightBytes}),
        Join({"\0\0\2\0\2\0\0\0"sv, fourBytes, "\x21\0\0\0"sv, fourBytes, eightBytes, eightBytes}),
        Join({"\0\0\3\0\3\0\0\0"sv, "\x11\0\0\0"sv, "\x21\0\0\0"sv, fourBytes, eightBytes, eightBytes}),
        Join({"\0\0\4\0\4\0\0\0"sv, "\x51\0\0\0"sv, "\x21\0\0\0"sv, eightBytes}),
        Join({"0x21\0\0\5\0\5\0\0\0"sv, "\x11\0\0\0\x21\0\0\0"sv}),
    };
    for (const std::string& start : starts)
        EXPECT_EQ(Changed(Join({start, eightBytes, "rest\0"sv}), created), Join({start, createdBytes, "rest\0"sv}));
}

TEST(DosAttribute, CreationTimeThatIsPutInIsValid)
{
    std::string value = Version5();
    value[8] = '\x41';
    std::string expected = value;
    expected[8] = '\x51';
    EXPECT_EQ(Changed(value, created), expected);
}

TEST(DosAttribute, CreationTimeMakesVersion5OfNothingAndOfText)
{
    EXPECT_EQ(Changed("", created), Join({"\0\0\5\0\5\0\0\0\x10\0\0\0\0\0\0\0"sv, createdBytes}));
    EXPECT_EQ(Changed("0x21", created), Version5());
    EXPECT_EQ(Changed("0x21\0"sv, created), Version5());
}

TEST(DosAttribute, CreationTimeIsNotPutIntoOtherBytes)
{
    for (const std::string_view value : {"\0"sv, "32"sv, "0x20z"sv, "\0\0\6\0\6\0\0\0"sv, "\0\0\5\0"sv})
        EXPECT_EQ(Changed(value, created), "") << testing::PrintToString(value);
    const std::string whole = Version5();
    for (std::size_t size = 1; size < whole.size(); ++size)
        EXPECT_EQ(Changed(std::string_view(whole).substr(0, size), created), "") << size;
}

TEST(DosAttribute, AttributesAreWrittenIntoEveryVersionAndNothingElseChanges)
{
    const auto sizes = Join({fourBytes, eightBytes, eightBytes, createdBytes, eightBytes, "rest\0"sv});
    const auto newVersion = Join({eightBytes, createdBytes, "rest"sv});
    const std::pair<std::string, std::string> starts[] = {
        {Join({"\0\0\1\0\1\0\0\0"sv}), sizes},
        {Join({"\0\0\2\0\2\0\0\0"sv, fourBytes}), sizes},
        {Join({"\0\0\3\0\3\0\0\0"sv, "\x51\0\0\0"sv}), sizes},
        {Join({"\0\0\4\0\4\0\0\0"sv, "\x51\0\0\0"sv}), newVersion},
        {Join({"\0\0\5\0\5\0\0\0"sv, "\x51\0\0\0"sv}), Join({createdBytes, "rest"sv})},
    };
    for (const auto& [start, rest] : starts)
        EXPECT_EQ(Attributed(Join({start, "\x21\0\0\0"sv, rest}), 0x2122), Join({start, "\x22\x21\0\0"sv, rest}))
            << static_cast<int>(start[2]);
}

TEST(DosAttribute, AttributesThatArePutInAreValid)
{
    std::string value = Version5();
    value[8] = '\x10';
    std::string expected = Version5();
    expected[12] = '\x26';
    EXPECT_EQ(Attributed(value, 0x26), expected);
}

TEST(DosAttribute, AttributesMakeVersion5OfNothingAndTextOfText)
{
    EXPECT_EQ(Attributed("", 0x2002), Join({"\0\0\5\0\5\0\0\0\1\0\0\0\2\x20\0\0"sv, std::string(8, '\0')}));
    EXPECT_EQ(Attributed("0x20", 0x2122), "0x2122");
    EXPECT_EQ(Attributed("0x20\0"sv, 0x22), "0x22\0"sv);
    EXPECT_EQ(Attributed("0x20", 0xFFFF'FFFF), "0xffffffff");
    EXPECT_EQ(Attributed("0x20", 0), "0x0");
}

TEST(DosAttribute, AttributesAreNotPutIntoOtherBytes)
{
    for (const std::string_view value : {"\0"sv, "32"sv, "0x20z"sv, "\0\0\6\0\6\0\0\0"sv, "\0\0\5\0"sv})
        EXPECT_EQ(Attributed(value, 0x22), "") << testing::PrintToString(value);
    const std::string whole = Version5();
    for (std::size_t size = 1; size < whole.size(); ++size)
        EXPECT_EQ(Attributed(std::string_view(whole).substr(0, size), 0x22), "") << size;
}

TEST(DosAttributeOfFile, ValuesOfSambaAreReadAndKeepTheirTime)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    SetValue(path, "user.DOSATTRIB", "\0\0\x05\0\x05\0\0\0\x11\0\0\0\x22\0\0\0\x99\x9c\x19\xae\x54\xaa\xdc\x01"sv);
    EXPECT_EQ(FileAttributes::Get(path), 0x22U);
    ASSERT_EQ(FileAttributes::Set(path, 0x26), 0U);
    EXPECT_EQ(ValueOf(path), "\0\0\x05\0\x05\0\0\0\x11\0\0\0\x26\0\0\0\x99\x9c\x19\xae\x54\xaa\xdc\x01"sv);
}

TEST(DosAttributeOfFile, ValuesWrittenBySambaAreRead)
{
    // Samba 4.17, after a client's "setmode a.txt +hs", "setmode a.txt +r" and "mkdir d", "setmode d +h".
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"a.txt");
    SetValue(file, "user.DOSATTRIB", "\0\0\5\0\5\0\0\0\x11\0\0\0\7\0\0\0\xce\xf7\x6d\xcc\x2f\x7a\xdd\1"sv);
    EXPECT_EQ(FileAttributes::Get(file), 0x7U);
    EXPECT_EQ(FileTimes::GetCreated(file), 0x01'DD'7A'2F'CC'6D'F7'CE);
    const CString folder = scratch.MakeFolder(u"d");
    SetValue(folder, "user.DOSATTRIB", "\0\0\5\0\5\0\0\0\x11\0\0\0\x12\0\0\0\xb9\xa8\x1c\xf4\x2f\x7a\xdd\1"sv);
    EXPECT_EQ(FileAttributes::Get(folder), 0x12U);
    EXPECT_EQ(FileTimes::GetCreated(folder), 0x01'DD'7A'2F'F4'1C'A8'B9);
}

TEST(DosAttributeOfFile, EveryBitIsKept)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    for (std::uint32_t bit = 2; bit != 0x8000'0000; bit <<= 1) {
        if (bit == 0x10 || bit == 0x80)
            continue;
        ASSERT_EQ(FileAttributes::Set(path, bit), 0U);
        EXPECT_EQ(FileAttributes::Get(path), bit);
    }
    ASSERT_EQ(FileAttributes::Set(path, 0x10 | 0x80), 0U);
    EXPECT_EQ(FileAttributes::Get(path), 0x80U) << "what it is decides whether it is a folder";
}

TEST(DosAttributeOfFile, IsNotCreatedForAttributesThatTheModeKeeps)
{
    const ScratchFolder scratch;
    for (const CString& path : {scratch.WriteFile(u"a"), scratch.MakeFolder(u"folder")}) {
        EXPECT_EQ(FileAttributes::Set(path, 0x80), 0U);
        EXPECT_EQ(FileAttributes::Set(path, 0), 0U);
        EXPECT_EQ(FileAttributes::Set(path, 0x10), 0U);
        EXPECT_EQ(ValueOf(path), "");
    }
    const CString file = scratch.Path(u"a");
    EXPECT_EQ(FileAttributes::Set(file, 0x81), 0U);
    EXPECT_EQ(FileAttributes::Get(file), 1U);
    EXPECT_EQ(ValueOf(file), "") << "the mode tells it";
    // The mode of a folder does not keep the attribute.
    EXPECT_EQ(FileAttributes::Set(scratch.Path(u"folder"), 0x11), 0U);
    EXPECT_EQ(FileAttributes::Get(scratch.Path(u"folder")), 0x11U);
    EXPECT_EQ(ValueOf(scratch.Path(u"folder")).substr(8, 8), "\1\0\0\0\x11\0\0\0"sv);
}

TEST(DosAttributeOfFile, InvalidOrTooLongValueIsNotOverwritten)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    for (const std::string& value : {Version5().substr(0, 20), std::string(3000, '\xff'), std::string("32")}) {
        SetValue(path, "user.DOSATTRIB", value);
        EXPECT_NE(FileAttributes::Set(path, 0x22), 0U);
        EXPECT_NE(FileAttributes::Set(path, 0x23), 0U);
        EXPECT_NE(FileTimes::SetCreated(path, created), 0U);
        EXPECT_NE(FileTimes::Write(path, {.created = created, .modified = created}), 0U);
        EXPECT_NE(FileTimes::GetModified(path), created);
        EXPECT_GE(getxattr(VyrTests::ToStdPath(path).c_str(), "user.DOSATTRIB", nullptr, 0),
                  static_cast<ssize_t>(value.size()));
        EXPECT_FALSE(FileAttributes::IsReadOnly(path));
    }
}

TEST(DosAttributeOfFile, SettingTheCreationTimeKeepsTheAttributes)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    SetValue(path, "user.DOSATTRIB", "0x21");
    ASSERT_EQ(FileTimes::SetCreated(path, created), 0U);
    EXPECT_EQ(ValueOf(path), Version5());
    EXPECT_EQ(FileTimes::GetCreated(path), created);
    ASSERT_EQ(FileTimes::SetCreated(path, created + 1), 0U);
    EXPECT_EQ(FileTimes::GetCreated(path), created + 1);
    EXPECT_TRUE(FileAttributes::IsReadOnly(path));
}

TEST(DosAttributeOfFile, DamagedValueIsNotWrittenOver)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    const std::string damaged = Version5().substr(0, 20);
    SetValue(path, "user.DOSATTRIB", damaged);
    EXPECT_NE(FileTimes::SetCreated(path, created), 0U);
    EXPECT_EQ(ValueOf(path), damaged);
}

TEST(DosAttributeOfFile, CreationTimeComesBeforeTheBirthTime)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    EXPECT_NE(FileTimes::GetCreated(path), created);
    SetValue(path, "user.DOSATTRIB", Version5());
    EXPECT_EQ(FileTimes::GetCreated(path), created);
}

TEST(DosAttributeOfFile, DamagedValueLeavesTheBirthTime)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    const std::optional<FileTicks> birth = FileTimes::GetCreated(path);
    SetValue(path, "user.DOSATTRIB", Version5().substr(0, 20));
    EXPECT_EQ(FileTimes::GetCreated(path), birth);
    SetValue(path, "user.DOSATTRIB", std::string(3000, '\xff'));
    EXPECT_EQ(FileTimes::GetCreated(path), birth);
    EXPECT_FALSE(FileAttributes::IsReadOnly(path));
}

TEST(DosAttributeOfFile, ReadOnlyBitMakesAFileReadOnly)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    SetValue(path, "user.DOSATTRIB", "0x20");
    EXPECT_FALSE(FileAttributes::IsReadOnly(path));
    SetValue(path, "user.DOSATTRIB", "0x21");
    EXPECT_TRUE(FileAttributes::IsReadOnly(path));
    SetValue(path, "user.DOSATTRIB", Version5());
    EXPECT_TRUE(FileAttributes::IsReadOnly(path));
}

namespace {

using Merge = std::optional<std::vector<std::byte>> (*)(std::span<const std::byte>, std::span<const std::byte>);

/// The merged value; "refused" where there is none.
std::string Merged(Merge merge, std::string_view value, std::string_view kept)
{
    const auto merged = merge(std::as_bytes(std::span(value)), std::as_bytes(std::span(kept)));
    return merged ? std::string(reinterpret_cast<const char*>(merged->data()), merged->size()) : "refused";
}

} // namespace

TEST(DosAttribute, ChangedValueBecomesTheFormerOneAgain)
{
    const std::string values[] = {
        {},
        "0x22",
        "0x22\0"s,
        Version5(),
        Join({"\0\0\3\0\3\0\0\0"sv, "\x01\0\0\0"sv, "\x21\0\0\0"sv, fourBytes, eightBytes, eightBytes, createdBytes,
              eightBytes}),
        Join({"\0\0\1\0\1\0\0\0"sv, "\x21\0\0\0"sv, fourBytes, eightBytes, eightBytes, createdBytes, eightBytes})};
    for (const std::string& value : values) {
        EXPECT_EQ(Merged(VyrPlatform::WithCreatedOf, Changed(value, created + 5), value), value);
        EXPECT_EQ(Merged(VyrPlatform::WithAttributesOf, Attributed(value, 0x2007), value), value);
        EXPECT_EQ(Merged(VyrPlatform::WithCreatedOf, value, value), value);
    }
}

TEST(DosAttribute, OtherFieldThatWasChangedSinceStays)
{
    // The attributes were set first, then a creation time; the attributes go back.
    const std::string both = Changed(Attributed({}, 0x22), created);
    const DosAttribute withoutAttributes = Parse(Merged(VyrPlatform::WithAttributesOf, both, {}));
    EXPECT_EQ(withoutAttributes.attributes, std::nullopt);
    EXPECT_EQ(withoutAttributes.created, created);
    const DosAttribute withoutCreated = Parse(Merged(VyrPlatform::WithCreatedOf, both, {}));
    EXPECT_EQ(withoutCreated.attributes, 0x22U);
    EXPECT_EQ(withoutCreated.created, std::nullopt);
    const DosAttribute before = Parse(Merged(VyrPlatform::WithAttributesOf, both, Attributed({}, 0x4)));
    EXPECT_EQ(before.attributes, 0x4U);
    EXPECT_EQ(before.created, created);
}

TEST(DosAttribute, ValueOfAnotherProgramIsNotMerged)
{
    EXPECT_EQ(Merged(VyrPlatform::WithCreatedOf, "garbage", Version5()), "refused");
    EXPECT_EQ(Merged(VyrPlatform::WithAttributesOf, "garbage", "0x22"), "refused");
    EXPECT_EQ(Merged(VyrPlatform::WithAttributesOf, "garbage", {}), "garbage") << "it holds no attributes";
}
