// Each part is restored exactly and without the others.
#include <VyrPlatform/files/ExactState.h>

#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileTimes.h>
#include <tests/support/FileMoments.h>
#include <tests/support/FileState.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <optional>
#include <utility>

namespace FileAttributes = VyrPlatform::FileAttributes;
namespace FileTimes = VyrPlatform::FileTimes;
using VyrPlatform::ExactState::Part;
using VyrPlatform::ExactState::Read;
using VyrPlatform::ExactState::Restore;
using VyrTests::ScratchFolder;
using VyrTests::TicksOfUnixTime;

namespace {

constexpr std::uint32_t readOnly = 0x1;
constexpr std::uint32_t hidden = 0x2;
constexpr Part allParts[] = {Part::Modified, Part::Accessed, Part::Created, Part::Attributes};

CString StateOf(const CString& path, Part part)
{
    std::uint32_t error = 0;
    const auto state = Read(path, part, error);
    EXPECT_TRUE(state) << error;
    return state.value_or(CString());
}

} // namespace

TEST(ExactState, TimeIsRestoredWithoutTheOthers)
{
    const ScratchFolder scratch;
    for (const CString& path : {scratch.WriteFile(u"a", "x"), scratch.MakeFolder(u"folder")}) {
        VyrTests::StampFile(path, TicksOfUnixTime(1'700'000'000, 1'234'567), TicksOfUnixTime(1'600'000'000, 7));
        const CString modified = StateOf(path, Part::Modified);
        const CString accessed = StateOf(path, Part::Accessed);
        VyrTests::StampFile(path, TicksOfUnixTime(1'000'000'000), TicksOfUnixTime(1'100'000'000));
        EXPECT_EQ(Restore(path, Part::Modified, modified), 0U);
        EXPECT_EQ(FileTimes::GetModified(path), TicksOfUnixTime(1'700'000'000, 1'234'567));
        EXPECT_EQ(FileTimes::GetAccessed(path), TicksOfUnixTime(1'100'000'000));
        EXPECT_EQ(StateOf(path, Part::Modified), modified);
        EXPECT_EQ(Restore(path, Part::Accessed, accessed), 0U);
        EXPECT_EQ(FileTimes::GetModified(path), TicksOfUnixTime(1'700'000'000, 1'234'567));
        EXPECT_EQ(StateOf(path, Part::Accessed), accessed);
    }
}

TEST(ExactState, TimeIsToldWithItsState)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "x");
    VyrTests::StampFile(path, TicksOfUnixTime(1'700'000'000, 1'234'567), TicksOfUnixTime(1'600'000'000, 7));
    constexpr std::pair<Part, std::optional<VyrPlatform::FileTicks> (*)(const CString&)> times[] = {
        {Part::Modified, FileTimes::GetModified},
        {Part::Accessed, FileTimes::GetAccessed},
        {Part::Created, FileTimes::GetCreated}};
    for (const auto& [part, get] : times) {
        std::uint32_t error = 0;
        const auto time = VyrPlatform::ExactState::ReadTime(path, part, error);
        ASSERT_TRUE(time) << error;
        EXPECT_EQ(time->ticks, get(path));
        EXPECT_EQ(time->state, StateOf(path, part));
        // Only some systems tell the file in the same look.
        const VyrPlatform::FileIdentity itself = VyrPlatform::LookAtFile(path).identity;
        EXPECT_EQ(time->file.value_or(itself), itself);
        EXPECT_FALSE(VyrPlatform::ExactState::ReadTime(scratch.Path(u"missing"), part, error));
        EXPECT_NE(error, 0U);
    }
}

TEST(ExactState, TimeIsToldWithTheProtectionOfAFileButNotOfAFolder)
{
    const ScratchFolder scratch;
    for (const CString& path : {scratch.WriteFile(u"a", "x"), scratch.MakeFolder(u"folder")})
        for (const bool isReadOnly : {true, false}) {
            VyrTests::SetReadOnly(path, isReadOnly);
            for (const Part part : {Part::Modified, Part::Accessed, Part::Created}) {
                std::uint32_t error = 0;
                const auto time = VyrPlatform::ExactState::ReadTime(path, part, error);
                ASSERT_TRUE(time) << error;
                EXPECT_EQ(time->isReadOnly, isReadOnly && path.View().ends_with(u'a'));
            }
        }
}

TEST(ExactState, TimeOfAReadOnlyFileIsRestored)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "x");
    const CString modified = StateOf(path, Part::Modified);
    VyrTests::StampFile(path, TicksOfUnixTime(1'000'000'000), TicksOfUnixTime(1'100'000'000));
    VyrTests::SetReadOnly(path, true);
    EXPECT_EQ(Restore(path, Part::Modified, modified), 0U);
    EXPECT_EQ(StateOf(path, Part::Modified), modified);
    EXPECT_TRUE(FileAttributes::IsReadOnly(path));
    VyrTests::SetReadOnly(path, false);
}

TEST(ExactState, CreationTimeComesBack)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "x");
    const CString before = StateOf(path, Part::Created);
    const auto created = FileTimes::GetCreated(path);
    if (!VyrTests::KeepsCreationTime(path))
        GTEST_SKIP() << "the creation time is not kept here (Wine drops it)";
    EXPECT_NE(FileTimes::GetCreated(path), created);
    EXPECT_EQ(Restore(path, Part::Created, before), 0U);
    EXPECT_EQ(FileTimes::GetCreated(path), created);
    EXPECT_EQ(StateOf(path, Part::Created), before);
}

TEST(ExactState, AttributesAreRestored)
{
    const ScratchFolder scratch;
    for (const CString& path : {scratch.WriteFile(u"a", "x"), scratch.MakeFolder(u"folder")}) {
        const CString before = StateOf(path, Part::Attributes);
        const std::uint32_t bits = FileAttributes::Get(path);
        ASSERT_EQ(FileAttributes::Set(path, bits | hidden | readOnly), 0U);
        const CString after = StateOf(path, Part::Attributes);
        EXPECT_EQ(Restore(path, Part::Attributes, before), 0U);
        EXPECT_EQ(StateOf(path, Part::Attributes), before);
        EXPECT_EQ(FileAttributes::Get(path), bits);
        EXPECT_EQ(Restore(path, Part::Attributes, after), 0U);
        EXPECT_EQ(StateOf(path, Part::Attributes), after);
        EXPECT_EQ(Restore(path, Part::Attributes, before), 0U);
    }
}

TEST(ExactState, MissingFileIsNeitherReadNorRestored)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    const CString missing = scratch.Path(u"missing");
    for (const Part part : allParts) {
        std::uint32_t error = 0;
        EXPECT_FALSE(Read(missing, part, error));
        EXPECT_NE(error, 0U);
        EXPECT_NE(Restore(missing, part, StateOf(path, part)), 0U);
    }
    EXPECT_FALSE(scratch.Has(u"missing"));
}

TEST(ExactState, InvalidStateIsRefusedAndChangesNothing)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    for (const Part part : allParts) {
        const CString before = StateOf(path, part);
        for (const char16_t* const text : {u"", u"x", u"-1 -1", u"99999999999999999999", u"1.1234567890", u"ffffffffff",
                                           u"- - -", u"\u00e4", u"0644 0 -", u"0644 zz -"})
            EXPECT_NE(Restore(path, part, text), 0U) << static_cast<int>(part);
        EXPECT_EQ(StateOf(path, part), before);
    }
}
