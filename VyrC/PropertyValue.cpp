#include <VyrC/PropertyValue.h>

#include <VyrC/Marshal.h>
#include <VyrPlatform/documents/ComText.h>

#include <cstdint>
#include <limits>
#include <utility>

namespace VyrC {

namespace {

/// Refuses a number that the type cannot hold.
template <class Number>
Number Narrow(std::int64_t number, const char* argument)
{
    if (!std::in_range<Number>(number))
        Refuse(argument);
    return static_cast<Number>(number);
}

} // namespace

PropertyValue::PropertyValue(const vyr_value* value, const char* argument) : m_isNull(!value)
{
    if (!value)
        return;
    RequireRecord(value, argument);
    m_value.vt = static_cast<VARTYPE>(value->type);
    switch (value->type) {
    case VT_EMPTY:
    case VT_NULL:
        break;
    case VT_BSTR:
    case VT_LPWSTR:
        SetText(*value, argument);
        break;
    case VT_LPSTR:
    case VT_BLOB:
        SetBytes(*value, argument);
        break;
    case VT_R4:
        m_value.fltVal = static_cast<float>(value->real);
        break;
    case VT_R8:
        m_value.dblVal = value->real;
        break;
    case VT_DATE:
        m_value.date = value->real;
        break;
    case VT_CLSID:
        m_id = ToGuid(value->guid);
        m_value.puuid = &m_id;
        break;
    default:
        SetNumber(*value, argument);
    }
}

void PropertyValue::SetText(const vyr_value& value, const char* argument)
{
    const CString text = ToText(value.text, argument);
    m_text = text.View();
    if (value.type == VT_LPWSTR) {
        m_value.pwszVal = reinterpret_cast<decltype(m_value.pwszVal)>(m_text.data());
        return;
    }
    m_comText.emplace(VyrPlatform::ToBstr(text));
    m_value.bstrVal = *m_comText;
}

void PropertyValue::SetBytes(const vyr_value& value, const char* argument)
{
    if (value.bytes_count > std::numeric_limits<std::int32_t>::max() || (value.bytes_count > 0 && !value.bytes))
        Refuse(argument);
    m_bytes.assign(value.bytes, value.bytes + value.bytes_count);
    if (value.type == VT_BLOB) {
        m_value.blob.cbSize = static_cast<std::uint32_t>(m_bytes.size());
        m_value.blob.pBlobData = m_bytes.data();
        return;
    }
    // A byte text ends at a NUL.
    m_bytes.push_back(0);
    m_value.pszVal = reinterpret_cast<char*>(m_bytes.data());
}

void PropertyValue::SetNumber(const vyr_value& value, const char* argument)
{
    switch (value.type) {
    case VT_BOOL:
        m_value.boolVal = static_cast<std::int16_t>(value.number != 0 ? -1 : 0);
        return;
    case VT_I1:
        m_value.cVal = static_cast<char>(Narrow<std::int8_t>(value.number, argument));
        return;
    case VT_UI1:
        m_value.bVal = Narrow<std::uint8_t>(value.number, argument);
        return;
    case VT_I2:
        m_value.iVal = Narrow<std::int16_t>(value.number, argument);
        return;
    case VT_UI2:
        m_value.uiVal = Narrow<std::uint16_t>(value.number, argument);
        return;
    case VT_I4:
    case VT_INT:
        m_value.lVal = Narrow<std::int32_t>(value.number, argument);
        return;
    case VT_UI4:
    case VT_UINT:
    case VT_ERROR:
        m_value.ulVal = Narrow<std::uint32_t>(value.number, argument);
        return;
    case VT_I8:
    case VT_UI8:
    case VT_CY:
        m_value.hVal.QuadPart = value.number;
        return;
    case VT_FILETIME:
        m_value.filetime = ToFileTime(static_cast<std::uint64_t>(value.number));
        return;
    default:
        Refuse(argument);
    }
}

} // namespace VyrC
