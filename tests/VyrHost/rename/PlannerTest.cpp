// The planner: its steps, done on a tree in memory, must give the result of the list.
#include <tests/VyrHost/rename/PathRenames.h>

#include <VyrPlatform/files/FileSystem.h>

#include <gmock/gmock.h>
#include <tests/support/Describe.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <string>

namespace {

using namespace VyrHost::Model;
using namespace VyrHost::Rename;
using namespace VyrTests;
using VyrHostPlatform::NameFolding;
using VyrPlatform::FileSystem::Kind;

NameFolding Exact(const CString&)
{
    return NameFolding::None;
}

NameFolding FoldingCase(const CString&)
{
    return NameFolding::Case;
}

/// A path of this system from a path with slashes, such as "/a/b".
CString Full(const std::string& path)
{
    CString text;
    for (const char letter : path)
        text += letter == '/' ? VyrPlatform::FileSystem::Separator() : static_cast<char16_t>(letter);
    return VyrPlatform::FileSystem::Separator() == u'/' ? text : u"C:" + text;
}

/// The inverse of Full.
std::string Slashed(const CString& path)
{
    std::string text;
    for (const char16_t unit : path.View())
        text += VyrPlatform::FileSystem::IsSeparator(unit) ? '/' : static_cast<char>(unit);
    return text.substr(text.find('/'));
}

struct Rename
{
    std::string from;
    std::string to;
    Kind kind = Kind::File;
};

PathRenames ListOf(const std::vector<Rename>& renames, const std::vector<std::string>& newFolders = {})
{
    PathRenames list;
    for (const Rename& rename : renames)
        list.Add(Full(rename.from), Full(rename.to), rename.kind);
    for (const std::string& folder : newFolders)
        list.newFolders.push_back(Full(folder));
    return list;
}

/// A tree of entries, each with a number. Moving a folder moves its entries.
class FolderSnapshot
{
public:
    static constexpr int root = 0;

    explicit FolderSnapshot(NameFolding folding) : m_folding(folding) { m_places[root] = {-1, ""}; }

    int Add(const std::string& path)
    {
        const auto slash = path.rfind('/');
        return Put(next++, {Find(path.substr(0, slash)), path.substr(slash + 1)});
    }
    [[nodiscard]] int Find(const std::string& path) const
    {
        int at = root;
        for (std::size_t start = 1; start < path.size();) {
            const std::size_t end = std::min(path.find('/', start), path.size());
            at = FindIn(at, path.substr(start, end - start));
            start = end + 1;
        }
        return at;
    }
    /// @return -1 when there is none.
    [[nodiscard]] int FindIn(int folder, const std::string& name) const
    {
        const auto found = m_ids.find({folder, Key(name)});
        return found == m_ids.end() ? -1 : found->second;
    }
    int Put(int id, std::pair<int, std::string> place)
    {
        const auto [at, isFree] = m_ids.try_emplace({place.first, Key(place.second)}, id);
        EXPECT_TRUE(isFree) << place.second << " is taken";
        m_places[id] = place;
        return id;
    }
    void Move(int id, int folder, const std::string& name)
    {
        m_ids.erase({m_places[id].first, Key(m_places[id].second)});
        Put(id, {folder, name});
        EXPECT_NE(PathOf(id), "in itself");
    }
    int MakeIn(int folder, const std::string& name) { return Put(next++, {folder, name}); }
    [[nodiscard]] std::string PathOf(int id) const
    {
        std::string path;
        for (int steps = 0; id != root; id = m_places.at(id).first, ++steps) {
            if (steps > 1000)
                return "in itself";
            path.insert(0, "/" + m_places.at(id).second);
        }
        return path;
    }
    [[nodiscard]] std::string NameOf(int id) const { return m_places.at(id).second; }
    [[nodiscard]] int FolderOf(int id) const { return m_places.at(id).first; }

private:
    [[nodiscard]] std::string Key(std::string name) const
    {
        if (m_folding == NameFolding::Case)
            std::transform(name.begin(), name.end(), name.begin(),
                           [](char letter) { return letter >= 'A' && letter <= 'Z' ? letter + 32 : letter; });
        return name;
    }

