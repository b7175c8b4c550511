// The disk of a Windows that does not run, with hives that are made byte by byte.
#include <tests/support/linux/WindowsDisk.h>

#include <tests/support/linux/HiveBuilder.h>

namespace VyrTests {

void AddTexts(RegistryTree& tree, std::u16string_view path, NamedTexts texts)
{
    tree.keys.emplace_back(path);
    for (const auto& [name, text] : texts)
        tree.values.push_back({CString(path), CString(name), VyrPlatform::Registry::ValueType::text, TextBytes(text)});
}

void AddNumber(RegistryTree& tree, std::u16string_view path, std::u16string_view name, std::uint32_t number)
{
    tree.values.push_back(
        {CString(path), CString(name), VyrPlatform::Registry::ValueType::number, NumberBytes(number)});
}

CString WindowsDisk::WriteHive(std::u16string_view name, const RegistryTree& tree) const
{
    return m_folder.WriteFile(name, BuildHive(tree).bytes);
}

CString WindowsDisk::WriteUser(std::u16string_view user, const RegistryTree& tree) const
{
    return WriteHive(CString::Join({u"Users/", user, u"/NTUSER.DAT"}), tree);
}

CString MachineEntry(std::u16string_view name)
{
    return CString::Join({u"Microsoft\\Windows\\CurrentVersion\\Uninstall\\", name});
}

CString MachineEntry32(std::u16string_view name)
{
    return CString::Join({u"Wow6432Node\\", MachineEntry(name)});
}

CString UserEntry(std::u16string_view name)
{
    return CString::Join({u"Software\\", MachineEntry(name)});
}

} // namespace VyrTests
