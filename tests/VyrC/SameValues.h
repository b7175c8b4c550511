// For tests: the shared values as those of C++, and how results of C++ are shown to be compared.
#pragma once

#include "SharedValues.h"

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/controls/CListCtrl.h>
#include <VyrPlatform/controls/CRect.h>
#include <VyrPlatform/documents/XmlTypes.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace VyrCTests {

inline CString ToText(const vyr_text& text)
{
    return std::u16string_view(reinterpret_cast<const char16_t*>(text.units), static_cast<std::size_t>(text.length));
}

inline GUID ToGuid(const vyr_guid& given)
{
    GUID id{given.data1, given.data2, given.data3, {}};
    std::memcpy(id.Data4, given.data4, sizeof id.Data4);
    return id;
}

/// A property's value: none, a text or a number.
class GivenValue
{
public:
    explicit GivenValue(const vyr_value* value) : m_isNone(!value)
    {
        if (!value)
            return;
        m_text = ToText(value->text);
        m_value.vt = static_cast<VARTYPE>(value->type);
        if (m_value.vt == VT_LPWSTR)
            m_value.pwszVal = reinterpret_cast<decltype(m_value.pwszVal)>(const_cast<char16_t*>(m_text.GetString()));
        else
            m_value.lVal = static_cast<std::int32_t>(value->number);
    }
    [[nodiscard]] PROPVARIANT* Get() { return m_isNone ? nullptr : &m_value; }

private:
    bool m_isNone;
    CString m_text;
    PROPVARIANT m_value{};
};

/// The values of one round.
class Values
{
public:
    explicit Values(int round) : m_values{static_cast<std::size_t>(round)} {}

    template <class Type>
    Type Next()
    {
        if constexpr (std::is_same_v<Type, CString>) {
            return ToText(next_text(&m_values));
        } else if constexpr (std::is_same_v<Type, COleDateTime>) {
            const vyr_date_time given = next_date_time(&m_values);
            COleDateTime moment(given.days);
            if (given.status != 0)
                moment.SetStatus(static_cast<COleDateTime::DateTimeStatus>(given.status));
            return moment;
        } else if constexpr (std::is_same_v<Type, GUID>) {
            return ToGuid(next_guid(&m_values));
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

    CString NextPath() { return ToText(next_path(&m_values)); }
    CString NextFreePath() { return ToText(next_free_path(&m_values)); }
    HKEY NextKey() { return reinterpret_cast<HKEY>(next_key(&m_values)); }
    CListCtrl NextList()
    {
        CListCtrl list;
        list.Attach(reinterpret_cast<HWND>(next_list(&m_values)));
        return list;
    }
    IDispatch* NextPage() { return static_cast<IDispatch*>(next_page(&m_values)); }
    std::optional<FILETIME> NextFileTime()
    {
        std::uint64_t ticks = 0;
        if (!next_file_time(&m_values, &ticks))
            return std::nullopt;
        return FILETIME{static_cast<DWORD>(ticks & 0xFFFFFFFF), static_cast<DWORD>(ticks >> 32)};
    }
    CRect NextRect()
    {
        const vyr_rect rectangle = next_rect(&m_values);
        return {rectangle.left, rectangle.top, rectangle.right, rectangle.bottom};
    }
    GivenValue NextValue()
    {
        vyr_value place;
        return GivenValue(next_value(&m_values, &place));
    }
    GUID NextHandler() { return ToGuid(next_handler(&m_values)); }

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
