// Icons, dates, sizes, columns and the order of registry keys for lists of installed programs.
#include <tests/support/UserLocale.h>

#include <VyrLibraryFuncs/programs/ProgramsFeaturesFuncs.h>
#include <VyrPlatform/WinTypes.h>

#include <gtest/gtest.h>

#include <limits>

using VyrLibraryFuncs::ProgramsFeaturesFuncs;
using VyrTests::UserLocale;
using Icon = std::pair<CString, int>;

namespace {

int Compare(const CString& key1, const CString& key2, int descending = 0)
{
    return ProgramsFeaturesFuncs::CompareRegKey(key1, key2, 0, 0, descending);
}

/// A key, another that sorts behind it.
struct OrderedKeys
{
    CString first;
    CString second;
};

} // namespace

TEST(ApplicationIcon, ReferenceIsSplit)
{
    const auto icon = ProgramsFeaturesFuncs::GetApplicationIcon;
    EXPECT_EQ(icon(u"\"C:\\a b\\c.exe\",-101"), Icon(u"C:\\a b\\c.exe", -101));
    EXPECT_EQ(icon(u"\"C:\\a b\\c.exe,7\""), Icon(u"C:\\a b\\c.exe", 7)) << "quotes around both";
    EXPECT_EQ(icon(u"C:\\c.exe,0"), Icon(u"C:\\c.exe", 0));
    EXPECT_EQ(icon(u"C:\\c.exe, 12"), Icon(u"C:\\c.exe", 12));
    EXPECT_EQ(icon(u"C:\\c.ico"), Icon(u"C:\\c.ico", 0));
    EXPECT_EQ(icon(u"C:\\c.exe,"), Icon(u"C:\\c.exe", 0));
    EXPECT_EQ(icon(u"C:\\c.exe,x"), Icon(u"C:\\c.exe", 0));
    EXPECT_EQ(icon(u"C:\\a,b.exe,5"), Icon(u"C:\\a", 0)) << "cut at the first comma";
    EXPECT_EQ(icon(u"C:\\c.exe,1,2"), Icon(u"C:\\c.exe", 1));
}

TEST(ApplicationIcon, EmptyReferenceIsNoPathAndZero)
{
    EXPECT_EQ(ProgramsFeaturesFuncs::GetApplicationIcon(u""), Icon());
    EXPECT_EQ(ProgramsFeaturesFuncs::GetApplicationIcon(u",,"), Icon());
    EXPECT_EQ(ProgramsFeaturesFuncs::GetApplicationIcon(u"\"\""), Icon());
}

TEST(ProgramInstallDate, OwnDateIsReturnedUnchanged)
{
    EXPECT_EQ(ProgramsFeaturesFuncs::GetInstallDate(u"no date at all", u"2024/01/05"), u"no date at all");
    EXPECT_EQ(ProgramsFeaturesFuncs::GetInstallDate(u" ", u"2024/01/05"), u" ");
}

TEST(ProgramInstallDate, OtherwiseItIsTheDateOfTheOtherText)
{
    const UserLocale locale(u"en_US");
    EXPECT_EQ(ProgramsFeaturesFuncs::GetInstallDate(u"", u"2024/01/05 10:30:00"), u"1/5/2024");
    EXPECT_EQ(ProgramsFeaturesFuncs::GetInstallDate(u"", u"2024/01/05"), u"1/5/2024");
    EXPECT_EQ(ProgramsFeaturesFuncs::GetInstallDate(u"", u""), u"");
    EXPECT_EQ(ProgramsFeaturesFuncs::GetInstallDate(u"", u"never"), u"");
}

TEST(ProgramSize, IsWrittenOnlyWithAText)
{
    const UserLocale locale(u"en_US");
    EXPECT_EQ(ProgramsFeaturesFuncs::GetFormatedSize(u"", 5000, 0), u"");
    EXPECT_EQ(ProgramsFeaturesFuncs::GetFormatedSize(u"any", 2048, 0), u"2.00 KB");
    EXPECT_EQ(ProgramsFeaturesFuncs::GetFormatedSize(u"any", 2048, 1), u"2,048 bytes");
    EXPECT_EQ(ProgramsFeaturesFuncs::GetFormatedSize(u"any", std::numeric_limits<std::uint64_t>::max(), 0), u"");
}

