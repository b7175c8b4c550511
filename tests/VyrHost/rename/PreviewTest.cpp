// Tests of the decisions of a preview.
#include <VyrHost/rename/Preview.h>

#include <VyrHost/collect/CollectEntries.h>
#include <VyrHost/rename/NameSources.h>
#include <VyrHost/rename/RuleTexts.h>
#include <VyrHostPlatform/NameFolding.h>
#include <VyrLibraryFuncs/name/NameFuncs.h>
#include <VyrPlatform/text/Encoding.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>

#include <set>
#include <string>
#include <vector>

using namespace VyrHost::Collect;
using namespace VyrHost::Model;
using namespace VyrHost::Rename;
using namespace VyrTests;
using VyrLibraryFuncs::NameFuncs;

namespace {

ConflictSettings Mode(OnConflict mode)
{
    ConflictSettings settings;
    settings.mode = mode;
    settings.numbering.numberFormat = u" (?)";
    settings.numbering.position = 1;
    settings.numbering.startNumber = 1;
    settings.numbering.step = 1;
    return settings;
}

std::vector<Decision> DecideByRules(EntryList& list, const Rules& rules, OnConflict mode,
                                    Counting counting = Counting::WholeList)
{
    RuleNames names(rules, counting);
    return MakePreview(list, Groups::OfOne(list), names, Mode(mode)).decisions;
}

/// A decision as "NAME" (renamed), "NAME #" (numbered), "=" (unchanged), "skip" or "no NUMBER-OF-REASON".
std::string Told(const Decision& decision)
{
    switch (decision.status) {
    case Status::Done:
        return VyrPlatform::Encoding::ToUtf8(decision.name);
    case Status::Numbered:
        return VyrPlatform::Encoding::ToUtf8(decision.name) + " #";
    case Status::Unchanged:
        return "=";
    case Status::Skipped:
        return "skip";
    default:
        break;
    }
    return "no " + std::to_string(static_cast<int>(decision.reason));
}

std::string No(Reason reason)
{
    return "no " + std::to_string(static_cast<int>(reason));
}

using Names = std::vector<const char16_t*>;
using Strings = std::vector<std::string>;

class PreviewTest : public testing::Test
{
protected:
    [[nodiscard]] CollectedEntries CollectNamed(const Names& names) const
    {
        SourceSettings settings;
        for (const char16_t* const name : names)
            settings.paths.push_back(m_folder.Path(name));
        return CollectEntries(settings);
    }

    void Write(const Names& names) const
    {
        for (const char16_t* const name : names)
            m_folder.WriteFile(name);
    }

    [[nodiscard]] Strings DecideNamed(const Names& names, const Rules& rules, OnConflict mode = OnConflict::Number,
                                      Counting counting = Counting::WholeList) const
    {
        CollectedEntries collected = CollectNamed(names);
        Strings told;
        for (const Decision& decision : DecideByRules(collected.list, rules, mode, counting))
            told.push_back(Told(decision));
        return told;
    }

    [[nodiscard]] Strings DecideTogether(const Names& names, const Rules& rules) const
    {
        CollectedEntries collected = CollectNamed(names);
        RuleNames source(rules, Counting::WholeList);
        Strings told;
        const Preview preview =
            MakePreview(collected.list, Groups::ByStem(collected.list), source, Mode(OnConflict::Number));
        for (const Decision& decision : preview.decisions)
            told.push_back(Told(decision));
        return told;
    }

    ScratchFolder m_folder;
};

} // namespace

TEST_F(PreviewTest, ShowsRenamedAndUnchangedEntries)
{
    Write({u"b1", u"a2", u"x"});
    EXPECT_EQ(DecideNamed({u"b1", u"a2"}, NumberRules(u"a#", {})), (Strings{"a1", "="}));
    EXPECT_EQ(DecideNamed({u"x", u"missing"}, PrefixRules(u"y")), (Strings{"yx", No(Reason::NoSuchEntry)}));
}

