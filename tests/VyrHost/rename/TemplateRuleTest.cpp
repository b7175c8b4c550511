// Templates of whole names.
#include "RuleChain.h"

#include <VyrHost/model/EntryList.h>
#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/text/Errors.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/Encoding.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <tests/support/Describe.h>
#include <tests/support/FileMoments.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>

#include <regex>
#include <set>

using namespace VyrHost::Rename;
using namespace VyrHost::Text;
using namespace VyrTests;
using testing::HasSubstr;
using VyrHost::Model::DateSource;

namespace {

const char16_t Slash[] = {VyrPlatform::FileSystem::Separator(), 0};

/// A picture taken at 2024:07:19 18:45:03, and a file without Exif data, last changed at 2001-02-03 04:05:06.
class NameTemplate : public testing::Test
{
protected:
    NameTemplate()
    {
        m_folder.WriteFile(u"dated.jpg", BuildJpeg(PictureFacts{}));
        m_folder.WriteFile(u"plain.jpg", "no picture");
        StampFile(m_folder.Path(u"plain.jpg"), ToFileTicks(COleDateTime(2001, 2, 3, 4, 5, 6)),
                  ToFileTicks(COleDateTime(2003, 1, 1, 0, 0, 0)));
    }

    [[nodiscard]] Subject SubjectOf(const CString& name, const CString& extension = u".jpg") const
    {
        Subject subject = FileSubject(name, extension);
        subject.path = m_folder.Path(name + extension);
        return subject;
    }

    /// The result behind the folder "/d/"; "!" for a fault.
    [[nodiscard]] CString Named(const CString& text, const CString& name = u"dated",
                                const TemplateSettings& settings = {}) const
    {
        const CString path = Apply(NameRules(text, settings), SubjectOf(name));
        return path == u"!" ? path : path.Mid(3);
    }

    ScratchFolder m_folder;
};

std::string ErrorOf(const CString& text, const TemplateSettings& settings = {})
{
    try {
        (void)NameRules(text, settings);
    } catch (const UsageError& error) {
        return error.what();
    }
    return {};
}

/// What `rule` makes of each of `subjects`, each a group of its own.
std::vector<CString> NamedInOrder(Rules rules, std::vector<Subject> subjects)
{
    std::vector<CString> names;
    for (Subject& subject : subjects) {
        subject.group = names.size();
        subject.index = static_cast<int>(names.size());
        names.push_back(Apply(rules, subject).Mid(3));
    }
    return names;
}

using Names = std::vector<CString>;

} // namespace

TEST_F(NameTemplate, MakesTheWholeNameAndKeepsTheExtension)
{
    EXPECT_EQ(Named(u"plain text"), u"plain text.jpg");
    EXPECT_EQ(Named(u"a <Name> b <Name>"), u"a dated b dated.jpg");
    EXPECT_EQ(Named(u"<Name>.txt"), u"dated.txt.jpg");
}

TEST_F(NameTemplate, GivesTheExtensionWhereItEndsInIt)
{
    EXPECT_EQ(Named(u"<Name>.<Extension|upper>"), u"dated.JPG");
    EXPECT_EQ(Named(u"<Extension><Folder><Name>"), CString(u"jpg") + Slash + u"dated.jpg");
    EXPECT_EQ(Named(u"<Name> <Extension>"), u"dated jpg.jpg");
    Rules rules = Chain(NameRules(u"x.<Extension|upper>", {}), SuffixRules(u"-y"));
    EXPECT_EQ(Apply(rules, FileSubject(u"a", u".jpg")), u"/d/x-y.JPG");
    EXPECT_EQ(Apply(NameRules(u"x.<Extension>", {}), FileSubject(u"a", u"")), u"!");
    EXPECT_EQ(Apply(NameRules(u"x.<Extension?>", {}), FileSubject(u"a", u"")), u"/d/x");
    EXPECT_EQ(Apply(NameRules(u"x.<Extension?bin>", {}), FileSubject(u"a", u"")), u"/d/x.bin");
}

