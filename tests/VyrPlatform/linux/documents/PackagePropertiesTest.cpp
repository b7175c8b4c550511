// What documents in ZIP archives tell of themselves, and how all of that is set and cleared.
#include <tests/support/FileMoments.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/ZipArchives.h>

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/documents/DocumentProperties.h>
#include <VyrPlatform/documents/PropertyStorage.h>
#include <VyrPlatform/linux/documents/PropertyXml.h>

#include <gtest/gtest.h>

#include <map>
#include <string>

using namespace VyrTests;
using VyrPlatform::DocumentProperties;
using VyrPlatform::DocumentReplacement;
using VyrPlatform::PropertyEdit;
using VyrPlatform::ReadDocumentProperties;

namespace Id = VyrPlatform::SummaryId;
namespace Result = VyrPlatform::PropertyStorage::Result;

namespace {

constexpr GUID officeOpenXml{0x993BE281, 0x6695, 0x4BA5, {0x8A, 0x2A, 0x7A, 0xAC, 0xBF, 0xAA, 0xB6, 0x9E}};
constexpr GUID openDocument{0xAE424E85, 0xF6DF, 0x4910, {0xA6, 0xA9, 0x43, 0x87, 0x97, 0x98, 0x64, 0x31}};

using Texts = std::map<std::uint32_t, CString>;
using Times = std::map<std::uint32_t, VyrPlatform::FileTicks>;

std::string Relationship(const std::string& id, const std::string& type, const std::string& target)
{
    return "<Relationship Id=\"" + id + "\" Type=\"http://schemas.openxmlformats.org/" + type + "\" Target=\"" +
           target + "\"/>";
}

ZipMembers Office(const std::string& moreRelationships = {})
{
    const std::string relationships =
        R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)" +
        Relationship("r1", "package/2006/relationships/metadata/core-properties", "docProps/core.xml") +
        Relationship("r2", "officeDocument/2006/relationships/extended-properties", "docProps/app.xml") +
        Relationship("r3", "officeDocument/2006/relationships/custom-properties", "/docProps/custom.xml") +
        moreRelationships + "</Relationships>";
    return {
        {"[Content_Types].xml", R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types"/>)"},
        {"_rels/.rels", relationships},
        {"docProps/core.xml",
         R"(<cp:coreProperties xmlns:cp="http://schemas.openxmlformats.org/package/2006/metadata/core-properties" )"
         R"(xmlns:dc="http://purl.org/dc/elements/1.1/" xmlns:dcterms="http://purl.org/dc/terms/">)"
         R"(<dc:title>Old</dc:title><dc:creator>Ann</dc:creator><cp:category>secret</cp:category>)"
         R"(<dcterms:created>2024-01-05T10:30:00Z</dcterms:created>)"
         R"(<dcterms:modified>2024-01-05T12:30:00.25+02:00</dcterms:modified></cp:coreProperties>)"},
        {"docProps/app.xml",
         R"(<Properties xmlns="http://schemas.openxmlformats.org/officeDocument/2006/extended-properties">)"
         R"(<Template>Normal.dotm</Template><Company>Firm</Company><Application>Writer</Application></Properties>)"},
        {"docProps/custom.xml",
         R"(<Properties xmlns="http://schemas.openxmlformats.org/officeDocument/2006/custom-properties">)"
         R"(<property name="Client"><value>Smith</value></property></Properties>)"},
        {"word/document.xml", "<text/>"}};
}

ZipMembers Open()
{
    return {
        {"mimetype", "application/vnd.oasis.opendocument.text"},
        {"content.xml", "<c/>"},
        {"meta.xml",
         R"(<office:document-meta xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0" )"
         R"(xmlns:meta="urn:oasis:names:tc:opendocument:xmlns:meta:1.0" xmlns:xlink="http://www.w3.org/1999/xlink" )"
         R"(xmlns:dc="http://purl.org/dc/elements/1.1/"><office:meta><dc:title>Old</dc:title>)"
         R"(<meta:keyword>a</meta:keyword><meta:keyword>b</meta:keyword><meta:generator>Writer</meta:generator>)"
         R"(<meta:template xlink:title="Letter"/><meta:user-defined meta:name="Own">mine</meta:user-defined>)"
         R"(</office:meta></office:document-meta>)"}};
}

class PackageProperties : public testing::Test
{
protected:
    DocumentProperties Read(const GUID& handler) const
    {
        DocumentProperties properties;
        EXPECT_EQ(ReadDocumentProperties(path, handler, properties), Result::ok);
        return properties;
    }
    std::uint32_t Apply(const PropertyEdit& edit, const GUID& handler) const
    {
        DocumentReplacement replacement = DocumentReplacement::WithProperties(path, edit, handler);
        return replacement.Error() != Result::ok ? replacement.Error() : replacement.Commit();
    }
    void Place(const ZipMembers& members) { path = scratch.WriteFile(u"a.zip", BuildArchive(members)); }

    ScratchFolder scratch;
    CString path;
};

} // namespace

TEST_F(PackageProperties, OfOfficeOpenXmlAreReadFromAllParts)
{
    Place(Office());
    const DocumentProperties properties = Read(officeOpenXml);
    EXPECT_EQ(properties.texts, (Texts{{Id::title, u"Old"},
                                       {Id::author, u"Ann"},
                                       {Id::templateName, u"Normal.dotm"},
                                       {Id::application, u"Writer"}}));
    constexpr std::int64_t moment = 1'704'450'600; // 2024-01-05 10:30 UTC
    EXPECT_EQ(properties.times, (Times{{Id::created, TicksOfUnixTime(moment)}, {Id::saved, TicksOfUnixTime(moment)}}));
    EXPECT_EQ(properties.others, 3U) << "category, company and the user's own";
    EXPECT_FALSE(properties.isSigned);
}