TEST_F(PreviewTest, MissingEntriesTakeNoNumber)
{
    Write({u"a", u"b"});
    EXPECT_EQ(DecideNamed({u"a", u"missing", u"b"}, NumberRules(u"n#", {})),
              (Strings{"n1", No(Reason::NoSuchEntry), "n2"}));
}

TEST_F(PreviewTest, RefusesAnEmptyName)
{
    Write({u"a.txt"});
    EXPECT_EQ(DecideNamed({u"a.txt"}, KeepFirstRules(u"0")), Strings{No(Reason::EmptyName)});
}

TEST_F(PreviewTest, RefusesAPictureWithoutADate)
{
    Write({u"a.jpg"});
    EXPECT_EQ(DecideNamed({u"a.jpg"}, DateRules(u"yyyy", {{DateSource::PictureTaken}})), Strings{No(Reason::NoDate)});
}

TEST_F(PreviewTest, NumbersTwoEntriesThatWantOneName)
{
    Write({u"a1.txt", u"a2.txt", u"a3.txt"});
    EXPECT_EQ(DecideNamed({u"a1.txt", u"a2.txt", u"a3.txt"}, KeepFirstRules(u"1")),
              (Strings{"a.txt", "a (1).txt #", "a (2).txt #"}));
}

TEST_F(PreviewTest, SkipsNumbersThatExistOnTheDisk)
{
    Write({u"a.txt", u"a (1).txt", u"a1.txt", u"a2.txt"});
    EXPECT_EQ(DecideNamed({u"a1.txt", u"a2.txt"}, KeepFirstRules(u"1")), (Strings{"a (2).txt #", "a (3).txt #"}));
}

TEST_F(PreviewTest, AgreesWithTheEngineWhereOnlyTheDiskMatters)
{
    Write({u"new.txt", u"new (1).txt", u"new (3).txt", u"x.txt"});
    m_folder.MakeFolder(u"d.e");
    m_folder.MakeFolder(u"f.g");
    m_folder.MakeFolder(u"f.g (1)");
    m_folder.MakeFolder(u"folder");
    struct Case
    {
        const char16_t* entry;
        const char16_t* wanted;
    };
    // A file or a folder whose new name is that of a file or of a folder.
    for (const auto& [entry, wanted] : {Case{u"x.txt", u"new"}, Case{u"folder", u"new.txt"}, Case{u"folder", u"d.e"},
                                        Case{u"folder", u"f.g"}, Case{u"folder", u"free"}}) {
        const CString ending = std::u16string_view(entry) == u"x.txt" ? u".txt" : u"";
        NumberSettings settings;
        settings.digits = 0;
        // Deleting the whole name and inserting the new one is a rule that allows numbering.
        Rules rules = KeepFirstRules(u"0");
        for (auto& rule : PrefixRules(wanted))
            rules.push_back(std::move(rule));
        CollectedEntries collected = CollectNamed({entry});
        const std::vector<Decision> decisions = DecideByRules(collected.list, rules, OnConflict::Number);
        const CString engine = NameFuncs::GetResolveConflictFilePath(m_folder.Path(CString(wanted) + ending),
                                                                     Mode(OnConflict::Number).numbering);
        EXPECT_EQ(m_folder.Path(decisions[0].name), engine);
    }
}

TEST_F(PreviewTest, ANameThatTheBatchVacatesIsFree)
{
    Write({u"n1", u"n2", u"n3"});
    EXPECT_EQ(DecideNamed({u"n3", u"n1", u"n2"}, NumberRules(u"n#", {})), (Strings{"n1", "n2", "n3"}));
    Write({u"b1"});
    EXPECT_EQ(DecideNamed({u"b1", u"n1"}, ReplaceRules(u"b", u"n")), (Strings{No(Reason::TargetExists), "="}));
}

