// A small inflater: the system libraries of Windows have none, and the readers need the first kilobytes alone.
#include <VyrLibraryUtils/pictures/Inflate.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <utility>

namespace VyrLibraryUtils::Pictures {
namespace {

constexpr std::size_t LongestCode = 15;
constexpr int NoSymbol = -1;
constexpr int EndOfBlock = 256;
constexpr int FirstLength = 257;

/// How a symbol for a length or a distance becomes a number: a base, and so many further bits to add.
struct Range
{
    std::uint16_t base;
    std::uint8_t extraBits;
};

constexpr Range Lengths[] = {{3, 0},   {4, 0},   {5, 0},   {6, 0},   {7, 0},  {8, 0},  {9, 0},  {10, 0},
                             {11, 1},  {13, 1},  {15, 1},  {17, 1},  {19, 2}, {23, 2}, {27, 2}, {31, 2},
                             {35, 3},  {43, 3},  {51, 3},  {59, 3},  {67, 4}, {83, 4}, {99, 4}, {115, 4},
                             {131, 5}, {163, 5}, {195, 5}, {227, 5}, {258, 0}};
constexpr Range Distances[] = {{1, 0},     {2, 0},     {3, 0},     {4, 0},      {5, 1},      {7, 1},
                               {9, 2},     {13, 2},    {17, 3},    {25, 3},     {33, 4},     {49, 4},
                               {65, 5},    {97, 5},    {129, 6},   {193, 6},    {257, 7},    {385, 7},
                               {513, 8},   {769, 8},   {1025, 9},  {1537, 9},   {2049, 10},  {3073, 10},
                               {4097, 11}, {6145, 11}, {8193, 12}, {12289, 12}, {16385, 13}, {24577, 13}};

/// Gives bits, the lowest of each byte first. Past the end it gives zeros and says so.
class BitReader
{
public:
    explicit BitReader(std::string_view bytes) : m_bytes(bytes) {}

    /// The next bits, at least LongestCode of them, without passing over any.
    [[nodiscard]] std::uint32_t Peek()
    {
        for (; m_ready <= 24 && !m_bytes.empty(); m_ready += 8) {
            m_bits |= std::uint32_t{static_cast<unsigned char>(m_bytes.front())} << m_ready;
            m_bytes.remove_prefix(1);
        }
        return m_bits;
    }
    /// Passes over `count` bits, 0 to 16 of what Peek gave.
    void Drop(unsigned count)
    {
        m_ended = m_ended || count > m_ready;
        m_ready -= std::min(count, m_ready);
        m_bits >>= count;
    }
    /// The next `count` bits, 0 to 16, as a number.
    unsigned Bits(unsigned count)
    {
        const unsigned value = Peek() & ((1u << count) - 1);
        Drop(count);
        return value;
    }
    void AlignToByte() { Drop(m_ready % 8); }
    /// The next `count` whole bytes, or as many as there are. Only where a byte begins.
    std::string Take(std::size_t count)
    {
        std::string taken;
        for (; m_ready > 0 && taken.size() < count; Drop(8))
            taken += static_cast<char>(m_bits & 0xFF);
        const std::size_t left = std::min(count - taken.size(), m_bytes.size());
        taken += m_bytes.substr(0, left);
        m_bytes.remove_prefix(left);
        m_ended = m_ended || taken.size() < count;
        return taken;
    }
    [[nodiscard]] bool Ended() const noexcept { return m_ended; }

private:
    /// What is not in `m_bits` yet.
    std::string_view m_bytes;
    /// `m_ready` bits, zeros above.
    std::uint32_t m_bits = 0;
    unsigned m_ready = 0;
    bool m_ended = false;
};

/// A canonical Huffman code: its symbols in the order of their codes, and how many codes each length has.
class HuffmanCode
{
public:
    /// `lengths`: the length of each symbol's code, 0 to LongestCode, 0 for a symbol that does not occur.
    explicit HuffmanCode(std::span<const std::uint8_t> lengths)
    {
        for (const std::uint8_t length : lengths)
            ++m_counts[length];
        m_counts[0] = 0;
        std::array<std::uint16_t, LongestCode + 2> starts{};
        for (std::size_t length = 1; length <= LongestCode; ++length)
            starts[length + 1] = static_cast<std::uint16_t>(starts[length] + m_counts[length]);
        for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol)
            if (lengths[symbol] != 0)
                m_symbols[starts[lengths[symbol]]++] = static_cast<std::uint16_t>(symbol);
    }

    int Symbol(BitReader& bits) const
    {
        std::uint32_t ahead = bits.Peek();
        int code = 0;
        int firstCode = 0;
        int firstSymbol = 0;
        for (unsigned length = 1; length <= LongestCode; ++length, ahead >>= 1) {
            code = code << 1 | static_cast<int>(ahead & 1);
            const int count = m_counts[length];
            if (code - firstCode < count) {
                bits.Drop(length);
                return bits.Ended() ? NoSymbol : m_symbols[static_cast<std::size_t>(firstSymbol + code - firstCode)];
            }
            firstSymbol += count;
            firstCode = (firstCode + count) << 1;
        }
        return NoSymbol;
    }

private:
    std::array<std::uint16_t, LongestCode + 1> m_counts{};
    std::array<std::uint16_t, 288> m_symbols{};
};

class Inflater
{
public:
    Inflater(std::string_view deflated, std::size_t limit) : m_bits(deflated), m_limit(limit) {}

