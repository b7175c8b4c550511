// Sets and restores attributes, and writes them for the journal: "BITS STATE" before, "MASK VALUE" after, bits in
// hexadecimal.
#include <VyrHost/metadata/Attributes.h>

#include <VyrHost/metadata/Changes.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/Pieces.h>
#include <VyrLibraryFuncs/metadata/AttributesFuncs.h>
#include <VyrPlatform/files/ExactState.h>
#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileIdentity.h>

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace VyrHost::Metadata {

namespace {

using Model::ChangeLook;
using Model::ChangeState;
using VyrLibraryFuncs::AttributesFuncs;
using VyrPlatform::ExactState::Part;

namespace FileAttributes = VyrPlatform::FileAttributes;

constexpr std::uint32_t readOnly = 0x1;

/// All letters of attributes, including those that cannot be set here.
constexpr std::pair<char16_t, std::uint32_t> letters[] = {
    {u'R', 0x1},   {u'H', 0x2},   {u'S', 0x4},    {u'D', 0x10},   {u'A', 0x20},   {u'T', 0x100},   {u'P', 0x200},
    {u'L', 0x400}, {u'C', 0x800}, {u'O', 0x1000}, {u'I', 0x2000}, {u'E', 0x4000}, {u'X', 0x20000}, {u'V', 0x8000},
};

std::uint32_t SettableBits()
{
    std::uint32_t bits = 0;
    for (const AttributeWord& attribute : attributeWords)
        bits |= attribute.bit;
    return bits;
}

std::optional<std::uint32_t> ReadBits(std::u16string_view text)
{
    const auto number = Text::ReadWhole(text, 16);
    if (!number || *number < 0 || *number >= FileAttributes::unknown)
        return std::nullopt;
    return static_cast<std::uint32_t>(*number);
}

CString HexText(std::uint32_t first)
{
    CString text;
    text.Format(u"%x", first);
    return text;
}

} // namespace

CString AttributeLetters(std::uint32_t bits)
{
    std::vector<std::pair<int, char16_t>> found;
    for (const auto& [letter, bit] : letters)
        if (bits & bit)
            found.emplace_back(AttributesFuncs::GetArrtibutesPriority(CString(letter, 1)), letter);
    std::sort(found.begin(), found.end());
    CString text;
    for (const auto& [priority, letter] : found)
        text += letter;
    return text.IsEmpty() ? CString(u"-") : text;
}

std::shared_ptr<const Model::Change> AttributesChange::Read(const CString& before, const CString& after)
{
    std::u16string_view restBefore = before;
    std::u16string_view restAfter = after;
    const auto bits = ReadBits(Text::TakeUpTo(restBefore, u' '));
    const auto mask = ReadBits(Text::TakeUpTo(restAfter, u' '));
    const auto value = ReadBits(restAfter);
    if (!bits || !mask || !value || restBefore.empty() || *mask == 0 || (*mask & ~SettableBits()) || (*value & ~*mask))
        return nullptr;
    return std::make_shared<AttributesChange>(Bits{*bits, restBefore, *mask, *value});
}

CString AttributesChange::Before() const
{
    return CString::Join({HexText(m_bits.before), u" ", m_bits.beforeState});
}

CString AttributesChange::After() const
{
    return CString::Join({HexText(m_bits.mask), u" ", HexText(m_bits.value)});
}

CString AttributesChange::ShownBefore() const
{
    return AttributeLetters(m_bits.before);
}

CString AttributesChange::ShownAfter() const
{
    return AttributeLetters((m_bits.before & ~m_bits.mask) | m_bits.value);
}

/// Whether the attributes that are not changed are as they were before.
bool AttributesChange::HasOthersAsBefore(std::uint32_t now) const
{
    return ((now ^ m_bits.before) & ~m_bits.mask & SettableBits()) == 0;
}

/// A change that sets or clears the protection knows the old value itself.
bool AttributesChange::MayLiftProtection() const
{
    return (m_bits.mask & readOnly) == 0;
}

/// A file may have lost only its protection, or all write permissions except the owner's. One that becomes read-only
/// may have the attribute and still be writable.
void AttributesChange::Repair(const CString& path) const
{
    const std::uint32_t now = FileAttributes::Get(path);
    if ((m_bits.value & readOnly) && FileAttributes::IsReadOnly(path)) {
        if (FileAttributes::Set(path, now & ~readOnly) == 0)
            static_cast<void>(FileAttributes::Set(path, now));
        return;
    }
    const bool wasProtected = (m_bits.before & ~m_bits.mask & readOnly) != 0;
    const bool isUnprotected = wasProtected && !FileAttributes::IsReadOnly(path);
    // If it cannot be restored, the file stays as it is, and the change reports why.
    if (isUnprotected || (Look(path).state == ChangeState::Before && HasOthersAsBefore(now)))
        static_cast<void>(VyrPlatform::ExactState::Restore(path, Part::Attributes, m_bits.beforeState));
}

ChangeLook AttributesChange::Look(const CString& path) const
{
    const std::uint32_t now = FileAttributes::Get(path);
    if (now == FileAttributes::unknown) {
        constexpr std::uint32_t missingFile = 2;
        const std::uint32_t error = VyrPlatform::LookAtFile(path).error;
        return {ChangeState::Unknown, error != 0 ? error : missingFile};
    }
    if ((now & m_bits.mask) == m_bits.value)
        return {ChangeState::After, 0};
    return {((now ^ m_bits.before) & m_bits.mask) == 0 ? ChangeState::Before : ChangeState::Partly, 0};
}

std::uint32_t AttributesChange::Apply(const CString& path) const
{
    const auto choice = [this](std::uint32_t bit) {
        constexpr int keep = 0;
        constexpr int set = 1;
        constexpr int clear = 2;
        return !(m_bits.mask & bit) ? keep : m_bits.value & bit ? set : clear;
    };
    AttributesFuncs::ATTRIBUTESITEM item;
    item.readOnly = choice(0x1);
    item.hidden = choice(0x2);
    item.system = choice(0x4);
    item.archive = choice(0x20);
    item.temporary = choice(0x100);
    item.notContentIndexed = choice(0x2000);
    if (AttributesFuncs::SetModifiedFileAttributes(path, item))
        return 0;
    // The library reports only that it failed; the service below it also gives the reason.
    const std::uint32_t now = FileAttributes::Get(path);
    const std::uint32_t error = FileAttributes::Set(path, (now & ~m_bits.mask) | m_bits.value);
    // Of several attributes some may have been set.
    if (error != 0 && Look(path).state != ChangeState::Before)
        static_cast<void>(Undo(path));
    return error;
}

std::uint32_t AttributesChange::Undo(const CString& path) const
{
    const std::uint32_t now = FileAttributes::Get(path);
    const std::uint32_t error = VyrPlatform::ExactState::Restore(path, Part::Attributes, m_bits.beforeState);
    if (error != 0 || HasOthersAsBefore(now))
        return error;
    return FileAttributes::Set(path, (now & ~m_bits.mask) | (m_bits.before & m_bits.mask));
}

namespace {

/// The bit of one letter in either case; 0 for any other code unit.
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
        const std::uint32_t piece = BitsOf(Text::TakeUpTo(rest, u','));
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
    bits.before = FileAttributes::Get(path);
    bits.beforeState = *state;
    bits.mask = (m_set & ~bits.before) | (m_clear & bits.before);
    bits.value = m_set & bits.mask;
    if (bits.mask == 0 || bits.before == FileAttributes::unknown)
        return {};
    return {std::make_shared<AttributesChange>(std::move(bits)), {}};
}

} // namespace VyrHost::Metadata
