// A key of one of the trees that a root key can show, whatever it is kept in.
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

/// The form of a name in which names are compared and ordered: upper-cased, one unit to one, the same in every locale.
[[nodiscard]] VYR_PLATFORM_API CString FoldName(std::u16string_view name);

struct NameOrder
{
    using is_transparent = void;
    bool operator()(std::u16string_view left, std::u16string_view right) const noexcept { return left < right; }
};

/// What is found by a name; the map's own keys are folded names.
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

/// Where a key that is a link leads.
struct Link
{
    /// What the path starts from; nothing when that is gone.
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

    /// Good as long as the node lives and is not changed.
    [[nodiscard]] virtual const Subkeys& GetSubkeys() = 0;
    /// Never null. What is read from a file is kept only as long as somebody holds it.
    [[nodiscard]] virtual std::shared_ptr<const Values> GetValues() = 0;
    [[nodiscard]] virtual FileTicks GetLastWrite() const = 0;

    /// Where the key leads; a null pointer for one that is no link.
    [[nodiscard]] virtual const Link* GetLink() const noexcept { return nullptr; }
    /// The node as one that can be written to; null for any other.
    [[nodiscard]] virtual MemoryNode* AsWritable() noexcept { return nullptr; }
    /// Changes whenever the names of subkeys or values do.
    [[nodiscard]] virtual std::uint64_t GetGeneration() const noexcept { return 0; }
    [[nodiscard]] virtual bool IsDeleted() const noexcept { return false; }
};

/// The node at `path` below `start`; null when there is none. Links are followed.
[[nodiscard]] VYR_PLATFORM_API std::shared_ptr<Node> FindNode(std::shared_ptr<Node> start, std::u16string_view path);

/// Takes the first name off the front of `path`, and the separators around it; empty when there is none.
[[nodiscard]] std::u16string_view TakeName(std::u16string_view& path) noexcept;

} // namespace VyrPlatform::Registry
