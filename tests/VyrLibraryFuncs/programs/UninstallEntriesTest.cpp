#include <tests/VyrLibraryFuncs/PrivateOperations.h>
#include <tests/support/DebugCapture.h>
#include <tests/support/EmptiedQueue.h>
#include <tests/support/MessagePosting.h>
#include <tests/support/ScratchRegistry.h>
#include <tests/support/UserLocale.h>

#include <VyrLibraryFuncs/programs/ProgramsFeaturesFuncs.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/process/MessageQueue.h>
#include <VyrPlatform/process/Process.h>
#include <VyrPlatform/time/Clock.h>

#include <gmock/gmock.h>

using VyrLibraryFuncs::PrivateOperations;
using VyrLibraryFuncs::ProgramsFeaturesFuncs;
using VyrTests::NumberBytes;
using VyrTests::ScratchRegistry;
using VyrTests::TextBytes;
using VyrTests::UnitBytes;
using Item = ProgramsFeaturesFuncs::ITEM;
using RegValue = ProgramsFeaturesFuncs::REGVALUE;

namespace {

const CString uninstall = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall";
const CString uninstall32 = u"SOFTWARE\\Wow6432Node\\Microsoft\\Windows\\CurrentVersion\\Uninstall";
const CString installer = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Installer\\UserData\\S-1-5-18\\Products";

class UninstallEntries : public testing::Test
{
protected:
    /// The path of the entry at which the tests look.
    [[nodiscard]] static CString Entry() { return uninstall + u"\\Tool"; }
    void SetText(const CString& name, std::u16string_view text)
    {
        registry.SetText(HKEY_LOCAL_MACHINE, Entry(), name, text);
    }
    void SetNumber(const CString& name, std::uint32_t number)
    {
        registry.SetNumber(HKEY_LOCAL_MACHINE, Entry(), name, number);
    }
    /// The record of that entry.
    [[nodiscard]] static Item Read()
    {
        const std::vector<Item> items = ProgramsFeaturesFuncs::GetProgramsFeaturesItemsList(2, 0);
        EXPECT_EQ(items.size(), 1U);
        return items.empty() ? Item() : items.front();
    }
    /// The record under other values to read.
    [[nodiscard]] static Item Read(std::vector<RegValue> values)
    {
        const auto items =
            PrivateOperations::GetProgramsFeaturesItemsList(HKEY_LOCAL_MACHINE, uninstall, std::move(values), {});
        EXPECT_EQ(items.size(), 1U);
        return items.empty() ? Item() : items.front();
    }

    ScratchRegistry registry;
    VyrTests::UserLocale locale{u"en_US"};
};

std::vector<CString> FullNames(const std::vector<Item>& items)
{
    std::vector<CString> names;
    for (const Item& item : items)
        names.push_back(item.FullKeyName);
    return names;
}

CString AllTexts(const VyrTests::DebugCapture& debug)
{
    CString all;
    for (const CString& text : debug.Texts())
        all += text;
    return all;
}

} // namespace

TEST_F(UninstallEntries, EveryTextIsStoredInTheFieldOfItsName)
{
    const std::pair<const char16_t*, CString Item::*> fields[] = {
        {u"DisplayIcon", &Item::DisplayIcon},
        {u"DisplayName", &Item::DisplayName},
        {u"DisplayVersion", &Item::DisplayVersion},
        {u"InstallLocation", &Item::InstallLocation},
        {u"Publisher", &Item::Publisher},
        {u"URLInfoAbout", &Item::URLInfoAbout},
        {u"URLUpdateInfo", &Item::URLUpdateInfo},
        {u"Comments", &Item::Comments},
        {u"Contact", &Item::Contact},
        {u"HelpLink", &Item::HelpLink},
        {u"HelpTelephone", &Item::HelpTelephone},
        {u"InstallSource", &Item::InstallSource},
        {u"Readme", &Item::Readme},
        {u"RegCompany", &Item::RegCompany},
        {u"RegOwner", &Item::RegOwner},
        {u"ParentDisplayName", &Item::ParentDisplayName},
        {u"ParentKeyName", &Item::ParentKeyName},
        {u"UninstallString", &Item::UninstallString},
    };
    for (const auto& [name, field] : fields)
        SetText(name, CString(u"the ") + name);
    const Item item = Read();
    for (const auto& [name, field] : fields)
        EXPECT_EQ(item.*field, CString(u"the ") + name);
    for (const CString& unused : {item.Unused18, item.Unused19, item.Unused22, item.Unused27, item.Unused42})
        EXPECT_EQ(unused, u"");
}

