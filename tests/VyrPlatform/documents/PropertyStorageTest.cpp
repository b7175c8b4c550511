// The properties of a compound document before and after a write.
#include <tests/support/ComThread.h>
#include <tests/support/CompoundDocument.h>
#include <tests/support/FileState.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/documents/PropertyStorage.h>

#include <gtest/gtest.h>

#include <fstream>

using VyrPlatform::PropertyStorage::Document;
using VyrPlatform::PropertyStorage::IsFailure;
using VyrPlatform::PropertyStorage::PropertySet;
using VyrPlatform::PropertyStorage::PropertyWrite;
using VyrPlatform::PropertyStorage::ReadClassId;
using VyrPlatform::PropertyStorage::StandardSet;
using VyrTests::BuildPropertySet;
using VyrTests::BuildSummary;
using VyrTests::CompoundDocument;
using VyrTests::documentSummaryName;
using VyrTests::LittleEndian;
using VyrTests::PropertyMap;
using VyrTests::ReadEntry;
using VyrTests::ReadProperties;
using VyrTests::ReadStreams;
using VyrTests::StoredByteText;
using VyrTests::StoredCodePage;
using VyrTests::StoredNumber;
using VyrTests::StoredTime;
using VyrTests::StoredWideText;
using VyrTests::summaryName;

namespace Result = VyrPlatform::PropertyStorage::Result;

