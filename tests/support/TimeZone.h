// For tests: the user's time zone.
#pragma once

#include <string>

namespace VyrTests {

/// Puts the process into a time zone until its end of life.
///
///     const TimeZone zone("Europe/Berlin");
///     if (!zone.IsSet())
///         GTEST_SKIP() << zone.WhyNot();
class TimeZone
{
public:
    /// `name` as the time zone database has it, such as "Europe/Berlin".
    explicit TimeZone(const std::string& name);
    TimeZone(const TimeZone&) = delete;
    TimeZone& operator=(const TimeZone&) = delete;
    ~TimeZone();

    [[nodiscard]] bool IsSet() const noexcept { return m_whyNot.empty(); }
    /// Why this system cannot put the process into that zone; empty when it did.
    [[nodiscard]] const std::string& WhyNot() const noexcept { return m_whyNot; }

private:
    std::string m_before;
    std::string m_whyNot;
};

} // namespace VyrTests