TEST_F(UninstallEntries, EveryNumberIsStoredInTheFieldOfItsName)
{
    const std::pair<const char16_t*, std::uint32_t Item::*> fields[] = {
        {u"EstimatedSize", &Item::EstimatedSize},
        {u"SystemComponent", &Item::SystemComponent},
        {u"WindowsInstaller", &Item::WindowsInstaller},
        {u"VersionMajor", &Item::VersionMajor},
        {u"VersionMinor", &Item::VersionMinor},
        {u"Language", &Item::Language},
        {u"NoModify", &Item::NoModify},
        {u"NoRepair", &Item::NoRepair},
        {u"NoRemove", &Item::NoRemove},
        {u"NoElevateOnModify", &Item::NoElevateOnModify},
    };
    std::uint32_t number = 100;
    for (const auto& [name, field] : fields)
        SetNumber(name, ++number);
    const Item item = Read();
    number = 100;
    for (const auto& [name, field] : fields)
        EXPECT_EQ(item.*field, ++number);
    EXPECT_EQ(item.Unused34, 0U);
}

TEST_F(UninstallEntries, EntryWithoutValuesIsARecordOfItsNames)
{
    registry.AddKey(HKEY_LOCAL_MACHINE, Entry());
    const COleDateTime before = VyrPlatform::Clock::Now();
    const Item item = Read();
    EXPECT_EQ(item.SubKeyName, u"Tool");
    EXPECT_EQ(item.KeyName, uninstall + u"\\Tool");
    EXPECT_EQ(item.FullKeyName, CString::Join({u"HKEY_LOCAL_MACHINE\\", uninstall, u"\\Tool"}));
    EXPECT_EQ(item.IsWow6432Node, 0);
    EXPECT_EQ(item.DisplayName, u"");
    EXPECT_EQ(item.InstallDate, u"");
    EXPECT_EQ(item.FormattedSize, u"");
    EXPECT_EQ(item.EstimatedSizeBytes, 0U);
    const COleDateTime written = VyrLibraryUtils::DateTimeUtils::GetParseDateTime(item.LastWriteTime, 1, 0, 1024);
    ASSERT_EQ(written.GetStatus(), COleDateTime::valid);
    EXPECT_NEAR(written, before, 60.0 / 86'400);
}

TEST_F(UninstallEntries, IconLosesItsQuotes)
{
    SetText(u"DisplayIcon", u"\"C:\\a b\\c.exe\",0\"");
    EXPECT_EQ(Read().DisplayIcon, u"C:\\a b\\c.exe,0");
}

TEST_F(UninstallEntries, InstallDateIsWrittenAsADate)
{
    SetText(u"InstallDate", u"20240229");
    EXPECT_EQ(Read().InstallDate, u"2/29/2024");
}

TEST_F(UninstallEntries, InvalidInstallDateIsEmpty)
{
    for (const CString text : {u"20230229", u"2024-02-29", u"yesterday", u"", u"2/29/2024"}) {
        SetText(u"InstallDate", text);
        EXPECT_EQ(Read().InstallDate, u"");
    }
}

TEST_F(UninstallEntries, SizeIsInKilobytes)
{
    SetNumber(u"EstimatedSize", 1);
    Item item = Read();
    EXPECT_EQ(item.EstimatedSize, 1U);
    EXPECT_EQ(item.EstimatedSizeBytes, 1024U);
    EXPECT_EQ(item.FormattedSize, u"1.00 KB");

    SetNumber(u"EstimatedSize", 0);
    item = Read();
    EXPECT_EQ(item.EstimatedSizeBytes, 0U);
    EXPECT_EQ(item.FormattedSize, u"");

    SetNumber(u"EstimatedSize", 0xFFFFFFFF);
    item = Read();
    EXPECT_EQ(item.EstimatedSizeBytes, 0x3FFFFFFFC00U);
    EXPECT_EQ(item.FormattedSize, u"3.99 TB");
}

TEST_F(UninstallEntries, SizeThatIsATextIsSkipped)
{
    SetText(u"EstimatedSize", u"5");
    EXPECT_EQ(Read().EstimatedSize, 0U);
    EXPECT_EQ(Read().FormattedSize, u"");
}

TEST_F(UninstallEntries, NumberOfFewerBytesCountsWithZerosAboveIt)
{
    registry.SetValue(HKEY_LOCAL_MACHINE, Entry(), u"Language", 4, "\x09\x04");
    registry.SetValue(HKEY_LOCAL_MACHINE, Entry(), u"NoModify", 4, "12345");
    EXPECT_EQ(Read().Language, 0x0409U);
    EXPECT_EQ(Read().NoModify, 0U);
}

TEST_F(UninstallEntries, TextOf259UnitsIsReadAndOneOf260IsNot)
{
    SetText(u"DisplayName", CString(u'x', 259));
    SetText(u"Publisher", CString(u'x', 260));
    registry.SetValue(HKEY_LOCAL_MACHINE, Entry(), u"Comments", 1, UnitBytes(CString(u'x', 260)));
    EXPECT_EQ(Read().DisplayName, CString(u'x', 259));
    EXPECT_EQ(Read().Publisher, u"");
    EXPECT_EQ(Read().Comments, u"");
}

TEST_F(UninstallEntries, ExpandableNameIsNotExpanded)
{
    registry.SetValue(HKEY_LOCAL_MACHINE, Entry(), u"DisplayName", 2, TextBytes(u"100 %PATH%"));
    EXPECT_EQ(Read().DisplayName, u"100 %PATH%");
}

TEST_F(UninstallEntries, IllTypedAndUnterminatedTextsAreSkipped)
{
    SetNumber(u"DisplayName", 5);
    registry.SetValue(HKEY_LOCAL_MACHINE, Entry(), u"Publisher", 1, UnitBytes(u"open"));
    registry.SetValue(HKEY_LOCAL_MACHINE, Entry(), u"Comments", 1, TextBytes(u"odd") + "x");
    registry.SetValue(HKEY_LOCAL_MACHINE, Entry(), u"Contact", 7, TextBytes(u"list"));
    registry.SetValue(HKEY_LOCAL_MACHINE, Entry(), u"Readme", 1, "");
    registry.SetValue(HKEY_LOCAL_MACHINE, Entry(), u"UninstallString", 1, UnitBytes(u"open"));
    const Item item = Read();
    for (const CString& text :
         {item.DisplayName, item.Publisher, item.Comments, item.Contact, item.Readme, item.UninstallString})
        EXPECT_EQ(text, u"");
}

TEST_F(UninstallEntries, UninstallStringIsExpanded)
{
    // On Windows the environment has the folder, on Linux the registry.
    const CString folder = VyrPlatform::Process::GetEnvironment(u"SystemRoot").value_or(u"C:\\windows");
    registry.SetText(HKEY_LOCAL_MACHINE, u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion", u"SystemRoot", folder);
    for (const std::uint32_t type : {1U, 2U}) {
        registry.SetValue(HKEY_LOCAL_MACHINE, Entry(), u"UninstallString", type,
                          TextBytes(u"\"%SystemRoot%\\x.exe\" %VYR_NO_SUCH%"));
        EXPECT_EQ(Read().UninstallString, CString::Join({u"\"", folder, u"\\x.exe\" %VYR_NO_SUCH%"}));
    }
}

TEST_F(UninstallEntries, UninstallStringThatGrowsTooLongIsSkipped)
{
    const CString folder = VyrPlatform::Process::GetEnvironment(u"SystemRoot").value_or(u"C:\\windows");
    registry.SetText(HKEY_LOCAL_MACHINE, u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion", u"SystemRoot", folder);
    ASSERT_GE(folder.GetLength(), 4);
    const CString rest(u'x', 259 - folder.GetLength());
    SetText(u"UninstallString", CString(u"%SystemRoot%") + rest.Mid(4));
    EXPECT_EQ(Read().UninstallString, folder + rest.Mid(4));
    CString many;
    while (many.GetLength() + 12 < 260)
        many += u"%SystemRoot%";
    many += CString(u'x', 259 - many.GetLength());
    const int grown = many.GetLength() / 12 * (folder.GetLength() - 12) + many.GetLength();
    SetText(u"UninstallString", many);
    EXPECT_EQ(Read().UninstallString.IsEmpty(), grown > 259);
    SetText(u"UninstallString", CString(u"%PATH%%PATH%%PATH%%PATH%%PATH%%PATH%%PATH%%PATH%%PATH%%PATH%%PATH%") + rest);
    EXPECT_EQ(Read().UninstallString, u"");
}

TEST_F(UninstallEntries, LocalizedNameWithoutAResourceIsEmpty)
{
    SetText(u"DisplayName_Localized", u"@Z:\\nowhere\\none.dll,-1");
    EXPECT_EQ(Read().DisplayNameLocalized, u"");
    SetText(u"DisplayName_Localized", u"Plain");
    EXPECT_EQ(Read().DisplayNameLocalized, u"");
}

TEST_F(UninstallEntries, KeysAreInOrderAndNothingIsMerged)
{
    for (const HKEY root : {HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE})
        for (const CString& key : {uninstall32, uninstall})
            for (const CString name : {u"b", u"A", u"{c}"})
                registry.SetText(root, CString::Join({key, u"\\", name}), u"DisplayName", u"same");
    registry.SetNumber(HKEY_LOCAL_MACHINE, uninstall + u"\\A", u"SystemComponent", 1);
    registry.SetText(HKEY_LOCAL_MACHINE, uninstall + u"\\b", u"ParentKeyName", u"parent");

    const auto expected = [](const CString& root, const CString& key) {
        std::vector<CString> names;
        for (const CString name : {u"A", u"b", u"{c}"})
            names.push_back(CString::Join({root, u"\\", key, u"\\", name}));
        return names;
    };
    std::vector<CString> machine = expected(u"HKEY_LOCAL_MACHINE", uninstall);
    const std::vector<CString> machine32 = expected(u"HKEY_LOCAL_MACHINE", uninstall32);
    std::vector<CString> user = expected(u"HKEY_CURRENT_USER", uninstall);
    const std::vector<CString> user32 = expected(u"HKEY_CURRENT_USER", uninstall32);
    const auto join = [](std::vector<CString> first, const std::vector<CString>& second) {
        first.insert(first.end(), second.begin(), second.end());
        return first;
    };
    const auto list = [](int scope, int includeWow6432Node) {
        return ProgramsFeaturesFuncs::GetProgramsFeaturesItemsList(scope, includeWow6432Node);
    };
    EXPECT_EQ(FullNames(list(2, 0)), machine);
    EXPECT_EQ(FullNames(list(1, 0)), user);
    EXPECT_EQ(FullNames(list(0, 0)), join(machine, user));
    EXPECT_EQ(FullNames(list(2, 1)), join(machine, machine32));
    EXPECT_EQ(FullNames(list(1, -1)), join(user, user32));
    EXPECT_EQ(FullNames(list(0, 1)), join(join(machine, machine32), join(user, user32)));
}

TEST_F(UninstallEntries, ProgramOfBothViewsIsListedTwice)
{
    SetText(u"DisplayName", u"64");
    registry.SetText(HKEY_LOCAL_MACHINE, uninstall32 + u"\\Tool", u"DisplayName", u"32");
    const std::vector<Item> items = ProgramsFeaturesFuncs::GetProgramsFeaturesItemsList(0, 1);
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[0].DisplayName, u"64");
    EXPECT_EQ(items[0].IsWow6432Node, 0);
    EXPECT_EQ(items[1].DisplayName, u"32");
    EXPECT_EQ(items[1].IsWow6432Node, 1);
    EXPECT_EQ(items[1].KeyName, uninstall32 + u"\\Tool");
}

TEST_F(UninstallEntries, OtherScopesAreEmptyAndDoNotTouchTheRegistry)
{
    SetText(u"DisplayName", u"there");
    const VyrTests::DebugCapture debug;
    for (const int scope : {-1, 3, 4, 1000}) {
        EXPECT_TRUE(ProgramsFeaturesFuncs::GetProgramsFeaturesItemsList(scope, 1).empty());
        EXPECT_TRUE(ProgramsFeaturesFuncs::GetProgramsFeaturesWindowsInstallerItemsList(scope).empty());
    }
    EXPECT_TRUE(ProgramsFeaturesFuncs::GetProgramsFeaturesWindowsInstallerItemsList(1).empty());
    EXPECT_TRUE(debug.Texts().empty());
}

TEST_F(UninstallEntries, WithoutUninstallKeysTheListIsEmpty)
{
    EXPECT_TRUE(ProgramsFeaturesFuncs::GetProgramsFeaturesItemsList(0, 1).empty());
    EXPECT_TRUE(ProgramsFeaturesFuncs::GetProgramsFeaturesWindowsInstallerItemsList(0).empty());
}

TEST_F(UninstallEntries, WalkAppendsToTheGivenList)
{
    SetText(u"DisplayName", u"walked");
    Item before;
    before.DisplayName = u"before";
    const auto items = PrivateOperations::GetProgramsFeaturesItemsList(
        HKEY_LOCAL_MACHINE, uninstall, PrivateOperations::GetProgramsFeaturesValueList(), {before});
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[0].DisplayName, u"before");
    EXPECT_EQ(items[1].DisplayName, u"walked");
    const auto missing = PrivateOperations::GetProgramsFeaturesItemsList(HKEY_LOCAL_MACHINE, u"None", {}, {before});
    ASSERT_EQ(missing.size(), 1U);
    EXPECT_EQ(missing[0].DisplayName, u"before");
}

TEST_F(UninstallEntries, RootWithoutANameLeavesABackslashInFront)
{
    registry.AddKey(HKEY_CURRENT_USER, u"Other\\Key\\Entry");
    const auto other =
        VyrPlatform::Registry::Key::Open(HKEY_CURRENT_USER, u"Other", VyrPlatform::Registry::Access::Read);
    const auto items = PrivateOperations::GetProgramsFeaturesItemsList(other.Get(), u"Key", {}, {});
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].FullKeyName, u"\\Key\\Entry");
    EXPECT_EQ(items[0].KeyName, u"Key\\Entry");
}

