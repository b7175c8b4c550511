// A value of a document property.
#pragma once

#include <VyrC/vyr.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/documents/ComPointer.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace VyrC {

/// A PROPVARIANT, and the text or the bytes that it points to.
class PropertyValue
{
public:
    /// Refuses a wrong record, a type that it cannot have, and a text or bytes without address. `value` may be null.
    PropertyValue(const vyr_value* value, const char* argument);
    PropertyValue(const PropertyValue&) = delete;
    PropertyValue& operator=(const PropertyValue&) = delete;
    ~PropertyValue() = default;

    /// A null pointer for a null record.
    [[nodiscard]] PROPVARIANT* Get() noexcept { return m_isNull ? nullptr : &m_value; }

private:
    void SetText(const vyr_value& value, const char* argument);
    void SetBytes(const vyr_value& value, const char* argument);
    void SetNumber(const vyr_value& value, const char* argument);

    bool m_isNull;
    PROPVARIANT m_value{};
    std::u16string m_text;
    std::optional<_bstr_t> m_comText;
    std::vector<std::uint8_t> m_bytes;
    GUID m_id{};
};

} // namespace VyrC
