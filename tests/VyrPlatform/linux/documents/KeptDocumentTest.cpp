// How an old document is kept on Linux: as another name of the same file where nobody can be writing to it.
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>
#include <tests/support/linux/MemoryFolder.h>

#include <VyrPlatform/documents/DocumentProperties.h>
#include <VyrPlatform/documents/PropertyStorage.h>
#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/linux/files/Descriptor.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

using namespace VyrTests;
using VyrPlatform::Descriptor;
using VyrPlatform::DocumentReplacement;
using VyrPlatform::LookAtFile;

namespace Result = VyrPlatform::PropertyStorage::Result;
namespace fs = std::filesystem;

namespace {

class KeptDocument : public testing::Test
{
protected:
    DocumentReplacement Replacement() const
    {
        return DocumentReplacement::WithContent(path, scratch.WriteFile(u"new", "new"));
    }

    ScratchFolder scratch;
    CString path = scratch.WriteFile(u"a.doc", "old");
    std::string native = ToStdPath(path).string();
};

bool HasLeases(const std::string& path)
{
    const Descriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    return fcntl(file.Get(), F_SETLEASE, F_RDLCK) == 0;
}

} // namespace

TEST_F(KeptDocument, IsTheOldFileItselfByAnotherName)
{
    if (!HasLeases(native))
        GTEST_SKIP() << "the file system has no leases";
    const auto identity = LookAtFile(path).identity;
    DocumentReplacement replacement = Replacement();
    ASSERT_EQ(replacement.Keep(scratch.Path(u"kept")), Result::ok);
    ASSERT_EQ(replacement.Commit(), Result::ok);
    EXPECT_EQ(LookAtFile(scratch.Path(u"kept")).identity, identity);
    EXPECT_EQ(LookAtFile(scratch.Path(u"kept")).links, 1U);
    EXPECT_EQ(LookAtFile(path).links, 1U);
    EXPECT_EQ(scratch.ReadFile(u"a.doc"), "new");
}

TEST_F(KeptDocument, IsACopyForItsOwnerAloneOnAnotherFileSystem)
{
    const MemoryFolder other;
    const fs::path kept = other.Path() / "kept";
    if (LookAtFile(path).identity.device == LookAtFile(CString(kept.parent_path().u16string())).identity.device)
        GTEST_SKIP() << "there is no second file system";
    DocumentReplacement replacement = Replacement();
    ASSERT_EQ(replacement.Keep(CString(kept.u16string())), Result::ok);
    ASSERT_EQ(replacement.Commit(), Result::ok);
    std::string content;
    std::getline(std::ifstream(kept), content);
    EXPECT_EQ(content, "old");
    EXPECT_EQ(fs::status(kept).permissions(), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(scratch.ReadFile(u"a.doc"), "new");
}

TEST_F(KeptDocument, AndItsReplacementLeaveNoFileOpen)
{
    const MemoryFolder other;
    const auto countOpen = [] {
        return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
    };
    const auto before = countOpen();
    for (const fs::path& kept : {ToStdPath(scratch.Path(u"kept")), other.Path() / "kept"}) {
        DocumentReplacement replacement = Replacement();
        ASSERT_EQ(replacement.Keep(CString(kept.u16string())), Result::ok);
        ASSERT_EQ(replacement.Commit(), Result::ok);
    }
    EXPECT_EQ(countOpen(), before);
}

TEST_F(KeptDocument, ThatAnotherProgramIsAboutToWriteToStaysAndIsNotKept)
{
    if (!HasLeases(native))
        GTEST_SKIP() << "the file system has no leases";
    DocumentReplacement replacement = Replacement();
    ASSERT_EQ(replacement.Keep(scratch.Path(u"kept")), Result::ok);
    EXPECT_EQ(open(native.c_str(), O_WRONLY | O_CLOEXEC | O_NONBLOCK), -1);
    EXPECT_EQ(errno, EWOULDBLOCK);
    EXPECT_EQ(replacement.Commit(), Result::shareViolation);
    EXPECT_EQ(scratch.ReadFile(u"a.doc"), "old");
    EXPECT_FALSE(fs::exists(ToStdPath(scratch.Path(u"kept"))));
    EXPECT_EQ(LookAtFile(path).links, 1U);
}
