// Parses XML with bounds on time and memory, and reads nothing but the document itself.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <span>

// libxml2's own tags.
struct _xmlDoc;  // NOLINT(bugprone-reserved-identifier)
struct _xmlNode; // NOLINT(bugprone-reserved-identifier)

namespace VyrPlatform {

/// A parsed document, shared by all objects for parts of it.
using XmlTree = std::shared_ptr<_xmlDoc>;

/// Returns the next bytes of a document: the number of bytes written into the buffer, 0 at the end, less than 0 on
/// failure.
using XmlBytes = std::function<int(std::span<char> buffer)>;

/// The maximum size of a document in bytes.
inline constexpr std::size_t xmlSizeLimit = 16 << 20;

/// What the tree holds of a document.
enum class XmlContent : std::uint8_t
{
    /// Elements, attributes and text; text on both sides of a comment is one text.
    Values,
    /// All that is to be written again, comments and processing instructions, too.
    Everything
};

/// @return null when `bytes` fails, or when the document is malformed or exceeds the bounds in XmlTypes.h.
[[nodiscard]] VYR_PLATFORM_API XmlTree ParseXml(const XmlBytes& bytes, XmlContent content = XmlContent::Values);

/// The node after `node` in document order among those below `top`; null after the last one.
[[nodiscard]] _xmlNode* NextBelow(_xmlNode* node, const _xmlNode* top) noexcept;

/// The text of an element in the form of IXMLDOMNode.
[[nodiscard]] VYR_PLATFORM_API CString TextOf(_xmlNode* element);

} // namespace VyrPlatform
