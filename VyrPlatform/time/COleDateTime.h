/// @file
/// The automation date-time of the platform class library.
#pragma once

#include <VyrPlatform/Export.h>

struct _SYSTEMTIME; // NOLINT(bugprone-reserved-identifier): the system's own tag

/// A date-time as a count of days since 30 December 1899 00:00, with a status.
///
/// The fraction is the time of day. It counts forward for negative days too: -1.25 is 29 December 1899 06:00, so that
/// the values between -1 and 0 are times of 30 December 1899, as those from 0 to 1 are. Calendar fields are read to the
/// nearest second. The range is 1 January 100 00:00:00 to 31 December 9999 23:59:59, proleptic Gregorian. (The rules of
/// OLE automation's DATE type.)
class VYR_PLATFORM_API COleDateTime
{
public:
    enum DateTimeStatus
    {
        valid = 0,
        invalid = 1,
        null = 2
    };

    /// The zero date-time, 30 December 1899 00:00, valid.
    COleDateTime() noexcept = default;
    /// A count of days; one outside the range gives an invalid date-time.
    explicit COleDateTime(double days) noexcept;
    /// Local calendar fields: year 100 to 9999, month 1 to 12, day 1 to the month's last, hour 0 to 23, minute and
    /// second 0 to 59. Any other value gives an invalid date-time.
    COleDateTime(int year, int month, int day, int hour, int minute, int second) noexcept;
    /// The fields of `fields` without their milliseconds, under the same bounds. Its day of the week is not read.
    explicit COleDateTime(const _SYSTEMTIME& fields) noexcept;

    [[nodiscard]] DateTimeStatus GetStatus() const noexcept { return m_status; }
    void SetStatus(DateTimeStatus status) noexcept { m_status = status; }
    /// The count of days, whatever the status.
    operator double() const noexcept { return m_dt; }

    /// Calendar fields; -1 when the date-time is not valid.
    [[nodiscard]] int GetYear() const noexcept;
    [[nodiscard]] int GetMonth() const noexcept;
    [[nodiscard]] int GetDay() const noexcept;
    [[nodiscard]] int GetHour() const noexcept;
    [[nodiscard]] int GetMinute() const noexcept;
    [[nodiscard]] int GetSecond() const noexcept;
    /// 1 = Sunday to 7 = Saturday; -1 when the date-time is not valid.
    [[nodiscard]] int GetDayOfWeek() const noexcept;
    /// All fields at once, milliseconds 0.
    /// @return false, with `fields` unchanged, when the date-time is not valid.
    [[nodiscard]] bool GetAsSystemTime(_SYSTEMTIME& fields) const noexcept;

    double m_dt = 0.0;
    DateTimeStatus m_status = valid;
};
