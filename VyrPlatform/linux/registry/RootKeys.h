// The trees that the root keys show.
#pragma once

#include "Node.h"

#include <VyrPlatform/registry/Registry.h>

namespace VyrPlatform::Registry {

/// Makes the root key `root` show `node`; null: nothing.
void SetRootNode(Handle root, std::shared_ptr<Node> node);
/// What the root key `root` shows; null: nothing.
[[nodiscard]] std::shared_ptr<Node> GetRootNode(Handle root);

} // namespace VyrPlatform::Registry
