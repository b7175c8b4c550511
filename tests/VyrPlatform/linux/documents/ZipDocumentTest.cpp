// Properties of documents that are ZIP archives: Office Open XML and OpenDocument.
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>
#include <tests/support/ZipArchives.h>

#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/documents/PropertyStorage.h>
#include <VyrPlatform/text/Encoding.h>

#include <gmock/gmock.h>

#include <filesystem>
#include <utility>
#include <vector>

using testing::HasSubstr;
using testing::Not;
using VyrPlatform::PropertyStorage::Document;
using VyrPlatform::PropertyStorage::PropertySet;
using VyrPlatform::PropertyStorage::PropertyWrite;
using VyrPlatform::PropertyStorage::StandardSet;
using VyrTests::BuildArchive;
using VyrTests::ReadArchive;

namespace Result = VyrPlatform::PropertyStorage::Result;

namespace {

using Members = VyrTests::ZipMembers;

constexpr GUID officeOpenXml{0x993BE281, 0x6695, 0x4BA5, {0x8A, 0x2A, 0x7A, 0xAC, 0xBF, 0xAA, 0xB6, 0x9E}};
constexpr GUID openDocument{0xAE424E85, 0xF6DF, 0x4910, {0xA6, 0xA9, 0x43, 0x87, 0x97, 0x98, 0x64, 0x31}};

const std::string coreRelationship =
    R"(<Relationship Id="rId3" Type="http://schemas.openxmlformats.org/package/2006/relationships/metadata/core-properties" Target="docProps/core.xml"/>)";

std::string Relationships(const std::string& more)
{
    return R"(<?xml version="1.0"?><Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)"
           R"(<Relationship Id="rIdCore" Type="urn:main" Target="word/document.xml"/>)" +
           more + "</Relationships>";
}

const std::string types =
    R"(<?xml version="1.0"?><Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">)"
    R"(<Default Extension="xml" ContentType="application/xml"/></Types>)";

const std::string core =
    R"(<?xml version="1.0" encoding="UTF-8" standalone="yes"?>)"
    R"(<cp:coreProperties xmlns:cp="http://schemas.openxmlformats.org/package/2006/metadata/core-properties" )"
    R"(xmlns:dc="http://purl.org/dc/elements/1.1/" xmlns:x="urn:x"><dc:title>Old</dc:title>)"
    R"(<cp:keywords>k</cp:keywords><cp:version>7 &amp; up</cp:version></cp:coreProperties>)";

Members OfficeMembers()
{
    return {{"[Content_Types].xml", types},
            {"_rels/.rels", Relationships(coreRelationship)},
            {"word/document.xml", "<text/>"},
            {"docProps/core.xml", core},
            {"word/media/image.png", std::string("\x89PNG\0\1\2", 7)}};
}

const std::string meta =
    R"(<?xml version="1.0" encoding="UTF-8"?><office:document-meta )"
    R"(xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0" )"
    R"(xmlns:meta="urn:oasis:names:tc:opendocument:xmlns:meta:1.0" xmlns:dc="http://purl.org/dc/elements/1.1/">)"
    R"(<office:meta><dc:title>Old</dc:title><meta:keyword>a</meta:keyword><meta:keyword>b</meta:keyword>)"
    R"(<meta:user-defined meta:name="Own">mine</meta:user-defined></office:meta></office:document-meta>)";

Members OpenMembers()
{
    return {{"mimetype", "application/vnd.oasis.opendocument.text"}, {"content.xml", "<c/>"}, {"meta.xml", meta}};
}

class ZipDocument : public testing::Test
{
protected:
    std::uint32_t Write(const GUID& handler, const std::vector<PropertyWrite>& writes)
    {
        const Document document = Document::OpenByHandler(path, handler);
        if (!document.IsOpen())
            return document.GetError();
        const PropertySet set = PropertySet::Open(document.Get(), StandardSet::Summary);
        return set.IsOpen() ? set.Write(writes) : set.GetError();
    }
    std::uint32_t WriteText(const GUID& handler, std::uint32_t id, std::u16string text)
    {
        PROPVARIANT value{};
        value.vt = VT_LPWSTR;
        value.pwszVal = text.data();
        return Write(handler, {{id, &value}});
    }
    void Place(const Members& members) { scratch.WriteFile(u"a.docx", BuildArchive(members)); }
    std::string Member(const std::string& name)
    {
        for (const auto& [found, content] : ReadArchive(scratch.ReadFile(u"a.docx")))
            if (found == name)
                return content;
        return "no such member";
    }
    void ExpectOnlyChanged(Members before, const std::string& name)
    {
        Members now = ReadArchive(scratch.ReadFile(u"a.docx"));
        for (Members* const members : {&before, &now})
            for (auto& [found, content] : *members)
                if (found == name)
                    content.clear();
        EXPECT_EQ(now, before);
    }
    void ExpectRefused(const GUID& handler, const std::string& bytes)
    {
        scratch.WriteFile(u"a.docx", bytes);
        EXPECT_EQ(WriteText(handler, 2, u"New"), Result::damaged);
        EXPECT_EQ(scratch.ReadFile(u"a.docx"), bytes);
    }

