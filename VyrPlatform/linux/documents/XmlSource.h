// Where the bytes of an XML document come from.
#pragma once

#include "XmlTree.h"

#include <optional>

namespace VyrPlatform {

/// Opens the regular file at a path, or what an address with `file:`, `http:` or `https:` leads to.
/// @return nothing when there is no such thing, or the server did not send it whole.
[[nodiscard]] std::optional<XmlBytes> OpenXmlSource(const CString& pathOrAddress);

} // namespace VyrPlatform
