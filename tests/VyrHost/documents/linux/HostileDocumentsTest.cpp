// Documents in ZIP archives that are made to take memory or to mislead: refused in words, unchanged, within bounds.
#include <VyrHost/documents/Document.h>
#include <VyrHost/documents/Properties.h>

#include <gmock/gmock.h>
#include <tests/support/CompoundDocument.h>
#include <tests/support/Describe.h>
#include <tests/support/ProcessMemory.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>
#include <tests/support/ZipArchives.h>

#include <cstdlib>
#include <filesystem>
#include <string>
#include <utility>

using namespace VyrHost::Documents;
using namespace VyrTests;
using VyrHost::Metadata::Proposal;

namespace {

const std::string relationships =
    R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)"
    R"(<Relationship Id="1" Type="http://schemas.openxmlformats.org/package/2006/relationships/metadata/)"
    R"(core-properties" Target="docProps/core.xml"/>)"
    R"(<Relationship Id="2" Type="http://schemas.openxmlformats.org/officeDocument/2006/relationships/)"
    R"(extended-properties" Target="docProps/app.xml"/></Relationships>)";
const std::string types = R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types"/>)";
const std::string core =
    R"(<cp:coreProperties xmlns:cp="http://schemas.openxmlformats.org/package/2006/metadata/core-properties"/>)";
const std::string app =
    R"(<Properties xmlns="http://schemas.openxmlformats.org/officeDocument/2006/extended-properties"/>)";
const std::string meta = R"(<o:document-meta xmlns:o="urn:oasis:names:tc:opendocument:xmlns:office:1.0"><o:meta/>)"
                         R"(</o:document-meta>)";

const CString damaged = u"it is damaged, or not a document of its kind";

/// `document` with `content` in the place of the member `name`.
ZipMembers With(ZipMembers document, const std::string& name, const std::string& content)
{
    for (auto& [found, old] : document)
        if (found == name)
            old = content;
    return document;
}

ZipMembers Office()
{
    return {{"[Content_Types].xml", types},
            {"_rels/.rels", relationships},
            {"docProps/core.xml", core},
            {"docProps/app.xml", app}};
}

ZipMembers Open()
{
    return {{"mimetype", "application/vnd.oasis.opendocument.text"},
            {"META-INF/manifest.xml", "<manifest/>"},
            {"meta.xml", meta}};
}

/// A hundred million letters, once its entities are replaced.
std::string ExpandingXml(const std::string& root)
{
    std::string text = "<!DOCTYPE a [<!ENTITY e0 \"x\">";
    for (int level = 1; level <= 8; ++level) {
        text += "<!ENTITY e" + std::to_string(level) + " \"";
        for (int count = 0; count < 10; ++count)
            text += "&e" + std::to_string(level - 1) + ";";
        text += "\">";
    }
    return text + "]>" + root.substr(0, root.rfind("/>")) + ">&e8;</cp:coreProperties>";
}

std::string DeepXml()
{
    std::string text;
    for (int level = 0; level < 100'000; ++level)
        text += "<a>";
    return text;
}

class HostileDocuments : public testing::Test
{
protected:
    // Less than a bomb comes to; the sanitizers keep what was freed for a while.
    void TearDown() override { EXPECT_LT(PeakMemory() - m_before, std::uint64_t{128} << 20); }

    CString Place(std::u16string_view name, const std::string& bytes) const { return scratch.WriteFile(name, bytes); }
    /// The archive gets the member `name` of 160 MB that is packed into little.
    CString PlaceBomb(std::u16string_view archive, const ZipMembers& members, const std::string& name) const
    {
        const CString path = Place(archive, BuildArchive(members));
        const std::filesystem::path folder = ToStdPath(scratch.Path()) / "bomb";
        std::filesystem::create_directories((folder / name).parent_path());
        const std::string command = "cd '" + folder.string() + "' && head -c 160000000 /dev/zero > '" + name +
                                    "' && zip -q '" + ToStdPath(path).string() + "' '" + name + "'";
        EXPECT_EQ(std::system(command.c_str()), 0);
        std::filesystem::remove_all(folder);
        return path;
    }
    /// Why a new title is refused; empty when it is not.
    CString Refusal(const CString& path, bool clearsAll = false) const
    {
        PropertyRequest request;
        request.clearsAll = clearsAll;
        ParseProperty(u"title=New", request);
        VyrHost::Model::Entry entry;
        entry.kind = VyrPlatform::FileSystem::Kind::File;
        const CString name = path.Mid(scratch.Path(u"").GetLength());
        const std::string before = scratch.ReadFile(name.View());
        const Proposal proposal = PropertiesRule(request).Propose(path, entry, 0);
        EXPECT_TRUE(scratch.ReadFile(name.View()) == before);
        EXPECT_NE(proposal.change == nullptr, proposal.refusal.IsEmpty());
        return proposal.refusal;
    }

private:
    ScratchFolder scratch;
    std::uint64_t m_before = PeakMemory();
};

} // namespace

TEST_F(HostileDocuments, SoundOnesOfTheseTestsAreChanged)
{
    EXPECT_EQ(Refusal(Place(u"a.docx", BuildArchive(Office()))), u"");
    EXPECT_EQ(Refusal(Place(u"a.odt", BuildArchive(Open()))), u"");
}

