#include "MemoryNode.h"
#include "RootKeys.h"

#include <VyrPlatform/registry/LinuxRegistry.h>

namespace VyrPlatform::Registry {

MemoryTree::MemoryTree() : m_top(std::make_shared<MemoryNode>(true, CurrentTicks())) {}

bool MemoryTree::AddKey(const CString& path)
{
    return AddNode(m_top, path, CurrentTicks()) != nullptr;
}

bool MemoryTree::SetValue(const CString& path, const CString& name, std::uint32_t type, std::span<const std::byte> data)
{
    const FileTicks now = CurrentTicks();
    const auto node = AddNode(m_top, path, now);
    if (!node)
        return false;
    node->SetValue({name, type, {data.begin(), data.end()}});
    node->SetLastWrite(now);
    return true;
}

bool MemoryTree::SetLastWrite(const CString& path, FileTicks moment)
{
    const auto node = AddNode(m_top, path, CurrentTicks());
    if (!node)
        return false;
    node->SetLastWrite(moment);
    return true;
}

void ShowTree(Handle root, const MemoryTree& tree)
{
    SetRootNode(root, tree.m_top);
}

void ShowNothing(Handle root)
{
    SetRootNode(root, nullptr);
}

} // namespace VyrPlatform::Registry