TEST_F(UninstallEntries, ValueTableIsTheOneOfTheFormat)
{
    const std::tuple<const char16_t*, std::uint32_t, std::int32_t> expected[] = {
        {u"DisplayIcon", 1, 5},      {u"DisplayName", 1, 6},        {u"DisplayName_Localized", 1, 7},
        {u"DisplayVersion", 1, 11},  {u"Publisher", 1, 8},          {u"InstallDate", 1, 9},
        {u"InstallLocation", 1, 16}, {u"InstallSource", 1, 21},     {u"Readme", 1, 18},
        {u"Comments", 1, 12},        {u"Contact", 1, 13},           {u"UninstallString", 2, 39},
        {u"EstimatedSize", 4, 10},   {u"HelpLink", 1, 14},          {u"HelpTelephone", 1, 23},
        {u"URLInfoAbout", 1, 22},    {u"URLUpdateInfo", 1, 24},     {u"RegCompany", 1, 19},
        {u"RegOwner", 1, 20},        {u"ParentDisplayName", 1, 26}, {u"ParentKeyName", 1, 27},
        {u"SystemComponent", 4, 29}, {u"WindowsInstaller", 4, 30},  {u"VersionMajor", 4, 31},
        {u"VersionMinor", 4, 32},    {u"Language", 4, 33},          {u"NoModify", 4, 35},
        {u"NoRepair", 4, 36},        {u"NoRemove", 4, 37},          {u"NoElevateOnModify", 4, 38},
    };
    const std::vector<RegValue> values = PrivateOperations::GetProgramsFeaturesValueList();
    ASSERT_EQ(values.size(), std::size(expected));
    for (std::size_t i = 0; i < values.size(); ++i)
        EXPECT_EQ(std::tuple(values[i].Name, values[i].Type, values[i].Field),
                  std::tuple(CString(std::get<0>(expected[i])), std::get<1>(expected[i]), std::get<2>(expected[i])));
}

