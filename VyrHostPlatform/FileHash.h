/// @file
/// The SHA-256 of a file, by the library for cryptography that the system has.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <string>

namespace VyrHostPlatform {

/// A digest, or why there is none.
struct FileHash
{
    /// 64 hexadecimal digits in small letters; empty where the file cannot be read to its end.
    std::string digits;
    /// The system's code where the file cannot be opened, else 0.
    std::uint32_t error = 0;
};

/// The SHA-256 of the bytes of the regular file at `path`. Source: FIPS 180-4.
[[nodiscard]] FileHash Sha256Of(const CString& path);

} // namespace VyrHostPlatform
