// Tests of the decisions of a preview.
#include <VyrHost/preview/Preview.h>

#include <VyrHost/entries/Gather.h>
#include <VyrHost/preview/RuleNames.h>
#include <VyrHost/rules/RuleTexts.h>
#include <VyrLibraryFuncs/name/NameFuncs.h>
#include <VyrPlatform/Encoding.h>

#include <gtest/gtest.h>
#include <tests/support/ScratchFolder.h>

#include <chrono>
#include <set>
#include <string>
#include <vector>

using namespace VyrHost;
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

std::vector<Decision> DecideByRules(EntryList& list, const Rules& rules, OnConflict mode)
{
    RuleNames names(rules, Counting::WholeList);
    return Decide(list, Groups::OfOne(list), names, Mode(mode));
}

/// A decision as "NAME" (renamed), "NAME #" (numbered), "=" (unchanged), "skip" or "no NUMBER-OF-REASON".
std::string Told(const Decision& decision)
{
    switch (decision.status) {
    case Status::Renamed:
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

class Preview : public testing::Test
{
protected:
    [[nodiscard]] Gathered GatherNamed(const Names& names) const
    {
        SourceSettings settings;
        for (const char16_t* const name : names)
            settings.paths.push_back(m_folder.Path(name));
        return Gather(settings);
    }

    void Write(const Names& names) const
    {
        for (const char16_t* const name : names)
            m_folder.WriteFile(name);
    }

    [[nodiscard]] Strings DecideNamed(const Names& names, const Rules& rules,
                                      OnConflict mode = OnConflict::Number) const
    {
        Gathered gathered = GatherNamed(names);
        Strings told;
        for (const Decision& decision : DecideByRules(gathered.list, rules, mode))
            told.push_back(Told(decision));
        return told;
    }

    ScratchFolder m_folder;
};

} // namespace

TEST_F(Preview, TellsWhatIsRenamedAndWhatStays)
{
    Write({u"b1", u"a2", u"x"});
    EXPECT_EQ(DecideNamed({u"b1", u"a2"}, NumberRules(u"a#", {})), (Strings{"a1", "="}));
    EXPECT_EQ(DecideNamed({u"x", u"missing"}, PrefixRules(u"y")), (Strings{"yx", No(Reason::NoSuchEntry)}));
}

TEST_F(Preview, MissingEntriesTakeNoNumber)
{
    Write({u"a", u"b"});
    EXPECT_EQ(DecideNamed({u"a", u"missing", u"b"}, NumberRules(u"n#", {})),
              (Strings{"n1", No(Reason::NoSuchEntry), "n2"}));
}

TEST_F(Preview, RefusesAnEmptyName)
{
    Write({u"a.txt"});
    EXPECT_EQ(DecideNamed({u"a.txt"}, KeepFirstRules(u"0")), Strings{No(Reason::EmptyName)});
}

TEST_F(Preview, RefusesAPictureWithoutADate)
{
    Write({u"a.jpg"});
    EXPECT_EQ(DecideNamed({u"a.jpg"}, DateRules(u"yyyy", {DateSource::Picture})), Strings{No(Reason::NoDate)});
}

TEST_F(Preview, NumbersTwoEntriesThatWantOneName)
{
    Write({u"a1.txt", u"a2.txt", u"a3.txt"});
    EXPECT_EQ(DecideNamed({u"a1.txt", u"a2.txt", u"a3.txt"}, KeepFirstRules(u"1")),
              (Strings{"a.txt", "a (1).txt #", "a (2).txt #"}));
}

TEST_F(Preview, NumbersPastWhatTheDiskHas)
{
    Write({u"a.txt", u"a (1).txt", u"a1.txt", u"a2.txt"});
    EXPECT_EQ(DecideNamed({u"a1.txt", u"a2.txt"}, KeepFirstRules(u"1")), (Strings{"a (2).txt #", "a (3).txt #"}));
}

TEST_F(Preview, AgreesWithTheEngineWhereOnlyTheDiskMatters)
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
    // A file or a folder that wants the name of a file or of a folder.
    for (const auto& [entry, wanted] : {Case{u"x.txt", u"new"}, Case{u"folder", u"new.txt"}, Case{u"folder", u"d.e"},
                                        Case{u"folder", u"f.g"}, Case{u"folder", u"free"}}) {
        const CString ending = std::u16string_view(entry) == u"x.txt" ? u".txt" : u"";
        NumberSettings settings;
        settings.digits = 0;
        // Deleting all and putting the name in is a rule that allows numbering.
        Rules rules = KeepFirstRules(u"0");
        for (auto& rule : PrefixRules(wanted))
            rules.push_back(std::move(rule));
        Gathered gathered = GatherNamed({entry});
        const std::vector<Decision> decisions = DecideByRules(gathered.list, rules, OnConflict::Number);
        const CString engine = NameFuncs::GetResolveConflictFilePath(m_folder.Path(CString(wanted) + ending),
                                                                     Mode(OnConflict::Number).numbering);
        EXPECT_EQ(m_folder.Path(decisions[0].name), engine);
    }
}

