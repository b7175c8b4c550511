// Reads date-times by a pattern, piece by piece.
#pragma once

#include <VyrPlatform/time/COleDateTime.h>

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace VyrPlatform::DateTimePattern {

/// How closely a text must match a pattern. Names match in either case, and a two-digit year below 30 is in the 21st
/// century, any other in the 20th.
enum class Reading : std::uint8_t
{
    /// Each code unit must match.
    Exact,
    /// Numbers may have one digit or two, a year two or four; a blank matches any run of blanks.
    Lenient
};

/// Reads a date-time from the front of a text, one pattern after the other.
class Reader
{
public:
    explicit Reader(std::u16string_view text) noexcept : m_rest(text) {}

    /// Reads the part that `pattern` describes.
    /// @return false when the text does not match; the reader cannot be used afterwards.
    [[nodiscard]] bool Take(std::u16string_view pattern, Reading reading);
    /// Skips blanks.
    /// @return whether there was one.
    bool TakeBlanks() noexcept;
    [[nodiscard]] bool IsAtEnd() const noexcept { return m_rest.empty(); }
    /// The date-time that was read; invalid when it is not a date. Parts that no pattern named are those of midnight.
    [[nodiscard]] COleDateTime Value() const noexcept;

private:
    struct Fields
    {
        int year = 0;
        int month = 0;
        int day = 0;
        int hour = 0;
        int minute = 0;
        int second = 0;
        bool isAfternoon = false;
        bool isTwelveHour = false;
    };

    bool TakeConversion(char16_t letter, bool isPadded, Reading reading);
    bool TakeUnit(char16_t unit) noexcept;
    bool TakeNumber(int& number, std::size_t least, std::size_t most) noexcept;
    bool TakeYear(bool isLong, Reading reading) noexcept;
    bool TakeMonthName();
    bool TakeDayName();
    bool TakeHalfDay();
    template <class Names>
    void FindLongest(const Names& names, int& index, std::size_t& length) const;

    std::u16string_view m_rest;
    Fields m_fields;
};

} // namespace VyrPlatform::DateTimePattern
