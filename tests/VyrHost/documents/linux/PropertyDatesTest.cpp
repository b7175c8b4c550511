// The first and the last date that documents can have, in several time zones.
#include <VyrHost/documents/Document.h>
#include <VyrHost/documents/Properties.h>

#include <VyrHost/text/Errors.h>
#include <tests/support/CompoundDocument.h>
#include <tests/support/Describe.h>
#include <tests/support/FileMoments.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>
#include <tests/support/TimeZone.h>
#include <tests/support/ZipArchives.h>

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <utility>

using namespace VyrHost::Documents;
using namespace VyrTests;
using VyrPlatform::FileTicks;

namespace Id = VyrPlatform::SummaryId;

namespace {

constexpr FileTicks second = 10'000'000;
/// 9999-12-31 23:59:59 UTC.
constexpr FileTicks last = TicksOfUnixTime(253'402'300'799);

/// The time that `date`, in local time, sets; nothing where it is refused.
std::optional<FileTicks> Parsed(const CString& date)
{
    PropertyRequest request;
    try {
        ParseProperty(CString::Join({u"created=", date}), request);
    } catch (const VyrHost::Text::UsageError&) {
        return std::nullopt;
    }
    return request.times.at(Id::created);
}

std::string Compound()
{
    CompoundDocument document;
    document.streams[summaryName] = BuildSummary({{1, StoredCodePage(1252)}});
    return document.Bytes();
}

std::string Office()
{
    return BuildArchive(
        {{"[Content_Types].xml", R"(<Types xmlns="http://schemas.openxmlformats.org/package/2006/content-types"/>)"},
         {"_rels/.rels", R"(<Relationships xmlns="http://schemas.openxmlformats.org/package/2006/relationships"/>)"}});
}

std::string OpenDocument()
{
    return BuildArchive({{"mimetype", "application/vnd.oasis.opendocument.text"},
                         {"meta.xml", R"(<o:document-meta xmlns:o="urn:oasis:names:tc:opendocument:xmlns:office:1.0">)"
                                      R"(<o:meta/></o:document-meta>)"}});
}

/// The creation time that a document has, once it was set to `date`.
std::optional<FileTicks> SetAndRead(const ScratchFolder& scratch, const CString& path, const CString& date)
{
    PropertyRequest request;
    ParseProperty(CString::Join({u"created=", date}), request);
    VyrHost::Model::Entry entry;
    entry.kind = VyrPlatform::FileSystem::Kind::File;
    const VyrHost::Metadata::Proposal proposal = PropertiesRule(request).Propose(path, entry, 0);
    EXPECT_EQ(proposal.refusal, u"");
    if (!proposal.change)
        return std::nullopt;
    const auto read = PropertiesChange::Read(proposal.change->Before(), proposal.change->After());
    EXPECT_TRUE(read);
    if (!read)
        return std::nullopt;
    const auto change = dynamic_cast<const VyrHost::Model::KeepsFile&>(*read).KeepingAt(scratch.Path(u"kept/0"));
    EXPECT_EQ(change->Apply(path), 0U);
    const Document now = ReadDocument(path);
    EXPECT_EQ(now.problem, u"");
    const auto created = now.properties.times.find(Id::created);
    return created == now.properties.times.end() ? std::nullopt : std::optional(created->second);
}

} // namespace

TEST(PropertyDates, BeginAndEndAtTheSameInstantInEveryZone)
{
    for (const char* const name : {"UTC", "UTC+5", "UTC-9", "America/New_York", "Asia/Tokyo"}) {
        SCOPED_TRACE(name);
        const TimeZone zone(name);
        EXPECT_EQ(Parsed(ShownTime(second)), second);
        EXPECT_EQ(Parsed(ShownTime(0)), std::nullopt);
        EXPECT_EQ(Parsed(u"1600-12-30"), std::nullopt);
        EXPECT_NE(Parsed(u"1601-01-02"), std::nullopt);
        EXPECT_NE(Parsed(u"9999-12-30"), std::nullopt);
    }
}

TEST(PropertyDates, EndWithTheCalendarInTheEastAndWithThatOfUtcInTheWest)
{
    for (const char* const name : {"UTC", "UTC+5", "America/New_York"}) {
        SCOPED_TRACE(name);
        const TimeZone zone(name);
        EXPECT_EQ(Parsed(ShownTime(last)), last);
        EXPECT_EQ(Parsed(ShownTime(last + second)), std::nullopt);
    }
    for (const char* const name : {"UTC-9", "Asia/Tokyo"}) {
        SCOPED_TRACE(name);
        const TimeZone zone(name);
        EXPECT_EQ(Parsed(u"9999-12-31 23:59:59"), last - 9 * 3600 * second);
    }
}

TEST(PropertyDates, FirstAndLastOfThemAreReadBackFromEveryKindOfDocument)
{
    const TimeZone zone("UTC");
    const ScratchFolder scratch;
    for (const auto& [name, bytes] :
         {std::pair(u"a.doc", Compound()), std::pair(u"a.docx", Office()), std::pair(u"a.odt", OpenDocument())}) {
        const CString path = scratch.WriteFile(name, bytes);
        SCOPED_TRACE(ToStdPath(path));
        EXPECT_EQ(SetAndRead(scratch, path, u"1601-01-01 00:00:01"), second);
        EXPECT_EQ(SetAndRead(scratch, path, u"9999-12-31 23:59:59"), last);
    }
}
