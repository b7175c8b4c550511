// For tests: files of registries, for hosts that describe one to the library.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <tests/support/ScratchFolder.h>

namespace VyrCTests {

/// The paths of files in which one program stands; the user's hive has another.
struct RegistryFiles
{
    /// Whether this system opens such files; without, all paths are empty.
    bool areOpened = false;
    CString software;
    CString user;
    CString prefix;
};

[[nodiscard]] RegistryFiles MakeRegistryFiles(const VyrTests::ScratchFolder& folder);

} // namespace VyrCTests
