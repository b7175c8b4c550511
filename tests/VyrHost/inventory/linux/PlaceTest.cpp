// Finding a registry on a disk, and places that are refused.
#include <VyrHost/inventory/Place.h>

#include <tests/support/StdPath.h>
#include <tests/support/linux/HiveBuilder.h>
#include <tests/support/linux/Unprivileged.h>
#include <tests/support/linux/WindowsDisk.h>

#include <VyrHost/text/Errors.h>

#include <gmock/gmock.h>

#include <filesystem>

using namespace VyrTests;
using namespace VyrHost::Inventory;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace {

const RegistryTree nothing;

/// The message where no registry is found.
std::string RefusalOf(const PlaceRequest& request)
{
    try {
        static_cast<void>(FindPlace(request));
    } catch (const VyrHost::Text::UsageError& error) {
        return error.what();
    }
    return "found";
}

std::vector<CString> UsersOf(const Place& place)
{
    std::vector<CString> names;
    for (const UserHives& user : place.users)
        names.push_back(user.name);
    return names;
}

} // namespace

TEST(Place, IsADiskWithItsUsersWhateverTheCaseOfItsNames)
{
    const WindowsDisk disk;
    const CString software = disk.WriteHive(u"WINDOWS/system32/Config/software", nothing);
    const CString system = disk.WriteHive(u"WINDOWS/system32/Config/System", nothing);
    const CString eva = disk.WriteHive(u"users/eva/ntuser.dat", nothing);
    const CString classes = disk.WriteHive(u"users/eva/appdata/local/microsoft/windows/USRCLASS.DAT", nothing);
    disk.WriteHive(u"users/Tom/NTUSER.DAT", nothing);
    disk.Folder().MakeFolder(u"users/Public");
    const Place place = FindPlace({disk.Path(), {}, {}});
    EXPECT_EQ(place.kind, PlaceKind::Disk);
    EXPECT_EQ(place.software, software);
    EXPECT_EQ(place.system, system);
    EXPECT_THAT(UsersOf(place), ElementsAre(u"Tom", u"eva"));
    EXPECT_EQ(place.users[1].hive, eva);
    EXPECT_EQ(place.users[1].classes, classes);
    EXPECT_EQ(place.users[0].classes, u"");
}

TEST(Place, IsADiskOfAnOldWindows)
{
    const WindowsDisk disk;
    disk.WriteHive(u"WINNT/system32/config/SOFTWARE", nothing);
    disk.WriteHive(u"Documents and Settings/Eva/NTUSER.DAT", nothing);
    const CString classes = disk.WriteHive(
        u"Documents and Settings/Eva/Local Settings/Application Data/Microsoft/Windows/UsrClass.dat", nothing);
    const Place place = FindPlace({disk.Path(), {}, {}});
    EXPECT_THAT(UsersOf(place), ElementsAre(u"Eva"));
    EXPECT_EQ(place.users[0].classes, classes);
}

TEST(Place, HasEachUserOnceDespiteLinks)
{
    const WindowsDisk disk;
    disk.WriteSoftware(nothing);
    disk.WriteUser(u"Eva", nothing);
    const std::filesystem::path root = ToStdPath(disk.Path());
    std::filesystem::create_directory_symlink("Users", root / "Documents and Settings");
    std::filesystem::create_directory_symlink("Eva", root / "Users/Default User");
    EXPECT_THAT(UsersOf(FindPlace({disk.Path(), {}, {}})), ElementsAre(u"Eva"));
}

TEST(Place, IsTheWindowsFolderOfADisk)
{
    const WindowsDisk disk;
    disk.WriteSoftware(nothing);
    disk.WriteUser(u"Eva", nothing);
    const Place place = FindPlace({disk.Folder().Path(u"Windows"), {}, {}});
    EXPECT_EQ(place.kind, PlaceKind::Disk);
    EXPECT_THAT(UsersOf(place), ElementsAre(u"Eva"));
}

TEST(Place, WithSeveralWindowsFoldersIsRefused)
{
    const WindowsDisk disk;
    disk.WriteSoftware(nothing);
    disk.WriteHive(u"WINDOWS/System32/config/SOFTWARE", nothing);
    EXPECT_THAT(RefusalOf({disk.Path(), {}, {}}),
                AllOf(HasSubstr("several Windows folders"), HasSubstr("/WINDOWS'"), HasSubstr("/Windows'")));
    EXPECT_EQ(FindPlace({disk.Folder().Path(u"WINDOWS"), {}, {}}).kind, PlaceKind::Disk);
}

TEST(Place, IsAFolderOfHives)
{
    const WindowsDisk disk;
    const CString software = disk.WriteHive(u"Software", nothing);
    const CString user = disk.WriteHive(u"ntuser.dat", nothing);
    const Place place = FindPlace({disk.Path(), {}, {}});
    EXPECT_EQ(place.kind, PlaceKind::Hives);
    EXPECT_EQ(place.software, software);
    EXPECT_EQ(place.system, u"");
    ASSERT_EQ(place.users.size(), 1u);
    EXPECT_EQ(place.users[0].hive, user);
}

