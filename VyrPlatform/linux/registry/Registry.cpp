// The registry on Linux: trees that hosts have opened, read and changed by the rules of Windows.
#include "MemoryNode.h"
#include "RootKeys.h"

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/registry/Registry.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace VyrPlatform::Registry {

namespace {

/// The position of the last query by index, from which the next one continues.
template <class Map>
class Cursor
{
public:
    /// The entry at `index`; a null pointer past the end.
    const typename Map::value_type* At(const Map& map, std::uint32_t index, std::uint64_t generation)
    {
        if (index >= map.size())
            return nullptr;
        if (!m_isSet || generation != m_generation || index < m_index) {
            m_isSet = true;
            m_generation = generation;
            m_index = 0;
            m_entry = map.begin();
        }
        std::advance(m_entry, index - m_index);
        m_index = index;
        return &*m_entry;
    }

private:
    bool m_isSet = false;
    std::uint64_t m_generation = 0;
    std::uint32_t m_index = 0;
    typename Map::const_iterator m_entry;
};

} // namespace

} // namespace VyrPlatform::Registry

/// An open key.
struct HKEY__ // NOLINT(bugprone-reserved-identifier): the system's own tag
{
    std::shared_ptr<VyrPlatform::Registry::Node> node;
    VyrPlatform::Registry::Access access = VyrPlatform::Registry::Access::ReadWrite;
    /// Read on first use.
    std::shared_ptr<const VyrPlatform::Registry::Values> values = {};
    VyrPlatform::Registry::Cursor<VyrPlatform::Registry::Subkeys> subkeyCursor = {};
    VyrPlatform::Registry::Cursor<VyrPlatform::Registry::Values> valueCursor = {};
};

