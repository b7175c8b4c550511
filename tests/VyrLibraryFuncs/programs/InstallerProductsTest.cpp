#include <tests/VyrLibraryFuncs/PrivateOperations.h>
#include <tests/support/DebugCapture.h>
#include <tests/support/EmptiedQueue.h>
#include <tests/support/MessagePosting.h>
#include <tests/support/ScratchRegistry.h>

#include <VyrLibraryFuncs/programs/ProgramsFeaturesFuncs.h>
#include <VyrPlatform/WinTypes.h>

#include <gtest/gtest.h>

using VyrLibraryFuncs::PrivateOperations;
using VyrLibraryFuncs::ProgramsFeaturesFuncs;
using VyrTests::ScratchRegistry;
using VyrTests::TextBytes;
using VyrTests::UnitBytes;
using Product = ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM;

namespace {

const CString machine = u"Installer\\Products";
const CString user = u"SOFTWARE\\Microsoft\\Installer\\Products";

class InstallerProducts : public testing::Test
{
protected:
    [[nodiscard]] static CString Entry() { return machine + u"\\00AB"; }
    [[nodiscard]] static Product Read()
    {
        const auto products = ProgramsFeaturesFuncs::GetProgramsFeaturesInstallerProductsItemsList();
        EXPECT_EQ(products.size(), 1U);
        return products.empty() ? Product() : products.front();
    }

    ScratchRegistry registry;
};

Product Named(const CString& name, const CString& icon)
{
    Product product;
    product.ProductName = name;
    product.ProductIcon = icon;
    return product;
}

} // namespace

TEST_F(InstallerProducts, EveryValueIsStoredInItsField)
{
    registry.SetText(HKEY_CLASSES_ROOT, Entry(), u"ProductName", u"My product");
    registry.SetText(HKEY_CLASSES_ROOT, Entry(), u"ProductIcon", u"\"C:\\i n\\icon.exe\"");
    registry.SetText(HKEY_CLASSES_ROOT, Entry(), u"PackageCode", u"CODE");
    registry.SetNumber(HKEY_CLASSES_ROOT, Entry(), u"DeploymentFlags", 3);
    registry.SetNumber(HKEY_CLASSES_ROOT, Entry(), u"Language", 1031);
    registry.SetNumber(HKEY_CLASSES_ROOT, Entry(), u"Version", 0x01020003);
    const VyrTests::DebugCapture debug;
    const Product product = Read();
    EXPECT_EQ(product.ProductKey, u"00AB");
    EXPECT_EQ(product.ProductName, u"My product");
    EXPECT_EQ(product.ProductIcon, u"C:\\i n\\icon.exe");
    EXPECT_EQ(product.PackageCode, u"CODE");
    EXPECT_EQ(product.DeploymentFlags, 3U);
    EXPECT_EQ(product.Language, 1031U);
    EXPECT_EQ(product.Version, 0x01020003U);
    CString trace;
    for (const CString& text : debug.Texts())
        trace += text;
    EXPECT_EQ(trace,
              u"00AB\r\n\tProductName:My product\r\n\tProductIcon:\"C:\\i n\\icon.exe\"\r\n\tPackageCode:CODE\r\n"
              u"\tDeploymentFlags:3\r\n\tLanguage:1031\r\n\tVersion:16908291\r\n");
}

TEST_F(InstallerProducts, KeyWithoutValuesIsARecordOfItsName)
{
    registry.AddKey(HKEY_CLASSES_ROOT, Entry());
    const Product product = Read();
    EXPECT_EQ(product.ProductKey, u"00AB");
    for (const CString& text : {product.PackageCode, product.ProductName, product.ProductIcon})
        EXPECT_EQ(text, u"");
    for (const std::uint32_t number : {product.DeploymentFlags, product.Language, product.Version})
        EXPECT_EQ(number, 0U);
}

TEST_F(InstallerProducts, IllTypedValuesAreSkipped)
{
    registry.SetText(HKEY_CLASSES_ROOT, Entry(), u"Version", u"5");
    registry.SetText(HKEY_CLASSES_ROOT, Entry(), u"Language", u"1033");
    registry.SetNumber(HKEY_CLASSES_ROOT, Entry(), u"ProductName", 5);
    registry.SetValue(HKEY_CLASSES_ROOT, Entry(), u"ProductIcon", 1, UnitBytes(u"open"));
    registry.SetText(HKEY_CLASSES_ROOT, Entry(), u"PackageCode", CString(u'x', 260));
    const Product product = Read();
    EXPECT_EQ(product.Version, 0U);
    EXPECT_EQ(product.Language, 0U);
    EXPECT_EQ(product.ProductName, u"");
    EXPECT_EQ(product.ProductIcon, u"");
    EXPECT_EQ(product.PackageCode, u"");
}

TEST_F(InstallerProducts, ExpandableTextStaysUnexpanded)
{
    registry.SetValue(HKEY_CLASSES_ROOT, Entry(), u"ProductIcon", 2, TextBytes(u"%PATH%\\i.ico"));
    EXPECT_EQ(Read().ProductIcon, u"%PATH%\\i.ico");
}