    std::string Run()
    {
        bool isLast = false;
        while (!isLast && !Stopped()) {
            isLast = m_bits.Bits(1) != 0;
            Block();
        }
        return std::move(m_output);
    }

private:
    [[nodiscard]] bool Stopped() const { return m_damaged || m_bits.Ended() || m_output.size() >= m_limit; }

    void Block()
    {
        switch (m_bits.Bits(2)) {
        case 0:
            return StoredBlock();
        case 1:
            return FixedBlock();
        case 2:
            return DynamicBlock();
        default:
            m_damaged = true;
        }
    }

    void StoredBlock()
    {
        m_bits.AlignToByte();
        const unsigned length = m_bits.Bits(16);
        const unsigned complement = m_bits.Bits(16);
        m_damaged = (length ^ complement) != 0xFFFF;
        if (!m_damaged)
            m_output += m_bits.Take(std::min<std::size_t>(length, m_limit - m_output.size()));
    }

    void FixedBlock()
    {
        std::array<std::uint8_t, 288> lengths;
        std::fill(lengths.begin(), lengths.begin() + 144, std::uint8_t{8});
        std::fill(lengths.begin() + 144, lengths.begin() + 256, std::uint8_t{9});
        std::fill(lengths.begin() + 256, lengths.begin() + 280, std::uint8_t{7});
        std::fill(lengths.begin() + 280, lengths.end(), std::uint8_t{8});
        std::array<std::uint8_t, 30> distances;
        distances.fill(5);
        Symbols(HuffmanCode(lengths), HuffmanCode(distances));
    }

    void DynamicBlock()
    {
        const std::size_t literalCount = m_bits.Bits(5) + 257;
        const std::size_t distanceCount = m_bits.Bits(5) + 1;
        const std::size_t lengthCount = m_bits.Bits(4) + 4;
        constexpr std::array<std::uint8_t, 19> order = {16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                                        11, 4,  12, 3, 13, 2, 14, 1, 15};
        std::array<std::uint8_t, 19> codeLengths{};
        for (std::size_t i = 0; i < lengthCount; ++i)
            codeLengths[order[i]] = static_cast<std::uint8_t>(m_bits.Bits(3));

        std::array<std::uint8_t, 288 + 32> lengths{};
        const std::span<std::uint8_t> wanted = std::span(lengths).first(literalCount + distanceCount);
        m_damaged = literalCount > 286 || distanceCount > 30 || !CodeLengths(HuffmanCode(codeLengths), wanted);
        if (!m_damaged)
            Symbols(HuffmanCode(wanted.first(literalCount)), HuffmanCode(wanted.subspan(literalCount)));
    }

    /// Fills `lengths`, which are run-length coded by `code`.
    bool CodeLengths(const HuffmanCode& code, std::span<std::uint8_t> lengths)
    {
        for (std::size_t done = 0; done < lengths.size();) {
            const int symbol = code.Symbol(m_bits);
            if (symbol == NoSymbol || (symbol == 16 && done == 0))
                return false;
            if (symbol < 16) {
                lengths[done++] = static_cast<std::uint8_t>(symbol);
                continue;
            }
            const std::uint8_t repeated = symbol == 16 ? lengths[done - 1] : std::uint8_t{0};
            const std::size_t count = symbol == 16   ? m_bits.Bits(2) + 3
                                      : symbol == 17 ? m_bits.Bits(3) + 3
                                                     : m_bits.Bits(7) + 11;
            if (count > lengths.size() - done)
                return false;
            std::fill_n(lengths.begin() + static_cast<std::ptrdiff_t>(done), count, repeated);
            done += count;
        }
        return true;
    }

    void Symbols(const HuffmanCode& literals, const HuffmanCode& distances)
    {
        while (!Stopped()) {
            const int symbol = literals.Symbol(m_bits);
            if (symbol == EndOfBlock)
                return;
            if (symbol >= 0 && symbol < EndOfBlock)
                m_output += static_cast<char>(symbol);
            else
                m_damaged = !Repeat(symbol, distances);
        }
    }

    /// Copies what stands some distance back; false when the stream is damaged.
    bool Repeat(int lengthSymbol, const HuffmanCode& distances)
    {
        if (lengthSymbol < FirstLength || lengthSymbol >= FirstLength + static_cast<int>(std::size(Lengths)))
            return false;
        const std::size_t length = Value(Lengths[lengthSymbol - FirstLength]);
        const int distanceSymbol = distances.Symbol(m_bits);
        if (distanceSymbol < 0 || distanceSymbol >= static_cast<int>(std::size(Distances)))
            return false;
        const std::size_t distance = Value(Distances[distanceSymbol]);
        if (m_bits.Ended() || distance > m_output.size())
            return false;
        for (std::size_t i = std::min(length, m_limit - m_output.size()); i > 0; --i)
            m_output += m_output[m_output.size() - distance];
        return true;
    }

    std::size_t Value(const Range& range) { return range.base + m_bits.Bits(range.extraBits); }

    BitReader m_bits;
    std::size_t m_limit;
    std::string m_output;
    bool m_damaged = false;
};

} // namespace

std::string Inflate(std::string_view packed, std::size_t limit)
{
    constexpr std::size_t headerSize = 2;
    constexpr unsigned char deflateMethod = 8;
    constexpr unsigned char presetDictionary = 0x20;
    const bool isDeflated = packed.size() > headerSize && (packed[0] & 0x0F) == deflateMethod &&
                            (static_cast<unsigned char>(packed[1]) & presetDictionary) == 0;
    return isDeflated ? Inflater(packed.substr(headerSize), limit).Run() : std::string();
}

} // namespace VyrLibraryUtils::Pictures
