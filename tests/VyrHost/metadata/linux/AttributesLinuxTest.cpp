// A change of attributes that was cut off on Linux, where the mode follows the attribute.
#include <VyrHost/metadata/Attributes.h>
#include <VyrPlatform/files/ExactState.h>
#include <VyrPlatform/files/FileAttributes.h>

#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>

namespace FileAttributes = VyrPlatform::FileAttributes;
namespace ExactState = VyrPlatform::ExactState;
using VyrHost::Metadata::AttributesChange;
using VyrHost::Model::ChangeState;

TEST(AttributesChangeLinux, FileThatIsMarkedReadOnlyAloneIsFinished)
{
    constexpr auto writable = std::filesystem::perms(0644);
    const VyrTests::ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    std::filesystem::permissions(VyrTests::ToStdPath(path), writable);
    std::uint32_t error = 0;
    const auto before = ExactState::Read(path, ExactState::Part::Attributes, error);
    ASSERT_TRUE(before);
    const AttributesChange change({.before = 0x80, .beforeState = *before, .mask = 0x5, .value = 0x5});
    ASSERT_EQ(change.Apply(path), 0U);
    // As if the program had ended before it came to the mode.
    std::filesystem::permissions(VyrTests::ToStdPath(path), writable);
    change.Repair(path);
    EXPECT_EQ(std::filesystem::status(VyrTests::ToStdPath(path)).permissions(), std::filesystem::perms(0444));
    EXPECT_EQ(FileAttributes::Get(path), 0x5U);
    EXPECT_EQ(change.Look(path).state, ChangeState::After);
    EXPECT_EQ(change.Undo(path), 0U);
    EXPECT_EQ(std::filesystem::status(VyrTests::ToStdPath(path)).permissions(), writable);
}
