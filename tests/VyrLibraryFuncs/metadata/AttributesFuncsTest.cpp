// Setting and clearing attributes, their letters, and their order.
#include <VyrLibraryFuncs/metadata/AttributesFuncs.h>

#include <tests/VyrLibraryFuncs/PrivateOperations.h>
#include <tests/support/ScratchFolder.h>

#include <VyrPlatform/files/FileAttributes.h>

#include <gtest/gtest.h>

#include <array>

using VyrLibraryFuncs::AttributesFuncs;
using VyrLibraryFuncs::PrivateOperations;
using VyrTests::ScratchFolder;
namespace FileAttributes = VyrPlatform::FileAttributes;

namespace {

/// One of the six attributes, by all its names.
struct Attribute
{
    const char16_t* letter;
    int index;
    std::uint32_t bit;
    int AttributesFuncs::ATTRIBUTESITEM::*choice;
    int (*set)(CString path, int isOn);
    int (*modify)(CString path, int state);
    int (*select)(CString text);
};

const std::array<Attribute, 6>& Attributes()
{
    using Item = AttributesFuncs::ATTRIBUTESITEM;
    static const std::array<Attribute, 6> attributes{{
        {u"R", 0, 0x1, &Item::readOnly, AttributesFuncs::SetReadOnlyAttributes,
         PrivateOperations::SetModifiedReadOnlyAttributes, AttributesFuncs::GetSelectedReadOnlyAttributes},
        {u"H", 1, 0x2, &Item::hidden, AttributesFuncs::SetHiddenAttributes,
         PrivateOperations::SetModifiedHiddenAttributes, AttributesFuncs::GetSelectedHiddenAttributes},
        {u"S", 2, 0x4, &Item::system, AttributesFuncs::SetSystemAttributes,
         PrivateOperations::SetModifiedSystemAttributes, AttributesFuncs::GetSelectedSystemAttributes},
        {u"A", 4, 0x20, &Item::archive, AttributesFuncs::SetArchiveAttributes,
         PrivateOperations::SetModifiedArchiveAttributes, AttributesFuncs::GetSelectedArchiveAttributes},
        {u"T", 5, 0x100, &Item::temporary, AttributesFuncs::SetTemporaryAttributes,
         PrivateOperations::SetModifiedTemporaryAttributes, AttributesFuncs::GetSelectedTemporaryAttributes},
        {u"I", 10, 0x2000, &Item::notContentIndexed, AttributesFuncs::SetNotContentIndexedAttributes,
         PrivateOperations::SetModifiedNotContentIndexedAttributes,
         AttributesFuncs::GetSelectedNotContentIndexedAttributes},
    }};
    return attributes;
}

/// A file that this system's file attributes are tried on.
class AttributesOfFile : public testing::TestWithParam<int>
{
protected:
    [[nodiscard]] static const Attribute& Tested() { return Attributes()[static_cast<std::size_t>(GetParam())]; }
    [[nodiscard]] const CString& Path() const { return m_path; }
    [[nodiscard]] bool IsSet() const { return (FileAttributes::Get(m_path) & Tested().bit) != 0; }

    /// Whether the system keeps the attribute when its own call sets and clears it.
    [[nodiscard]] bool IsKept() const
    {
        const CString probe = m_scratch.WriteFile(u"probe");
        const std::uint32_t before = FileAttributes::Get(probe);
        static_cast<void>(FileAttributes::Set(probe, before & ~Tested().bit));
        const bool isCleared = !(FileAttributes::Get(probe) & Tested().bit);
        static_cast<void>(FileAttributes::Set(probe, before | Tested().bit));
        const bool isSet = FileAttributes::Get(probe) & Tested().bit;
        static_cast<void>(FileAttributes::Set(probe, before));
        return isCleared && isSet;
    }

private:
    ScratchFolder m_scratch;
    CString m_path = m_scratch.WriteFile(u"a.txt", "content");
};

constexpr const char* notKept =
    "Wine does not keep this attribute: it drops temporary and not content indexed, and always reports archive";

} // namespace

TEST_P(AttributesOfFile, IsSetAndClearedByItsSetter)
{
    if (!IsKept())
        GTEST_SKIP() << notKept;
    for (const int on : {1, 2, -1}) {
        EXPECT_NE(Tested().set(Path(), on), 0);
        EXPECT_TRUE(IsSet()) << on;
        EXPECT_NE(Tested().set(Path(), 0), 0);
        EXPECT_FALSE(IsSet()) << on;
    }
}

