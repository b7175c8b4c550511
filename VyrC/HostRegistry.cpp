#include <VyrC/HostRegistry.h>

#include <VyrPlatform/registry/RegistryFiles.h>

namespace Registry = VyrPlatform::Registry;

namespace VyrC {

namespace {

HostRegistry::OPENRESULT Described(const Registry::OpenResult& result)
{
    CString unclosed;
    for (const CString& file : result.unclosedFiles)
        unclosed += (unclosed.IsEmpty() ? CString() : CString(u"\n")) + file;
    return {static_cast<int>(result.outcome), result.error, result.file, unclosed};
}

} // namespace

HostRegistry::OPENRESULT HostRegistry::ShowWinePrefix(CString folder)
{
    return Described(Registry::ShowWinePrefix(folder));
}

HostRegistry::OPENRESULT HostRegistry::ShowHives(HIVEFILES files)
{
    return Described(Registry::ShowHives({files.software, files.system, files.user, files.userClasses}));
}

HostRegistry::OPENRESULT HostRegistry::ShowUserHives(CString user, CString userClasses)
{
    return Described(Registry::ShowUserHives(user, userClasses));
}

void HostRegistry::Close()
{
    Registry::CloseRegistryFiles();
}

} // namespace VyrC