TEST_F(NameTemplate, NamesTheFoldersAboveTheEntry)
{
    Subject subject = FileSubject(u"a", u".b");
    subject.path = u"/one/two/three/a.b";
    EXPECT_EQ(Apply(NameRules(u"<Parent> <Parent:2>-<Parent:3>", {}), subject), u"/d/three two-one.b");
    EXPECT_EQ(Apply(NameRules(u"<Parent:4>", {}), subject), u"!");
    EXPECT_EQ(Apply(NameRules(u"<Parent:4?top>", {}), subject), u"/d/top.b");
}

TEST_F(NameTemplate, WritesDates)
{
    EXPECT_EQ(Named(u"<Taken:yyyy-MM-dd HH.mm.ss>"), u"2024-07-19 18.45.03.jpg");
    EXPECT_EQ(Named(u"<Taken>"), u"2024-07-19.jpg");
    EXPECT_EQ(Named(u"<Modified:yyyyMMdd_HHmmss>", u"plain"), u"20010203_040506.jpg");
    EXPECT_EQ(Named(u"<Taken:yyyy 'at' HH>"), u"2024 at 18.jpg");
    EXPECT_EQ(Named(u"<Taken:yyyy>", u"plain"), u"!");
    EXPECT_EQ(Named(u"<Taken:yyyy?no date>", u"plain"), u"no date.jpg");
    EXPECT_EQ(Named(u"<Created:yyyy>").View().size(), 8u);
    TemplateSettings settings;
    EXPECT_EQ(Named(u"<Date:yyyy>", u"plain", settings), u"2001.jpg");
    settings.dates.sources = {DateSource::PictureTaken, DateSource::Modified};
    EXPECT_EQ(Named(u"<Date:yyyy>", u"plain", settings), u"2001.jpg");
    EXPECT_EQ(Named(u"<Date:yyyy>", u"dated", settings), u"2024.jpg");
    EXPECT_EQ(Named(u"<Taken:yyyy>", u"plain", settings), u"!");
}

TEST_F(NameTemplate, TellsWhichOfSeveralDatesItTook)
{
    TemplateSettings settings;
    settings.dates.sources = {DateSource::PictureTaken, DateSource::Modified};
    Subject subject = SubjectOf(u"plain");
    EXPECT_EQ(NameRules(u"<Date:yyyy>", settings).front()->Apply(subject), Reason::None);
    EXPECT_TRUE(subject.datesTaken.Has(DateSource::Modified));
    EXPECT_EQ(subject.dateRank, 1u);
}

TEST_F(NameTemplate, NamesTheCamera)
{
    EXPECT_EQ(Named(u"<Make>, <Model|upper>"), u"Testmaker, MODEL 1.jpg");
    EXPECT_EQ(Named(u"<Make>", u"plain"), u"!");
    EXPECT_EQ(Named(u"<Make?Unknown>", u"plain"), u"Unknown.jpg");
    PictureFacts facts;
    facts.make = " a/b\\c:d?<Name> ";
    m_folder.WriteFile(u"odd.jpg", BuildJpeg(facts));
    EXPECT_EQ(Named(u"<Make>", u"odd"), u"a_b_c_d__Name_.jpg");
}

TEST_F(NameTemplate, TellsTheSizeInBytes)
{
    EXPECT_EQ(Named(u"<Size>", u"plain"), u"10.jpg");
    EXPECT_EQ(Named(u"<Size>", u"missing"), u"!");
}

TEST_F(NameTemplate, MovesIntoFolders)
{
    EXPECT_EQ(Named(u"<Taken:yyyy><Folder><Taken:MM><Folder><Name>"),
              CString(u"2024") + Slash + u"07" + Slash + u"dated.jpg");
    EXPECT_EQ(Named(u"<Make?><Folder><Name>", u"plain"), u"!");
    EXPECT_EQ(Named(u"..<Folder><Name>", u"plain"), u"!");
    Subject odd = SubjectOf(u"dated");
    odd.name = u"<Folder>";
    EXPECT_EQ(Apply(NameRules(u"a<Folder><Name>", {}), odd), CString(u"/d/a") + Slash + u"<Folder>.jpg");
}

