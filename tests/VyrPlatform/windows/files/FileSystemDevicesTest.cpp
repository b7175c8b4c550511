// Devices on Windows, which have names in every folder.
#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/files/FileSystem.h>

#include <gtest/gtest.h>

namespace FileSystem = VyrPlatform::FileSystem;

TEST(FileSystemDevices, NullDeviceIsOtherInEveryFolder)
{
    for (const CString path : {u"NUL", uR"(C:\NUL)"}) {
        EXPECT_EQ(FileSystem::Query(path).kind, FileSystem::Kind::Other);
        EXPECT_TRUE(FileSystem::Exists(path));
        EXPECT_FALSE(FileSystem::IsFolder(path));
    }
}

TEST(FileSystemDevices, NullDeviceDoesNotOpenAsAFile)
{
    for (const CString path : {u"NUL", uR"(C:\NUL)", uR"(\\.\NUL)"}) {
        const VyrPlatform::FileReader reader(path);
        EXPECT_FALSE(reader.IsOpen());
        EXPECT_NE(reader.Error(), 0U);
    }
}
