// For tests: values for all types of the C interface, and how they are shown to be compared.
#pragma once

#include <VyrC/vyr.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/controls/CListCtrl.h>
#include <VyrPlatform/documents/XmlTypes.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/text/Encoding.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <type_traits>
#include <utility>

namespace VyrCTests {

/// The values of one round, each other than the last of its type. None is the path of a file that is there.
class Values
{
public:
    explicit Values(int round) : m_next(static_cast<std::size_t>(round)) {}

    template <class Type>
    Type Next()
    {
        const std::size_t number = m_next;
        m_next += 5;
        if constexpr (std::is_same_v<Type, CString>) {
            static const std::array<CString, 7> texts = {
                u"",        u"/no such/a b.txt",    u"IMG_0001.JPG", u"<Folder>%s", u"C:\\none\\x.y.z",
                u"1.2.3.4", CString(u'\x4e2d', 300)};
            return texts[number % texts.size()];
        } else if constexpr (std::is_same_v<Type, COleDateTime>) {
            static const std::array<double, 5> days = {0.0, 45322.25, -1.75, 2.5, 45000.9999};
            COleDateTime moment(days[number % days.size()]);
            if (number % 7 == 6)
                moment.SetStatus(COleDateTime::null);
            return moment;
        } else if constexpr (std::is_same_v<Type, GUID>) {
            return {static_cast<std::uint32_t>(number), 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};
        } else if constexpr (std::is_same_v<Type, std::pair<CString, int>>) {
            return {Next<CString>(), Next<int>()};
        } else if constexpr (std::is_pointer_v<Type>) {
            return reinterpret_cast<Type>(static_cast<std::intptr_t>(number % 3));
        } else if constexpr (std::is_integral_v<Type>) {
            static const std::array<int, 7> numbers = {0, 1, 2, 3, -1, 4, 260};
            return static_cast<Type>(numbers[number % numbers.size()]);
        } else {
            return Make(*this, static_cast<const Type*>(nullptr));
        }
    }

private:
    std::size_t m_next;
};

inline vyr_text InC(const CString& text)
{
    return {reinterpret_cast<const std::uint16_t*>(text.GetString()), text.GetLength()};
}

inline vyr_date_time InC(const COleDateTime& moment)
{
    return {moment, moment.GetStatus()};
}

inline vyr_guid InC(const GUID& id)
{
    vyr_guid made{};
    static_assert(sizeof made == sizeof id);
    std::memcpy(&made, &id, sizeof made);
    return made;
}

inline vyr_text_and_number InC(const std::pair<CString, int>& both)
{
    return {InC(both.first), both.second};
}

inline std::string Show(const CString& text)
{
    return VyrPlatform::Encoding::ToNameBytes(text);
}

inline std::string Show(const vyr_text& text)
{
    return Show(CString(
        std::u16string_view(reinterpret_cast<const char16_t*>(text.units), static_cast<std::size_t>(text.length))));
}

inline std::string Show(const vyr_date_time& moment)
{
    return std::to_string(moment.days) + '/' + std::to_string(moment.status);
}

inline std::string Show(const COleDateTime& moment)
{
    return Show(InC(moment));
}

inline std::string Show(const FILETIME& moment)
{
    return std::to_string(std::uint64_t{moment.dwHighDateTime} << 32 | moment.dwLowDateTime);
}

inline std::string Show(const vyr_guid& id)
{
    std::string shown;
    for (const unsigned char byte : std::bit_cast<std::array<unsigned char, sizeof id>>(id))
        shown += std::to_string(byte) + ' ';
    return shown;
}

inline std::string Show(const GUID& id)
{
    return Show(InC(id));
}

template <class Number>
requires std::is_arithmetic_v<Number> std::string Show(Number number)
{
    return std::to_string(number);
}

inline std::string Show(const void* object)
{
    return object ? "object" : "none";
}

inline std::string Show(const MSXML2::IXMLDOMDocumentPtr& document)
{
    return Show(static_cast<const void*>(document.GetInterfacePtr()));
}

inline std::string Show(const std::pair<CString, int>& both)
{
    return Show(both.first) + '/' + std::to_string(both.second);
}

} // namespace VyrCTests
