/// @file
/// For hosts on Linux: trees of keys in memory, and what the root keys show.
///
/// A Windows host has its system's registry and needs none of this. The registry serves one thread at a time.
#pragma once

#include <VyrPlatform/registry/Registry.h>

#include <memory>

namespace VyrPlatform::Registry {

/// A tree of keys in memory, which Registry can write to as well. Copies are the same tree.
class VYR_PLATFORM_API MemoryTree
{
public:
    /// A tree that has nothing but its uppermost key.
    MemoryTree();

    /// Makes the key at `path`, with those above it, where it is missing. Neither a name of more than 255 code units
    /// nor a key more than 512 levels down can be made.
    /// @return whether the key is there now.
    bool AddKey(const CString& path);
    /// Makes the key at `path` as AddKey does, and gives it the value `name`, of any type and any bytes.
    /// @return whether it has that value now.
    bool SetValue(const CString& path, const CString& name, std::uint32_t type, std::span<const std::byte> data);
    /// Makes the key at `path` as AddKey does, and gives it the moment of its last change.
    /// @return whether the key is there now.
    bool SetLastWrite(const CString& path, FileTicks moment);

private:
    friend VYR_PLATFORM_API void ShowTree(Handle root, const MemoryTree& tree);
    std::shared_ptr<class MemoryNode> m_top;
};

/// Makes the root key `root` show `tree` until something else is set for it. Keys that are open stay as they are.
VYR_PLATFORM_API void ShowTree(Handle root, const MemoryTree& tree);
/// Makes the root key `root` show nothing.
VYR_PLATFORM_API void ShowNothing(Handle root);

} // namespace VyrPlatform::Registry