TEST_F(HostileDocuments, ThatAreNoArchiveOrACutOneAreDamaged)
{
    for (const auto& [name, bytes] :
         {std::pair(u"a.docx", BuildArchive(Office())), std::pair(u"a.odt", BuildArchive(Open()))}) {
        EXPECT_EQ(Refusal(Place(name, "")), damaged);
        EXPECT_EQ(Refusal(Place(name, "PK\3\4")), damaged);
        EXPECT_EQ(Refusal(Place(name, "text")), damaged);
        for (std::size_t size = 1; size < bytes.size(); size += 7)
            EXPECT_EQ(Refusal(Place(name, bytes.substr(0, size))), damaged) << size;
    }
}

TEST_F(HostileDocuments, ThatPromiseMoreThanTheyHaveAreDamaged)
{
    const std::string sound = BuildArchive(Office());
    const std::size_t end = sound.rfind("PK\5\6");
    // The numbers of members, the size of the directory and its place, one after the other.
    for (const std::size_t at : {8U, 10U, 12U, 16U}) {
        std::string bytes = sound;
        bytes.replace(end + at, at < 12 ? 2 : 4, std::string(at < 12 ? 2 : 4, '\xFE'));
        EXPECT_EQ(Refusal(Place(u"a.docx", bytes)), damaged) << at;
    }
    // The size of a member, packed and unpacked.
    std::string bytes = sound;
    for (std::size_t entry = bytes.find("PK\1\2"); entry != std::string::npos; entry = bytes.find("PK\1\2", entry + 1))
        bytes.replace(entry + 20, 8, std::string("\xFF\xFF\xFF\x7E\xFF\xFF\xFF\x7E", 8));
    EXPECT_EQ(Refusal(Place(u"a.docx", bytes)), damaged);
}

TEST_F(HostileDocuments, WhosePropertiesUnpackWithoutEndAreDamaged)
{
    EXPECT_EQ(Refusal(PlaceBomb(u"a.docx", Office(), "docProps/core.xml")), damaged);
    EXPECT_EQ(Refusal(PlaceBomb(u"a.docx", Office(), "_rels/.rels")), damaged);
    EXPECT_EQ(Refusal(PlaceBomb(u"a.docx", Office(), "[Content_Types].xml")), damaged);
    EXPECT_EQ(Refusal(PlaceBomb(u"a.odt", Open(), "meta.xml")), damaged);
    EXPECT_EQ(Refusal(PlaceBomb(u"a.odt", Open(), "mimetype")), damaged);
}

TEST_F(HostileDocuments, WhoseOtherPropertiesUnpackWithoutEndKeepThem)
{
    const CString path = PlaceBomb(u"a.docx", Office(), "docProps/app.xml");
    EXPECT_EQ(Refusal(path), u"");
    EXPECT_EQ(Refusal(path, true), damaged);
}

TEST_F(HostileDocuments, WhoseXmlExpandsOrIsDeepAreDamaged)
{
    for (const std::string& text :
         {ExpandingXml(core), DeepXml(), std::string("<!DOCTYPE a SYSTEM \"/etc/passwd\">") + "<a/>"})
        for (const char* const part : {"docProps/core.xml", "_rels/.rels", "[Content_Types].xml"})
            EXPECT_EQ(Refusal(Place(u"a.docx", BuildArchive(With(Office(), part, text)))), damaged) << part;
    EXPECT_EQ(Refusal(Place(u"a.odt", BuildArchive(With(Open(), "meta.xml", DeepXml())))), damaged);
}

TEST_F(HostileDocuments, ThatAreEncryptedAreToldAsSuch)
{
    CompoundDocument package;
    package.streams[u"EncryptedPackage"] = std::string(5'000, 'e');
    package.streams[u"EncryptionInfo"] = "info";
    EXPECT_EQ(Refusal(Place(u"a.docx", package.Bytes())), u"it is encrypted");
    EXPECT_EQ(Refusal(Place(u"a.odt", BuildArchive(With(Open(), "META-INF/manifest.xml",
                                                        "<m:manifest><m:encryption-data/></m:manifest>")))),
              u"it is encrypted");
    // A member with a password.
    std::string bytes = BuildArchive(Office());
    for (const char* const head : {"PK\1\2", "PK\3\4"})
        for (std::size_t at = bytes.find(head); at != std::string::npos; at = bytes.find(head, at + 1))
            bytes[at + (head[2] == '\1' ? 8 : 6)] = '\1';
    EXPECT_EQ(Refusal(Place(u"a.docx", bytes)), damaged);
}

TEST_F(HostileDocuments, WhosePartsAreOutsideAreDamaged)
{
    for (const char* const target : {"../../../etc/passwd", "http://localhost/core.xml", "/", ""}) {
        std::string other = relationships;
        const std::string old = "docProps/core.xml";
        other.replace(other.find(old), old.size(), target);
        EXPECT_EQ(Refusal(Place(u"a.docx", BuildArchive(With(Office(), "_rels/.rels", other)))), damaged) << target;
    }
}
