#include <tests/VyrC/RegistryFiles.h>

#include <VyrPlatform/registry/RegistryValue.h>

#include <tests/support/RegistryTree.h>
#include <tests/support/linux/HiveBuilder.h>
#include <tests/support/linux/WinePrefixText.h>

namespace VyrCTests {

namespace {

/// A program below the folder `top` of a root key.
VyrTests::RegistryTree Program(const CString& top, const CString& name)
{
    const CString key = CString::Join({top, u"Microsoft\\Windows\\CurrentVersion\\Uninstall\\", name});
    return {{}, {{key, u"DisplayName", VyrPlatform::Registry::ValueType::text, VyrTests::TextBytes(name)}}};
}

} // namespace

RegistryFiles MakeRegistryFiles(const VyrTests::ScratchFolder& folder)
{
    RegistryFiles files;
    files.areOpened = true;
    files.software = folder.WriteFile(u"SOFTWARE", VyrTests::BuildHive(Program({}, u"A sample")).bytes);
    files.user = folder.WriteFile(u"NTUSER.DAT", VyrTests::BuildHive(Program(u"Software\\", u"Another")).bytes);
    files.prefix = folder.MakeFolder(u"prefix");
    folder.WriteFile(u"prefix/system.reg", VyrTests::WineText(Program(u"Software\\", u"A third")));
    return files;
}

} // namespace VyrCTests
