// For tests: compound documents and property sets, written and read in another way than the library does.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace VyrTests {

/// The number's bytes, the lowest first.
template <class Number>
[[nodiscard]] std::string LittleEndian(Number number)
{
    std::string bytes;
    for (std::size_t at = 0; at < sizeof number; ++at)
        bytes += static_cast<char>(static_cast<std::uint64_t>(number) >> (8 * at) & 0xFF);
    return bytes;
}

// Values as they stand in a property set, with their types.
[[nodiscard]] std::string StoredByteText(std::string_view bytes);
[[nodiscard]] std::string StoredWideText(std::u16string_view text);
[[nodiscard]] std::string StoredNumber(std::int32_t number);
[[nodiscard]] std::string StoredCodePage(std::uint16_t codePage);
[[nodiscard]] std::string StoredTime(std::uint64_t ticks);

/// Values by their ids.
using PropertyMap = std::map<std::uint32_t, std::string>;

/// The 16 bytes of the formats.
inline const std::string summaryFormatBytes("\xE0\x85\x9F\xF2\xF9\x4F\x68\x10\xAB\x91\x08\x00\x2B\x27\xB3\xD9", 16);
inline const std::string documentFormatBytes("\x02\xD5\xCD\xD5\x9C\x2E\x1B\x10\x93\x97\x08\x00\x2B\x2C\xF9\xAE", 16);
inline const std::string userFormatBytes("\x05\xD5\xCD\xD5\x9C\x2E\x1B\x10\x93\x97\x08\x00\x2B\x2C\xF9\xAE", 16);

struct SectionOfSet
{
    std::string format;
    PropertyMap properties;
};

/// The stream of a property set with these sections.
[[nodiscard]] std::string BuildPropertySet(const std::vector<SectionOfSet>& sections);
/// The same with the one section of the summary.
[[nodiscard]] std::string BuildSummary(const PropertyMap& properties);
/// The values of a section; empty when there is none. A value ends where the next one begins;
/// what stands behind a text is zeros.
[[nodiscard]] PropertyMap ReadProperties(std::string_view set, std::string_view format = summaryFormatBytes);

/// The names of the streams of the two standard sets.
inline const std::u16string summaryName = u"\x05SummaryInformation";
inline const std::u16string documentSummaryName = u"\x05"
                                                  u"DocumentSummaryInformation";

/// A compound document as a test wants it.
struct CompoundDocument
{
    /// The streams of the root storage.
    std::map<std::u16string, std::string> streams;
    /// The streams of the one storage in it, "Folder", which has a class id, state bits and times.
    std::map<std::u16string, std::string> folderStreams;
    /// 512 or 4096.
    std::size_t sectorSize = 512;

    [[nodiscard]] std::string Bytes() const;
};

/// The streams of the root storage, read from the bytes of a document; a test failure and none when they are damaged.
[[nodiscard]] std::map<std::u16string, std::string> ReadStreams(std::string_view document);
/// The directory entry of the name: its 128 bytes but for where the stream stands and what its neighbours are.
[[nodiscard]] std::string ReadEntry(std::string_view document, std::u16string_view name);

} // namespace VyrTests
