// Creates the sample pictures for ./run: small JPEG files with Exif data, named as cameras name them.
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

void Append(Bytes& bytes, std::string_view text)
{
    bytes.insert(bytes.end(), text.begin(), text.end());
}

void AppendBytes(Bytes& bytes, std::initializer_list<int> values)
{
    for (const int value : values)
        bytes.push_back(static_cast<std::uint8_t>(value));
}

/// Appends the JPEG marker `marker` and the length of `content`, then `content`.
void AppendSegment(Bytes& bytes, int marker, const Bytes& content)
{
    const auto length = static_cast<int>(content.size() + 2);
    AppendBytes(bytes, {0xFF, marker, length >> 8, length & 0xFF});
    bytes.insert(bytes.end(), content.begin(), content.end());
}

/// Builds a TIFF structure, little-endian: directories, each followed by the texts that it points to.
class TiffDirectory
{
public:
    explicit TiffDirectory(std::uint32_t offset) : m_offset(offset) {}

    void AddText(int tag, std::string_view text) { m_entries.push_back({tag, 2, std::string(text) + '\0'}); }
    void AddVersion(int tag, std::string_view text) { m_entries.push_back({tag, 7, std::string(text)}); }
    /// A pointer to the directory that follows this one.
    void AddPointerToNext(int tag) { m_entries.push_back({tag, 4, {}}); }

    [[nodiscard]] std::uint32_t End() const
    {
        std::uint32_t end = TextsAt();
        for (const Entry& entry : m_entries)
            end += Outside(entry);
        return end;
    }

    void AppendTo(Bytes& tiff) const
    {
        AppendNumber(tiff, static_cast<std::uint32_t>(m_entries.size()), 2);
        std::uint32_t textAt = TextsAt();
        for (const Entry& entry : m_entries) {
            const bool isPointer = entry.type == 4;
            AppendNumber(tiff, static_cast<std::uint32_t>(entry.tag), 2);
            AppendNumber(tiff, static_cast<std::uint32_t>(entry.type), 2);
            AppendNumber(tiff, isPointer ? 1 : static_cast<std::uint32_t>(entry.text.size()), 4);
            if (isPointer)
                AppendNumber(tiff, End(), 4);
            else if (Outside(entry) == 0)
                Append(tiff, (entry.text + std::string(4, '\0')).substr(0, 4));
            else
                AppendNumber(tiff, textAt, 4);
            textAt += Outside(entry);
        }
        AppendNumber(tiff, 0, 4);
        for (const Entry& entry : m_entries) {
            if (Outside(entry) != 0)
                Append(tiff, entry.text + std::string(Outside(entry) - entry.text.size(), '\0'));
        }
    }

private:
    struct Entry
    {
        int tag;
        int type;
        std::string text;
    };

    static void AppendNumber(Bytes& bytes, std::uint32_t value, int count)
    {
        for (int index = 0; index < count; ++index)
            bytes.push_back(static_cast<std::uint8_t>(value >> (8 * index)));
    }
    [[nodiscard]] std::uint32_t TextsAt() const
    {
        return m_offset + 2 + 12 * static_cast<std::uint32_t>(m_entries.size()) + 4;
    }
    /// The number of bytes of a value outside its entry; values begin at even offsets.
    static std::uint32_t Outside(const Entry& entry)
    {
        const auto size = static_cast<std::uint32_t>(entry.text.size());
        return size <= 4 ? 0 : size + size % 2;
    }

    std::uint32_t m_offset;
    std::vector<Entry> m_entries;
};

struct Picture
{
    std::string_view fileName;
    std::string_view make;
    std::string_view model;
    /// When it was taken, as Exif writes it; empty for a picture without a date.
    std::string_view taken;
};

/// The Exif segment's content (Exif 2.32, 4.5.2): two directories, the camera's and the exposure's.
Bytes MakeExif(const Picture& picture)
{
    TiffDirectory camera(8);
    camera.AddText(0x010F, picture.make);
    camera.AddText(0x0110, picture.model);
    camera.AddPointerToNext(0x8769);
    TiffDirectory exposure(camera.End());
    exposure.AddVersion(0x9000, "0232");
    exposure.AddText(0x9003, picture.taken);

    Bytes content;
    Append(content, std::string_view("Exif\0\0", 6));
    Append(content, std::string_view("II*\0\x08\0\0\0", 8));
    camera.AppendTo(content);
    exposure.AppendTo(content);
    return content;
}

/// The entropy-coded data. Every block of 8 x 8 points has one colour: for each component a difference to the previous
/// block and an end-of-block code.
class BlockWriter
{
public:
    explicit BlockWriter(Bytes& bytes) : m_bytes(bytes) {}

