// Attributes and times on Linux: the mode, permissions, and file systems that store less.
#include <VyrPlatform/files/ExactState.h>
#include <VyrPlatform/files/FileAttributes.h>
#include <VyrPlatform/files/FileTimes.h>

#include <tests/support/FileMoments.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>
#include <tests/support/linux/MountedFolder.h>
#include <tests/support/linux/Unprivileged.h>

#include <gtest/gtest.h>

#include <cerrno>
#include <fstream>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace FileAttributes = VyrPlatform::FileAttributes;
namespace FileTimes = VyrPlatform::FileTimes;
using VyrTests::MountedFolder;
using VyrTests::ScratchFolder;
using VyrTests::TicksOfUnixTime;

namespace {

constexpr std::uint32_t readOnly = 0x1;
constexpr std::uint32_t hidden = 0x2;
constexpr std::uint32_t folder = 0x10;
constexpr std::uint32_t normal = 0x80;

mode_t ModeOf(const CString& path)
{
    struct stat status
    {};
    EXPECT_EQ(stat(VyrTests::ToStdPath(path).c_str(), &status), 0);
    return status.st_mode & 07777;
}

void SetMode(const CString& path, mode_t mode)
{
    ASSERT_EQ(chmod(VyrTests::ToStdPath(path).c_str(), mode), 0);
}

/// The value of the file's extended attribute.
std::string Kept(const CString& path)
{
    std::string value(256, '\0');
    const ssize_t size = getxattr(VyrTests::ToStdPath(path).c_str(), "user.DOSATTRIB", value.data(), value.size());
    value.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    return value;
}

/// The process's umask until the end of its life.
class Umask
{
public:
    explicit Umask(mode_t mask) : m_before(umask(mask)) {}
    Umask(const Umask&) = delete;
    Umask& operator=(const Umask&) = delete;
    ~Umask() { umask(m_before); }

private:
    mode_t m_before;
};

} // namespace

TEST(FileAttributesLinux, ReadOnlyTakesAllThreeWritePermissions)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    for (const mode_t mode : {0666U, 0777U, 0600U, 0622U, 04755U}) {
        SetMode(path, mode);
        EXPECT_EQ(FileAttributes::Set(path, readOnly), 0U);
        EXPECT_EQ(ModeOf(path), mode & ~0222U);
        EXPECT_EQ(FileAttributes::Get(path), readOnly);
    }
}

TEST(FileAttributesLinux, WritePermissionsAreRestoredWhereReadingAndTheUmaskAllow)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    const struct
    {
        mode_t mask;
        mode_t before;
        mode_t after;
    } cases[] = {
        {022, 0444, 0644}, {002, 0444, 0664}, {000, 0444, 0666}, {000, 0400, 0600},  {000, 0440, 0660},
        {000, 0404, 0606}, {077, 0444, 0644}, {000, 0555, 0777}, {0777, 0444, 0644},
    };
    for (const auto& one : cases) {
        SetMode(path, one.before);
        {
            const Umask mask(one.mask);
            EXPECT_EQ(FileAttributes::Set(path, normal), 0U);
        }
        EXPECT_EQ(ModeOf(path), one.after) << std::oct << one.mask << ' ' << one.before;
        EXPECT_FALSE(FileAttributes::IsReadOnly(path));
    }
}

TEST(FileAttributesLinux, ModeStaysWhereTheReadOnlyStateDoes)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    const Umask mask(0);
    for (const mode_t mode : {0644U, 0600U, 0444U, 0464U, 0000U, 0200U}) {
        SetMode(path, mode);
        const std::uint32_t before = FileAttributes::Get(path) & ~hidden;
        EXPECT_EQ(FileAttributes::Set(path, before | hidden), 0U);
        EXPECT_EQ(ModeOf(path), mode);
        EXPECT_EQ(FileAttributes::Set(path, before), 0U);
        EXPECT_EQ(ModeOf(path), mode);
    }
}

TEST(FileAttributesLinux, ReadOnlyOfAFolderIsNeverItsMode)
{
    const ScratchFolder scratch;
    const CString path = scratch.MakeFolder(u"folder");
    SetMode(path, 0555);
    EXPECT_EQ(FileAttributes::Get(path), folder);
    EXPECT_EQ(FileAttributes::Set(path, folder | readOnly), 0U);
    EXPECT_EQ(FileAttributes::Get(path), folder | readOnly);
    EXPECT_EQ(ModeOf(path), 0555U);
    SetMode(path, 0755);
    EXPECT_EQ(FileAttributes::Set(path, folder | readOnly | hidden), 0U);
    EXPECT_EQ(ModeOf(path), 0755U);
}

