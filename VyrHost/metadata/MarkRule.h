/// @file
/// Which files lose the mark of a download.
#pragma once

#include <VyrHost/metadata/Proposal.h>

namespace VyrHost::Metadata {

/// Takes the mark off every file that has one.
class MarkRule final : public ChangeRule
{
public:
    [[nodiscard]] Proposal Propose(const CString& path, const Model::Entry& entry, std::size_t index) const override;
};

} // namespace VyrHost::Metadata