TEST_F(NameTemplate, CountsAsSequenceNumbersDo)
{
    const Names names = NamedInOrder(NameRules(u"<###:start 5 step 2> <#>", {}),
                                     {FileSubject(u"a", u""), FileSubject(u"b", u""), FileSubject(u"c", u"")});
    EXPECT_EQ(names, (Names{u"005 1", u"007 2", u"009 3"}));
    EXPECT_EQ(Apply(NameRules(u"<#:roman|lower>", {}), FileSubject(u"a", u"", 3)), u"/d/iv");
    EXPECT_EQ(Apply(NameRules(u"<#:roman>", {}), FileSubject(u"a", u"", 5000)), u"!");
    EXPECT_EQ(Apply(NameRules(u"<#:roman start 4000?many>", {}), FileSubject(u"a", u"")), u"!");
}

TEST_F(NameTemplate, CountsAnewForEachName)
{
    const Names names = NamedInOrder(NameRules(u"<Name|lower> <#:per name>", {}),
                                     {FileSubject(u"A", u".x"), FileSubject(u"a", u".x"), FileSubject(u"b", u".x"),
                                      FileSubject(u"a", u".y"), FileSubject(u"a", u".x")});
    EXPECT_EQ(names, (Names{u"a 1.x", u"a 2.x", u"b 1.x", u"a 1.y", u"a 3.x"}));
}

TEST_F(NameTemplate, CountsAnewForEachFolderThatItGetsInto)
{
    Rules rules = NameRules(u"<Name|replace 1 ''|replace 2 ''><Folder><#:per folder>", {});
    const CString a = CString(u"a") + Slash;
    const CString b = CString(u"b") + Slash;
    EXPECT_EQ(NamedInOrder(std::move(rules), {FileSubject(u"a1", u""), FileSubject(u"b1", u""), FileSubject(u"a2", u""),
                                              FileSubject(u"b2", u"")}),
              (Names{a + u"1", b + u"1", a + u"2", b + u"2"}));
}

TEST_F(NameTemplate, CountsAnewForEachDay)
{
    PictureFacts facts;
    facts.dateTimeOriginal = "2024:07:19 23:59:59";
    m_folder.WriteFile(u"same.jpg", BuildJpeg(facts));
    facts.dateTimeOriginal = "2024:07:20 00:00:00";
    m_folder.WriteFile(u"next.jpg", BuildJpeg(facts));
    EXPECT_EQ(NamedInOrder(NameRules(u"<Taken:MM.dd> <#:per day>", {}),
                           {SubjectOf(u"dated"), SubjectOf(u"next"), SubjectOf(u"same")}),
              (Names{u"07.19 1.jpg", u"07.20 1.jpg", u"07.19 2.jpg"}));
    TemplateSettings settings;
    settings.dates.sources = {DateSource::PictureTaken};
    EXPECT_EQ(NamedInOrder(NameRules(u"<#:per day>", settings),
                           {SubjectOf(u"dated"), SubjectOf(u"plain"), SubjectOf(u"same")}),
              (Names{u"1.jpg", u"", u"2.jpg"}));
    EXPECT_EQ(NamedInOrder(NameRules(u"<Taken:dd?undated> <#:per day>", {}),
                           {SubjectOf(u"plain"), SubjectOf(u"dated"), SubjectOf(u"plain")}),
              (Names{u"undated 1.jpg", u"19 1.jpg", u"undated 2.jpg"}));
}

