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

const RecordField<Program> programFields[] = {
    {{"name", "Name", RecordKind::Text, true},
     [](const Program& p) {
         return ValueOf(p.item.DisplayName);
     }},
    {{"publisher", "Publisher", RecordKind::Text, true},
     [](const Program& p) {
         return ValueOf(p.item.Publisher);
     }},
    {{"installDate", "Installed", RecordKind::Date, true},
     [](const Program& p) {
         return DateOf(ProgramsFeaturesFuncs::GetInstallDate(p.item.InstallDate, p.item.LastWriteTime), false);
     }},
    {{"size", "Size", RecordKind::Size, true},
     [](const Program& p) {
         return NumberOf(p.item.EstimatedSizeBytes);
     }},
    {{"version", "Version", RecordKind::Text, true},
     [](const Program& p) {
         return ValueOf(p.item.DisplayVersion);
     }},
    {{"user", "User"},
     [](const Program& p) {
         return ValueOf(p.user);
     }},
    {{"scope", "Scope"},
     [](const Program& p) {
         return ScopeOf(p.scope);
     }},
    {{"view", "View"},
     [](const Program& p) {
         return RecordValue(CString(p.item.IsWow6432Node != 0 ? u"32-bit" : u"native"));
     }},
    {{"key", "Key"},
     [](const Program& p) {
         return ValueOf(p.item.FullKeyName);
     }},
    {{"installLocation", "Location"},
     [](const Program& p) {
         return ValueOf(p.item.InstallLocation);
     }},
    {{"installSource", "Source"},
     [](const Program& p) {
         return ValueOf(p.item.InstallSource);
     }},
    {{"aboutUrl", "About"},
     [](const Program& p) {
         return ValueOf(p.item.URLInfoAbout);
     }},
    {{"updateUrl", "Updates"},
     [](const Program& p) {
         return ValueOf(p.item.URLUpdateInfo);
     }},
    {{"helpUrl", "Help"},
     [](const Program& p) {
         return ValueOf(p.item.HelpLink);
     }},
    {{"helpTelephone", "Telephone"},
     [](const Program& p) {
         return ValueOf(p.item.HelpTelephone);
     }},
    {{"comments", "Comments"},
     [](const Program& p) {
         return ValueOf(p.item.Comments);
     }},
    {{"contact", "Contact"},
     [](const Program& p) {
         return ValueOf(p.item.Contact);
     }},
    {{"readme", "Readme"},
     [](const Program& p) {
         return ValueOf(p.item.Readme);
     }},
    {{"registeredCompany", "Company"},
     [](const Program& p) {
         return ValueOf(p.item.RegCompany);
     }},
    {{"registeredOwner", "Owner"},
     [](const Program& p) {
         return ValueOf(p.item.RegOwner);
     }},
    {{"localizedName", "Localized name"},
     [](const Program& p) {
         return ValueOf(p.item.DisplayNameLocalized);
     }},
    {{"icon", "Icon"},
     [](const Program& p) {
         return ValueOf(ProgramsFeaturesFuncs::GetApplicationIcon(p.item.DisplayIcon).first);
     }},
    {{"iconIndex", "Icon index", RecordKind::Number},
     [](const Program& p) {
         return p.item.DisplayIcon.IsEmpty()
                    ? RecordValue()
                    : RecordValue(std::int64_t{ProgramsFeaturesFuncs::GetApplicationIcon(p.item.DisplayIcon).second});
     }},
    {{"uninstallCommand", "Uninstall command"},
     [](const Program& p) {
         return ValueOf(p.item.UninstallString);
     }},
    {{"keyWritten", "Key written", RecordKind::Date},
     [](const Program& p) {
         return DateOf(p.item.LastWriteTime, true);
     }},
    {{"versionMajor", "Major", RecordKind::Number},
     [](const Program& p) {
         return NumberOf(p.item.VersionMajor);
     }},
    {{"versionMinor", "Minor", RecordKind::Number},
     [](const Program& p) {
         return NumberOf(p.item.VersionMinor);
     }},
    {{"language", "Language", RecordKind::Number},
     [](const Program& p) {
         return NumberOf(p.item.Language);
     }},
    {{"parentName", "Part of"},
     [](const Program& p) {
         return ValueOf(p.item.ParentDisplayName);
     }},
    {{"parentKey", "Key of the whole"},
     [](const Program& p) {
         return ValueOf(p.item.ParentKeyName);
     }},
    {{"windowsInstaller", "Windows Installer", RecordKind::Flag},
     [](const Program& p) {
         return FlagOf(p.item.WindowsInstaller);
     }},
    {{"systemComponent", "System component", RecordKind::Flag},
     [](const Program& p) {
         return FlagOf(p.item.SystemComponent);
     }},
    {{"noModify", "Not to be changed", RecordKind::Flag},
     [](const Program& p) {
         return FlagOf(p.item.NoModify);
     }},
    {{"noRepair", "Not to be repaired", RecordKind::Flag},
     [](const Program& p) {
         return FlagOf(p.item.NoRepair);
     }},
    {{"noRemove", "Not to be removed", RecordKind::Flag},
     [](const Program& p) {
         return FlagOf(p.item.NoRemove);
     }},
    {{"noElevateOnModify", "Changed without an administrator", RecordKind::Flag},
     [](const Program& p) {
         return FlagOf(p.item.NoElevateOnModify);
     }},
    {{"hidden", "Hidden", RecordKind::Flag}, [](const Program& p) {
         return RecordValue(p.IsHidden());
     }}};

