#include <VyrHostPlatform/TimeZoneFiles.h>

#include <algorithm>
#include <gtest/gtest.h>

using VyrHostPlatform::TimeZoneFile;
using VyrHostPlatform::TimeZoneNames;

TEST(TimeZoneFiles, EveryNameHasAFile)
{
    const std::vector<std::string> names = TimeZoneNames();
    EXPECT_GT(names.size(), 400U);
    for (const std::string& name : names)
        EXPECT_EQ(TimeZoneFile(name).substr(0, 4), "TZif") << name;
    for (const char* const name : {"Europe/Berlin", "America/Argentina/Buenos_Aires", "Etc/GMT+5", "UTC"})
        EXPECT_NE(std::find(names.begin(), names.end(), name), names.end()) << name;
}

TEST(TimeZoneFiles, OtherNamesHaveNone)
{
    for (const char* const name :
         {"", "Europe", "Europe/", "Europe/Berln", "europe/berlin", "/Europe/Berlin", "Europe/../Europe/Berlin",
          "../../../etc/passwd", "right/Europe/Berlin", "localtime", "tzdata.zi", "Europe/Berlin "})
        EXPECT_EQ(TimeZoneFile(name), "") << name;
}
