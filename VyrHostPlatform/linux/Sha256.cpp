// SHA-256 by OpenSSL.
#include <VyrHostPlatform/common/Sha256.h>

#include <new>
#include <openssl/evp.h>

namespace VyrHostPlatform {

namespace {

EVP_MD_CTX* StateOf(void* state)
{
    return static_cast<EVP_MD_CTX*>(state);
}

} // namespace

// Its calls fail only without memory.
Sha256::Sha256() : m_state(EVP_MD_CTX_new())
{
    if (m_state == nullptr || EVP_DigestInit_ex(StateOf(m_state), EVP_sha256(), nullptr) != 1)
        throw std::bad_alloc();
}

Sha256::~Sha256()
{
    EVP_MD_CTX_free(StateOf(m_state));
}

void Sha256::Add(std::span<const std::byte> bytes)
{
    if (EVP_DigestUpdate(StateOf(m_state), bytes.data(), bytes.size()) != 1)
        throw std::bad_alloc();
}

Sha256::Digest Sha256::Finish()
{
    Digest digest{};
    if (EVP_DigestFinal_ex(StateOf(m_state), digest.data(), nullptr) != 1)
        throw std::bad_alloc();
    return digest;
}

} // namespace VyrHostPlatform
