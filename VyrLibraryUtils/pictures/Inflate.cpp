// Unpacks with zlib, piece by piece, so that a decompression bomb ends at the limit.
#include <VyrLibraryUtils/pictures/Inflate.h>

#include <algorithm>
#include <array>
#include <limits>

// Makes zlib's input pointer const.
#define ZLIB_CONST
#include <zlib.h>

namespace VyrLibraryUtils::Pictures {
namespace {

/// A stream that zlib unpacks, with its memory.
class Inflater
{
public:
    explicit Inflater(std::string_view packed)
    {
        m_stream.next_in = reinterpret_cast<const Bytef*>(packed.data());
        m_stream.avail_in = static_cast<uInt>(std::min<std::size_t>(packed.size(), std::numeric_limits<uInt>::max()));
        m_status = inflateInit(&m_stream);
    }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;
    ~Inflater() { inflateEnd(&m_stream); }

    /// The next bytes, at most `limit`; none at the end and after damage.
    std::string_view Next(std::size_t limit)
    {
        if (m_status != Z_OK)
            return {};
        const auto room = static_cast<uInt>(std::min(limit, m_piece.size()));
        m_stream.next_out = reinterpret_cast<Bytef*>(m_piece.data());
        m_stream.avail_out = room;
        m_status = inflate(&m_stream, Z_NO_FLUSH);
        return {m_piece.data(), room - m_stream.avail_out};
    }

private:
    z_stream m_stream{};
    int m_status = Z_OK;
    std::array<char, 16384> m_piece;
};

} // namespace

std::string Inflate(std::string_view packed, std::size_t limit)
{
    Inflater inflater(packed);
    std::string output;
    for (std::string_view piece = inflater.Next(limit); !piece.empty(); piece = inflater.Next(limit - output.size()))
        output += piece;
    return output;
}

} // namespace VyrLibraryUtils::Pictures
