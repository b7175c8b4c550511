// A key that is kept in memory.
#pragma once

#include "Node.h"

#include <optional>
#include <utility>

namespace VyrPlatform::Registry {

class VYR_PLATFORM_API MemoryNode final : public Node
{
public:
    /// Windows allows no more levels below a root.
    static constexpr int mostLevels = 512;

    /// A key without anything in it.
    MemoryNode(bool isWritable, FileTicks lastWrite) : m_isWritable(isWritable), m_lastWrite(lastWrite) {}

    [[nodiscard]] const Subkeys& GetSubkeys() override { return m_subkeys; }
    [[nodiscard]] std::shared_ptr<const Values> GetValues() override { return m_values; }
    [[nodiscard]] FileTicks GetLastWrite() const override { return m_lastWrite; }
    [[nodiscard]] const Link* GetLink() const noexcept override { return m_link ? &*m_link : nullptr; }
    [[nodiscard]] MemoryNode* AsWritable() noexcept override { return m_isWritable ? this : nullptr; }
    [[nodiscard]] std::uint64_t GetGeneration() const noexcept override { return m_generation; }
    [[nodiscard]] bool IsDeleted() const noexcept override { return m_isDeleted; }

    /// The subkey `name`, made at the moment `now` where it is missing. Null when it would be a level too many.
    [[nodiscard]] std::shared_ptr<MemoryNode> AddSubkey(std::u16string_view name, FileTicks now);
    /// Puts the node of another tree below this one.
    void Attach(const CString& name, std::shared_ptr<Node> node);
    /// Adds the value, or replaces the one of its name.
    void SetValue(Value value);
    void SetLastWrite(FileTicks moment) noexcept { m_lastWrite = moment; }

    /// Makes the key a link.
    void SetLink(Link link) { m_link = std::move(link); }

    /// @return false when there is no such value.
    [[nodiscard]] bool RemoveValue(std::u16string_view name);
    /// Takes the subkey away with all below it, which counts as deleted from then on.
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

/// The current moment.
[[nodiscard]] FileTicks CurrentTicks() noexcept;

/// The key at `path` below `start`, made where it is missing, with those above it. Null when a name is longer than 255
/// or the path goes too deep.
[[nodiscard]] std::shared_ptr<MemoryNode> AddNode(std::shared_ptr<MemoryNode> start, std::u16string_view path,
                                                  FileTicks now);

} // namespace VyrPlatform::Registry