    VyrTests::ScratchFolder scratch;
    CString path = scratch.Path(u"a.docx");
};

} // namespace

TEST_F(ZipDocument, TitleOfOfficeOpenXmlIsReplacedAndAllElseStays)
{
    Place(OfficeMembers());
    EXPECT_EQ(WriteText(officeOpenXml, 2, u"A & B <日本>"), Result::ok);
    EXPECT_THAT(Member("docProps/core.xml"), HasSubstr("<dc:title>A &amp; B &lt;日本&gt;</dc:title>"));
    EXPECT_THAT(Member("docProps/core.xml"), HasSubstr("<cp:version>7 &amp; up</cp:version>"));
    EXPECT_THAT(Member("docProps/core.xml"), Not(HasSubstr("Old")));
    EXPECT_THAT(Member("docProps/core.xml"), HasSubstr("xmlns:x=\"urn:x\""));
    ExpectOnlyChanged(OfficeMembers(), "docProps/core.xml");
}

TEST_F(ZipDocument, EveryPropertyOfOfficeOpenXmlHasItsElement)
{
    const std::vector<std::pair<std::uint32_t, std::string>> elements = {
        {2, "dc:title"},    {3, "dc:subject"},     {4, "dc:creator"},
        {5, "cp:keywords"}, {6, "dc:description"}, {8, "cp:lastModifiedBy"}};
    Place(OfficeMembers());
    for (const auto& [id, element] : elements) {
        const std::string text = "t" + std::to_string(id);
        EXPECT_EQ(WriteText(officeOpenXml, id, std::u16string(text.begin(), text.end())), Result::ok);
    }
    PROPVARIANT revision{};
    revision.vt = VT_I4;
    revision.lVal = 12;
    PROPVARIANT created{};
    created.vt = VT_FILETIME;
    // 2020-01-01 00:00:00 UTC
    created.filetime = {0xE5B2'8000 & 0xFFFFFFFF, 0x01D5'C03F};
    EXPECT_EQ(Write(officeOpenXml, {{9, &revision}, {12, &created}}), Result::ok);
    const std::string now = Member("docProps/core.xml");
    for (const auto& [id, element] : elements) {
        const std::string expected = "<" + element + ">t" + std::to_string(id) + "</" + element + ">";
        EXPECT_THAT(now, HasSubstr(expected));
    }
    EXPECT_THAT(now, HasSubstr("<cp:revision>12</cp:revision>"));
    EXPECT_THAT(now, HasSubstr("xsi:type=\"dcterms:W3CDTF\">20"));
}

TEST_F(ZipDocument, EmptyValueRemovesTheElement)
{
    Place(OfficeMembers());
    const PROPVARIANT nothing{};
    EXPECT_EQ(Write(officeOpenXml, {{2, &nothing}, {5, &nothing}, {6, &nothing}}), Result::ok);
    EXPECT_THAT(Member("docProps/core.xml"), Not(HasSubstr("title")));
    EXPECT_THAT(Member("docProps/core.xml"), Not(HasSubstr("keywords")));
}

TEST_F(ZipDocument, PackageWithoutCorePropertiesGetsThem)
{
    Place({{"[Content_Types].xml", types}, {"_rels/.rels", Relationships("")}, {"word/document.xml", "<text/>"}});
    EXPECT_EQ(WriteText(officeOpenXml, 2, u"New"), Result::ok);
    const Document reopened = Document::OpenByHandler(path, officeOpenXml);
    EXPECT_TRUE(reopened.IsOpen());
    const std::string package = Member("_rels/.rels");
    EXPECT_THAT(package, HasSubstr("metadata/core-properties\" Target=\"docProps/core.xml\""));
    EXPECT_THAT(package, HasSubstr("Id=\"rIdCorex\"")) << "an id of its own";
    EXPECT_THAT(Member("[Content_Types].xml"),
                HasSubstr("<Override PartName=\"/docProps/core.xml\" "
                          "ContentType=\"application/vnd.openxmlformats-package.core-properties+xml\"/>"));
    EXPECT_EQ(Member("word/document.xml"), "<text/>");
}

TEST_F(ZipDocument, TimesOfItsMembersStayAndNewOnesHaveNone)
{
    const auto times = [this] {
        const std::string bytes = scratch.ReadFile(u"a.docx");
        std::vector<std::string> found;
        for (std::size_t at = bytes.find("PK\1\2"); at != std::string::npos; at = bytes.find("PK\1\2", at + 1))
            found.push_back(bytes.substr(at + 12, 4));
        return found;
    };
    Place(OfficeMembers());
    std::vector<std::string> before = times();
    ASSERT_EQ(WriteText(officeOpenXml, 2, u"New"), Result::ok);
    EXPECT_EQ(times(), before);

    Members members = OpenMembers();
    members.push_back(
        {"_rels/.rels", R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships"/>)"});
    members.push_back(
        {"[Content_Types].xml", R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types"/>)"});
    Place(members);
    before = times();
    ASSERT_EQ(WriteText(officeOpenXml, 2, u"New"), Result::ok);
    // Midnight on 1 January 1980, the first moment that there is.
    before.emplace_back("\0\0\x21\0", 4);
    EXPECT_EQ(times(), before);
}