TEST_F(PreviewTest, TheOwnNameOfAnEntryIsFree)
{
    Write({u"a.txt", u"a (1).txt"});
    EXPECT_EQ(DecideNamed({u"a (1).txt"}, KeepFirstRules(u"1")), Strings{"="});
}

TEST_F(PreviewTest, RefusesConflictsWhereTheRulesAllowNoNumber)
{
    Write({u"aX", u"aY", u"b"});
    EXPECT_EQ(DecideNamed({u"aX", u"aY"}, ReplaceRules(u"Y", u"X")), (Strings{"=", No(Reason::TargetExists)}));
    Write({u"pX", u"pY"});
    Rules rules = ReplaceRules(u"X", u"");
    for (auto& rule : ReplaceRules(u"Y", u""))
        rules.push_back(std::move(rule));
    EXPECT_EQ(DecideNamed({u"pX", u"pY"}, rules), (Strings{"p", No(Reason::TwoToOne)}));
    EXPECT_EQ(DecideNamed({u"pX", u"pY"}, rules, OnConflict::Skip), (Strings{"p", "skip"}));
}

TEST_F(PreviewTest, SkipsOrRefusesOnRequest)
{
    Write({u"a1", u"a2"});
    EXPECT_EQ(DecideNamed({u"a1", u"a2"}, KeepFirstRules(u"1"), OnConflict::Skip), (Strings{"a", "skip"}));
    EXPECT_EQ(DecideNamed({u"a1", u"a2"}, KeepFirstRules(u"1"), OnConflict::Refuse),
              (Strings{"a", No(Reason::TwoToOne)}));
}

TEST_F(PreviewTest, AnEntryThatWantsTheNameOfARefusedOneIsDecidedAgain)
{
    // x1 to x2, x2 to x3, x3 is refused: so x2 keeps its name, and so does x1.
    Write({u"x1", u"x2", u"x3", u"x4"});
    NumberSettings settings;
    settings.start = 2;
    // Replaced one by one, since sequence numbers would be numbered.
    Rules rules = ReplaceRules(u"3", u"4");
    for (auto& rule : ReplaceRules(u"2", u"3"))
        rules.push_back(std::move(rule));
    for (auto& rule : ReplaceRules(u"1", u"2"))
        rules.push_back(std::move(rule));
    EXPECT_EQ(DecideNamed({u"x1", u"x2", u"x3"}, rules),
              (Strings{No(Reason::TargetExists), No(Reason::TargetExists), No(Reason::TargetExists)}));
    // With numbers allowed, the entry gets another name.
    rules.push_back(std::move(InsertRules(u"-0:!").front()));
    EXPECT_EQ(DecideNamed({u"x1", u"x2", u"x3"}, rules), (Strings{"x2!", "x3!", "x4!"}));
}

TEST_F(PreviewTest, RefusesNamesThatAreTooLong)
{
    const CString longest(u'a', 251);
    m_folder.WriteFile(longest + u".txt");
    m_folder.WriteFile(u"b1.txt");
    EXPECT_EQ(DecideNamed({(longest + u".txt").GetString()}, PrefixRules(u"b")), Strings{No(Reason::TooLong)});
    EXPECT_EQ(DecideNamed({(longest + u".txt").GetString()}, DeleteFirstRules(u"1")),
              Strings{std::string(250, 'a') + ".txt"});
    // The number that it needs does not fit.
    Rules rules = KeepFirstRules(u"0");
    for (auto& rule : PrefixRules(longest))
        rules.push_back(std::move(rule));
    EXPECT_EQ(DecideNamed({u"b1.txt"}, rules), Strings{No(Reason::TooLong)});
}

TEST_F(PreviewTest, RefusesHalfACharacterThatTheOldNameDidNotHave)
{
    m_folder.WriteFile(u"a\U0001F600");
    EXPECT_EQ(DecideNamed({u"a\U0001F600"}, DeleteLastRules(u"1")), Strings{No(Reason::NewLoneSurrogate)});
    EXPECT_EQ(DecideNamed({u"a\U0001F600"}, DeleteLastRules(u"2")), Strings{"a"});
}