TEST(CompareRegKey, FlagDecidesFirst)
{
    const auto compare = ProgramsFeaturesFuncs::CompareRegKey;
    for (const CString key : {u"", u"a", u"{1}"}) {
        EXPECT_EQ(compare(key, u"b", 1, 0, 0), 1);
        EXPECT_EQ(compare(key, u"b", 0, 1, 0), -1);
        EXPECT_EQ(compare(key, u"b", 1, 0, 1), -1);
        EXPECT_EQ(compare(key, u"b", 0, -7, 1), 1);
    }
    EXPECT_EQ(compare(u"10", u"9", 1, 2, 0), 1) << "two flags that are set are equal";
    EXPECT_EQ(compare(u"9", u"10", 2, 1, 0), -1);
}

TEST(CompareRegKey, KeyWithoutANameIsEqualToAny)
{
    for (const int descending : {0, 1}) {
        EXPECT_EQ(Compare(u"", u"", descending), 0);
        EXPECT_EQ(Compare(u"a", u"", descending), 0);
        EXPECT_EQ(Compare(u"", u"{1}", descending), 0);
        EXPECT_EQ(Compare(u"\\\\", u"a", descending), 0);
        EXPECT_EQ(Compare(u"{1}", u"\\", descending), 0);
        EXPECT_EQ(ProgramsFeaturesFuncs::CompareRegKey(u"", u"a", 3, 5, descending), 0);
    }
}

TEST(CompareRegKey, LastPartsOfThePathsAreCompared)
{
    const UserLocale locale(u"en_US");
    const OrderedKeys table[] = {
        {u"A\\9", u"A\\10"},    {u"Z\\1", u"A\\2"},
        {u"A\\1\\", u"A\\2\\"}, {u"apple", u"Banana"},
        {u"Zeta", u"1"},                         // a name that is no number counts as 0
        {u"Zeta", u"12"},       {u"0", u"Zeta"}, // both are 0, then texts
        {u"FF", u"Zeta"},                        // hexadecimal, without a decimal digit in front
        {u"1F", u"2"},                           // read up to the letter
        {u"1", u"1F"},                           // equal numbers, then texts
        {u"0A", u"1"},          {u"99999999999999999998", u"99999999999999999999"}, // both beyond the range, then texts
        {u"{1}", u"{2}"},       {u"{a}", u"{B}"},
        {u"9", u"{1}"},         {u"z", u"{1}"},
        {u"_x", u"{1}"},        {u"~", u"{1}"},
        {u"}", u"{1}"},         {u"{1}", u"é"},
        {u"{1}", u"日本"},      {u"{1}", u" x"},
    };
    for (const auto& [first, second] : table) {
        EXPECT_EQ(Compare(first, second), -1) << testing::PrintToString(first.View());
        EXPECT_EQ(Compare(second, first), 1) << testing::PrintToString(first.View());
        EXPECT_EQ(Compare(first, second, 1), 1) << testing::PrintToString(first.View());
        EXPECT_EQ(Compare(second, first, 5), -1) << testing::PrintToString(first.View());
        EXPECT_EQ(Compare(first, first), 0);
    }
}

TEST(CompareRegKey, LetterBraceAndForeignLetterFormACycle)
{
    const UserLocale locale(u"en_US");
    EXPECT_EQ(Compare(u"z", u"{1}"), -1);
    EXPECT_EQ(Compare(u"{1}", u"é"), -1);
    EXPECT_EQ(Compare(u"é", u"z"), -1) << "as texts";
}

