// What hosts in C describe to the library on Linux: their lists, and registries in files.
#include <VyrC/vyr.h>
#include <VyrPlatform/registry/RegistryValue.h>
#include <VyrPlatform/text/CString.h>

#include <tests/support/RegistryTree.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/linux/HiveBuilder.h>

#include <gtest/gtest.h>

namespace {

const std::uint16_t* Units(const CString& text)
{
    return reinterpret_cast<const std::uint16_t*>(text.GetString());
}

} // namespace

TEST(HostListsInC, DescribedListIsSearchedByItsHandle)
{
    std::intptr_t list = 0;
    ASSERT_EQ(vyr_host_list_create(&list), VYR_OK);
    ASSERT_NE(list, 0);
    const CString headings[] = {u"Name", u"Size", u"Date"};
    std::int32_t isDone = 0;
    for (int index = 0; index < 3; ++index) {
        ASSERT_EQ(vyr_host_list_insert_column(list, index, Units(headings[index]), -1, &isDone), VYR_OK);
        EXPECT_EQ(isDone, 1);
    }
    std::int32_t order = -1;
    ASSERT_EQ(vyr_host_list_move_column(list, 2, 0, &isDone), VYR_OK);
    ASSERT_EQ(vyr_column_get_column_item_order(list, Units(headings[0]), -1, &order), VYR_OK);
    EXPECT_EQ(order, 1);
    ASSERT_EQ(vyr_host_list_delete_column(list, 0, &isDone), VYR_OK);
    std::int32_t index = -5;
    ASSERT_EQ(vyr_column_get_column_header_item(list, Units(headings[1]), -1, &index), VYR_OK);
    EXPECT_EQ(index, 0);
    ASSERT_EQ(vyr_host_list_set_has_header(list, 0, &isDone), VYR_OK);
    ASSERT_EQ(vyr_column_get_column_header_item(list, Units(headings[1]), -1, &index), VYR_OK);
    EXPECT_EQ(index, -1);

    ASSERT_EQ(vyr_host_list_destroy(list, &isDone), VYR_OK);
    EXPECT_EQ(isDone, 1);
    ASSERT_EQ(vyr_host_list_destroy(list, &isDone), VYR_OK);
    EXPECT_EQ(isDone, 0);
    ASSERT_EQ(vyr_host_list_insert_column(list, 0, Units(headings[0]), -1, &isDone), VYR_OK);
    EXPECT_EQ(isDone, 0);
}

TEST(HostRegistryInC, ProgramsOfAHiveAreListed)
{
    const VyrTests::ScratchFolder scratch;
    const CString key = u"Microsoft\\Windows\\CurrentVersion\\Uninstall\\Sample";
    const VyrTests::RegistryTree tree{
        {}, {{key, u"DisplayName", VyrPlatform::Registry::ValueType::text, VyrTests::TextBytes(u"A sample")}}};
    const CString path = scratch.WriteFile(u"SOFTWARE", VyrTests::BuildHive(tree).bytes);
    vyr_host_registry_hive_files files{};
    files.struct_size = sizeof files;
    files.software = {Units(path), -1};
    vyr_list list = 0;
    vyr_host_registry_open_result result{};
    result.struct_size = sizeof result;
    ASSERT_EQ(vyr_host_registry_show_hives(&files, &list), VYR_OK);
    ASSERT_EQ(vyr_host_registry_open_result_get(list, 0, &result), VYR_OK);
    EXPECT_EQ(result.outcome, 0);
    EXPECT_EQ(vyr_list_release(list), VYR_OK);

    ASSERT_EQ(vyr_programs_get_programs_features_items_list(0, 1, &list), VYR_OK);
    std::size_t count = 0;
    ASSERT_EQ(vyr_list_get_count(list, &count), VYR_OK);
    ASSERT_EQ(count, 1U);
    vyr_programs_item program{};
    program.struct_size = sizeof program;
    ASSERT_EQ(vyr_programs_item_get(list, 0, &program), VYR_OK);
    EXPECT_EQ(CString(reinterpret_cast<const char16_t*>(program.display_name.units)), u"A sample");
    EXPECT_EQ(vyr_list_release(list), VYR_OK);

    ASSERT_EQ(vyr_host_registry_close(), VYR_OK);
    ASSERT_EQ(vyr_programs_get_programs_features_items_list(0, 1, &list), VYR_OK);
    ASSERT_EQ(vyr_list_get_count(list, &count), VYR_OK);
    EXPECT_EQ(count, 0U);
    EXPECT_EQ(vyr_list_release(list), VYR_OK);
}

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
