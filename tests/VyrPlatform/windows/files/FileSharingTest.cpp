// What each kind of sharing allows others on Windows.
#include <VyrPlatform/files/CFile.h>

#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

namespace {

/// Whether `path` opens with `flags`, for all that this file does to hinder others.
bool Opens(const CString& path, std::uint32_t flags)
{
    CFile file;
    CFileException error;
    const bool isOpen = file.Open(path.GetString(), flags | CFile::shareDenyNone, &error) != 0;
    EXPECT_TRUE(isOpen || error.m_cause == CFileException::sharingViolation) << error.m_cause;
    return isOpen;
}

} // namespace

TEST(FileSharing, OthersMayDoEverythingNotDenied)
{
    const VyrTests::ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a", "content");
    struct
    {
        std::uint32_t sharing;
        bool mayRead;
        bool mayWrite;
    } const rows[] = {
        {CFile::shareCompat, false, false},   {CFile::shareExclusive, false, false},
        {CFile::shareDenyWrite, true, false}, {CFile::shareDenyRead, false, true},
        {CFile::shareDenyNone, true, true},
    };
    for (const auto& row : rows) {
        CFile file;
        ASSERT_TRUE(file.Open(path.GetString(), CFile::modeRead | row.sharing));
        EXPECT_EQ(Opens(path, CFile::modeRead), row.mayRead) << row.sharing;
        EXPECT_EQ(Opens(path, CFile::modeWrite), row.mayWrite) << row.sharing;
    }
}
