// The program's files in the XDG base directories.
#include <VyrLibraryUtils/PathUtils.h>

#include <tests/support/Describe.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>

using VyrLibraryUtils::PathUtils;

namespace {

/// Sets an environment variable until its end of life.
class Environment
{
public:
    Environment(const char* name, const char* value) : m_name(name)
    {
        if (const char* const before = std::getenv(name))
            m_before = before;
        ::setenv(name, value, 1);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    ~Environment()
    {
        if (m_before)
            ::setenv(m_name, m_before->c_str(), 1);
        else
            ::unsetenv(m_name);
    }

private:
    const char* m_name;
    std::optional<std::string> m_before;
};

TEST(PathUtilsOnLinux, FollowsTheXdgVariables)
{
    const Environment data("XDG_DATA_HOME", "/x/data");
    const Environment configuration("XDG_CONFIG_HOME", "/x/config/");
    const Environment state("XDG_STATE_HOME", "/x/state");
    EXPECT_EQ(PathUtils::GetApplicationLogFolderPath(), u"/x/state/Companion t\u00E9sts/Logs");
    EXPECT_EQ(PathUtils::GetLocalDataApplicationFilePath(), u"/x/data/Companion t\u00E9sts/Application.ini");
    EXPECT_EQ(PathUtils::GetUpdatesFilePath(), u"/x/config/Companion t\u00E9sts/Updates.ini");
    EXPECT_EQ(PathUtils::GetLocalDataUpdatesFilePath(), u"/x/data/Companion t\u00E9sts/Updates.ini");
}

TEST(PathUtilsOnLinux, FallsBackToTheHomeFolderAndIgnoresRelativeValues)
{
    const Environment home("HOME", "/home/someone");
    const Environment data("XDG_DATA_HOME", "");
    const Environment configuration("XDG_CONFIG_HOME", "relative");
    EXPECT_EQ(PathUtils::GetLocalDataApplicationFilePath(),
              u"/home/someone/.local/share/Companion t\u00E9sts/Application.ini");
    EXPECT_EQ(PathUtils::GetUpdatesFilePath(), u"/home/someone/.config/Companion t\u00E9sts/Updates.ini");
}

} // namespace