TEST_F(InstallerProducts, ThoseOfTheMachineAreFirstAndNothingIsMerged)
{
    for (const CString name : {u"2", u"1"}) {
        registry.SetText(HKEY_CURRENT_USER, CString::Join({user, u"\\", name}), u"ProductName", u"user");
        registry.SetText(HKEY_CLASSES_ROOT, CString::Join({machine, u"\\", name}), u"ProductName", u"machine");
    }
    CString list;
    for (const Product& product : ProgramsFeaturesFuncs::GetProgramsFeaturesInstallerProductsItemsList())
        list += CString::Join({product.ProductName, u" ", product.ProductKey, u"; "});
    EXPECT_EQ(list, u"machine 1; machine 2; user 1; user 2; ");
}

TEST_F(InstallerProducts, AreNoneWithoutKeys)
{
    EXPECT_TRUE(ProgramsFeaturesFuncs::GetProgramsFeaturesInstallerProductsItemsList().empty());
    const auto kept = PrivateOperations::GetProgramsFeaturesInstallerProductsItemsList(
        HKEY_CLASSES_ROOT, machine, PrivateOperations::GetProgramsFeaturesInstallerProductsValueList(),
        {Named(u"kept", u"")});
    ASSERT_EQ(kept.size(), 1U);
    EXPECT_EQ(kept[0].ProductName, u"kept");
}

TEST_F(InstallerProducts, OtherTypesAndCodesStoreNothing)
{
    registry.SetText(HKEY_CLASSES_ROOT, Entry(), u"T", u"text");
    registry.SetNumber(HKEY_CLASSES_ROOT, Entry(), u"N", 5);
    const VyrTests::DebugCapture debug;
    const auto products = PrivateOperations::GetProgramsFeaturesInstallerProductsItemsList(
        HKEY_CLASSES_ROOT, machine, {{u"T", 2, 6}, {u"T", 1, 11}, {u"N", 4, 5}, {u"N", 4, 28}, {u"T", 3, 6}}, {});
    ASSERT_EQ(products.size(), 1U);
    EXPECT_EQ(products[0].ProductName, u"");
    EXPECT_EQ(products[0].Version, 0U);
    EXPECT_EQ(products[0].PackageCode, u"");
    EXPECT_EQ(debug.Texts(), (std::vector<CString>{u"00AB\r\n"}));
}

TEST_F(InstallerProducts, ValueTableIsTheOneOfTheFormat)
{
    const std::tuple<CString, std::uint32_t, std::int32_t> expected[] = {
        {u"ProductName", 1, 6},      {u"ProductIcon", 1, 5}, {u"PackageCode", 1, 28},
        {u"DeploymentFlags", 4, 34}, {u"Language", 4, 33},   {u"Version", 4, 11},
    };
    const auto values = PrivateOperations::GetProgramsFeaturesInstallerProductsValueList();
    ASSERT_EQ(values.size(), std::size(expected));
    for (std::size_t i = 0; i < values.size(); ++i)
        EXPECT_EQ(std::tuple(values[i].Name, values[i].Type, values[i].Field), expected[i]);
}

TEST_F(InstallerProducts, StopEndsTheValuesOfOneProductOnly)
{
    for (const CString name : {u"\\1", u"\\2"})
        registry.SetText(HKEY_CLASSES_ROOT, machine + name, u"ProductName", u"named");
    const VyrTests::EmptiedQueue emptied;
    const VyrTests::MessagePosting posting;
    posting.PostStop();
    const auto products = ProgramsFeaturesFuncs::GetProgramsFeaturesInstallerProductsItemsList();
    ASSERT_EQ(products.size(), 2U);
    EXPECT_EQ(products[0].ProductKey, u"1");
    EXPECT_EQ(products[0].ProductName, u"");
    EXPECT_EQ(products[1].ProductName, u"named");
}

TEST(ProductIcon, IsThatOfTheFirstMatchingProduct)
{
    const std::vector<Product> products = {
        Named(u"Tool", u""),
        Named(u"tool", u"C:\\lower.ico"),
        Named(u"Tool", u"C:\\first.ico"),
        Named(u"Tool", u"C:\\Installer\\second.ico"),
        Named(u"", u"C:\\nameless.ico"),
    };
    const auto icon = ProgramsFeaturesFuncs::GetProductIcon;
    EXPECT_EQ(icon(u"", u"Tool", products), u"C:\\first.ico");
    EXPECT_EQ(icon(u"Installer", u"Tool", products), u"C:\\Installer\\second.ico");
    EXPECT_EQ(icon(u"installer", u"Tool", products), u"");
    EXPECT_EQ(icon(u"", u"TOOL", products), u"");
    EXPECT_EQ(icon(u"", u"tool", products), u"C:\\lower.ico");
    EXPECT_EQ(icon(u"", u"", products), u"");
    EXPECT_EQ(icon(u"", u"Tool", {}), u"");
}

TEST(ProductIcon, StopEndsTheSearch)
{
    const VyrTests::EmptiedQueue emptied;
    const VyrTests::MessagePosting posting;
    posting.PostStop();
    const std::vector<Product> products = {Named(u"Tool", u"icon")};
    EXPECT_EQ(ProgramsFeaturesFuncs::GetProductIcon(u"", u"Tool", products), u"");
    EXPECT_EQ(ProgramsFeaturesFuncs::GetProductIcon(u"", u"Tool", products), u"icon");
}