TEST_F(PackageProperties, OfOfficeOpenXmlAreAllCleared)
{
    Place(Office());
    PropertyEdit edit;
    edit.clearsAll = true;
    edit.values.emplace(Id::application, u"Another");
    ASSERT_EQ(Apply(edit, officeOpenXml), Result::ok);
    const DocumentProperties properties = Read(officeOpenXml);
    EXPECT_EQ(properties.texts, (Texts{{Id::application, u"Another"}}));
    EXPECT_TRUE(properties.times.empty());
    EXPECT_EQ(properties.others, 0U);
    // What is packed is not found, but neither is it there twice.
    EXPECT_EQ(ReadArchive(scratch.ReadFile(u"a.zip")).size(), Office().size());
}

TEST_F(PackageProperties, OfOfficeOpenXmlAreSetWhereTheyStand)
{
    Place(Office());
    PropertyEdit edit;
    edit.values.emplace(Id::title, u"Größe <&>");
    edit.values.emplace(Id::templateName, u"Letter.dotx");
    edit.values.emplace(Id::author, std::nullopt);
    ASSERT_EQ(Apply(edit, officeOpenXml), Result::ok);
    const DocumentProperties properties = Read(officeOpenXml);
    EXPECT_EQ(properties.texts,
              (Texts{{Id::title, u"Größe <&>"}, {Id::templateName, u"Letter.dotx"}, {Id::application, u"Writer"}}));
    EXPECT_EQ(properties.others, 3U);
}

TEST_F(PackageProperties, OfOpenDocumentAreReadSetAndCleared)
{
    Place(Open());
    const DocumentProperties properties = Read(openDocument);
    EXPECT_EQ(properties.texts, (Texts{{Id::title, u"Old"},
                                       {Id::keywords, u"a, b"},
                                       {Id::templateName, u"Letter"},
                                       {Id::application, u"Writer"}}));
    EXPECT_EQ(properties.others, 1U);
    PropertyEdit edit;
    edit.values.emplace(Id::templateName, u"Another");
    EXPECT_EQ(Apply(edit, openDocument), Result::notSupported) << "it is a link";
    edit.values[Id::templateName] = std::nullopt;
    edit.values.emplace(Id::subject, u"new");
    ASSERT_EQ(Apply(edit, openDocument), Result::ok);
    EXPECT_EQ(
        Read(openDocument).texts,
        (Texts{{Id::title, u"Old"}, {Id::subject, u"new"}, {Id::keywords, u"a, b"}, {Id::application, u"Writer"}}));
    PropertyEdit clear;
    clear.clearsAll = true;
    ASSERT_EQ(Apply(clear, openDocument), Result::ok);
    EXPECT_TRUE(Read(openDocument).texts.empty());
    EXPECT_EQ(Read(openDocument).others, 0U);
}

TEST_F(PackageProperties, SignedAndEncryptedPackagesAreKnown)
{
    Place(Office(
        Relationship("r9", "package/2006/relationships/digital-signature/origin", "_xmlsignatures/origin.sigs")));
    EXPECT_TRUE(Read(officeOpenXml).isSigned);
    ZipMembers members = Open();
    members.emplace_back("META-INF/documentsignatures.xml", "<s/>");
    Place(members);
    EXPECT_TRUE(Read(openDocument).isSigned);
    members = Open();
    members.emplace_back("META-INF/manifest.xml", "<manifest:encryption-data/>");
    Place(members);
    EXPECT_TRUE(Read(openDocument).isEncrypted);
    PropertyEdit edit;
    edit.values.emplace(Id::title, u"x");
    const std::string before = scratch.ReadFile(u"a.zip");
    EXPECT_EQ(Apply(edit, openDocument), Result::accessDenied);
    EXPECT_EQ(scratch.ReadFile(u"a.zip"), before);
}

TEST_F(PackageProperties, ThumbnailOfAPackageIsNotRemoved)
{
    Place(Office(Relationship("r9", "package/2006/relationships/metadata/thumbnail", "docProps/thumbnail.jpeg")));
    EXPECT_TRUE(Read(officeOpenXml).hasThumbnail);
    PropertyEdit edit;
    edit.values.emplace(Id::thumbnail, std::nullopt);
    EXPECT_EQ(Apply(edit, officeOpenXml), Result::notSupported);
}

TEST_F(PackageProperties, TextThatCouldNotBeReadAgainIsNotWritten)
{
    const std::string text = "<cp:coreProperties xmlns:cp='http://schemas.openxmlformats.org/package/2006/metadata/"
                             "core-properties' xmlns:x='a&amp;b'/>";
    DocumentProperties properties;
    EXPECT_TRUE(ReadPropertyXml(VyrPlatform::PropertyFormat::OfficeOpenXml, text, properties));
    EXPECT_EQ(ClearPropertyXml(VyrPlatform::PropertyFormat::OfficeOpenXml, text).result, Result::damaged);
}

TEST_F(PackageProperties, WhatIsNoPackageOfItsKindIsDamaged)
{
    DocumentProperties properties;
    Place(Open());
    EXPECT_EQ(ReadDocumentProperties(path, officeOpenXml, properties), Result::damaged);
    EXPECT_EQ(ReadDocumentProperties(path, GUID{}, properties), Result::notSupported);
    path = scratch.WriteFile(u"a.zip", "no archive");
    EXPECT_EQ(ReadDocumentProperties(path, openDocument, properties), Result::damaged);
}
