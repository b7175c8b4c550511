// A hive: a file with a part of a Windows registry.
#pragma once

#include "Node.h"

#include <VyrPlatform/registry/RegistryFiles.h>

namespace VyrPlatform::Registry {

struct OpenedHive
{
    /// Null when the hive could not be opened.
    std::shared_ptr<Node> top;
    OpenResult result;
};

/// Opens the hive at `path` for reading. Its keys are read on demand; values are kept only while somebody uses them.
/// Damaged parts, and names that are not Unicode, are left out.
[[nodiscard]] VYR_PLATFORM_API OpenedHive OpenHive(const CString& path);

} // namespace VyrPlatform::Registry