TEST_F(PreviewTest, KeepsFilesOfOneStemTogether)
{
    Write({u"b.jpg", u"a.raf", u"a.jpg", u"a.xmp"});
    EXPECT_EQ(DecideTogether({u"b.jpg", u"a.raf", u"a.jpg", u"a.xmp"}, NumberRules(u"n#", {})),
              (Strings{"n1.jpg", "n2.raf", "n2.jpg", "n2.xmp"}));
}

TEST_F(PreviewTest, TakesTheDateOfTheFirstOfAGroupThatHasOne)
{
    Write({u"a.xmp", u"b.xmp"});
    m_folder.WriteFile(u"a.jpg", BuildJpeg(PictureFacts{}));
    EXPECT_EQ(DecideTogether({u"a.xmp", u"a.jpg", u"b.xmp"}, DateRules(u"yyyy", {{DateSource::PictureTaken}})),
              (Strings{"2024.xmp", "2024.jpg", No(Reason::NoDate)}));
}

TEST_F(PreviewTest, GivesAllOfAGroupOneNumber)
{
    Write({u"a1.raf", u"a1.jpg", u"a2.jpg", u"a2.raf", u"a (1).raf", u"a.jpg"});
    // a.jpg and a (1).raf exist: the first pair needs 2, the second 3.
    EXPECT_EQ(DecideTogether({u"a1.raf", u"a1.jpg", u"a2.jpg", u"a2.raf"}, KeepFirstRules(u"1")),
              (Strings{"a (2).raf #", "a (2).jpg #", "a (3).jpg #", "a (3).raf #"}));
}

TEST_F(PreviewTest, RefusesAPlaceOrCountBeyondTheNameAndGivesItsLength)
{
    Write({u"abc.txt", u"abcd.txt"});
    const Strings beyond{No(Reason::BeyondName), "abcdx.txt"};
    EXPECT_EQ(DecideNamed({u"abc.txt", u"abcd.txt"}, InsertRules(u"4:x")), beyond);
    EXPECT_EQ(DecideNamed({u"abc.txt", u"abcd.txt"}, DeleteRules(u"2:2")), (Strings{No(Reason::BeyondName), "ab.txt"}));
    EXPECT_EQ(DecideNamed({u"abc.txt", u"abcd.txt"}, DeleteLastRules(u"4")),
              (Strings{No(Reason::BeyondName), No(Reason::EmptyName)}));
    EXPECT_EQ(DecideNamed({u"abc.txt", u"abcd.txt"}, KeepFirstRules(u"4")), (Strings{"=", "="}));
    CollectedEntries collected = CollectNamed({u"abc.txt"});
    const Rules rules = DeleteFirstRules(u"4");
    RuleNames names(rules, Counting::WholeList);
    const Preview preview = MakePreview(collected.list, Groups::OfOne(collected.list), names, Mode(OnConflict::Number));
    EXPECT_EQ(preview.causes.at(0), u"the name has 3 characters");
}

TEST_F(PreviewTest, SidecarsGetTheWholeNewNameOfTheirFile)
{
    const Names names = {u"x.JPG.xmp", u"x.JPG", u"x.CR2.xmp", u"x.CR2"};
    Write(names);
    EXPECT_EQ(DecideTogether(names, NumberRules(u"n#", {})), (Strings{"n1.JPG.xmp", "n1.JPG", "n1.CR2.xmp", "n1.CR2"}));
    EXPECT_EQ(DecideTogether({u"x.JPG.xmp", u"x.JPG"}, PrefixRules(u"y")), (Strings{"yx.JPG.xmp", "yx.JPG"}));
}