TEST_F(NameTemplate, DoesNotCountWhoFollowsAnother)
{
    const Rules rules = NameRules(u"<Name><#:per name>", {});
    Subject leader = FileSubject(u"a", u".jpg");
    Subject follower = FileSubject(u"a.jpg", u".xmp");
    follower.isFollower = true;
    EXPECT_EQ(Apply(rules, leader), u"/d/a1.jpg");
    (void)Apply(rules, follower);
    Subject next = FileSubject(u"a", u".jpg");
    next.group = 1;
    EXPECT_EQ(Apply(rules, next), u"/d/a2.jpg");
}

TEST_F(NameTemplate, MakesIdentifiersByChance)
{
    std::set<CString> seen;
    for (int time = 0; time < 100; ++time) {
        const std::string uuid = VyrPlatform::Encoding::ToUtf8(Named(u"<Uuid>"));
        EXPECT_TRUE(std::regex_match(
            uuid, std::regex("[0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12}\\.jpg")))
            << uuid;
        const std::string random = VyrPlatform::Encoding::ToUtf8(Named(u"<Random:12>"));
        EXPECT_TRUE(std::regex_match(random, std::regex("[0-9a-z]{12}\\.jpg"))) << random;
        seen.insert(VyrPlatform::Encoding::FromUtf8(uuid));
        seen.insert(VyrPlatform::Encoding::FromUtf8(random));
    }
    EXPECT_EQ(seen.size(), 200u);
    EXPECT_EQ(Named(u"<Random>").GetLength(), 12);
}

TEST_F(NameTemplate, TakesValuesFromATable)
{
    TemplateSettings settings;
    settings.csv = std::make_shared<const CsvData>("file,title\ndated.jpg,At the sea: 1/2\nplain.jpg,\n");
    EXPECT_EQ(Named(u"<Csv:title>", u"dated", settings), u"At the sea_ 1_2.jpg");
    EXPECT_EQ(Named(u"<Csv:2|upper>", u"dated", settings), u"AT THE SEA_ 1_2.jpg");
    EXPECT_EQ(Named(u"<Csv:title>", u"plain", settings), u"!");
    EXPECT_EQ(Named(u"<Csv:title?none>", u"missing", settings), u"none.jpg");
    EXPECT_THAT(ErrorOf(u"<Csv:titel>", settings), HasSubstr("did you mean <Csv:title>?"));
    EXPECT_THAT(ErrorOf(u"<Csv>", settings), HasSubstr("the name of a column"));
    EXPECT_THAT(ErrorOf(u"<Csv:title>"), HasSubstr("--csv-data FILE is needed"));
}

TEST_F(NameTemplate, TakesTheGroupsOfTheLastPattern)
{
    TemplateSettings settings;
    settings.pattern = PatternShape{2, {{u"year", 1}}};
    const std::vector<GroupName> names = settings.pattern->names;
    Subject subject = FileSubject(u"ab", u".x");
    subject.groups.Set(u"2024-07", {{0, 7}, {0, 4}, {5, 2}}, names);
    EXPECT_EQ(Apply(NameRules(u"<2>.<year>.<0>", settings), subject), u"/d/07.2024.2024-07.x");
    subject.groups.Clear();
    EXPECT_EQ(Apply(NameRules(u"<2>", settings), subject), u"!");
    EXPECT_EQ(Apply(NameRules(u"<2?none>", settings), subject), u"/d/none.x");
    EXPECT_THAT(ErrorOf(u"<3>", settings), HasSubstr("the last --regex has 2 groups"));
    EXPECT_THAT(ErrorOf(u"<1>"), HasSubstr("there is no --regex before it"));
    EXPECT_THAT(ErrorOf(u"<yaer>", settings), HasSubstr("it knows no <yaer>"));
}

TEST_F(NameTemplate, ShiftsItsDates)
{
    TemplateSettings settings;
    settings.dates.shift = VyrHost::Metadata::ParseAmounts(u"+6h", "--date-shift");
    EXPECT_EQ(Named(u"<Taken:dd HH>", u"dated", settings), u"20 00.jpg");
    EXPECT_EQ(Named(u"<Modified:dd HH>", u"plain", settings), u"03 10.jpg");
    settings.dates.shift = VyrHost::Metadata::ParseAmounts(u"-3000y", "--date-shift");
    Subject subject = SubjectOf(u"dated");
    EXPECT_EQ(NameRules(u"<Taken:dd>", settings).front()->Apply(subject), Reason::DateOutOfRange);
}

