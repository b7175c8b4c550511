/// @file
/// Which attributes the files of a list get.
#pragma once

#include <VyrHost/metadata/Proposal.h>

#include <cstdint>
#include <string_view>

namespace VyrHost::Metadata {

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
