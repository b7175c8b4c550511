// Names that are equal to a file system.
#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <VyrHostPlatform/NameFolding.h>
#include <VyrPlatform/files/FolderListing.h>

#include <gtest/gtest.h>

#include <filesystem>

namespace {

using namespace VyrHostPlatform;
using namespace VyrPlatform;
using VyrTests::ScratchFolder;

bool IsOne(const CString& left, const CString& right, NameFolding folding)
{
    return FoldName(left, folding) == FoldName(right, folding);
}

TEST(NameFolding, AgreesWithTheDisk)
{
    const ScratchFolder scratch;
    scratch.WriteFile(u"Lower and UPPER");
    scratch.WriteFile(u"\u00E9");
    const auto folding = static_cast<unsigned>(GetNameFolding(scratch.Path()));
    EXPECT_EQ((folding & static_cast<unsigned>(NameFolding::Case)) != 0, scratch.Has(u"lOWER AND upper"));
    EXPECT_EQ((folding & static_cast<unsigned>(NameFolding::Form)) != 0, scratch.Has(u"e\u0301"));
}

TEST(NameFolding, IsThatOfTheNearestExistingFolder)
{
    const ScratchFolder scratch;
    EXPECT_EQ(GetNameFolding(scratch.Path(u"not/there/yet")), GetNameFolding(scratch.Path()));
    scratch.WriteFile(u"file");
    EXPECT_EQ(GetNameFolding(scratch.Path(u"file/not")), GetNameFolding(scratch.Path()));
}

TEST(FoldName, KeepsNamesDifferentWithoutFolding)
{
    const CString name = u"Name \u00E9";
    EXPECT_EQ(FoldName(name, NameFolding::None).GetString(), name.GetString());
    EXPECT_FALSE(IsOne(u"a", u"A", NameFolding::None));
    EXPECT_FALSE(IsOne(u"\u00E9", u"e\u0301", NameFolding::None));
}

TEST(FoldName, TakesLettersOfBothCasesForOne)
{
    for (const NameFolding folding : {NameFolding::Case, NameFolding::CaseAndForm}) {
        EXPECT_TRUE(IsOne(u"readme.TXT", u"README.txt", folding));
        EXPECT_TRUE(IsOne(u"\u00C9t\u00E9", u"\u00E9T\u00C9", folding));
        EXPECT_TRUE(IsOne(u"\u0436", u"\u0416", folding));
        EXPECT_FALSE(IsOne(u"a", u"b", folding));
        EXPECT_FALSE(IsOne(u"a1", u"a2", folding));
        EXPECT_FALSE(IsOne(u"", u"a", folding));
    }
    EXPECT_FALSE(IsOne(u"\u00E9", u"e\u0301", NameFolding::Case));
    EXPECT_FALSE(IsOne(u"a", u"A", NameFolding::Form));
}

TEST(FoldName, TakesBothNormalFormsForOne)
{
    for (const NameFolding folding : {NameFolding::Form, NameFolding::CaseAndForm}) {
        EXPECT_TRUE(IsOne(u"caf\u00E9", u"cafe\u0301", folding));
        EXPECT_TRUE(IsOne(u"\u1E69", u"s\u0323\u0307", folding));
        EXPECT_FALSE(IsOne(u"e", u"\u00E9", folding));
    }
    EXPECT_TRUE(IsOne(u"CAF\u00C9", u"cafe\u0301", NameFolding::CaseAndForm));
}

TEST(FoldName, KeepsLoneSurrogatesDifferent)
{
    for (const NameFolding folding : {NameFolding::Case, NameFolding::Form, NameFolding::CaseAndForm}) {
        const CString lone = CString(u"a") + CString(u'\xDC80', 1);
        const CString other = CString(u"a") + CString(u'\xDC81', 1);
        EXPECT_TRUE(IsOne(lone, lone, folding));
        EXPECT_FALSE(IsOne(lone, other, folding));
        EXPECT_FALSE(IsOne(lone, u"a", folding));
        EXPECT_FALSE(IsOne(u"\U0001F600", u"\U0001F601", folding));
    }
}

TEST(TryIsOneName, AgreesWithTheFolding)
{
    const VyrTests::ScratchFolder scratch;
    const CString folder = scratch.MakeFolder(u"empty");
    const bool foldsCase = VyrHostPlatform::GetNameFolding(folder) != NameFolding::None;
    EXPECT_EQ(VyrHostPlatform::TryIsOneName(folder, u"a.txt", u"A.TXT"), foldsCase);
    EXPECT_FALSE(VyrHostPlatform::TryIsOneName(folder, u"a", u"b"));
    EXPECT_EQ(VyrPlatform::FolderListing(folder).Next(), false) << "the trial has left something";
}

TEST(TryIsOneName, IsFalseWhereNoFolderCanBeCreated)
{
    const VyrTests::ScratchFolder scratch;
    EXPECT_FALSE(VyrHostPlatform::TryIsOneName(scratch.Path(u"missing"), u"a", u"A"));
    EXPECT_FALSE(VyrHostPlatform::TryIsOneName(scratch.WriteFile(u"file"), u"a", u"A"));
    EXPECT_FALSE(scratch.Has(u"missing"));
}

} // namespace
