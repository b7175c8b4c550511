// Tests of the looks at files beside the preview.
#include <VyrHost/batch/SourceLooks.h>

#include <VyrHost/collect/CollectEntries.h>

#include <gtest/gtest.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <filesystem>
#include <numeric>
#include <string>

using namespace VyrHost::Batch;
using namespace VyrHost::Collect;
using namespace VyrHost::Model;
using namespace VyrTests;
using VyrPlatform::FileState;
using VyrPlatform::FileSystem::Kind;

namespace {

/// Files in many folders, each as long as its place in the list.
class SourceLooksTest : public testing::Test
{
protected:
    static constexpr std::uint32_t fileCount = 300;
    static constexpr std::uint32_t folderCount = 40;

    SourceLooksTest()
    {
        SourceSettings settings;
        settings.areNames = true;
        for (std::uint32_t file = 0; file < fileCount; ++file) {
            CString name;
            name.Format(u"%u/%u.jpg", file % folderCount, file);
            settings.paths.push_back(m_folder.WriteFile(name, std::string(file, 'x')));
        }
        m_gathered = CollectEntries(settings);
    }

    [[nodiscard]] const EntryList& List() const { return m_gathered.list; }

    void ExpectFound(const std::vector<FileState>& states, const std::vector<std::uint32_t>& entries) const
    {
        ASSERT_EQ(states.size(), entries.size());
        for (std::size_t place = 0; place < entries.size(); ++place) {
            const FileState expected = VyrPlatform::LookAtFile(List().PathOf(List().entries[entries[place]]));
            EXPECT_EQ(states[place].kind, Kind::File);
            EXPECT_EQ(states[place].size, entries[place]);
            EXPECT_EQ(states[place].identity, expected.identity);
            EXPECT_EQ(states[place].modified, expected.modified);
        }
    }

    ScratchFolder m_folder;
    CollectedEntries m_gathered;
    std::vector<std::uint32_t> m_all = [] {
        std::vector<std::uint32_t> entries(fileCount);
        std::iota(entries.begin(), entries.end(), 0U);
        return entries;
    }();
};

} // namespace

TEST_F(SourceLooksTest, FindWhatWasAskedFor)
{
    SourceLooks looks(List(), SystemFiles());
    for (const std::uint32_t entry : m_all)
        looks.Ask(entry);
    ExpectFound(looks.Take(m_all), m_all);
}

TEST_F(SourceLooksTest, AnswerInTheOrderOfTheQuestionWhateverTheOrderOfTheAsking)
{
    SourceLooks looks(List(), SystemFiles());
    for (auto entry = m_all.rbegin(); entry != m_all.rend(); ++entry)
        looks.Ask(*entry);
    ExpectFound(looks.Take(m_all), m_all);
}

TEST_F(SourceLooksTest, FindWhatWasNotAskedForToo)
{
    SourceLooks looks(List(), SystemFiles());
    for (std::uint32_t entry = 0; entry < fileCount; entry += 3)
        looks.Ask(entry);
    ExpectFound(looks.Take(m_all), m_all);
}

TEST_F(SourceLooksTest, LeaveOutWhatIsNotWantedAnyMore)
{
    SourceLooks looks(List(), SystemFiles());
    for (const std::uint32_t entry : m_all)
        looks.Ask(entry);
    const std::vector<std::uint32_t> wanted{7, 299, 64, 63};
    ExpectFound(looks.Take(wanted), wanted);
}

TEST_F(SourceLooksTest, NothingIsFoundWhereNothingIs)
{
    std::filesystem::remove(ToStdPath(m_folder.Path(u"5/5.jpg")));
    std::filesystem::remove_all(ToStdPath(m_folder.Path(u"6")));
    SourceLooks looks(List(), SystemFiles());
    for (const std::uint32_t entry : m_all)
        looks.Ask(entry);
    const std::vector<FileState> states = looks.Take(m_all);
    for (const std::uint32_t gone : {5U, 6U, 46U}) {
        EXPECT_EQ(states[gone].kind, Kind::Missing);
        EXPECT_NE(states[gone].error, 0u);
    }
    EXPECT_EQ(states[45].kind, Kind::File);
}

TEST_F(SourceLooksTest, CanBeGivenUpAtAnyPoint)
{
    for (std::uint32_t count = 0; count < fileCount; count += 37) {
        SourceLooks looks(List(), SystemFiles());
        for (std::uint32_t entry = 0; entry < count; ++entry)
            looks.Ask(entry);
    }
    SourceLooks looks(List(), SystemFiles());
    EXPECT_TRUE(looks.Take({}).empty());
}
