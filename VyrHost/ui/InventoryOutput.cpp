// The columns of programs, products and browsers, and the fields with their values.
#include <VyrHost/ui/InventoryOutput.h>

#include <VyrLibraryUtils/DateTimeUtils.h>

#include <span>

namespace VyrHost::Ui {

namespace {

using Inventory::Browser;
using Inventory::Product;
using Inventory::Program;
using Inventory::Scope;
using VyrLibraryFuncs::ProgramsFeaturesFuncs;
using VyrLibraryUtils::DateTimeUtils;
using ProgramItem = ProgramsFeaturesFuncs::ITEM;
using ProductItem = ProgramsFeaturesFuncs::INSTALLER_PRODUCTS_ITEM;
using BrowserItem = VyrLibraryFuncs::BrowserFuncs::APPITEM;

/// The library's number for the user's locale.
constexpr std::uint32_t userLocale = 1024;

/// A date in the library's form.
RecordValue DateOf(const CString& text, bool hasTime)
{
    const COleDateTime date = DateTimeUtils::GetParseDateTime(text, 1, 0, userLocale);
    return date.GetStatus() == COleDateTime::valid ? RecordValue(RecordDate{date, hasTime}) : RecordValue();
}

RecordValue ScopeOf(Scope scope)
{
    return CString(scope == Scope::Machine ? u"machine" : u"user");
}

/// No value for 0, which the library returns for a missing one.
RecordValue NumberOf(std::uint64_t number)
{
    return number == 0 ? RecordValue() : RecordValue(static_cast<std::int64_t>(number));
}

RecordValue FlagOf(std::uint32_t flag)
{
    return flag != 0;
}

RecordValue IconOf(const CString& icon)
{
    return ValueOf(ProgramsFeaturesFuncs::GetApplicationIcon(icon).first);
}

RecordValue IconIndexOf(const CString& icon)
{
    return icon.IsEmpty() ? RecordValue()
                          : RecordValue(std::int64_t{ProgramsFeaturesFuncs::GetApplicationIcon(icon).second});
}

const RecordField<Program> programFields[] = {
    {{"name", "Name", RecordKind::Text, true}, TextAt<&Program::item, &ProgramItem::DisplayName>},
    {{"publisher", "Publisher", RecordKind::Text, true}, TextAt<&Program::item, &ProgramItem::Publisher>},
    {{"installDate", "Installed", RecordKind::Date, true},
     [](const Program& p) {
         return DateOf(ProgramsFeaturesFuncs::GetInstallDate(p.item.InstallDate, p.item.LastWriteTime), false);
     }},
    {{"size", "Size", RecordKind::Size, true}, ValueAt<NumberOf, &Program::item, &ProgramItem::EstimatedSizeBytes>},
    {{"version", "Version", RecordKind::Text, true}, TextAt<&Program::item, &ProgramItem::DisplayVersion>},
    {{"user", "User"}, TextAt<&Program::user>},
    {{"scope", "Scope"}, ValueAt<ScopeOf, &Program::scope>},
    {{"view", "View"},
     [](const Program& p) {
         return RecordValue(CString(p.item.IsWow6432Node != 0 ? u"32-bit" : u"native"));
     }},
    {{"key", "Key"}, TextAt<&Program::item, &ProgramItem::FullKeyName>},
    {{"installLocation", "Location"}, TextAt<&Program::item, &ProgramItem::InstallLocation>},
    {{"installSource", "Source"}, TextAt<&Program::item, &ProgramItem::InstallSource>},
    {{"aboutUrl", "About"}, TextAt<&Program::item, &ProgramItem::URLInfoAbout>},
    {{"updateUrl", "Updates"}, TextAt<&Program::item, &ProgramItem::URLUpdateInfo>},
    {{"helpUrl", "Help"}, TextAt<&Program::item, &ProgramItem::HelpLink>},
    {{"helpTelephone", "Telephone"}, TextAt<&Program::item, &ProgramItem::HelpTelephone>},
    {{"comments", "Comments"}, TextAt<&Program::item, &ProgramItem::Comments>},
    {{"contact", "Contact"}, TextAt<&Program::item, &ProgramItem::Contact>},
    {{"readme", "Readme"}, TextAt<&Program::item, &ProgramItem::Readme>},
    {{"registeredCompany", "Company"}, TextAt<&Program::item, &ProgramItem::RegCompany>},
    {{"registeredOwner", "Owner"}, TextAt<&Program::item, &ProgramItem::RegOwner>},
    {{"localizedName", "Localized name"}, TextAt<&Program::item, &ProgramItem::DisplayNameLocalized>},
    {{"icon", "Icon"}, ValueAt<IconOf, &Program::item, &ProgramItem::DisplayIcon>},
    {{"iconIndex", "Icon index", RecordKind::Number}, ValueAt<IconIndexOf, &Program::item, &ProgramItem::DisplayIcon>},
    {{"uninstallCommand", "Uninstall command"}, TextAt<&Program::item, &ProgramItem::UninstallString>},
    {{"keyWritten", "Key written", RecordKind::Date},
     [](const Program& p) {
         return DateOf(p.item.LastWriteTime, true);
     }},
    {{"versionMajor", "Major", RecordKind::Number}, ValueAt<NumberOf, &Program::item, &ProgramItem::VersionMajor>},
    {{"versionMinor", "Minor", RecordKind::Number}, ValueAt<NumberOf, &Program::item, &ProgramItem::VersionMinor>},
    {{"language", "Language", RecordKind::Number}, ValueAt<NumberOf, &Program::item, &ProgramItem::Language>},
    {{"parentName", "Part of"}, TextAt<&Program::item, &ProgramItem::ParentDisplayName>},
    {{"parentKey", "Key of the whole"}, TextAt<&Program::item, &ProgramItem::ParentKeyName>},
    {{"windowsInstaller", "Windows Installer", RecordKind::Flag},
     ValueAt<FlagOf, &Program::item, &ProgramItem::WindowsInstaller>},
    {{"systemComponent", "System component", RecordKind::Flag},
     ValueAt<FlagOf, &Program::item, &ProgramItem::SystemComponent>},
    {{"noModify", "Not to be changed", RecordKind::Flag}, ValueAt<FlagOf, &Program::item, &ProgramItem::NoModify>},
    {{"noRepair", "Not to be repaired", RecordKind::Flag}, ValueAt<FlagOf, &Program::item, &ProgramItem::NoRepair>},
    {{"noRemove", "Not to be removed", RecordKind::Flag}, ValueAt<FlagOf, &Program::item, &ProgramItem::NoRemove>},
    {{"noElevateOnModify", "Changed without an administrator", RecordKind::Flag},
     ValueAt<FlagOf, &Program::item, &ProgramItem::NoElevateOnModify>},
    {{"hidden", "Hidden", RecordKind::Flag},
     [](const Program& p) {
         return RecordValue(p.IsHidden());
     }},
};

const RecordField<Product> productFields[] = {
    {{"name", "Name", RecordKind::Text, true}, TextAt<&Product::item, &ProductItem::ProductName>},
    {{"icon", "Icon", RecordKind::Text, true}, ValueAt<IconOf, &Product::item, &ProductItem::ProductIcon>},
    {{"iconIndex", "Icon index", RecordKind::Number}, ValueAt<IconIndexOf, &Product::item, &ProductItem::ProductIcon>},
    {{"productKey", "Product", RecordKind::Text, true}, TextAt<&Product::item, &ProductItem::ProductKey>},
    {{"packageCode", "Package"}, TextAt<&Product::item, &ProductItem::PackageCode>},
    {{"version", "Version", RecordKind::Number}, ValueAt<NumberOf, &Product::item, &ProductItem::Version>},
    {{"language", "Language", RecordKind::Number}, ValueAt<NumberOf, &Product::item, &ProductItem::Language>},
    {{"deploymentFlags", "Deployment flags", RecordKind::Number},
     ValueAt<NumberOf, &Product::item, &ProductItem::DeploymentFlags>},
    {{"user", "User"}, TextAt<&Product::user>},
    {{"scope", "Scope"}, ValueAt<ScopeOf, &Product::scope>},
};

const RecordField<Browser> browserFields[] = {
    {{"name", "Name", RecordKind::Text, true}, TextAt<&Browser::item, &BrowserItem::DisplayName>},
    {{"type", "Type", RecordKind::Text, true},
     [](const Browser& b) {
         return RecordValue(CString(b.IsPackaged() ? u"packaged" : u"registered"));
     }},
    {{"command", "Command", RecordKind::Text, true}, TextAt<&Browser::item, &BrowserItem::Command>},
    {{"program", "Program"}, TextAt<&Browser::item, &BrowserItem::ExecutablePath>},
    {{"key", "Key"}, TextAt<&Browser::item, &BrowserItem::AppKey>},
};

template <class Record, std::size_t Count>
std::span<const RecordField<Record>> Fields(const RecordField<Record> (&fields)[Count])
{
    return fields;
}

/// The library's order of keys for a sorted list.
int CompareKeys(const Program& left, const Program& right)
{
    return ProgramsFeaturesFuncs::CompareRegKey(left.item.FullKeyName, right.item.FullKeyName, left.item.IsWow6432Node,
                                                right.item.IsWow6432Node, 0);
}

} // namespace

std::vector<RecordColumn> ProgramColumns()
{
    return ColumnsOf(Fields(programFields));
}

RecordTable TableOfPrograms(const std::vector<Program>& programs)
{
    RecordTable table = TableOf(programs, Fields(programFields));
    table.title = "Installed programs";
    for (RecordColumn& column : table.columns)
        if (column.name == "key")
            column.compareRows = [&programs](std::size_t left, std::size_t right) {
                return CompareKeys(programs[left], programs[right]);
            };
    table.toneOf = [&programs](std::size_t row) {
        return programs[row].IsHidden() ? Tone::Faint : Tone::Plain;
    };
    return table;
}

std::vector<RecordColumn> ProductColumns()
{
    return ColumnsOf(Fields(productFields));
}

RecordTable TableOfProducts(const std::vector<Product>& products)
{
    RecordTable table = TableOf(products, Fields(productFields));
    table.title = "Installer products";
    return table;
}

std::vector<RecordColumn> BrowserColumns()
{
    return ColumnsOf(Fields(browserFields));
}

RecordTable TableOfBrowsers(const std::vector<Browser>& browsers)
{
    RecordTable table = TableOf(browsers, Fields(browserFields));
    table.title = "Browsers";
    return table;
}

} // namespace VyrHost::Ui
