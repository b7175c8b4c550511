#include "CompoundFile.h"

#include <VyrPlatform/linux/files/FileContent.h>

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace VyrPlatform {

namespace {

static_assert(std::endian::native == std::endian::little, "numbers are copied as they stand");

// Values of the allocation table.
constexpr std::uint32_t lastSector = 0xFFFFFFFA;
constexpr std::uint32_t listSector = 0xFFFFFFFC;
constexpr std::uint32_t tableSector = 0xFFFFFFFD;
constexpr std::uint32_t endOfChain = 0xFFFFFFFE;
constexpr std::uint32_t freeSector = 0xFFFFFFFF;

// Offsets in the header.
constexpr std::size_t headerSize = 512;
constexpr std::uint64_t tableCountPlace = 44;
constexpr std::uint64_t directoryPlace = 48;
constexpr std::uint64_t limitPlace = 56;
constexpr std::uint64_t smallTablePlace = 60;
constexpr std::uint64_t listStartPlace = 68;
constexpr std::uint64_t listCountPlace = 72;
constexpr std::uint64_t listPlace = 76;
constexpr std::size_t listInHeader = 109;

// A directory entry.
constexpr std::size_t entrySize = 128;
constexpr std::size_t startInEntry = 116;
constexpr std::size_t sizeInEntry = 120;
constexpr std::uint32_t noEntry = 0xFFFFFFFF;

constexpr std::size_t smallPartSize = 64;
/// Shorter streams consist of small parts.
constexpr std::uint32_t smallLimit = 4096;
/// Documents of 2 GiB and more need rules of their own.
constexpr std::uint64_t largestFile = (std::uint64_t{1} << 31) - 1;

template <class Number>
Number NumberAt(std::string_view bytes, std::size_t at) noexcept
{
    Number number;
    std::memcpy(&number, bytes.data() + at, sizeof number);
    return number;
}

bool ReadAt(int file, std::uint64_t place, char* buffer, std::size_t size)
{
    while (size > 0) {
        const ssize_t got = pread(file, buffer, size, static_cast<off_t>(place));
        if (got < 0 && errno == EINTR)
            continue;
        if (got <= 0)
            return false;
        buffer += got;
        size -= static_cast<std::size_t>(got);
        place += static_cast<std::uint64_t>(got);
    }
    return true;
}

/// The sectors of the chain that begins with `start`; nothing when it leaves `table` or never ends.
std::optional<std::vector<std::uint32_t>> Chain(const std::vector<std::uint32_t>& table, std::uint32_t start)
{
    std::vector<std::uint32_t> chain;
    for (std::uint32_t sector = start; sector != endOfChain; sector = table[sector]) {
        if (sector >= table.size() || chain.size() == table.size())
            return std::nullopt;
        chain.push_back(sector);
    }
    return chain;
}

} // namespace

std::optional<CompoundFile> CompoundFile::Read(int file)
{
    CompoundFile container(file);
    if (!container.ReadHeader())
        return std::nullopt;
    return container;
}

bool CompoundFile::ReadHeader()
{
    struct stat status;
    std::string header(headerSize, '\0');
    if (fstat(m_file, &status) != 0 || static_cast<std::uint64_t>(status.st_size) > largestFile ||
        !ReadAt(m_file, 0, header.data(), header.size()))
        return false;
    m_size = static_cast<std::uint64_t>(status.st_size);
    const auto shift = NumberAt<std::uint16_t>(header, 30);
    if (!header.starts_with("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1") || (shift != 9 && shift != 12))
        return false;
    m_sectorSize = std::uint32_t{1} << shift;
    return NumberAt<std::uint32_t>(header, limitPlace) == smallLimit && ReadTables() &&
           ReadDirectory(NumberAt<std::uint32_t>(header, directoryPlace));
}

std::uint64_t CompoundFile::SectorPlace(std::uint32_t sector) const noexcept
{
    return (std::uint64_t{sector} + 1) * m_sectorSize;
}

bool CompoundFile::ReadTables()
{
    const std::size_t inSector = m_sectorSize / 4;
    const std::uint64_t sectorCount = m_size / m_sectorSize;
    std::vector<std::uint32_t> head(headerSize / 4);
    if (!ReadAt(m_file, 0, reinterpret_cast<char*>(head.data()), headerSize))
        return false;
    const std::uint32_t tableCount = head[tableCountPlace / 4];
    if (tableCount > sectorCount)
        return false;

    std::vector<std::uint32_t> list(head.begin() + listPlace / 4, head.end());
    std::vector<std::uint32_t> part(inSector);
    for (std::uint32_t sector = head[listStartPlace / 4]; sector < lastSector; sector = part.back()) {
        if (m_listSectors.size() > sectorCount ||
            !ReadAt(m_file, SectorPlace(sector), reinterpret_cast<char*>(part.data()), m_sectorSize))
            return false;
        m_listSectors.push_back(sector);
        list.insert(list.end(), part.begin(), part.end() - 1);
    }
    if (list.size() < tableCount)
        return false;
    m_tableSectors.assign(list.begin(), list.begin() + tableCount);
    for (const std::uint32_t sector : m_tableSectors) {
        if (sector >= lastSector ||
            !ReadAt(m_file, SectorPlace(sector), reinterpret_cast<char*>(part.data()), m_sectorSize))
            return false;
        m_table.insert(m_table.end(), part.begin(), part.end());
    }
    return true;
}

bool CompoundFile::ReadDirectory(std::uint32_t start)
{
    const auto chain = Chain(m_table, start);
    if (!chain || chain->empty() || chain->size() > m_size / m_sectorSize)
        return false;
    m_directorySectors = *chain;
    m_directory.resize(chain->size() * m_sectorSize);
    for (std::size_t index = 0; index < chain->size(); ++index)
        if (!ReadAt(m_file, SectorPlace((*chain)[index]), m_directory.data() + index * m_sectorSize, m_sectorSize))
            return false;
    if (m_directory[66] != rootEntry)
        return false;

    std::uint32_t smallStart = 0;
    if (!ReadAt(m_file, smallTablePlace, reinterpret_cast<char*>(&smallStart), sizeof smallStart))
        return false;
    // Two values mean that a document has no small streams.
    const auto smallTable = smallStart >= lastSector ? std::vector<std::uint32_t>() : Chain(m_table, smallStart);
    const Entry root = EntryAt(0);
    const auto small = root.start >= lastSector ? std::vector<std::uint32_t>() : Chain(m_table, root.start);
    if (!smallTable || !small)
        return false;
    m_smallTableSectors = *smallTable;
    m_smallSectors = *small;
    m_smallTable.resize(m_smallTableSectors.size() * (m_sectorSize / 4));
    for (std::size_t index = 0; index < m_smallTableSectors.size(); ++index)
        if (!ReadAt(m_file, SectorPlace(m_smallTableSectors[index]),
                    reinterpret_cast<char*>(m_smallTable.data()) + index * m_sectorSize, m_sectorSize))
            return false;
    return true;
}

CompoundFile::Entry CompoundFile::EntryAt(std::uint32_t index) const noexcept
{
    const std::size_t at = index * entrySize;
    // The upper half of the size is undefined if sectors have 512 bytes.
    const std::uint64_t size = m_sectorSize == 512 ? NumberAt<std::uint32_t>(m_directory, at + sizeInEntry)
                                                   : NumberAt<std::uint64_t>(m_directory, at + sizeInEntry);
    const std::uint64_t place = SectorPlace(m_directorySectors[at / m_sectorSize]) + at % m_sectorSize;
    return {NumberAt<std::uint32_t>(m_directory, at + startInEntry), size, place};
}

std::optional<CompoundFile::Entry> CompoundFile::Find(std::u16string_view name, unsigned char kind) const
{
    const std::size_t count = m_directory.size() / entrySize;
    std::vector<bool> isSeen(count);
    std::vector<std::uint32_t> open{NumberAt<std::uint32_t>(m_directory, 76)};
    while (!open.empty()) {
        const std::uint32_t index = open.back();
        open.pop_back();
        if (index == noEntry || index >= count || isSeen[index])
            continue;
        isSeen[index] = true;
        const std::string_view entry = std::string_view(m_directory).substr(index * entrySize, entrySize);
        const std::size_t length = NumberAt<std::uint16_t>(entry, 64);
        if (static_cast<unsigned char>(entry[66]) == kind && length == (name.size() + 1) * 2 &&
            std::memcmp(entry.data(), name.data(), name.size() * 2) == 0)
            return EntryAt(index);
        open.push_back(NumberAt<std::uint32_t>(entry, 68));
        open.push_back(NumberAt<std::uint32_t>(entry, 72));
    }
    return std::nullopt;
}

bool CompoundFile::IsSmall(const Entry& entry) noexcept
{
    return entry.size < smallLimit;
}

std::size_t CompoundFile::PartSize(const Entry& entry) const noexcept
{
    return IsSmall(entry) ? smallPartSize : m_sectorSize;
}

std::optional<std::vector<std::uint64_t>> CompoundFile::Places(const Entry& entry) const
{
    std::vector<std::uint64_t> places;
    if (entry.size == 0)
        return places;
    const auto chain = Chain(IsSmall(entry) ? m_smallTable : m_table, entry.start);
    if (!chain || chain->size() * PartSize(entry) < entry.size)
        return std::nullopt;
    for (const std::uint32_t part : *chain) {
        if (!IsSmall(entry)) {
            places.push_back(SectorPlace(part));
            continue;
        }
        const std::size_t inSector = m_sectorSize / smallPartSize;
        if (part / inSector >= m_smallSectors.size())
            return std::nullopt;
        places.push_back(SectorPlace(m_smallSectors[part / inSector]) + part % inSector * smallPartSize);
    }
    return places;
}

std::optional<std::string> CompoundFile::ReadStream(std::u16string_view name) const
{
    const auto entry = Find(name, streamEntry);
    return entry && entry->size <= longestStream ? ReadBeginning(name, longestStream) : std::nullopt;
}

std::optional<std::string> CompoundFile::ReadBeginning(std::u16string_view name, std::uint64_t limit) const
{
    const auto entry = Find(name, streamEntry);
    if (!entry || entry->size > m_size)
        return std::nullopt;
    const auto places = Places(*entry);
    if (!places)
        return std::nullopt;
    std::string content(static_cast<std::size_t>(std::min(entry->size, limit)), '\0');
    const std::size_t partSize = PartSize(*entry);
    for (std::size_t at = 0; at < content.size(); at += partSize)
        if (!ReadAt(m_file, (*places)[at / partSize], content.data() + at, std::min(partSize, content.size() - at)))
            return std::nullopt;
    return content;
}

int CompoundFile::WriteAt(std::uint64_t place, std::string_view bytes) const
{
    return WriteAllAt(m_file, static_cast<off_t>(place), bytes);
}

int CompoundFile::WriteNumber(std::uint64_t place, std::uint32_t number) const
{
    return WriteAt(place, {reinterpret_cast<const char*>(&number), sizeof number});
}

int CompoundFile::Mark(std::uint32_t sector, std::uint32_t next)
{
    const std::size_t inSector = m_sectorSize / 4;
    m_table[sector] = next;
    return WriteNumber(SectorPlace(m_tableSectors[sector / inSector]) + sector % inSector * 4, next);
}

int CompoundFile::AddTableSector()
{
    const std::size_t inSector = m_sectorSize / 4;
    // The new sectors are the first ones in the extended table.
    const auto sector = static_cast<std::uint32_t>(m_table.size());
    const std::size_t index = m_tableSectors.size();
    const std::size_t listed = listInHeader + m_listSectors.size() * (inSector - 1);
    const bool needsList = index >= listed;
    if (m_size != SectorPlace(sector))
        return EILSEQ;
    if (const int error = WriteAt(SectorPlace(sector), std::string(m_sectorSize, '\xFF')))
        return error;
    m_size += m_sectorSize;
    m_table.resize(m_table.size() + inSector, freeSector);
    m_tableSectors.push_back(sector);
    if (const int error = Mark(sector, tableSector))
        return error;
    if (needsList) {
        const std::uint32_t list = sector + 1;
        const std::uint64_t link =
            m_listSectors.empty() ? listStartPlace : SectorPlace(m_listSectors.back()) + m_sectorSize - 4;
        std::string content(m_sectorSize, '\xFF');
        std::memcpy(content.data() + m_sectorSize - 4, &endOfChain, 4);
        m_listSectors.push_back(list);
        m_size += m_sectorSize;
        if (const int error = WriteAt(SectorPlace(list), content))
            return error;
        if (const int error = Mark(list, listSector))
            return error;
        if (const int error = WriteNumber(link, list))
            return error;
        if (const int error = WriteNumber(listCountPlace, static_cast<std::uint32_t>(m_listSectors.size())))
            return error;
    }
    const std::uint64_t place = index < listInHeader
                                    ? listPlace + index * 4
                                    : SectorPlace(m_listSectors[(index - listInHeader) / (inSector - 1)]) +
                                          (index - listInHeader) % (inSector - 1) * 4;
    if (const int error = WriteNumber(place, sector))
        return error;
    return WriteNumber(tableCountPlace, static_cast<std::uint32_t>(m_tableSectors.size()));
}

int CompoundFile::Append(std::size_t count, std::vector<std::uint32_t>& sectors)
{
    if (m_size + (count + 4) * m_sectorSize > largestFile)
        return EFBIG;
    // A file may end within its last sector.
    if (const std::uint64_t rest = m_size % m_sectorSize; rest != 0) {
        if (const int error = WriteAt(m_size, std::string(m_sectorSize - rest, '\0')))
            return error;
        m_size += m_sectorSize - rest;
    }
    while (sectors.size() < count) {
        const auto sector = static_cast<std::uint32_t>(m_size / m_sectorSize - 1);
        if (sector > m_table.size())
            return EILSEQ;
        if (sector == m_table.size()) {
            if (const int error = AddTableSector())
                return error;
            continue;
        }
        if (m_table[sector] != freeSector)
            return EILSEQ;
        if (const int error = Mark(sector, endOfChain))
            return error;
        if (!sectors.empty())
            if (const int error = Mark(sectors.back(), sector))
                return error;
        if (const int error = WriteAt(SectorPlace(sector), std::string(m_sectorSize, '\0')))
            return error;
        m_size += m_sectorSize;
        sectors.push_back(sector);
    }
    return 0;
}

int CompoundFile::WipeAndFree(const Entry& entry, const std::vector<std::uint64_t>& places)
{
    if (places.empty())
        return 0;
    const auto chain = Chain(m_smallTable, entry.start);
    if (!chain)
        return EILSEQ;
    for (const std::uint64_t place : places)
        if (const int error = WriteAt(place, std::string(smallPartSize, '\0')))
            return error;
    const std::size_t inSector = m_sectorSize / 4;
    for (const std::uint32_t part : *chain) {
        m_smallTable[part] = freeSector;
        const std::uint64_t place = SectorPlace(m_smallTableSectors[part / inSector]) + part % inSector * 4;
        if (const int error = WriteNumber(place, freeSector))
            return error;
    }
    return 0;
}

int CompoundFile::MoveOutOfSmall(Entry& entry, std::vector<std::uint64_t>& places, std::size_t size)
{
    std::vector<std::uint32_t> sectors;
    if (const int error = WipeAndFree(entry, places))
        return error;
    if (const int error = Append((size + m_sectorSize - 1) / m_sectorSize, sectors))
        return error;
    entry.start = sectors.front();
    entry.size = size;
    places.clear();
    for (const std::uint32_t sector : sectors)
        places.push_back(SectorPlace(sector));
    return 0;
}

int CompoundFile::Lengthen(Entry& entry, std::vector<std::uint64_t>& places, std::size_t size)
{
    const std::size_t needed = (size + m_sectorSize - 1) / m_sectorSize;
    entry.size = size;
    if (needed <= places.size())
        return 0;
    const auto chain = Chain(m_table, entry.start);
    std::vector<std::uint32_t> sectors;
    if (!chain || chain->empty())
        return EILSEQ;
    if (const int error = Append(needed - places.size(), sectors))
        return error;
    for (const std::uint32_t sector : sectors)
        places.push_back(SectorPlace(sector));
    return Mark(chain->back(), sectors.front());
}

int CompoundFile::WriteStream(std::u16string_view name, std::string_view content)
{
    auto entry = Find(name, streamEntry);
    if (!entry || entry->size > longestStream || content.size() > longestStream)
        return EILSEQ;
    auto places = Places(*entry);
    if (!places)
        return EILSEQ;
    std::string padded(content);
    padded.resize(std::max<std::size_t>(padded.size(), static_cast<std::size_t>(entry->size)));
    int error = 0;
    if (!IsSmall(*entry)) {
        error = Lengthen(*entry, *places, padded.size());
    } else if (padded.size() > places->size() * smallPartSize || padded.size() >= smallLimit) {
        // Sectors past the end of the file are certainly free, and the table of small parts need not be extended.
        padded.resize(std::max<std::size_t>(padded.size(), smallLimit));
        error = MoveOutOfSmall(*entry, *places, padded.size());
    } else {
        entry->size = padded.size();
    }
    if (error != 0)
        return error;

    const std::size_t partSize = PartSize(*entry);
    for (std::size_t at = 0; at < padded.size(); at += partSize)
        if ((error = WriteAt((*places)[at / partSize], std::string_view(padded).substr(at, partSize))) != 0)
            return error;
    if ((error = WriteNumber(entry->place + startInEntry, entry->start)) != 0)
        return error;
    return WriteNumber(entry->place + sizeInEntry, static_cast<std::uint32_t>(entry->size));
}

} // namespace VyrPlatform