    NameFolding m_folding;
    int next = 1;
    std::map<int, std::pair<int, std::string>> m_places;
    std::map<std::pair<int, std::string>, int> m_ids;
};

std::string Text(std::u16string_view name)
{
    std::string text;
    for (const char16_t unit : name)
        text += static_cast<char>(unit);
    return text;
}

/// Does the steps of a plan in their order; the new path of each step must be free.
class Performer
{
public:
    Performer(const RenamePlan& plan, FolderSnapshot& tree) : m_plan(plan), m_tree(tree)
    {
        for (PlanIndex folder = 0; folder < plan.folders.size(); ++folder)
            m_folderIds.push_back(plan.folders[folder].isNew ? -1 : tree.Find(Slashed(PathBefore(plan, folder))));
        for (const PlanEntry& entry : plan.entries)
            m_entryIds.push_back(tree.FindIn(m_folderIds[entry.from.folder], Text(entry.from.name)));
    }
    void Perform()
    {
        for (const PlanStep& step : m_plan.steps)
            Perform(step);
    }
    [[nodiscard]] int EntryId(std::size_t entry) const { return m_entryIds[entry]; }

private:
    void Perform(const PlanStep& step)
    {
        if (step.action == PlanStep::Action::MakeFolder) {
            const Place& place = m_plan.folders[step.subject].place;
            m_folderIds[step.subject] = m_tree.MakeIn(m_folderIds[place.folder], Text(place.name));
            return;
        }
        const int id = m_entryIds[step.subject];
        const Place& to = m_plan.entries[step.subject].to;
        if (step.action == PlanStep::Action::UseTemporaryName)
            m_tree.Move(id, m_tree.FolderOf(id), "temporary " + std::to_string(step.subject));
        else
            m_tree.Move(id, m_folderIds[to.folder], Text(to.name));
    }