TEST_F(PreviewTest, SidecarsGetTheNumberOfTheirFileBeforeBothExtensions)
{
    Write({u"a1.JPG", u"a1.JPG.xmp", u"a2.JPG", u"a2.JPG.xmp"});
    EXPECT_EQ(DecideTogether({u"a1.JPG", u"a1.JPG.xmp", u"a2.JPG.xmp", u"a2.JPG"}, KeepFirstRules(u"1")),
              (Strings{"a.JPG", "a.JPG.xmp", "a (1).JPG.xmp #", "a (1).JPG #"}));
}

TEST_F(PreviewTest, NumbersTheSecondGroupThatWantsTheStemOfAnother)
{
    Write({u"a1.cr2", u"a1.xmp", u"a2.jpg", u"a3.png", u"a4"});
    m_folder.MakeFolder(u"a5");
    EXPECT_EQ(DecideTogether({u"a1.cr2", u"a1.xmp", u"a2.jpg", u"a3.png", u"a4", u"a5"}, KeepFirstRules(u"1")),
              (Strings{"a.cr2", "a.xmp", "a (1).jpg #", "a (2).png #", "a (3) #", "a"}));
}

TEST_F(PreviewTest, NumbersAGroupThatWantsTheStemOfFilesThatStay)
{
    Write({u"a2.jpg", u"a.cr2"});
    EXPECT_EQ(DecideTogether({u"a2.jpg", u"a.cr2"}, KeepFirstRules(u"1")), (Strings{"a (1).jpg #", "="}));
}

TEST_F(PreviewTest, RefusesAGroupWhenOneOfItsFilesIsRefused)
{
    m_folder.WriteFile(u"a.x");
    m_folder.WriteFile(u"a.longer");
    const CString longest(u'b', 252);
    EXPECT_EQ(DecideTogether({u"a.x", u"a.longer"}, PrefixRules(longest)),
              (Strings{No(Reason::CompanionRefused), No(Reason::TooLong)}));
}

TEST_F(PreviewTest, RefusesAGroupWhoseFilesWantOneName)
{
    Write({u"a.jpeg", u"a.jpg"});
    EXPECT_EQ(DecideTogether({u"a.jpeg", u"a.jpg"}, ExtensionRules(u"png")),
              (Strings{No(Reason::TwoToOne), No(Reason::TwoToOne)}));
}

TEST_F(PreviewTest, CountsAgainInEachFolder)
{
    Write({u"c/a", u"c/b", u"d/a", u"d/b"});
    EXPECT_EQ(
        DecideNamed({u"c/a", u"d/a", u"d/b", u"c/b"}, NumberRules(u"#", {}), OnConflict::Number, Counting::EachFolder),
        (Strings{"1", "1", "2", "2"}));
}

TEST_F(PreviewTest, MovesIntoExistingAndNewFolders)
{
    m_folder.WriteFile(u"a.jpg", BuildJpeg(PictureFacts{}));
    m_folder.WriteFile(u"b.jpg", BuildJpeg(PictureFacts{}));
    m_folder.WriteFile(u"2024/a.jpg");
    CollectedEntries collected = CollectNamed({u"a.jpg", u"b.jpg"});
    const Rules rules = DateRules(u"yyyy<Folder><Name>", {{DateSource::PictureTaken}});
    const std::vector<Decision> decisions = DecideByRules(collected.list, rules, OnConflict::Number);
    // An entry of the existing folder counts.
    EXPECT_EQ(Told(decisions[0]), "a (1).jpg #");
    EXPECT_EQ(Told(decisions[1]), "b.jpg");
    collected = CollectNamed({u"a.jpg", u"b.jpg"});
    const Rules deep = DateRules(u"MM<Folder>dd<Folder><Name>", {{DateSource::PictureTaken}});
    RuleNames names(deep, Counting::WholeList);
    const RenamePlan plan =
        MakePreview(collected.list, Groups::OfOne(collected.list), names, Mode(OnConflict::Number)).plan;
    std::vector<CString> created;
    for (PlanIndex folder = 0; folder < plan.folders.size(); ++folder)
        if (plan.folders[folder].isNew)
            created.push_back(PathBefore(plan, folder));
    EXPECT_EQ(created, (std::vector{m_folder.Path(u"07"), m_folder.Path(u"07/19")}));
    ASSERT_EQ(plan.entries.size(), 2u);
    EXPECT_EQ(PathBefore(plan, plan.entries[0].from.folder), m_folder.Path());
    EXPECT_EQ(plan.entries[0].from.name.View(), u"a.jpg");
    EXPECT_EQ(PathBefore(plan, plan.entries[0].to.folder), m_folder.Path(u"07/19"));
    EXPECT_EQ(plan.entries[0].to.name.View(), u"a.jpg");
}

