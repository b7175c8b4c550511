// What hosts in C are told of files that are no registry.
#include <VyrC/vyr.h>
#include <VyrPlatform/text/CString.h>

#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

namespace {

const std::uint16_t* Units(const CString& text)
{
    return reinterpret_cast<const std::uint16_t*>(text.GetString());
}

} // namespace

TEST(HostRegistryInC, FileThatIsNoHiveIsToldOf)
{
    const VyrTests::ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"SOFTWARE", "no hive at all, but long enough to look at");
    vyr_host_registry_hive_files files{};
    files.struct_size = sizeof files;
    files.software = {Units(path), -1};
    vyr_list list = 0;
    vyr_host_registry_open_result result{};
    result.struct_size = sizeof result;
    ASSERT_EQ(vyr_host_registry_show_hives(&files, &list), VYR_OK);
    ASSERT_EQ(vyr_host_registry_open_result_get(list, 0, &result), VYR_OK);
    EXPECT_NE(result.outcome, 0);
    EXPECT_EQ(CString(reinterpret_cast<const char16_t*>(result.file.units)), path);
    EXPECT_EQ(vyr_list_release(list), VYR_OK);
}
