// Parses XML with bounds on time and memory, and reads nothing but the document itself.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <functional>
#include <memory>
#include <span>

// libxml2's own tags.
struct _xmlDoc;  // NOLINT(bugprone-reserved-identifier)
struct _xmlNode; // NOLINT(bugprone-reserved-identifier)

namespace VyrPlatform {

/// A parsed document, which all that show a part of it share.
using XmlTree = std::shared_ptr<_xmlDoc>;

/// Gives the next bytes of a document: how many it wrote into the buffer, 0 at the end, less than 0 when it fails.
using XmlBytes = std::function<int(std::span<char> buffer)>;

/// The most bytes that a document has.
inline constexpr std::size_t xmlSizeLimit = 16 << 20;

/// @return null when `bytes` fails, gives no well-formed document, or one beyond the bounds that XmlTypes.h tells.
[[nodiscard]] VYR_PLATFORM_API XmlTree ParseXml(const XmlBytes& bytes);

/// The node after `node` in the order of the document, among those below `top`; null behind the last one.
[[nodiscard]] _xmlNode* NextBelow(_xmlNode* node, const _xmlNode* top) noexcept;

/// The text of an element as IXMLDOMNode gives it.
[[nodiscard]] VYR_PLATFORM_API CString TextOf(_xmlNode* element);

} // namespace VyrPlatform
