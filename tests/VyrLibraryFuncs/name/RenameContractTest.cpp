// The promises of the rename record, its dispatcher and its six kinds, each tested by itself.
#include <VyrLibraryFuncs/name/NameFuncs.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/process/MessageQueue.h>

#include <tests/support/Describe.h>
#include <tests/support/EmptiedQueue.h>
#include <tests/support/FileMoments.h>
#include <tests/support/MessagePosting.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/UserLocale.h>

#include <climits>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

using VyrLibraryFuncs::NameFuncs;
using VyrLibraryUtils::FileUtils;
using VyrTests::ScratchFolder;

namespace {

const std::vector<int> extremes = {INT_MIN, INT_MIN + 1, -1, INT_MAX - 1, INT_MAX};

/// The record's folder, and the path that stands for "unchanged": neither is the other's split, so that a result tells
/// which of them it was made of.
const CString folder = u"/some.folder/";
const CString unchanged = u"/no/such/old.path";

NameFuncs::ITEM Entry(const CString& name, const CString& extension = u".Ext")
{
    NameFuncs::ITEM item;
    item.filePath = unchanged;
    item.dirPath = folder;
    item.fileName = name;
    item.extension = extension;
    return item;
}

CString Renamed(const CString& name, const CString& extension = u".Ext")
{
    return folder + name + extension;
}

NameFuncs::ITEM Numbered(int start, int step, int digits, int index, int position = 0)
{
    NameFuncs::ITEM item = Entry(u"old");
    item.startNumber = start;
    item.step = step;
    item.digits = digits;
    item.index = index;
    item.numberPosition = position;
    return item;
}

/// The number's text alone.
CString NumberText(int start, int step, int digits, int index)
{
    const CString path = NameFuncs::GetSequenceNumberFilePath(Numbered(start, step, digits, index));
    const CString rest = path.Mid(folder.GetLength());
    return rest.Left(rest.GetLength() - 4);
}

NameFuncs::ITEM Edited(const CString& name, int type, int position, int count = 0)
{
    NameFuncs::ITEM item = Entry(name);
    item.addDeleteType = type;
    item.position = position;
    item.deleteCount = count;
    item.addText = u"X";
    return item;
}

struct Edit
{
    int type;
    const char16_t* name;
    int position;
    int count;
    /// Null: the path stays as it is.
    const char16_t* result;
};

void ExpectEdits(const std::vector<Edit>& edits)
{
    for (const Edit& edit : edits) {
        SCOPED_TRACE(testing::Message() << "type " << edit.type << ", position " << edit.position << ", count "
                                        << edit.count);
        EXPECT_EQ(NameFuncs::GetAddDeleteFilePath(Edited(edit.name, edit.type, edit.position, edit.count)),
                  edit.result ? Renamed(edit.result) : unchanged);
    }
}

NameFuncs::ITEM Converted(const CString& name, int type)
{
    NameFuncs::ITEM item = Entry(name);
    item.convertType = type;
    return item;
}

NameFuncs::ITEM Replaced(const CString& name, const CString& find, const CString& replacement)
{
    NameFuncs::ITEM item = Entry(name);
    item.findText = find;
    item.replaceText = replacement;
    return item;
}

NameFuncs::ITEM Extended(const CString& extension, int type, const CString& newExtension = u"jpg")
{
    NameFuncs::ITEM item = Entry(u"Name", extension);
    item.extensionType = type;
    item.newExtension = newExtension;
    return item;
}

/// A file whose modified, accessed and picture times differ in their years: 2019, 2020, 2024.
CString DatedPicture(const ScratchFolder& scratch)
{
    const CString path = scratch.WriteFile(u"p.jpg", VyrTests::BuildJpeg(VyrTests::PictureFacts{}));
    VyrTests::StampFile(path, VyrTests::TicksOfUnixTime(1'550'000'000), VyrTests::TicksOfUnixTime(1'600'000'000));
    return path;
}

NameFuncs::ITEM Dated(const CString& path, int target, int position = 0, const CString& format = u"yyyyMMdd_HHmmss")
{
    NameFuncs::ITEM item = Entry(u"old");
    item.filePath = path;
    item.dateTimeTarget = target;
    item.dateTimePosition = position;
    item.dateTimeFormat = format;
    return item;
}

/// A record in which every field has a value of its own.
NameFuncs::ITEM FullItem(int kind)
{
    NameFuncs::ITEM item = Entry(u"oldName");
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

/// Calls until a stop is told, at most as often as messages could be pending.
bool IsStopPending()
{
    for (int i = 0; i < 20; ++i)
        if (VyrPlatform::MessageQueue::DrainOne())
            return true;
    return false;
}

} // namespace

// The dispatcher

TEST(RenameContract, EachKindIsComputedByItsOwnOperation)
{
    for (int kind = 0; kind <= 5; ++kind)
        EXPECT_EQ(NameFuncs::GetRenameFilePath(FullItem(kind)),
                  folder + fullItemResults[static_cast<std::size_t>(kind)]);
    EXPECT_EQ(NameFuncs::GetSequenceNumberFilePath(FullItem(9)), folder + fullItemResults[0]);
    EXPECT_EQ(NameFuncs::GetDateTimeFilePath(FullItem(9)), folder + fullItemResults[1]);
    EXPECT_EQ(NameFuncs::GetAddDeleteFilePath(FullItem(9)), folder + fullItemResults[2]);
    EXPECT_EQ(NameFuncs::GetConvertFilePath(FullItem(9)), folder + fullItemResults[3]);
    EXPECT_EQ(NameFuncs::GetReplaceFilePath(FullItem(9)), folder + fullItemResults[4]);
    EXPECT_EQ(NameFuncs::GetExtensionFilePath(FullItem(9)), folder + fullItemResults[5]);
}

TEST(RenameContract, UnknownKindGivesAnEmptyPath)
{
    for (const int kind : extremes)
        EXPECT_EQ(NameFuncs::GetRenameFilePath(FullItem(kind)), u"");
    EXPECT_EQ(NameFuncs::GetRenameFilePath(FullItem(6)), u"");
}

TEST(RenameContract, HostTextsChangeNoResult)
{
    for (int kind = 0; kind <= 5; ++kind) {
        NameFuncs::ITEM item = FullItem(kind);
        item.auxText1 = u"/other/";
        item.auxText2 = CString(u'%', 1000);
        item.auxText3 = u"<Folder>";
        item.auxText4 = u"\xD800";
        EXPECT_EQ(NameFuncs::GetRenameFilePath(item), folder + fullItemResults[static_cast<std::size_t>(kind)]);
    }
}

TEST(RenameContract, KindReadsNoFieldOfAnotherKind)
{
    for (int kind = 0; kind <= 5; ++kind) {
        NameFuncs::ITEM item = FullItem(kind);
        if (kind != 0) {
            item.numberPosition = item.startNumber = item.digits = item.step = INT_MIN;
            item.index = INT_MAX;
            item.numberText1 = item.numberText2 = u"!";
        }
        if (kind != 1) {
            item.dateTimePosition = item.dateTimeTarget = INT_MAX;
            item.dateTimeFormat = u"!";
        }
        if (kind != 2) {
            item.addDeleteType = item.position = item.deleteCount = INT_MAX;
            item.addText = u"!";
        }
        if (kind != 3)
            item.convertType = INT_MIN;
        if (kind != 4)
            item.findText = item.replaceText = u"!";
        if (kind != 5) {
            item.extensionType = INT_MIN;
            item.newExtension = u"!";
        }
        EXPECT_EQ(NameFuncs::GetRenameFilePath(item), folder + fullItemResults[static_cast<std::size_t>(kind)]);
    }
}

TEST(RenameContract, PathIsNeverSplitAgain)
{
    // The folder has no separator at its end and the extension no dot: they are joined as they stand.
    for (int kind = 0; kind <= 4; ++kind) {
        NameFuncs::ITEM item = FullItem(kind);
        item.dirPath = u"dir";
        item.extension = u"ext";
        const CString path = NameFuncs::GetRenameFilePath(item);
        EXPECT_TRUE(path.View().starts_with(u"dir") && path.View().ends_with(u"ext"));
        EXPECT_EQ(path.Find(u"old.path"), -1);
    }
}

TEST(RenameContract, NameOfAFileEndsBeforeItsLastDotAndThatOfAFolderIsWhole)
{
    const ScratchFolder scratch;
    const CString file = scratch.WriteFile(u"b.c", "x");
    const CString directory = scratch.MakeFolder(u"d/b.c");
    EXPECT_EQ(NameFuncs::GetFName(file), u"b");
    EXPECT_EQ(NameFuncs::GetExtension(file), u".c");
    EXPECT_EQ(NameFuncs::GetFName(directory), u"b.c");
    EXPECT_EQ(NameFuncs::GetExtension(directory), u"");
    const CString plain = scratch.MakeFolder(u"d/plain");
    EXPECT_EQ(NameFuncs::GetFName(plain), u"plain");
    EXPECT_EQ(NameFuncs::GetExtension(plain), u"");
}

TEST(RenameContract, NameOfAMissingPathIsThatOfAFile)
{
    EXPECT_EQ(NameFuncs::GetFName(u"C:\\no.such\\b.c"), u"b");
    EXPECT_EQ(NameFuncs::GetExtension(u"C:\\no.such\\b.c"), u".c");
    EXPECT_EQ(NameFuncs::GetFName(u"/no.such/b"), u"b");
    EXPECT_EQ(NameFuncs::GetExtension(u"/no.such/b"), u"");
    EXPECT_EQ(NameFuncs::GetFName(u""), u"");
    EXPECT_EQ(NameFuncs::GetExtension(u""), u"");
}

TEST(RenameContract, ConflictsAreNumberedForTheFirstThreeKindsAndANewExtension)
{
    NameFuncs::ITEM item;
    for (const int extensionType : {INT_MIN, -1, 0, 1, 2, 3, INT_MAX}) {
        item.extensionType = extensionType;
        for (const int kind : {0, 1, 2}) {
            item.renameType = kind;
            EXPECT_EQ(NameFuncs::IsResolveConflict(item), 1);
        }
        for (const int kind : {INT_MIN, -6, -5, -1, 3, 4, 6, INT_MAX}) {
            item.renameType = kind;
            EXPECT_EQ(NameFuncs::IsResolveConflict(item), 0);
        }
        item.renameType = 5;
        EXPECT_EQ(NameFuncs::IsResolveConflict(item), extensionType == 2 ? 1 : 0);
    }
}

// Sequence numbers

TEST(RenameContract, NumberGoesWhereItsPositionSays)
{
    const std::vector<const char16_t*> names = {u"a026", u"026a", u"a026b", u"026oldName", u"oldName026"};
    for (int position = 0; position <= 4; ++position) {
        NameFuncs::ITEM item = FullItem(0);
        item.digits = 3;
        item.numberPosition = position;
        EXPECT_EQ(NameFuncs::GetSequenceNumberFilePath(item), Renamed(names[static_cast<std::size_t>(position)]));
    }
}

TEST(RenameContract, UnknownNumberPositionGivesAnEmptyName)
{
    NameFuncs::ITEM item = FullItem(0);
    for (const int position : {INT_MIN, -1, 5, INT_MAX}) {
        item.numberPosition = position;
        EXPECT_EQ(NameFuncs::GetSequenceNumberFilePath(item), folder + u".Ext");
    }
}

TEST(RenameContract, NumbersReachTheirWidthAndGrowBeyondIt)
{
    EXPECT_EQ(NumberText(1, 1, 3, 0), u"001");
    EXPECT_EQ(NumberText(1, 1, 3, 9), u"010");
    EXPECT_EQ(NumberText(1, 1, 3, 98), u"099");
    EXPECT_EQ(NumberText(1, 1, 3, 99), u"100");
    EXPECT_EQ(NumberText(1, 1, 3, 999), u"1000");
    EXPECT_EQ(NumberText(0, 1, 3, 0), u"000");
}

TEST(RenameContract, DigitsBelowTwoPadNothing)
{
    for (const int digits : {INT_MIN, -1, 0, 1}) {
        EXPECT_EQ(NumberText(5, 1, digits, 0), u"5");
        EXPECT_EQ(NumberText(-5, 1, digits, 0), u"-5");
    }
    EXPECT_EQ(NumberText(5, 1, 2, 0), u"05");
}

TEST(RenameContract, NegativeNumberGetsEveryZeroBeforeItsMinusSign)
{
    EXPECT_EQ(NumberText(-5, 0, 3, 0), u"00-5");
    EXPECT_EQ(NumberText(-12345, 0, 3, 0), u"00-12345");
    EXPECT_EQ(NumberText(INT_MIN, 0, 2, 0), u"0-2147483648");
}

TEST(RenameContract, WidthBeyondEveryScaleAddsAZeroForEachDigit)
{
    EXPECT_EQ(NumberText(INT_MAX, 0, 10, 0), u"2147483647");
    EXPECT_EQ(NumberText(INT_MAX, 0, 11, 0), u"02147483647");
    EXPECT_EQ(NumberText(7, 0, 20, 0), CString(u'0', 19) + u"7");
    EXPECT_EQ(NumberText(7, 0, 100, 0), CString(u'0', 99) + u"7");
    EXPECT_EQ(NumberText(INT_MIN, 0, 100, 0), CString(u'0', 99) + u"-2147483648");
    EXPECT_EQ(NumberText(INT_MAX, 0, 100, 0), CString(u'0', 90) + u"2147483647");
}

TEST(RenameContract, StepZeroGivesEveryEntryTheSameNumber)
{
    for (const int index : {0, 1, INT_MIN, INT_MAX})
        EXPECT_EQ(NumberText(8, 0, 1, index), u"8");
}

TEST(RenameContract, NumberCountsDownAndWrapsInThirtyTwoBits)
{
    EXPECT_EQ(NumberText(10, -3, 1, 4), u"-2");
    EXPECT_EQ(NumberText(INT_MAX, 1, 1, 1), u"-2147483648");
    EXPECT_EQ(NumberText(INT_MIN, -1, 1, 1), u"2147483647");
    EXPECT_EQ(NumberText(0, INT_MAX, 1, 2), u"-2");
    EXPECT_EQ(NumberText(0, INT_MIN, 1, 2), u"0");
    EXPECT_EQ(NumberText(0, INT_MIN, 1, INT_MIN), u"0");
    EXPECT_EQ(NumberText(1, INT_MAX, 1, INT_MAX), u"2");
    EXPECT_EQ(NumberText(5, -1, 1, INT_MIN), u"-2147483643");
}

TEST(RenameContract, BothNumberTextsEmptyGiveTheBareNumber)
{
    NameFuncs::ITEM item = Numbered(4, 1, 2, 0, 2);
    EXPECT_EQ(NameFuncs::GetSequenceNumberFilePath(item), Renamed(u"04"));
    item.numberText1 = u"%d<Folder>";
    item.numberText2 = u"?%s";
    EXPECT_EQ(NameFuncs::GetSequenceNumberFilePath(item), Renamed(u"%d<Folder>04?%s"));
}

TEST(RenameContract, NumbersKeepTheEmptyExtensionOfAFolder)
{
    NameFuncs::ITEM item = Numbered(4, 1, 2, 0, 4);
    item.fileName = u"x.y";
    item.extension.Empty();
    EXPECT_EQ(NameFuncs::GetSequenceNumberFilePath(item), folder + u"x.y04");
}

TEST(RenameContract, PaddingHandlesOneMessageForEachDigitAfterTheFirst)
{
    const VyrTests::MessagePosting queue;
    int handled = 0;
    const VyrTests::EmptiedQueue emptied;
    for (int i = 0; i < 9; ++i)
        queue.PostWork([&handled] { ++handled; });
    EXPECT_EQ(NumberText(1234567, 0, 5, 0), u"1234567");
    EXPECT_EQ(handled, 4);
    EXPECT_EQ(NumberText(1, 0, 1, 0), u"1");
    EXPECT_EQ(handled, 4);
    EXPECT_EQ(NumberText(1, 0, 6, 0), u"000001");
    EXPECT_EQ(handled, 9);
}

TEST(RenameContract, StopEndsThePaddingWithTheZerosSoFar)
{
    const VyrTests::MessagePosting queue;
    const VyrTests::EmptiedQueue emptied;
    queue.PostStop();
    EXPECT_EQ(NumberText(1, 0, 9, 0), u"1");
    EXPECT_EQ(NumberText(1, 0, 9, 0), u"000000001");
    queue.PostWork([] {});
    queue.PostWork([] {});
    queue.PostStop();
    EXPECT_EQ(NumberText(1, 0, 9, 0), u"001");
    queue.PostStop();
    EXPECT_EQ(NumberText(1, 0, 1, 0), u"1");
    EXPECT_TRUE(IsStopPending());
}

// Date-times

TEST(RenameContract, DateTimeTargetChoosesTheFilesTime)
{
    const ScratchFolder scratch;
    const CString path = DatedPicture(scratch);
    // The access time first: a look into the picture may change it.
    EXPECT_EQ(NameFuncs::GetDateTimeFilePath(Dated(path, 2, 0, u"yyyy")), Renamed(u"2020"));
    EXPECT_EQ(NameFuncs::GetDateTimeFormat(path, u"yyyy", 2), u"2020");
    const CString created = VyrLibraryUtils::DateTimeUtils::GetOleDateTimeFormat(
        VyrLibraryUtils::DateTimeUtils::GetDateCreated(path), u"%Y%m%d_%H%M%S");
    EXPECT_EQ(NameFuncs::GetDateTimeFilePath(Dated(path, 0, 0, u"yyyy")), Renamed(u"2019"));
    EXPECT_EQ(NameFuncs::GetDateTimeFilePath(Dated(path, 1)), Renamed(created));
    EXPECT_EQ(NameFuncs::GetDateTimeFilePath(Dated(path, 3)), Renamed(u"20240719_184503"));
    EXPECT_EQ(NameFuncs::GetDateTimeFormat(path, u"yyyy", 0), u"2019");
    EXPECT_EQ(NameFuncs::GetDateTimeFormat(path, u"yyyyMMdd_HHmmss", 1), created);
    EXPECT_EQ(NameFuncs::GetDateTimeFormat(path, u"yyyyMMdd_HHmmss", 3), u"20240719_184503");
}

TEST(RenameContract, UnknownDateTimeTargetIsTheZeroDateTime)
{
    const ScratchFolder scratch;
    const CString path = DatedPicture(scratch);
    for (const int target : {INT_MIN, -1, 4, 7, INT_MAX})
        for (const CString& each : {path, CString(u"/no/such/file"), CString()}) {
            EXPECT_EQ(NameFuncs::GetDateTimeFilePath(Dated(each, target)), Renamed(u"18991230_000000"));
            EXPECT_EQ(NameFuncs::GetDateTimeFormat(each, u"yyyyMMdd_HHmmss", target), u"18991230_000000");
        }
}

TEST(RenameContract, DateTimeGoesWhereItsPositionSays)
{
    EXPECT_EQ(NameFuncs::GetDateTimeFilePath(Dated(u"", 7, 0, u"yyyy-")), Renamed(u"1899-"));
    EXPECT_EQ(NameFuncs::GetDateTimeFilePath(Dated(u"", 7, 1, u"yyyy-")), Renamed(u"1899-old"));
    EXPECT_EQ(NameFuncs::GetDateTimeFilePath(Dated(u"", 7, 2, u"yyyy-")), Renamed(u"old1899-"));
    for (const int position : {INT_MIN, -1, 3, INT_MAX})
        EXPECT_EQ(NameFuncs::GetDateTimeFilePath(Dated(u"", 7, position, u"yyyy-")), folder + u".Ext");
}

TEST(RenameContract, DateTimeThatAFileLacksIsAnEmptyText)
{
    const ScratchFolder scratch;
    const CString text = scratch.WriteFile(u"a.txt", "x");
    EXPECT_EQ(NameFuncs::GetDateTimeFilePath(Dated(text, 3, 1, u"'x'yyyy")), Renamed(u"old"));
    for (int target = 0; target <= 3; ++target) {
        EXPECT_EQ(NameFuncs::GetDateTimeFilePath(Dated(u"/no/such/file", target)), folder + u".Ext");
        EXPECT_EQ(NameFuncs::GetDateTimeFormat(u"/no/such/file", u"'x'yyyy", target), u"");
    }
}

TEST(RenameContract, EmptyDateTimeFormatAddsNothing)
{
    for (const int target : {0, 3, 7, INT_MIN}) {
        EXPECT_EQ(NameFuncs::GetDateTimeFilePath(Dated(u"", target, 2, u"")), Renamed(u"old"));
        EXPECT_EQ(NameFuncs::GetDateTimeFormat(u"", u"", target), u"");
    }
}

TEST(RenameContract, FolderIsDatedByItsOwnTime)
{
    const ScratchFolder scratch;
    const CString path = scratch.MakeFolder(u"d");
    VyrTests::StampFile(path, VyrTests::TicksOfUnixTime(1'550'000'000), VyrTests::TicksOfUnixTime(1'600'000'000));
    EXPECT_EQ(NameFuncs::GetDateTimeFilePath(Dated(path, 0, 0, u"yyyy")), Renamed(u"2019"));
    EXPECT_EQ(NameFuncs::GetDateTimeFilePath(Dated(path, 2, 0, u"yyyy")), Renamed(u"2020"));
}

// Add and delete

TEST(RenameContract, TextIsInsertedFromTheStart)
{
    ExpectEdits({{0, u"abc", 0, 0, u"Xabc"},
                 {0, u"abc", 1, 0, u"aXbc"},
                 {0, u"abc", 3, 0, u"abcX"},
                 {0, u"abc", 4, 0, nullptr},
                 {0, u"", 0, 0, u"X"},
                 {0, u"", 1, 0, nullptr},
                 {0, u"abc", INT_MAX, 0, nullptr},
                 {0, u"abc", -1, 0, u"Xabc"},
                 {0, u"abc", INT_MIN, 0, u"Xabc"},
                 {0, u"abc", 1, INT_MAX, u"aXbc"},
                 {0, u"abc", 1, INT_MIN, u"aXbc"}});
}

TEST(RenameContract, TextIsInsertedFromTheEnd)
{
    ExpectEdits({{1, u"abc", 0, 0, u"abcX"},
                 {1, u"abc", 1, 0, u"abXc"},
                 {1, u"abc", 3, 0, u"Xabc"},
                 {1, u"abc", 4, 0, nullptr},
                 {1, u"abc", INT_MAX, 0, nullptr},
                 {1, u"abc", -1, 0, u"abcX"},
                 {1, u"abc", INT_MIN, 0, u"abcX"},
                 {1, u"abc", 1, INT_MAX, u"abXc"}});
}

TEST(RenameContract, FirstOrLastCharactersAreKept)
{
    ExpectEdits({{2, u"abc", 0, 0, u""},
                 {2, u"abc", 2, 0, u"ab"},
                 {2, u"abc", 3, 0, u"abc"},
                 {2, u"abc", 4, 0, nullptr},
                 {2, u"abc", INT_MAX, 0, nullptr},
                 {2, u"abc", INT_MIN, 0, u""},
                 {3, u"abc", 0, 0, u""},
                 {3, u"abc", 2, 0, u"bc"},
                 {3, u"abc", 3, 0, u"abc"},
                 {3, u"abc", 4, 0, nullptr},
                 {3, u"abc", INT_MAX, 0, nullptr},
                 {3, u"abc", INT_MIN, 0, u""},
                 {3, u"abc", 2, INT_MAX, u"bc"}});
}

TEST(RenameContract, CharactersAreDeletedFromTheStart)
{
    ExpectEdits({{4, u"abcdef", 2, 3, u"abf"},
                 {4, u"abcdef", 2, 4, u"ab"},
                 {4, u"abcdef", 2, 5, nullptr},
                 {4, u"abcdef", 0, 6, u""},
                 {4, u"abcdef", 0, 0, u"abcdef"},
                 {4, u"abcdef", 6, 0, u"abcdef"},
                 {4, u"abcdef", 6, 1, nullptr},
                 {4, u"abcdef", 7, 0, nullptr},
                 {4, u"abcdef", INT_MAX, 0, nullptr},
                 {4, u"abcdef", 0, INT_MAX, nullptr},
                 {4, u"abcdef", 0, INT_MIN, u"abcdef"},
                 {4, u"abcdef", INT_MIN, 0, u"abcdef"},
                 {4, u"abcdef", INT_MAX, INT_MAX, nullptr},
                 {4, u"abcdef", INT_MAX, INT_MIN, nullptr},
                 {4, u"abcdef", 2, -1, u"abcdef"},
                 {4, u"abcdef", 6, -2, u"abcdef"}});
}

TEST(RenameContract, CharactersAreDeletedBeforeTheEnd)
{
    ExpectEdits({{5, u"abcdef", 1, 2, u"abcf"},
                 {5, u"abcdef", 0, 2, u"abcd"},
                 {5, u"abcdef", 2, 4, u"ef"},
                 {5, u"abcdef", 2, 5, nullptr},
                 {5, u"abcdef", 0, 6, u""},
                 {5, u"abcdef", 6, 0, u"abcdef"},
                 {5, u"abcdef", 6, 1, nullptr},
                 {5, u"abcdef", 7, 0, nullptr},
                 {5, u"abcdef", 0, INT_MAX, nullptr},
                 {5, u"abcdef", 0, INT_MIN, u"abcdef"},
                 {5, u"abcdef", INT_MIN, 0, u"abcdef"},
                 {5, u"abcdef", INT_MAX, INT_MAX, nullptr},
                 {5, u"abcdef", INT_MAX, INT_MIN, nullptr}});
}

TEST(RenameContract, NegativeCountsBeforeTheEndTakeWhatThereIsOfEachPart)
{
    ExpectEdits({{5, u"abcdef", -1, 2, u"abcde"},
                 {5, u"abcdef", -3, 2, u"abcdef"},
                 {5, u"abcdef", 1, -2, u"abcdeff"},
                 {5, u"abcdef", 6, INT_MIN, u"abcdefabcdef"},
                 {5, u"abcdef", INT_MIN, INT_MAX, u"abcdef"},
                 {5, u"abcdef", INT_MIN, INT_MIN, u"abcdef"}});
}

TEST(RenameContract, UnknownAddDeleteTypeLeavesThePath)
{
    for (const int type : {INT_MIN, -1, 6, INT_MAX})
        EXPECT_EQ(NameFuncs::GetAddDeleteFilePath(Edited(u"abc", type, 1, 1)), unchanged);
}

TEST(RenameContract, CharactersAreUtf16UnitsOfTheNameWithoutItsExtension)
{
    // U+1F600 is two units, which a position between them parts.
    ExpectEdits({{0, u"\xD83D\xDE00", 1, 0, u"\xD83DX\xDE00"},
                 {2, u"\xD83D\xDE00", 1, 0, u"\xD83D"},
                 {4, u"a\xD83D\xDE00", 1, 2, u"a"},
                 {2, u"a", 5, 0, nullptr}});
}

// Case

TEST(RenameContract, CaseIsConvertedAsItsTypeSays)
{
    EXPECT_EQ(NameFuncs::GetConvertFilePath(Converted(u"hello world", 0)), Renamed(u"Hello world"));
    EXPECT_EQ(NameFuncs::GetConvertFilePath(Converted(u"hELLO World", 0)), Renamed(u"HELLO World"));
    EXPECT_EQ(NameFuncs::GetConvertFilePath(Converted(u"", 0)), Renamed(u""));
    EXPECT_EQ(NameFuncs::GetConvertFilePath(Converted(u" a", 0)), Renamed(u" a"));
    EXPECT_EQ(NameFuncs::GetConvertFilePath(Converted(u"a b-\xE9\x3C9\x44F", 1)), Renamed(u"A B-\xC9\x3A9\x42F"));
    EXPECT_EQ(NameFuncs::GetConvertFilePath(Converted(u"A B-\xC9\x3A9\x42F", 2)), Renamed(u"a b-\xE9\x3C9\x44F"));
    for (int type = 0; type <= 2; ++type)
        EXPECT_EQ(NameFuncs::GetConvertFilePath(Converted(u"", type)), folder + u".Ext");
}

TEST(RenameContract, UnknownConversionGivesAnEmptyName)
{
    for (const int type : {INT_MIN, -1, 3, INT_MAX})
        EXPECT_EQ(NameFuncs::GetConvertFilePath(Converted(u"abc", type)), folder + u".Ext");
}

TEST(RenameContract, CaseMapsOneUnitToOne)
{
    EXPECT_EQ(NameFuncs::GetConvertFilePath(Converted(u"stra\xDF\x65", 1)), Renamed(u"STRA\xDF\x45"));
    EXPECT_EQ(NameFuncs::GetConvertFilePath(Converted(u"\xD83D\xDC80", 1)), Renamed(u"\xD83D\xDC80"));
    EXPECT_EQ(NameFuncs::GetConvertFilePath(Converted(u"\xDC80z", 0)), Renamed(u"\xDC80z"));
}

TEST(RenameContract, CaseIsTheSameInEveryLocale)
{
    for (const char16_t* const name : {u"tr_TR", u"az", u"en_US"}) {
        const VyrTests::UserLocale locale(name);
        EXPECT_EQ(NameFuncs::GetConvertFilePath(Converted(u"scan.tiff", 1)), Renamed(u"SCAN.TIFF"));
        EXPECT_EQ(NameFuncs::GetConvertFilePath(Converted(u"SCAN.TIFF", 2)), Renamed(u"scan.tiff"));
    }
}

// Replace

TEST(RenameContract, EveryOccurrenceIsReplacedFromTheStartWithoutOverlap)
{
    EXPECT_EQ(NameFuncs::GetReplaceFilePath(Replaced(u"aaaaa", u"aa", u"b")), Renamed(u"bba"));
    EXPECT_EQ(NameFuncs::GetReplaceFilePath(Replaced(u"abab", u"ab", u"abab")), Renamed(u"abababab"));
    EXPECT_EQ(NameFuncs::GetReplaceFilePath(Replaced(u"aab", u"ab", u"b")), Renamed(u"ab"));
    EXPECT_EQ(NameFuncs::GetReplaceFilePath(Replaced(u"abc", u"abc", u"")), Renamed(u""));
}

TEST(RenameContract, ReplacingIsCaseSensitiveAndLeavesFolderAndExtension)
{
    EXPECT_EQ(NameFuncs::GetReplaceFilePath(Replaced(u"aAa", u"A", u"x")), Renamed(u"axa"));
    EXPECT_EQ(NameFuncs::GetReplaceFilePath(Replaced(u"\xE9\xC9", u"\xC9", u"x")), Renamed(u"\xE9x"));
    EXPECT_EQ(NameFuncs::GetReplaceFilePath(Replaced(u"x", u"Ext", u"")), Renamed(u"x"));
    EXPECT_EQ(NameFuncs::GetReplaceFilePath(Replaced(u"x", u".", u"_")), Renamed(u"x"));
    EXPECT_EQ(NameFuncs::GetReplaceFilePath(Replaced(u"x", u"some", u"_")), Renamed(u"x"));
}

TEST(RenameContract, EmptyTextToFindReplacesNothing)
{
    EXPECT_EQ(NameFuncs::GetReplaceFilePath(Replaced(u"abc", u"", u"x")), Renamed(u"abc"));
    EXPECT_EQ(NameFuncs::GetReplaceFilePath(Replaced(u"", u"", u"x")), Renamed(u""));
}

// Extensions

TEST(RenameContract, ExtensionIsChangedAsItsTypeSays)
{
    EXPECT_EQ(NameFuncs::GetExtensionFilePath(Extended(u".jPg", 0)), folder + u"Name.JPG");
    EXPECT_EQ(NameFuncs::GetExtensionFilePath(Extended(u".jPg", 1)), folder + u"Name.jpg");
    EXPECT_EQ(NameFuncs::GetExtensionFilePath(Extended(u".jpeg", 2)), folder + u"Name.jpg");
    EXPECT_EQ(NameFuncs::GetExtensionFilePath(Extended(u"", 2)), folder + u"Name.jpg");
    EXPECT_EQ(NameFuncs::GetExtensionFilePath(Extended(u"", 0)), folder + u"Name");
    EXPECT_EQ(NameFuncs::GetExtensionFilePath(Extended(u"", 1)), folder + u"Name");
    EXPECT_EQ(NameFuncs::GetExtensionFilePath(Extended(u".x", 2, u"")), folder + u"Name.");
    EXPECT_EQ(NameFuncs::GetExtensionFilePath(Extended(u".x", 2, u".jPg")), folder + u"Name..jPg");
}

TEST(RenameContract, UnknownExtensionTypeDropsTheExtension)
{
    for (const int type : {INT_MIN, -1, 3, INT_MAX})
        EXPECT_EQ(NameFuncs::GetExtensionFilePath(Extended(u".jpg", type)), folder + u"Name");
}

TEST(RenameContract, ExtensionOfAnExistingFolderStays)
{
    const ScratchFolder scratch;
    const CString path = scratch.MakeFolder(u"x.y");
    for (const int type : {INT_MIN, -1, 0, 1, 2, 3, INT_MAX}) {
        NameFuncs::ITEM item = Extended(u".y", type);
        item.filePath = path;
        EXPECT_EQ(NameFuncs::GetExtensionFilePath(item), path);
    }
    NameFuncs::ITEM item = Extended(u".y", 2);
    item.filePath = scratch.WriteFile(u"a.y", "x");
    EXPECT_EQ(NameFuncs::GetExtensionFilePath(item), folder + u"Name.jpg");
}

TEST(RenameContract, KindsBeforeExtensionTreatFoldersAsFiles)
{
    const ScratchFolder scratch;
    const CString path = scratch.MakeFolder(u"x.y");
    for (int kind = 0; kind <= 4; ++kind) {
        NameFuncs::ITEM item = FullItem(kind);
        item.filePath = path;
        EXPECT_EQ(NameFuncs::GetRenameFilePath(item), folder + fullItemResults[static_cast<std::size_t>(kind)]);
    }
}

TEST(RenameContract, SplitPartsOfARealPathMakeItAgain)
{
    const ScratchFolder scratch;
    for (const CString& path : {scratch.WriteFile(u"a.b/c.d.e", "x"), scratch.Path(u"a.b"), scratch.WriteFile(u".rc"),
                                scratch.WriteFile(u"plain")}) {
        NameFuncs::ITEM item;
        item.filePath = path;
        item.dirPath = FileUtils::GetSplitDirPath(path);
        item.fileName = NameFuncs::GetFName(path);
        item.extension = NameFuncs::GetExtension(path);
        item.renameType = 4;
        EXPECT_EQ(NameFuncs::GetRenameFilePath(item), path);
    }
}
