/// @file
/// Reads properties from an XMP packet.
#pragma once

#include <string>
#include <string_view>

namespace VyrHost::Media {

/// The namespaces of XMP properties.
namespace XmpSpace {
inline constexpr std::string_view dublinCore = "http://purl.org/dc/elements/1.1/";
inline constexpr std::string_view basic = "http://ns.adobe.com/xap/1.0/";
inline constexpr std::string_view photoshop = "http://ns.adobe.com/photoshop/1.0/";
inline constexpr std::string_view iptcCore = "http://iptc.org/std/Iptc4xmpCore/1.0/xmlns/";
inline constexpr std::string_view auxiliary = "http://ns.adobe.com/exif/1.0/aux/";
} // namespace XmpSpace

/// The value of the property `name` of the namespace `space`, in UTF-8: an attribute, or the text of an element. The
/// items of a list (at most 200) are joined by ", "; of a text in several languages the first, which is the default,
/// counts. Empty if the packet lacks it. A packet that is truncated or not well-formed is read up to that point.
/// Source: ISO 16684-1, section 7.
[[nodiscard]] std::string XmpProperty(std::string_view packet, std::string_view space, std::string_view name);

} // namespace VyrHost::Media