TEST_F(ZipDocument, OpenDocumentHasItsPropertiesInMeta)
{
    Place(OpenMembers());
    EXPECT_EQ(WriteText(openDocument, 2, u"New"), Result::ok);
    EXPECT_EQ(WriteText(openDocument, 4, u"First"), Result::ok);
    EXPECT_EQ(WriteText(openDocument, 8, u"Last"), Result::ok);
    EXPECT_EQ(WriteText(openDocument, 5, u" one, two ,,three"), Result::ok);
    const std::string now = Member("meta.xml");
    EXPECT_THAT(now, HasSubstr("<dc:title>New</dc:title>"));
    EXPECT_THAT(now, HasSubstr("<meta:initial-creator>First</meta:initial-creator>"));
    EXPECT_THAT(now, HasSubstr("<dc:creator>Last</dc:creator>"));
    EXPECT_THAT(now, HasSubstr("<meta:keyword>one</meta:keyword><meta:keyword>two</meta:keyword>"
                               "<meta:keyword>three</meta:keyword>"));
    EXPECT_THAT(now, HasSubstr("<meta:user-defined meta:name=\"Own\">mine</meta:user-defined>"));
    ExpectOnlyChanged(OpenMembers(), "meta.xml");
}

TEST_F(ZipDocument, InvalidPropertyIsRefused)
{
    Place(OfficeMembers());
    const std::string before = scratch.ReadFile(u"a.docx");
    EXPECT_EQ(WriteText(officeOpenXml, 15, u"x"), Result::notSupported);
    EXPECT_EQ(WriteText(officeOpenXml, 12, u"no time"), Result::invalidParameter);
    EXPECT_EQ(WriteText(officeOpenXml, 2, u"a\x01 b"), Result::invalidParameter);
    EXPECT_EQ(WriteText(officeOpenXml, 2, {u'a', char16_t{0xD800}}), Result::invalidParameter);
    PROPVARIANT number{};
    number.vt = VT_I4;
    EXPECT_EQ(Write(officeOpenXml, {{2, &number}}), Result::invalidParameter);
    EXPECT_EQ(scratch.ReadFile(u"a.docx"), before);
    const Document document = Document::OpenByHandler(path, officeOpenXml);
    EXPECT_FALSE(PropertySet::Open(document.Get(), StandardSet::DocumentSummary).IsOpen());
}

TEST_F(ZipDocument, DamagedAndHostileDocumentsAreRefusedUnchanged)
{
    const auto withCore = [](const std::string& content) {
        Members members = OfficeMembers();
        members[3].second = content;
        return BuildArchive(members);
    };
    ExpectRefused(officeOpenXml, "no archive");
    ExpectRefused(officeOpenXml, "");
    ExpectRefused(officeOpenXml, BuildArchive({{"a.txt", "x"}}));
    ExpectRefused(officeOpenXml, BuildArchive(OfficeMembers()).substr(0, 300));
    ExpectRefused(officeOpenXml, withCore("<not well-formed"));
    ExpectRefused(officeOpenXml, withCore("<other/>"));
    ExpectRefused(officeOpenXml,
                  withCore("<!DOCTYPE a [<!ENTITY b \"" + std::string(1'000, 'b') + "\">]>" + core.substr(55)));
    ExpectRefused(officeOpenXml, withCore(std::string(5'000'000, ' ') + core));
    ExpectRefused(openDocument, BuildArchive(OfficeMembers()));
    ExpectRefused(officeOpenXml, BuildArchive(OpenMembers()));
    std::string wrongCheck = BuildArchive(OfficeMembers());
    wrongCheck[wrongCheck.find("<dc:title>") + 1] = 'D';
    ExpectRefused(officeOpenXml, wrongCheck);
}

TEST_F(ZipDocument, MemberThatUnpacksWithoutEndIsRefused)
{
    Place(OfficeMembers());
    const std::string folder = VyrTests::ToStdPath(scratch.Path()).string();
    std::filesystem::create_directory(folder + "/docProps");
    const std::string command = "cd '" + folder +
                                "' && head -c 50000000 /dev/zero > docProps/core.xml && zip -q a.docx " +
                                "docProps/core.xml && rm docProps/core.xml";
    ASSERT_EQ(std::system(command.c_str()), 0);
    const std::string before = scratch.ReadFile(u"a.docx");
    ASSERT_LT(before.size(), 100'000U);
    EXPECT_EQ(WriteText(officeOpenXml, 2, u"New"), Result::damaged);
    EXPECT_EQ(scratch.ReadFile(u"a.docx"), before);
}
