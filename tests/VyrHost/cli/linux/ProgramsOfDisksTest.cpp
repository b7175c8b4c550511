// Tests of the program: "vyr programs" and "vyr browsers" with disks, hives and Wine prefixes.
#include "UnprivilegedProgram.h"

#include <tests/support/linux/HiveBuilder.h>
#include <tests/support/linux/WindowsDisk.h>
#include <tests/support/linux/WinePrefixText.h>

#include <gmock/gmock.h>

#include <filesystem>
#include <sstream>

using namespace VyrTests;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

namespace {

class ProgramsOfDisks : public UnprivilegedProgram
{
protected:
    ProgramsOfDisks()
    {
        m_environment[u"TZ"] = CString(u"UTC");
        m_environment[u"LC_ALL"] = CString(u"C.UTF-8");
        // Hides the user's own prefix.
        m_environment[u"WINEPREFIX"] = CString();
        m_environment[u"HOME"] = m_folder.Path();
    }

    [[nodiscard]] ProgramResult Programs(std::vector<CString> arguments) const
    {
        arguments.insert(arguments.begin(), u"programs");
        return Run(std::move(arguments));
    }

    /// Writes a disk with programs of the machine, of Eva and of Tom.
    void WriteSampleDisk() const
    {
        RegistryTree software;
        AddTexts(software, MachineEntry(u"Editor"),
                 {{u"DisplayName", u"Editor"},
                  {u"Publisher", u"Maker"},
                  {u"InstallDate", u"20230506"},
                  {u"DisplayVersion", u"1.2"},
                  {u"UninstallString", u"C:\\Editor\\remove.exe"},
                  {u"DisplayIcon", u"\"C:\\Editor\\editor.exe\",-7"}});
        AddNumber(software, MachineEntry(u"Editor"), u"EstimatedSize", 2048);
        AddTexts(software, MachineEntry(u"{10}"), {{u"DisplayName", u"Update"}, {u"ParentKeyName", u"Editor"}});
        AddTexts(software, MachineEntry32(u"Old"), {{u"DisplayName", u"Old one"}});
        AddTexts(software, u"Classes\\Installer\\Products\\1234", {{u"ProductName", u"Product"}});
        AddTexts(software, u"Clients\\StartMenuInternet\\Fast", {{u"", u"Fast Browser"}});
        AddTexts(software, u"Clients\\StartMenuInternet\\Fast\\shell\\open\\command", {{u"", u"C:\\fast.exe"}});
        m_disk.WriteSoftware(software);
        RegistryTree eva;
        AddTexts(eva, UserEntry(u"Chat"), {{u"DisplayName", u"Chat"}});
        AddTexts(eva, u"Software\\Microsoft\\Installer\\Products\\5678", {{u"ProductName", u"Eva's"}});
        m_disk.WriteUser(u"Eva", eva);
        RegistryTree tom;
        AddTexts(tom, UserEntry(u"Chat"), {{u"DisplayName", u"Chat"}});
        m_disk.WriteUser(u"Tom", tom);
    }

    const WindowsDisk m_disk;
};

} // namespace

TEST_F(ProgramsOfDisks, AreATableByNameWithTheUserOfEach)
{
    WriteSampleDisk();
    const ProgramResult result = Programs({m_disk.Path()});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.errors, IsEmpty());
    EXPECT_EQ(result.output, "Name     Publisher  Installed     Size  Version  User\n"
                             "Chat                1/5/2024                     Eva\n"
                             "Chat                1/5/2024                     Tom\n"
                             "Editor   Maker      5/6/2023   2.00 MB  1.2\n"
                             "Old one             1/5/2024\n"
                             "4 programs, 2.00 MB; 1 hidden one is left out.\n");
}