TEST_F(UninstallEntries, OtherTablesStoreByCodeAndType)
{
    SetText(u"Text", u"%VYR_NO_SUCH% text");
    SetNumber(u"Number", 77);
    // A text of a code without a field is traced and stored nowhere.
    VyrTests::DebugCapture debug;
    const Item nowhere = Read({{u"Text", 1, 4},
                               {u"Text", 1, 28},
                               {u"Text", 1, 39},
                               {u"Text", 1, 15},
                               {u"Text", 3, 6},
                               {u"Number", 4, 34},
                               {u"Number", 4, 5},
                               {u"Text", 2, 6},
                               {u"Number", 1, 6},
                               {u"Text", 4, 29},
                               {u"None", 1, 6}});
    for (const CString& text : {nowhere.DisplayName, nowhere.UninstallString, nowhere.DisplayIcon, nowhere.HelpLink,
                                nowhere.Unused18, nowhere.Unused19, nowhere.Unused22, nowhere.Unused27})
        EXPECT_EQ(text, u"");
    EXPECT_EQ(nowhere.Unused34, 0U);
    EXPECT_EQ(nowhere.SystemComponent, 0U);
    const CString trace = AllTexts(debug);
    int count = 0;
    for (int at = 0; (at = trace.Find(u"\tText:%VYR_NO_SUCH% text\r\n", at)) >= 0; ++at)
        ++count;
    EXPECT_EQ(count, 4);
    EXPECT_LT(trace.Find(u"\tNumber"), 0);

    EXPECT_EQ(Read({{u"Text", 2, 14}}).HelpLink, u"%VYR_NO_SUCH% text");
    EXPECT_EQ(Read({{u"Text", 1, 14}}).HelpLink, u"%VYR_NO_SUCH% text");
    EXPECT_EQ(Read({{u"Text", 1, 27}}).ParentKeyName, u"%VYR_NO_SUCH% text");
}

