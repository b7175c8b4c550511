// The properties of a document that keeps them as XML: Office Open XML's core properties (ECMA-376 part 2, 11), its
// extended and custom ones (ECMA-376 part 1, 22.2 and 22.3), and OpenDocument's meta.xml (OpenDocument 1.2 part 1, 4).
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/documents/DocumentProperties.h>
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
    OpenDocument,
    /// Template, application, company and the like of Office Open XML.
    Extended,
    /// The user's own properties of Office Open XML.
    Custom
};

/// Longer parts are not read.
inline constexpr std::size_t longestPropertyXml = 4 << 20;

/// The core properties of a document that has none.
[[nodiscard]] VYR_PLATFORM_API std::string EmptyCoreProperties();

struct EditedXml
{
    /// A result code: damaged for a text that is not well-formed, is another document or has a document type, and for
    /// one that could not be read again after writing (a namespace has an address with an ampersand); notSupported for
    /// a property that such documents do not have; invalidParameter for a value of another type, or a text that XML
    /// cannot hold.
    std::uint32_t result;
    /// Empty on failure.
    std::string text;
};

/// The text `xml` with these properties; everything else in it is unchanged.
[[nodiscard]] VYR_PLATFORM_API EditedXml EditPropertyXml(PropertyFormat format, std::string_view xml,
                                                         std::span<const PropertyStorage::PropertyWrite> properties);

/// The text `xml` without any property.
[[nodiscard]] VYR_PLATFORM_API EditedXml ClearPropertyXml(PropertyFormat format, std::string_view xml);

/// Adds the properties in the text `xml` to `properties`.
/// @return whether it is such a document.
[[nodiscard]] VYR_PLATFORM_API bool ReadPropertyXml(PropertyFormat format, std::string_view xml,
                                                    DocumentProperties& properties);

/// Whether documents of this format have the property in this part.
[[nodiscard]] VYR_PLATFORM_API bool HasPropertyElement(PropertyFormat format, std::uint32_t id) noexcept;

} // namespace VyrPlatform
