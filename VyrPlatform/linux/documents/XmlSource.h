// Reads the bytes of an XML document from a file or a server.
#pragma once

#include "XmlTree.h"

#include <optional>

namespace VyrPlatform {

/// Opens the regular file at a path, or the content of an address with `file:`, `http:` or `https:`.
/// @return nothing when there is none, or the server did not send it completely.
[[nodiscard]] std::optional<XmlBytes> OpenXmlSource(const CString& pathOrAddress);

} // namespace VyrPlatform
