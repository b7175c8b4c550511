// The functions for C as hosts in C call them, on real files, lists and registries.
#include "CalledFromC.h"

#include <VyrC/vyr.h>
#include <VyrPlatform/text/CString.h>

#include <tests/support/ListWindow.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>

using VyrTests::ListWindow;
using VyrTests::ScratchFolder;

namespace {

int reports = 0;

void Report(const char* call, const char* what)
{
    ++reports;
    ADD_FAILURE() << what << ": " << call;
}

const std::uint16_t* Units(const CString& text)
{
    return reinterpret_cast<const std::uint16_t*>(text.GetString());
}

CString Text(const vyr_text& text)
{
    return std::u16string_view(reinterpret_cast<const char16_t*>(text.units), static_cast<std::size_t>(text.length));
}

} // namespace

TEST(VyrCTest, WrongArgumentsAreReportedAndNothingElseHappens)
{
    EXPECT_GT(call_with_wrong_arguments(&Report), 1000);
}

TEST(VyrCTest, HostInCGetsTheKnownResults)
{
    EXPECT_GT(call_with_known_answers(&Report), 30);
}

TEST(VyrCTest, CopiedFoldersAreReturnedAsAList)
{
    const ScratchFolder scratch;
    const auto source = VyrTests::ToStdPath(scratch.Path()) / "from";
    const auto target = VyrTests::ToStdPath(scratch.Path()) / "to";
    std::filesystem::create_directories(source / "a" / "b");
    std::filesystem::create_directory(target);
    std::ofstream(source / "a" / "b" / "file") << "content";
    const CString from(source.u16string());
    const CString to(target.u16string());
    vyr_list list = 0;
    std::int32_t isDone = 0;
    ASSERT_EQ(vyr_name_copy_folder(Units(from), -1, Units(to), -1, &list, &isDone), VYR_OK);
    EXPECT_EQ(isDone, 1);
    EXPECT_TRUE(std::filesystem::exists(target / "a" / "b" / "file"));
    std::size_t count = 0;
    ASSERT_EQ(vyr_list_get_count(list, &count), VYR_OK);
    ASSERT_EQ(count, 2U);
    vyr_name_rename_item record{};
    record.struct_size = sizeof record;
    ASSERT_EQ(vyr_name_rename_item_get(list, 1, &record), VYR_OK);
    EXPECT_EQ(std::filesystem::path(std::u16string(Text(record.destination_path))).filename(), "b");
    EXPECT_EQ(record.date_modified.status, 0);
    EXPECT_EQ(vyr_list_release(list), VYR_OK);

    EXPECT_EQ(vyr_name_copy_folder(Units(from), -1, Units(to), -1, nullptr, &isDone), VYR_OK) << "records are left out";
}

TEST(VyrCTest, TimesAreWrittenToAFile)
{
    const ScratchFolder scratch;
    const auto file = VyrTests::ToStdPath(scratch.Path()) / "file";
    std::ofstream(file) << "content";
    const CString path(file.u16string());
    std::uint64_t moment = 0;
    std::int32_t isDone = 0;
    ASSERT_EQ(vyr_date_time_get_modified_file_date_time(Units(path), -1, 1, 45322, 0, 0.25, 0, 0, &moment), VYR_OK);
    ASSERT_NE(moment, 0U);
    ASSERT_EQ(vyr_date_time_set_modified_file_date_time(Units(path), -1, nullptr, &moment, nullptr, &isDone), VYR_OK);
    EXPECT_NE(isDone, 0);
    std::uint64_t written = 0;
    ASSERT_EQ(vyr_date_time_get_selected_file_date_time(Units(path), -1, 0, 1, &written), VYR_OK);
    EXPECT_EQ(written, moment);
}

TEST(VyrCTest, ColumnsOfAListAreFound)
{
    const ListWindow window{u"Name", u"Size"};
    const CString name = u"size";
    std::int32_t index = -5;
    ASSERT_EQ(
        vyr_column_get_column_header_item(reinterpret_cast<std::intptr_t>(window.GetHandle()), Units(name), -1, &index),
        VYR_OK);
    EXPECT_EQ(index, 1);
    ASSERT_EQ(vyr_column_get_column_header_item(987654321, Units(name), -1, &index), VYR_OK);
    EXPECT_EQ(index, -1);
}