TEST_F(UninstallEntries, ExpandedHelpLinkKeepsItsVariables)
{
    SetText(u"Link", u"%SystemRoot%");
    registry.SetText(HKEY_LOCAL_MACHINE, u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion", u"SystemRoot", u"C:\\w");
    EXPECT_EQ(Read({{u"Link", 2, 14}}).HelpLink, u"%SystemRoot%");
}

TEST_F(UninstallEntries, TraceNamesEachEntryItsTimeAndItsValues)
{
    SetText(u"DisplayName", u"My tool");
    SetText(u"Publisher", u"Me");
    SetNumber(u"Language", 1033);
    const VyrTests::DebugCapture debug;
    const Item item = Read();
    EXPECT_EQ(AllTexts(debug), CString::Join({u"Tool\r\n", item.LastWriteTime,
                                              u"\r\n\tDisplayName:My tool\r\n\tPublisher:Me\r\n\tLanguage:1033\r\n"}));
}

TEST_F(UninstallEntries, TraceHasExpandedCommandsAndHelpLinksAsTheyStand)
{
    registry.SetText(HKEY_LOCAL_MACHINE, u"SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion", u"SystemRoot", u"C:\\w");
    SetText(u"UninstallString", u"\"%SystemRoot%\\u.exe\"");
    SetText(u"HelpLink", u"%SystemRoot%");
    const VyrTests::DebugCapture debug;
    const Item item = Read();
    EXPECT_EQ(AllTexts(debug), CString::Join({u"Tool\r\n", item.LastWriteTime, u"\r\n\tUninstallString:",
                                              item.UninstallString, u"\r\n\tHelpLink:%SystemRoot%\r\n"}));
}

TEST_F(UninstallEntries, StopEndsTheValuesOfOneEntryOnly)
{
    for (const CString name : {u"\\a", u"\\b", u"\\c"})
        registry.SetText(HKEY_LOCAL_MACHINE, uninstall + name, u"DisplayName", u"named");
    const VyrTests::EmptiedQueue emptied;
    const VyrTests::MessagePosting posting;
    posting.PostStop();
    const std::vector<Item> items = ProgramsFeaturesFuncs::GetProgramsFeaturesItemsList(2, 0);
    ASSERT_EQ(items.size(), 3U);
    EXPECT_EQ(items[0].SubKeyName, u"a");
    EXPECT_NE(items[0].LastWriteTime, u"");
    EXPECT_EQ(items[0].DisplayName, u"");
    EXPECT_EQ(items[1].DisplayName, u"named");
    EXPECT_EQ(items[2].DisplayName, u"named");
    EXPECT_FALSE(VyrPlatform::MessageQueue::DrainOne()) << "the stop is consumed";
}

TEST_F(UninstallEntries, StopAfterWorkTakesEffectBeforeTheNextValue)
{
    SetText(u"DisplayIcon", u"icon");
    SetText(u"DisplayName", u"name");
    SetText(u"DisplayVersion", u"version");
    const VyrTests::EmptiedQueue emptied;
    const VyrTests::MessagePosting posting;
    int handled = 0;
    for (int i = 0; i < 2; ++i)
        posting.PostWork([&] { ++handled; });
    posting.PostStop();
    const Item item = Read();
    EXPECT_EQ(handled, 2);
    EXPECT_EQ(item.DisplayIcon, u"icon");
    EXPECT_EQ(item.DisplayName, u"name");
    EXPECT_EQ(item.DisplayVersion, u"");
}

TEST_F(UninstallEntries, ProductsOfTheMachineAreReadInTheirOwnKeys)
{
    registry.SetText(HKEY_LOCAL_MACHINE, installer + u"\\00A1", u"DisplayName", u"direct");
    registry.SetText(HKEY_LOCAL_MACHINE, installer + u"\\00A2\\InstallProperties", u"DisplayName", u"one below");
    for (const int scope : {0, 2}) {
        const auto items = ProgramsFeaturesFuncs::GetProgramsFeaturesWindowsInstallerItemsList(scope);
        ASSERT_EQ(items.size(), 2U);
        EXPECT_EQ(items[0].DisplayName, u"direct");
        EXPECT_EQ(items[0].SubKeyName, u"00A1");
        EXPECT_EQ(items[0].KeyName, installer + u"\\00A1");
        EXPECT_EQ(items[0].FullKeyName, CString::Join({u"HKEY_LOCAL_MACHINE\\", installer, u"\\00A1"}));
        // Where real installers keep everything one key below, the record is nearly empty.
        EXPECT_EQ(items[1].SubKeyName, u"00A2");
        EXPECT_EQ(items[1].DisplayName, u"");
        EXPECT_NE(items[1].LastWriteTime, u"");
    }
}

TEST_F(UninstallEntries, ProductsOfTheMachineNeverHaveAView)
{
    const CString path = u"SOFTWARE\\Wow6432Node\\Products";
    registry.AddKey(HKEY_LOCAL_MACHINE, path + u"\\p");
    const auto values = PrivateOperations::GetProgramsFeaturesValueList();
    const auto programs = PrivateOperations::GetProgramsFeaturesItemsList(HKEY_LOCAL_MACHINE, path, values, {});
    const auto products =
        PrivateOperations::GetProgramsFeaturesWindowsInstallerItemsList(HKEY_LOCAL_MACHINE, path, values, programs);
    ASSERT_EQ(products.size(), 2U);
    EXPECT_EQ(products[0].IsWow6432Node, 1);
    EXPECT_EQ(products[1].IsWow6432Node, 0);
}
