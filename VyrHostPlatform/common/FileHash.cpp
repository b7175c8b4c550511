#include <VyrHostPlatform/FileHash.h>

#include <VyrHostPlatform/common/Sha256.h>
#include <VyrPlatform/files/FileReader.h>

#include <vector>

namespace VyrHostPlatform {

namespace {

std::string HexDigits(const Sha256::Digest& digest)
{
    constexpr char digits[] = "0123456789abcdef";
    std::string text;
    for (const std::uint8_t byte : digest) {
        text += digits[byte >> 4];
        text += digits[byte & 0xF];
    }
    return text;
}

} // namespace

FileHash Sha256Of(const CString& path)
{
    const VyrPlatform::FileReader file(path);
    if (!file.IsOpen())
        return {{}, file.Error()};
    constexpr std::size_t pieceSize = std::size_t{1} << 18;
    std::vector<std::byte> piece(pieceSize);
    Sha256 hash;
    std::uint64_t done = 0;
    while (done < file.Size()) {
        const std::size_t count = file.ReadAt(done, piece);
        if (count == 0)
            return {};
        hash.Add(std::span(piece).first(count));
        done += count;
    }
    return {HexDigits(hash.Finish()), 0};
}

} // namespace VyrHostPlatform
