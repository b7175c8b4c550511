// Bytes and UTF-16: one strict UTF-8 decoder and one encoder, each with two ways to treat what is not well-formed.
#include <VyrPlatform/text/Encoding.h>

#include <VyrPlatform/text/Surrogates.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>

namespace VyrPlatform::Encoding {

namespace {

constexpr char16_t replacementUnit = u'\uFFFD';
/// What FromNameBytes adds to a byte that is not UTF-8.
constexpr char16_t strayByteBase = 0xDC00;

enum class Malformed
{
    Replace,
    Keep
};

bool IsStrayByte(char16_t unit) noexcept
{
    return unit >= strayByteBase + 0x80 && unit <= strayByteBase + 0xFF;
}

// Paths and most texts are ASCII, which is converted in blocks of this many.
constexpr std::ptrdiff_t blockSize = 8;
using ByteBlock [[gnu::vector_size(blockSize)]] = std::uint8_t;
using UnitBlock [[gnu::vector_size(2 * blockSize)]] = std::uint16_t;

/// Widens the ASCII bytes at the start of [`bytes`, `end`).
/// @return the first byte that is not ASCII.
const char* WidenAscii(const char* bytes, const char* end, char16_t*& target) noexcept
{
    for (; end - bytes >= blockSize; bytes += blockSize, target += blockSize) {
        constexpr std::uint64_t highBits = 0x8080808080808080U;
        ByteBlock block;
        std::memcpy(&block, bytes, sizeof block);
        if (std::bit_cast<std::uint64_t>(block) & highBits)
            break;
        const auto units = __builtin_convertvector(block, UnitBlock);
        std::memcpy(target, &units, sizeof units);
    }
    for (; bytes != end && static_cast<unsigned char>(*bytes) < 0x80; ++bytes)
        *target++ = static_cast<unsigned char>(*bytes);
    return bytes;
}

/// A character of more than one byte; `length` is 0 where there is none.
struct Sequence
{
    std::size_t length = 0;
    char32_t character = 0;
};

/// Reads the well-formed sequence at the start of `bytes` (the Unicode Standard, table 3-7).
Sequence ReadSequence(std::string_view bytes) noexcept
{
    const auto byteAt = [bytes](std::size_t i) {
        return static_cast<unsigned char>(bytes[i]);
    };
    const unsigned char lead = byteAt(0);
    const std::size_t length = lead < 0xC2 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
    if (length == 0 || bytes.size() < length)
        return {};
    // The second byte's bounds keep out overlong forms, surrogates and what lies above U+10FFFF.
    const unsigned char least = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
    const unsigned char most = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
    if (byteAt(1) < least || byteAt(1) > most)
        return {};
    char32_t character = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byteAt(i) & 0xC0) != 0x80)
            return {};
        character = character << 6 | (byteAt(i) & 0x3FU);
    }
    return {length, character};
}

char16_t* PutCharacter(char16_t* target, char32_t character) noexcept
{
    if (character >= 0x10000) {
        *target++ = static_cast<char16_t>(0xD7C0 + (character >> 10));
        character = 0xDC00 | (character & 0x3FF);
    }
    *target++ = static_cast<char16_t>(character);
    return target;
}

/// Decodes `bytes` to `target`, which has room for as many units as there are bytes.
char16_t* Decode(std::string_view bytes, char16_t* target, Malformed malformed) noexcept
{
    const char* const end = bytes.data() + bytes.size();
    const char* at = WidenAscii(bytes.data(), end, target);
    while (at != end) {
        const Sequence sequence = ReadSequence({at, static_cast<std::size_t>(end - at)});
        if (sequence.length != 0) {
            target = PutCharacter(target, sequence.character);
            at += sequence.length;
        } else {
            const auto stray = static_cast<unsigned char>(*at++);
            *target++ = malformed == Malformed::Keep ? static_cast<char16_t>(strayByteBase + stray) : replacementUnit;
        }
        at = WidenAscii(at, end, target);
    }
    return target;
}

