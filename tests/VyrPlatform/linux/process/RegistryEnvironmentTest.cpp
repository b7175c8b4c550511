// The variables of a Windows, which Linux reads from the open registry.
#include <tests/support/ScratchRegistry.h>

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/process/Process.h>

#include <gtest/gtest.h>

#include <cstdlib>

using namespace VyrPlatform;
using Process::ExpandEnvironment;
using VyrTests::ScratchRegistry;
using VyrTests::TextBytes;

namespace {

const CString windows = u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion";
const CString windowsNt = u"Software\\Microsoft\\Windows NT\\CurrentVersion";

class RegistryEnvironment : public testing::Test
{
protected:
    RegistryEnvironment()
    {
        registry.SetText(HKEY_LOCAL_MACHINE, windowsNt, u"SystemRoot", u"D:\\WINNT");
        registry.SetText(HKEY_LOCAL_MACHINE, windows, u"ProgramFilesDir", u"D:\\Programme");
        registry.SetText(HKEY_LOCAL_MACHINE, windows, u"ProgramFilesDir (x86)", u"D:\\Programme (x86)");
        registry.SetText(HKEY_LOCAL_MACHINE, windows, u"CommonFilesDir", u"D:\\Programme\\Gemeinsam");
        registry.SetValue(HKEY_LOCAL_MACHINE, windowsNt + u"\\ProfileList", u"ProgramData",
                          Registry::ValueType::expandableText, TextBytes(u"%SystemDrive%\\ProgramData"));
    }

    ScratchRegistry registry;
};

} // namespace

TEST_F(RegistryEnvironment, VariablesOfTheSystemAreReadFromTheRegistry)
{
    EXPECT_EQ(ExpandEnvironment(u"%SystemRoot%\\a", 260), u"D:\\WINNT\\a");
    EXPECT_EQ(ExpandEnvironment(u"%windir%", 260), u"D:\\WINNT");
    EXPECT_EQ(ExpandEnvironment(u"%WINDIR%|%systemroot%", 260), u"D:\\WINNT|D:\\WINNT");
    EXPECT_EQ(ExpandEnvironment(u"%SystemDrive%\\", 260), u"D:\\");
    EXPECT_EQ(ExpandEnvironment(u"\"%ProgramFiles%\\x\" \"%ProgramFiles(x86)%\\y\"", 260),
              u"\"D:\\Programme\\x\" \"D:\\Programme (x86)\\y\"");
    EXPECT_EQ(ExpandEnvironment(u"%CommonProgramFiles%", 260), u"D:\\Programme\\Gemeinsam");
    EXPECT_EQ(ExpandEnvironment(u"%ProgramData%", 260), u"D:\\ProgramData");
}

TEST_F(RegistryEnvironment, VariableOfTheProcessComesFirst)
{
    ASSERT_EQ(::setenv("SystemRoot", "/mine", 1), 0);
    EXPECT_EQ(ExpandEnvironment(u"%SystemRoot% %windir%", 260), u"/mine D:\\WINNT");
    ::unsetenv("SystemRoot");
}

TEST(NoRegistryEnvironment, WithoutARegistryTheNamesStay)
{
    EXPECT_EQ(ExpandEnvironment(u"%SystemRoot%\\a %SystemDrive%", 260), u"%SystemRoot%\\a %SystemDrive%");
}
