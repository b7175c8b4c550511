// The functions for C as hosts in C call them, on real files, lists and registries.
#include "CalledFromC.h"
#include "RegistryFiles.h"

#include <VyrC/vyr.h>
#include <VyrPlatform/text/CString.h>

#include <tests/support/ComThread.h>
#include <tests/support/CompoundDocument.h>
#include <tests/support/HtmlPage.h>
#include <tests/support/ListWindow.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

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

vyr_text InC(const CString& text)
{
    return {Units(text), text.GetLength()};
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

TEST(VyrCTest, HostInCDescribesItsListsRegistriesAndDrainAndReadsDocuments)
{
    const VyrTests::ComThread com;
    const ScratchFolder scratch;
    const VyrCTests::RegistryFiles registry = VyrCTests::MakeRegistryFiles(scratch);
    const CString document =
        scratch.WriteFile(u"a.xml", R"(<updates product="V"><item id="1">one</item><x><item>two</item></x></updates>)");
    const host_files files{registry.areOpened, InC(registry.software), InC(registry.user), InC(registry.prefix),
                           InC(document)};
    EXPECT_GT(call_with_host_models(&files, &Report), 30);
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

TEST(VyrCTest, ManyPathsArePreviewedByOneCall)
{
    const CString folder = u"/d/";
    const CString endings[] = {u".jpg", u"", u".\u00E4"};
    std::vector<vyr_name_item> items(3);
    for (std::size_t index = 0; index < items.size(); ++index) {
        items[index].struct_size = sizeof(vyr_name_item);
        items[index].dir_path = {Units(folder), folder.GetLength()};
        items[index].extension = {Units(endings[index]), -1};
        items[index].index = static_cast<std::int32_t>(index);
        items[index].step = 1;
    }
    vyr_list list = 0;
    ASSERT_EQ(vyr_name_get_rename_file_paths(items.data(), items.size(), &list), VYR_OK);
    std::size_t count = 0;
    ASSERT_EQ(vyr_list_get_count(list, &count), VYR_OK);
    ASSERT_EQ(count, 3U);
    const CString expected[] = {u"/d/0.jpg", u"/d/1", u"/d/2.\u00E4"};
    vyr_text path{};
    for (std::size_t index = 0; index < count; ++index) {
        ASSERT_EQ(vyr_text_get(list, index, &path), VYR_OK);
        EXPECT_EQ(Text(path), expected[index]);
    }
    EXPECT_EQ(vyr_text_get(list, count, &path), VYR_WRONG_ARGUMENT);
    EXPECT_EQ(vyr_list_release(list), VYR_OK);

    items[1].struct_size = 8;
    EXPECT_EQ(vyr_name_get_rename_file_paths(items.data(), items.size(), &list), VYR_WRONG_ARGUMENT);
    EXPECT_EQ(vyr_name_get_rename_file_paths(nullptr, 0, &list), VYR_OK);
    EXPECT_EQ(vyr_list_get_count(list, &count), VYR_OK);
    EXPECT_EQ(count, 0U);
    EXPECT_EQ(vyr_list_release(list), VYR_OK);
}

TEST(VyrCTest, MissingStyleSheetIsNoDocument)
{
    const VyrTests::ComThread com;
    const ScratchFolder scratch;
    const CString nothing = scratch.Path(u"missing.xml");
    void* document = &reports;
    EXPECT_EQ(vyr_msxml_load_xslt_file(Units(nothing), -1, &document), VYR_OK);
    EXPECT_FALSE(document);
}

TEST(VyrCTest, PicturesOfAPageGetAStyle)
{
    const VyrTests::ComThread com;
    VyrTests::HtmlElement wide;
    wide.address = u"a.jpg";
    wide.width = 2000;
    wide.height = 100;
    VyrTests::HtmlPage page({wide});
    const vyr_rect client{0, 0, 800, 600};
    EXPECT_EQ(vyr_mshtml_img_set_resize_img_style(page.Document(), &client), VYR_OK);
    EXPECT_EQ(page.Elements()[0].styleWidth, CString(u"100%"));
}

TEST(VyrCTest, PageThatIsGoneOrDamagedIsRefused)
{
    const vyr_rect client{0, 0, 800, 600};
    VyrTests::HtmlPage page({});
    std::uintptr_t damaged = 0;
    std::memcpy(&damaged, page.Document(), sizeof damaged);
    damaged ^= std::uintptr_t{5} << 56;
    EXPECT_EQ(vyr_mshtml_img_set_resize_img_style(&damaged, &client), VYR_WRONG_ARGUMENT) << "its table is nowhere";
    auto freed = std::make_unique<std::uintptr_t[]>(64);
    void* const address = freed.get();
    freed.reset();
    EXPECT_EQ(vyr_mshtml_img_set_resize_img_style(address, &client), VYR_WRONG_ARGUMENT) << "it was freed";
    EXPECT_EQ(vyr_mshtml_img_set_resize_img_style(reinterpret_cast<void*>(&vyr_version), &client), VYR_WRONG_ARGUMENT)
        << "it is a function";
    EXPECT_EQ(vyr_mshtml_img_set_resize_img_style(nullptr, &client), VYR_OK) << "no page";
}

TEST(VyrCTest, PropertiesOfEveryTypeAreWrittenToADocument)
{
    using VyrTests::summaryName;
    const VyrTests::ComThread com;
    const ScratchFolder scratch;
    VyrTests::CompoundDocument document;
    document.streams[summaryName] = VyrTests::BuildSummary({{1, VyrTests::StoredCodePage(1252)},
                                                            {2, VyrTests::StoredByteText("Old")},
                                                            {4, VyrTests::StoredByteText("By")}});
    const CString path = scratch.WriteFile(u"a.doc", document.Bytes());
    const vyr_guid none{};
    const auto write = [&](std::uint32_t id, vyr_value value) {
        value.struct_size = sizeof value;
        std::int32_t isWritten = 0;
        EXPECT_EQ(vyr_office_property_set_dump_props(Units(path), -1, id, &value, &none, &isWritten), VYR_OK);
        return isWritten;
    };
    const CString title = u"Title";
    vyr_value text{};
    text.type = 31;
    text.text = {Units(title), 3};
    EXPECT_EQ(write(2, text), 1);
    vyr_value nothing{};
    EXPECT_EQ(write(4, nothing), 1);
    vyr_value number{};
    number.type = 3;
    number.number = -7;
    EXPECT_EQ(write(14, number), 1);
    vyr_value bytes{};
    const std::uint8_t keywords[] = {'k', 'e', 'y'};
    bytes.type = 30;
    bytes.bytes = keywords;
    bytes.bytes_count = sizeof keywords;
    EXPECT_EQ(write(5, bytes), 1);
    auto stored = VyrTests::ReadProperties(VyrTests::ReadStreams(scratch.ReadFile(u"a.doc"))[summaryName]);
    EXPECT_EQ(stored[2], VyrTests::StoredWideText(u"Tit"));
    // A system may keep a property without a value.
    EXPECT_NE(stored[4], VyrTests::StoredByteText("By"));
    EXPECT_EQ(stored[14], std::string("\3\0\0\0\xF9\xFF\xFF\xFF", 8));
    EXPECT_EQ(stored[5], VyrTests::StoredByteText("key"));

    std::int32_t isWritten = 1;
    EXPECT_EQ(vyr_office_property_set_dump_props(Units(path), -1, 2, nullptr, &none, &isWritten), VYR_OK);
    EXPECT_EQ(isWritten, 0) << "no value is refused";
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
