// The digests of files.
#include <VyrHostPlatform/FileHash.h>

#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <string>

using VyrHostPlatform::FileHash;
using VyrHostPlatform::Sha256Of;
using VyrTests::ScratchFolder;

// The first three digests are those of the standard's own examples.
TEST(FileHash, DigestsAreThoseOfTheStandard)
{
    const ScratchFolder folder;
    EXPECT_EQ(Sha256Of(folder.WriteFile(u"empty")).digits,
              "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
    EXPECT_EQ(Sha256Of(folder.WriteFile(u"abc", "abc")).digits,
              "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
    EXPECT_EQ(Sha256Of(folder.WriteFile(u"million", std::string(1000000, 'a'))).digits,
              "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0");
}

TEST(FileHash, AFileThatIsMissingGivesTheSystemsCode)
{
    const ScratchFolder folder;
    const FileHash hash = Sha256Of(folder.Path(u"missing"));
    EXPECT_EQ(hash.digits, "");
    EXPECT_NE(hash.error, 0U);
}

TEST(FileHash, AFolderHasNone)
{
    const ScratchFolder folder;
    EXPECT_EQ(Sha256Of(folder.Path()).digits, "");
}
