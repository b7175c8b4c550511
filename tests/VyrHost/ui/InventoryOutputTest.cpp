// Lists of programs, products and browsers: the columns, their description, and the values.
#include <VyrHost/ui/InventoryOutput.h>

#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/text/Encoding.h>

#include <gmock/gmock.h>

#include <fstream>
#include <set>

using namespace VyrHost::Ui;
using VyrHost::Inventory::Browser;
using VyrHost::Inventory::Product;
using VyrHost::Inventory::Program;
using VyrLibraryUtils::DateTimeUtils;

namespace {

std::set<std::string> NamesIn(const std::vector<RecordColumn>& columns)
{
    std::set<std::string> names;
    for (const RecordColumn& column : columns)
        names.emplace(column.name);
    EXPECT_EQ(names.size(), columns.size());
    return names;
}

/// The names in backquotes in the second column of the table under `heading`.
std::set<std::string> DocumentedNames(const std::string& heading)
{
    std::ifstream document(VYR_SOURCE_FOLDER "/docs/inventory.md");
    EXPECT_TRUE(document.is_open());
    std::set<std::string> names;
    bool isHere = false;
    for (std::string line; std::getline(document, line);) {
        if (line.starts_with('#'))
            isHere = line == heading;
        const std::size_t column = line.find('|', 1);
        if (!isHere || !line.starts_with("| ") || column == line.npos)
            continue;
        const std::string cell = line.substr(column, line.find('|', column + 1) - column);
        for (std::size_t start = cell.find('`'); start != cell.npos;) {
            const std::size_t end = cell.find('`', start + 1);
            names.insert(cell.substr(start + 1, end - start - 1));
            start = cell.find('`', end + 1);
        }
    }
    return names;
}

/// The value of the first program in the column `name`.
std::string ValueIn(const RecordTable& table, std::string_view name)
{
    for (std::size_t column = 0; column < table.columns.size(); ++column)
        if (table.columns[column].name == name)
            return VyrPlatform::Encoding::ToUtf8(PlainText(table.valueAt(0, column)));
    return "no such column";
}

} // namespace

TEST(InventoryColumns, AreAllDescribed)
{
    EXPECT_EQ(DocumentedNames("## vyr programs"), NamesIn(ProgramColumns()));
    EXPECT_EQ(DocumentedNames("## vyr programs --installer"), NamesIn(ProductColumns()));
    EXPECT_EQ(DocumentedNames("## vyr browsers"), NamesIn(BrowserColumns()));
}

TEST(InventoryColumns, HoldTheFieldsOfAProgram)
{
    std::vector<Program> programs(1);
    auto& item = programs[0].item;
    item.DisplayName = u"name";
    item.InstallDate = DateTimeUtils::GetFormatedDate(COleDateTime(2023, 5, 6, 0, 0, 0));
    item.LastWriteTime = DateTimeUtils::GetFormatedDateTime(COleDateTime(2024, 1, 5, 10, 30, 7));
    item.DisplayIcon = u"C:\\a.exe,-101";
    item.EstimatedSizeBytes = std::uint64_t{0xFFFF'FFFF} * 1024;
    item.NoRepair = 1;
    item.IsWow6432Node = 1;
    const RecordTable table = TableOfPrograms(programs);
    EXPECT_EQ(ValueIn(table, "name"), "name");
    EXPECT_EQ(ValueIn(table, "installDate"), "2023-05-06");
    EXPECT_EQ(ValueIn(table, "keyWritten"), "2024-01-05T10:30:07");
    EXPECT_EQ(ValueIn(table, "icon"), "C:\\a.exe");
    EXPECT_EQ(ValueIn(table, "iconIndex"), "-101");
    EXPECT_EQ(ValueIn(table, "size"), "4398046510080");
    EXPECT_EQ(ValueIn(table, "noRepair"), "true");
    EXPECT_EQ(ValueIn(table, "noRemove"), "false");
    EXPECT_EQ(ValueIn(table, "view"), "32-bit");
    EXPECT_EQ(ValueIn(table, "publisher"), "");
    EXPECT_EQ(ValueIn(table, "versionMajor"), "");
}

TEST(InventoryColumns, TakeTheDayOfTheKeyWithoutADateOfInstallation)
{
    std::vector<Program> programs(1);
    EXPECT_EQ(ValueIn(TableOfPrograms(programs), "installDate"), "");
    programs[0].item.LastWriteTime = DateTimeUtils::GetFormatedDateTime(COleDateTime(2024, 1, 5, 10, 30, 7));
    EXPECT_EQ(ValueIn(TableOfPrograms(programs), "installDate"), "2024-01-05");
}

TEST(InventoryColumns, HoldTheFieldsOfProductsAndBrowsers)
{
    std::vector<Product> products(1);
    products[0].item.ProductKey = u"1234";
    products[0].item.ProductIcon = u"C:\\p.ico,3";
    products[0].item.Version = 0xFFFF'FFFF;
    const RecordTable productTable = TableOfProducts(products);
    EXPECT_EQ(ValueIn(productTable, "productKey"), "1234");
    EXPECT_EQ(ValueIn(productTable, "icon"), "C:\\p.ico");
    EXPECT_EQ(ValueIn(productTable, "version"), "4294967295");
    std::vector<Browser> browsers(1);
    browsers[0].item.AppType = 1;
    browsers[0].item.Command = u"shell:x";
    const RecordTable browserTable = TableOfBrowsers(browsers);
    EXPECT_EQ(ValueIn(browserTable, "type"), "packaged");
    EXPECT_EQ(ValueIn(browserTable, "command"), "shell:x");
}
