// Reads the entries of the uninstall keys.
#include <VyrLibraryFuncs/programs/ProgramsFeaturesFuncs.h>

#include <VyrLibraryFuncs/programs/LastWriteText.h>
#include <VyrLibraryFuncs/programs/SubkeyWalk.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrLibraryUtils/StringUtils.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/process/MessageQueue.h>
#include <VyrPlatform/process/Process.h>

#include <optional>
#include <utility>

using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::FileUtils;
using VyrLibraryUtils::StringUtils;
using namespace VyrPlatform;

namespace VyrLibraryFuncs {

namespace {

using Item = ProgramsFeaturesFuncs::ITEM;
using RegValue = ProgramsFeaturesFuncs::REGVALUE;
using Registry::Handle;

const char16_t uninstallKey[] = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall";
const char16_t uninstallKey32[] = u"SOFTWARE\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion\\Uninstall";
const char16_t installerKey[] =
    u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Installer\\UserData\\S-1-5-18\\Products";

constexpr std::uint32_t text = 1;
constexpr std::uint32_t expandedText = 2;
constexpr std::uint32_t number = 4;

// The codes of fields that need more than a copy of their value.
constexpr std::int32_t displayIcon = 5;
constexpr std::int32_t displayNameLocalized = 7;
constexpr std::int32_t installDate = 9;
constexpr std::int32_t estimatedSize = 10;
constexpr std::int32_t helpLink = 14;
constexpr std::int32_t uninstallString = 39;

struct TableValue
{
    const char16_t* name;
    std::uint32_t type;
    std::int32_t field;
};

constexpr TableValue valueTable[] = {
    {u"DisplayIcon", text, displayIcon},
    {u"DisplayName", text, 6},
    {u"DisplayName_Localized", text, displayNameLocalized},
    {u"DisplayVersion", text, 11},
    {u"Publisher", text, 8},
    {u"InstallDate", text, installDate},
    {u"InstallLocation", text, 16},
    {u"InstallSource", text, 21},
    {u"Readme", text, 18},
    {u"Comments", text, 12},
    {u"Contact", text, 13},
    {u"UninstallString", expandedText, uninstallString},
    {u"EstimatedSize", number, estimatedSize},
    {u"HelpLink", text, helpLink},
    {u"HelpTelephone", text, 23},
    {u"URLInfoAbout", text, 22},
    {u"URLUpdateInfo", text, 24},
    {u"RegCompany", text, 19},
    {u"RegOwner", text, 20},
    {u"ParentDisplayName", text, 26},
    {u"ParentKeyName", text, 27},
    {u"SystemComponent", number, 29},
    {u"WindowsInstaller", number, 30},
    {u"VersionMajor", number, 31},
    {u"VersionMinor", number, 32},
    {u"Language", number, 33},
    {u"NoModify", number, 35},
    {u"NoRepair", number, 36},
    {u"NoRemove", number, 37},
    {u"NoElevateOnModify", number, 38},
};

template <class Content>
struct Field
{
    std::int32_t code;
    Content Item::*member;
};

constexpr Field<CString> textFields[] = {
    {6, &Item::DisplayName},    {8, &Item::Publisher},       {11, &Item::DisplayVersion},    {12, &Item::Comments},
    {13, &Item::Contact},       {helpLink, &Item::HelpLink}, {16, &Item::InstallLocation},   {18, &Item::Readme},
    {19, &Item::RegCompany},    {20, &Item::RegOwner},       {21, &Item::InstallSource},     {22, &Item::URLInfoAbout},
    {23, &Item::HelpTelephone}, {24, &Item::URLUpdateInfo},  {26, &Item::ParentDisplayName}, {27, &Item::ParentKeyName},
};

constexpr Field<std::uint32_t> numberFields[] = {
    {29, &Item::SystemComponent}, {30, &Item::WindowsInstaller}, {31, &Item::VersionMajor},
    {32, &Item::VersionMinor},    {33, &Item::Language},         {35, &Item::NoModify},
    {36, &Item::NoRepair},        {37, &Item::NoRemove},         {38, &Item::NoElevateOnModify},
};

/// Stores `content` in the field of `code`, if there is one.
/// @return whether there is one.
template <class Content, std::size_t count>
bool Store(const Field<Content> (&fields)[count], std::int32_t code, const Content& content, Item& item)
{
    for (const auto& [fieldCode, member] : fields)
        if (fieldCode == code) {
            item.*member = content;
            return true;
        }
    return false;
}

void ReadTextInto(Item& item, Handle key, const RegValue& value)
{
    const std::optional<CString> content = Registry::ReadText(key, value.Name);
    if (!content)
        return;
    if (value.Field == displayIcon)
        item.DisplayIcon = StringUtils::GetRemoveDoubleQuotesString(*content);
    else if (value.Field == displayNameLocalized)
        item.DisplayNameLocalized =
            Registry::LoadIndirectText(key, value.Name, Registry::bufferCapacity).value_or(CString());
    else if (value.Field == installDate)
        item.InstallDate = DateTimeUtils::GetFormatedDate(DateTimeUtils::GetInstallDateTime(*content));
    else
        Store(textFields, value.Field, *content, item);
    TraceValue(value.Name, *content);
}

void ReadExpandedTextInto(Item& item, Handle key, const RegValue& value)
{
    const std::optional<CString> content = Registry::ReadText(key, value.Name);
    if (!content)
        return;
    const std::optional<CString> expanded = Process::ExpandEnvironment(*content, Registry::bufferCapacity);
    if (!expanded)
        return;
    if (value.Field == uninstallString) {
        item.UninstallString = *expanded;
        TraceValue(value.Name, *expanded);
    } else if (value.Field == helpLink) {
        item.HelpLink = *content;
        TraceValue(value.Name, *content);
    }
}

void StoreSize(Item& item, std::uint32_t kilobytes)
{
    item.EstimatedSize = kilobytes;
    if (kilobytes == 0)
        return;
    item.EstimatedSizeBytes = std::uint64_t{kilobytes} << 10;
    item.FormattedSize = FileUtils::GetFileSize(static_cast<std::int64_t>(item.EstimatedSizeBytes), 0);
}

void ReadNumberInto(Item& item, Handle key, const RegValue& value)
{
    const std::optional<std::uint32_t> content = Registry::ReadNumber(key, value.Name);
    if (!content)
        return;
    if (value.Field == estimatedSize)
        StoreSize(item, *content);
    else if (!Store(numberFields, value.Field, *content, item))
        return;
    TraceValue(value.Name, StringUtils::DWORDNumberToString(*content));
}

void ReadInto(Item& item, Handle key, const RegValue& value)
{
    switch (value.Type) {
    case text:
        return ReadTextInto(item, key, value);
    case expandedText:
        return ReadExpandedTextInto(item, key, value);
    case number:
        return ReadNumberInto(item, key, value);
    default:
        return;
    }
}

void ReadValues(Item& item, Handle key, const std::vector<RegValue>& values)
{
    for (const RegValue& value : values) {
        if (MessageQueue::DrainOne())
            return;
        ReadInto(item, key, value);
    }
}

/// Appends a record for each key below the one at `path`.
/// @param isWow6432Node the view that the records name.
std::vector<Item> Walk(HKEY root, const CString& path, const std::vector<RegValue>& values, std::vector<Item> items,
                       int isWow6432Node)
{
    const CString parentName = ProgramsFeaturesFuncs::GetKeyParentName(root);
    ForEachSubkey(root, path, [&](const CString& name, Handle key) {
        Item item;
        item.FullKeyName = CString::Join({parentName, u"\\", path, u"\\", name});
        item.KeyName = CString::Join({path, u"\\", name});
        item.SubKeyName = name;
        item.IsWow6432Node = isWow6432Node;
        item.LastWriteTime = GetLastWriteText(key).value_or(CString());
        DebugOutput::Write(item.LastWriteTime + u"\r\n");
        ReadValues(item, key, values);
        items.push_back(std::move(item));
    });
    return items;
}

} // namespace

std::vector<ProgramsFeaturesFuncs::ITEM> ProgramsFeaturesFuncs::GetProgramsFeaturesItemsList(int scope,
                                                                                             int includeWow6432Node)
{
    const std::vector<REGVALUE> values = GetProgramsFeaturesValueList();
    std::vector<ITEM> items;
    const auto walkBothViews = [&](HKEY root) {
        items = GetProgramsFeaturesItemsList(root, uninstallKey, values, std::move(items));
        if (includeWow6432Node)
            items = GetProgramsFeaturesItemsList(root, uninstallKey32, values, std::move(items));
    };
    if (scope == 0 || scope == 2)
        walkBothViews(HKEY_LOCAL_MACHINE);
    if (scope == 0 || scope == 1)
        walkBothViews(HKEY_CURRENT_USER);
    return items;
}

std::vector<ProgramsFeaturesFuncs::ITEM>
ProgramsFeaturesFuncs::GetProgramsFeaturesItemsList(HKEY root, CString keyPath, std::vector<REGVALUE> values,
                                                    std::vector<ITEM> items)
{
    return Walk(root, keyPath, values, std::move(items), IsWow6432Node(keyPath));
}

std::vector<ProgramsFeaturesFuncs::ITEM> ProgramsFeaturesFuncs::GetProgramsFeaturesWindowsInstallerItemsList(int scope)
{
    if (scope != 0 && scope != 2)
        return {};
    return GetProgramsFeaturesWindowsInstallerItemsList(HKEY_LOCAL_MACHINE, installerKey,
                                                        GetProgramsFeaturesValueList(), {});
}

std::vector<ProgramsFeaturesFuncs::ITEM> ProgramsFeaturesFuncs::GetProgramsFeaturesWindowsInstallerItemsList(
    HKEY root, CString keyPath, std::vector<REGVALUE> values, std::vector<ITEM> items)
{
    return Walk(root, keyPath, values, std::move(items), 0);
}

std::vector<ProgramsFeaturesFuncs::REGVALUE> ProgramsFeaturesFuncs::GetProgramsFeaturesValueList()
{
    std::vector<REGVALUE> values;
    for (const auto& [name, type, field] : valueTable)
        values.push_back({name, type, field});
    return values;
}

} // namespace VyrLibraryFuncs