    void Write(std::array<int, 3> colour)
    {
        for (std::size_t component = 0; component < colour.size(); ++component) {
            WriteDifference(colour[component] - m_before[component]);
            m_before[component] = colour[component];
            WriteBits(0, 1);
        }
    }
    void Finish() { WriteBits(0x7F, 7); }

private:
    /// Writes the number of bits in four bits, then the bits; a negative number less one (ITU T.81, F.1.2.1).
    void WriteDifference(int difference)
    {
        int count = 0;
        while ((std::abs(difference) >> count) != 0)
            ++count;
        WriteBits(count, 4);
        WriteBits((difference < 0 ? difference - 1 : difference) & ((1 << count) - 1), count);
    }
    void WriteBits(int value, int count)
    {
        for (int bit = count - 1; bit >= 0; --bit) {
            m_current = m_current << 1 | (value >> bit & 1);
            if (++m_filled < 8)
                continue;
            m_bytes.push_back(static_cast<std::uint8_t>(m_current));
            if (m_current == 0xFF)
                m_bytes.push_back(0); // an 0xFF in the data would read as a marker
            m_current = m_filled = 0;
        }
    }

    Bytes& m_bytes;
    std::array<int, 3> m_before{};
    int m_current = 0;
    int m_filled = 0;
};

/// A baseline JPEG file: an evening sky over a dark field, in blocks.
Bytes MakeJpeg(const Picture& picture)
{
    constexpr int blocksAcross = 20;
    constexpr int blocksDown = 15;

    Bytes jpeg;
    AppendBytes(jpeg, {0xFF, 0xD8});
    if (!picture.taken.empty())
        AppendSegment(jpeg, 0xE1, MakeExif(picture));
    Bytes quantization(65, 8);
    quantization[0] = 0;
    AppendSegment(jpeg, 0xDB, quantization);
    constexpr int height = 8 * blocksDown;
    constexpr int width = 8 * blocksAcross;
    AppendSegment(jpeg, 0xC0, {8, 0, height, 0, width, 3, 1, 0x11, 0, 2, 0x11, 0, 3, 0x11, 0});
    // Differences of 0 to 11 bits have codes of four bits each; the end of a block is the one code of one bit.
    AppendSegment(jpeg, 0xC4,
                  {0x00, 0, 0, 0, 12, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11});
    AppendSegment(jpeg, 0xC4, {0x10, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    AppendSegment(jpeg, 0xDA, {3, 1, 0x00, 2, 0x00, 3, 0x00, 0, 63, 0});
    BlockWriter blocks(jpeg);
    for (int row = 0; row < blocksDown; ++row) {
        for (int column = 0; column < blocksAcross; ++column) {
            const bool isSky = row < 10;
            blocks.Write(isSky ? std::array{60 - 6 * row + column, 30 - 7 * row, 5 * row - 10}
                               : std::array{-90 + 3 * ((row + column) % 4), -8, -4});
        }
    }
    blocks.Finish();
    AppendBytes(jpeg, {0xFF, 0xD9});
    return jpeg;
}

constexpr std::array pictures{
    Picture{"DSC00041.JPG", "Aster", "A7 Mark II", "2024:06:21 18:03:57"},
    Picture{"DSC00042.JPG", "Aster", "A7 Mark II", "2024:06:21 21:47:02"},
    Picture{"DSC00043.JPG", "Aster", "A7 Mark II", "2024:06:22 05:12:30"},
    Picture{"IMG_0007.JPG", "Pocket", "Nine", "2024:06:21 21:46:40"},
    Picture{"IMG_0008.JPG", "Pocket", "Nine", "2024:06:23 11:30:00"},
    Picture{"scan.jpg", "", "", ""},
};

/// Noon of 24 June 2024, local time: the modification time of the picture without a date.
std::filesystem::file_time_type GetModifiedTime()
{
    std::tm noon{};
    noon.tm_year = 2024 - 1900;
    noon.tm_mon = 5;
    noon.tm_mday = 24;
    noon.tm_hour = 12;
    noon.tm_isdst = -1;
    return std::chrono::file_clock::from_sys(std::chrono::system_clock::from_time_t(std::mktime(&noon)));
}

/// Writes the file of the picture into `folder`; false when the system refuses.
bool WritePicture(const std::filesystem::path& folder, const Picture& picture)
{
    const Bytes jpeg = MakeJpeg(picture);
    const std::filesystem::path path = folder / picture.fileName;
    std::ofstream file(path, std::ios::binary);
    file.write(reinterpret_cast<const char*>(jpeg.data()), static_cast<std::streamsize>(jpeg.size()));
    file.close();
    std::error_code error;
    std::filesystem::last_write_time(path, GetModifiedTime(), error);
    return file && !error;
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 2) {
        std::cerr << "usage: MakeSamplePictures FOLDER\n";
        return 2;
    }
    const std::filesystem::path folder(arguments[1]);
    std::error_code error;
    std::filesystem::create_directories(folder, error);
    for (const Picture& picture : pictures) {
        if (!WritePicture(folder, picture)) {
            std::cerr << "MakeSamplePictures: " << (folder / picture.fileName) << " cannot be written\n";
            return 1;
        }
    }
    return 0;
}