TEST_P(AttributesOfFile, IsKeptSetOrClearedByAChoice)
{
    if (!IsKept())
        GTEST_SKIP() << notKept;
    for (const int clear : {2, 3, -1}) {
        for (const int state : {1, 0}) {
            EXPECT_EQ(Tested().modify(Path(), state), 1);
            EXPECT_TRUE(IsSet());
        }
        for (const int state : {clear, 0}) {
            EXPECT_EQ(Tested().modify(Path(), state), 1);
            EXPECT_FALSE(IsSet()) << clear;
        }
    }
}

TEST_P(AttributesOfFile, IsReachedByItsIndex)
{
    if (!IsKept())
        GTEST_SKIP() << notKept;
    EXPECT_NE(PrivateOperations::SetAttributes(Path(), 7, Tested().index), 0);
    EXPECT_TRUE(IsSet());
    EXPECT_EQ(PrivateOperations::SetModifiedAttributes(Path(), 0, Tested().index), 1);
    EXPECT_TRUE(IsSet());
    EXPECT_NE(PrivateOperations::SetAttributes(Path(), 0, Tested().index), 0);
    EXPECT_FALSE(IsSet());
    EXPECT_NE(PrivateOperations::SetModifiedAttributes(Path(), 1, Tested().index), 0);
    EXPECT_TRUE(IsSet());
    EXPECT_NE(PrivateOperations::SetModifiedAttributes(Path(), 2, Tested().index), 0);
    EXPECT_FALSE(IsSet());
}

TEST_P(AttributesOfFile, ChangesWithoutTheOthersAndIsRestored)
{
    if (!IsKept())
        GTEST_SKIP() << notKept;
    static_cast<void>(Tested().set(Path(), 0));
    ASSERT_NE(AttributesFuncs::SetHiddenAttributes(Path(), GetParam() != 1), 0);
    const std::uint32_t before = FileAttributes::Get(Path());
    EXPECT_NE(Tested().set(Path(), 1), 0);
    constexpr std::uint32_t normal = 0x80;
    EXPECT_EQ(FileAttributes::Get(Path()) & ~normal, (before | Tested().bit) & ~normal);
    EXPECT_NE(Tested().set(Path(), 0), 0);
    EXPECT_EQ(FileAttributes::Get(Path()), before);
}

TEST_P(AttributesOfFile, IsPartOfARecord)
{
    if (!IsKept())
        GTEST_SKIP() << notKept;
    AttributesFuncs::ATTRIBUTESITEM item;
    item.*Tested().choice = 1;
    EXPECT_EQ(AttributesFuncs::SetModifiedFileAttributes(Path(), item), 1);
    EXPECT_TRUE(IsSet());
    item.*Tested().choice = 2;
    EXPECT_EQ(AttributesFuncs::SetModifiedFileAttributes(Path(), item), 1);
    EXPECT_FALSE(IsSet());
}

TEST_P(AttributesOfFile, OfAMissingFileIsNeitherSetNorCleared)
{
    const ScratchFolder scratch;
    for (const CString& path : {scratch.Path(u"missing"), CString()}) {
        EXPECT_EQ(Tested().set(path, 1), 0);
        EXPECT_EQ(Tested().set(path, 0), 0);
        EXPECT_EQ(Tested().modify(path, 1), 0);
        EXPECT_EQ(Tested().modify(path, 2), 0);
        EXPECT_EQ(Tested().modify(path, 0), 1) << "it is kept as it is";
    }
    EXPECT_FALSE(scratch.Has(u"missing"));
}

TEST_P(AttributesOfFile, IsSelectedByItsLetterInUpperCase)
{
    const CString letter = Tested().letter;
    CString small = letter;
    small.MakeLower();
    EXPECT_EQ(Tested().select(letter), 1);
    EXPECT_EQ(Tested().select(u"x" + letter + u"y"), 1);
    EXPECT_EQ(Tested().select(u"RHSDATPLCOIEXV"), 1);
    EXPECT_EQ(Tested().select(small), 2);
    EXPECT_EQ(Tested().select(u""), 2);
    EXPECT_EQ(Tested().select(u"rhsdatplcoiexv"), 2);
    for (const Attribute& other : Attributes())
        EXPECT_EQ(Tested().select(other.letter), other.index == Tested().index ? 1 : 2);
    EXPECT_EQ(PrivateOperations::GetSelectedAttributes(u"RHS", letter), CString(u"RHS").Find(letter) >= 0 ? 1 : 2);
}

