#include "MergedNode.h"

#include <utility>

namespace VyrPlatform::Registry {

MergedNode::MergedNode(std::shared_ptr<Node> upper, std::shared_ptr<Node> lower)
    : m_upper(std::move(upper)), m_lower(std::move(lower))
{}

const Subkeys& MergedNode::GetSubkeys()
{
    if (m_isLoaded)
        return m_subkeys;
    m_subkeys = m_upper->GetSubkeys();
    for (const auto& [folded, below] : m_lower->GetSubkeys()) {
        const auto [place, isNew] = m_subkeys.emplace(folded, below);
        if (!isNew)
            place->second.node = Merge(place->second.node, below.node);
    }
    m_isLoaded = true;
    return m_subkeys;
}

std::shared_ptr<const Values> MergedNode::GetValues()
{
    auto values = std::make_shared<Values>(*m_upper->GetValues());
    const std::shared_ptr<const Values> lower = m_lower->GetValues();
    values->insert(lower->begin(), lower->end());
    return values;
}

std::shared_ptr<Node> Merge(std::shared_ptr<Node> upper, std::shared_ptr<Node> lower)
{
    if (!upper || !lower)
        return upper ? upper : lower;
    return std::make_shared<MergedNode>(std::move(upper), std::move(lower));
}

} // namespace VyrPlatform::Registry
