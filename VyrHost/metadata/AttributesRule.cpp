// Finds the attributes of a file that are to be changed.
#include <VyrHost/metadata/AttributesRule.h>

#include <VyrHost/metadata/AttributesChange.h>
#include <VyrHost/metadata/ChangeText.h>
#include <VyrHost/text/ErrorText.h>
#include <VyrHost/text/UsageError.h>
#include <VyrPlatform/files/ExactState.h>
#include <VyrPlatform/files/FileAttributes.h>

#include <algorithm>
#include <iterator>

namespace VyrHost::Metadata {

namespace {

/// The bit of one letter in either case; 0 for any other unit.
std::uint32_t BitOf(char16_t letter)
{
    constexpr char16_t toUpper = u'a' - u'A';
    const char16_t upper = letter >= u'a' && letter <= u'z' ? static_cast<char16_t>(letter - toUpper) : letter;
    const auto* const found = std::find_if(std::begin(attributeWords), std::end(attributeWords),
                                           [upper](const AttributeWord& known) { return known.letter == upper; });
    return found == std::end(attributeWords) ? 0 : found->bit;
}

/// The bits of a word, or of letters; 0 for any other text.
std::uint32_t BitsOf(std::u16string_view text)
{
    for (const AttributeWord& known : attributeWords)
        if (text == known.word)
            return known.bit;
    std::uint32_t bits = 0;
    for (const char16_t letter : text) {
        const std::uint32_t bit = BitOf(letter);
        if (bit == 0)
            return 0;
        bits |= bit;
    }
    return bits;
}

} // namespace

std::uint32_t ParseAttributes(std::u16string_view text, const char* option)
{
    std::uint32_t bits = 0;
    std::u16string_view rest = text;
    do {
        const std::uint32_t piece = BitsOf(TakeUpTo(rest, u','));
        if (piece == 0)
            Text::RefuseValue(option, text,
                              "read-only, hidden, system, archive, temporary and not-indexed are known, or their "
                              "letters R, H, S, A, T and I; several are separated by commas");
        bits |= piece;
    } while (!rest.empty());
    return bits;
}

std::uint32_t AllAttributes()
{
    std::uint32_t bits = 0;
    for (const AttributeWord& known : attributeWords)
        bits |= known.bit;
    return bits;
}

Proposal AttributesRule::Propose(const CString& path, const Model::Entry& /*entry*/, std::size_t /*index*/) const
{
    using VyrPlatform::ExactState::Part;
    std::uint32_t error = 0;
    const auto state = VyrPlatform::ExactState::Read(path, Part::Attributes, error);
    if (!state)
        return {nullptr, Text::ErrorText(error)};
    AttributesChange::Bits bits;
    bits.before = VyrPlatform::FileAttributes::Get(path);
    bits.beforeState = *state;
    bits.mask = (m_set & ~bits.before) | (m_clear & bits.before);
    bits.value = m_set & bits.mask;
    if (bits.mask == 0 || bits.before == VyrPlatform::FileAttributes::unknown)
        return {};
    return {std::make_shared<AttributesChange>(std::move(bits)), {}};
}

} // namespace VyrHost::Metadata