TEST(KeyParentName, RootKeysHaveTheirNames)
{
    const auto name = ProgramsFeaturesFuncs::GetKeyParentName;
    EXPECT_EQ(name(HKEY_CLASSES_ROOT), u"HKEY_CLASSES_ROOT");
    EXPECT_EQ(name(HKEY_CURRENT_USER), u"HKEY_CURRENT_USER");
    EXPECT_EQ(name(HKEY_LOCAL_MACHINE), u"HKEY_LOCAL_MACHINE");
    EXPECT_EQ(name(HKEY_USERS), u"HKEY_USERS");
    EXPECT_EQ(name(HKEY_CURRENT_CONFIG), u"HKEY_CURRENT_CONFIG");
    EXPECT_EQ(name(HKEY_PERFORMANCE_DATA), u"");
    EXPECT_EQ(name(nullptr), u"");
}

TEST(Wow6432Node, IsFoundAnywhereAndOnlyInItsOwnCase)
{
    EXPECT_EQ(ProgramsFeaturesFuncs::IsWow6432Node(u"SOFTWARE\\Wow6432Node\\Microsoft"), 1);
    EXPECT_EQ(ProgramsFeaturesFuncs::IsWow6432Node(u"xWow6432Nodey"), 1);
    EXPECT_EQ(ProgramsFeaturesFuncs::IsWow6432Node(u"SOFTWARE\\WOW6432Node\\Microsoft"), 0);
    EXPECT_EQ(ProgramsFeaturesFuncs::IsWow6432Node(u"SOFTWARE\\Microsoft"), 0);
    EXPECT_EQ(ProgramsFeaturesFuncs::IsWow6432Node(u""), 0);
}

TEST(InventorySettings, KeepTheirValues)
{
    EXPECT_EQ(ProgramsFeaturesFuncs::GetIconFolderName(), u"icons");
    EXPECT_EQ(ProgramsFeaturesFuncs::GetOutputFilePath(), u"");
    EXPECT_EQ(ProgramsFeaturesFuncs::GetOpenOutputFile(), 1);
    ProgramsFeaturesFuncs::SetOutputFilePath(u"C:\\out.html");
    ProgramsFeaturesFuncs::SetOpenOutputFile(0);
    EXPECT_EQ(ProgramsFeaturesFuncs::GetOutputFilePath(), u"C:\\out.html");
    EXPECT_EQ(ProgramsFeaturesFuncs::GetOpenOutputFile(), 0);
    ProgramsFeaturesFuncs::SetOutputFilePath(u"");
    ProgramsFeaturesFuncs::SetOpenOutputFile(1);
}

TEST(ListViewItemText, ColumnsShowTheirFields)
{
    ProgramsFeaturesFuncs::ITEM item;
    item.DisplayName = u"name";
    item.Publisher = u"publisher";
    item.InstallDate = u"date";
    item.FormattedSize = u"size";
    item.DisplayVersion = u"version";
    item.InstallSource = u"source";
    item.URLInfoAbout = u"about";
    item.HelpTelephone = u"telephone";
    item.HelpLink = u"help";
    item.Comments = u"comments";
    item.URLUpdateInfo = u"updates";
    item.InstallLocation = u"location";
    item.Readme = u"readme";
    item.RegCompany = u"company";
    item.RegOwner = u"owner";
    item.Contact = u"contact";
    const CString texts[] = {u"name",  u"publisher", u"date",   u"size",    u"version",  u"source",
                             u"about", u"telephone", u"",       u"help",    u"comments", u"updates",
                             u"",      u"location",  u"readme", u"company", u"owner",    u"contact"};
    for (int column = 0; column < 18; ++column)
        EXPECT_EQ(ProgramsFeaturesFuncs::GetListViewItemText(column, item), texts[column]) << column;
    item.Unused19 = u"field 19";
    item.Unused22 = u"field 22";
    EXPECT_EQ(ProgramsFeaturesFuncs::GetListViewItemText(8, item), u"field 19");
    EXPECT_EQ(ProgramsFeaturesFuncs::GetListViewItemText(12, item), u"field 22");
    for (const int column : {-1, 18, 1000, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_EQ(ProgramsFeaturesFuncs::GetListViewItemText(column, item), u"");
}
