// Handlers in the registry, and writing properties with and without them.
#include <tests/VyrLibraryFuncs/PrivateOperations.h>
#include <tests/support/ComThread.h>
#include <tests/support/CompoundDocument.h>
#include <tests/support/DebugCapture.h>
#include <tests/support/EmptiedQueue.h>
#include <tests/support/MessagePosting.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/ScratchRegistry.h>

#include <VyrLibraryFuncs/metadata/OfficePropertyFuncs.h>
#include <VyrPlatform/WinTypes.h>
#include <VyrPlatform/documents/PropertyStorage.h>

#include <gtest/gtest.h>

using VyrLibraryFuncs::OfficePropertyFuncs;
using VyrLibraryFuncs::PrivateOperations;
using VyrPlatform::PropertyStorage::Document;
using VyrTests::BuildSummary;
using VyrTests::CompoundDocument;
using VyrTests::DebugCapture;
using VyrTests::ReadProperties;
using VyrTests::ReadStreams;
using VyrTests::ScratchRegistry;
using VyrTests::StoredByteText;
using VyrTests::StoredCodePage;
using VyrTests::StoredWideText;
using VyrTests::summaryName;

using Items = std::vector<OfficePropertyFuncs::CLSID_ITEM>;

namespace {

const CString wordId = u"{993BE281-6695-4BA5-8A2A-7AACBFAAB69E}";
constexpr GUID none{};
constexpr GUID word{0x993BE281, 0x6695, 0x4BA5, {0x8A, 0x2A, 0x7A, 0xAC, 0xBF, 0xAA, 0xB6, 0x9E}};
constexpr GUID other{0x00000001, 2, 3, {4, 5, 6, 7, 8, 9, 10, 11}};
constexpr std::uint32_t titleId = 2;

void SetHandler(ScratchRegistry& registry, const CString& extension, const CString& text)
{
    registry.SetText(HKEY_CLASSES_ROOT, extension + u"\\ShellEx\\PropertyHandler", u"", text);
}

CompoundDocument SampleDocument()
{
    CompoundDocument document;
    document.streams[summaryName] =
        BuildSummary({{1, StoredCodePage(1252)}, {titleId, StoredByteText("Old")}, {4, StoredByteText("Author")}});
    document.streams[u"WordDocument"] = std::string(6'000, 'w');
    return document;
}

class DocumentProperties : public testing::Test
{
protected:
    DocumentProperties()
    {
        value.vt = VT_LPWSTR;
        value.pwszVal = reinterpret_cast<decltype(value.pwszVal)>(text.data());
    }
    std::string StoredTitle() { return ReadProperties(ReadStreams(scratch.ReadFile(u"a.doc"))[summaryName])[titleId]; }

    VyrTests::ComThread com;
    VyrTests::ScratchFolder scratch;
    DebugCapture debug;
    std::u16string text = u"Новый";
    PROPVARIANT value{};
};

} // namespace

TEST(OfficePropertyFuncs, HandlerKeyHasTheExtension)
{
    EXPECT_EQ(OfficePropertyFuncs::GetPropertyHandlerRegKey(u".docx"), u".docx\\ShellEx\\PropertyHandler");
    EXPECT_EQ(OfficePropertyFuncs::GetPropertyHandlerRegKey(u""), u"\\ShellEx\\PropertyHandler");
    EXPECT_EQ(OfficePropertyFuncs::GetPropertyHandlerRegKey(u".%s日"), u".%s日\\ShellEx\\PropertyHandler");
}

TEST(OfficePropertyFuncs, ListHasTheHandlersOfTheRegistryInTheOrderGiven)
{
    ScratchRegistry registry;
    SetHandler(registry, u".docx", wordId);
    SetHandler(registry, u".odt", u"{00000001-0002-0003-0405-060708090A0B}");
    const Items items = OfficePropertyFuncs::GetClassIdItemList({{u".odt", 7}, {u".doc", 0}, {u".docx", -1}});
    ASSERT_EQ(items.size(), 3U);
    EXPECT_EQ(items[0].extension, u".odt");
    EXPECT_TRUE(items[0].clsid == other);
    EXPECT_EQ(items[0].flag, 7);
    EXPECT_EQ(items[1].extension, u".doc");
    EXPECT_TRUE(items[1].clsid == none);
    EXPECT_EQ(items[1].flag, 0);
    EXPECT_EQ(items[2].extension, u".docx");
    EXPECT_TRUE(items[2].clsid == word);
    EXPECT_EQ(items[2].flag, -1);
}

TEST(OfficePropertyFuncs, ExtensionWithoutAReadableHandlerIsLeftOut)
{
    ScratchRegistry registry;
    namespace Type = VyrPlatform::Registry::ValueType;
    const CString key = u"\\ShellEx\\PropertyHandler";
    SetHandler(registry, u".text", u"no class id");
    SetHandler(registry, u".cut", u"{993BE281-6695-4BA5-8A2A-7AACBFAAB69E");
    SetHandler(registry, u".empty", u"");
    registry.AddKey(HKEY_CLASSES_ROOT, u".bare" + key);
    registry.SetNumber(HKEY_CLASSES_ROOT, u".number" + key, u"", 5);
    registry.SetText(HKEY_CLASSES_ROOT, u".named" + key, u"Name", wordId);
    registry.SetValue(HKEY_CLASSES_ROOT, u".open" + key, u"", Type::text, VyrTests::UnitBytes(wordId));
    registry.SetValue(HKEY_CLASSES_ROOT, u".odd" + key, u"", Type::text, VyrTests::TextBytes(wordId) + "x");
    SetHandler(registry, u".long", CString(u'x', 300));
    registry.SetValue(HKEY_CLASSES_ROOT, u".expand" + key, u"", Type::expandableText, VyrTests::TextBytes(wordId));
    const Items items = OfficePropertyFuncs::GetClassIdItemList({{u".text", 1},
                                                                 {u".cut", 1},
                                                                 {u".empty", 1},
                                                                 {u".bare", 1},
                                                                 {u".number", 1},
                                                                 {u".named", 1},
                                                                 {u".open", 1},
                                                                 {u".odd", 1},
                                                                 {u".long", 1},
                                                                 {u".missing", 1},
                                                                 {u".expand", 1}});
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].extension, u".expand");
    EXPECT_TRUE(OfficePropertyFuncs::GetClassIdItemList({}).empty());
}

