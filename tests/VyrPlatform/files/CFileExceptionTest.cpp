// The file exception: its causes, and that it is caught by value across libraries.
#include <VyrPlatform/files/CFileException.h>
#include <VyrPlatform/files/FileReader.h>
#include <VyrPlatform/files/FileSystem.h>

#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

namespace {

int CauseOfReading(const CString& path)
{
    return CFileException::OsErrorToException(static_cast<std::int32_t>(VyrPlatform::FileReader(path).Error()));
}

} // namespace

TEST(CFileException, HasNoValuesByDefault)
{
    const CFileException exception;
    EXPECT_EQ(exception.m_cause, CFileException::none);
    EXPECT_EQ(exception.m_lOsError, -1);
    EXPECT_EQ(exception.m_strFileName, u"");
}

TEST(CFileException, CausesHaveTheirNumbers)
{
    const int causes[] = {
        CFileException::none,          CFileException::genericException, CFileException::fileNotFound,
        CFileException::badPath,       CFileException::tooManyOpenFiles, CFileException::accessDenied,
        CFileException::invalidFile,   CFileException::removeCurrentDir, CFileException::directoryFull,
        CFileException::badSeek,       CFileException::hardIO,           CFileException::sharingViolation,
        CFileException::lockViolation, CFileException::diskFull,         CFileException::endOfFile};
    for (int number = 0; number < 15; ++number)
        EXPECT_EQ(causes[number], number);
}

TEST(CFileException, CauseBelongsToTheSystemsErrorCode)
{
    const VyrTests::ScratchFolder scratch;
    EXPECT_EQ(CauseOfReading(scratch.WriteFile(u"a")), CFileException::none);
    EXPECT_EQ(CauseOfReading(scratch.Path(u"missing")), CFileException::fileNotFound);
    EXPECT_EQ(CauseOfReading(scratch.MakeFolder(u"folder")), CFileException::accessDenied);
    EXPECT_EQ(CFileException::OsErrorToException(
                  static_cast<std::int32_t>(VyrPlatform::FileSystem::CreateFolder(scratch.Path(u"folder")))),
              CFileException::accessDenied);
    EXPECT_EQ(CFileException::OsErrorToException(-1), CFileException::genericException);
}

TEST(CFileException, IsThrownAndCaughtByValue)
{
    try {
        throw CFileException(CFileException::badPath, 3, u"/a/b");
    } catch (const CFileException& exception) {
        EXPECT_EQ(exception.m_cause, CFileException::badPath);
        EXPECT_EQ(exception.m_lOsError, 3);
        EXPECT_EQ(exception.m_strFileName, u"/a/b");
    }
}
