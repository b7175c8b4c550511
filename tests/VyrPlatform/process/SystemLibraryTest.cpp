// Libraries that are loaded at run time.
#include <tests/support/ScratchFolder.h>

#include <VyrPlatform/process/SystemLibrary.h>

#include <gtest/gtest.h>

using VyrPlatform::SystemLibrary;
using VyrTests::ScratchFolder;

TEST(SystemLibrary, OtherFilesAreNotLoadedAndHaveNoFunctions)
{
    const ScratchFolder scratch;
    for (const CString& path :
         {CString(), scratch.Path(u"missing.dll"), scratch.WriteFile(u"text.dll", "no library")}) {
        const SystemLibrary library(path);
        EXPECT_FALSE(library.IsLoaded());
        EXPECT_EQ(library.Find<int()>("anything"), nullptr);
    }
}
