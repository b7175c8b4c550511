// Real compound documents: every property that hosts offer is written, and nothing else changes.
#include <tests/support/ComThread.h>
#include <tests/support/CompoundDocument.h>
#include <tests/support/DocumentCorpus.h>
#include <tests/support/ScratchFolder.h>

#include <VyrLibraryFuncs/metadata/OfficePropertyFuncs.h>
#include <VyrPlatform/WinTypes.h>

#include <gtest/gtest.h>

using VyrLibraryFuncs::OfficePropertyFuncs;
using VyrTests::CorpusDocument;
using VyrTests::PropertyMap;
using VyrTests::ReadProperties;
using VyrTests::ReadStreams;
using VyrTests::StoredCodePage;
using VyrTests::StoredWideText;
using VyrTests::summaryName;

namespace {

PROPVARIANT WideText(std::u16string& text)
{
    PROPVARIANT value{};
    value.vt = VT_LPWSTR;
    value.pwszVal = reinterpret_cast<decltype(value.pwszVal)>(text.data());
    return value;
}

bool IsTitleWritten(const CString& path)
{
    std::u16string text = u"x";
    PROPVARIANT value = WideText(text);
    return OfficePropertyFuncs::SetDumpProps(path, 2, &value, GUID{}) == 1;
}

} // namespace

TEST(DocumentCorpus, PropertiesOfSoundDocumentsAreWrittenAndAllElseStays)
{
    const std::vector<CorpusDocument> corpus = VyrTests::ReadDocumentCorpus();
    if (corpus.empty())
        GTEST_SKIP() << "VYR_CORPUS names no folder with documents";
    const VyrTests::ComThread com;
    const VyrTests::ScratchFolder scratch;
    int count = 0;
    int refused = 0;
    for (const CorpusDocument& document : corpus) {
        if (document.kind != "ole2" || document.state != "sound")
            continue;
        auto before = ReadStreams(document.bytes);
        PropertyMap expected = ReadProperties(before[summaryName]);
        // The system takes a set without a code page for UTF-16, and the texts in it for something else.
        if (!expected.contains(1) || expected[1].size() < 6)
            continue;
        const CString path = scratch.WriteFile(u"a.doc", document.bytes);
        // Wine refuses to write into the set of one of them.
        if (!IsTitleWritten(path)) {
            EXPECT_TRUE(ReadStreams(scratch.ReadFile(u"a.doc")) == before) << document.name;
            ++refused;
            continue;
        }
        for (const std::uint32_t id : {2U, 3U, 4U, 5U, 6U, 8U}) {
            std::u16string text = u"Проба 日本 " + std::u16string(id * 10, u'x');
            PROPVARIANT value = WideText(text);
            EXPECT_EQ(OfficePropertyFuncs::SetDumpProps(path, id, &value, GUID{}), 1) << document.name;
            expected[id] = StoredWideText(text);
        }
        auto after = ReadStreams(scratch.ReadFile(u"a.doc"));
        PropertyMap now = ReadProperties(after[summaryName]);
        for (const std::uint32_t id : {2U, 3U, 4U, 5U, 6U, 8U})
            EXPECT_EQ(now[id], expected[id]) << document.name << ' ' << id;
        EXPECT_EQ(now.size(), expected.size()) << document.name;
        before.erase(summaryName);
        after.erase(summaryName);
        EXPECT_TRUE(after == before) << document.name;
        ++count;
    }
    EXPECT_GT(count, 60);
    EXPECT_LE(refused, 1);
}

TEST(DocumentCorpus, OtherCompoundDocumentsAreRefusedUnchanged)
{
    const std::vector<CorpusDocument> corpus = VyrTests::ReadDocumentCorpus();
    if (corpus.empty())
        GTEST_SKIP() << "VYR_CORPUS names no folder with documents";
    const VyrTests::ComThread com;
    const VyrTests::ScratchFolder scratch;
    for (const CorpusDocument& document : corpus) {
        if (document.kind != "ole2" || document.state == "sound")
            continue;
        const CString path = scratch.WriteFile(u"a.doc", document.bytes);
        std::u16string text = u"x";
        PROPVARIANT value = WideText(text);
        EXPECT_EQ(OfficePropertyFuncs::SetDumpProps(path, 2, &value, GUID{}), 0) << document.name;
        EXPECT_TRUE(scratch.ReadFile(u"a.doc") == document.bytes) << document.name;
    }
}
