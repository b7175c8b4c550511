/// @file
/// The attributes of files: the change of kind "attributes", and which attributes the files of a list get.
#pragma once

#include <VyrHost/metadata/Changes.h>
#include <VyrHost/model/Change.h>

#include <cstdint>
#include <optional>
#include <string_view>

namespace VyrHost::Metadata {

/// An attribute that can be set and cleared.
struct AttributeWord
{
    std::u16string_view word;
    char16_t letter;
    /// As VyrPlatform::FileAttributes has it.
    std::uint32_t bit;
};

/// In the order in which they are shown.
inline constexpr AttributeWord attributeWords[] = {
    {u"read-only", u'R', 0x1}, {u"hidden", u'H', 0x2},      {u"system", u'S', 0x4},
    {u"archive", u'A', 0x20},  {u"temporary", u'T', 0x100}, {u"not-indexed", u'I', 0x2000},
};

/// The letters of the attributes that `bits` has, in the order of GetArrtibutesPriority; "-" for none.
[[nodiscard]] CString AttributeLetters(std::uint32_t bits);

/// Sets and clears attributes by AttributesFuncs::SetModifiedFileAttributes, and takes that back exactly: the
/// permissions to write and the extended attributes, too.
class AttributesChange final : public Model::Change
{
public:
    struct Bits
    {
        /// All attributes of the file before, and exactly, as ExactState keeps them.
        std::uint32_t before = 0;
        CString beforeState;
        /// Which attributes are changed, and those of them that are set.
        std::uint32_t mask = 0;
        std::uint32_t value = 0;
    };

    explicit AttributesChange(Bits bits) : m_bits(std::move(bits)) {}

    static constexpr std::string_view kind = "attributes";
    /// What the journal keeps; null for texts that are none of this kind.
    [[nodiscard]] static std::shared_ptr<const Model::Change> Read(const CString& before, const CString& after);

    [[nodiscard]] std::string_view Kind() const override { return kind; }
    [[nodiscard]] CString Before() const override;
    [[nodiscard]] CString After() const override;
    [[nodiscard]] CString ShownBefore() const override;
    [[nodiscard]] CString ShownAfter() const override;
    /// An attribute has two states, so what another program has changed looks like a part of the change not done.
    [[nodiscard]] Model::ChangeLook Look(const CString& path) const override;
    [[nodiscard]] std::uint32_t Apply(const CString& path) const override;
    [[nodiscard]] std::uint32_t TakeBack(const CString& path) const override;

private:
    Bits m_bits;
};

/// Reads attributes: words such as `read-only` and `hidden`, or letters such as `RH` in either case, separated by
/// commas.
/// @return their bits.
/// @throws UsageError for an attribute that is not known or cannot be set.
[[nodiscard]] std::uint32_t ParseAttributes(std::u16string_view text, const char* option);

/// All that ParseAttributes knows.
[[nodiscard]] std::uint32_t AllAttributes();

/// Sets some attributes and clears others; all others stay.
class AttributesRule final : public ChangeRule
{
public:
    /// @param set, clear  bits of ParseAttributes, none in both.
    AttributesRule(std::uint32_t set, std::uint32_t clear) : m_set(set), m_clear(clear) {}

    [[nodiscard]] Proposal Propose(const CString& path, const Model::Entry& entry, std::size_t index) const override;

private:
    std::uint32_t m_set;
    std::uint32_t m_clear;
};

} // namespace VyrHost::Metadata