TEST_F(PreviewTest, RefusesToMoveIntoAFile)
{
    m_folder.WriteFile(u"a.jpg", BuildJpeg(PictureFacts{}));
    m_folder.WriteFile(u"2024");
    EXPECT_EQ(DecideNamed({u"a.jpg"}, DateRules(u"yyyy<Folder><Name>", {{DateSource::PictureTaken}})),
              Strings{No(Reason::BadFolder)});
}

TEST_F(PreviewTest, RefusesFoldersWithoutAName)
{
    const auto camera = [](const char* make) {
        PictureFacts facts;
        facts.make = make;
        return BuildJpeg(facts);
    };
    m_folder.WriteFile(u"a.jpg", camera(".."));
    m_folder.WriteFile(u"b.jpg", camera(" "));
    EXPECT_EQ(DecideNamed({u"a.jpg", u"b.jpg"}, DateRules(u"<Make><Folder><Name>", {{DateSource::PictureTaken}})),
              (Strings{No(Reason::NamelessFolder), No(Reason::NamelessFolder)}));
}

TEST_F(PreviewTest, ANewFolderTakesItsName)
{
    m_folder.WriteFile(u"a.jpg", BuildJpeg(PictureFacts{}));
    Write({u"x2024"});
    CollectedEntries collected = CollectNamed({u"x2024", u"a.jpg"});
    GivenNames names({{0, u"2024"}, {1, m_folder.Path(u"2024/a.jpg")}});
    const auto decisions =
        MakePreview(collected.list, Groups::OfOne(collected.list), names, Mode(OnConflict::Number)).decisions;
    EXPECT_EQ(Told(decisions[0]), No(Reason::TargetExists));
    EXPECT_EQ(Told(decisions[1]), "a.jpg");
}

TEST_F(PreviewTest, GivenNamesMaySwap)
{
    Write({u"a", u"b", u"c"});
    CollectedEntries collected = CollectNamed({u"a", u"b", u"c"});
    GivenNames names({{0, u"b"}, {1, u"a"}});
    Strings told;
    const Preview preview = MakePreview(collected.list, Groups::OfOne(collected.list), names, Mode(OnConflict::Number));
    for (const Decision& decision : preview.decisions)
        told.push_back(Told(decision));
    EXPECT_EQ(told, (Strings{"b", "a", "="}));
}

TEST_F(PreviewTest, GivenNamesAreNotNumbered)
{
    Write({u"a", u"b", u"c"});
    CollectedEntries collected = CollectNamed({u"a", u"b"});
    GivenNames names({{0, u"c"}, {1, u".."}});
    const auto decisions =
        MakePreview(collected.list, Groups::OfOne(collected.list), names, Mode(OnConflict::Number)).decisions;
    EXPECT_EQ(Told(decisions[0]), No(Reason::TargetExists));
    EXPECT_EQ(Told(decisions[1]), No(Reason::DotName));
}

