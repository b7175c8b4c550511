// The states of the sources of a batch, which two threads read.
#include <VyrHost/batch/DiskChecks.h>

#include <gtest/gtest.h>
#include <tests/VyrHost/rename/PathRenames.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <filesystem>
#include <string>

using namespace VyrHost::Batch;
using namespace VyrTests;
using VyrPlatform::FileState;
using VyrPlatform::FileSystem::Kind;

namespace {

/// Files in many folders; the size of each is its index in the plan.
class SourceStates : public testing::Test
{
protected:
    static constexpr std::uint32_t folderCount = 40;

    void Write(std::uint32_t count)
    {
        for (std::uint32_t file = 0; file < count; ++file) {
            CString name;
            name.Format(u"%u/%u.jpg", file % folderCount, file);
            const CString path = m_folder.WriteFile(name, std::string(file, 'x'));
            m_list.Add(path, path + u" renamed");
        }
    }

    [[nodiscard]] std::vector<FileState> Look() const
    {
        const auto exact = [](const CString&) {
            return VyrHostPlatform::NameFolding::None;
        };
        return LookAtSources(PlanRenames(m_list, exact).plan, SystemFiles());
    }

    ScratchFolder m_folder;
    PathRenames m_list;
};

TEST_F(SourceStates, AreThoseOfTheFilesInTheOrderOfThePlan)
{
    for (const std::uint32_t count : {1U, 100U, 1001U}) {
        m_list = {};
        Write(count);
        const std::vector<FileState> states = Look();
        ASSERT_EQ(states.size(), count);
        for (std::uint32_t file = 0; file < count; ++file) {
            const FileState expected = VyrPlatform::LookAtFile(m_list.renames[file].from);
            EXPECT_EQ(states[file].kind, Kind::File);
            EXPECT_EQ(states[file].size, file);
            EXPECT_EQ(states[file].identity, expected.identity);
            EXPECT_EQ(states[file].modified, expected.modified);
        }
    }
}

TEST_F(SourceStates, AreMissingWithTheReasonWhereThereIsNoFile)
{
    Write(300);
    std::filesystem::remove(ToStdPath(m_folder.Path(u"5/5.jpg")));
    std::filesystem::remove_all(ToStdPath(m_folder.Path(u"6")));
    const std::vector<FileState> states = Look();
    for (const std::uint32_t gone : {5U, 6U, 46U, 286U}) {
        EXPECT_EQ(states[gone].kind, Kind::Missing);
        EXPECT_NE(states[gone].error, 0u);
    }
    EXPECT_EQ(states[45].kind, Kind::File);
}

} // namespace
