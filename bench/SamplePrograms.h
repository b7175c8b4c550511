/// @file
/// For benchmarks: registries of many programs, each an uninstall key of ten values.
#pragma once

#include <tests/support/linux/HiveBuilder.h>
#include <tests/support/linux/WinePrefixText.h>

#include <string>

/// `count` keys with the names that installers use, directly below the key `above`.
[[nodiscard]] inline VyrTests::RegistryTree SamplePrograms(int count, const CString& above)
{
    VyrTests::RegistryTree tree;
    for (int i = 0; i < count; ++i) {
        CString path;
        path.Format(u"%s\\{%08x-0000-0000-0000-000000000000}", above, i);
        for (const char16_t* const name : {u"DisplayName", u"DisplayVersion", u"Publisher", u"InstallDate",
                                           u"InstallLocation", u"InstallSource", u"UninstallString", u"URLInfoAbout"})
            tree.values.push_back({path, name, 1, VyrTests::TextBytes(u"C:\\Program Files\\A")});
        tree.values.push_back({path, u"EstimatedSize", 4, VyrTests::NumberBytes(12'345)});
        tree.values.push_back({path, u"Language", 4, VyrTests::NumberBytes(1033)});
    }
    return tree;
}

/// A hive `SOFTWARE` of so many programs; at most 65,535.
[[nodiscard]] inline std::string SampleHive(int count)
{
    return VyrTests::BuildHive(SamplePrograms(count, u"Microsoft\\Windows\\CurrentVersion\\Uninstall")).bytes;
}

/// A file `system.reg` of so many programs.
[[nodiscard]] inline std::string SampleWineText(int count)
{
    return VyrTests::WineText(SamplePrograms(count, u"Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall"));
}