TEST_F(Preview, ANameThatTheBatchVacatesIsFree)
{
    Write({u"n1", u"n2", u"n3"});
    EXPECT_EQ(DecideNamed({u"n3", u"n1", u"n2"}, NumberRules(u"n#", {})), (Strings{"n1", "n2", "n3"}));
    Write({u"b1"});
    EXPECT_EQ(DecideNamed({u"b1", u"n1"}, ReplaceRules(u"b", u"n")), (Strings{No(Reason::TargetExists), "="}));
}

TEST_F(Preview, AnEntrysOwnNameIsFree)
{
    Write({u"a.txt", u"a (1).txt"});
    EXPECT_EQ(DecideNamed({u"a (1).txt"}, KeepFirstRules(u"1")), Strings{"="});
}

TEST_F(Preview, RefusesClashesWhereTheRulesAllowNoNumber)
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

TEST_F(Preview, SkipsOrRefusesOnRequest)
{
    Write({u"a1", u"a2"});
    EXPECT_EQ(DecideNamed({u"a1", u"a2"}, KeepFirstRules(u"1"), OnConflict::Skip), (Strings{"a", "skip"}));
    EXPECT_EQ(DecideNamed({u"a1", u"a2"}, KeepFirstRules(u"1"), OnConflict::Refuse),
              (Strings{"a", No(Reason::TwoToOne)}));
}

TEST_F(Preview, WhoeverWasToGetTheNameOfARefusedEntryIsDecidedAnew)
{
    // x1 to x2, x2 to x3, x3 refused: so x2 stays, and so does x1.
    Write({u"x1", u"x2", u"x3", u"x4"});
    NumberSettings settings;
    settings.start = 2;
    // Replacing by hand, since sequence numbers would be numbered.
    Rules rules = ReplaceRules(u"3", u"4");
    for (auto& rule : ReplaceRules(u"2", u"3"))
        rules.push_back(std::move(rule));
    for (auto& rule : ReplaceRules(u"1", u"2"))
        rules.push_back(std::move(rule));
    EXPECT_EQ(DecideNamed({u"x1", u"x2", u"x3"}, rules),
              (Strings{No(Reason::TargetExists), No(Reason::TargetExists), No(Reason::TargetExists)}));
    // With numbers the one in front gets another name.
    rules.push_back(std::move(InsertRules(u"-0:!").front()));
    EXPECT_EQ(DecideNamed({u"x1", u"x2", u"x3"}, rules), (Strings{"x2!", "x3!", "x4!"}));
}

TEST_F(Preview, RefusesNamesThatAreTooLong)
{
    const CString longest(u'a', 251);
    m_folder.WriteFile(longest + u".txt");
    m_folder.WriteFile(u"b1.txt");
    EXPECT_EQ(DecideNamed({(longest + u".txt").GetString()}, PrefixRules(u"b")), Strings{No(Reason::TooLong)});
    EXPECT_EQ(DecideNamed({(longest + u".txt").GetString()}, DeleteFirstRules(u"1")),
              Strings{std::string(250, 'a') + ".txt"});
    // The number that it would need does not fit.
    Rules rules = KeepFirstRules(u"0");
    for (auto& rule : PrefixRules(longest))
        rules.push_back(std::move(rule));
    EXPECT_EQ(DecideNamed({u"b1.txt"}, rules), Strings{No(Reason::TooLong)});
}

TEST_F(Preview, RefusesHalfACharacterThatTheOldNameDidNotHave)
{
    m_folder.WriteFile(u"a\U0001F600");
    EXPECT_EQ(DecideNamed({u"a\U0001F600"}, DeleteLastRules(u"1")), Strings{No(Reason::NewLoneSurrogate)});
    EXPECT_EQ(DecideNamed({u"a\U0001F600"}, DeleteLastRules(u"2")), Strings{"a"});
}

TEST_F(Preview, NumbersTenThousandEntriesThatWantOneNameQuickly)
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
    Gathered gathered = Gather(settings);
    const auto begin = std::chrono::steady_clock::now();
    const std::vector<Decision> decisions = DecideByRules(gathered.list, KeepFirstRules(u"1"), OnConflict::Number);
    const auto taken = std::chrono::steady_clock::now() - begin;
    std::set<std::u16string_view> names;
    for (const Decision& decision : decisions) {
        EXPECT_TRUE(decision.IsRename());
        names.insert(decision.name);
    }
    EXPECT_EQ(names.size(), static_cast<std::size_t>(Count));
    EXPECT_TRUE(names.contains(u"a (9999)"));
    // Trying every number for every entry would be 50 million attempts.
    EXPECT_LT(std::chrono::duration<double>(taken).count(), 5.0);
}
