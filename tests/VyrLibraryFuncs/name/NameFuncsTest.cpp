// The dispatcher of the rename engine, the split operations, and whether conflicts are numbered.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>

#include <limits>
#include <vector>

using VyrLibraryFuncs::NameFuncs;
using VyrTests::ScratchFolder;

namespace {

constexpr int smallest = std::numeric_limits<int>::min();
constexpr int largest = std::numeric_limits<int>::max();

/// An item that each rename kind gives another path.
NameFuncs::ITEM OfKind(int renameType)
{
    NameFuncs::ITEM item;
    item.filePath = u"/d/Name.Txt";
    item.dirPath = u"/d/";
    item.fileName = u"Name";
    item.extension = u".Txt";
    item.renameType = renameType;
    item.numberText1 = u"n";
    item.dateTimeTarget = 4;
    item.dateTimeFormat = u"yyyy";
    item.addText = u"+";
    item.convertType = 1;
    item.findText = u"me";
    item.replaceText = u"tion";
    return item;
}

const CString folder = u"/some.folder/";

/// A record in which every field has a different value.
NameFuncs::ITEM FullItem(int kind)
{
    NameFuncs::ITEM item;
    item.filePath = u"/no/such/old.path";
    item.dirPath = folder;
    item.fileName = u"oldName";
    item.extension = u".Ext";
    item.renameType = kind;
    item.index = 3;
    item.numberPosition = 2;
    item.numberText1 = u"a";
    item.numberText2 = u"b";
    item.startNumber = 5;
    item.digits = 4;
    item.step = 7;
    item.dateTimePosition = 1;
    item.dateTimeTarget = 9;
    item.dateTimeFormat = u"yyyy";
    item.addDeleteType = 1;
    item.position = 2;
    item.deleteCount = 1;
    item.addText = u"+";
    item.convertType = 1;
    item.findText = u"l";
    item.replaceText = u"LL";
    item.extensionType = 2;
    item.newExtension = u"new";
    return item;
}

const std::vector<const char16_t*> fullItemResults = {u"a0026b.Ext",  u"1899oldName.Ext", u"oldNa+me.Ext",
                                                      u"OLDNAME.Ext", u"oLLdName.Ext",    u"oldName.new"};

} // namespace

TEST(NameFuncs, EachKindCallsItsComputation)
{
    EXPECT_EQ(NameFuncs::GetRenameFilePath(OfKind(0)), u"/d/n0.Txt");
    EXPECT_EQ(NameFuncs::GetRenameFilePath(OfKind(1)), u"/d/1899.Txt");
    EXPECT_EQ(NameFuncs::GetRenameFilePath(OfKind(2)), u"/d/+Name.Txt");
    EXPECT_EQ(NameFuncs::GetRenameFilePath(OfKind(3)), u"/d/NAME.Txt");
    EXPECT_EQ(NameFuncs::GetRenameFilePath(OfKind(4)), u"/d/Nation.Txt");
    EXPECT_EQ(NameFuncs::GetRenameFilePath(OfKind(5)), u"/d/Name.TXT");
}

TEST(NameFuncs, UnknownKindGivesAnEmptyPath)
{
    for (const int kind : {6, 7, -1, smallest, largest})
        EXPECT_TRUE(NameFuncs::GetRenameFilePath(OfKind(kind)).IsEmpty()) << kind;
}

TEST(NameFuncs, TextsOfTheCallerAreIgnored)
{
    for (int kind = -1; kind <= 6; ++kind) {
        NameFuncs::ITEM item = OfKind(kind);
        const CString path = NameFuncs::GetRenameFilePath(item);
        item.auxText1 = u"/d/Name.Txt";
        item.auxText2 = u"<Folder>%s";
        item.auxText3 = CString(u'x', 10000);
        item.auxText4 = u"\xDC80";
        EXPECT_EQ(NameFuncs::GetRenameFilePath(item), path);
    }
}

TEST(NameFuncs, ComputationsNeverSplitThePath)
{
    NameFuncs::ITEM item = OfKind(4);
    item.filePath = u"/elsewhere/other.png";
    EXPECT_EQ(NameFuncs::GetRenameFilePath(item), u"/d/Nation.Txt");
}

TEST(NameFuncs, CallersRecordIsLeftAsItIs)
{
    const NameFuncs::ITEM item = OfKind(3);
    EXPECT_EQ(NameFuncs::GetRenameFilePath(item), u"/d/NAME.Txt");
    EXPECT_EQ(item.fileName, u"Name");
}

TEST(NameFuncs, ClashesAreNumberedForNumbersDatesEditsAndNewExtensions)
{
    for (const int extensionType : {-1, 0, 1, 2, 3}) {
        for (const int kind : {-1, 0, 1, 2, 3, 4, 6, smallest, largest}) {
            NameFuncs::ITEM item = OfKind(kind);
            item.extensionType = extensionType;
            EXPECT_EQ(NameFuncs::IsResolveConflict(item), kind >= 0 && kind <= 2 ? 1 : 0) << kind;
        }
        NameFuncs::ITEM item = OfKind(5);
        item.extensionType = extensionType;
        EXPECT_EQ(NameFuncs::IsResolveConflict(item), extensionType == 2 ? 1 : 0) << extensionType;
    }
}

