// Loads the content of an address.
#pragma once

#include "XmlTree.h"

#include <VyrPlatform/Export.h>

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

namespace VyrPlatform {

/// The limits for a server.
struct AddressLimits
{
    std::chrono::milliseconds connecting = std::chrono::seconds(10);
    /// From the request to the last byte, over all redirections.
    std::chrono::milliseconds everything = std::chrono::seconds(30);
    std::size_t size = xmlSizeLimit;
    int redirections = 5;
};

/// Loads the content of an address with `http:` or `https:`, following redirections to such addresses. Certificates are
/// checked.
/// @return nothing when a server did not answer within the limits, did not send the complete content, or returned an
/// error (a status of 400 or more).
[[nodiscard]] VYR_PLATFORM_API std::optional<std::string> FetchContent(const std::string& address,
                                                                       const AddressLimits& limits = {});

/// The path in an address with `file:`; nothing when it is not a path on this computer.
[[nodiscard]] VYR_PLATFORM_API std::optional<std::string> PathOfFileAddress(const std::string& address);

} // namespace VyrPlatform
