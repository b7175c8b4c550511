#include <tests/support/CompoundDocument.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

namespace VyrTests {

namespace {

constexpr std::uint32_t tableMark = 0xFFFFFFFD;
constexpr std::uint32_t listMark = 0xFFFFFFFC;
constexpr std::uint32_t endMark = 0xFFFFFFFE;
constexpr std::uint32_t freeMark = 0xFFFFFFFF;
constexpr std::size_t smallLimit = 4096;
constexpr std::size_t smallSize = 64;

std::uint32_t NumberAt(std::string_view bytes, std::size_t at, std::size_t size = 4)
{
    std::uint32_t number = 0;
    for (std::size_t index = 0; index < size; ++index)
        number |= std::uint32_t{static_cast<unsigned char>(bytes.at(at + index))} << (8 * index);
    return number;
}

std::string Units(std::u16string_view text)
{
    std::string bytes;
    for (const char16_t unit : text)
        bytes += LittleEndian(static_cast<std::uint16_t>(unit));
    return bytes;
}

std::string PaddedTo(std::size_t multiple, std::string bytes)
{
    bytes.append((multiple - bytes.size() % multiple) % multiple, '\0');
    return bytes;
}

/// Sectors and the chains in which they stand.
class Sectors
{
public:
    explicit Sectors(std::size_t size) : m_size(size) {}

    /// @return the first sector.
    std::uint32_t Add(const std::string& content, std::optional<std::uint32_t> mark = std::nullopt)
    {
        const auto first = static_cast<std::uint32_t>(m_chain.size());
        m_content += PaddedTo(m_size, content);
        while (m_chain.size() * m_size < m_content.size())
            m_chain.push_back(mark ? *mark : static_cast<std::uint32_t>(m_chain.size() + 1));
        if (!mark && m_chain.size() > first)
            m_chain.back() = endMark;
        return m_chain.size() > first ? first : endMark;
    }
    [[nodiscard]] std::size_t Count() const { return m_chain.size(); }
    [[nodiscard]] const std::string& Content() const { return m_content; }
    [[nodiscard]] const std::vector<std::uint32_t>& Chain() const { return m_chain; }

private:
    std::size_t m_size;
    std::string m_content;
    std::vector<std::uint32_t> m_chain;
};

struct DirectoryEntry
{
    std::u16string name;
    int kind = 0;
    std::uint32_t right = freeMark;
    std::uint32_t child = freeMark;
    std::uint32_t start = endMark;
    std::size_t size = 0;

