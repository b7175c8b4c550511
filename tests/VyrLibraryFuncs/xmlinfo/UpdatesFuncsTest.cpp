// Update information and the schedule of checks, except the reading of documents.
#include <VyrLibraryFuncs/xmlinfo/UpdatesFuncs.h>

#include <VyrLibraryUtils/PathUtils.h>
#include <VyrLibraryUtils/VersionUtils.h>

#include <tests/support/Describe.h>
#include <tests/support/FixedClock.h>
#include <tests/support/StdPath.h>
#include <tests/support/UserData.h>

#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>
#include <vector>

using VyrLibraryFuncs::UpdatesFuncs;
using VyrLibraryUtils::PathUtils;
using VyrLibraryUtils::VersionUtils;
using VyrTests::FixedClock;
using VyrTests::UserData;

namespace {

/// Data folders of the test's own, and settings as they are when the library is loaded.
class UpdatesFuncsTest : public testing::Test
{
protected:
    UpdatesFuncsTest() { Reset(); }
    ~UpdatesFuncsTest() override { Reset(); }

    static void WriteLocalData(const std::string& content)
    {
        UserData::WriteFile(PathUtils::GetLocalDataUpdatesFilePath(), content);
    }
    static void WriteUsers(const std::string& content)
    {
        UserData::WriteFile(PathUtils::GetUpdatesFilePath(), content);
    }
    static std::string ReadUsers()
    {
        std::ifstream stream(VyrTests::ToStdPath(PathUtils::GetUpdatesFilePath()), std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

private:
    static void Reset()
    {
        UpdatesFuncs::InitializeUpdatesInformation();
        UpdatesFuncs::SetPlatformBit({});
        UpdatesFuncs::SetCheckedDate({});
    }

    UserData m_userData;
};

/// The bytes of an ASCII text in UTF-16, little-endian, with its mark.
std::string Utf16(const std::string& ascii)
{
    std::string bytes = "\xFF\xFE";
    for (const char c : ascii)
        bytes += {c, '\0'};
    return bytes;
}

/// The running program's version with `change` added to one of its parts.
CString OwnVersion(std::size_t part, int change)
{
    std::array<int, 4> numbers = {VersionUtils::GetFileMajorVersion(), VersionUtils::GetFileMinorVersion(),
                                  VersionUtils::GetFileRevisionVersion(), VersionUtils::GetFileBuildVersion()};
    numbers[part] += change;
    CString text;
    text.Format(u"%d.%d.%d.%d", numbers[0], numbers[1], numbers[2], numbers[3]);
    return text;
}

int IsDue(const CString& checkedDate, const COleDateTime& now, int days)
{
    const FixedClock clock(now);
    UpdatesFuncs::SetCheckedDate(checkedDate);
    return UpdatesFuncs::IsDateIntervalCheckForUpdates(days);
}

} // namespace

TEST_F(UpdatesFuncsTest, SettingsKeepTheirValues)
{
    UpdatesFuncs::SetType(u"a");
    UpdatesFuncs::SetProductName(u"b");
    UpdatesFuncs::SetVersion(u"c");
    UpdatesFuncs::SetEdition(u"d");
    UpdatesFuncs::SetPlatformBit(u"e");
    UpdatesFuncs::SetDetailsURL(u"f");
    UpdatesFuncs::SetDownloadURL(u"g");
    UpdatesFuncs::SetCheckedDate(u"h");
    UpdatesFuncs::SetUpdateItemsList({{3, u"i"}, {4, u"j"}});
    EXPECT_EQ(UpdatesFuncs::GetType(), u"a");
    EXPECT_EQ(UpdatesFuncs::GetProductName(), u"b");
    EXPECT_EQ(UpdatesFuncs::GetVersion(), u"c");
    EXPECT_EQ(UpdatesFuncs::GetEdition(), u"d");
    EXPECT_EQ(UpdatesFuncs::GetPlatformBit(), u"e");
    EXPECT_EQ(UpdatesFuncs::GetDetailsURL(), u"f");
    EXPECT_EQ(UpdatesFuncs::GetDownloadURL(), u"g");
    EXPECT_EQ(UpdatesFuncs::GetCheckedDate(), u"h");
    const std::vector<UpdatesFuncs::UPDATEITEM> items = UpdatesFuncs::GetUpdateItemsList();
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[0].category, 3);
    EXPECT_EQ(items[1].description, u"j");
}

TEST_F(UpdatesFuncsTest, InitialisingKeepsThePlatformsBitsAndTheCheckedDate)
{
    for (const auto set : {UpdatesFuncs::SetType, UpdatesFuncs::SetProductName, UpdatesFuncs::SetVersion,
                           UpdatesFuncs::SetEdition, UpdatesFuncs::SetPlatformBit, UpdatesFuncs::SetDetailsURL,
                           UpdatesFuncs::SetDownloadURL, UpdatesFuncs::SetCheckedDate})
        set(u"x");
    UpdatesFuncs::SetUpdateItemsList({{3, u"i"}});
    UpdatesFuncs::InitializeUpdatesInformation();
    for (const auto get : {UpdatesFuncs::GetType, UpdatesFuncs::GetProductName, UpdatesFuncs::GetVersion,
                           UpdatesFuncs::GetEdition, UpdatesFuncs::GetDetailsURL, UpdatesFuncs::GetDownloadURL})
        EXPECT_EQ(get(), u"");
    EXPECT_TRUE(UpdatesFuncs::GetUpdateItemsList().empty());
    EXPECT_EQ(UpdatesFuncs::GetPlatformBit(), u"x");
    EXPECT_EQ(UpdatesFuncs::GetCheckedDate(), u"x");
}

TEST_F(UpdatesFuncsTest, VersionIsNewerByItsFirstPartThatDiffers)
{
    ASSERT_EQ(OwnVersion(0, 0), u"3.1.4.15");
    EXPECT_EQ(UpdatesFuncs::CheckForUpdates(OwnVersion(0, 0)), 0) << "the same";
    for (std::size_t part = 0; part < 4; ++part) {
        EXPECT_EQ(UpdatesFuncs::CheckForUpdates(OwnVersion(part, 1)), 1) << part;
        EXPECT_EQ(UpdatesFuncs::CheckForUpdates(OwnVersion(part, -1)), 0) << part;
    }
    EXPECT_EQ(UpdatesFuncs::CheckForUpdates(u"2.9.9.99"), 0);
    EXPECT_EQ(UpdatesFuncs::CheckForUpdates(u"4.0.0.0"), 1);
    EXPECT_EQ(UpdatesFuncs::CheckForUpdates(u"3.10.0.0"), 1) << "numbers, not texts";
}

TEST_F(UpdatesFuncsTest, VersionOfOtherThanFourPartsIsNotNewer)
{
    for (const char16_t* const version : {u"", u"9", u"9.9.9", u"9.9.9.9.9", u"9,9,9,9", u"...", u"newest"})
        EXPECT_EQ(UpdatesFuncs::CheckForUpdates(version), 0) << testing::PrintToString(CString(version));
}

TEST_F(UpdatesFuncsTest, AddressAndAgreementAreReadFromTheLocalData)
{
    EXPECT_EQ(UpdatesFuncs::GetCheckForUpdatesUrl(), u"");
    EXPECT_EQ(UpdatesFuncs::GetAgreeIgnoreServer(), 0);
    WriteUsers("[Updates]\r\nUrl=wrong\r\nAgreeIgnoreServer=5\r\n");
    EXPECT_EQ(UpdatesFuncs::GetCheckForUpdatesUrl(), u"");
    EXPECT_EQ(UpdatesFuncs::GetAgreeIgnoreServer(), 0);
    WriteLocalData("[Updates]\r\nUrl=https://example.org/u.xml\r\nAgreeIgnoreServer=1\r\n");
    EXPECT_EQ(UpdatesFuncs::GetCheckForUpdatesUrl(), u"https://example.org/u.xml");
    EXPECT_EQ(UpdatesFuncs::GetAgreeIgnoreServer(), 1);
    WriteLocalData("[Updates]\r\nUrl=" + std::string(400, 'x') + "\r\n");
    EXPECT_EQ(UpdatesFuncs::GetCheckForUpdatesUrl(), CString(u'x', 259));
    EXPECT_EQ(UpdatesFuncs::GetAgreeIgnoreServer(), 0);
}

TEST_F(UpdatesFuncsTest, CheckedDateIsLoadedFromTheUsersFile)
{
    UpdatesFuncs::SetCheckedDate(u"former");
    WriteLocalData("[Updates]\r\nCheckedDate=wrong\r\n");
    UpdatesFuncs::LoadCheckForUpdatesDate();
    EXPECT_EQ(UpdatesFuncs::GetCheckedDate(), u"former") << "there is no file";
    WriteUsers("[Updates]\r\nCheckedDate=2024/01/05 10:30:00\r\n");
    UpdatesFuncs::LoadCheckForUpdatesDate();
    EXPECT_EQ(UpdatesFuncs::GetCheckedDate(), u"2024/01/05 10:30:00");
    WriteUsers("[Updates]\r\n");
    UpdatesFuncs::LoadCheckForUpdatesDate();
    EXPECT_EQ(UpdatesFuncs::GetCheckedDate(), u"") << "there is no date";
}

TEST_F(UpdatesFuncsTest, SavingWritesTheUsersFileAnew)
{
    const std::string expected = Utf16("; Updates.ini\r\n[Updates]\r\nCheckedDate=2024/01/05 10:30:00\r\n");
    const FixedClock clock(COleDateTime(2024, 1, 5, 10, 30, 0));
    UpdatesFuncs::SaveCheckForUpdatesDate();
    EXPECT_EQ(ReadUsers(), expected) << "its folder was missing";
    EXPECT_EQ(UpdatesFuncs::GetCheckedDate(), u"2024/01/05 10:30:00");
    WriteUsers("[Other]\r\nkey=value\r\n");
    UpdatesFuncs::SetCheckedDate({});
    UpdatesFuncs::SaveCheckForUpdatesDate();
    EXPECT_EQ(ReadUsers(), expected) << "nothing of the former file is left";
    UpdatesFuncs::SetCheckedDate({});
    UpdatesFuncs::LoadCheckForUpdatesDate();
    EXPECT_EQ(UpdatesFuncs::GetCheckedDate(), u"2024/01/05 10:30:00");
    EXPECT_EQ(UpdatesFuncs::IsDateIntervalCheckForUpdates(0), 1);
}

TEST_F(UpdatesFuncsTest, DateIsKeptWhereTheFileCannotBeWritten)
{
    const FixedClock clock(COleDateTime(2024, 1, 5, 10, 30, 0));
    // A folder is at the path of the file.
    const std::filesystem::path path = VyrTests::ToStdPath(PathUtils::GetUpdatesFilePath());
    std::filesystem::create_directories(path / "below");
    UpdatesFuncs::SaveCheckForUpdatesDate();
    EXPECT_EQ(UpdatesFuncs::GetCheckedDate(), u"2024/01/05 10:30:00");
    EXPECT_TRUE(is_directory(path / "below"));
}

TEST_F(UpdatesFuncsTest, DaysAreCountedFromDateToDate)
{
    const COleDateTime now(2024, 3, 1, 0, 0, 1);
    EXPECT_EQ(IsDue(u"2024/03/01 00:00:00", now, 0), 1);
    EXPECT_EQ(IsDue(u"2024/03/01 00:00:00", now, 1), 0);
    EXPECT_EQ(IsDue(u"2024/02/29 23:59:59", now, 1), 1) << "two seconds are a day from date to date";
    EXPECT_EQ(IsDue(u"2024/02/29 23:59:59", now, 2), 0);
    EXPECT_EQ(IsDue(u"2024/02/23 12:00:00", now, 7), 1);
    EXPECT_EQ(IsDue(u"2024/02/24 00:00:00", now, 7), 0);
    EXPECT_EQ(IsDue(u"2023/03/01 00:00:00", now, 366), 1);
    EXPECT_EQ(IsDue(u"2023/03/01 00:00:00", now, 367), 0);
    EXPECT_EQ(IsDue(u"2024/03/02 00:00:00", now, 0), 0) << "in the future";
    EXPECT_EQ(IsDue(u"2024/03/02 00:00:00", now, -1), 1);
}

TEST_F(UpdatesFuncsTest, InvalidDateIsNotDue)
{
    const COleDateTime now(2024, 3, 1, 0, 0, 0);
    for (const char16_t* const text : {u"", u"never", u"2024/02/30 00:00:00", u"2024/13/01"})
        EXPECT_EQ(IsDue(text, now, 0), 0) << testing::PrintToString(CString(text));
    COleDateTime invalid;
    invalid.SetStatus(COleDateTime::invalid);
    EXPECT_EQ(IsDue(u"2024/02/01 00:00:00", invalid, 0), 0);
}

TEST_F(UpdatesFuncsTest, DateBeforeTheCalendarsRangeThrows)
{
    const COleDateTime now(2024, 3, 1, 0, 0, 0);
    EXPECT_THROW(IsDue(u"1399/12/31 00:00:00", now, 0), std::out_of_range);
    EXPECT_EQ(IsDue(u"1400/01/01 00:00:00", now, 0), 1);
}
