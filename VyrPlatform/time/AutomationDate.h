/// @file
/// Date-times from text, as OLE automation reads them.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <optional>

namespace VyrPlatform::AutomationDate {

/// Reads a date-time in the user's locale.
///
/// On both systems it reads `yyyy/MM/dd HH:mm:ss`, `yyyy-MM-dd HH:mm:ss`, `yyyy-MMM-dd HH:mm:ss` ("2024-Jan-05
/// 10:30:00") and the short date of the user's locale, each with or without a time. Linux reads no others
/// (DateTimePattern::ReadUsual). On Windows the system's own parser comes first and reads more; it may not know English
/// month names under another language.
/// @return nothing when the text is not a date-time, such as one with a `T` between date and time.
[[nodiscard]] VYR_PLATFORM_API std::optional<COleDateTime> Parse(const CString& text);

} // namespace VyrPlatform::AutomationDate
