/// @file
/// The attributes of files: the change of kind "attributes", and the rule for the files of a list.
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
    /// The bit of VyrPlatform::FileAttributes.
    std::uint32_t bit;
};

/// In the order of display.
inline constexpr AttributeWord attributeWords[] = {
    {u"read-only", u'R', 0x1}, {u"hidden", u'H', 0x2},      {u"system", u'S', 0x4},
    {u"archive", u'A', 0x20},  {u"temporary", u'T', 0x100}, {u"not-indexed", u'I', 0x2000},
};

/// The letters of the attributes in `bits`, in the order of GetArrtibutesPriority; "-" for none.
[[nodiscard]] CString AttributeLetters(std::uint32_t bits);

/// Sets and clears attributes by AttributesFuncs::SetModifiedFileAttributes, and restores them exactly, including write
/// permissions and extended attributes.
class AttributesChange final : public Model::Change
{
public:
    struct Bits
    {
        /// All attributes of the file before, and their exact form from ExactState.
        std::uint32_t before = 0;
        CString beforeState;
        /// The attributes that are changed, and those of them that are set.
        std::uint32_t mask = 0;
        std::uint32_t value = 0;
    };

    explicit AttributesChange(Bits bits) : m_bits(std::move(bits)) {}

    static constexpr std::string_view kind = "attributes";
    /// Reads the texts of the journal; null for texts that are not of this kind.
    [[nodiscard]] static std::shared_ptr<const Model::Change> Read(const CString& before, const CString& after);

    [[nodiscard]] std::string_view Kind() const override { return kind; }
    [[nodiscard]] CString Before() const override;
    [[nodiscard]] CString After() const override;
    [[nodiscard]] CString ShownBefore() const override;
    [[nodiscard]] CString ShownAfter() const override;
    [[nodiscard]] bool MayLiftProtection() const override;
    void Repair(const CString& path) const override;
    /// An attribute has only two states, so a change by another program looks like a part of this change that is not
    /// done.
    [[nodiscard]] Model::ChangeLook Look(const CString& path) const override;
    [[nodiscard]] std::uint32_t Apply(const CString& path) const override;
    /// Keeps what another program has changed of the other attributes.
    [[nodiscard]] std::uint32_t Undo(const CString& path) const override;

private:
    [[nodiscard]] bool HasOthersAsBefore(std::uint32_t now) const;

    Bits m_bits;
};

/// Reads attributes: words such as `read-only` and `hidden`, or letters such as `RH` in either case, separated by
/// commas.
/// @return their bits.
/// @throws UsageError for an attribute that is unknown or cannot be set.
[[nodiscard]] std::uint32_t ParseAttributes(std::u16string_view text, const char* option);

/// All attributes that ParseAttributes knows.
[[nodiscard]] std::uint32_t AllAttributes();

/// Sets some attributes and clears others; the rest is kept.
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
