// Rules that edit the present name, and rules in sequence.
#include "RuleChain.h"

#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/text/Errors.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>

using namespace VyrHost::Rename;
using namespace VyrHost::Text;
using namespace VyrTests;

namespace {

CString OnAbcdef(const Rules& rules)
{
    return Apply(rules, FileSubject(u"abcdef", u".txt"));
}

} // namespace

TEST(EditTexts, InsertsCountedFromEitherEnd)
{
    EXPECT_EQ(OnAbcdef(InsertRules(u"2:XY")), u"/d/abXYcdef.txt");
    EXPECT_EQ(OnAbcdef(InsertRules(u"-2:XY")), u"/d/abcdXYef.txt");
    EXPECT_EQ(OnAbcdef(InsertRules(u"-0:XY")), u"/d/abcdefXY.txt");
    EXPECT_EQ(OnAbcdef(InsertRules(u"6::")), u"/d/abcdef:.txt");
    EXPECT_EQ(OnAbcdef(InsertRules(u"7:XY")), u"!");
    EXPECT_EQ(OnAbcdef(PrefixRules(u"2:")), u"/d/2:abcdef.txt");
    EXPECT_EQ(OnAbcdef(SuffixRules(u" x")), u"/d/abcdef x.txt");
}

TEST(EditTexts, DeletesAndKeepsCountedFromEitherEnd)
{
    EXPECT_EQ(OnAbcdef(DeleteRules(u"2:3")), u"/d/abf.txt");
    EXPECT_EQ(OnAbcdef(DeleteRules(u"2:5")), u"!");
    EXPECT_EQ(OnAbcdef(DeleteRules(u"-1:2")), u"/d/abcf.txt");
    EXPECT_EQ(OnAbcdef(DeleteFirstRules(u"2")), u"/d/cdef.txt");
    EXPECT_EQ(OnAbcdef(DeleteLastRules(u"2")), u"/d/abcd.txt");
    EXPECT_EQ(OnAbcdef(KeepFirstRules(u"2")), u"/d/ab.txt");
    EXPECT_EQ(OnAbcdef(KeepLastRules(u"2")), u"/d/ef.txt");
    EXPECT_EQ(OnAbcdef(KeepLastRules(u"0")), u"/d/.txt");
}

TEST(EditTexts, ConvertsTheNameWithoutTheExtension)
{
    const Subject mixed = FileSubject(u"hello World", u".Txt");
    EXPECT_EQ(Apply(CaseRules(u"first"), mixed), u"/d/Hello World.Txt");
    EXPECT_EQ(Apply(CaseRules(u"upper"), mixed), u"/d/HELLO WORLD.Txt");
    EXPECT_EQ(Apply(CaseRules(u"lower"), mixed), u"/d/hello world.Txt");
}

TEST(EditTexts, ReplacesEveryOccurrence)
{
    EXPECT_EQ(Apply(ReplaceRules(u"aa", u"b"), FileSubject(u"aaaaa", u".aa")), u"/d/bba.aa");
    EXPECT_EQ(Apply(ReplaceRules(u"x", u""), FileSubject(u"xoxo", u"")), u"/d/oo");
}

TEST(EditTexts, ReplacesATextInNamesOfAnyNormalForm)
{
    const CString composed = u"\u00e9t\u00e9";
    const CString decomposed = u"e\u0301te\u0301";
    for (const CString& find : {CString(u"\u00e9"), CString(u"e\u0301")})
        for (const CString& name : {composed, decomposed})
            EXPECT_EQ(Apply(ReplaceRules(find, u"e"), FileSubject(name, u".txt")), u"/d/ete.txt");
    // A letter with an accent is another letter than the one without, in either form.
    for (const CString& name : {composed, decomposed})
        EXPECT_EQ(Apply(ReplaceRules(u"e", u"x"), FileSubject(name, u".txt")), u"/d/" + name + u".txt");
}

TEST(EditTexts, ReplacesATextInEitherCaseWhereThatIsAskedFor)
{
    const auto replaced = [](const CString& find, const CString& name) {
        return Apply(ReplaceRules(find, u"-", true), FileSubject(name, u".AB"));
    };
    EXPECT_EQ(replaced(u"aB", u"abxAB aB"), u"/d/-x- -.AB");
    EXPECT_EQ(replaced(u"\u00c9", u"\u00e9 e\u0301 e"), u"/d/- - e.AB");
    EXPECT_EQ(replaced(u"\u0436", u"\u0416\u0436"), u"/d/--.AB");
    EXPECT_EQ(replaced(u"aa", u"AaA"), u"/d/-A.AB");
    // What is not found keeps its case.
    EXPECT_EQ(replaced(u"x", u"aBc"), u"/d/aBc.AB");
}

