// The properties of a document that keeps them as XML: Office Open XML's core properties (ECMA-376 part 2, 11) and
// OpenDocument's meta.xml (OpenDocument 1.2 part 1, 4).
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/documents/PropertyStorage.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace VyrPlatform {

enum class PropertyFormat : std::uint8_t
{
    OfficeOpenXml,
    OpenDocument
};

/// Longer parts are not read.
inline constexpr std::size_t longestPropertyXml = 4 << 20;

/// The core properties of a document that has none.
[[nodiscard]] VYR_PLATFORM_API std::string EmptyCoreProperties();

struct EditedXml
{
    /// A result code: damaged for a text that is not well-formed, is another document or has a document type;
    /// notSupported for a property that such documents do not have; invalidParameter for a value of another type, or a
    /// text that XML cannot hold.
    std::uint32_t result;
    /// Empty when that is a failure.
    std::string text;
};

/// The text `xml` with these properties written into it; all else in it stays.
[[nodiscard]] VYR_PLATFORM_API EditedXml EditPropertyXml(PropertyFormat format, std::string_view xml,
                                                         std::span<const PropertyStorage::PropertyWrite> properties);

} // namespace VyrPlatform
