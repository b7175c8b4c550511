#include <VyrHost/rename/ZoneClock.h>

#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/text/Errors.h>
#include <VyrHostPlatform/TimeZoneFiles.h>
#include <VyrPlatform/text/Encoding.h>

#include <chrono>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tests/support/PictureBuilder.h>

using namespace VyrHost::Rename;
using VyrHost::Text::UsageError;

namespace {

using VyrTests::Bytes;

/// Seconds since 1970.
std::int64_t At(int year, unsigned month, unsigned day, int hour = 0, int minute = 0, int second = 0)
{
    using namespace std::chrono;
    const sys_days date{std::chrono::year(year) / std::chrono::month(month) / std::chrono::day(day)};
    return (sys_seconds(date) + hours(hour) + minutes(minute) + seconds(second)).time_since_epoch().count();
}

/// The file of a zone with one change, from `before` to `after`.
Bytes ZoneFile(std::int64_t change, int before, int after, const Bytes& rule)
{
    using namespace VyrTests;
    const auto big = [](std::uint64_t value, std::size_t width) {
        return Number(value, width, Endian::Big);
    };
    const Bytes head = "TZif2" + Bytes(15, '\0');
    const Bytes empty = head + Bytes(24, '\0');
    const auto type = [&big](int ahead) {
        return big(static_cast<std::uint32_t>(ahead), 4) + Bytes(2, '\0');
    };
    return empty + head + big(0, 4) + big(0, 4) + big(0, 4) + big(1, 4) + big(2, 4) + big(4, 4) +
           big(static_cast<std::uint64_t>(change), 8) + '\1' + type(before) + type(after) + Bytes("ABC\0", 4) + "\n" +
           rule + "\n";
}

std::string MessageFor(const CString& zone)
{
    try {
        (void)ParseTimeZone(zone);
    } catch (const UsageError& error) {
        return error.what();
    }
    return {};
}

int Ahead(std::string_view rule, std::int64_t instant)
{
    const auto read = ZoneRule::Read(rule);
    return read ? read->SecondsAhead(instant) : -1;
}

} // namespace