namespace {

constexpr std::uint32_t title = 2;
constexpr std::uint32_t author = 4;

PROPVARIANT WideText(std::u16string& text)
{
    PROPVARIANT value{};
    value.vt = VT_LPWSTR;
    value.pwszVal = reinterpret_cast<decltype(value.pwszVal)>(text.data());
    return value;
}

PROPVARIANT ByteText(std::string& bytes)
{
    PROPVARIANT value{};
    value.vt = VT_LPSTR;
    value.pszVal = bytes.data();
    return value;
}

/// A document with a summary, another standard set, streams of both kinds and a storage.
CompoundDocument SampleDocument()
{
    CompoundDocument document;
    document.streams[summaryName] = BuildSummary({{1, StoredCodePage(1252)},
                                                  {title, StoredByteText("Old title")},
                                                  {author, StoredByteText("Jos\xE9")},
                                                  {12, StoredTime(0x01C2'3456'789A'BCDE)},
                                                  {14, StoredNumber(7)}});
    document.streams[documentSummaryName] =
        BuildPropertySet({{VyrTests::documentFormatBytes, {{1, StoredCodePage(1252)}, {15, StoredByteText("Firm")}}}});
    document.streams[u"Small"] = "a few bytes";
    document.streams[u"Large"] = std::string(70'000, 'x') + "end";
    document.streams[u"Empty"] = "";
    document.folderStreams[u"Inner"] = std::string(5'000, 'i');
    return document;
}

class PropertyStorage : public testing::Test
{
protected:
    CString Place(const CompoundDocument& document) { return scratch.WriteFile(u"a.doc", document.Bytes()); }

    /// Writes to the summary of the document; the result code of the first step that failed.
    std::uint32_t Write(const CString& path, std::vector<PropertyWrite> properties)
    {
        const Document document = Document::OpenCompound(path);
        if (!document.IsOpen())
            return document.GetError();
        const PropertySet set = PropertySet::Open(document.Get(), StandardSet::Summary);
        return set.IsOpen() ? set.Write(properties) : set.GetError();
    }
    std::uint32_t WriteTitle(const CString& path, std::u16string text)
    {
        const PROPVARIANT value = WideText(text);
        return Write(path, {{title, &value}});
    }

    PropertyMap Summary() { return ReadProperties(Streams()[summaryName]); }
    std::map<std::u16string, std::string> Streams() { return ReadStreams(scratch.ReadFile(u"a.doc")); }

    void ExpectAllElseIsKept(const CompoundDocument& before)
    {
        auto expected = before.streams;
        auto streams = Streams();
        expected.erase(summaryName);
        streams.erase(summaryName);
        EXPECT_EQ(streams, expected);
        const std::string now = scratch.ReadFile(u"a.doc");
        EXPECT_EQ(ReadEntry(now, u"Folder"), ReadEntry(before.Bytes(), u"Folder"));
    }

    VyrTests::ComThread com;
    VyrTests::ScratchFolder scratch;
};

} // namespace

TEST_F(PropertyStorage, WrittenTextReplacesTheOldOneAndNothingElseChanges)
{
    const CompoundDocument document = SampleDocument();
    PropertyMap expected = ReadProperties(document.streams.at(summaryName));
    expected[title] = StoredWideText(u"Новый 日本 \xD83D\xDE00");
    EXPECT_EQ(WriteTitle(Place(document), u"Новый 日本 \xD83D\xDE00"), Result::ok);
    EXPECT_EQ(Summary(), expected);
    ExpectAllElseIsKept(document);
}

TEST_F(PropertyStorage, ByteTextIsStoredInTheSetsCodePage)
{
    std::string text = "Plain title";
    const PROPVARIANT value = ByteText(text);
    EXPECT_EQ(Write(Place(SampleDocument()), {{title, &value}}), Result::ok);
    EXPECT_EQ(Summary()[title], StoredByteText("Plain title"));
}

TEST_F(PropertyStorage, TypesOfFixedSizeAreStoredAsTheyAre)
{
    PROPVARIANT number{};
    number.vt = VT_I4;
    number.lVal = -5;
    PROPVARIANT small{};
    small.vt = VT_I2;
    small.iVal = 9;
    PROPVARIANT time{};
    time.vt = VT_FILETIME;
    time.filetime = {0x11223344, 0x01D5'0000};
    EXPECT_EQ(Write(Place(SampleDocument()), {{14, &number}, {100, &small}, {12, &time}}), Result::ok);
    PropertyMap summary = Summary();
    EXPECT_EQ(summary[14], StoredNumber(-5));
    EXPECT_EQ(summary[100].substr(0, 6), LittleEndian(2U) + LittleEndian(std::uint16_t{9}));
    EXPECT_EQ(summary[12], StoredTime(0x01D5'0000'1122'3344));
    EXPECT_EQ(summary[title], StoredByteText("Old title"));
}

TEST_F(PropertyStorage, BytesAreStoredWithTheirCount)
{
    std::uint8_t bytes[] = {0, 1, 0xFF, 0, 5};
    PROPVARIANT blob{};
    blob.vt = VT_BLOB;
    blob.blob = {sizeof bytes, bytes};
    EXPECT_EQ(Write(Place(SampleDocument()), {{100, &blob}}), Result::ok);
    EXPECT_EQ(Summary()[100].substr(0, 13), LittleEndian(65U) + LittleEndian(5U) + std::string("\0\1\xFF\0\5", 5));
    EXPECT_EQ(Summary()[title], StoredByteText("Old title"));
}

TEST_F(PropertyStorage, TextsOfAnyLengthFitAndTheDocumentStaysWhole)
{
    const CompoundDocument document = SampleDocument();
    const CString path = Place(document);
    for (const std::size_t length : {0U, 1U, 30U, 31U, 200U, 1'700U, 2'100U, 5'000U, 40'000U, 3U, 60'000U}) {
        const std::u16string text(length, u'字');
        EXPECT_EQ(WriteTitle(path, text), Result::ok) << length;
        EXPECT_EQ(Summary()[title], StoredWideText(text)) << length;
        EXPECT_EQ(Summary()[author], StoredByteText("Jos\xE9")) << length;
        ExpectAllElseIsKept(document);
    }
}

TEST_F(PropertyStorage, DocumentWithLargeSectorsIsWritten)
{
    CompoundDocument document = SampleDocument();
    document.sectorSize = 4096;
    const CString path = Place(document);
    for (const std::size_t length : {5U, 300U, 9'000U}) {
        const std::u16string text(length, u'y');
        EXPECT_EQ(WriteTitle(path, text), Result::ok) << length;
        EXPECT_EQ(Summary()[title], StoredWideText(text)) << length;
        ExpectAllElseIsKept(document);
    }
}

TEST_F(PropertyStorage, EmptyValueRemovesTheProperty)
{
    PROPVARIANT nothing{};
    EXPECT_EQ(Write(Place(SampleDocument()), {{author, &nothing}, {77, &nothing}}), Result::ok);
    // Wine stores the value as one that is empty; both read as none.
    const PropertyMap summary = Summary();
    for (const std::uint32_t id : {author, 77U}) {
        const auto found = summary.find(id);
        EXPECT_TRUE(found == summary.end() || found->second.starts_with(LittleEndian(0U))) << id;
    }
    EXPECT_EQ(summary.at(title), StoredByteText("Old title"));
}

TEST_F(PropertyStorage, IdsThatDescribeTheSetAreRefused)
{
    const CompoundDocument document = SampleDocument();
    const CString path = Place(document);
    std::u16string text = u"x";
    const PROPVARIANT value = WideText(text);
    for (const std::uint32_t id : {0U, 1U, 0x80000000U, 0x80000003U, 0xFFFFFFFEU})
        EXPECT_EQ(Write(path, {{id, &value}}), Result::invalidParameter) << id;
    EXPECT_EQ(Write(path, {{0xFFFFFFFF, &value}}), Result::ok);
    EXPECT_EQ(Write(path, {{title, nullptr}}), Result::invalidParameter);
    EXPECT_EQ(Summary(), ReadProperties(document.streams.at(summaryName)));
}

TEST_F(PropertyStorage, DocumentWithoutTheSetIsOpenedButNotTheSet)
{
    CompoundDocument document = SampleDocument();
    document.streams.erase(summaryName);
    const CString path = Place(document);
    EXPECT_EQ(WriteTitle(path, u"x"), Result::fileNotFound);
    EXPECT_EQ(scratch.ReadFile(u"a.doc"), document.Bytes());
}

TEST_F(PropertyStorage, TheOtherStandardSetIsWrittenToo)
{
    const CompoundDocument before = SampleDocument();
    const CString path = Place(before);
    {
        const Document document = Document::OpenCompound(path);
        const PropertySet set = PropertySet::Open(document.Get(), StandardSet::DocumentSummary);
        ASSERT_TRUE(set.IsOpen());
        PROPVARIANT nothing{};
        const PropertyWrite writes[] = {{15, &nothing}};
        EXPECT_EQ(set.Write(writes), Result::ok);
    }
    const PropertyMap now = ReadProperties(Streams()[documentSummaryName], VyrTests::documentFormatBytes);
    const auto company = now.find(15);
    EXPECT_TRUE(company == now.end() || company->second.starts_with(LittleEndian(0U)));
    EXPECT_EQ(Streams()[summaryName], before.streams.at(summaryName));
}

TEST_F(PropertyStorage, SeveralWritesThroughOneDocumentAddUp)
{
    const CString path = Place(SampleDocument());
    {
        const Document document = Document::OpenCompound(path);
        const PropertySet set = PropertySet::Open(document.Get(), StandardSet::Summary);
        ASSERT_TRUE(set.IsOpen());
        std::u16string first = u"one";
        std::u16string second = u"two";
        const PROPVARIANT firstValue = WideText(first);
        const PROPVARIANT secondValue = WideText(second);
        const PropertyWrite writeTitle[] = {{title, &firstValue}};
        const PropertyWrite writeAuthor[] = {{author, &secondValue}};
        EXPECT_EQ(set.Write(writeTitle), Result::ok);
        EXPECT_EQ(set.Write(writeAuthor), Result::ok);
        EXPECT_EQ(set.Write({}), Result::ok);
    }
    EXPECT_EQ(Summary()[title], StoredWideText(u"one"));
    EXPECT_EQ(Summary()[author], StoredWideText(u"two"));
}

TEST_F(PropertyStorage, OtherFilesAreNotOpened)
{
    EXPECT_EQ(WriteTitle(scratch.Path(u"missing.doc"), u"x"), Result::fileNotFound);
    std::string garbage = SampleDocument().Bytes();
    std::fill(garbage.begin() + 512, garbage.end(), '\x55');
    for (const std::string& bytes : {std::string("text"), std::string(), garbage}) {
        const CString path = scratch.WriteFile(u"a.doc", bytes);
        EXPECT_TRUE(IsFailure(WriteTitle(path, u"x")));
        EXPECT_EQ(scratch.ReadFile(u"a.doc"), bytes);
    }
    EXPECT_TRUE(IsFailure(WriteTitle(scratch.MakeFolder(u"folder"), u"x")));
}

TEST_F(PropertyStorage, ReadOnlyDocumentIsRefused)
{
    const CompoundDocument document = SampleDocument();
    const CString path = Place(document);
    VyrTests::SetReadOnly(path, true);
    if (!IsFailure(WriteTitle(path, u"x")) && std::ofstream(VyrTests::ToStdPath(path), std::ios::app))
        GTEST_SKIP() << "Wine, run by the superuser, opens read-only files for writing";
    EXPECT_EQ(scratch.ReadFile(u"a.doc"), document.Bytes());
    VyrTests::SetReadOnly(path, false);
    EXPECT_EQ(WriteTitle(path, u"x"), Result::ok);
}

TEST_F(PropertyStorage, DocumentThatIsOpenElsewhereIsNotOpenedASecondTime)
{
    const CString path = Place(SampleDocument());
    const Document first = Document::OpenCompound(path);
    ASSERT_TRUE(first.IsOpen());
    EXPECT_TRUE(IsFailure(WriteTitle(path, u"x")));
}

TEST_F(PropertyStorage, HandlerThatIsNotRegisteredOpensNothing)
{
    const GUID unknown{0x12345678, 0x1234, 0x5678, {1, 2, 3, 4, 5, 6, 7, 8}};
    const Document document = Document::OpenByHandler(scratch.WriteFile(u"a.txt", "text"), unknown);
    EXPECT_FALSE(document.IsOpen());
    EXPECT_EQ(document.GetError(), Result::classNotRegistered);
}

TEST(PropertyStorageClassId, IsANumberInBraces)
{
    GUID id{};
    ASSERT_TRUE(ReadClassId(u"{993BE281-6695-4ba5-8A2A-7AACBFAAB69E}", id));
    const GUID expected{0x993BE281, 0x6695, 0x4BA5, {0x8A, 0x2A, 0x7A, 0xAC, 0xBF, 0xAA, 0xB6, 0x9E}};
    EXPECT_TRUE(id == expected);
    for (const char16_t* const text :
         {u"{993BE281-6695-4BA5-8A2A-7AACBFAAB69}", u"{993BE281-6695-4BA5-8A2A-7AACBFAAB69E",
          u"{G93BE281-6695-4BA5-8A2A-7AACBFAAB69E}", u"993BE281-6695-4BA5-8A2A-7AACBFAAB69E",
          u"{993BE281 6695 4BA5 8A2A 7AACBFAAB69E}", u"{}", u"no class", u""})
        EXPECT_FALSE(ReadClassId(text, id)) << VyrTests::ToStdPath(text);
}