TEST_F(PreviewTest, EntryThatMustStayIsRefusedWithTheCauseAndKeepsItsName)
{
    Write({u"a", u"b"});
    CollectedEntries collected = CollectNamed({u"a", u"b"});
    GivenNames names({{0, u"b"}, {1, u"c"}});
    const auto stays = [](const CString& folder, std::u16string_view name, VyrPlatform::FileSystem::Kind kind) {
        const bool isFile =
            VyrPlatform::FileSystem::EndsWithSeparator(folder) && kind == VyrPlatform::FileSystem::Kind::File;
        return isFile && name == u"b" ? std::u16string_view(u"of use") : std::u16string_view();
    };
    const Preview preview =
        MakePreview(collected.list, Groups::OfOne(collected.list), names, Mode(OnConflict::Number), stays);
    EXPECT_EQ(Told(preview.decisions[0]), No(Reason::TargetExists));
    EXPECT_EQ(Told(preview.decisions[1]), No(Reason::MustStay));
    EXPECT_EQ(preview.causes.at(1), u"of use");
}

TEST_F(PreviewTest, ComparesNamesAsTheFolderDoes)
{
    Write({u"a", u"B"});
    const auto folding = VyrHostPlatform::GetNameFolding(m_folder.Path());
    const bool foldsCase =
        folding == VyrHostPlatform::NameFolding::Case || folding == VyrHostPlatform::NameFolding::CaseAndForm;
    EXPECT_EQ(DecideNamed({u"a"}, ReplaceRules(u"a", u"b")),
              Strings{foldsCase ? No(Reason::TargetExists) : std::string("b")});
    // A change of case only is a rename on every file system.
    EXPECT_EQ(DecideNamed({u"a", u"B"}, CaseRules(u"upper")), (Strings{"A", "="}));
}

TEST_F(PreviewTest, NumbersTenThousandEntriesThatWantOneName)
{
    constexpr int Count = 10000;
    for (int number = 0; number < Count; ++number) {
        CString name;
        name.Format(u"a%05d", number);
        m_folder.WriteFile(name);
    }
    SourceSettings settings;
    settings.paths = {m_folder.Path()};
    settings.recursive = true;
    CollectedEntries collected = CollectEntries(settings);
    const std::vector<Decision> decisions = DecideByRules(collected.list, KeepFirstRules(u"1"), OnConflict::Number);
    std::set<std::u16string_view> names;
    for (const Decision& decision : decisions) {
        EXPECT_TRUE(decision.IsRename());
        names.insert(decision.name);
    }
    EXPECT_EQ(names.size(), static_cast<std::size_t>(Count));
    EXPECT_TRUE(names.contains(u"a (9999)"));
}

TEST_F(PreviewTest, PlansTheShownRenames)
{
    Write({u"a", u"b", u"c", u"taken"});
    CollectedEntries collected = CollectNamed({u"a", u"b", u"c"});
    GivenNames names({{0, u"b"}, {1, u"taken"}, {2, u"x"}});
    const Preview preview = MakePreview(collected.list, Groups::OfOne(collected.list), names, Mode(OnConflict::Number));
    EXPECT_EQ(Told(preview.decisions[0]), No(Reason::TargetExists));
    EXPECT_EQ(Told(preview.decisions[1]), No(Reason::TargetExists));
    EXPECT_EQ(Told(preview.decisions[2]), "x");
    EXPECT_EQ(preview.entries, std::vector<std::uint32_t>{2});
    ASSERT_EQ(preview.plan.entries.size(), 1u);
    EXPECT_EQ(preview.plan.entries[0].from.name.View(), u"c");
    EXPECT_EQ(preview.plan.entries[0].to.name.View(), u"x");
    EXPECT_EQ(preview.plan.steps.size(), 1u);
}

