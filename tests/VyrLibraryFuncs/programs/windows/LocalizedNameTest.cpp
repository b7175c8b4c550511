// The localized name of a program, from the resources of a file.
#include <tests/support/ScratchRegistry.h>

#include <VyrLibraryFuncs/programs/ProgramsFeaturesFuncs.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/text/WindowsCString.h>

#include <gtest/gtest.h>

#include <windows.h>

using VyrLibraryFuncs::ProgramsFeaturesFuncs;

TEST(LocalizedName, IsTheTextInTheResourcesOfTheFile)
{
    const HMODULE library = ::LoadLibraryW(L"shell32.dll");
    ASSERT_TRUE(library);
    // The first text that the file has.
    wchar_t text[200] = {};
    int length = 0;
    UINT id = 0;
    while (length == 0 && ++id < 70'000)
        length = ::LoadStringW(library, id, text, 200);
    ASSERT_GT(length, 0);

    VyrTests::ScratchRegistry registry;
    CString reference;
    reference.Format(u"@%s,-%u", VyrLibraryUtils::FileUtils::GetSystemFilePath(u"shell32.dll"), id);
    registry.SetText(HKEY_LOCAL_MACHINE, u"SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Tool",
                     u"DisplayName_Localized", reference);
    const auto items = ProgramsFeaturesFuncs::GetProgramsFeaturesItemsList(2, 0);
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].DisplayNameLocalized, VyrPlatform::FromWide({text, static_cast<std::size_t>(length)}));
}
