// Document properties on Linux: how a document is replaced, and what its container and its set are left as.
#include <tests/support/CompoundDocument.h>
#include <tests/support/FileMoments.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/ScratchRegistry.h>
#include <tests/support/StdPath.h>

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/documents/PropertyStorage.h>

#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using VyrPlatform::PropertyStorage::Document;
using VyrPlatform::PropertyStorage::PropertySet;
using VyrPlatform::PropertyStorage::PropertyWrite;
using VyrPlatform::PropertyStorage::ReadClassId;
using VyrPlatform::PropertyStorage::StandardSet;
using VyrTests::BuildSummary;
using VyrTests::CompoundDocument;
using VyrTests::LittleEndian;
using VyrTests::PropertyMap;
using VyrTests::ReadProperties;
using VyrTests::ReadStreams;
using VyrTests::StoredByteText;
using VyrTests::StoredCodePage;
using VyrTests::StoredWideText;
using VyrTests::summaryName;

namespace Result = VyrPlatform::PropertyStorage::Result;
namespace fs = std::filesystem;

namespace {

constexpr std::uint32_t title = 2;

/// A property of a type that nobody knows, with bytes that are none of its business.
const std::string unknownValue = LittleEndian(0x0FF0U) + "whatever";

CompoundDocument DocumentIn(std::uint16_t codePage)
{
    CompoundDocument document;
    document.streams[summaryName] = BuildSummary(
        {{1, StoredCodePage(codePage)}, {title, StoredByteText("Old")}, {17, unknownValue}, {0, LittleEndian(0U)}});
    document.streams[u"Large"] = std::string(9'000, 'x');
    return document;
}

class ReplacedDocument : public testing::Test
{
protected:
    std::uint32_t Write(std::uint32_t id, const PROPVARIANT& value)
    {
        const Document document = Document::OpenCompound(path);
        if (!document.IsOpen())
            return document.GetError();
        const PropertySet set = PropertySet::Open(document.Get(), StandardSet::Summary);
        const PropertyWrite writes[] = {{id, &value}};
        return set.IsOpen() ? set.Write(writes) : set.GetError();
    }
    std::uint32_t WriteBytes(std::string text)
    {
        PROPVARIANT value{};
        value.vt = VT_LPSTR;
        value.pszVal = text.data();
        return Write(title, value);
    }
    PropertyMap Summary() { return ReadProperties(ReadStreams(scratch.ReadFile(u"a.doc"))[summaryName]); }
    /// Writing is refused with this code, and nothing has changed.
    void ExpectRefused(std::uint32_t code)
    {
        const std::string before = scratch.ReadFile(u"a.doc");
        EXPECT_EQ(WriteBytes("x"), code);
        EXPECT_EQ(scratch.ReadFile(u"a.doc"), before);
    }
    [[nodiscard]] std::size_t CountEntries() const
    {
        return static_cast<std::size_t>(std::distance(fs::directory_iterator(VyrTests::ToStdPath(scratch.Path())), {}));
    }

    VyrTests::ScratchFolder scratch;
    CString path = scratch.WriteFile(u"a.doc", DocumentIn(1252).Bytes());
    std::string native = VyrTests::ToStdPath(path).string();
};

} // namespace

TEST_F(ReplacedDocument, ByteTextIsConvertedToTheSetsCodePage)
{
    EXPECT_EQ(WriteBytes("Jos\u00E9"), Result::ok);
    EXPECT_EQ(Summary()[title], StoredByteText("Jos\xE9"));
    scratch.WriteFile(u"a.doc", DocumentIn(1251).Bytes());
    EXPECT_EQ(WriteBytes("\u041F\u0440"), Result::ok);
    EXPECT_EQ(Summary()[title], StoredByteText("\xCF\xF0"));
    scratch.WriteFile(u"a.doc", DocumentIn(1200).Bytes());
    EXPECT_EQ(WriteBytes("ab"), Result::ok);
    EXPECT_EQ(Summary()[title], LittleEndian(30U) + LittleEndian(6U) + std::string("a\0b\0\0\0\0\0", 8));
}

TEST_F(ReplacedDocument, ByteTextThatTheCodePageLacksIsStoredInUtf16)
{
    EXPECT_EQ(WriteBytes("\u65E5 a"), Result::ok);
    EXPECT_EQ(Summary()[title], StoredWideText(u"\u65E5 a"));
    // A letter for which the code page has only a similar one.
    EXPECT_EQ(WriteBytes("\u0100"), Result::ok);
    EXPECT_EQ(Summary()[title], StoredWideText(u"\u0100"));
}

TEST_F(ReplacedDocument, ValuesThatAreNotUnderstoodAreMovedUnchanged)
{
    EXPECT_EQ(WriteBytes("a much longer title than before"), Result::ok);
    const PropertyMap summary = Summary();
    EXPECT_EQ(summary.at(17), unknownValue);
    EXPECT_EQ(summary.at(0), LittleEndian(0U));
}

TEST_F(ReplacedDocument, SetWithAValueWithoutBytesIsWrittenAgainAndAgain)
{
    CompoundDocument document;
    document.streams[summaryName] =
        BuildSummary({{1, StoredCodePage(1252)}, {title, StoredByteText("Old")}, {99, std::string()}});
    scratch.WriteFile(u"a.doc", document.Bytes());
    PROPVARIANT number{};
    number.vt = VT_I4;
    EXPECT_EQ(Write(100, number), Result::ok);
    EXPECT_EQ(WriteBytes("New"), Result::ok);
    EXPECT_EQ(Summary()[title], StoredByteText("New"));
}

TEST_F(ReplacedDocument, FlagsAndRealNumbersAreStored)
{
    PROPVARIANT flag{};
    flag.vt = VT_BOOL;
    flag.boolVal = -1;
    PROPVARIANT real{};
    real.vt = VT_R8;
    real.dblVal = 1.5;
    EXPECT_EQ(Write(101, flag), Result::ok);
    EXPECT_EQ(Write(102, real), Result::ok);
    EXPECT_EQ(Summary()[101].substr(0, 6), LittleEndian(11U) + "\xFF\xFF");
    EXPECT_EQ(Summary()[102], LittleEndian(5U) + std::string("\0\0\0\0\0\0\xF8\x3F", 8));
    PROPVARIANT vector{};
    vector.vt = 0x1003;
    EXPECT_EQ(Write(103, vector), Result::invalidParameter);
}

TEST_F(ReplacedDocument, BytesMayBeNoneButNotMissing)
{
    PROPVARIANT blob{};
    blob.vt = VT_BLOB;
    EXPECT_EQ(Write(101, blob), Result::ok);
    EXPECT_EQ(Summary()[101], LittleEndian(65U) + LittleEndian(0U));
    blob.blob.cbSize = 5;
    EXPECT_EQ(Write(102, blob), Result::invalidParameter);
}

TEST_F(ReplacedDocument, ModeTimesAndExtendedAttributesStay)
{
    ASSERT_EQ(chmod(native.c_str(), 0640), 0);
    const bool hasAttribute = setxattr(native.c_str(), "user.note", "kept", 4, 0) == 0;
    const timespec times[] = {{1'000'000'000, 5}, {1'100'000'000, 123'456'789}};
    ASSERT_EQ(utimensat(AT_FDCWD, native.c_str(), times, 0), 0);
    struct stat before;
    struct stat after;
    ASSERT_EQ(stat(native.c_str(), &before), 0);
    EXPECT_EQ(WriteBytes("x"), Result::ok);
    ASSERT_EQ(stat(native.c_str(), &after), 0);
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_EQ(after.st_uid, before.st_uid);
    EXPECT_EQ(after.st_gid, before.st_gid);
    EXPECT_EQ(after.st_mtim.tv_sec, before.st_mtim.tv_sec);
    EXPECT_EQ(after.st_mtim.tv_nsec, before.st_mtim.tv_nsec);
    char value[8] = {};
    if (hasAttribute) {
        EXPECT_EQ(getxattr(native.c_str(), "user.note", value, sizeof value), 4);
    }
    EXPECT_EQ(CountEntries(), 1U) << "nothing is left beside the document";
}

TEST_F(ReplacedDocument, LinkLeadsToTheDocumentAfterwardsToo)
{
    fs::create_symlink(native, VyrTests::ToStdPath(scratch.Path(u"link.doc")));
    path = scratch.Path(u"link.doc");
    EXPECT_EQ(WriteBytes("x"), Result::ok);
    EXPECT_TRUE(fs::is_symlink(VyrTests::ToStdPath(path)));
    EXPECT_EQ(Summary()[title], StoredByteText("x"));
}

TEST_F(ReplacedDocument, IsRefusedWithSeveralHardLinks)
{
    fs::create_hard_link(native, VyrTests::ToStdPath(scratch.Path(u"b.doc")));
    ExpectRefused(Result::tooManyLinks);
}

TEST_F(ReplacedDocument, IsRefusedWhileItIsOpenForWriting)
{
    {
        const std::ofstream writer(native, std::ios::app);
        ExpectRefused(Result::shareViolation);
    }
    const std::ifstream reader(native);
    EXPECT_EQ(WriteBytes("x"), Result::ok) << "a reader keeps nobody from writing";
}

TEST_F(ReplacedDocument, IsRefusedWhileItIsLocked)
{
    const int file = open(native.c_str(), O_RDONLY | O_CLOEXEC);
    ASSERT_EQ(flock(file, LOCK_SH), 0);
    ExpectRefused(Result::lockViolation);
    close(file);
    const int region = open(native.c_str(), O_RDONLY | O_CLOEXEC);
    struct flock lock = {};
    lock.l_type = F_RDLCK;
    lock.l_whence = SEEK_SET;
    lock.l_len = 10;
    ASSERT_EQ(fcntl(region, F_OFD_SETLK, &lock), 0);
    ExpectRefused(Result::lockViolation);
    close(region);
    scratch.WriteFile(u".~lock.a.doc#");
    ExpectRefused(Result::lockViolation);
    fs::remove(VyrTests::ToStdPath(scratch.Path(u".~lock.a.doc#")));
    EXPECT_EQ(WriteBytes("x"), Result::ok);
}

TEST_F(ReplacedDocument, StaysOnAFullDisk)
{
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    struct rlimit before;
    ASSERT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    for (const rlim_t limit : {0U, 512U, 4'096U, 9'500U}) {
        struct rlimit now = before;
        now.rlim_cur = limit;
        const std::string old = scratch.ReadFile(u"a.doc");
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &now), 0);
        const std::uint32_t result = WriteBytes(std::string(30'000, 'x'));
        ASSERT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
        EXPECT_EQ(result, Result::mediumFull) << limit;
        EXPECT_EQ(scratch.ReadFile(u"a.doc"), old);
        EXPECT_EQ(CountEntries(), 1U);
    }
    std::signal(SIGXFSZ, handler);
}

TEST_F(ReplacedDocument, TableThatIsFullGetsAnotherSectorAndItsListToo)
{
    // The table of the first fills its sectors nearly, that of the second also the list of them in the header.
    for (const std::size_t sectors :
         {117U, 118U, 119U, 120U, 121U, 13'832U, 13'833U, 13'834U, 13'835U, 13'960U, 13'961U}) {
        CompoundDocument document = DocumentIn(1252);
        document.streams[u"Large"] = std::string(sectors * 512, 'l');
        scratch.WriteFile(u"a.doc", document.Bytes());
        const std::string text(20'000, 't');
        EXPECT_EQ(WriteBytes(text), Result::ok) << sectors;
        auto streams = ReadStreams(scratch.ReadFile(u"a.doc"));
        EXPECT_EQ(ReadProperties(streams[summaryName])[title], StoredByteText(text)) << sectors;
        EXPECT_TRUE(streams[u"Large"] == document.streams[u"Large"]) << sectors;
    }
}

TEST_F(ReplacedDocument, FileThatEndsWithinItsLastSectorIsWritten)
{
    std::string bytes = DocumentIn(1252).Bytes();
    bytes += std::string(100, '\0');
    scratch.WriteFile(u"a.doc", bytes);
    const std::string text(5'000, 't');
    EXPECT_EQ(WriteBytes(text), Result::ok);
    EXPECT_EQ(Summary()[title], StoredByteText(text));
}

TEST_F(ReplacedDocument, DamagedDocumentIsWrittenReadablyOrNotAtAll)
{
    const std::string sound = DocumentIn(1252).Bytes();
    int refused = 0;
    for (std::size_t at = 0; at < sound.size(); at += at < 120 ? 3 : 97) {
        std::string damaged = sound;
        damaged[at] = static_cast<char>(damaged[at] ^ 0xFF);
        scratch.WriteFile(u"a.doc", damaged);
        if (WriteBytes(std::string(100, 'x')) == Result::ok) {
            EXPECT_EQ(WriteBytes(std::string(9'000, 'y')), Result::ok) << at;
            continue;
        }
        ++refused;
        EXPECT_EQ(scratch.ReadFile(u"a.doc"), damaged) << at;
        EXPECT_EQ(CountEntries(), 1U);
    }
    EXPECT_GT(refused, 10);
}

TEST_F(ReplacedDocument, DamagedTablesAreRefused)
{
    const std::string sound = DocumentIn(1252).Bytes();
    const auto with = [&sound](std::size_t at, std::uint32_t number) {
        std::string bytes = sound;
        return bytes.replace(at, 4, LittleEndian(number));
    };
    // The sector size, the limit of small streams, where the directory and the tables stand, and how many there are.
    for (const std::string& damaged :
         {with(30, 0x00060010), with(56, 64), with(48, 0x00FFFFFF), with(44, 0x7FFFFFFF), with(68, 0),
          with(76, 0x00FFFFFF), with(60, 0x00FFFFFF), sound.substr(0, 1'024), sound.substr(0, sound.size() / 2)}) {
        scratch.WriteFile(u"a.doc", damaged);
        ExpectRefused(Result::damaged);
    }
}

TEST(PropertyStorageProgramId, IsLookedUpInTheRegistry)
{
    VyrTests::ScratchRegistry registry;
    registry.SetText(HKEY_CLASSES_ROOT, u"Maker.Handler\\CLSID", u"", u"{993BE281-6695-4BA5-8A2A-7AACBFAAB69E}");
    registry.SetText(HKEY_CLASSES_ROOT, u"Maker.Broken\\CLSID", u"", u"none");
    GUID id{};
    EXPECT_TRUE(ReadClassId(u"Maker.Handler", id));
    EXPECT_EQ(id.Data1, 0x993BE281);
    EXPECT_FALSE(ReadClassId(u"Maker.Broken", id));
}