TEST_P(AttributesOfFile, HasTheIndexOfItsLetter)
{
    EXPECT_EQ(AttributesFuncs::GetArrtibutesPriority(Tested().letter), Tested().index);
}

INSTANTIATE_TEST_SUITE_P(EachOfTheSix, AttributesOfFile, testing::Range(0, 6),
                         [](const testing::TestParamInfo<int>& tested) {
                             return std::string(
                                 1, static_cast<char>(*Attributes()[static_cast<std::size_t>(tested.param)].letter));
                         });

TEST(AttributesFuncs, RecordOfZerosChangesNothing)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    ASSERT_NE(AttributesFuncs::SetHiddenAttributes(path, 1), 0);
    const std::uint32_t before = FileAttributes::Get(path);
    EXPECT_EQ(AttributesFuncs::SetModifiedFileAttributes(path, {}), 1);
    EXPECT_EQ(FileAttributes::Get(path), before);
    EXPECT_EQ(AttributesFuncs::SetModifiedFileAttributes(scratch.Path(u"missing"), {}), 1);
}

TEST(AttributesFuncs, RecordChangesSeveralAtOnce)
{
    const ScratchFolder scratch;
    for (const CString& path : {scratch.WriteFile(u"a"), scratch.MakeFolder(u"folder")}) {
        EXPECT_EQ(AttributesFuncs::SetModifiedFileAttributes(path, {.hidden = 1, .system = 1}), 1);
        EXPECT_EQ(FileAttributes::Get(path) & 0x6, 0x6U);
        EXPECT_EQ(AttributesFuncs::SetModifiedFileAttributes(path, {.hidden = 2, .system = 0}), 1);
        EXPECT_EQ(FileAttributes::Get(path) & 0x6, 0x4U);
    }
}

TEST(AttributesFuncs, OthersOfAFileThatBecomesReadOnlyAreSet)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    EXPECT_EQ(AttributesFuncs::SetModifiedFileAttributes(path, {.readOnly = 1, .hidden = 1, .system = 1}), 1);
    EXPECT_EQ(FileAttributes::Get(path) & 0x7, 0x7U);
    EXPECT_EQ(AttributesFuncs::SetModifiedFileAttributes(path, {.readOnly = 2, .hidden = 2, .system = 2}), 1);
    EXPECT_EQ(FileAttributes::Get(path) & 0x7, 0U);
}

TEST(AttributesFuncs, RecordForAMissingFileFails)
{
    const ScratchFolder scratch;
    EXPECT_EQ(AttributesFuncs::SetModifiedFileAttributes(scratch.Path(u"missing"), {1, 1, 1, 1, 1, 1}), 0);
    EXPECT_EQ(AttributesFuncs::SetModifiedFileAttributes(scratch.Path(u"missing"), {.notContentIndexed = 2}), 0);
    EXPECT_FALSE(scratch.Has(u"missing"));
}

TEST(AttributesFuncs, IndexOfNoneOfTheSixChangesNothing)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    ASSERT_NE(AttributesFuncs::SetHiddenAttributes(path, 1), 0);
    const std::uint32_t before = FileAttributes::Get(path);
    for (const int index : {-1, 3, 6, 7, 8, 9, 11, 12, 13, 32}) {
        EXPECT_NE(PrivateOperations::SetAttributes(path, 1, index), 0);
        EXPECT_NE(PrivateOperations::SetAttributes(path, 0, index), 0);
        EXPECT_NE(PrivateOperations::SetModifiedAttributes(path, 1, index), 0);
        EXPECT_EQ(FileAttributes::Get(path), before) << index;
    }
}

TEST(AttributesFuncs, LettersAreInTheOrderOfDisplay)
{
    const std::u16string_view order = u"RHSDATPLCOIEXV";
    for (std::size_t place = 0; place < order.size(); ++place) {
        CString letter = order.substr(place, 1);
        EXPECT_EQ(AttributesFuncs::GetArrtibutesPriority(letter), static_cast<int>(place));
        letter.MakeLower();
        EXPECT_EQ(AttributesFuncs::GetArrtibutesPriority(letter), static_cast<int>(place));
    }
    for (const char16_t* const text : {u"", u"RH", u" R", u"B", u"Z", u"1", u"\u00E4", u"\xD800"})
        EXPECT_EQ(AttributesFuncs::GetArrtibutesPriority(text), -1);
}