TEST_F(ProgramsOfDisks, AreChosenByScopeUserAndView)
{
    WriteSampleDisk();
    const auto names = [this](std::vector<CString> options) {
        options.insert(options.begin(), {m_disk.Path(), u"--quiet", u"--columns", u"name,user"});
        const ProgramResult result = Programs(options);
        EXPECT_THAT(result.errors, IsEmpty());
        return result.output;
    };
    EXPECT_EQ(names({u"--scope", u"user"}), "Chat  Eva\nChat  Tom\n");
    EXPECT_EQ(names({u"--scope", u"user", u"--user", u"tom"}), "Chat  Tom\n");
    EXPECT_EQ(names({u"--user", u"Tom"}), "Chat     Tom\nEditor\nOld one\n");
    EXPECT_EQ(names({u"--scope", u"machine"}), "Editor\nOld one\n");
    EXPECT_EQ(names({u"--scope", u"machine", u"--no-32-bit"}), "Editor\n");
    EXPECT_EQ(names({u"--find", u"MAKER"}), "Editor\n");
    EXPECT_EQ(names({u"--scope", u"machine", u"--show-hidden"}), "Editor\nOld one\nUpdate\n");
}

TEST_F(ProgramsOfDisks, AreWrittenAsJsonAndCsv)
{
    WriteSampleDisk();
    const ProgramResult result = Programs({m_disk.Path(), u"--find", u"editor", u"--json"});
    EXPECT_EQ(
        result.output,
        "{\"name\":\"Editor\",\"publisher\":\"Maker\",\"installDate\":\"2023-05-06\",\"size\":2097152,"
        "\"version\":\"1.2\",\"scope\":\"machine\",\"view\":\"native\","
        "\"key\":\"HKEY_LOCAL_MACHINE\\\\SOFTWARE\\\\Microsoft\\\\Windows\\\\CurrentVersion\\\\Uninstall\\\\Editor"
        "\",\"icon\":\"C:\\\\Editor\\\\editor.exe\",\"iconIndex\":-7,"
        "\"uninstallCommand\":\"C:\\\\Editor\\\\remove.exe\",\"keyWritten\":\"2024-01-05T10:30:00\","
        "\"windowsInstaller\":false,\"systemComponent\":false,\"noModify\":false,\"noRepair\":false,"
        "\"noRemove\":false,\"noElevateOnModify\":false,\"hidden\":false}\n");
    EXPECT_EQ(result.errors, "1 program, 2.00 MB.\n");
    EXPECT_EQ(Programs({m_disk.Path(), u"--csv", u"--columns", u"name,size,installDate", u"--find", u"o"}).output,
              "\xEF\xBB\xBFname,size,installDate\r\nEditor,2097152,2023-05-06\r\nOld one,,2024-01-05\r\n");
}

TEST_F(ProgramsOfDisks, AreAllListedWhereThereAreHundredsInBothViews)
{
    RegistryTree software;
    std::string expected;
    for (int number = 0; number < 800; ++number) {
        CString name;
        name.Format(u"Program %03d", number);
        const bool is32Bit = number % 2 != 0;
        AddTexts(software, is32Bit ? MachineEntry32(name) : MachineEntry(name), {{u"DisplayName", name}});
        expected += VyrPlatform::Encoding::ToUtf8(name) + (is32Bit ? ",32-bit\r\n" : ",native\r\n");
    }
    m_disk.WriteSoftware(software);
    const ProgramResult result = Programs({m_disk.Path(), u"--csv", u"--columns", u"name,view"});
    EXPECT_EQ(result.output, "\xEF\xBB\xBFname,view\r\n" + expected);
    EXPECT_EQ(result.errors, "800 programs.\n");
}

TEST_F(ProgramsOfDisks, AreSortedInTheOrderOfKeys)
{
    RegistryTree software;
    for (const char16_t* const name : {u"9", u"10", u"word", u"{A}", u"\u00E9"})
        AddTexts(software, MachineEntry(name), {{u"DisplayName", name}});
    AddTexts(software, MachineEntry32(u"0"), {{u"DisplayName", u"of 32 bits"}});
    m_disk.WriteSoftware(software);
    const std::vector<CString> call = {m_disk.Path(), u"-q", u"--columns", u"name", u"--sort", u"key"};
    // Words count as 0; product codes follow, then names that do not begin with ASCII.
    EXPECT_EQ(Programs(call).output, "word\n9\n10\n{A}\n\u00E9\nof 32 bits\n");
}

