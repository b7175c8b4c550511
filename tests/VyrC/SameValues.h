// For tests: the shared values as those of C++, and how results of C++ are shown to be compared.
#pragma once

#include "SharedValues.h"

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/controls/CListCtrl.h>
#include <VyrPlatform/documents/XmlTypes.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace VyrCTests {

/// The values of one round.
class Values
{
public:
    explicit Values(int round) : m_values{static_cast<std::size_t>(round)} {}

    template <class Type>
    Type Next()
    {
        if constexpr (std::is_same_v<Type, CString>) {
            const vyr_text text = next_text(&m_values);
            return std::u16string_view(reinterpret_cast<const char16_t*>(text.units),
                                       static_cast<std::size_t>(text.length));
        } else if constexpr (std::is_same_v<Type, COleDateTime>) {
            const vyr_date_time given = next_date_time(&m_values);
            COleDateTime moment(given.days);
            if (given.status != 0)
                moment.SetStatus(static_cast<COleDateTime::DateTimeStatus>(given.status));
            return moment;
        } else if constexpr (std::is_same_v<Type, GUID>) {
            const vyr_guid given = next_guid(&m_values);
            GUID id{given.data1, given.data2, given.data3, {}};
            std::memcpy(id.Data4, given.data4, sizeof id.Data4);
            return id;
        } else if constexpr (std::is_same_v<Type, std::pair<CString, int>>) {
            return {Next<CString>(), Next<int>()};
        } else if constexpr (std::is_pointer_v<Type>) {
            return reinterpret_cast<Type>(next_handle(&m_values));
        } else if constexpr (std::is_integral_v<Type>) {
            return static_cast<Type>(next_number(&m_values));
        } else {
            return Make(*this, static_cast<const Type*>(nullptr));
        }
    }

private:
    shared_values m_values;
};

inline std::string Show(const CString& text)
{
    std::string shown;
    for (const char16_t unit : text.View()) {
        std::array<char, 8> part{};
        if (unit > 31 && unit < 127)
            part[0] = static_cast<char>(unit);
        else
            std::snprintf(part.data(), part.size(), "\\%04x", static_cast<unsigned>(unit));
        shown += part.data();
    }
    return shown;
}

template <class Number>
requires std::is_arithmetic_v<Number> std::string Show(Number number)
{
    return std::to_string(number);
}

inline std::string Show(const COleDateTime& moment)
{
    return Show(static_cast<double>(moment)) + '/' + Show(static_cast<int>(moment.GetStatus()));
}

inline std::string Show(const FILETIME& moment)
{
    return std::to_string(std::uint64_t{moment.dwHighDateTime} << 32 | moment.dwLowDateTime);
}

inline std::string Show(const GUID& id)
{
    std::string shown = Show(id.Data1) + ' ' + Show(id.Data2) + ' ' + Show(id.Data3);
    for (const unsigned char byte : id.Data4)
        shown += ' ' + Show(byte);
    return shown;
}

inline std::string Show(const MSXML2::IXMLDOMDocumentPtr& document)
{
    return document ? "object" : "none";
}

inline std::string Show(const std::pair<CString, int>& both)
{
    return Show(both.first) + '/' + Show(both.second);
}

} // namespace VyrCTests
