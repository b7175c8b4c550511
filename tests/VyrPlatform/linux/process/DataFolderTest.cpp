// The XDG base directories.
#include <tests/support/ChildProcess.h>

#include <VyrPlatform/text/Encoding.h>

#include <gtest/gtest.h>
#include <pwd.h>
#include <unistd.h>

namespace {

using Environment = std::map<CString, std::optional<CString>>;

/// The three data folders under `changes`, one a line.
std::string FoldersUnder(const Environment& changes)
{
    Environment environment = {{u"XDG_DATA_HOME", {}}, {u"XDG_CONFIG_HOME", {}}, {u"XDG_STATE_HOME", {}}};
    for (const auto& [name, value] : changes)
        environment[name] = value;
    return VyrTests::RunProgram({VyrTests::BesideThisProgram(u"PlatformProbe"), {u"folders"}, {}, environment}).output;
}

} // namespace

TEST(DataFolderTest, DefaultsAreInTheHomeFolder)
{
    EXPECT_EQ(FoldersUnder({{u"HOME", u"/home/ä"}}), "/home/ä/.local/share\n/home/ä/.config\n/home/ä/.local/state\n");
    EXPECT_EQ(FoldersUnder({{u"HOME", u"/"}}), "//.local/share\n//.config\n//.local/state\n");
}

TEST(DataFolderTest, VariablesNameOtherFolders)
{
    EXPECT_EQ(FoldersUnder({{u"HOME", u"/h"},
                            {u"XDG_DATA_HOME", u"/data"},
                            {u"XDG_CONFIG_HOME", u"/config/"},
                            {u"XDG_STATE_HOME", u"/"}}),
              "/data\n/config\n/\n");
}

TEST(DataFolderTest, EmptyAndRelativeVariablesAreIgnored)
{
    EXPECT_EQ(FoldersUnder({{u"HOME", u"/h"}, {u"XDG_DATA_HOME", u""}, {u"XDG_CONFIG_HOME", u"relative/config"}}),
              "/h/.local/share\n/h/.config\n/h/.local/state\n");
}

TEST(DataFolderTest, WithoutHomeTheUserDatabaseNamesIt)
{
    const passwd* const user = ::getpwuid(::getuid());
    if (!user)
        GTEST_SKIP() << "the user database does not know this user";
    const std::string home = user->pw_dir;
    for (const std::optional<CString>& unset : {std::optional<CString>(), std::optional<CString>(u"")})
        EXPECT_TRUE(FoldersUnder({{u"HOME", unset}}).starts_with(home + "/.local/share\n"));
}
