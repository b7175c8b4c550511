// On Linux the environment variable TZ is the process's time zone.
#include <tests/support/TimeZone.h>

#include <VyrPlatform/files/FileTimes.h>

#include <cstdlib>

namespace VyrTests {

namespace {

void Set(const std::string& name)
{
    if (name.empty())
        unsetenv("TZ");
    else
        setenv("TZ", name.c_str(), 1);
    VyrPlatform::FileTimes::FollowTimeZone();
}

} // namespace

TimeZone::TimeZone(const std::string& name)
{
    if (const char* const before = std::getenv("TZ"))
        m_before = before;
    Set(name);
}

TimeZone::~TimeZone()
{
    Set(m_before);
}

} // namespace VyrTests
