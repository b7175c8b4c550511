// The property writes for a document with a handler.
#pragma once

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/documents/DocumentProperties.h>
#include <VyrPlatform/documents/PropertyStorage.h>
#include <VyrPlatform/files/FileTicks.h>

#include <cstdint>
#include <span>
#include <vector>

namespace VyrPlatform {

/// The writes of an edit, whose texts must live as long.
class PropertyWrites
{
public:
    /// Only properties for which `isWanted` is true.
    template <class IsWanted>
    PropertyWrites(const PropertyEdit& edit, const IsWanted& isWanted)
    {
        m_values.reserve(edit.values.size() + edit.times.size());
        for (const auto& [id, text] : edit.values)
            if (isWanted(id))
                Add(id, text ? TextValue(*text) : PROPVARIANT{});
        for (const auto& [id, ticks] : edit.times)
            if (isWanted(id))
                Add(id, TimeValue(ticks));
    }

    [[nodiscard]] std::span<const PropertyStorage::PropertyWrite> Get() const noexcept { return m_writes; }

private:
    [[nodiscard]] static PROPVARIANT TextValue(const CString& text)
    {
        PROPVARIANT value{};
        value.vt = VT_LPWSTR;
        value.pwszVal = reinterpret_cast<decltype(value.pwszVal)>(const_cast<char16_t*>(text.GetString()));
        return value;
    }
    [[nodiscard]] static PROPVARIANT TimeValue(FileTicks ticks)
    {
        PROPVARIANT value{};
        value.vt = VT_FILETIME;
        value.filetime = ToFileTime(ticks);
        return value;
    }
    void Add(std::uint32_t id, const PROPVARIANT& value)
    {
        m_values.push_back(value);
        m_writes.push_back({id, &m_values.back()});
    }

    std::vector<PROPVARIANT> m_values;
    std::vector<PropertyStorage::PropertyWrite> m_writes;
};

} // namespace VyrPlatform
