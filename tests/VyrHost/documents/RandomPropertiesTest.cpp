// Random changes of the properties of random documents, one on top of the other, and all of them undone.
#include <VyrHost/documents/Document.h>
#include <VyrHost/documents/Properties.h>

#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/text/Encoding.h>
#include <tests/support/ComThread.h>
#include <tests/support/CompoundDocument.h>
#include <tests/support/Describe.h>
#include <tests/support/FileMoments.h>
#include <tests/support/FileState.h>
#include <tests/support/PackageHandlers.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/TreeState.h>
#include <tests/support/ZipArchives.h>

#include <gtest/gtest.h>

#include <array>
#include <map>
#include <memory>
#include <random>
#include <string>
#include <vector>

using namespace VyrHost::Documents;
using namespace VyrTests;
using VyrHost::Metadata::Proposal;
using VyrHost::Model::Change;
using VyrHost::Model::ChangeState;

namespace Id = VyrPlatform::SummaryId;

namespace {

class RandomProperties : public testing::Test
{
protected:
    static constexpr int documents = 40;
    static constexpr int changes = 3;

    std::size_t Below(std::size_t limit) { return m_random() % limit; }
    bool IsLikely(std::size_t oneIn) { return Below(oneIn) == 0; }

    std::u16string Text()
    {
        // Without a comma: OpenDocument has an element for each keyword.
        constexpr std::u16string_view units = u"aZ 09éß€日ф&<>\"'\t;=";
        std::u16string text(1 + Below(IsLikely(5) ? 3'000 : 20), u' ');
        for (char16_t& unit : text)
            unit = units[Below(units.size())];
        // Blanks at the ends of a text are no part of it in some formats.
        text.front() = u'x';
        text.back() = u'y';
        return text;
    }

    /// Some of these elements, each with a text, in the order of the names.
    std::string Elements(std::initializer_list<const char*> names)
    {
        std::string text;
        for (const char* const name : names)
            if (IsLikely(2))
                text.append("<").append(name).append(">old ").append(name).append("</").append(name).append(">");
        return text;
    }

    std::string Compound()
    {
        CompoundDocument document;
        document.sectorSize = IsLikely(2) ? 512 : 4096;
        PropertyMap summary{{1, StoredCodePage(1252)}, {14, StoredNumber(3)}};
        for (std::uint32_t id = Id::title; id <= Id::application; ++id)
            if (IsLikely(2))
                summary[id] =
                    id == Id::printed || id == Id::created || id == Id::saved ? StoredTime(0x01C2'3456'789A'BCDE + id)
                    : id <= Id::revision || id == Id::application ? StoredByteText("old " + std::to_string(id))
                                                                  : StoredNumber(static_cast<int>(id));
        document.streams[summaryName] = BuildSummary(summary);
        if (IsLikely(2))
            document.streams[documentSummaryName] =
                BuildPropertySet({{documentFormatBytes, {{1, StoredCodePage(1252)}, {15, StoredByteText("Firm")}}}});
        for (std::size_t count = Below(4); count > 0; --count)
            document.streams[u"Body" + std::u16string(count, u'x')] = std::string(Below(20'000), 'b');
        if (IsLikely(2))
            document.folderStreams[u"Inner"] = std::string(Below(9'000), 'i');
        return document.Bytes();
    }

    std::string Office()
    {
        const std::string types = R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types"/>)";
        std::string relationships =
            R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships">)";
        ZipMembers members{{"[Content_Types].xml", types}, {"word/document.xml", std::string(Below(9'000), 't')}};
        if (!IsLikely(4)) {
            relationships += R"(<Relationship Id="r1" Type="http://schemas.openxmlformats.org/package/2006/)"
                             R"(relationships/metadata/core-properties" Target="docProps/core.xml"/>)";
            members.emplace_back(
                "docProps/core.xml",
                R"(<cp:coreProperties xmlns:cp="http://schemas.openxmlformats.org/package/2006/metadata/)"
                R"(core-properties" xmlns:dc="http://purl.org/dc/elements/1.1/">)" +
                    Elements({"dc:title", "dc:creator", "cp:keywords", "cp:category"}) + "</cp:coreProperties>");
        }
        if (IsLikely(2)) {
            relationships += R"(<Relationship Id="r2" Type="http://schemas.openxmlformats.org/officeDocument/2006/)"
                             R"(relationships/extended-properties" Target="docProps/app.xml"/>)";
            members.emplace_back(
                "docProps/app.xml",
                R"(<Properties xmlns="http://schemas.openxmlformats.org/officeDocument/2006/extended-properties">)" +
                    Elements({"Template", "Company", "Application"}) + "</Properties>");
        }
        members.emplace_back("_rels/.rels", relationships + "</Relationships>");
        return BuildArchive(members);
    }

    std::string OpenDocument()
    {
        return BuildArchive(
            {{"mimetype", "application/vnd.oasis.opendocument.text"},
             {"content.xml", std::string(Below(9'000), 'c')},
             {"meta.xml", R"(<o:document-meta xmlns:o="urn:oasis:names:tc:opendocument:xmlns:office:1.0" )"
                          R"(xmlns:meta="urn:oasis:names:tc:opendocument:xmlns:meta:1.0" )"
                          R"(xmlns:dc="http://purl.org/dc/elements/1.1/"><o:meta>)" +
                              Elements({"dc:title", "dc:creator", "meta:keyword", "meta:generator"}) +
                              "</o:meta></o:document-meta>"}});
    }

    PropertyRequest Request()
    {
        PropertyRequest request;
        request.clearsAll = IsLikely(5);
        for (const PropertyName& property : PropertyNames()) {
            if (!IsLikely(4) || property.id == Id::thumbnail)
                continue;
            if (property.kind == PropertyKind::Time && !IsLikely(3)) {
                request.times.emplace(property.id, TicksOfUnixTime(static_cast<std::int64_t>(Below(2'000'000'000))));
                continue;
            }
            std::optional<CString> value;
            if (property.id == Id::revision)
                value = VyrPlatform::Encoding::FromUtf8(std::to_string(Below(1'000)));
            else if (property.kind == PropertyKind::Text)
                value = CString(Text());
            request.values.emplace(property.id, IsLikely(3) ? std::nullopt : value);
        }
        return request;
    }

    [[nodiscard]] std::map<std::string, std::string> State() const { return TreeState(m_documents.Path()); }

    /// What `request` makes of the properties; the other ones stay.
    static void Expect(const VyrPlatform::DocumentProperties& before, const PropertyRequest& request,
                       const VyrPlatform::DocumentProperties& after)
    {
        auto texts = before.texts;
        auto times = before.times;
        if (request.clearsAll) {
            texts.clear();
            times.clear();
        }
        for (const auto& [id, value] : request.values) {
            texts.erase(id);
            times.erase(id);
            if (value)
                texts.emplace(id, *value);
        }
        for (const auto& [id, ticks] : request.times)
            times[id] = ticks;
        EXPECT_EQ(after.texts, texts);
        EXPECT_EQ(after.times, times);
        EXPECT_EQ(after.others, request.clearsAll ? 0U : before.others);
    }

    /// Changes the document in a random way.
    /// @return the change; null where it is refused or changes nothing, and the document is as it was.
    std::shared_ptr<const Change> ApplyOne(const CString& path, const CString& kept)
    {
        const PropertyRequest request = Request();
        VyrHost::Model::Entry entry;
        entry.kind = VyrPlatform::FileSystem::Kind::File;
        const auto before = ReadDocument(path);
        const auto state = State();
        const Proposal proposal = PropertiesRule(request).Propose(path, entry, 0);
        EXPECT_EQ(State(), state);
        if (!proposal.change)
            return nullptr;
        auto change = dynamic_cast<const VyrHost::Model::KeepsFile&>(*proposal.change).KeepingAt(kept);
        EXPECT_EQ(change->Apply(path), 0U);
        EXPECT_EQ(change->Look(path).state, ChangeState::After);
        Expect(before.properties, request, ReadDocument(path).properties);
        return change;
    }

    /// Several changes of the document, and all of them undone.
    /// @return how many there were.
    int GoAndComeBack(const CString& path)
    {
        std::vector<std::shared_ptr<const Change>> applied;
        std::vector<std::map<std::string, std::string>> states;
        for (int count = 0; count < changes; ++count) {
            CString kept;
            kept.Format(u"kept %d", count);
            states.push_back(State());
            if (auto change = ApplyOne(path, m_kept.Path(kept)))
                applied.push_back(std::move(change));
            else
                states.pop_back();
        }
        const int done = static_cast<int>(applied.size());
        for (; !applied.empty(); applied.pop_back(), states.pop_back()) {
            EXPECT_EQ(applied.back()->Undo(path), 0U);
            EXPECT_TRUE(State() == states.back()) << "something of the file is not as it was";
        }
        return done;
    }

    template <class Build>
    void Try(std::u16string_view name, const Build& build)
    {
        int done = 0;
        for (int number = 0; number < documents && !HasFailure(); ++number) {
            SCOPED_TRACE(number);
            const CString path = m_documents.WriteFile(name, build());
            MarkAsDownloaded(path);
            // Documents are read, and a reader sets only an access time that is in the past.
            StampFile(path, TicksOfUnixTime(1'704'450'600, 1'234'567), TicksOfUnixTime(4'000'000'000, 7));
            done += GoAndComeBack(path);
        }
        EXPECT_GT(done, documents);
    }

private:
    ComThread m_com;
    ScratchFolder m_documents;
    ScratchFolder m_kept;
    std::mt19937 m_random{20240105};
};

} // namespace

TEST_F(RandomProperties, OfCompoundDocumentsGoAndComeBack)
{
    Try(u"a.doc", [this] { return Compound(); });
}

TEST_F(RandomProperties, OfOfficeOpenXmlGoAndComeBack)
{
    if (!HasPackageHandlers())
        GTEST_SKIP() << "no handler of such documents is registered";
    Try(u"a.docx", [this] { return Office(); });
}

TEST_F(RandomProperties, OfOpenDocumentGoAndComeBack)
{
    if (!HasPackageHandlers())
        GTEST_SKIP() << "no handler of such documents is registered";
    Try(u"a.odt", [this] { return OpenDocument(); });
}
