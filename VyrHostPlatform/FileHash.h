/// @file
/// The SHA-256 of a file, by the system's cryptography library.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <string>

namespace VyrHostPlatform {

/// A digest, or the reason why there is none.
struct FileHash
{
    /// 64 lower-case hexadecimal digits; empty if the file cannot be read to its end.
    std::string digits;
    /// The system's error code if the file cannot be opened, else 0.
    std::uint32_t error = 0;
};

/// The SHA-256 of the bytes of the regular file at `path`. Source: FIPS 180-4.
[[nodiscard]] FileHash Sha256Of(const CString& path);

} // namespace VyrHostPlatform
