// Two keys shown as one.
#pragma once

#include "Node.h"

namespace VyrPlatform::Registry {

/// The content of the key `upper`, and that of `lower` where `upper` has nothing of the same name. For keys that do not
/// change.
class MergedNode final : public Node
{
public:
    MergedNode(std::shared_ptr<Node> upper, std::shared_ptr<Node> lower);

    [[nodiscard]] const Subkeys& GetSubkeys() override;
    [[nodiscard]] std::shared_ptr<const Values> GetValues() override;
    [[nodiscard]] FileTicks GetLastWrite() const override { return m_upper->GetLastWrite(); }

private:
    std::shared_ptr<Node> m_upper;
    std::shared_ptr<Node> m_lower;
    bool m_isLoaded = false;
    Subkeys m_subkeys;
};

/// Both as one; where one is null, the other.
[[nodiscard]] std::shared_ptr<Node> Merge(std::shared_ptr<Node> upper, std::shared_ptr<Node> lower);

} // namespace VyrPlatform::Registry