TEST(OfficePropertyFuncs, NewEntryHasNoHandler)
{
    // A constant of a record with a member that begins undefined does not compile.
    const OfficePropertyFuncs::CLSID_ITEM item;
    EXPECT_EQ(item.extension, u"");
    EXPECT_TRUE(item.clsid == none);
    EXPECT_EQ(item.flag, 0);
}

TEST(OfficePropertyFuncs, ClassIdIsThatOfTheFirstEntryWithoutRegardToCase)
{
    const Items items = {{u".doc", none, 0}, {u".docx", word, 1}, {u".DOCX", other, 1}, {u".größe", other, 1}};
    EXPECT_TRUE(OfficePropertyFuncs::GetClassId(u".DOCX", items) == word);
    EXPECT_TRUE(OfficePropertyFuncs::GetClassId(u".docX", items) == word);
    EXPECT_TRUE(OfficePropertyFuncs::GetClassId(u".GRÖßE", items) == other);
    EXPECT_TRUE(OfficePropertyFuncs::GetClassId(u".doc", items) == none);
    EXPECT_TRUE(OfficePropertyFuncs::GetClassId(u"docx", items) == none);
    EXPECT_TRUE(OfficePropertyFuncs::GetClassId(u".docx", {}) == none);
}

TEST(OfficePropertyFuncs, ListsHandleOneEventForEachEntryAndStopForNone)
{
    ScratchRegistry registry;
    SetHandler(registry, u".docx", wordId);
    int handled = 0;
    VyrTests::EmptiedQueue emptied;
    VyrTests::MessagePosting posting;
    for (int index = 0; index < 5; ++index)
        posting.PostWork([&handled] { ++handled; });
    const Items items = OfficePropertyFuncs::GetClassIdItemList({{u".doc", 0}, {u".docx", 1}});
    EXPECT_EQ(items.size(), 2U);
    EXPECT_EQ(handled, 2);
    EXPECT_TRUE(OfficePropertyFuncs::GetClassId(u".docx", items) == word);
    EXPECT_EQ(handled, 4);
    OfficePropertyFuncs::GetClassId(u".doc", items);
    EXPECT_EQ(handled, 5);
    posting.PostStop();
    EXPECT_EQ(OfficePropertyFuncs::GetClassIdItemList({{u".doc", 0}, {u".docx", 1}}).size(), 2U);
    posting.PostStop();
    EXPECT_TRUE(OfficePropertyFuncs::GetClassId(u".docx", items) == word);
}