    const RenamePlan& m_plan;
    FolderSnapshot& m_tree;
    std::vector<int> m_folderIds;
    std::vector<int> m_entryIds;
};

std::vector<std::string> PathsAfter(const std::vector<std::string>& tree, const PathRenames& list,
                                    const FoldingOfFolder& folding = Exact)
{
    FolderSnapshot things(folding(u""));
    std::vector<int> ids;
    for (const std::string& path : tree)
        ids.push_back(things.Add(path));
    const PlannerResult result = PlanRenames(list, folding);
    EXPECT_TRUE(result.refused.empty());
    Performer(result.plan, things).Perform();
    std::vector<std::string> paths;
    for (const int id : ids)
        paths.push_back(things.PathOf(id));
    return paths;
}

std::size_t CountTemporaryNames(const RenamePlan& plan)
{
    return static_cast<std::size_t>(std::count_if(plan.steps.begin(), plan.steps.end(), [](const PlanStep& step) {
        return step.action == PlanStep::Action::UseTemporaryName;
    }));
}

using testing::ElementsAre;

TEST(Planner, KeepsIndependentRenamesInTheOrderOfTheList)
{
    const PlannerResult result = PlanRenames(ListOf({{"/b", "/x"}, {"/a", "/y"}, {"/c", "/z"}}), Exact);
    using Action = PlanStep::Action;
    EXPECT_THAT(result.plan.steps,
                ElementsAre(PlanStep{Action::Rename, 0}, PlanStep{Action::Rename, 1}, PlanStep{Action::Rename, 2}));
}

TEST(Planner, RenamesAChainFromItsFreeEnd)
{
    EXPECT_THAT(PathsAfter({"/1", "/2", "/3"}, ListOf({{"/1", "/2"}, {"/2", "/3"}, {"/3", "/4"}})),
                ElementsAre("/2", "/3", "/4"));
}

TEST(Planner, SwapsTwoWithOneTemporaryName)
{
    const PathRenames list = ListOf({{"/a", "/b"}, {"/b", "/a"}});
    EXPECT_THAT(PathsAfter({"/a", "/b"}, list), ElementsAre("/b", "/a"));
    EXPECT_EQ(CountTemporaryNames(PlanRenames(list, Exact).plan), 1u);
}

TEST(Planner, BreaksACycleOfAThousandWithOneTemporaryName)
{
    std::vector<Rename> renames;
    std::vector<std::string> tree;
    std::vector<std::string> expected;
    for (int index = 0; index < 1000; ++index) {
        tree.push_back("/" + std::to_string(index));
        expected.push_back("/" + std::to_string((index * 7 + 3) % 1000));
        renames.push_back({tree.back(), expected.back()});
    }
    // 7 i + 3 makes several cycles; i + 1 makes one.
    EXPECT_EQ(PathsAfter(tree, ListOf(renames)), expected);
    for (int index = 0; index < 1000; ++index)
        renames[static_cast<std::size_t>(index)].to = "/" + std::to_string((index + 1) % 1000);
    EXPECT_EQ(CountTemporaryNames(PlanRenames(ListOf(renames), Exact).plan), 1u);
}

TEST(Planner, ChangesCaseInTwoStepsWhereThatIsOneName)
{
    const PathRenames list = ListOf({{"/readme", "/README"}});
    EXPECT_THAT(PathsAfter({"/readme"}, list, FoldingCase), ElementsAre("/README"));
    EXPECT_EQ(CountTemporaryNames(PlanRenames(list, FoldingCase).plan), 1u);
    EXPECT_EQ(CountTemporaryNames(PlanRenames(list, Exact).plan), 0u);
}

TEST(Planner, ChangesTheNormalFormInTwoStepsWhereThatIsOneName)
{
    PathRenames list;
    list.Add(Full("/") + u"\u00E9", Full("/") + u"e\u0301", Kind::File);
    const auto foldingForm = [](const CString&) {
        return NameFolding::Form;
    };
    EXPECT_EQ(CountTemporaryNames(PlanRenames(list, foldingForm).plan), 1u);
    EXPECT_EQ(CountTemporaryNames(PlanRenames(list, Exact).plan), 0u);
}

TEST(Planner, FindsACycleInNamesThatDifferInCase)
{
    EXPECT_THAT(PathsAfter({"/a", "/B"}, ListOf({{"/a", "/b"}, {"/B", "/A"}}), FoldingCase), ElementsAre("/b", "/A"));
}

TEST(Planner, RenamesAFolderTogetherWithItsEntries)
{
    EXPECT_THAT(PathsAfter({"/d", "/d/x", "/d/s", "/d/s/y"}, ListOf({{"/d", "/e", Kind::Folder},
                                                                     {"/d/x", "/d/x2"},
                                                                     {"/d/s", "/d/t", Kind::Folder},
                                                                     {"/d/s/y", "/d/s/y2"}})),
                ElementsAre("/e", "/e/x2", "/e/t", "/e/t/y2"));
}

TEST(Planner, MovesAFileOutOfAFolderToThePathOfThatFolder)
{
    EXPECT_THAT(PathsAfter({"/d", "/d/f"}, ListOf({{"/d/f", "/d"}, {"/d", "/e", Kind::Folder}})),
                ElementsAre("/e", "/d"));
}

TEST(Planner, MovesIntoAFolderByItsNameBeforeTheRename)
{
    EXPECT_THAT(PathsAfter({"/x", "/d"}, ListOf({{"/x", "/d/x"}, {"/d", "/e", Kind::Folder}})),
                ElementsAre("/e/x", "/e"));
}

TEST(Planner, CreatesFoldersBeforeEntriesMoveThere)
{
    EXPECT_THAT(PathsAfter({"/x", "/y"}, ListOf({{"/x", "/n/m/x"}, {"/y", "/n/y"}}, {"/n", "/n/m"})),
                ElementsAre("/n/m/x", "/n/y"));
}

TEST(Planner, CreatesAFolderAtThePathOfAFileThatMovesThere)
{
    EXPECT_THAT(PathsAfter({"/a"}, ListOf({{"/a", "/a/a"}}, {"/a"})), ElementsAre("/a/a"));
    EXPECT_THAT(PathsAfter({"/a"}, ListOf({{"/a", "/a/b/a"}}, {"/a", "/a/b"})), ElementsAre("/a/b/a"));
    EXPECT_THAT(PathsAfter({"/x", "/a"}, ListOf({{"/x", "/a/b/x"}, {"/a", "/a/b/a"}}, {"/a", "/a/b"})),
                ElementsAre("/a/b/x", "/a/b/a"));
    EXPECT_THAT(PathsAfter({"/x", "/a", "/b"}, ListOf({{"/x", "/a/x"}, {"/a", "/b"}, {"/b", "/a/b"}}, {"/a"})),
                ElementsAre("/a/x", "/b", "/a/b"));
}

TEST(Planner, CreatesNoFolderThatStaysEmpty)
{
    EXPECT_EQ(PlanRenames(ListOf({{"/a", "/b"}}, {"/n"}), Exact).plan.steps.size(), 1u);
}

std::vector<std::size_t> RefusedIndexes(const PathRenames& list, const FoldingOfFolder& folding = Exact)
{
    std::vector<std::size_t> indexes;
    for (const PlanRefusal& refusal : PlanRenames(list, folding).refused) {
        EXPECT_NE(refusal.reason, Reason::None);
        indexes.push_back(refusal.entry);
    }
    return indexes;
}

TEST(Planner, RefusesTheSecondOfTwoWithOneTarget)
{
    EXPECT_THAT(RefusedIndexes(ListOf({{"/a", "/x"}, {"/b", "/x"}, {"/c", "/a"}})), ElementsAre(1));
    EXPECT_THAT(RefusedIndexes(ListOf({{"/a", "/x"}, {"/b", "/X"}}), FoldingCase), ElementsAre(1));
}

TEST(Planner, RefusesEntriesThatNeedThePathOfARefusedOne)
{
    // The last one is refused, since it would move into itself.
    EXPECT_THAT(RefusedIndexes(ListOf({{"/a", "/b"}, {"/b", "/c"}, {"/c", "/c/s/c", Kind::Folder}, {"/e", "/f"}})),
                ElementsAre(0, 1, 2));
    // A folder is to be created at the path of a file that is refused.
    EXPECT_THAT(RefusedIndexes(ListOf({{"/x", "/a/b/x"}, {"/a", "/c"}, {"/c", "/c/s/c", Kind::Folder}, {"/y", "/z"}},
                                      {"/a", "/a/b"})),
                ElementsAre(0, 1, 2));
}

TEST(Planner, GivesTheReasonOfEachRefusal)
{
    const auto reasons = [](const PathRenames& list) {
        std::vector<Reason> found;
        for (const PlanRefusal& refusal : PlanRenames(list, Exact).refused)
            found.push_back(refusal.reason);
        return found;
    };
    EXPECT_THAT(reasons(ListOf({{"/b", "/x"}, {"/a", "/x"}})), ElementsAre(Reason::TwoToOne));
    EXPECT_THAT(reasons(ListOf({{"/a", "/n"}, {"/b", "/n/b"}}, {"/n"})), ElementsAre(Reason::TargetExists));
    EXPECT_THAT(reasons(ListOf({{"/x", "/a/x"}, {"/a", "/c"}, {"/c", "/c/s/c", Kind::Folder}}, {"/a"})),
                ElementsAre(Reason::FolderKept, Reason::PlaceKept, Reason::InsideItself));
}

TEST(Planner, RefusesAFolderThatWouldMoveIntoItself)
{
    EXPECT_THAT(RefusedIndexes(ListOf({{"/d", "/d/s/d", Kind::Folder}, {"/x", "/y"}})), ElementsAre(0));
    EXPECT_THAT(RefusedIndexes(ListOf({{"/a", "/b/a", Kind::Folder}, {"/b", "/a/b", Kind::Folder}})),
                ElementsAre(0, 1));
}

TEST(Planner, RefusesToExchangeAFolderAndItsParent)
{
    // The inner folder moves out, and the outer one into it.
    EXPECT_THAT(RefusedIndexes(ListOf({{"/a", "/a/b/a", Kind::Folder}, {"/a/b", "/b", Kind::Folder}})), ElementsAre(0));
}

TEST(Planner, RefusesTheNewPathOfACreatedFolder)
{
    EXPECT_THAT(RefusedIndexes(ListOf({{"/a", "/n"}, {"/b", "/n/b"}}, {"/n"})), ElementsAre(0));
}

TEST(Planner, PlansAChainOfAHundredThousand)
{
    PathRenames list;
    for (int index = 0; index < 100'000; ++index)
        list.Add(Full("/" + std::to_string(index)), Full("/" + std::to_string(index + 1)), Kind::File);
    const PlannerResult result = PlanRenames(list, Exact);
    ASSERT_EQ(result.plan.steps.size(), 100'000u);
    for (PlanIndex step = 0; step < 100'000; ++step)
        ASSERT_EQ(result.plan.steps[step].subject, 99'999 - step);
}

/// A random tree and a random list of renames in it.
class RandomBatches
{
public:
    RandomBatches(unsigned seed, NameFolding folding) : m_random(seed), m_folding(folding), m_tree(folding) {}

    void Run()
    {
        std::vector<std::string> folders{""};
        std::vector<std::string> paths;
        std::map<std::string, Kind> kinds;
        for (int index = 0; index < 25; ++index) {
            const std::string path = folders[Below(folders.size())] + "/" + Name();
            if (IsThere(path))
                continue;
            m_tree.Add(path);
            kinds[path] = Below(3) == 0 ? Kind::Folder : Kind::File;
            paths.push_back(path);
            if (kinds[path] == Kind::Folder)
                folders.push_back(path);
        }
        const std::vector<std::string> newFolders = InventNewFolders(folders, paths, kinds);
        PathRenames list;
        std::vector<Rename> renames;
        for (const std::string& path : paths)
            if (Below(3) != 0) {
                const bool moves = Below(3) == 0;
                const std::string folder = moves ? folders[Below(folders.size())] : path.substr(0, path.rfind('/'));
                const std::string to = folder + "/" + Name();
                if (to != path)
                    renames.push_back({path, to, kinds[path]});
            }
        std::shuffle(renames.begin(), renames.end(), m_random);
        Check(ListOf(renames, newFolders), paths);
    }

    static inline std::size_t planned = 0;
    static inline std::size_t temporaryNames = 0;

private:
    std::size_t Below(std::size_t bound) { return m_random() % bound; }
    std::string Name() { return std::string(1, "abcdefgABC"[Below(10)]); }
    [[nodiscard]] bool IsThere(const std::string& path) const
    {
        const auto slash = path.rfind('/');
        return m_tree.FindIn(m_tree.Find(path.substr(0, slash)), path.substr(slash + 1)) >= 0;
    }
    /// Some of them are at the paths of files in the tree.
    std::vector<std::string> InventNewFolders(std::vector<std::string>& folders, const std::vector<std::string>& paths,
                                              const std::map<std::string, Kind>& kinds)
    {
        std::vector<std::string> made;
        for (int index = 0; index < 3; ++index) {
            const std::string path = index > 0 && !made.empty() && Below(2) ? made[Below(made.size())] + "/" + Name()
                                                                            : paths[Below(paths.size())];
            const auto kind = kinds.find(path);
            if ((kind != kinds.end() && kind->second == Kind::Folder) ||
                std::find(made.begin(), made.end(), path) != made.end())
                continue;
            made.push_back(path);
            folders.push_back(path);
        }
        return made;
    }

    /// Whether the new paths are free. Finding entries in the way is the host's task: such lists are not used here.
    [[nodiscard]] bool IsFreeAfterwards(const PlannerResult& result, const PathRenames& list) const
    {
        std::set<int> leaving;
        for (const std::size_t index : result.entries)
            leaving.insert(m_tree.Find(Slashed(list.renames[index].from)));
        const auto isInTheWay = [&](PlanIndex folder, std::u16string_view name) {
            const int folderId =
                result.plan.folders[folder].isNew ? -1 : m_tree.Find(Slashed(PathBefore(result.plan, folder)));
            const int there = folderId < 0 ? -1 : m_tree.FindIn(folderId, Text(name));
            return there >= 0 && !leaving.contains(there);
        };
        for (const PlanEntry& entry : result.plan.entries)
            if (isInTheWay(entry.to.folder, entry.to.name))
                return false;
        for (const PlanFolder& folder : result.plan.folders)
            if (folder.isNew && isInTheWay(folder.place.folder, folder.place.name))
                return false;
        return true;
    }

    static std::string NameOfFolder(const std::string& path)
    {
        const std::string folder = path.substr(0, path.rfind('/'));
        return folder.substr(folder.rfind('/') + 1);
    }

    void Check(const PathRenames& list, const std::vector<std::string>& paths)
    {
        const NameFolding folding = m_folding;
        const PlannerResult result = PlanRenames(list, [folding](const CString&) { return folding; });
        EXPECT_EQ(result.entries.size() + result.refused.size(), list.renames.size());
        if (!IsFreeAfterwards(result, list))
            return;
        std::map<int, std::pair<int, std::string>> untouched;
        for (const std::string& path : paths)
            untouched[m_tree.Find(path)] = {m_tree.FolderOf(m_tree.Find(path)), m_tree.NameOf(m_tree.Find(path))};
        // A folder to be created has no number yet.
        std::vector<int> newParents;
        for (const PlanEntry& entry : result.plan.entries)
            newParents.push_back(result.plan.folders[entry.to.folder].isNew
                                     ? -1
                                     : m_tree.Find(Slashed(PathBefore(result.plan, entry.to.folder))));
        Performer performer(result.plan, m_tree);
        performer.Perform();
        for (std::size_t entry = 0; entry < result.entries.size(); ++entry) {
            const int id = performer.EntryId(entry);
            const std::string to = Slashed(list.renames[result.entries[entry]].to);
            EXPECT_EQ(m_tree.NameOf(id), to.substr(to.rfind('/') + 1));
            if (newParents[entry] >= 0)
                EXPECT_EQ(m_tree.FolderOf(id), newParents[entry]);
            else
                EXPECT_EQ(m_tree.NameOf(m_tree.FolderOf(id)), NameOfFolder(to));
            untouched.erase(id);
        }
        for (const auto& [id, place] : untouched) {
            EXPECT_EQ(m_tree.NameOf(id), place.second);
            EXPECT_EQ(m_tree.FolderOf(id), place.first);
        }
        planned += result.entries.size();
        temporaryNames += CountTemporaryNames(result.plan);
    }

    std::mt19937 m_random;
    NameFolding m_folding;
    FolderSnapshot m_tree;
};

TEST(Planner, PlansRandomLists)
{
    for (unsigned seed = 0; seed < 20'000 && !testing::Test::HasFailure(); ++seed)
        RandomBatches(seed, seed % 2 ? NameFolding::Case : NameFolding::None).Run();
    // Otherwise the lists would test nothing.
    EXPECT_GT(RandomBatches::planned, 10'000u);
    EXPECT_GT(RandomBatches::temporaryNames, 500u);
}

} // namespace