TEST(EditTexts, ChangesTheExtensionOfFilesOnly)
{
    const Subject file = FileSubject(u"a.b", u".JPEG");
    EXPECT_EQ(Apply(ExtensionRules(u"jpg"), file), u"/d/a.b.jpg");
    EXPECT_EQ(Apply(ExtensionRules(u".jpg"), file), u"/d/a.b.jpg");
    EXPECT_EQ(Apply(ExtensionCaseRules(u"lower"), file), u"/d/a.b.jpeg");
    EXPECT_EQ(Apply(ExtensionCaseRules(u"upper"), FileSubject(u"a", u".x")), u"/d/a.X");
    EXPECT_EQ(Apply(DropExtensionRules(), file), u"/d/a.b");
    EXPECT_EQ(Apply(ExtensionRules(u"jpg"), FileSubject(u"a", u"")), u"/d/a.jpg");

    Subject folder = FileSubject(u"a.b", u"");
    folder.isFolder = true;
    EXPECT_EQ(Apply(ExtensionRules(u"jpg"), folder), u"/d/a.b");
    EXPECT_EQ(Apply(DropExtensionRules(), folder), u"/d/a.b");
}

TEST(EditTexts, RulesWorkOnTheResultOfTheRuleBefore)
{
    EXPECT_EQ(OnAbcdef(Chain(KeepFirstRules(u"3"), CaseRules(u"upper"))), u"/d/ABC.txt");
    EXPECT_EQ(OnAbcdef(Chain(ExtensionRules(u"md"), ExtensionCaseRules(u"upper"))), u"/d/abcdef.MD");
    EXPECT_EQ(OnAbcdef(Chain(KeepFirstRules(u"3"), DeleteRules(u"2:1"))), u"/d/ab.txt");
    EXPECT_EQ(OnAbcdef(Chain(KeepFirstRules(u"3"), DeleteRules(u"2:3"))), u"!");
    EXPECT_EQ(OnAbcdef(Chain(KeepFirstRules(u"0"), NumberRules(u"<Name>#", {}))), u"/d/1.txt");
}

TEST(EditTexts, TextsThatMakeNoSenseAreRefused)
{
    for (const char16_t* const text : {u"", u"x", u"2", u":x", u"2:", u"--1:x", u"1 :x", u"99999999999:x", u"1:a/b"})
        EXPECT_THROW((void)InsertRules(text), UsageError);
    for (const char16_t* const text : {u"", u"2", u"2:0", u"2:-1", u"2:x"})
        EXPECT_THROW((void)DeleteRules(text), UsageError);
    for (const char16_t* const text : {u"", u"0", u"-1", u"1x", u"+1", u"2147483648"})
        EXPECT_THROW((void)DeleteFirstRules(text), UsageError);
    EXPECT_THROW((void)PrefixRules(u""), UsageError);
    EXPECT_THROW((void)KeepFirstRules(u"-1"), UsageError);
    EXPECT_THROW((void)CaseRules(u"titel"), UsageError);
    EXPECT_THROW((void)ReplaceRules(u"", u"x"), UsageError);
    EXPECT_THROW((void)ReplaceRules(u"x", u"a/b"), UsageError);
    EXPECT_THROW((void)ExtensionRules(u""), UsageError);
    EXPECT_THROW((void)ExtensionRules(u"."), UsageError);
    EXPECT_THROW((void)ExtensionCaseRules(u"first"), UsageError);
}

TEST(EditTexts, OnlyInsertingDeletingAndANewExtensionAllowNumbering)
{
    EXPECT_TRUE(PrefixRules(u"x").front()->MayNumber());
    EXPECT_TRUE(KeepFirstRules(u"1").front()->MayNumber());
    EXPECT_TRUE(ExtensionRules(u"x").front()->MayNumber());
    EXPECT_FALSE(CaseRules(u"upper").front()->MayNumber());
    EXPECT_FALSE(ReplaceRules(u"a", u"b").front()->MayNumber());
    EXPECT_FALSE(ExtensionCaseRules(u"upper").front()->MayNumber());
    EXPECT_FALSE(DropExtensionRules().front()->MayNumber());
}
