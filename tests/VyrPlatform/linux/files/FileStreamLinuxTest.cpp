// FileStream on Linux: pipes and devices, the disk that is full, and the mode of new files.
#include <VyrPlatform/files/CFileException.h>
#include <VyrPlatform/files/CStdioFile.h>
#include <VyrPlatform/files/FileStream.h>

#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>
#include <sys/stat.h>

using VyrPlatform::FileStream;
using VyrTests::ScratchFolder;

namespace {

/// Lets no file of this process grow beyond `size`, until its end of life.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t size) : m_formerHandler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit limit{size, m_former.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_former);
        std::signal(SIGXFSZ, m_formerHandler);
    }

private:
    rlimit m_former{};
    void (*m_formerHandler)(int);
};

} // namespace

TEST(FileStreamLinux, PipeOrDeviceIsNeitherOpenedNorWaitedFor)
{
    const ScratchFolder scratch;
    const CString pipe = scratch.Path(u"pipe");
    ASSERT_EQ(mkfifo(VyrTests::ToStdPath(pipe).c_str(), 0600), 0);
    FileStream stream;
    for (const CString& path : {pipe, CString(u"/dev/null"), CString(u"/dev/zero")})
        for (const auto access : {FileStream::Access::Read, FileStream::Access::Write, FileStream::Access::ReadWrite}) {
            EXPECT_NE(stream.Open(path, access, FileStream::Creation::CreateEmpty, {}), 0U);
            EXPECT_FALSE(stream.IsOpen());
        }
}

TEST(FileStreamLinux, NewFileHasTheUsualMode)
{
    const ScratchFolder scratch;
    const mode_t mask = umask(027);
    FileStream stream;
    EXPECT_EQ(stream.Open(scratch.Path(u"a"), FileStream::Access::Write, FileStream::Creation::CreateEmpty, {}), 0U);
    umask(mask);
    struct stat status;
    ASSERT_EQ(stat(VyrTests::ToStdPath(scratch.Path(u"a")).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0640U);
}

TEST(FileStreamLinux, FailureToWriteIsReportedByTheWritingCall)
{
    const ScratchFolder scratch;
    CStdioFile file;
    ASSERT_TRUE(file.Open(scratch.Path(u"a").GetString(), CFile::modeCreate | CFile::modeWrite));
    const FileSizeLimit limit(10);
    file.Write("0123456789abcdef", 16);
    try {
        file.Close();
        ADD_FAILURE() << "six bytes are lost, and nobody was told";
    } catch (const CFileException& exception) {
        EXPECT_EQ(exception.m_cause, CFileException::diskFull);
        EXPECT_EQ(exception.m_strFileName, scratch.Path(u"a"));
    }
    EXPECT_THROW(file.Write("a", 1), CFileException) << "it is closed all the same";
    EXPECT_EQ(scratch.ReadFile(u"a"), "0123456789");
}

TEST(FileStreamLinux, DestructorAndAbortDiscardBytesThatCannotBeWritten)
{
    const ScratchFolder scratch;
    {
        CStdioFile file;
        ASSERT_TRUE(file.Open(scratch.Path(u"a").GetString(), CFile::modeCreate | CFile::modeWrite));
        file.Write("0123456789abcdef", 16);
        const FileSizeLimit limit(10);
        // The limit is removed after the file.
        CStdioFile other;
        ASSERT_TRUE(other.Open(scratch.Path(u"b").GetString(), CFile::modeCreate | CFile::modeWrite));
        other.Write("0123456789abcdef", 16);
        file.Abort();
    }
    EXPECT_EQ(scratch.ReadFile(u"a"), "");
    EXPECT_EQ(scratch.ReadFile(u"b"), "0123456789");
}
