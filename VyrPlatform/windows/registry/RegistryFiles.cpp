// Windows has its own registry and opens no other.
#include <VyrPlatform/registry/RegistryFiles.h>

namespace VyrPlatform::Registry {

OpenResult ShowWinePrefix(const CString& folder)
{
    return {OpenResult::Outcome::NotSupported, 0, folder, {}};
}

OpenResult ShowHives(const HiveFiles& files)
{
    return {OpenResult::Outcome::NotSupported, 0, files.software, {}};
}

OpenResult ShowUserHives(const CString& user, const CString&)
{
    return {OpenResult::Outcome::NotSupported, 0, user, {}};
}

void CloseRegistryFiles() {}

} // namespace VyrPlatform::Registry
