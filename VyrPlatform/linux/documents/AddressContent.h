// What an address leads to.
#pragma once

#include "XmlTree.h"

#include <VyrPlatform/Export.h>

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

namespace VyrPlatform {

/// What is given to a server.
struct AddressLimits
{
    std::chrono::milliseconds connecting = std::chrono::seconds(10);
    /// From the first question to the last byte, over all redirections.
    std::chrono::milliseconds everything = std::chrono::seconds(30);
    std::size_t size = xmlSizeLimit;
    int redirections = 5;
};

/// Fetches the content at an address with `http:` or `https:`, through redirections to such addresses. Certificates are
/// checked.
/// @return nothing when a server did not answer within the limits, did not send the content whole, or answered with an
/// error (a status of 400 or more).
[[nodiscard]] VYR_PLATFORM_API std::optional<std::string> FetchContent(const std::string& address,
                                                                       const AddressLimits& limits = {});

/// The path that an address with `file:` names; nothing when it names none on this computer.
[[nodiscard]] VYR_PLATFORM_API std::optional<std::string> PathOfFileAddress(const std::string& address);

} // namespace VyrPlatform