TEST(FileAttributesLinux, ReadOnlyInSambasAttributeIsClearedWithoutTheMode)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    SetMode(path, 0640);
    ASSERT_EQ(setxattr(VyrTests::ToStdPath(path).c_str(), "user.DOSATTRIB", "0x23", 4, 0), 0);
    EXPECT_EQ(FileAttributes::Get(path), 0x23U);
    EXPECT_EQ(FileAttributes::Set(path, 0x22), 0U);
    EXPECT_EQ(Kept(path), "0x22");
    EXPECT_EQ(ModeOf(path), 0640U);
    EXPECT_FALSE(FileAttributes::IsReadOnly(path));
}

TEST(FileAttributesLinux, OwnerMayChangeThoseOfAReadOnlyFile)
{
    const ScratchFolder scratch;
    const VyrTests::Unprivileged user;
    ASSERT_TRUE(user.IsDone());
    const std::filesystem::path own = std::filesystem::temp_directory_path() / ("vyr-own-" + std::to_string(getpid()));
    std::filesystem::create_directory(own);
    const CString path = VyrTests::FromStdPath(own);
    SetMode(path, 0500);
    EXPECT_EQ(FileAttributes::Set(path, folder | hidden), 0U);
    EXPECT_EQ(FileAttributes::Get(path), folder | hidden);
    EXPECT_EQ(ModeOf(path), 0500U);
    std::filesystem::remove(own);
}

TEST(FileAttributesLinux, OfAFileThatOneMayNotChangeStay)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    SetMode(scratch.Path(), 0755);
    SetMode(path, 0444);
    const CString others = scratch.WriteFile(u"b");
    // Anyone may write it, but only its owner may change the mode and set times.
    SetMode(others, 0666);
    const std::optional<VyrPlatform::FileTicks> modified = FileTimes::GetModified(others);
    {
        const VyrTests::Unprivileged user;
        ASSERT_TRUE(user.IsDone());
        EXPECT_NE(FileAttributes::Set(path, hidden), 0U);
        EXPECT_NE(FileAttributes::Set(path, normal), 0U);
        EXPECT_NE(FileAttributes::Set(others, readOnly | hidden), 0U);
        EXPECT_NE(FileTimes::Write(others, {.created = TicksOfUnixTime(1), .modified = TicksOfUnixTime(2)}), 0U);
    }
    EXPECT_EQ(ModeOf(path), 0444U);
    EXPECT_EQ(Kept(path), "");
    EXPECT_EQ(ModeOf(others), 0666U);
    EXPECT_EQ(Kept(others), "") << "nothing is left of what was done before the failure";
    EXPECT_EQ(FileTimes::GetModified(others), modified);
}