CString Decoded(std::string_view bytes, Malformed malformed)
{
    const auto decodeInto = [&](char16_t* buffer) {
        return CString(
            std::u16string_view(buffer, static_cast<std::size_t>(Decode(bytes, buffer, malformed) - buffer)));
    };
    // Nearly every path is short: no second allocation for those.
    std::array<char16_t, 512> shortBuffer;
    if (bytes.size() <= shortBuffer.size())
        return decodeInto(shortBuffer.data());
    std::u16string longBuffer(bytes.size(), u'\0');
    return decodeInto(longBuffer.data());
}

char* PutTail(char* target, char32_t character, int tailBytes) noexcept
{
    while (tailBytes-- > 0)
        *target++ = static_cast<char>(0x80 | (character >> (6 * tailBytes) & 0x3F));
    return target;
}

char* PutUtf8(char* target, char32_t character) noexcept
{
    if (character < 0x80) {
        *target++ = static_cast<char>(character);
        return target;
    }
    const int tailBytes = character < 0x800 ? 1 : character < 0x10000 ? 2 : 3;
    const unsigned leadMark = 0xFF00U >> (tailBytes + 1) & 0xFF;
    *target++ = static_cast<char>(leadMark | (character >> (6 * tailBytes)));
    return PutTail(target, character, tailBytes);
}

/// Encodes the character at `at`, of one unit or of two, and moves `at` past it.
char* EncodeOne(std::u16string_view text, std::size_t& at, char* target, Malformed malformed) noexcept
{
    const char16_t unit = text[at];
    std::u16string_view rest = text.substr(at);
    const char32_t character = TakeCharacter(rest);
    at = text.size() - rest.size();
    if (character >= 0x10000 || !IsSurrogate(unit))
        return PutUtf8(target, character);
    if (malformed == Malformed::Replace)
        return PutUtf8(target, replacementUnit);
    if (!IsStrayByte(unit))
        return PutUtf8(target, unit);
    *target++ = static_cast<char>(unit - strayByteBase);
    return target;
}

/// Copies ASCII units while there are any and `target` has room.
char* NarrowAscii(std::u16string_view text, std::size_t& at, char* target, const char* end) noexcept
{
    const char16_t* units = text.data() + at;
    const char16_t* const unitsEnd = units + std::min(static_cast<std::ptrdiff_t>(text.size() - at), end - target);
    for (; unitsEnd - units >= blockSize; units += blockSize, target += blockSize) {
        constexpr std::uint64_t highBits = 0xFF80FF80FF80FF80U;
        UnitBlock block;
        std::memcpy(&block, units, sizeof block);
        const auto halves = std::bit_cast<std::array<std::uint64_t, 2>>(block);
        if ((halves[0] | halves[1]) & highBits)
            break;
        const auto bytes = __builtin_convertvector(block, ByteBlock);
        std::memcpy(target, &bytes, sizeof bytes);
    }
    for (; units != unitsEnd && *units < 0x80; ++units)
        *target++ = static_cast<char>(*units);
    at = static_cast<std::size_t>(units - text.data());
    return target;
}

void AppendEncoded(std::string& bytes, std::u16string_view text, Malformed malformed)
{
    constexpr std::ptrdiff_t longestSequence = 4;
    std::array<char, 1024> piece;
    char* const end = piece.data() + piece.size();
    for (std::size_t at = 0; at < text.size();) {
        char* target = NarrowAscii(text, at, piece.data(), end);
        while (at < text.size() && end - target >= longestSequence) {
            target = EncodeOne(text, at, target, malformed);
            target = NarrowAscii(text, at, target, end);
        }
        bytes.append(piece.data(), target);
    }
}

} // namespace

CString FromUtf8(std::string_view bytes)
{
    return Decoded(bytes, Malformed::Replace);
}

std::string ToUtf8(std::u16string_view text)
{
    std::string bytes;
    AppendUtf8(bytes, text);
    return bytes;
}

void AppendUtf8(std::string& bytes, std::u16string_view text)
{
    AppendEncoded(bytes, text, Malformed::Replace);
}

CString FromNameBytes(std::string_view bytes)
{
    return Decoded(bytes, Malformed::Keep);
}

std::string ToNameBytes(std::u16string_view name)
{
    std::string bytes;
    AppendNameBytes(bytes, name);
    return bytes;
}

void AppendNameBytes(std::string& bytes, std::u16string_view name)
{
    AppendEncoded(bytes, name, Malformed::Keep);
}

} // namespace VyrPlatform::Encoding