const RecordField<Product> productFields[] = {
    {{"name", "Name", RecordKind::Text, true},
     [](const Product& p) {
         return ValueOf(p.item.ProductName);
     }},
    {{"icon", "Icon", RecordKind::Text, true},
     [](const Product& p) {
         return ValueOf(ProgramsFeaturesFuncs::GetApplicationIcon(p.item.ProductIcon).first);
     }},
    {{"iconIndex", "Icon index", RecordKind::Number},
     [](const Product& p) {
         return p.item.ProductIcon.IsEmpty()
                    ? RecordValue()
                    : RecordValue(std::int64_t{ProgramsFeaturesFuncs::GetApplicationIcon(p.item.ProductIcon).second});
     }},
    {{"productKey", "Product", RecordKind::Text, true},
     [](const Product& p) {
         return ValueOf(p.item.ProductKey);
     }},
    {{"packageCode", "Package"},
     [](const Product& p) {
         return ValueOf(p.item.PackageCode);
     }},
    {{"version", "Version", RecordKind::Number},
     [](const Product& p) {
         return NumberOf(p.item.Version);
     }},
    {{"language", "Language", RecordKind::Number},
     [](const Product& p) {
         return NumberOf(p.item.Language);
     }},
    {{"deploymentFlags", "Deployment flags", RecordKind::Number},
     [](const Product& p) {
         return NumberOf(p.item.DeploymentFlags);
     }},
    {{"user", "User"},
     [](const Product& p) {
         return ValueOf(p.user);
     }},
    {{"scope", "Scope"}, [](const Product& p) {
         return ScopeOf(p.scope);
     }}};

const RecordField<Browser> browserFields[] = {{{"name", "Name", RecordKind::Text, true},
                                               [](const Browser& b) {
                                                   return ValueOf(b.item.DisplayName);
                                               }},
                                              {{"type", "Type", RecordKind::Text, true},
                                               [](const Browser& b) {
                                                   return RecordValue(
                                                       CString(b.IsPackaged() ? u"packaged" : u"registered"));
                                               }},
                                              {{"command", "Command", RecordKind::Text, true},
                                               [](const Browser& b) {
                                                   return ValueOf(b.item.Command);
                                               }},
                                              {{"program", "Program"},
                                               [](const Browser& b) {
                                                   return ValueOf(b.item.ExecutablePath);
                                               }},
                                              {{"key", "Key"}, [](const Browser& b) {
                                                   return ValueOf(b.item.AppKey);
                                               }}};

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
    return TableOf(products, Fields(productFields));
}

std::vector<RecordColumn> BrowserColumns()
{
    return ColumnsOf(Fields(browserFields));
}

RecordTable TableOfBrowsers(const std::vector<Browser>& browsers)
{
    return TableOf(browsers, Fields(browserFields));
}

} // namespace VyrHost::Ui
