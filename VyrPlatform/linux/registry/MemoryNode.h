// A key in memory.
#pragma once

#include "Node.h"

#include <optional>
#include <utility>

namespace VyrPlatform::Registry {

class VYR_PLATFORM_API MemoryNode final : public Node
{
public:
    /// The limit of Windows.
    static constexpr int mostLevels = 512;

    /// An empty key.
    MemoryNode(bool isWritable, FileTicks lastWrite) : m_isWritable(isWritable), m_lastWrite(lastWrite) {}

    [[nodiscard]] const Subkeys& GetSubkeys() override { return m_subkeys; }
    [[nodiscard]] std::shared_ptr<const Values> GetValues() override { return m_values; }
    [[nodiscard]] FileTicks GetLastWrite() const override { return m_lastWrite; }
    [[nodiscard]] const Link* GetLink() const noexcept override { return m_link ? &*m_link : nullptr; }
    [[nodiscard]] MemoryNode* AsWritable() noexcept override { return m_isWritable ? this : nullptr; }
    [[nodiscard]] std::uint64_t GetGeneration() const noexcept override { return m_generation; }
    [[nodiscard]] bool IsDeleted() const noexcept override { return m_isDeleted; }

    /// The subkey `name`, created with the time `now` where it is missing. Null when it would be too deep.
    [[nodiscard]] std::shared_ptr<MemoryNode> AddSubkey(std::u16string_view name, FileTicks now);
    /// Adds the node of another tree as a subkey.
    void Attach(const CString& name, std::shared_ptr<Node> node);
    /// Adds the value, or replaces the value of the same name.
    void SetValue(Value value);
    void SetLastWrite(FileTicks moment) noexcept { m_lastWrite = moment; }

    /// Makes the key a link.
    void SetLink(Link link) { m_link = std::move(link); }

    /// @return false when there is no such value.
    [[nodiscard]] bool RemoveValue(std::u16string_view name);
    /// Removes the subkey with all below it; they then count as deleted.
    void RemoveSubkey(std::u16string_view name);

private:
    void MarkDeleted() noexcept;

    Subkeys m_subkeys;
    std::shared_ptr<Values> m_values = std::make_shared<Values>();
    std::optional<Link> m_link;
    bool m_isWritable;
    bool m_isDeleted = false;
    int m_level = 0;
    FileTicks m_lastWrite;
    std::uint64_t m_generation = 0;
};

/// The current time.
[[nodiscard]] FileTicks CurrentTicks() noexcept;

/// The key at `path` below `start`, created where it is missing, with those above it. Null when a name is longer than
/// 255 or the path is too deep.
[[nodiscard]] std::shared_ptr<MemoryNode> AddNode(std::shared_ptr<MemoryNode> start, std::u16string_view path,
                                                  FileTicks now);

} // namespace VyrPlatform::Registry
