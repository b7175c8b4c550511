// The digest of bytes that come piece by piece. Each system has its own library for it.
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
    /// The digest of all bytes that were added. Nothing may be added behind it.
    [[nodiscard]] Digest Finish();

private:
    void* m_state;
};

} // namespace VyrHostPlatform
