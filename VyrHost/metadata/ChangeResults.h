/// @file
/// What becomes of the entries of a list whose times, attributes or marks are changed.
#pragma once

#include <VyrHost/metadata/Proposal.h>
#include <VyrHost/model/EntryList.h>
#include <VyrHost/model/Result.h>

#include <cstddef>
#include <string_view>
#include <vector>

namespace VyrHost::Metadata {

/// The proposals for a list, and later what came of them.
class ChangeResults final : public Model::Results
{
public:
    /// @param kind  of the changes. The list must outlive the results.
    ChangeResults(std::string_view kind, const Model::EntryList& list, std::vector<Proposal> proposals);

    /// What became of the change of an entry.
    void Set(std::size_t entry, const Model::Outcome& outcome) { m_outcomes[entry] = outcome; }

    [[nodiscard]] std::size_t Count() const override { return m_proposals.size(); }
    [[nodiscard]] Model::Result At(std::size_t index) const override;

private:
    std::string_view m_kind;
    const Model::EntryList& m_list;
    std::vector<Proposal> m_proposals;
    std::vector<Model::Outcome> m_outcomes;
};

} // namespace VyrHost::Metadata
