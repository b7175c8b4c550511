// For tests: temporary root keys.
#pragma once

#include <tests/support/RegistryTree.h>

#include <VyrPlatform/registry/Registry.h>

#include <memory>

namespace VyrTests {

/// Redirects HKEY_CLASSES_ROOT, HKEY_CURRENT_USER and HKEY_LOCAL_MACHINE of this process to empty, writable keys as
/// long as it lives; the real ones stay as they are. One at a time.
class ScratchRegistry
{
public:
    using Handle = VyrPlatform::Registry::Handle;

    ScratchRegistry();
    ScratchRegistry(const ScratchRegistry&) = delete;
    ScratchRegistry& operator=(const ScratchRegistry&) = delete;
    ~ScratchRegistry();

    // Each makes the key at `path` below `root` where it is missing; what cannot be made fails the test.
    void AddKey(Handle root, const CString& path);
    void SetValue(Handle root, const CString& path, const CString& name, std::uint32_t type, std::string_view bytes);
    void SetText(Handle root, const CString& path, const CString& name, std::u16string_view text);
    void SetNumber(Handle root, const CString& path, const CString& name, std::uint32_t number);
    void Add(Handle root, const RegistryTree& tree);

private:
    struct Roots;
    std::unique_ptr<Roots> m_roots;
};

} // namespace VyrTests
