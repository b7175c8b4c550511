// Hives, made byte by byte. The format is described in the documentation of several free readers of it.
#include <tests/support/linux/HiveBuilder.h>

#include <algorithm>
#include <map>
#include <memory>

namespace VyrTests {

namespace {

constexpr std::size_t headSize = 4096;
constexpr std::size_t binHeadSize = 32;
constexpr std::uint32_t nothing = 0xFFFFFFFF;

struct BuiltKey
{
    CString name;
    std::map<CString, BuiltKey> subkeys;
    std::vector<RegistryEntry> values;
};

void Put(std::string& bytes, std::size_t at, std::uint64_t number, std::size_t width)
{
    for (std::size_t i = 0; i < width; ++i)
        bytes[at + i] = static_cast<char>(number >> (8 * i) & 0xFF);
}

void Append(std::string& bytes, std::uint64_t number, std::size_t width)
{
    bytes.resize(bytes.size() + width);
    Put(bytes, bytes.size() - width, number, width);
}

/// A name as the format keeps it: in bytes where each unit fits into one.
struct StoredName
{
    std::string bytes;
    bool isNarrow;
};

StoredName Store(std::u16string_view name)
{
    if (std::any_of(name.begin(), name.end(), [](char16_t unit) { return unit > 0xFF; }))
        return {UnitBytes(name), false};
    std::string bytes;
    for (const char16_t unit : name)
        bytes += static_cast<char>(unit);
    return {bytes, true};
}

class Builder
{
public:
    Builder() : m_bin(binHeadSize, '\0') {}

    /// Writes `key` and all below it.
    /// @return the offset of its cell.
    std::uint32_t Write(const BuiltKey& key, const CString& path, std::uint32_t parent)
    {
        const StoredName name = Store(key.name);
        std::string record = "nk";
        Append(record, (name.isNarrow ? 0x20U : 0U) | (parent == nothing ? 0x0CU : 0U), 2);
        Append(record, static_cast<std::uint64_t>(hiveTime), 8);
        Append(record, 0, 4);
        Append(record, parent, 4);
        Append(record, key.subkeys.size(), 4);
        Append(record, 0, 4);
        Append(record, nothing, 4);
        Append(record, nothing, 4);
        Append(record, key.values.size(), 4);
        Append(record, nothing, 4);
        Append(record, nothing, 4);
        Append(record, nothing, 4);
        record += std::string(20, '\0');
        Append(record, name.bytes.size(), 2);
        Append(record, 0, 2);
        record += name.bytes;
        const std::uint32_t cell = AddCell(record);
        m_keys.emplace_back(path, headSize + cell);

        if (!key.subkeys.empty()) {
            std::string list = "lh";
            Append(list, key.subkeys.size(), 2);
            for (const auto& [upper, subkey] : key.subkeys) {
                Append(list, Write(subkey, path.IsEmpty() ? upper : CString::Join({path, u"\\", upper}), cell), 4);
                std::uint32_t hash = 0;
                for (const char16_t unit : upper.View())
                    hash = hash * 37 + unit;
                Append(list, hash, 4);
            }
            Put(m_bin, cell + 4 + 28, AddCell(list), 4);
        }
        if (!key.values.empty()) {
            std::string list;
            for (const RegistryEntry& value : key.values)
                Append(list, WriteValue(value), 4);
            Put(m_bin, cell + 4 + 40, AddCell(list), 4);
        }
        return cell;
    }

    BuiltHive Finish(std::uint32_t top)
    {
        // What is left of the last page is a free cell.
        const std::size_t size = (m_bin.size() + 8 + headSize - 1) / headSize * headSize;
        const std::size_t rest = size - m_bin.size();
        Append(m_bin, rest, 4);
        m_bin.resize(size);
        m_bin.replace(0, 4, "hbin");
        Put(m_bin, 8, size, 4);
        Put(m_bin, 20, static_cast<std::uint64_t>(hiveTime), 8);

        std::string head = "regf";
        Append(head, 7, 4);
        Append(head, 7, 4);
        Append(head, static_cast<std::uint64_t>(hiveTime), 8);
        for (const std::size_t number :
             {std::size_t{1}, std::size_t{3}, std::size_t{0}, std::size_t{1}, std::size_t{top}, size, std::size_t{1}})
            Append(head, number, 4);
        head.resize(headSize);
        BuiltHive hive{head + m_bin, std::move(m_keys)};
        SealHive(hive.bytes);
        return hive;
    }

private:
    /// @return the cell's offset in the bin.
    std::uint32_t AddCell(const std::string& content)
    {
        const std::size_t at = m_bin.size();
        const std::size_t size = (content.size() + 4 + 7) / 8 * 8;
        Append(m_bin, static_cast<std::uint32_t>(-static_cast<std::int32_t>(size)), 4);
        m_bin += content;
        m_bin.resize(at + size);
        return static_cast<std::uint32_t>(at);
    }

    std::uint32_t WriteValue(const RegistryEntry& value)
    {
        const StoredName name = Store(value.name);
        std::string record = "vk";
        Append(record, name.bytes.size(), 2);
        if (value.bytes.size() <= 4) {
            Append(record, value.bytes.size() | 0x80000000U, 4);
            record += value.bytes + std::string(4 - value.bytes.size(), '\0');
        } else {
            Append(record, value.bytes.size(), 4);
            Append(record, AddCell(value.bytes), 4);
        }
        Append(record, value.type, 4);
        Append(record, name.isNarrow ? 1 : 0, 2);
        Append(record, 0, 2);
        return AddCell(record + name.bytes);
    }

    std::string m_bin;
    std::vector<std::pair<CString, std::size_t>> m_keys;
};

BuiltKey& KeyAt(BuiltKey& top, const CString& path)
{
    BuiltKey* key = &top;
    for (int start = 0; start < path.GetLength();) {
        const int separator = path.Find(u"\\", start);
        const int end = separator < 0 ? path.GetLength() : separator;
        const CString name = path.Mid(start, end - start);
        key = &key->subkeys[CString(name).MakeUpper()];
        if (key->name.IsEmpty())
            key->name = name;
        start = end + 1;
    }
    return *key;
}

} // namespace

BuiltHive BuildHive(const RegistryTree& tree)
{
    BuiltKey top;
    top.name = u"ROOT";
    for (const CString& path : tree.keys)
        KeyAt(top, path);
    for (const RegistryEntry& entry : tree.values)
        KeyAt(top, entry.path).values.push_back(entry);
    Builder builder;
    const std::uint32_t cell = builder.Write(top, {}, nothing);
    return builder.Finish(cell);
}

void SealHive(std::string& bytes)
{
    std::uint32_t sum = 0;
    for (std::size_t at = 0; at < 508; at += 4)
        for (std::size_t i = 0; i < 4; ++i)
            sum ^= static_cast<std::uint32_t>(static_cast<unsigned char>(bytes[at + i])) << (8 * i);
    Put(bytes, 508, sum, 4);
}

} // namespace VyrTests
