// SHA-256 by the system's own provider.
#include <VyrHostPlatform/common/Sha256.h>

#include <new>

#include <windows.h>

#include <bcrypt.h>

namespace VyrHostPlatform {

namespace {

/// One for the whole process, as recommended: opening it is slow.
BCRYPT_ALG_HANDLE Provider()
{
    static const BCRYPT_ALG_HANDLE provider = [] {
        BCRYPT_ALG_HANDLE opened = nullptr;
        return BCryptOpenAlgorithmProvider(&opened, BCRYPT_SHA256_ALGORITHM, nullptr, 0) >= 0 ? opened : nullptr;
    }();
    return provider;
}

void Require(NTSTATUS status)
{
    // Its calls fail only without memory.
    if (status < 0)
        throw std::bad_alloc();
}

} // namespace

Sha256::Sha256() : m_state(nullptr)
{
    Require(BCryptCreateHash(Provider(), &m_state, nullptr, 0, nullptr, 0, 0));
}

Sha256::~Sha256()
{
    BCryptDestroyHash(m_state);
}

void Sha256::Add(std::span<const std::byte> bytes)
{
    // The call takes writable bytes, but only reads them.
    auto* const first = reinterpret_cast<UCHAR*>(const_cast<std::byte*>(bytes.data()));
    Require(BCryptHashData(m_state, first, static_cast<ULONG>(bytes.size()), 0));
}

Sha256::Digest Sha256::Finish()
{
    Digest digest{};
    Require(BCryptFinishHash(m_state, digest.data(), static_cast<ULONG>(digest.size()), 0));
    return digest;
}

} // namespace VyrHostPlatform