TEST(FileAttributesLinux, OfAFileThatOneMayNotReadAreUnknownWhereSomeAreKept)
{
    const ScratchFolder scratch;
    const CString kept = scratch.WriteFile(u"kept");
    const CString plain = scratch.WriteFile(u"plain");
    SetMode(scratch.Path(), 0755);
    ASSERT_EQ(FileTimes::SetCreated(kept, TicksOfUnixTime(1'000'000'000)), 0U);
    ASSERT_EQ(FileAttributes::Set(kept, hidden), 0U);
    const std::string before = Kept(kept);
    for (const CString& path : {kept, plain})
        SetMode(path, 0200);
    const std::optional<VyrPlatform::FileTicks> created = FileTimes::GetCreated(plain);
    {
        const VyrTests::Unprivileged user;
        ASSERT_TRUE(user.IsDone());
        EXPECT_EQ(FileAttributes::Get(kept), FileAttributes::unknown);
        EXPECT_EQ(FileTimes::GetCreated(kept), std::nullopt);
        EXPECT_TRUE(FileAttributes::IsReadOnly(kept));
        EXPECT_EQ(FileAttributes::Set(kept, normal), static_cast<std::uint32_t>(EACCES));
        EXPECT_EQ(FileTimes::Write(kept, {.modified = TicksOfUnixTime(1)}), static_cast<std::uint32_t>(EACCES));
        std::uint32_t error = 0;
        using VyrPlatform::ExactState::Part;
        for (const Part part : {Part::Attributes, Part::Created}) {
            EXPECT_FALSE(VyrPlatform::ExactState::Read(kept, part, error));
            EXPECT_EQ(error, static_cast<std::uint32_t>(EACCES));
        }
        EXPECT_EQ(FileAttributes::Get(plain), normal) << "the names of what is kept may be read";
        EXPECT_EQ(FileTimes::GetCreated(plain), created);
        EXPECT_FALSE(FileAttributes::IsReadOnly(plain));
    }
    for (const CString& path : {kept, plain})
        SetMode(path, 0600);
    EXPECT_EQ(FileAttributes::Get(kept), hidden);
    EXPECT_EQ(Kept(kept), before);
}

TEST(FileAttributesLinux, LiftedReadOnlyPutsTheVeryModeBack)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    for (const mode_t mode : {0444U, 0400U, 0464U, 0000U, 04555U}) {
        SetMode(path, mode);
        {
            const FileAttributes::LiftedReadOnly lifted(path);
            EXPECT_EQ(ModeOf(path), mode | 0200U);
        }
        EXPECT_EQ(ModeOf(path), mode);
    }
}

TEST(FileAttributesLinux, FileSystemWithoutExtendedAttributesKeepsOnlyReadOnly)
{
    const MountedFolder disk(MountedFolder::Kind::Exfat);
    if (!disk.WhyNot().empty())
        GTEST_SKIP() << disk.WhyNot();
    const CString path = disk.Path(u"a");
    {
        const std::ofstream file(VyrTests::ToStdPath(path));
    }
    const std::uint32_t before = FileAttributes::Get(path);
    EXPECT_NE(FileAttributes::Set(path, before | hidden), 0U);
    EXPECT_NE(FileAttributes::Set(path, hidden | readOnly), 0U);
    EXPECT_EQ(FileAttributes::Get(path), before);
    const std::optional<VyrPlatform::FileTicks> modified = FileTimes::GetModified(path);
    EXPECT_NE(
        FileTimes::Write(path, {.created = TicksOfUnixTime(1'000'000'000), .modified = TicksOfUnixTime(1'000'000'000)}),
        0U);
    EXPECT_EQ(FileTimes::GetModified(path), modified);
    EXPECT_EQ(FileTimes::Write(path, {.modified = TicksOfUnixTime(1'000'000'000)}), 0U);
    EXPECT_EQ(FileTimes::GetModified(path), TicksOfUnixTime(1'000'000'000));
}

TEST(FileTimesLinux, OfAReadOnlyFileAreRefusedToRoot)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    SetMode(path, 0444);
    EXPECT_EQ(FileTimes::Write(path, {.modified = TicksOfUnixTime(1)}), static_cast<std::uint32_t>(EACCES));
    SetMode(path, 0644);
    ASSERT_EQ(setxattr(VyrTests::ToStdPath(path).c_str(), "user.DOSATTRIB", "0x21", 4, 0), 0);
    EXPECT_EQ(FileTimes::Write(path, {.modified = TicksOfUnixTime(1)}), static_cast<std::uint32_t>(EACCES));
}

TEST(FileTimesLinux, ThatTheFileSystemCannotHoldAreRefusedAndChangeNothing)
{
    // 9 October 1850.
    constexpr VyrPlatform::FileTicks early = TicksOfUnixTime(-3'762'806'400);
    constexpr VyrPlatform::FileTicks before = TicksOfUnixTime(1'700'000'000, 1'234'567);
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    VyrTests::StampFile(path, early, early);
    if (FileTimes::GetModified(path) == early)
        GTEST_SKIP() << "the file system holds the year 1850";
    VyrTests::StampFile(path, before, before);
    for (const FileTimes::NewTimes& times :
         {FileTimes::NewTimes{.modified = early}, FileTimes::NewTimes{.modified = before + 1, .accessed = early},
          FileTimes::NewTimes{.created = early, .modified = early}}) {
        EXPECT_EQ(FileTimes::Write(path, times), static_cast<std::uint32_t>(ERANGE));
        EXPECT_EQ(FileTimes::GetModified(path), before);
        EXPECT_EQ(FileTimes::GetAccessed(path), before);
        EXPECT_EQ(Kept(path), "");
    }
}

TEST(FileTimesLinux, BelowZeroAreRefused)
{
    const ScratchFolder scratch;
    const CString path = scratch.WriteFile(u"a");
    EXPECT_EQ(FileTimes::Write(path, {.modified = -1}), static_cast<std::uint32_t>(EINVAL));
    EXPECT_EQ(FileTimes::Write(path, {.created = -1}), static_cast<std::uint32_t>(EINVAL));
    EXPECT_EQ(FileTimes::Write(path, {.accessed = std::numeric_limits<std::int64_t>::min()}),
              static_cast<std::uint32_t>(EINVAL));
}
