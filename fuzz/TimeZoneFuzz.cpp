// Any bytes as the file of a time zone, and as the rule at its end: a clock is at most so far from UTC as a rule can
// say, at every instant.
#include <VyrHost/rename/ZoneClock.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

/// A rule has at most 167 hours, 59 minutes and 59 seconds, and an hour more in summer.
constexpr int mostSeconds = 169 * 60 * 60;
/// In seconds since 1970: the years from 1601 to 30827, which a file's time can have, and beyond.
constexpr std::int64_t instants[] = {-1'000'000'000'000, -11'644'473'600, 0,
                                     1'711'846'800,      1'730'000'000,   910'692'730'085};

template <class Clock>
void Check(const Clock& clock)
{
    for (const std::int64_t instant : instants)
        if (const int ahead = clock.SecondsAhead(instant); ahead < -mostSeconds || ahead > mostSeconds)
            std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    using namespace VyrHost::Rename;
    const std::string_view bytes(reinterpret_cast<const char*>(data), size);
    if (const auto clock = ZoneClock::Read(bytes))
        Check(*clock);
    if (const auto rule = ZoneRule::Read(bytes))
        Check(*rule);
    return 0;
}
