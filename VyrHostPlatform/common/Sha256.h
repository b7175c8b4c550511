// The SHA-256 of bytes that are added piece by piece, by the system's own library.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace VyrHostPlatform {

class Sha256
{
public:
    using Digest = std::array<std::uint8_t, 32>;

    Sha256();
    Sha256(const Sha256&) = delete;
    Sha256& operator=(const Sha256&) = delete;
    ~Sha256();

    void Add(std::span<const std::byte> bytes);
    /// The digest of all added bytes. Add nothing after it.
    [[nodiscard]] Digest Finish();

private:
    void* m_state;
};

} // namespace VyrHostPlatform
