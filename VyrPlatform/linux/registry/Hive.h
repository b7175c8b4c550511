// A hive: the file in which Windows keeps a part of the registry.
#pragma once

#include "Node.h"

#include <VyrPlatform/registry/RegistryFiles.h>

namespace VyrPlatform::Registry {

struct OpenedHive
{
    /// Null when it was not opened.
    std::shared_ptr<Node> top;
    OpenResult result;
};

/// Opens the hive at `path` for reading. Its keys are read when they are asked for, their values kept only while
/// somebody uses them. What is damaged is missing; a name that is not Unicode is.
[[nodiscard]] VYR_PLATFORM_API OpenedHive OpenHive(const CString& path);

} // namespace VyrPlatform::Registry
