// Reads the products of Windows Installer.
#include <VyrLibraryFuncs/programs/ProgramsFeaturesFuncs.h>

#include <VyrLibraryFuncs/programs/SubkeyWalk.h>
#include <VyrLibraryUtils/StringUtils.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/process/MessageQueue.h>

#include <optional>
#include <utility>

using VyrLibraryUtils::StringUtils;
using namespace VyrPlatform;

namespace VyrLibraryFuncs {

namespace {

using Product = ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM;
using RegValue = ProgramsFeaturesFuncs::REGVALUE;
using Registry::Handle;

constexpr std::uint32_t text = 1;
constexpr std::uint32_t number = 4;

/// The codes of the fields.
namespace Code {
constexpr std::int32_t productIcon = 5;
constexpr std::int32_t productName = 6;
constexpr std::int32_t version = 11;
constexpr std::int32_t packageCode = 28;
constexpr std::int32_t language = 33;
constexpr std::int32_t deploymentFlags = 34;
} // namespace Code

/// Stores a text in the field of `code`.
/// @return false when there is no such field.
bool StoreText(Product& product, std::int32_t code, const CString& content)
{
    switch (code) {
    case Code::productIcon:
        product.ProductIcon = StringUtils::GetRemoveDoubleQuotesString(content);
        return true;
    case Code::productName:
        product.ProductName = content;
        return true;
    case Code::packageCode:
        product.PackageCode = content;
        return true;
    default:
        return false;
    }
}

bool StoreNumber(Product& product, std::int32_t code, std::uint32_t content)
{
    switch (code) {
    case Code::version:
        product.Version = content;
        return true;
    case Code::language:
        product.Language = content;
        return true;
    case Code::deploymentFlags:
        product.DeploymentFlags = content;
        return true;
    default:
        return false;
    }
}

void ReadInto(Product& product, Handle key, const RegValue& value)
{
    if (value.Type == number) {
        const std::optional<std::uint32_t> content = Registry::ReadNumber(key, value.Name);
        if (content && StoreNumber(product, value.Field, *content))
            TraceValue(value.Name, StringUtils::DWORDNumberToString(*content));
    } else if (value.Type == text) {
        const std::optional<CString> content = Registry::ReadText(key, value.Name);
        if (content && StoreText(product, value.Field, *content))
            TraceValue(value.Name, *content);
    }
}

bool IsMatch(const Product& product, const CString& name, const CString& iconFilter)
{
    return !name.IsEmpty() && product.ProductName == name && !product.ProductIcon.IsEmpty() &&
           product.ProductIcon.Find(iconFilter) >= 0;
}

} // namespace

std::vector<ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM>
ProgramsFeaturesFuncs::GetProgramsFeaturesInstallerProductsItemsList()
{
    const std::vector<REGVALUE> values = GetProgramsFeaturesInstallerProductsValueList();
    std::vector<INSTALLER_PRODUCTS_ITEM> items =
        GetProgramsFeaturesInstallerProductsItemsList(HKEY_CLASSES_ROOT, u"Installer\\Products", values, {});
    return GetProgramsFeaturesInstallerProductsItemsList(HKEY_CURRENT_USER, u"SOFTWARE\\Microsoft\\Installer\\Products",
                                                         values, std::move(items));
}

std::vector<ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM>
ProgramsFeaturesFuncs::GetProgramsFeaturesInstallerProductsItemsList(HKEY root, CString keyPath,
                                                                     std::vector<REGVALUE> values,
                                                                     std::vector<INSTALLER_PRODUCTS_ITEM> items)
{
    ForEachSubkey(root, keyPath, [&](const CString& name, Handle key) {
        Product product;
        product.ProductKey = name;
        for (const RegValue& value : values) {
            if (MessageQueue::DrainOne())
                break;
            ReadInto(product, key, value);
        }
        items.push_back(std::move(product));
    });
    return items;
}

std::vector<ProgramsFeaturesFuncs::REGVALUE> ProgramsFeaturesFuncs::GetProgramsFeaturesInstallerProductsValueList()
{
    return {
        {u"ProductName", text, Code::productName}, {u"ProductIcon", text, Code::productIcon},
        {u"PackageCode", text, Code::packageCode}, {u"DeploymentFlags", number, Code::deploymentFlags},
        {u"Language", number, Code::language},     {u"Version", number, Code::version},
    };
}

CString ProgramsFeaturesFuncs::GetProductIcon(CString iconFilter, CString productName,
                                              std::vector<INSTALLER_PRODUCTS_ITEM> products)
{
    for (const INSTALLER_PRODUCTS_ITEM& product : products) {
        if (MessageQueue::DrainOne())
            return {};
        if (IsMatch(product, productName, iconFilter))
            return product.ProductIcon;
    }
    return {};
}

} // namespace VyrLibraryFuncs
