// Random trees and batches: whatever is applied, and whatever fails, no file is lost and all can be undone.
#include <tests/VyrHost/batch/BatchScene.h>
#include <tests/VyrHost/batch/FaultyFiles.h>
#include <tests/support/Describe.h>
#include <tests/support/StdPath.h>

#include <VyrPlatform/files/FileSystem.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <set>

namespace {

using namespace VyrHost::Batch;
using namespace VyrTests;
using VyrPlatform::FileSystem::Kind;

/// Fills a scene at random. The names and folders are few, so that conflicts occur.
class RandomScene
{
public:
    RandomScene(unsigned seed, BatchScene& scene) : m_random(seed), m_scene(scene) {}

    void Arrange()
    {
        std::vector<std::u16string> folders{u""};
        std::vector<std::u16string> entries;
        std::set<std::u16string> folderEntries;
        for (int index = 0; index < 16; ++index) {
            const std::u16string path = Choose(folders) + Name();
            if (std::find(entries.begin(), entries.end(), path) != entries.end())
                continue;
            entries.push_back(path);
            if (Below(3) != 0) {
                m_scene.Write(path);
                continue;
            }
            m_scene.MakeFolder(path);
            folders.push_back(path + u"/");
            folderEntries.insert(path);
        }
        AddNewFolders(folders, entries);
        for (const std::u16string& path : entries)
            if (Below(4) != 0)
                AddRename(path, folders, folderEntries.contains(path) ? Kind::Folder : Kind::File);
        std::shuffle(m_scene.list.renames.begin(), m_scene.list.renames.end(), m_random);
    }

private:
    std::size_t Below(std::size_t bound) { return m_random() % bound; }
    const std::u16string& Choose(const std::vector<std::u16string>& texts) { return texts[Below(texts.size())]; }
    std::u16string Name() { return std::u16string(1, u"abcdef\u00E9"[Below(7)]); }

    /// Adds a folder at a free path, one at a path that may be taken, and one in the first.
    void AddNewFolders(std::vector<std::u16string>& folders, const std::vector<std::u16string>& entries)
    {
        const std::u16string taken = Choose(entries);
        const bool isFolder = std::find(folders.begin(), folders.end(), taken + u"/") != folders.end();
        std::vector<std::u16string> made{u"new", u"new/" + Name()};
        if (!isFolder)
            made.push_back(taken);
        for (const std::u16string& path : made) {
            m_scene.NewFolder(path);
            folders.push_back(path + u"/");
        }
    }

    void AddRename(const std::u16string& from, const std::vector<std::u16string>& folders, Kind kind)
    {
        const std::u16string folder = Below(3) == 0 ? Choose(folders) : from.substr(0, from.rfind(u'/') + 1);
        const std::u16string to = folder + Name();
        if (to != from)
            m_scene.Rename(from, to, kind);
    }

    std::mt19937 m_random;
    BatchScene& m_scene;
};

TEST(RandomBatches, AreUndoneToExactlyTheTreeBefore)
{
    std::size_t done = 0;
    for (unsigned seed = 0; seed < 150 && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        FaultyFiles files;
        BatchScene scene(files);
        RandomScene(seed, scene).Arrange();
        const FolderSnapshot before = scene.Now();
        const BatchSummary applied = scene.Apply();
        EXPECT_EQ(applied.error, u"");
        EXPECT_EQ(ContentsOf(scene.Now()), ContentsOf(before));
        done += applied.done;
        if (applied.number != 0) {
            EXPECT_EQ(scene.Undo().done, applied.done);
        }
        EXPECT_EQ(scene.Now(), before);
    }
    EXPECT_GT(done, 150u);
}

TEST(RandomBatches, LoseNothingWhateverFails)
{
    std::size_t faults = 0;
    for (unsigned seed = 0; seed < 150 && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        FaultyFiles files;
        BatchScene scene(files);
        RandomScene(seed, scene).Arrange();
        const FolderSnapshot before = scene.Now();
        std::mt19937 random(seed);
        files.before = [&random, &faults](const FileChange& change, std::size_t) {
            // Without a journal nothing would be done; a folder that cannot be removed stays forever.
            const bool isSpared =
                change.kind == FileChange::Kind::WriteNew || change.kind == FileChange::Kind::RemoveFolder;
            const bool fails = !isSpared && random() % 4 == 0;
            faults += fails;
            return std::uint32_t{fails ? 5u : 0u};
        };
        scene.Apply();
        EXPECT_EQ(ContentsOf(scene.Now()), ContentsOf(before));
        // The next undo does what the one before could not do.
        for (int attempt = 0; attempt < 3; ++attempt) {
            scene.Undo();
            if (scene.batches.FindCutOff())
                scene.Recover(attempt % 2 ? Recovery::Finish : Recovery::Undo);
            EXPECT_EQ(ContentsOf(scene.Now()), ContentsOf(before));
        }
        files.before = {};
        if (const std::optional<BatchInformation> cutOff = scene.batches.FindCutOff()) {
            const bool wasApplying = cutOff->state == BatchState::CutOff;
            EXPECT_EQ(scene.Recover(wasApplying ? Recovery::Undo : Recovery::Finish).error, u"");
        }
        scene.Undo();
        EXPECT_EQ(scene.Now(), before);
    }
    EXPECT_GT(faults, 300u);
}

TEST(RandomBatches, LoseNothingWhereverTheyAreCutOff)
{
    struct CutOff
    {};
    std::size_t recovered = 0;
    for (unsigned seed = 0; seed < 150 && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        FaultyFiles files;
        BatchScene scene(files);
        RandomScene(seed, scene).Arrange();
        const FolderSnapshot before = scene.Now();
        std::mt19937 random(seed);
        const std::size_t last = 1 + random() % 20;
        files.after = [last](const FileChange&, std::size_t number) {
            if (number == last)
                throw CutOff();
        };
        try {
            scene.Apply();
        } catch (const CutOff&) {
        }
        files.after = {};
        EXPECT_EQ(ContentsOf(scene.Now()), ContentsOf(before));
        if (scene.batches.FindCutOff()) {
            ++recovered;
            EXPECT_EQ(scene.Recover(seed % 2 ? Recovery::Finish : Recovery::Undo).error, u"");
            EXPECT_EQ(ContentsOf(scene.Now()), ContentsOf(before));
        }
        scene.Undo();
        EXPECT_EQ(scene.Now(), before);
    }
    EXPECT_GT(recovered, 30u);
}

} // namespace