TEST_F(DocumentProperties, CompoundDocumentIsWrittenWithAnyHandler)
{
    for (const GUID& handler : {none, other}) {
        const CString path = scratch.WriteFile(u"a.doc", SampleDocument().Bytes());
        EXPECT_EQ(OfficePropertyFuncs::SetDumpProps(path, titleId, &value, handler), 1);
        EXPECT_EQ(StoredTitle(), StoredWideText(u"Новый"));
        EXPECT_EQ(ReadStreams(scratch.ReadFile(u"a.doc"))[u"WordDocument"], std::string(6'000, 'w'));
    }
    EXPECT_TRUE(debug.Texts().empty());
}

TEST_F(DocumentProperties, FileOfAnotherKindWithoutHandlerStaysUntouched)
{
    const CString path = scratch.WriteFile(u"a.txt", "plain text");
    EXPECT_EQ(OfficePropertyFuncs::SetDumpProps(path, titleId, &value, none), 0);
    EXPECT_EQ(OfficePropertyFuncs::SetDumpProps(path, titleId, &value, other), 0);
    EXPECT_EQ(OfficePropertyFuncs::SetDumpProps(scratch.Path(u"missing"), titleId, &value, none), 0);
    EXPECT_EQ(scratch.ReadFile(u"a.txt"), "plain text");
    EXPECT_TRUE(debug.Texts().empty());
}

TEST_F(DocumentProperties, DocumentThatCannotBeOpenedGivesZeroWithoutADiagnostic)
{
    const CString path = scratch.WriteFile(u"a.doc", SampleDocument().Bytes());
    const Document document = Document::OpenCompound(path);
    EXPECT_EQ(OfficePropertyFuncs::SetDumpProps(path, titleId, &value, none), 0);
    EXPECT_TRUE(debug.Texts().empty());
}

TEST_F(DocumentProperties, DocumentWithoutSummaryIsToldOf)
{
    CompoundDocument document = SampleDocument();
    document.streams.erase(summaryName);
    const CString path = scratch.WriteFile(u"a.doc", document.Bytes());
    EXPECT_EQ(OfficePropertyFuncs::SetDumpProps(path, titleId, &value, none), 0);
    EXPECT_EQ(debug.Texts(), std::vector<CString>{u"No Summary-Information.\n"});
    EXPECT_EQ(scratch.ReadFile(u"a.doc"), document.Bytes());
}

TEST_F(DocumentProperties, FailedWriteIsToldOfWithItsCode)
{
    const CompoundDocument document = SampleDocument();
    const CString path = scratch.WriteFile(u"a.doc", document.Bytes());
    EXPECT_EQ(OfficePropertyFuncs::SetDumpProps(path, 0, &value, none), 0);
    EXPECT_EQ(OfficePropertyFuncs::SetDumpProps(path, titleId, nullptr, none), 0);
    const CString told = u"IPropertyStg::WriteMultiple() failed w/error 80030057\n";
    EXPECT_EQ(debug.Texts(), (std::vector<CString>{told, told}));
    EXPECT_EQ(StoredTitle(), StoredByteText("Old"));
}

TEST_F(DocumentProperties, OpenDocumentIsWrittenByTheInnerStep)
{
    const CString path = scratch.WriteFile(u"a.doc", SampleDocument().Bytes());
    {
        const Document document = Document::OpenCompound(path);
        ASSERT_TRUE(document.IsOpen());
        EXPECT_EQ(PrivateOperations::SetDumpBuiltInProps(document.Get(), titleId, &value), 1);
        EXPECT_EQ(PrivateOperations::SetDumpBuiltInProps(document.Get(), 1, &value), 0);
    }
    EXPECT_EQ(StoredTitle(), StoredWideText(u"Новый"));
}