TEST_F(NameTemplate, NamesTheTokenThatHasNoValue)
{
    Subject subject = SubjectOf(u"plain");
    EXPECT_EQ(NameRules(u"<Name> <Make>", {}).front()->Apply(subject), Reason::NoValue);
    EXPECT_EQ(subject.cause, u"<Make>");
}

TEST_F(NameTemplate, RefusesTemplatesThatMakeNoSense)
{
    EXPECT_THAT(ErrorOf(u""), HasSubstr("it is empty"));
    EXPECT_THAT(ErrorOf(u"<Nmae>"), HasSubstr("it knows no <Nmae>; did you mean <Name>?"));
    EXPECT_THAT(ErrorOf(u"<name>"), HasSubstr("did you mean <Name>?"));
    EXPECT_THAT(ErrorOf(u"<Quite:other>"), HasSubstr("it knows no <Quite:other>"));
    EXPECT_THAT(ErrorOf(u"<Folder:x>"), HasSubstr("<Folder> takes nothing more"));
    EXPECT_THAT(ErrorOf(u"a<Folder>"), HasSubstr("no name follows <Folder>"));
    EXPECT_THAT(ErrorOf(u"a < b"), HasSubstr("a < begins a token"));
    EXPECT_THAT(ErrorOf(u"<Taken yyyy>"), HasSubstr("a < begins a token"));
    EXPECT_THAT(ErrorOf(u"a/b"), HasSubstr("folder separator"));
    EXPECT_THAT(ErrorOf(u"<Taken:YYYY>"), HasSubstr("no part of a date is called Y"));
    EXPECT_THAT(ErrorOf(u"<Taken:>"), HasSubstr("the format gives no text"));
    EXPECT_THAT(ErrorOf(u"<Name:x>"), HasSubstr("takes nothing after a colon"));
    EXPECT_THAT(ErrorOf(u"<Parent:0>"), HasSubstr("<Parent:0>: a whole number from 1 to 1000 is expected"));
    for (const char16_t* const token : {u"<Random:65>", u"<Random:0>", u"<Random:x>", u"<Random:99999999999999999999>"})
        EXPECT_THAT(ErrorOf(token), HasSubstr(">: a whole number from 1 to 64 is expected"));
    EXPECT_THAT(ErrorOf(u"<Name|uper>"), HasSubstr("did you mean upper?"));
    EXPECT_THAT(ErrorOf(u"<##:from 3>"), HasSubstr("a counter knows start N"));
    EXPECT_THAT(ErrorOf(u"<#:per folder><Folder>a"), HasSubstr("after the last <Folder>"));
}

TEST_F(NameTemplate, BoundsTheLengthOfNames)
{
    CString text = u"<Name";
    for (int time = 0; time < 60; ++time)
        text += u"|replace a aa";
    Subject subject = FileSubject(u"a", u"");
    EXPECT_EQ(NameRules(text + u">", {}).front()->Apply(subject), Reason::TooLong);
    Subject again = FileSubject(CString(u'a', 20'000), u"");
    EXPECT_EQ(NameRules(u"<Name><Name>", {}).front()->Apply(again), Reason::TooLong);
}

TEST(TokenTable, HasEveryTokenOnce)
{
    std::set<std::string> forms;
    for (const TokenHelp& help : TokenTable()) {
        EXPECT_TRUE(forms.insert(help.form).second) << help.form;
        EXPECT_FALSE(std::string(help.meaning).empty());
    }
    EXPECT_TRUE(forms.contains("<Name>") && forms.contains("<Folder>") && forms.contains("<#>"));
}
