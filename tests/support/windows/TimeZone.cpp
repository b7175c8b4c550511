// On Windows the time zone is the machine's, which tests leave alone: they run where it is the wanted one already.
#include <tests/support/TimeZone.h>

#include <VyrPlatform/files/FileTimes.h>

#include <cstdlib>
#include <ctime>
#include <windows.h>

namespace VyrTests {

namespace {

/// The rules of the zones that tests ask for. Several of the system's zones have the same, so that names say nothing.
struct Rules
{
    const char* name;
    LONG bias;
    LONG daylightBias;
    WORD daylightMonth;
    WORD standardMonth;
};
constexpr Rules knownZones[] = {
    {"Europe/Berlin", -60, -60, 3, 10},
    {"UTC", 0, 0, 0, 0},
};

bool IsInForce(const Rules& rules)
{
    TIME_ZONE_INFORMATION zone;
    if (GetTimeZoneInformation(&zone) == TIME_ZONE_ID_INVALID || zone.Bias != rules.bias ||
        zone.DaylightDate.wMonth != rules.daylightMonth || zone.StandardDate.wMonth != rules.standardMonth)
        return false;
    return rules.daylightMonth == 0 || zone.DaylightBias == rules.daylightBias;
}

} // namespace

TimeZone::TimeZone(const std::string& name)
{
    m_whyNot = "the system's time zone is not " + name + " (under Wine, the one in TZ when the program starts)";
    for (const Rules& rules : knownZones) {
        if (name == rules.name && IsInForce(rules))
            m_whyNot.clear();
    }
    // TZ is Wine's; the C library would misread it, and without it asks the system.
    _putenv("TZ=");
    _tzset();
    VyrPlatform::FileTimes::FollowTimeZone();
}

TimeZone::~TimeZone() = default;

} // namespace VyrTests