TEST(NameFuncs, DottedNameIsCutForAFileAndWholeForAFolder)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"b.c", "");
    const CString folder = scratch.MakeFolder(u"f.c");
    EXPECT_EQ(NameFuncs::GetFName(file), u"b");
    EXPECT_EQ(NameFuncs::GetExtension(file), u".c");
    EXPECT_EQ(NameFuncs::GetFName(folder), u"f.c");
    EXPECT_EQ(NameFuncs::GetExtension(folder), u"");
}

TEST(NameFuncs, PathWithoutAnEntryIsSplitAsAFile)
{
    EXPECT_EQ(NameFuncs::GetFName(u"C:\\a\\b.c"), u"b");
    EXPECT_EQ(NameFuncs::GetExtension(u"C:\\a\\b.c"), u".c");
    EXPECT_EQ(NameFuncs::GetFName(u""), u"");
    EXPECT_EQ(NameFuncs::GetExtension(u""), u"");
}

TEST(NameFuncs, NameWithoutADotHasNoExtension)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"README", "");
    EXPECT_EQ(NameFuncs::GetFName(file), u"README");
    EXPECT_EQ(NameFuncs::GetExtension(file), u"");
}

TEST(NameFuncs, ExtensionRenameLeavesAFolderUnchanged)
{
    const ScratchFolder scratch;
    NameFuncs::ITEM item = OfKind(5);
    item.filePath = scratch.MakeFolder(u"f.c");
    item.extension = u".c";
    for (const int type : {0, 1, 2, 3}) {
        item.extensionType = type;
        EXPECT_EQ(NameFuncs::GetRenameFilePath(item), item.filePath) << type;
    }
}

TEST(NameFuncs, RecordsAreEmptyAndZeroUntilFilled)
{
    const NameFuncs::ITEM item;
    EXPECT_EQ(item.filePath, u"");
    EXPECT_EQ(item.newExtension, u"");
    EXPECT_EQ(item.renameType, 0);
    EXPECT_EQ(item.extensionType, 0);
    const NameFuncs::CONFLICTITEM conflict;
    EXPECT_EQ(conflict.numberFormat, u"");
    EXPECT_EQ(conflict.step, 0);
}

TEST(NameFuncs, FieldsAreInTheirPublishedOrder)
{
    // Designators out of the order of declaration do not compile.
    const NameFuncs::ITEM item{.filePath = u"1",
                               .auxText1 = u"2",
                               .auxText2 = u"3",
                               .auxText3 = u"4",
                               .auxText4 = u"5",
                               .dirPath = u"6",
                               .fileName = u"7",
                               .extension = u"8",
                               .index = 9,
                               .renameType = 10,
                               .numberPosition = 11,
                               .numberText1 = u"12",
                               .numberText2 = u"13",
                               .startNumber = 14,
                               .digits = 15,
                               .step = 16,
                               .dateTimePosition = 17,
                               .dateTimeTarget = 18,
                               .dateTimeFormat = u"19",
                               .addDeleteType = 20,
                               .position = 21,
                               .deleteCount = 22,
                               .addText = u"23",
                               .convertType = 24,
                               .findText = u"25",
                               .replaceText = u"26",
                               .extensionType = 27,
                               .newExtension = u"28"};
    EXPECT_EQ(item.newExtension, u"28");
    const NameFuncs::CONFLICTITEM conflict{.numberFormat = u"1", .position = 2, .startNumber = 3, .step = 4};
    EXPECT_EQ(conflict.step, 4);
    const NameFuncs::RENAMEITEM record{
        .sourcePath = u"1", .destinationPath = u"2", .dateCreated = {}, .dateModified = COleDateTime(4.0)};
    EXPECT_EQ(record.dateModified.m_dt, 4.0);
}

TEST(NameFuncs, KindReadsNoFieldOfAnotherKind)
{
    for (int kind = 0; kind <= 5; ++kind) {
        NameFuncs::ITEM item = FullItem(kind);
        if (kind != 0) {
            item.numberPosition = item.startNumber = item.digits = item.step = smallest;
            item.index = largest;
            item.numberText1 = item.numberText2 = u"!";
        }
        if (kind != 1) {
            item.dateTimePosition = item.dateTimeTarget = largest;
            item.dateTimeFormat = u"!";
        }
        if (kind != 2) {
            item.addDeleteType = item.position = item.deleteCount = largest;
            item.addText = u"!";
        }
        if (kind != 3)
            item.convertType = smallest;
        if (kind != 4)
            item.findText = item.replaceText = u"!";
        if (kind != 5) {
            item.extensionType = smallest;
            item.newExtension = u"!";
        }
        EXPECT_EQ(NameFuncs::GetRenameFilePath(item), folder + fullItemResults[static_cast<std::size_t>(kind)]);
    }
}

TEST(NameFuncs, KindsBeforeExtensionTreatFoldersAsFiles)
{
    const ScratchFolder scratch;
    const CString path = scratch.MakeFolder(u"x.y");
    for (int kind = 0; kind <= 4; ++kind) {
        NameFuncs::ITEM item = FullItem(kind);
        item.filePath = path;
        EXPECT_EQ(NameFuncs::GetRenameFilePath(item), folder + fullItemResults[static_cast<std::size_t>(kind)]);
    }
}
