// The kinds of documents in ZIP archives, known by their extensions.
#include <VyrHost/documents/Document.h>
#include <VyrHost/documents/Properties.h>

#include <tests/support/Describe.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>
#include <tests/support/ZipArchives.h>

#include <gtest/gtest.h>

#include <string>
#include <string_view>

using namespace VyrHost::Documents;
using namespace VyrTests;

namespace Id = VyrPlatform::SummaryId;

namespace {

/// A package with properties whose main part has a type that nobody knows.
std::string Package()
{
    return BuildArchive(
        {{"[Content_Types].xml",
          R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types">)"
          R"(<Override PartName="/main.xml" ContentType="application/vnd.example.main+xml"/></Types>)"},
         {"_rels/.rels",
          R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)"
          R"(<Relationship Id="1" Type="http://schemas.example.com/relationships/document" Target="main.xml"/>)"
          R"(<Relationship Id="2" Type="http://schemas.openxmlformats.org/package/2006/relationships/metadata/)"
          R"(core-properties" Target="docProps/core.xml"/></Relationships>)"},
         {"main.xml", "<main/>"},
         {"docProps/core.xml",
          R"(<cp:coreProperties xmlns:cp="http://schemas.openxmlformats.org/package/2006/metadata/core-properties" )"
          R"(xmlns:dc="http://purl.org/dc/elements/1.1/"><dc:title>Old</dc:title></cp:coreProperties>)"}});
}

} // namespace

TEST(DocumentKinds, OfOfficeOpenXmlAreKnownByTheirExtensions)
{
    const ScratchFolder scratch;
    PropertyRequest request;
    ParseProperty(u"title=New", request);
    VyrHost::Model::Entry entry;
    entry.kind = VyrPlatform::FileSystem::Kind::File;
    for (const std::u16string_view extension :
         {u"docx", u"docm", u"dotx", u"dotm", u"xlsx", u"xlsm", u"xltx", u"xltm", u"xlsb",
          u"xlam", u"pptx", u"pptm", u"potx", u"potm", u"ppsx", u"ppsm", u"ppam", u"sldx",
          u"sldm", u"vsdx", u"vsdm", u"vssx", u"vssm", u"vstx", u"vstm", u"VSDX"}) {
        const CString path = scratch.WriteFile(CString::Join({u"a.", extension}).View(), Package());
        SCOPED_TRACE(ToStdPath(path));
        const Document document = ReadDocument(path);
        ASSERT_TRUE(document.isDocument);
        EXPECT_EQ(document.problem, u"");
        ASSERT_TRUE(document.properties.texts.contains(Id::title));
        EXPECT_EQ(document.properties.texts.at(Id::title), u"Old");
        const auto proposal = PropertiesRule(request).Propose(path, entry, 0);
        ASSERT_TRUE(proposal.change) << ToStdPath(proposal.refusal);
        const auto change =
            dynamic_cast<const VyrHost::Model::KeepsFile&>(*proposal.change).KeepingAt(scratch.Path(u"kept/0"));
        EXPECT_EQ(change->Apply(path), 0U);
        EXPECT_EQ(ReadDocument(path).properties.texts.at(Id::title), u"New");
    }
    EXPECT_FALSE(ReadDocument(scratch.WriteFile(u"a.zip", Package())).isDocument);
}