TEST(Place, IsOfTheGivenKindWhereItCouldBeTwo)
{
    const WindowsDisk disk;
    disk.WriteSoftware(nothing);
    disk.WriteHive(u"SOFTWARE", nothing);
    disk.Folder().WriteFile(u"system.reg", "WINE REGISTRY Version 2\n");
    EXPECT_EQ(FindPlace({disk.Path(), {}, {}}).kind, PlaceKind::WinePrefix);
    for (const PlaceKind kind : {PlaceKind::WinePrefix, PlaceKind::Disk, PlaceKind::Hives})
        EXPECT_EQ(FindPlace({disk.Path(), kind, {}}).kind, kind);
}

TEST(Place, OfNoKnownKindIsRefused)
{
    const ScratchFolder folder;
    EXPECT_THAT(
        RefusalOf({folder.Path(), {}, {}}),
        AllOf(HasSubstr("neither a Wine prefix"), HasSubstr("nor a Windows disk"), HasSubstr("nor a folder of hives")));
    EXPECT_THAT(RefusalOf({folder.Path(), PlaceKind::Disk, {}}),
                AllOf(HasSubstr("is not a Windows disk"), Not(HasSubstr("Wine"))));
    EXPECT_THAT(RefusalOf({folder.Path(), PlaceKind::Hives, {}}), HasSubstr("is not a folder of hives"));
    EXPECT_THAT(RefusalOf({folder.Path(), PlaceKind::WinePrefix, {}}), HasSubstr("is not a Wine prefix"));
    EXPECT_THAT(RefusalOf({folder.Path(u"missing"), {}, {}}), HasSubstr("No such file or directory"));
    EXPECT_THAT(RefusalOf({folder.WriteFile(u"SOFTWARE"), {}, {}}), HasSubstr("Not a directory"));
}

TEST(Place, WithUnreadableFoldersIsRefusedWithTheirNames)
{
    const WindowsDisk disk;
    disk.WriteSoftware(nothing);
    const std::filesystem::path config = ToStdPath(disk.Folder().Path(u"Windows/System32/config"));
    std::filesystem::permissions(config, std::filesystem::perms::none);
    std::filesystem::permissions(ToStdPath(disk.Path()), std::filesystem::perms::all);
    {
        const Unprivileged user;
        EXPECT_THAT(RefusalOf({disk.Path(), {}, {}}),
                    AllOf(HasSubstr("Windows/System32/config' cannot be read: Permission denied")));
    }
    std::filesystem::permissions(config, std::filesystem::perms::all);
}

TEST(Place, NamesTheUsersWhereTheGivenOneIsUnknown)
{
    const WindowsDisk disk;
    disk.WriteSoftware(nothing);
    EXPECT_THAT(RefusalOf({disk.Path(), {}, CString(u"Eva")}), HasSubstr("the disk has no users"));
    disk.WriteUser(u"Eva", nothing);
    disk.WriteUser(u"Tom", nothing);
    EXPECT_THAT(UsersOf(FindPlace({disk.Path(), {}, CString(u"eva")})), ElementsAre(u"Eva"));
    EXPECT_THAT(RefusalOf({disk.Path(), {}, CString(u"Ann")}), HasSubstr("the users of the disk are 'Eva', 'Tom'"));
    disk.WriteHive(u"SOFTWARE", nothing);
    EXPECT_THAT(RefusalOf({disk.Path(), PlaceKind::Hives, CString(u"Eva")}),
                HasSubstr("users can be chosen on a disk"));
}

TEST(OpenedPlaces, ReportHivesThatCannotBeRead)
{
    const WindowsDisk disk;
    disk.WriteSoftware(nothing);
    const std::string whole = BuildHive(nothing).bytes;
    const std::pair<std::string, std::string> hives[] = {
        {"", " is empty"},
        {whole.substr(0, whole.size() / 2), " is cut short"},
        {std::string(9000, 'x'), " is not a registry file, or is damaged"}};
    for (const auto& [bytes, words] : hives) {
        const CString path = disk.Folder().WriteFile(u"Users/Eva/NTUSER.DAT", bytes);
        Notes notes;
        const Place place = FindPlace({disk.Path(), {}, {}});
        OpenedPlace opened(place, notes);
        EXPECT_TRUE(opened.ShowMachine());
        ASSERT_EQ(opened.CountUsers(), 1u);
        EXPECT_FALSE(opened.ShowUser(0));
        EXPECT_THAT(notes.failures, ElementsAre("'" + ToStdPath(path).string() + "'" + words));
        EXPECT_THAT(notes.warnings, IsEmpty());
    }
}

TEST(OpenedPlaces, WarnOfHivesThatWereNotClosed)
{
    const WindowsDisk disk;
    std::string bytes = BuildHive(nothing).bytes;
    bytes[4] = static_cast<char>(bytes[8] + 1);
    SealHive(bytes);
    disk.Folder().WriteFile(u"Windows/System32/config/SOFTWARE", bytes);
    Notes notes;
    const Place place = FindPlace({disk.Path(), {}, {}});
    OpenedPlace opened(place, notes);
    EXPECT_TRUE(opened.ShowMachine());
    EXPECT_THAT(notes.failures, IsEmpty());
    EXPECT_THAT(notes.warnings, ElementsAre(HasSubstr("SOFTWARE' was not closed by its Windows")));
}
