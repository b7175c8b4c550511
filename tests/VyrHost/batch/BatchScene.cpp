#include <tests/VyrHost/batch/BatchScene.h>

#include <VyrPlatform/text/Encoding.h>

#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace VyrTests {

namespace {

namespace fs = std::filesystem;
using namespace VyrHost::Batch;
using namespace VyrHost::Model;

std::string ToBytes(std::u16string_view name)
{
    return VyrPlatform::Encoding::ToNameBytes(name);
}

std::string ReadAll(const fs::path& path)
{
    std::ostringstream content;
    content << std::ifstream(path, std::ios::binary).rdbuf();
    return std::move(content).str();
}

void Collect(const fs::path& folder, const std::string& prefix, FolderSnapshot& tree)
{
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        const std::string path = prefix + ToBytes(FromStdPath(entry.path().filename()));
        if (entry.is_symlink()) {
            tree[path] = "<link>";
        } else if (entry.is_directory()) {
            tree[path] = "<folder>";
            Collect(entry.path(), path + "/", tree);
        } else {
            tree[path] = ReadAll(entry.path());
        }
    }
}

} // namespace

BatchSettings SettingsIn(const CString& journalFolder)
{
    BatchSettings settings;
    settings.journalFolder = journalFolder;
    return settings;
}

BatchScene::BatchScene(FileOperations& files, const ChangeKinds& kinds)
    : m_files(files),
      batches(files, {.journalFolder = m_scratch.Path(u"journal"), .keeping = {}, .wait = {}, .kinds = kinds})
{
    m_scratch.MakeFolder(u"files");
}

CString BatchScene::Path(std::u16string_view name) const
{
    return m_scratch.Path(u"files/" + CString(name));
}

void BatchScene::Write(std::u16string_view name) const
{
    Write(name, ToBytes(name));
}

void BatchScene::Write(std::u16string_view name, std::string_view content) const
{
    m_scratch.WriteFile(u"files/" + CString(name), content);
}

void BatchScene::MakeFolder(std::u16string_view name) const
{
    m_scratch.MakeFolder(u"files/" + CString(name));
}

BatchScene& BatchScene::Rename(std::u16string_view from, std::u16string_view to, VyrPlatform::FileSystem::Kind kind)
{
    list.Add(Path(from), Path(to), kind);
    return *this;
}

BatchScene& BatchScene::RenameFolder(std::u16string_view from, std::u16string_view to)
{
    return Rename(from, to, VyrPlatform::FileSystem::Kind::Folder);
}

BatchScene& BatchScene::NewFolder(std::u16string_view name)
{
    list.newFolders.push_back(Path(name));
    return *this;
}

VyrHost::Rename::PlannerResult BatchScene::Plan() const
{
    return PlanRenames(list, [this](const CString& path) { return m_files.GetNameFolding(path); });
}

BatchSummary BatchScene::Apply(const StopRequest& isStopAsked)
{
    results.assign(list.renames.size(), {});
    const VyrHost::Rename::PlannerResult planned = Plan();
    for (const VyrHost::Rename::PlanRefusal& refusal : planned.refused)
        results[refusal.entry].status = Status::Refused;
    if (planned.entries.empty())
        return {};
    std::vector<int> calls(planned.entries.size());
    BatchSummary summary = batches.Apply(
        planned.plan, {},
        [&](PlanIndex entry, const Outcome& result) {
            results[planned.entries[entry]] = result;
            ++calls[entry];
        },
        isStopAsked);
    const bool wasBegun = summary.notReached < planned.entries.size() || summary.wasStopped;
    for (const int count : calls)
        EXPECT_EQ(count, wasBegun ? 1 : 0);
    EXPECT_EQ(summary.done + summary.failed + summary.refused + summary.notReached, planned.entries.size());
    EXPECT_TRUE(summary.missing.empty());
    return summary;
}

BatchSummary BatchScene::Undo(std::optional<std::uint32_t> number, const StopRequest& isStopAsked)
{
    entries.clear();
    if (!number) {
        const std::vector<BatchInformation> known = batches.List();
        const auto latest = std::find_if(known.begin(), known.end(),
                                         [](const BatchInformation& batch) { return CanBeUndone(batch.state); });
        number = latest == known.end() ? 0 : latest->number;
    }
    BatchSummary summary = batches.Reverse(
        *number, Direction::Backward, [this](const BatchEntry& entry) { entries.push_back(entry); }, isStopAsked);
    EXPECT_EQ(summary.done + summary.failed + summary.refused + summary.notReached, entries.size());
    EXPECT_TRUE(summary.missing.empty());
    return summary;
}

BatchSummary BatchScene::Redo(std::uint32_t number)
{
    entries.clear();
    BatchSummary summary =
        batches.Reverse(number, Direction::Forward, [this](const BatchEntry& entry) { entries.push_back(entry); }, {});
    EXPECT_EQ(summary.done + summary.failed + summary.refused + summary.notReached, entries.size());
    return summary;
}

BatchSummary BatchScene::Recover(Recovery recovery)
{
    entries.clear();
    BatchSummary summary = batches.Recover(recovery, [this](const BatchEntry& entry) { entries.push_back(entry); }, {});
    EXPECT_TRUE(summary.missing.empty());
    return summary;
}

FolderSnapshot BatchScene::Now() const
{
    FolderSnapshot tree;
    Collect(ToStdPath(m_scratch.Path(u"files")), "", tree);
    return tree;
}

std::vector<std::string> BatchScene::JournalFiles() const
{
    std::vector<std::string> names;
    const fs::path folder = ToStdPath(JournalFolder());
    if (fs::exists(folder))
        for (const fs::directory_entry& entry : fs::directory_iterator(folder))
            if (entry.path().filename() != "lock")
                names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::vector<std::string> ContentsOf(const FolderSnapshot& tree)
{
    std::vector<std::string> contents;
    for (const auto& [path, content] : tree)
        if (content != "<folder>")
            contents.push_back(content);
    std::sort(contents.begin(), contents.end());
    return contents;
}

} // namespace VyrTests
