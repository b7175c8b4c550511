// Unblocking on Linux: every form of the mark, exactly the same mode and attributes afterwards, and an ordinary user.
#include <VyrLibraryFuncs/metadata/UnblockFuncs.h>

#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>
#include <tests/support/linux/Unprivileged.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using VyrLibraryFuncs::UnblockFuncs;
using VyrTests::ScratchFolder;

namespace {

mode_t ModeOf(const std::filesystem::path& path)
{
    struct stat status
    {};
    EXPECT_EQ(stat(path.c_str(), &status), 0);
    return status.st_mode & 07777;
}

std::string Attribute(const std::filesystem::path& path, const char* name)
{
    std::string value(256, '\0');
    const ssize_t size = getxattr(path.c_str(), name, value.data(), value.size());
    value.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    return value;
}

constexpr const char* forms[] = {"user.DosStream.Zone.Identifier:$DATA", "user.DosStream.Zone.Identifier",
                                 "user.Zone.Identifier", "user.xdg.origin.url", "user.xdg.referrer.url"};

void Mark(const std::filesystem::path& path)
{
    for (const char* const form : forms)
        ASSERT_EQ(setxattr(path.c_str(), form, "value", 5, 0), 0);
}

} // namespace

TEST(UnblockFuncsLinux, ModeAndAttributesOfAReadOnlyFileAreTheVeryOnes)
{
    const ScratchFolder scratch;
    const std::filesystem::path path = VyrTests::ToStdPath(scratch.WriteFile(u"a"));
    for (const mode_t mode : {0444U, 0400U, 0464U, 0555U, 0644U, 0666U}) {
        for (const std::string& kept : {std::string(), std::string("0x21"), std::string("0x1")}) {
            ASSERT_EQ(chmod(path.c_str(), 0666), 0);
            Mark(path);
            scratch.WriteFile(u"a:Zone.Identifier", "[ZoneTransfer]");
            removexattr(path.c_str(), "user.DOSATTRIB");
            if (!kept.empty()) {
                ASSERT_EQ(setxattr(path.c_str(), "user.DOSATTRIB", kept.data(), kept.size(), 0), 0);
            }
            ASSERT_EQ(chmod(path.c_str(), mode), 0);
            EXPECT_EQ(UnblockFuncs::DeleteZoneId(VyrTests::FromStdPath(path)), 1);
            EXPECT_EQ(ModeOf(path), mode);
            EXPECT_EQ(Attribute(path, "user.DOSATTRIB"), kept);
            for (const char* const form : forms)
                EXPECT_EQ(Attribute(path, form), "") << form;
            EXPECT_FALSE(scratch.Has(u"a:Zone.Identifier"));
        }
    }
}

TEST(UnblockFuncsLinux, OwnerUnblocksAReadOnlyFile)
{
    const VyrTests::Unprivileged user;
    ASSERT_TRUE(user.IsDone());
    std::string name = (std::filesystem::temp_directory_path() / "vyr-own-XXXXXX").native();
    const int file = mkstemp(name.data());
    ASSERT_GE(file, 0);
    close(file);
    Mark(name);
    ASSERT_EQ(chmod(name.c_str(), 0444), 0);
    EXPECT_EQ(UnblockFuncs::DeleteZoneId(VyrTests::FromStdPath(name)), 1);
    EXPECT_EQ(ModeOf(name), 0444U);
    EXPECT_EQ(Attribute(name, forms[0]), "");
    unlink(name.c_str());
}

TEST(UnblockFuncsLinux, ReadOnlyFileOfAnotherUserStaysMarked)
{
    const ScratchFolder scratch;
    const std::filesystem::path path = VyrTests::ToStdPath(scratch.WriteFile(u"a"));
    Mark(path);
    ASSERT_EQ(chmod(VyrTests::ToStdPath(scratch.Path()).c_str(), 0755), 0);
    ASSERT_EQ(chmod(path.c_str(), 0444), 0);
    {
        const VyrTests::Unprivileged user;
        ASSERT_TRUE(user.IsDone());
        EXPECT_EQ(UnblockFuncs::DeleteZoneId(VyrTests::FromStdPath(path)), 0);
    }
    EXPECT_EQ(ModeOf(path), 0444U);
    EXPECT_EQ(Attribute(path, forms[0]), "value");
}
