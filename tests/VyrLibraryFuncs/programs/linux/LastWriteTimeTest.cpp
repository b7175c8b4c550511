// The last write of an entry, with times that only a tree in memory can have.
#include <tests/support/FileMoments.h>
#include <tests/support/TimeZone.h>
#include <tests/support/UserLocale.h>

#include <VyrLibraryFuncs/programs/ProgramsFeaturesFuncs.h>
#include <VyrLibraryFuncs/programs/RegistryFuncs.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/registry/LinuxRegistry.h>

#include <gtest/gtest.h>

#include <limits>

using VyrLibraryFuncs::ProgramsFeaturesFuncs;
using VyrLibraryFuncs::RegistryFuncs;

namespace {

class LastWriteTime : public testing::Test
{
protected:
    ~LastWriteTime() override { VyrPlatform::Registry::ShowNothing(HKEY_LOCAL_MACHINE); }

    /// The text that the inventory gives for `moment`.
    [[nodiscard]] static CString TextOf(VyrPlatform::FileTicks moment)
    {
        VyrPlatform::Registry::MemoryTree tree;
        EXPECT_TRUE(tree.SetLastWrite(u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\T", moment));
        VyrPlatform::Registry::ShowTree(HKEY_LOCAL_MACHINE, tree);
        const auto items = ProgramsFeaturesFuncs::GetProgramsFeaturesItemsList(2, 0);
        EXPECT_EQ(items.size(), 1U);
        const CString date = RegistryFuncs::GetProductInstallDate(u"T");
        EXPECT_EQ(items.at(0).LastWriteTime, date) << "both operations say the same";
        return date;
    }

    VyrTests::TimeZone zone{"Europe/Berlin"};
    VyrTests::UserLocale locale{u"de_DE"};
};

} // namespace

TEST_F(LastWriteTime, IsLocalTimeWithoutFractions)
{
    EXPECT_EQ(TextOf(VyrTests::TicksOfUnixTime(1'704'450'600, 9'999'999)), u"05.01.2024 11:30:00");
    EXPECT_EQ(TextOf(VyrTests::TicksOfUnixTime(1'719'828'000)), u"01.07.2024 12:00:00");
    EXPECT_EQ(TextOf(VyrTests::TicksOfUnixTime(0)), u"01.01.1970 01:00:00");
}

TEST_F(LastWriteTime, ThatIsNoDateIsEmpty)
{
    EXPECT_EQ(TextOf(std::numeric_limits<VyrPlatform::FileTicks>::max()), u"");
    EXPECT_EQ(TextOf(-1'000'000'000'000'000'000), u"");
}
