// A key of any of the trees that a root key can show.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/files/FileTimes.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string_view>
#include <vector>

namespace VyrPlatform::Registry {

/// The form of a name for comparisons and order: upper-cased, one code unit to one, the same in every locale.
[[nodiscard]] VYR_PLATFORM_API CString FoldName(std::u16string_view name);

struct NameOrder
{
    using is_transparent = void;
    bool operator()(std::u16string_view left, std::u16string_view right) const noexcept { return left < right; }
};

/// Content by name; the keys of the map are folded names.
template <class Content>
using ByName = std::map<CString, Content, NameOrder>;

struct Value
{
    CString name;
    std::uint32_t type = 0;
    std::vector<std::byte> data;
};
using Values = ByName<Value>;

class Node;
class MemoryNode;

/// The target of a key that is a link.
struct Link
{
    /// The start of the path; expired when that tree is gone.
    std::weak_ptr<Node> start;
    CString path;
};

struct Subkey
{
    CString name;
    std::shared_ptr<Node> node;
};
using Subkeys = ByName<Subkey>;

class VYR_PLATFORM_API Node
{
public:
    Node() = default;
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;
    virtual ~Node() = default;

    /// Valid as long as the node lives and is not changed.
    [[nodiscard]] virtual const Subkeys& GetSubkeys() = 0;
    /// Never null. Values from a file are kept only as long as somebody uses them.
    [[nodiscard]] virtual std::shared_ptr<const Values> GetValues() = 0;
    [[nodiscard]] virtual FileTicks GetLastWrite() const = 0;

    /// The link's target; a null pointer for a key that is not a link.
    [[nodiscard]] virtual const Link* GetLink() const noexcept { return nullptr; }
    /// The node as a writable one; null for a read-only one.
    [[nodiscard]] virtual MemoryNode* AsWritable() noexcept { return nullptr; }
    /// Changes whenever the names of subkeys or values change.
    [[nodiscard]] virtual std::uint64_t GetGeneration() const noexcept { return 0; }
    [[nodiscard]] virtual bool IsDeleted() const noexcept { return false; }
};

/// The node at `path` below `start`; null when there is none. Links are followed.
[[nodiscard]] VYR_PLATFORM_API std::shared_ptr<Node> FindNode(std::shared_ptr<Node> start, std::u16string_view path);

/// Removes and returns the first name of `path` with the separators around it; empty when there is none.
[[nodiscard]] std::u16string_view TakeName(std::u16string_view& path) noexcept;

} // namespace VyrPlatform::Registry