namespace VyrPlatform::Registry {

namespace {

std::map<Handle, HKEY__>& RootKeys()
{
    static std::map<Handle, HKEY__> keys;
    return keys;
}

bool IsRoot(Handle handle) noexcept
{
    return reinterpret_cast<std::uintptr_t>(handle) >= reinterpret_cast<std::uintptr_t>(HKEY_CLASSES_ROOT);
}

/// The key of a handle, or the reason why there is none.
struct FoundKey
{
    HKEY__* key = nullptr;
    std::uint32_t error = Error::none;
};

FoundKey Find(Handle handle)
{
    if (!handle)
        return {nullptr, Error::invalidHandle};
    HKEY__* key = handle;
    if (IsRoot(handle)) {
        const auto found = RootKeys().find(handle);
        if (found == RootKeys().end())
            return {nullptr, Error::notFound};
        key = &found->second;
    }
    if (key->node->IsDeleted())
        return {nullptr, Error::keyDeleted};
    return {key};
}

/// The same for a writable key.
struct FoundForWriting
{
    MemoryNode* node = nullptr;
    std::uint32_t error = Error::none;
};

FoundForWriting FindForWriting(Handle handle)
{
    const auto [key, error] = Find(handle);
    if (!key)
        return {nullptr, error};
    MemoryNode* const node = key->access == Access::ReadWrite ? key->node->AsWritable() : nullptr;
    return {node, node ? Error::none : Error::accessDenied};
}

const Values& ValuesOf(HKEY__& key)
{
    if (!key.values)
        key.values = key.node->GetValues();
    return *key.values;
}

std::u16string_view UpToNul(std::u16string_view text) noexcept
{
    return text.substr(0, text.find(u'\0'));
}

/// Whether the system refuses the path.
bool IsBadPath(std::u16string_view path) noexcept
{
    return path.starts_with(u'\\');
}

NameAtIndex CutTo(std::uint32_t capacity, const CString& name)
{
    if (static_cast<std::uint32_t>(name.GetLength()) >= capacity)
        return {Error::moreData, {}};
    return {Error::none, name};
}

} // namespace

void SetRootNode(Handle root, std::shared_ptr<Node> node)
{
    RootKeys().erase(root);
    if (node)
        RootKeys().emplace(root, HKEY__{std::move(node)});
}

std::shared_ptr<Node> GetRootNode(Handle root)
{
    const auto found = RootKeys().find(root);
    return found == RootKeys().end() ? nullptr : found->second.node;
}

Key::Key(Key&& other) noexcept : m_handle(std::exchange(other.m_handle, nullptr)), m_error(other.m_error) {}

Key& Key::operator=(Key&& other) noexcept
{
    std::swap(m_handle, other.m_handle);
    std::swap(m_error, other.m_error);
    return *this;
}

Key::~Key()
{
    delete m_handle;
}

Key Key::Open(Handle parent, const CString& path, Access access)
{
    const auto [key, error] = Find(parent);
    if (!key)
        return {nullptr, error};
    if (IsBadPath(path))
        return {nullptr, Error::badPathName};
    std::shared_ptr<Node> node = FindNode(key->node, UpToNul(path));
    if (!node)
        return {nullptr, Error::notFound};
    if (access == Access::ReadWrite && !node->AsWritable())
        return {nullptr, Error::accessDenied};
    return {new HKEY__{std::move(node), access}, Error::none};
}

Key Key::Create(Handle parent, const CString& path)
{
    const auto [key, error] = Find(parent);
    if (!key)
        return {nullptr, error};
    if (IsBadPath(path))
        return {nullptr, Error::badPathName};
    const auto top = key->node->AsWritable() ? std::static_pointer_cast<MemoryNode>(key->node) : nullptr;
    if (!top)
        return {nullptr, Error::accessDenied};
    std::shared_ptr<MemoryNode> node = AddNode(top, UpToNul(path), CurrentTicks());
    if (!node)
        return {nullptr, Error::invalidParameter};
    return {new HKEY__{std::move(node), Access::ReadWrite}, Error::none};
}

NameAtIndex EnumerateKey(Handle handle, std::uint32_t index, std::uint32_t capacity)
{
    const auto [key, error] = Find(handle);
    if (!key)
        return {error, {}};
    Node& node = *key->node;
    const auto* const entry = key->subkeyCursor.At(node.GetSubkeys(), index, node.GetGeneration());
    return entry ? CutTo(capacity, entry->second.name) : NameAtIndex{Error::noMoreItems, {}};
}

NameAtIndex EnumerateValue(Handle handle, std::uint32_t index, std::uint32_t capacity)
{
    const auto [key, error] = Find(handle);
    if (!key)
        return {error, {}};
    const auto* const entry = key->valueCursor.At(ValuesOf(*key), index, key->node->GetGeneration());
    return entry ? CutTo(capacity, entry->second.name) : NameAtIndex{Error::noMoreItems, {}};
}

ReadResult ReadValue(Handle handle, const CString& name, std::span<std::byte> buffer)
{
    const auto [key, error] = Find(handle);
    if (!key)
        return {error};
    const Values& values = ValuesOf(*key);
    const auto found = values.find(FoldName(UpToNul(name)));
    if (found == values.end())
        return {Error::notFound};
    const Value& value = found->second;
    const auto count = static_cast<std::uint32_t>(value.data.size());
    if (count > buffer.size())
        return {Error::moreData, value.type, count};
    std::copy(value.data.begin(), value.data.end(), buffer.begin());
    return {Error::none, value.type, count};
}

std::optional<CString> LoadIndirectText(Handle /*key*/, const CString& /*name*/, std::uint32_t /*capacity*/)
{
    return std::nullopt;
}

std::optional<FileTicks> GetLastWrite(Handle handle)
{
    const FoundKey found = Find(handle);
    return found.key ? std::optional(found.key->node->GetLastWrite()) : std::nullopt;
}

std::uint32_t SetNumber(Handle handle, const CString& name, std::uint32_t number)
{
    const auto [node, error] = FindForWriting(handle);
    if (!node)
        return error;
    Value value{CString(UpToNul(name)), ValueType::number, {}};
    for (int shift = 0; shift < 32; shift += 8)
        value.data.push_back(static_cast<std::byte>(number >> shift));
    node->SetValue(std::move(value));
    node->SetLastWrite(CurrentTicks());
    return Error::none;
}

std::uint32_t RemoveValue(Handle handle, const CString& name)
{
    const auto [node, error] = FindForWriting(handle);
    if (!node)
        return error;
    if (!node->RemoveValue(UpToNul(name)))
        return Error::notFound;
    node->SetLastWrite(CurrentTicks());
    return Error::none;
}

std::uint32_t RemoveTree(Handle parent, const CString& path)
{
    if (path.IsEmpty())
        return Error::invalidParameter;
    const auto [key, error] = Find(parent);
    if (!key)
        return error;
    if (IsBadPath(path))
        return Error::badPathName;
    std::u16string_view above = UpToNul(path);
    above = above.substr(0, above.find_last_not_of(u'\\') + 1);
    const std::size_t separator = above.rfind(u'\\');
    const std::u16string_view name = separator == above.npos ? above : above.substr(separator + 1);
    above = separator == above.npos ? std::u16string_view() : above.substr(0, separator);

    const std::shared_ptr<Node> node = FindNode(key->node, above);
    if (!node || !FindNode(node, name))
        return Error::notFound;
    MemoryNode* const writable = node->AsWritable();
    if (!writable)
        return Error::accessDenied;
    writable->RemoveSubkey(name);
    writable->SetLastWrite(CurrentTicks());
    return Error::none;
}

} // namespace VyrPlatform::Registry
