#include "Hive.h"

#include "MemoryNode.h"

#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/text/Encoding.h>

#include <hivex.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <span>
#include <string_view>
#include <utility>

namespace VyrPlatform::Registry {

namespace {

using Outcome = OpenResult::Outcome;

/// The longest names of keys and values, in the library's UTF-8.
constexpr std::size_t longestKeyName = 3 * std::size_t{255};
constexpr std::size_t longestValueName = 3 * std::size_t{16'383};

/// Memory that the library allocates.
template <class Content>
using Handed = std::unique_ptr<Content, decltype(&std::free)>;

template <class Content>
Handed<Content> Take(Content* content)
{
    return {content, &std::free};
}

/// The number of a type, which the library may not have a name for.
std::uint32_t NumberOf(const hive_type& type) noexcept
{
    std::uint32_t number = 0;
    static_assert(sizeof number == sizeof type);
    std::memcpy(&number, &type, sizeof number);
    return number;
}

struct HiveFile
{
    std::shared_ptr<hive_h> handle;
    std::uint64_t size = 0;
};

class HiveNode final : public Node
{
public:
    HiveNode(HiveFile file, hive_node_h node, int level) : m_file(std::move(file)), m_node(node), m_level(level) {}

    [[nodiscard]] const Subkeys& GetSubkeys() override;
    [[nodiscard]] std::shared_ptr<const Values> GetValues() override;
    [[nodiscard]] FileTicks GetLastWrite() const override
    {
        return std::max<FileTicks>(hivex_node_timestamp(m_file.handle.get(), m_node), 0);
    }

private:
    void LoadSubkeys();
    [[nodiscard]] Values ReadValues() const;

    HiveFile m_file;
    hive_node_h m_node;
    int m_level;
    bool m_isLoaded = false;
    Subkeys m_subkeys;
    std::weak_ptr<const Values> m_values;
};

const Subkeys& HiveNode::GetSubkeys()
{
    if (!m_isLoaded)
        LoadSubkeys();
    m_isLoaded = true;
    return m_subkeys;
}

void HiveNode::LoadSubkeys()
{
    // In a damaged hive a key may be below itself.
    if (m_level >= MemoryNode::mostLevels)
        return;
    hive_h* const hive = m_file.handle.get();
    const auto nodes = Take(hivex_node_children(hive, m_node));
    for (const hive_node_h* node = nodes.get(); node && *node; ++node) {
        const std::size_t length = hivex_node_name_len(hive, *node);
        if (length == 0 || length > longestKeyName)
            continue;
        const auto bytes = Take(hivex_node_name(hive, *node));
        if (!bytes)
            continue;
        CString name = Encoding::FromUtf8(std::string_view(bytes.get(), length));
        CString folded = FoldName(name);
        m_subkeys.emplace(std::move(folded),
                          Subkey{std::move(name), std::make_shared<HiveNode>(m_file, *node, m_level + 1)});
    }
}

std::shared_ptr<const Values> HiveNode::GetValues()
{
    std::shared_ptr<const Values> values = m_values.lock();
    if (!values) {
        values = std::make_shared<Values>(ReadValues());
        m_values = values;
    }
    return values;
}

Values HiveNode::ReadValues() const
{
    Values values;
    hive_h* const hive = m_file.handle.get();
    // The values of an intact key have fewer bytes than the file; in a damaged one many may share theirs.
    std::uint64_t rest = m_file.size;
    const auto list = Take(hivex_node_values(hive, m_node));
    for (const hive_value_h* entry = list.get(); entry && *entry; ++entry) {
        const std::size_t nameLength = hivex_value_key_len(hive, *entry);
        hive_type type{};
        std::size_t size = 0;
        if (nameLength > longestValueName || hivex_value_type(hive, *entry, &type, &size) != 0)
            continue;
        if (size + nameLength > rest)
            break;
        rest -= size + nameLength;
        const auto nameBytes = Take(hivex_value_key(hive, *entry));
        const auto data = Take(hivex_value_value(hive, *entry, &type, &size));
        if (!nameBytes || !data)
            continue;
        const CString name = Encoding::FromUtf8(std::string_view(nameBytes.get(), nameLength));
        const auto bytes = std::as_bytes(std::span(data.get(), size));
        values.emplace(FoldName(name), Value{name, NumberOf(type), {bytes.begin(), bytes.end()}});
    }
    return values;
}

/// The header of a file.
struct HiveHead
{
    Outcome outcome = Outcome::NoRegistry;
    /// Windows completed its last write.
    bool isClosed = false;
};

HiveHead ReadHead(const FileReader& reader)
{
    if (reader.Size() == 0)
        return {Outcome::Empty};
    // A signature, two sequence numbers, of which the second is set to the first when a change is complete, and at 40
    // the number of bytes after the header's page.
    constexpr std::size_t pageSize = 4096;
    std::array<char, 44> head{};
    const std::size_t length = reader.ReadAt(0, std::as_writable_bytes(std::span(head)));
    const std::string_view bytes(head.data(), length);
    if (!bytes.starts_with("regf"))
        return {Outcome::NoRegistry};
    std::uint32_t rest = 0;
    if (length == head.size())
        std::memcpy(&rest, &head[40], sizeof rest);
    if (reader.Size() < pageSize + std::uint64_t{rest})
        return {Outcome::CutShort};
    return {Outcome::Shown, bytes.substr(4, 4) == bytes.substr(8, 4)};
}

} // namespace

OpenedHive OpenHive(const CString& path)
{
    const FileReader reader(path);
    if (!reader.IsOpen())
        return {nullptr, {Outcome::Unreadable, reader.Error(), path, {}}};
    const HiveHead head = ReadHead(reader);
    if (head.outcome != Outcome::Shown)
        return {nullptr, {head.outcome, 0, path, {}}};
    // In this mode the library reads the whole file at once and never writes to it. Otherwise it would map the file,
    // and removing the disk would end the process.
    hive_h* const hive = hivex_open(Encoding::ToNameBytes(path).c_str(), HIVEX_OPEN_WRITE);
    if (!hive) {
        const bool isDamaged = errno == EINVAL || errno == ENOTSUP;
        return {nullptr,
                {isDamaged ? Outcome::NoRegistry : Outcome::Unreadable,
                 isDamaged ? 0 : static_cast<std::uint32_t>(errno),
                 path,
                 {}}};
    }
    const HiveFile file{std::shared_ptr<hive_h>(hive, hivex_close), reader.Size()};
    OpenedHive opened{nullptr, {Outcome::Shown, 0, path, {}}};
    if (!head.isClosed)
        opened.result.unclosedFiles.push_back(path);
    const hive_node_h top = hivex_root(hive);
    if (top == 0)
        opened.result.outcome = Outcome::NoRegistry;
    else
        opened.top = std::make_shared<HiveNode>(file, top, 0);
    return opened;
}

} // namespace VyrPlatform::Registry
