/// @file
/// For hosts on Linux: trees of keys in memory, and what the root keys show.
///
/// A Windows host uses its system's registry and needs none of this. Use the registry on one thread at a time.
#pragma once

#include <VyrPlatform/registry/Registry.h>

#include <memory>

namespace VyrPlatform::Registry {

/// A tree of keys in memory, which Registry can also write to. Copies refer to the same tree.
class VYR_PLATFORM_API MemoryTree
{
public:
    /// A tree with only its root key.
    MemoryTree();

    /// Creates the key at `path` and those above it where they are missing. Fails for a name of more than 255 code
    /// units and for a key more than 512 levels down.
    /// @return whether the key exists now.
    bool AddKey(const CString& path);
    /// Creates the key at `path` as AddKey does, and sets its value `name`, of any type and any bytes.
    /// @return whether it has that value now.
    bool SetValue(const CString& path, const CString& name, std::uint32_t type, std::span<const std::byte> data);
    /// Creates the key at `path` as AddKey does, and sets the time of its last change.
    /// @return whether the key exists now.
    bool SetLastWrite(const CString& path, FileTicks moment);

private:
    friend VYR_PLATFORM_API void ShowTree(Handle root, const MemoryTree& tree);
    std::shared_ptr<class MemoryNode> m_top;
};

/// Makes the root key `root` show `tree` until something else is set for it. Open keys are not affected.
VYR_PLATFORM_API void ShowTree(Handle root, const MemoryTree& tree);
/// Makes the root key `root` show nothing.
VYR_PLATFORM_API void ShowNothing(Handle root);

} // namespace VyrPlatform::Registry