TEST_F(ProgramsOfDisks, AreInstallerProductsOnRequest)
{
    WriteSampleDisk();
    const ProgramResult all = Programs({m_disk.Path(), u"--installer", u"--csv", u"--columns", u"name,user,scope"});
    EXPECT_EQ(all.output, "\xEF\xBB\xBFname,user,scope\r\nEva's,Eva,user\r\nProduct,,machine\r\n");
    EXPECT_EQ(all.errors, "2 products.\n");
    EXPECT_EQ(Programs({m_disk.Path(), u"--installer", u"--scope", u"machine", u"-q"}).output, "Product    1234\n");
    EXPECT_THAT(Programs({m_disk.Path(), u"--installer", u"--columns", u"publisher"}).errors,
                HasSubstr("the columns are name, icon, "));
}

TEST_F(ProgramsOfDisks, HaveBrowsersAndThePackagedOneWhereItsFileExists)
{
    WriteSampleDisk();
    EXPECT_EQ(Run({u"browsers", m_disk.Path()}).output, "Name          Type        Command\n"
                                                        "Fast Browser  registered  C:\\fast.exe\n"
                                                        "1 browser.\n");
    m_disk.Folder().WriteFile(u"Windows/SystemApps/Microsoft.MicrosoftEdge_8wekyb3d8bbwe/MicrosoftEdge.exe");
    const ProgramResult both = Run({u"browsers", m_disk.Path(), u"--csv", u"--columns", u"name,type"});
    EXPECT_EQ(both.output, "\xEF\xBB\xBFname,type\r\nFast Browser,registered\r\nMicrosoft Edge,packaged\r\n");
    EXPECT_EQ(Run({u"browsers", m_disk.Path(), u"-q", u"--columns", u"name", u"--find", u"edge"}).output,
              "Microsoft Edge\n");
}

TEST_F(ProgramsOfDisks, AreListedOfAWinePrefix)
{
    RegistryTree machine;
    AddTexts(machine, CString(u"Software\\") + MachineEntry(u"Editor"), {{u"DisplayName", u"Editor"}});
    RegistryTree user;
    AddTexts(user, UserEntry(u"Chat"), {{u"DisplayName", u"Chat"}});
    const std::string machineText = WineText(machine);
    const std::string userText = WineText(user);
    m_folder.WriteFile(u".wine/system.reg", machineText);
    m_folder.WriteFile(u".wine/user.reg", userText);
    const std::string expected = "Chat    user\nEditor  machine\n";
    EXPECT_EQ(Programs({u"-q", u"--columns", u"name,scope"}).output, expected) << "that of the user's folder";
    EXPECT_EQ(Programs({m_folder.Path(u".wine"), u"-q", u"--columns", u"name,scope"}).output, expected);
    EXPECT_EQ(Programs({u"--wine", m_folder.Path(u".wine"), u"-q", u"--columns", u"name,scope"}).output, expected);
    m_environment[u"WINEPREFIX"] = m_folder.Path(u".wine");
    m_environment[u"HOME"] = CString(u"/");
    EXPECT_EQ(Programs({u"-q", u"--columns", u"name,scope"}).output, expected);
    EXPECT_EQ(m_folder.ReadFile(u".wine/system.reg"), machineText) << "nothing is written";
    EXPECT_EQ(m_folder.ReadFile(u".wine/user.reg"), userText);
}

TEST_F(ProgramsOfDisks, AreAnErrorWithoutAPrefix)
{
    const ProgramResult result = Programs({});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.errors, AllOf(StartsWith("vyr: there is no Wine prefix in '"),
                                     EndsWith("name a Windows disk, a folder of hives or a Wine prefix\n")));
}

