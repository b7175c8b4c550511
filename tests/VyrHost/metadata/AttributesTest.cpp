// Setting, clearing and restoring attributes.
#include <VyrHost/metadata/Attributes.h>
#include <VyrHost/text/Errors.h>

#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/text/Encoding.h>
#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

using namespace VyrHost::Metadata;
using VyrHost::Model::ChangeState;
using VyrTests::ScratchFolder;

namespace FileAttributes = VyrPlatform::FileAttributes;

namespace {

constexpr std::uint32_t readOnly = 0x1;
constexpr std::uint32_t hidden = 0x2;
constexpr std::uint32_t systemFile = 0x4;

Proposal Propose(const CString& path, std::uint32_t set, std::uint32_t clear)
{
    return AttributesRule(set, clear).Propose(path, VyrHost::Model::Entry(), 0);
}

} // namespace

TEST(Attributes, ChosenOnesAreChangedAndOthersKept)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "x");
    ASSERT_EQ(FileAttributes::Set(path, systemFile), 0U);
    const std::uint32_t before = FileAttributes::Get(path);
    const Proposal proposal = Propose(path, hidden | readOnly, 0);
    ASSERT_TRUE(proposal.change);
    const auto change = AttributesChange::Read(proposal.change->Before(), proposal.change->After());
    ASSERT_TRUE(change);
    EXPECT_EQ(change->Before(), proposal.change->Before());
    EXPECT_EQ(change->After(), proposal.change->After());
    EXPECT_EQ(change->ShownAfter().View().substr(0, 3), u"RHS");
    EXPECT_EQ(change->Look(path).state, ChangeState::Before);
    EXPECT_EQ(change->Apply(path), 0U);
    EXPECT_EQ(change->Look(path).state, ChangeState::After);
    EXPECT_EQ(FileAttributes::Get(path), before | hidden | readOnly);
    EXPECT_EQ(change->Undo(path), 0U);
    EXPECT_EQ(change->Look(path).state, ChangeState::Before);
    EXPECT_EQ(FileAttributes::Get(path), before);
}

TEST(Attributes, ThatAnotherProgramHasChangedSinceAreNotTakenBack)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "x");
    for (const bool isProtected : {false, true}) {
        ASSERT_EQ(FileAttributes::Set(path, systemFile | (isProtected ? readOnly : 0)), 0U);
        const Proposal proposal = Propose(path, hidden, systemFile);
        ASSERT_TRUE(proposal.change);
        ASSERT_EQ(proposal.change->Apply(path), 0U);
        ASSERT_EQ(FileAttributes::Set(path, FileAttributes::Get(path) ^ readOnly), 0U);
        EXPECT_EQ(proposal.change->Undo(path), 0U);
        EXPECT_EQ(FileAttributes::Get(path) & (readOnly | hidden | systemFile),
                  systemFile | (isProtected ? 0 : readOnly));
    }
    EXPECT_EQ(FileAttributes::Set(path, FileAttributes::Get(path) & ~readOnly), 0U);
}

TEST(Attributes, HalfAChangeIsUndone)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "x");
    const std::uint32_t before = FileAttributes::Get(path);
    const Proposal proposal = Propose(path, hidden | systemFile, 0);
    ASSERT_TRUE(proposal.change);
    ASSERT_EQ(FileAttributes::Set(path, before | hidden), 0U);
    EXPECT_EQ(proposal.change->Look(path).state, ChangeState::Partly);
    EXPECT_EQ(proposal.change->Undo(path), 0U);
    EXPECT_EQ(FileAttributes::Get(path), before);
}

TEST(Attributes, FileThatHasThemAlreadyIsUnchanged)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "x");
    const Proposal proposal = Propose(path, 0, hidden | readOnly);
    EXPECT_FALSE(proposal.change);
    EXPECT_EQ(proposal.refusal, u"");
}

TEST(Attributes, MissingFileIsRefusedWithTheSystemsReason)
{
    const ScratchFolder scratch;
    const Proposal proposal = Propose(scratch.Path(u"missing"), hidden, 0);
    EXPECT_FALSE(proposal.change);
    EXPECT_NE(proposal.refusal, u"");
}

TEST(Attributes, WordsAndLettersAreReadOrRefused)
{
    EXPECT_EQ(ParseAttributes(u"read-only", "--set"), readOnly);
    EXPECT_EQ(ParseAttributes(u"rH", "--set"), readOnly | hidden);
    EXPECT_EQ(ParseAttributes(u"hidden,S", "--set"), hidden | systemFile);
    EXPECT_EQ(ParseAttributes(u"RHSATI", "--set"), AllAttributes());
    for (const char16_t* const text : {u"", u"X", u"D", u"read only", u"hidden,,S", u"Hidden "})
        EXPECT_THROW(static_cast<void>(ParseAttributes(text, "--set")), VyrHost::Text::UsageError)
            << VyrPlatform::Encoding::ToUtf8(text);
}

TEST(Attributes, LettersAreInTheOrderOfTheLibrary)
{
    EXPECT_EQ(AttributeLetters(0x1 | 0x2 | 0x10 | 0x20 | 0x2000), u"RHDAI");
    EXPECT_EQ(AttributeLetters(0x80), u"-");
}

TEST(Attributes, WrongJournalTextsAreRefused)
{
    EXPECT_TRUE(AttributesChange::Read(u"80 0644 - -", u"3 2"));
    for (const char16_t* const text : {u"", u"80", u"x 0644", u"-1 0644", u"ffffffff 0644"})
        EXPECT_FALSE(AttributesChange::Read(text, u"3 2")) << VyrPlatform::Encoding::ToUtf8(text);
    for (const char16_t* const text : {u"", u"3", u"0 0", u"1 2", u"10 10", u"3 x", u"100000003 1"})
        EXPECT_FALSE(AttributesChange::Read(u"80 0644 - -", text)) << VyrPlatform::Encoding::ToUtf8(text);
}
