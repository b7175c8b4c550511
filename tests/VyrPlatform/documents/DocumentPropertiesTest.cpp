// What documents tell of themselves, and how they get other properties: compound documents, on both systems.
#include <tests/support/ComThread.h>
#include <tests/support/CompoundDocument.h>
#include <tests/support/FileMoments.h>
#include <tests/support/FileState.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/documents/DocumentProperties.h>
#include <VyrPlatform/documents/PropertyStorage.h>
#include <VyrPlatform/files/FileTimes.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

using namespace VyrTests;
using VyrPlatform::CheckDocumentEdit;
using VyrPlatform::DocumentProperties;
using VyrPlatform::DocumentReplacement;
using VyrPlatform::PropertyEdit;
using VyrPlatform::ReadDocumentProperties;

namespace Id = VyrPlatform::SummaryId;
namespace Result = VyrPlatform::PropertyStorage::Result;

namespace {

constexpr GUID noHandler{};
constexpr std::uint64_t ticks = 0x01C2'3456'789A'BCDE;
constexpr std::uint32_t dictionary = 0;
constexpr std::uint32_t codePage = 1;
constexpr std::uint32_t company = 15;

/// Two sections: the second standard set, and the user's own properties with their names.
std::string DocumentSummary()
{
    return BuildPropertySet(
        {{documentFormatBytes,
          {{codePage, StoredCodePage(1252)}, {2, StoredByteText("Reports")}, {company, StoredByteText("Firm")}}},
         {userFormatBytes,
          {{dictionary, LittleEndian(1U) + LittleEndian(2U) + LittleEndian(4U) + std::string("Own\0", 4)},
           {codePage, StoredCodePage(1252)},
           {2, StoredByteText("mine")}}}});
}

CompoundDocument Sample()
{
    CompoundDocument document;
    document.streams[summaryName] = BuildSummary({{codePage, StoredCodePage(1252)},
                                                  {Id::title, StoredByteText("Old title")},
                                                  {Id::author, StoredByteText("Jos\xE9")},
                                                  {Id::revision, StoredByteText("7")},
                                                  {Id::created, StoredTime(ticks)},
                                                  {14, StoredNumber(3)},
                                                  {Id::thumbnail, LittleEndian(0x0047U) + LittleEndian(0U)}});
    document.streams[documentSummaryName] = DocumentSummary();
    document.streams[u"Body"] = std::string(9'000, 'b');
    document.folderStreams[u"Inner"] = "inner";
    return document;
}

PropertyEdit SetTitle(const CString& text)
{
    PropertyEdit edit;
    edit.values.emplace(Id::title, text);
    return edit;
}

class DocumentPropertiesOf : public testing::Test
{
protected:
    CString Place(const CompoundDocument& document) const { return scratch.WriteFile(u"a.doc", document.Bytes()); }
    std::uint32_t Apply(const CString& path, const PropertyEdit& edit) const
    {
        DocumentReplacement replacement = DocumentReplacement::WithProperties(path, edit, noHandler);
        return replacement.Error() != Result::ok ? replacement.Error() : replacement.Commit();
    }
    DocumentProperties Read(const CString& path) const
    {
        DocumentProperties properties;
        EXPECT_EQ(ReadDocumentProperties(path, noHandler, properties), Result::ok);
        return properties;
    }
    std::map<std::u16string, std::string> Streams() const { return ReadStreams(scratch.ReadFile(u"a.doc")); }
    /// How many files stand in the folder.
    std::ptrdiff_t Files() const
    {
        const std::filesystem::directory_iterator begin(ToStdPath(scratch.Path()));
        return std::distance(begin, std::filesystem::directory_iterator());
    }

    ComThread com;
    ScratchFolder scratch;
};

} // namespace

TEST_F(DocumentPropertiesOf, CompoundDocumentAreRead)
{
    const DocumentProperties properties = Read(Place(Sample()));
    EXPECT_EQ(properties.texts, (std::map<std::uint32_t, CString>{
                                    {Id::title, u"Old title"}, {Id::author, u"José"}, {Id::revision, u"7"}}));
    EXPECT_EQ(properties.times,
              (std::map<std::uint32_t, VyrPlatform::FileTicks>{{Id::created, static_cast<std::int64_t>(ticks)}}));
    EXPECT_EQ(properties.others, 4U) << "the pages, category, company, and one of the user's own";
    EXPECT_TRUE(properties.hasThumbnail);
    EXPECT_FALSE(properties.isSigned);
    EXPECT_FALSE(properties.isEncrypted);
    EXPECT_FALSE(properties.lacksCodePage);
}

TEST_F(DocumentPropertiesOf, CompoundDocumentWithoutTheUsersOwnAreCounted)
{
    CompoundDocument document = Sample();
    document.streams[documentSummaryName] = BuildPropertySet(
        {{documentFormatBytes, {{codePage, StoredCodePage(1252)}, {company, StoredByteText("Firm")}}}});
    EXPECT_EQ(Read(Place(document)).others, 2U) << "the pages and the company";
}

TEST_F(DocumentPropertiesOf, CompoundDocumentAreSetAndRemovedAndAllElseStays)
{
    const CompoundDocument before = Sample();
    const CString path = Place(before);
    StampFile(path, TicksOfUnixTime(1'000'000'000), TicksOfUnixTime(1'000'000'060));
    PropertyEdit edit = SetTitle(u"Größe");
    edit.values.emplace(Id::author, std::nullopt);
    edit.values.emplace(Id::created, std::nullopt);
    edit.values.emplace(Id::subject, u"Новый");
    ASSERT_EQ(CheckDocumentEdit(path, edit, noHandler), Result::ok);
    ASSERT_EQ(Apply(path, edit), Result::ok);
    EXPECT_EQ(VyrPlatform::FileTimes::GetModified(path), TicksOfUnixTime(1'000'000'000));
    PropertyMap expected = ReadProperties(before.streams.at(summaryName));
    expected.erase(Id::author);
    expected.erase(Id::created);
    expected[Id::title] = StoredByteText("Gr\xF6\xDF"
                                         "e");
    expected[Id::subject] = StoredWideText(u"Новый");
    auto streams = Streams();
    EXPECT_EQ(ReadProperties(streams[summaryName]), expected);
    streams.erase(summaryName);
    auto others = before.streams;
    others.erase(summaryName);
    EXPECT_EQ(streams, others);
    EXPECT_EQ(Files(), 1);
}

TEST_F(DocumentPropertiesOf, CompoundDocumentAreAllClearedButTheThumbnail)
{
    const CString path = Place(Sample());
    PropertyEdit edit;
    edit.clearsAll = true;
    edit.values.emplace(Id::subject, u"kept");
    ASSERT_EQ(Apply(path, edit), Result::ok);
    const DocumentProperties properties = Read(path);
    EXPECT_EQ(properties.texts, (std::map<std::uint32_t, CString>{{Id::subject, u"kept"}}));
    EXPECT_TRUE(properties.times.empty());
    EXPECT_EQ(properties.others, 0U);
    EXPECT_TRUE(properties.hasThumbnail);
    const std::string bytes = scratch.ReadFile(u"a.doc");
    for (const char* const gone : {"Old title", "Jos", "Firm", "Reports", "mine", "Own"})
        EXPECT_EQ(bytes.find(gone), std::string::npos) << gone;
    edit.values.clear();
    edit.values.emplace(Id::thumbnail, std::nullopt);
    ASSERT_EQ(Apply(path, edit), Result::ok);
    EXPECT_FALSE(Read(path).hasThumbnail);
}

TEST_F(DocumentPropertiesOf, WhatWasReplacedStandsNowhereInTheFile)
{
    // Streams below and above 4096 bytes stand in different parts of a file.
    for (const int before : {1, 2'000})
        for (const int after : {1, 2'000}) {
            CString oldTitle;
            CString newTitle;
            for (int count = 0; count < before; ++count)
                oldTitle += u"wasp";
            for (int count = 0; count < after; ++count)
                newTitle += u"new";
            const CString path = Place(Sample());
            ASSERT_EQ(Apply(path, SetTitle(oldTitle)), Result::ok);
            ASSERT_EQ(Read(path).texts[Id::title], oldTitle);
            ASSERT_EQ(Apply(path, SetTitle(newTitle)), Result::ok);
            EXPECT_EQ(Read(path).texts[Id::title], newTitle);
            const std::string bytes = scratch.ReadFile(u"a.doc");
            for (const std::string& gone :
                 {std::string("wasp"), std::string("w\0a\0s\0p", 7), std::string("Old title")})
                EXPECT_EQ(bytes.find(gone), std::string::npos) << gone << ", " << before << " to " << after;
        }
}

TEST_F(DocumentPropertiesOf, DocumentIsNotReplacedBeforeItIsAskedFor)
{
    const CompoundDocument before = Sample();
    const CString path = Place(before);
    {
        const DocumentReplacement replacement = DocumentReplacement::WithProperties(path, SetTitle(u"New"), noHandler);
        ASSERT_EQ(replacement.Error(), Result::ok);
        EXPECT_EQ(Files(), 2);
        EXPECT_EQ(scratch.ReadFile(u"a.doc"), before.Bytes());
        EXPECT_EQ(Read(replacement.NewPath()).texts[Id::title], u"New");
    }
    EXPECT_EQ(Files(), 1);
    EXPECT_EQ(scratch.ReadFile(u"a.doc"), before.Bytes());
}

TEST_F(DocumentPropertiesOf, OldDocumentIsKeptWithTheNewOneOrNotAtAll)
{
    const std::string before = Sample().Bytes();
    const CString path = Place(Sample());
    {
        DocumentReplacement given = DocumentReplacement::WithProperties(path, SetTitle(u"New"), noHandler);
        ASSERT_EQ(given.Error(), Result::ok);
        ASSERT_EQ(given.Keep(scratch.Path(u"kept")), Result::ok);
        EXPECT_EQ(scratch.ReadFile(u"kept"), before);
        EXPECT_EQ(Files(), 3);
    }
    EXPECT_EQ(Files(), 1);
    EXPECT_EQ(scratch.ReadFile(u"a.doc"), before);
    {
        DocumentReplacement replacement = DocumentReplacement::WithProperties(path, SetTitle(u"New"), noHandler);
        ASSERT_EQ(replacement.Keep(scratch.Path(u"kept")), Result::ok);
        ASSERT_EQ(replacement.Commit(), Result::ok);
    }
    EXPECT_EQ(Read(path).texts[Id::title], u"New");
    EXPECT_EQ(scratch.ReadFile(u"kept"), before);
    EXPECT_EQ(Files(), 2);
    DocumentReplacement another = DocumentReplacement::WithProperties(path, SetTitle(u"Newer"), noHandler);
    ASSERT_EQ(another.Error(), Result::ok);
    EXPECT_TRUE(VyrPlatform::PropertyStorage::IsFailure(another.Keep(scratch.Path(u"kept"))));
    EXPECT_EQ(scratch.ReadFile(u"kept"), before) << "something stands there";
}

TEST_F(DocumentPropertiesOf, DocumentThatWasWrittenToMeanwhileStays)
{
    const CString path = Place(Sample());
    DocumentReplacement replacement = DocumentReplacement::WithContent(path, scratch.WriteFile(u"b", "new"));
    ASSERT_EQ(replacement.Error(), Result::ok);
    std::filesystem::remove(ToStdPath(path));
    scratch.WriteFile(u"a.doc", "another program's");
    EXPECT_TRUE(VyrPlatform::PropertyStorage::IsFailure(replacement.Commit()));
    EXPECT_EQ(scratch.ReadFile(u"a.doc"), "another program's");
}

TEST_F(DocumentPropertiesOf, DocumentWithSeveralHardLinksIsRefused)
{
    const CString path = Place(Sample());
    std::filesystem::create_hard_link(ToStdPath(path), ToStdPath(scratch.Path(u"other.doc")));
    EXPECT_EQ(CheckDocumentEdit(path, SetTitle(u"x"), noHandler), Result::tooManyLinks);
    EXPECT_EQ(Apply(path, SetTitle(u"x")), Result::tooManyLinks);
    EXPECT_EQ(scratch.ReadFile(u"a.doc"), Sample().Bytes());
    EXPECT_EQ(Files(), 2);
}

TEST_F(DocumentPropertiesOf, DocumentThatIsOpenForWritingIsRefused)
{
    const CString path = Place(Sample());
    {
        const std::ofstream other(ToStdPath(path), std::ios::binary | std::ios::app);
        ASSERT_TRUE(other.is_open());
        EXPECT_EQ(CheckDocumentEdit(path, SetTitle(u"x"), noHandler), Result::shareViolation);
        EXPECT_EQ(Apply(path, SetTitle(u"x")), Result::shareViolation);
    }
    EXPECT_EQ(scratch.ReadFile(u"a.doc"), Sample().Bytes());
    EXPECT_EQ(Apply(path, SetTitle(u"x")), Result::ok);
}

TEST_F(DocumentPropertiesOf, ContentOfAnotherFileTakesThePlace)
{
    const CString path = scratch.WriteFile(u"a.doc", "old");
    StampFile(path, TicksOfUnixTime(1'000'000'000), TicksOfUnixTime(1'000'000'060));
    const CString source = scratch.WriteFile(u"kept", std::string(200'000, 'k'));
    DocumentReplacement replacement = DocumentReplacement::WithContent(path, source);
    ASSERT_EQ(replacement.Error(), Result::ok);
    ASSERT_EQ(replacement.Commit(), Result::ok);
    EXPECT_EQ(scratch.ReadFile(u"a.doc"), std::string(200'000, 'k'));
    EXPECT_EQ(VyrPlatform::FileTimes::GetModified(path), TicksOfUnixTime(1'000'000'000));
    EXPECT_EQ(Files(), 2);
    const DocumentReplacement missing = DocumentReplacement::WithContent(path, scratch.Path(u"missing"));
    EXPECT_EQ(missing.Error(), Result::fileNotFound);
}

TEST_F(DocumentPropertiesOf, DocumentWithoutSummaryHasNothingToBeSet)
{
    CompoundDocument document = Sample();
    document.streams.erase(summaryName);
    const CString path = Place(document);
    EXPECT_EQ(Read(path).others, 3U);
    EXPECT_EQ(CheckDocumentEdit(path, SetTitle(u"x"), noHandler), Result::fileNotFound);
    EXPECT_EQ(Apply(path, SetTitle(u"x")), Result::fileNotFound);
    EXPECT_EQ(scratch.ReadFile(u"a.doc"), document.Bytes());
    PropertyEdit edit;
    edit.clearsAll = true;
    EXPECT_EQ(Apply(path, edit), Result::ok);
    EXPECT_EQ(Read(path).others, 0U);
}

TEST_F(DocumentPropertiesOf, SetWithoutCodePageIsReadButNotWritten)
{
    CompoundDocument document = Sample();
    document.streams[summaryName] = BuildSummary({{Id::title, StoredByteText("Gr\xF6\xDF"
                                                                             "e")}});
    const CString path = Place(document);
    EXPECT_TRUE(Read(path).lacksCodePage);
    EXPECT_EQ(Read(path).texts[Id::title], u"Größe");
    EXPECT_EQ(Apply(path, SetTitle(u"x")), Result::notSupported);
    EXPECT_EQ(scratch.ReadFile(u"a.doc"), document.Bytes());
}

TEST_F(DocumentPropertiesOf, EncryptedAndSignedDocumentsAreKnown)
{
    const std::string encryptedText =
        std::string(10, '\0') + LittleEndian(std::uint16_t{0x0100}) + std::string(5'000, 'x');
    const std::string workbook = LittleEndian(std::uint16_t{0x0809}) + LittleEndian(std::uint16_t{4}) + "BIFF";
    const std::string filePass = LittleEndian(std::uint16_t{0x002F}) + LittleEndian(std::uint16_t{2}) + "xx";
    const std::string user = std::string(12, '\0') + LittleEndian(0xF3D1C4DFU);
    const std::map<std::u16string, std::string> encrypted{{u"EncryptedPackage", "x"},
                                                          {u"EncryptedSummary", "x"},
                                                          {u"WordDocument", encryptedText},
                                                          {u"Workbook", workbook + filePass},
                                                          {u"Current User", user}};
    for (const auto& [name, content] : encrypted) {
        CompoundDocument document = Sample();
        document.streams[name] = content;
        const CString path = Place(document);
        EXPECT_TRUE(Read(path).isEncrypted) << ToStdPath(CString(name));
        EXPECT_EQ(Apply(path, SetTitle(u"x")), Result::accessDenied);
        EXPECT_EQ(scratch.ReadFile(u"a.doc"), document.Bytes());
    }
    CompoundDocument plain = Sample();
    plain.streams[u"WordDocument"] = std::string(10, '\0') + LittleEndian(std::uint16_t{0xFEFF}) + "x";
    plain.streams[u"Workbook"] = workbook + workbook;
    plain.streams[u"Current User"] = std::string(12, '\0') + LittleEndian(0xE391C05FU);
    EXPECT_FALSE(Read(Place(plain)).isEncrypted);
    CompoundDocument isSigned = Sample();
    isSigned.streams[u"_signatures"] = "x";
    EXPECT_TRUE(Read(Place(isSigned)).isSigned);
}

TEST_F(DocumentPropertiesOf, WhatIsNoDocumentIsRefused)
{
    DocumentProperties properties;
    EXPECT_EQ(ReadDocumentProperties(scratch.Path(u"missing.doc"), noHandler, properties), Result::fileNotFound);
    EXPECT_EQ(ReadDocumentProperties(scratch.WriteFile(u"a.txt", "text"), noHandler, properties), Result::notSupported);
    std::string garbage = Sample().Bytes();
    std::fill(garbage.begin() + 512, garbage.end(), '\x55');
    const CString path = scratch.WriteFile(u"a.doc", garbage);
    EXPECT_TRUE(VyrPlatform::PropertyStorage::IsFailure(ReadDocumentProperties(path, noHandler, properties)));
    EXPECT_TRUE(VyrPlatform::PropertyStorage::IsFailure(Apply(path, SetTitle(u"x"))));
    EXPECT_EQ(scratch.ReadFile(u"a.doc"), garbage);
    EXPECT_EQ(CheckDocumentEdit(scratch.Path(u"a.txt"), SetTitle(u"x"), noHandler), Result::notSupported);
}

TEST_F(DocumentPropertiesOf, ReadOnlyDocumentIsRefused)
{
    const CString path = Place(Sample());
    SetReadOnly(path, true);
    if (CheckDocumentEdit(path, SetTitle(u"x"), noHandler) == Result::ok)
        GTEST_SKIP() << "Wine, run by the superuser, opens read-only files for writing";
    EXPECT_EQ(CheckDocumentEdit(path, SetTitle(u"x"), noHandler), Result::accessDenied);
    EXPECT_EQ(Apply(path, SetTitle(u"x")), Result::accessDenied);
    EXPECT_EQ(Read(path).texts[Id::title], u"Old title");
    SetReadOnly(path, false);
}