TEST_F(ProgramsOfDisks, OfOtherUsersAreListedWhereOneCannotBeRead)
{
    WriteSampleDisk();
    m_disk.Folder().WriteFile(u"Users/Ann/NTUSER.DAT", "regf");
    const ProgramResult result = Programs({m_disk.Path(), u"-q", u"--columns", u"name,user"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, "Chat     Eva\nChat     Tom\nEditor\nOld one\n");
    EXPECT_THAT(result.errors, AllOf(StartsWith("vyr: '"), EndsWith("/Users/Ann/NTUSER.DAT' is cut short\n")));
}

TEST_F(ProgramsOfDisks, OfAHiveWithoutPermissionAreRefusedWithItsName)
{
    if (RunUnprivileged({u"--version"}).exitCode != 0)
        GTEST_SKIP() << "root can read every file, and nobody else can run the program here";
    WriteSampleDisk();
    const std::filesystem::path root = ToStdPath(m_disk.Path());
    std::filesystem::permissions(root, std::filesystem::perms::all);
    std::filesystem::permissions(root / "Users/Eva/NTUSER.DAT", std::filesystem::perms::none);
    std::filesystem::permissions(root / "Users/Tom", std::filesystem::perms::none);
    const ProgramResult result = RunUnprivileged({u"programs", m_disk.Path(), u"-q", u"--columns", u"name"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_EQ(result.output, "Editor\nOld one\n");
    EXPECT_THAT(result.errors, AllOf(HasSubstr("/Users/Eva/NTUSER.DAT' cannot be read: Permission denied\n"),
                                     HasSubstr("/Users/Tom' cannot be read: Permission denied\n")));
    std::filesystem::permissions(root / "Users/Tom", std::filesystem::perms::all);
}

TEST_F(ProgramsOfDisks, AreReadWithAWarningWhereWindowsDidNotCloseThem)
{
    RegistryTree software;
    AddTexts(software, MachineEntry(u"Editor"), {{u"DisplayName", u"Editor"}});
    std::string bytes = BuildHive(software).bytes;
    bytes[4] = static_cast<char>(bytes[8] + 1);
    SealHive(bytes);
    m_disk.Folder().WriteFile(u"SOFTWARE", bytes);
    const ProgramResult result = Programs({u"--hives", m_disk.Path(), u"-q", u"--columns", u"name"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.output, "Editor\n");
    EXPECT_THAT(result.errors, HasSubstr("SOFTWARE' was not closed by its Windows"));
    EXPECT_EQ(m_disk.Folder().ReadFile(u"SOFTWARE"), bytes) << "nothing is written";
}

TEST_F(ProgramsOfDisks, AreListedByEachExampleOfTheHelp)
{
    WriteSampleDisk();
    for (const char16_t* const prefix : {u"prefix/", u".wine/"}) {
        m_folder.WriteFile(CString(prefix) + u"system.reg", WineText({}));
        m_folder.WriteFile(CString(prefix) + u"user.reg", WineText({}));
    }
    int examples = 0;
    for (const CString command : {u"programs", u"browsers"}) {
        std::istringstream lines(Run({command, u"--help"}).output);
        for (std::string line; std::getline(lines, line);) {
            if (!line.starts_with("  vyr "))
                continue;
            ++examples;
            std::istringstream words(line.substr(line.find("vyr ") + 4));
            std::vector<CString> arguments;
            for (std::string word; words >> word;)
                arguments.push_back(word == "/mnt/windows" ? m_disk.Path() : VyrPlatform::Encoding::FromUtf8(word));
            const ProgramResult result = Run(arguments);
            EXPECT_EQ(result.exitCode, 0) << line << result.errors;
            EXPECT_THAT(result.output + result.errors, testing::ContainsRegex("[0-9] (program|product|browser)s?[,.]"))
                << line;
        }
    }
    EXPECT_EQ(examples, 6);
}
