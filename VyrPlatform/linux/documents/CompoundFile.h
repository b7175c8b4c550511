// The container of a compound document, in which streams can be replaced: [MS-CFB].
//
// Only the sectors of that stream change, so that everything else is kept: all other streams, class ids, state bits,
// times and the order of entries.
#pragma once

#include <VyrPlatform/Export.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VyrPlatform {

class VYR_PLATFORM_API CompoundFile
{
public:
    /// Reads the tables of the open file `file`, which must outlive it; nothing when they are damaged.
    [[nodiscard]] static std::optional<CompoundFile> Read(int file);

    /// Larger streams are neither read as a whole nor written.
    static constexpr std::uint64_t longestStream = 16 << 20;

    /// The content of the stream `name` of the root storage; nothing when there is none or it is damaged.
    [[nodiscard]] std::optional<std::string> ReadStream(std::u16string_view name) const;
    /// Its first `limit` bytes in the same way.
    [[nodiscard]] std::optional<std::string> ReadBeginning(std::u16string_view name, std::uint64_t limit) const;
    [[nodiscard]] bool HasStream(std::u16string_view name) const { return Find(name, streamEntry).has_value(); }
    /// Whether the root storage has a stream or a storage of this name.
    [[nodiscard]] bool Has(std::u16string_view name) const
    {
        return HasStream(name) || Find(name, storageEntry).has_value();
    }
    /// Makes `content` the beginning of the stream `name`; if the stream was longer, zeros follow up to its old length.
    /// The file must be open for writing; after a failure its content is unusable.
    /// @return 0, or the error code: EILSEQ when the container is damaged.
    [[nodiscard]] int WriteStream(std::u16string_view name, std::string_view content);

private:
    /// The directory entry of a stream or storage.
    struct Entry
    {
        std::uint32_t start;
        std::uint64_t size;
        /// Its position in the file.
        std::uint64_t place;
    };

    explicit CompoundFile(int file) noexcept : m_file(file) {}
    [[nodiscard]] bool ReadHeader();
    [[nodiscard]] bool ReadTables();
    [[nodiscard]] bool ReadDirectory(std::uint32_t start);
    /// The kinds of entries.
    static constexpr unsigned char storageEntry = 1;
    static constexpr unsigned char streamEntry = 2;
    static constexpr unsigned char rootEntry = 5;
    [[nodiscard]] std::optional<Entry> Find(std::u16string_view name, unsigned char kind) const;
    [[nodiscard]] Entry EntryAt(std::uint32_t index) const noexcept;
    [[nodiscard]] std::uint64_t SectorPlace(std::uint32_t sector) const noexcept;
    /// The positions of the parts of a stream in the file; nothing when its chain is damaged or too short.
    [[nodiscard]] std::optional<std::vector<std::uint64_t>> Places(const Entry& entry) const;
    [[nodiscard]] static bool IsSmall(const Entry& entry) noexcept;
    [[nodiscard]] std::size_t PartSize(const Entry& entry) const noexcept;
    /// Appends chained sectors, and marks them in the allocation table.
    [[nodiscard]] int Append(std::size_t count, std::vector<std::uint32_t>& sectors);
    [[nodiscard]] int Mark(std::uint32_t sector, std::uint32_t next);
    [[nodiscard]] int AddTableSector();
    [[nodiscard]] int WriteAt(std::uint64_t place, std::string_view bytes) const;
    [[nodiscard]] int WriteNumber(std::uint64_t place, std::uint32_t number) const;
    [[nodiscard]] int WipeAndFree(const Entry& entry, const std::vector<std::uint64_t>& places);
    /// Moves a small stream into sectors, with `size` bytes.
    [[nodiscard]] int MoveOutOfSmall(Entry& entry, std::vector<std::uint64_t>& places, std::size_t size);
    [[nodiscard]] int Lengthen(Entry& entry, std::vector<std::uint64_t>& places, std::size_t size);

    int m_file;
    std::uint64_t m_size = 0;
    std::uint32_t m_sectorSize = 0;
    /// The allocation table (for each sector, the next one), and the sectors that contain it.
    std::vector<std::uint32_t> m_table;
    std::vector<std::uint32_t> m_tableSectors;
    /// The sectors with the rest of the list in the header.
    std::vector<std::uint32_t> m_listSectors;
    std::vector<std::uint32_t> m_directorySectors;
    std::string m_directory;
    /// The same for the small parts that the root's own stream consists of.
    std::vector<std::uint32_t> m_smallTable;
    std::vector<std::uint32_t> m_smallTableSectors;
    std::vector<std::uint32_t> m_smallSectors;
};

} // namespace VyrPlatform
