#include "MemoryNode.h"

#include <VyrPlatform/time/Epochs.h>

#include <chrono>
#include <utility>

namespace VyrPlatform::Registry {

std::shared_ptr<MemoryNode> MemoryNode::AddSubkey(std::u16string_view name, FileTicks now)
{
    CString folded = FoldName(name);
    const auto found = m_subkeys.lower_bound(folded);
    if (found != m_subkeys.end() && found->first == folded)
        return std::dynamic_pointer_cast<MemoryNode>(found->second.node);
    if (m_level >= mostLevels)
        return nullptr;
    auto node = std::make_shared<MemoryNode>(m_isWritable, now);
    node->m_level = m_level + 1;
    m_subkeys.emplace_hint(found, std::move(folded), Subkey{CString(name), node});
    m_lastWrite = now;
    ++m_generation;
    return node;
}

void MemoryNode::Attach(const CString& name, std::shared_ptr<Node> node)
{
    m_subkeys.insert_or_assign(FoldName(name), Subkey{name, std::move(node)});
    ++m_generation;
}

void MemoryNode::SetValue(Value value)
{
    CString folded = FoldName(value.name);
    m_values->insert_or_assign(std::move(folded), std::move(value));
    ++m_generation;
}

bool MemoryNode::RemoveValue(std::u16string_view name)
{
    const bool isRemoved = m_values->erase(FoldName(name)) > 0;
    if (isRemoved)
        ++m_generation;
    return isRemoved;
}

void MemoryNode::RemoveSubkey(std::u16string_view name)
{
    const auto found = m_subkeys.find(FoldName(name));
    if (found == m_subkeys.end())
        return;
    if (const auto removed = std::dynamic_pointer_cast<MemoryNode>(found->second.node))
        removed->MarkDeleted();
    m_subkeys.erase(found);
    ++m_generation;
}

void MemoryNode::MarkDeleted() noexcept
{
    m_isDeleted = true;
    for (const auto& [folded, subkey] : m_subkeys)
        if (const auto below = std::dynamic_pointer_cast<MemoryNode>(subkey.node))
            below->MarkDeleted();
}

FileTicks CurrentTicks() noexcept
{
    using Ticks = std::chrono::duration<FileTicks, std::ratio<1, ticksPerSecond>>;
    const auto sinceUnixEpoch = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<Ticks>(sinceUnixEpoch).count() + secondsToUnixEpoch * ticksPerSecond;
}

std::shared_ptr<MemoryNode> AddNode(std::shared_ptr<MemoryNode> start, std::u16string_view path, FileTicks now)
{
    constexpr std::size_t longestName = 255;
    std::shared_ptr<MemoryNode> node = std::move(start);
    for (std::u16string_view name = TakeName(path); node && !name.empty(); name = TakeName(path))
        node = name.size() > longestName ? nullptr : node->AddSubkey(name, now);
    return node;
}

} // namespace VyrPlatform::Registry
