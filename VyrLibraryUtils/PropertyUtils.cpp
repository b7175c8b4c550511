#include <VyrLibraryUtils/PropertyUtils.h>
#include <VyrPlatform/files/FileReader.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace VyrLibraryUtils {

namespace {

/// The header of a compound document ([MS-CFB] 2.2), little-endian.
class CompoundHeader
{
public:
    static constexpr std::size_t size = 512;

    explicit CompoundHeader(const VyrPlatform::FileReader& file) : m_isRead(file.ReadAt(0, m_bytes) == size) {}

    [[nodiscard]] bool IsSound() const noexcept
    {
        constexpr std::array<unsigned char, 8> signature{0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1};
        if (!m_isRead || !std::equal(signature.begin(), signature.end(), m_bytes.begin(), IsSame))
            return false;
        const unsigned majorVersion = Word(26);
        const unsigned byteOrder = Word(28);
        const unsigned sectorShift = Word(30);
        const unsigned miniSectorShift = Word(32);
        return byteOrder == 0xFFFE && miniSectorShift == 6 &&
               ((majorVersion == 3 && sectorShift == 9) || (majorVersion == 4 && sectorShift == 12));
    }

private:
    static bool IsSame(unsigned char value, std::byte byte) noexcept { return std::byte{value} == byte; }

    [[nodiscard]] unsigned Word(std::size_t at) const noexcept
    {
        return std::to_integer<unsigned>(m_bytes[at]) | std::to_integer<unsigned>(m_bytes[at + 1]) << 8;
    }

    std::array<std::byte, size> m_bytes;
    bool m_isRead;
};

} // namespace

PropertyUtils::PropertyUtils() = default;
PropertyUtils::~PropertyUtils() = default;
PropertyUtils& PropertyUtils::operator=(const PropertyUtils&) = default;

int PropertyUtils::IsOLE2Document(CString path)
{
    const VyrPlatform::FileReader file(path);
    return file.IsOpen() && CompoundHeader(file).IsSound();
}

} // namespace VyrLibraryUtils