TEST_F(PreviewTest, RefusesAFolderThatWouldMoveIntoItselfAndEntriesThatNeedItsPath)
{
    Write({u"folder/inner/file", u"a", u"b"});
    CollectedEntries collected = CollectNamed({u"a", u"folder", u"b"});
    GivenNames names({{0, u"folder"}, {1, m_folder.Path(u"folder/inner/folder")}, {2, u"x"}});
    const Preview preview = MakePreview(collected.list, Groups::OfOne(collected.list), names, Mode(OnConflict::Number));
    EXPECT_EQ(Told(preview.decisions[0]), No(Reason::PlaceKept));
    EXPECT_EQ(Told(preview.decisions[1]), No(Reason::InsideItself));
    EXPECT_EQ(Told(preview.decisions[2]), "x");
    EXPECT_EQ(preview.entries, std::vector<std::uint32_t>{2});
}

TEST_F(PreviewTest, ThePlanRefusesWholeGroups)
{
    Write({u"folder/inner/file", u"a.jpg", u"a.xmp", u"b.jpg"});
    CollectedEntries collected = CollectNamed({u"a.jpg", u"a.xmp", u"folder", u"b.jpg"});
    GivenNames names({{0, u"folder"}, {1, u"folder.xmp"}, {2, m_folder.Path(u"folder/inner/folder")}, {3, u"a.xmp"}});
    const Preview preview =
        MakePreview(collected.list, Groups::ByStem(collected.list), names, Mode(OnConflict::Number));
    EXPECT_EQ(Told(preview.decisions[0]), No(Reason::PlaceKept));
    EXPECT_EQ(Told(preview.decisions[1]), No(Reason::CompanionRefused));
    EXPECT_EQ(Told(preview.decisions[2]), No(Reason::InsideItself));
    // The second entry keeps its name.
    EXPECT_EQ(Told(preview.decisions[3]), No(Reason::PlaceKept));
    EXPECT_TRUE(preview.entries.empty());
}

TEST_F(PreviewTest, StopsOnlyAtConflicts)
{
    Write({u"a", u"b", u"taken"});
    CollectedEntries collected = CollectNamed({u"a", u"b"});
    GivenNames names({{0, u"taken"}, {1, u"x"}});
    Preview preview = MakePreview(collected.list, Groups::OfOne(collected.list), names, Mode(OnConflict::Refuse));
    EXPECT_TRUE(StopAtConflict(preview));
    EXPECT_EQ(Told(preview.decisions[0]), No(Reason::TargetExists));
    EXPECT_EQ(preview.decisions[1].status, Status::NotReached);
    EXPECT_EQ(preview.decisions[1].reason, Reason::Stopped);
    EXPECT_TRUE(preview.plan.entries.empty());

    collected = CollectNamed({u"b"});
    GivenNames free({{0, u"x"}});
    preview = MakePreview(collected.list, Groups::OfOne(collected.list), free, Mode(OnConflict::Refuse));
    EXPECT_FALSE(StopAtConflict(preview));
    EXPECT_EQ(preview.plan.entries.size(), 1u);
}

TEST_F(PreviewTest, RefusesPathsLongerThanAnySystemTakes)
{
    Write({u"a"});
    CollectedEntries collected = CollectNamed({u"a"});
    CString deep;
    for (int folder = 0; folder < 20'000; ++folder)
        deep += u"d/";
    GivenNames names({{0, deep + u"a"}});
    const Preview preview = MakePreview(collected.list, Groups::OfOne(collected.list), names, Mode(OnConflict::Number));
    EXPECT_EQ(Told(preview.decisions[0]), No(Reason::TooLong));
}

TEST_F(PreviewTest, CreatesFoldersHundredsOfLevelsDeep)
{
    Write({u"a"});
    CollectedEntries collected = CollectNamed({u"a"});
    CString deep;
    for (int folder = 0; folder < 500; ++folder)
        deep += u"d/";
    GivenNames names({{0, m_folder.Path(deep + u"a")}});
    const Preview preview = MakePreview(collected.list, Groups::OfOne(collected.list), names, Mode(OnConflict::Number));
    EXPECT_EQ(Told(preview.decisions[0]), "a");
}