TEST(ZoneClocks, ZonesOfTheWorldShowWhatTheirRulesSay)
{
    // By Python's zoneinfo.
    const std::int64_t instants[] = {
        At(1905, 6, 1),
        At(1945, 7, 1, 12),
        At(1975, 1, 15, 6),
        At(2011, 12, 30, 12),
        At(2024, 3, 31, 0, 59, 59),
        At(2024, 3, 31, 1),
        At(2024, 10, 27, 0, 59, 59),
        At(2024, 10, 27, 1),
        At(2044, 7, 1),
        At(2050, 12, 31, 23, 30),
        At(2105, 4, 3, 15),
        At(2099, 11, 1, 6),
    };
    struct Zone
    {
        const char16_t* name;
        int ahead[std::size(instants)];
    };
    const Zone zones[] = {
        {u"Europe/Berlin", {3600, 10800, 3600, 3600, 3600, 7200, 7200, 3600, 7200, 3600, 7200, 3600}},
        {u"America/New_York",
         {-18000, -14400, -18000, -18000, -14400, -14400, -14400, -14400, -14400, -18000, -14400, -18000}},
        {u"Australia/Lord_Howe", {36000, 36000, 36000, 39600, 39600, 39600, 39600, 39600, 37800, 39600, 39600, 39600}},
        {u"Africa/Casablanca", {-1820, 3600, 0, 0, 0, 0, 3600, 3600, 3600, 3600, 3600, 3600}},
        {u"Europe/Dublin", {-1521, 3600, 0, 0, 0, 3600, 3600, 0, 3600, 0, 3600, 0}},
        {u"Asia/Kathmandu", {20476, 19800, 19800, 20700, 20700, 20700, 20700, 20700, 20700, 20700, 20700, 20700}},
        {u"America/St_Johns",
         {-12652, -9000, -12600, -12600, -9000, -9000, -9000, -9000, -9000, -12600, -9000, -12600}},
        {u"Pacific/Apia", {-41216, -41400, -39600, 50400, 46800, 46800, 46800, 46800, 46800, 46800, 46800, 46800}},
        {u"Antarctica/Troll", {0, 0, 0, 0, 0, 7200, 7200, 0, 7200, 0, 7200, 0}},
        {u"America/Nuuk", {-12416, -10800, -10800, -10800, -7200, -3600, -3600, -7200, -3600, -7200, -3600, -7200}},
        {u"Asia/Gaza", {7200, 10800, 7200, 7200, 7200, 7200, 7200, 7200, 10800, 7200, 10800, 7200}},
        {u"Pacific/Chatham", {44100, 44100, 49500, 49500, 49500, 49500, 49500, 49500, 45900, 49500, 49500, 49500}},
        {u"Africa/Monrovia", {-2588, -2670, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
        {u"Asia/Tehran", {12344, 12600, 12600, 12600, 12600, 12600, 12600, 12600, 12600, 12600, 12600, 12600}},
        {u"America/Sao_Paulo",
         {-11188, -10800, -10800, -7200, -10800, -10800, -10800, -10800, -10800, -10800, -10800, -10800}},
        {u"Etc/GMT+5",
         {-18000, -18000, -18000, -18000, -18000, -18000, -18000, -18000, -18000, -18000, -18000, -18000}},
        {u"EST5EDT", {-18000, -14400, -18000, -18000, -14400, -14400, -14400, -14400, -14400, -18000, -14400, -18000}},
        {u"Asia/Kolkata", {19270, 23400, 19800, 19800, 19800, 19800, 19800, 19800, 19800, 19800, 19800, 19800}},
    };
    for (const Zone& zone : zones) {
        const ZoneClock clock = ParseTimeZone(zone.name);
        for (std::size_t at = 0; at < std::size(instants); ++at)
            EXPECT_EQ(clock.SecondsAhead(instants[at]), zone.ahead[at])
                << VyrPlatform::Encoding::ToUtf8(zone.name) << " " << instants[at];
    }
}

TEST(ZoneClocks, EveryZoneOfTheSystemIsRead)
{
    for (const std::string& name : VyrHostPlatform::TimeZoneNames())
        EXPECT_TRUE(ZoneClock::Read(VyrHostPlatform::TimeZoneFile(name))) << name;
}

TEST(ZoneClocks, ChangesCountFromTheirSecondOn)
{
    const auto clock = ZoneClock::Read(ZoneFile(1000, 60, 120, ""));
    ASSERT_TRUE(clock);
    EXPECT_EQ(clock->SecondsAhead(999), 60);
    EXPECT_EQ(clock->SecondsAhead(1000), 120);
    EXPECT_EQ(clock->SecondsAhead(1LL << 40), 120);
    const auto withRule = ZoneClock::Read(ZoneFile(1000, 60, 120, "XXX-1"));
    ASSERT_TRUE(withRule);
    EXPECT_EQ(withRule->SecondsAhead(1000), 3600) << "behind the last change the rule counts";
}

TEST(ZoneClocks, DamagedFilesAreNone)
{
    const Bytes file = ZoneFile(1000, 60, 120, "XXX-1");
    // A file that is cut off within its rule has none.
    const std::size_t rule = file.find("\nXXX");
    for (std::size_t size = 0; size < rule; ++size)
        EXPECT_FALSE(ZoneClock::Read(std::string_view(file).substr(0, size))) << size;
    EXPECT_FALSE(ZoneClock::Read(ZoneFile(1000, 60, 1 << 30, "")));
    for (std::size_t at = 0; at < file.size(); ++at) {
        Bytes lying = file;
        lying[at] = '\xFF';
        if (const auto clock = ZoneClock::Read(lying)) {
            EXPECT_LE(std::abs(clock->SecondsAhead(0)), 26 * 3600);
        }
    }
}

TEST(ZoneClocks, RulesAreReadInEveryForm)
{
    EXPECT_EQ(Ahead("UTC0", 0), 0);
    EXPECT_EQ(Ahead("<-03>3", 0), -3 * 3600);
    EXPECT_EQ(Ahead("<+0530>-5:30", 0), 19800);
    EXPECT_EQ(Ahead("LMT-0:53:28", 0), 3208);
    // By days of the year, with and without 29 February.
    for (const char* const rule : {"AAA0BBB,J60,J61/0", "AAA0BBB,60,61/0"}) {
        EXPECT_EQ(Ahead(rule, At(2024, 3, 1, 2)), 3600) << rule;
        EXPECT_EQ(Ahead(rule, At(2024, 3, 1, 1, 59)), 0) << rule;
        EXPECT_EQ(Ahead(rule, At(2024, 3, 1, 23)), 0) << rule;
    }
    // Hours of other days.
    EXPECT_EQ(Ahead("AAA3BBB2,M3.5.0/-2,M10.5.0/-1", At(2040, 3, 25, 0, 59)), -3 * 3600);
    EXPECT_EQ(Ahead("AAA3BBB2,M3.5.0/-2,M10.5.0/-1", At(2040, 3, 25, 1)), -2 * 3600);
    // Summer all year round.
    EXPECT_EQ(Ahead("AAA5BBB4,0/0,J365/25", At(2040, 1, 1, 5)), -4 * 3600);
    EXPECT_EQ(Ahead("AAA5BBB4,0/0,J365/25", At(2040, 12, 31, 23)), -4 * 3600);
    // Years far away.
    EXPECT_EQ(Ahead("AAA0", INT64_MAX / 2), 0);
}

TEST(ZoneClocks, TextsThatAreNoRulesAreNone)
{
    for (const char* const text : {"", "A0", "AAA", "AAA0BBB", "AAA0BBB,", "AAA0BBB,J60", "AAA0BBB,J0,J1",
                                   "AAA0BBB,M13.1.0,M1.1.0", "AAA0BBB,M1.6.0,M1.1.0", "AAA0BBB,M1.1.7,M1.1.0", "AAA168",
                                   "AAA1:60", "<AAA0", "AAA0 ", "AAA0BBB,366,1", "AAA99999999999"})
        EXPECT_FALSE(ZoneRule::Read(text)) << text;
}

TEST(ZoneClocks, OffsetsAreGivenInHoursAndMinutes)
{
    EXPECT_EQ(ParseTimeZone(u"UTC").SecondsAhead(0), 0);
    EXPECT_EQ(ParseTimeZone(u"+1").SecondsAhead(0), 3600);
    EXPECT_EQ(ParseTimeZone(u"-9:30").SecondsAhead(0), -34200);
    EXPECT_EQ(ParseTimeZone(u"+14:00").SecondsAhead(0), 50400);
    for (const char16_t* const text : {u"", u"+", u"+:30", u"+1:", u"+1:5", u"+1:60", u"+14:01", u"+123", u"2", u"+1x"})
        EXPECT_THROW((void)ParseTimeZone(text), UsageError) << VyrPlatform::Encoding::ToUtf8(text);
}

TEST(ZoneClocks, AMisspeltZoneGetsASuggestion)
{
    using testing::HasSubstr;
    EXPECT_THAT(MessageFor(u"Europe/Berln"), HasSubstr("did you mean Europe/Berlin?"));
    EXPECT_THAT(MessageFor(u"europe/berlin"), HasSubstr("did you mean Europe/Berlin?"));
    EXPECT_THAT(MessageFor(u"Berlin"), HasSubstr("did you mean Europe/Berlin?"));
    EXPECT_THAT(MessageFor(u"New_York"), HasSubstr("did you mean America/New_York?"));
    EXPECT_THAT(MessageFor(u"Middle-earth/Shire"), testing::Not(HasSubstr("did you mean")));
}
