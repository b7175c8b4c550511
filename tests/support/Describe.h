// For tests: values of the class library as text, for comparisons and for messages.
#pragma once

#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <cstdio>
#include <ostream>
#include <string>

namespace VyrTests {

/// "2024-03-15 13:05:09", "invalid" or "null".
inline std::string Describe(const COleDateTime& dateTime)
{
    if (dateTime.GetStatus() != COleDateTime::valid)
        return dateTime.GetStatus() == COleDateTime::null ? "null" : "invalid";
    char text[80];
    std::snprintf(text, sizeof text, "%04d-%02d-%02d %02d:%02d:%02d", dateTime.GetYear(), dateTime.GetMonth(),
                  dateTime.GetDay(), dateTime.GetHour(), dateTime.GetMinute(), dateTime.GetSecond());
    return text;
}

} // namespace VyrTests

/// How GoogleTest shows a CString.
inline void PrintTo(const CString& text, std::ostream* stream)
{
    *stream << '"' << VyrPlatform::Encoding::ToUtf8(text) << '"';
}