    [[nodiscard]] std::string Bytes() const
    {
        std::string bytes = Units(name);
        bytes.resize(64);
        bytes += LittleEndian(static_cast<std::uint16_t>(name.empty() ? 0 : 2 * name.size() + 2));
        bytes += static_cast<char>(kind);
        bytes += '\1';
        bytes += LittleEndian(freeMark) + LittleEndian(right) + LittleEndian(child);
        const bool isFolder = kind == 1;
        bytes += isFolder ? "0123456789abcdef" : std::string(16, '\0');
        bytes += LittleEndian(isFolder ? 0x12345678U : 0U);
        bytes += LittleEndian(isFolder ? std::uint64_t{0x01C0'0000'0000'0001} : 0);
        bytes += LittleEndian(isFolder ? std::uint64_t{0x01C0'0000'0000'0002} : 0);
        return bytes + LittleEndian(start) + LittleEndian(std::uint64_t{size});
    }
};

/// The order in which a storage keeps its names: shorter ones first.
bool ComesBefore(const std::u16string& left, const std::u16string& right)
{
    return left.size() != right.size() ? left.size() < right.size() : left < right;
}

/// The value with zeros behind its text, where systems leave what stood there before.
std::string WithCleanPadding(std::string value)
{
    const std::uint32_t type = NumberAt(value, 0, 2);
    const std::size_t unit = type == 30 ? 1 : 2;
    if (type != 30 && type != 31)
        return value;
    value.resize(8 + unit * NumberAt(value, 4));
    return PaddedTo(4, value);
}

std::string List(const std::vector<std::uint32_t>& numbers)
{
    std::string bytes;
    for (const std::uint32_t number : numbers)
        bytes += LittleEndian(number);
    return bytes;
}

} // namespace

std::string StoredByteText(std::string_view bytes)
{
    return PaddedTo(4, LittleEndian(30U) + LittleEndian(static_cast<std::uint32_t>(bytes.size() + 1)) +
                           std::string(bytes) + '\0');
}

std::string StoredWideText(std::u16string_view text)
{
    return PaddedTo(4, LittleEndian(31U) + LittleEndian(static_cast<std::uint32_t>(text.size() + 1)) + Units(text) +
                           std::string(2, '\0'));
}

std::string StoredNumber(std::int32_t number)
{
    return LittleEndian(3U) + LittleEndian(static_cast<std::uint32_t>(number));
}

std::string StoredCodePage(std::uint16_t codePage)
{
    return LittleEndian(2U) + LittleEndian(std::uint32_t{codePage});
}

std::string StoredTime(std::uint64_t ticks)
{
    return LittleEndian(64U) + LittleEndian(ticks);
}

std::string BuildPropertySet(const std::vector<SectionOfSet>& sections)
{
    std::string head = LittleEndian(std::uint16_t{0xFFFE}) + LittleEndian(std::uint16_t{0}) +
                       LittleEndian(0x00020006U) + std::string(16, '\0') +
                       LittleEndian(static_cast<std::uint32_t>(sections.size()));
    std::string body;
    const std::size_t start = head.size() + sections.size() * 20;
    for (const SectionOfSet& section : sections) {
        head += section.format + LittleEndian(static_cast<std::uint32_t>(start + body.size()));
        std::string table;
        std::string values;
        for (const auto& [id, value] : section.properties) {
            table += LittleEndian(id) +
                     LittleEndian(static_cast<std::uint32_t>(8 + 8 * section.properties.size() + values.size()));
            values += PaddedTo(4, value);
        }
        body += LittleEndian(static_cast<std::uint32_t>(8 + table.size() + values.size())) +
                LittleEndian(static_cast<std::uint32_t>(section.properties.size())) + table + values;
    }
    return head + body;
}

std::string BuildSummary(const PropertyMap& properties)
{
    return BuildPropertySet({{summaryFormatBytes, properties}});
}

PropertyMap ReadProperties(std::string_view set, std::string_view format)
{
    PropertyMap properties;
    for (std::uint32_t index = 0; index < NumberAt(set, 24); ++index) {
        if (set.substr(28 + 20 * index, 16) != format)
            continue;
        const std::uint32_t start = NumberAt(set, 44 + 20 * index);
        const std::string_view section = set.substr(start, NumberAt(set, start));
        const std::uint32_t count = NumberAt(section, 4);
        for (std::uint32_t entry = 0; entry < count; ++entry) {
            const std::uint32_t from = NumberAt(section, 12 + 8 * entry);
            auto to = static_cast<std::uint32_t>(section.size());
            for (std::uint32_t other = 0; other < count; ++other)
                if (const std::uint32_t at = NumberAt(section, 12 + 8 * other); at > from)
                    to = std::min(to, at);
            properties[NumberAt(section, 8 + 8 * entry)] =
                WithCleanPadding(std::string(section.substr(from, to - from)));
        }
    }
    return properties;
}

std::string CompoundDocument::Bytes() const
{
    Sectors sectors(sectorSize);
    Sectors small(smallSize);
    std::vector<DirectoryEntry> entries{{u"Root Entry", 5}};

    const auto addStreams = [&](const std::map<std::u16string, std::string>& content, bool hasFolder) {
        std::vector<std::u16string> names;
        for (const auto& [name, bytes] : content)
            names.push_back(name);
        if (hasFolder)
            names.emplace_back(u"Folder");
        std::sort(names.begin(), names.end(), ComesBefore);
        const std::size_t first = entries.size();
        for (const std::u16string& name : names) {
            const auto found = content.find(name);
            DirectoryEntry entry{name, found == content.end() ? 1 : 2};
            if (found != content.end()) {
                entry.size = found->second.size();
                entry.start = (entry.size < smallLimit ? small : sectors).Add(found->second);
            }
            if (&name != &names.back())
                entry.right = static_cast<std::uint32_t>(entries.size() + 1);
            entries.push_back(entry);
        }
        return names.empty() ? freeMark : static_cast<std::uint32_t>(first);
    };
    entries[0].child = addStreams(streams, !folderStreams.empty());
    if (!folderStreams.empty()) {
        const std::uint32_t child = addStreams(folderStreams, false);
        for (DirectoryEntry& entry : entries)
            if (entry.kind == 1)
                entry.child = child;
    }

    entries[0].size = small.Content().size();
    entries[0].start = sectors.Add(small.Content());
    std::string smallTable = List(small.Chain());
    smallTable.append((sectorSize - smallTable.size() % sectorSize) % sectorSize, '\xFF');
    const std::uint32_t smallTableStart = sectors.Add(smallTable);
    std::string directory;
    for (const DirectoryEntry& entry : entries)
        directory += entry.Bytes();
    while (directory.size() % sectorSize != 0)
        directory += DirectoryEntry{}.Bytes();
    const std::uint32_t directoryStart = sectors.Add(directory);

    // The table tells of its own sectors and of those that list them, too.
    const std::size_t inSector = sectorSize / 4;
    std::size_t tableCount = 0;
    std::size_t listCount = 0;
    for (std::size_t needed = 1; needed != tableCount;) {
        tableCount = needed;
        listCount = tableCount > 109 ? (tableCount - 109 + inSector - 2) / (inSector - 1) : 0;
        needed = (sectors.Count() + tableCount + listCount + inSector - 1) / inSector;
    }
    const auto tableStart = static_cast<std::uint32_t>(sectors.Count());
    std::vector<std::uint32_t> table = sectors.Chain();
    table.insert(table.end(), tableCount, tableMark);
    table.insert(table.end(), listCount, listMark);
    table.resize(tableCount * inSector, freeMark);

    std::vector<std::uint32_t> list;
    for (std::size_t index = 0; index < tableCount; ++index)
        list.push_back(tableStart + static_cast<std::uint32_t>(index));
    std::string listSectors;
    const auto listStart = static_cast<std::uint32_t>(tableStart + tableCount);
    for (std::size_t index = 0; index < listCount; ++index) {
        std::vector<std::uint32_t> part;
        for (std::size_t at = 109 + index * (inSector - 1); part.size() < inSector - 1; ++at)
            part.push_back(at < list.size() ? list[at] : freeMark);
        part.push_back(index + 1 < listCount ? listStart + static_cast<std::uint32_t>(index) + 1 : endMark);
        listSectors += List(part);
    }
    list.resize(109, freeMark);

    const bool isLarge = sectorSize != 512;
    std::string header("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1", 8);
    header.resize(24);
    header += LittleEndian(std::uint16_t{0x3E}) + LittleEndian(static_cast<std::uint16_t>(isLarge ? 4 : 3)) +
              LittleEndian(std::uint16_t{0xFFFE}) + LittleEndian(static_cast<std::uint16_t>(isLarge ? 12 : 9)) +
              LittleEndian(std::uint16_t{6}) + std::string(6, '\0');
    header += LittleEndian(static_cast<std::uint32_t>(isLarge ? directory.size() / sectorSize : 0));
    header += LittleEndian(static_cast<std::uint32_t>(tableCount)) + LittleEndian(directoryStart) + LittleEndian(0U) +
              LittleEndian(static_cast<std::uint32_t>(smallLimit)) + LittleEndian(smallTableStart) +
              LittleEndian(static_cast<std::uint32_t>(smallTable.size() / sectorSize)) +
              LittleEndian(listCount > 0 ? listStart : endMark) + LittleEndian(static_cast<std::uint32_t>(listCount)) +
              List(list);
    return PaddedTo(sectorSize, header) + sectors.Content() + List(table) + listSectors;
}

namespace {

/// A document's tables, read without any thought of damage: what is out of range throws.
class ReadDocument
{
public:
    explicit ReadDocument(std::string_view bytes)
        : m_bytes(bytes), m_sectorSize(std::size_t{1} << NumberAt(bytes, 30, 2))
    {
        std::string list(bytes.substr(76, 436));
        for (std::uint32_t sector = NumberAt(bytes, 68); sector < listMark;) {
            const std::string_view part = Sector(sector);
            list += part.substr(0, m_sectorSize - 4);
            sector = NumberAt(part, m_sectorSize - 4);
        }
        for (std::uint32_t index = 0; index < NumberAt(bytes, 44); ++index)
            m_table += Sector(NumberAt(list, 4 * index));
        m_directory = Chain(NumberAt(bytes, 48));
        m_small = NumberAt(m_directory, 116) < listMark ? Chain(NumberAt(m_directory, 116)) : std::string();
        m_smallTable = NumberAt(bytes, 60) < listMark ? Chain(NumberAt(bytes, 60)) : std::string();
    }

    [[nodiscard]] std::map<std::u16string, std::string> RootStreams() const
    {
        std::map<std::u16string, std::string> streams;
        std::vector<std::uint32_t> open{NumberAt(m_directory, 76)};
        while (!open.empty()) {
            const std::uint32_t index = open.back();
            open.pop_back();
            if (index == freeMark)
                continue;
            const std::string_view entry = std::string_view(m_directory).substr(index * 128, 128);
            open.push_back(NumberAt(entry, 68));
            open.push_back(NumberAt(entry, 72));
            if (entry[66] == 2)
                streams[NameOf(entry)] = Content(entry);
        }
        return streams;
    }

    [[nodiscard]] std::string Entry(std::u16string_view name) const
    {
        for (std::size_t at = 0; at < m_directory.size(); at += 128) {
            const std::string entry = m_directory.substr(at, 128);
            if (entry[66] != 0 && NameOf(entry) == name)
                return entry.substr(0, 67) + entry.substr(80, 36);
        }
        return {};
    }

private:
    static std::u16string NameOf(std::string_view entry)
    {
        std::u16string name;
        for (std::size_t at = 0; at + 2 < NumberAt(entry, 64, 2); at += 2)
            name += static_cast<char16_t>(NumberAt(entry, at, 2));
        return name;
    }
    [[nodiscard]] std::string_view Sector(std::uint32_t sector) const
    {
        return m_bytes.substr((std::size_t{sector} + 1) * m_sectorSize, m_sectorSize);
    }
    [[nodiscard]] std::string Chain(std::uint32_t sector) const
    {
        std::string content;
        for (; sector != endMark && content.size() <= m_bytes.size();
             sector = NumberAt(m_table, 4 * std::size_t{sector}))
            content += Sector(sector);
        return content;
    }
    [[nodiscard]] std::string Content(std::string_view entry) const
    {
        const std::size_t size = NumberAt(entry, 120);
        if (size == 0)
            return {};
        std::string content;
        if (size >= smallLimit)
            content = Chain(NumberAt(entry, 116));
        else
            for (std::uint32_t part = NumberAt(entry, 116); part != endMark && content.size() <= smallLimit;
                 part = NumberAt(m_smallTable, 4 * std::size_t{part}))
                content += m_small.substr(part * smallSize, smallSize);
        return content.substr(0, size);
    }

    std::string_view m_bytes;
    std::size_t m_sectorSize;
    std::string m_table;
    std::string m_directory;
    std::string m_small;
    std::string m_smallTable;
};

} // namespace

std::map<std::u16string, std::string> ReadStreams(std::string_view document)
{
    try {
        return ReadDocument(document).RootStreams();
    } catch (const std::out_of_range&) {
        ADD_FAILURE() << "a damaged compound document";
        return {};
    }
}

std::string ReadEntry(std::string_view document, std::u16string_view name)
{
    try {
        return ReadDocument(document).Entry(name);
    } catch (const std::out_of_range&) {
        ADD_FAILURE() << "a damaged compound document";
        return {};
    }
}

} // namespace VyrTests
