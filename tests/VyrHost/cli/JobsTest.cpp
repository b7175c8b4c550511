// The tables of jobs in the documents: each call gives the names or times of its line, and undo brings the old ones
// back.
#include "VyrProgram.h"

#include <tests/support/CommandLine.h>
#include <tests/support/FileMoments.h>
#include <tests/support/MediaBuilder.h>
#include <tests/support/PictureBuilder.h>

#include <VyrPlatform/files/FileTimes.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <fstream>

using namespace VyrTests;
using testing::HasSubstr;
using VyrPlatform::Encoding::FromUtf8;

namespace {

struct Job
{
    std::string title;
    std::string call;
    std::vector<std::string> files;
    /// The names that the files get, in the same order; of a call of "vyr times" the times.
    std::vector<std::string> results;

    [[nodiscard]] bool IsRename() const { return call.starts_with("vyr rename "); }
};

/// The cells of a table's line. A vertical bar with a backslash belongs to its cell.
std::vector<std::string> Cells(const std::string& line)
{
    std::vector<std::string> cells;
    std::string cell;
    for (std::size_t at = 1; at < line.size(); ++at)
        if (line[at] == '\\' && at + 1 < line.size() && line[at + 1] == '|')
            cell += line[++at];
        else if (line[at] == '|')
            cells.push_back(std::exchange(cell, {}));
        else
            cell += line[at];
    return cells;
}

/// The pieces of a cell that are set as code.
std::vector<std::string> CodeIn(const std::string& cell)
{
    std::vector<std::string> pieces;
    for (std::size_t start = cell.find('`'); start != std::string::npos;) {
        const std::size_t end = cell.find('`', start + 1);
        pieces.push_back(cell.substr(start + 1, end - start - 1));
        start = cell.find('`', end + 1);
    }
    return pieces;
}

std::vector<Job> Jobs()
{
    std::ifstream document(VYR_SOURCE_FOLDER "/docs/jobs.md");
    std::vector<Job> jobs;
    for (std::string line; std::getline(document, line);) {
        if (line.find("| `vyr rename ") == std::string::npos && line.find("| `vyr times ") == std::string::npos)
            continue;
        const auto cells = Cells(line);
        if (cells.size() != 4)
            ADD_FAILURE() << line;
        else
            jobs.push_back({cells[0], CodeIn(cells[2]).front(), CodeIn(cells[1]), CodeIn(cells[3])});
    }
    return jobs;
}

constexpr VyrPlatform::FileTicks lastChange = TicksOfUnixTime(1'704'450'600);
constexpr VyrPlatform::FileTicks lastAccess = TicksOfUnixTime(1'704'450'600 + 24 * 60 * 60);

constexpr std::uint64_t secondsFrom1904To1970 = 2'082'844'800;

/// The content of a file, by its name, as the document describes it.
std::string ContentOf(const std::string& name)
{
    if (name == "pairs.csv")
        return "a.txt,b.txt\n";
    if (name == "swap.csv")
        return "a.txt,b.txt\nb.txt,a.txt\n";
    if (name == "people.csv")
        return "File,Name\n1001.txt,Eva\n";
    if (name.ends_with(".mp3"))
        return BuildMp3(Id3Tag({{"TPE1", "Eva Berg"},
                                {"TALB", "Home"},
                                {"TIT2", "Second Song"},
                                {"TRCK", "2"},
                                {"TPOS", "1"},
                                {"TDRC", "2019"}}));
    if (name.ends_with(".mp4"))
        return BuildMp4({.created = secondsFrom1904To1970 + 1'706'933'106});
    if (!name.ends_with(".jpg") && name != "photo.dat")
        return name;
    PictureFacts facts;
    facts.dateTimeOriginal = name.find('2') == std::string::npos ? "2024:07:19 18:45:03" : "2024:07:21 18:45:03";
    facts.make = "Aster";
    facts.model = "X1";
    constexpr std::uint16_t isoTag = 0x8827;
    constexpr std::uint16_t shortType = 3;
    TiffParts parts = TiffPartsOf(facts);
    parts.exif.push_back({isoTag, shortType, 1, Number(400, 2, facts.endian)});
    return BuildJpeg(ExifSegment(BuildTiff(parts))) + name;
}

/// Whether a name is that of the document, in which a question mark stands for any character.
bool IsNamedLike(const std::string& name, const std::string& expected)
{
    return std::equal(name.begin(), name.end(), expected.begin(), expected.end(),
                      [](char unit, char wanted) { return unit == wanted || wanted == '?'; });
}

class JobTable : public VyrProgram
{
protected:
    void Create(const Job& job) const
    {
        for (const std::string& name : job.files)
            m_folder.WriteFile(FromUtf8(name).View(), ContentOf(name));
    }

    /// To be called when no file is read any more: that changes the time of the last access.
    void Stamp(const Job& job) const
    {
        for (const std::string& name : job.files)
            StampFile(m_folder.Path(FromUtf8(name).View()), lastChange, lastAccess);
    }

    [[nodiscard]] std::optional<VyrPlatform::FileTicks> LastChangeOf(const std::string& name) const
    {
        return VyrPlatform::FileTimes::GetModified(m_folder.Path(FromUtf8(name).View()));
    }

    void ExpectResults(const Job& job, const std::string& output) const
    {
        const auto names = NamesNow(job);
        for (std::size_t index = 0; index < job.files.size(); ++index) {
            const std::string& file = job.files[index];
            const std::string& expected = job.results[index];
            EXPECT_PRED2(IsNamedLike, names.at(file), job.IsRename() ? expected : file) << output;
            if (!job.IsRename()) {
                const std::string time = std::string(expected).replace(expected.find(' '), 1, "T");
                EXPECT_THAT(Run({u"times", u"--json", FromUtf8(file)}).output, HasSubstr("\"modified\":\"" + time));
            }
        }
    }

    /// Each old name of a job's files, and the name under which its content is found now.
    [[nodiscard]] std::map<std::string, std::string> NamesNow(const Job& job) const
    {
        std::map<std::string, std::string> names;
        const auto files = Files();
        for (const std::string& name : job.files)
            for (const auto& [now, content] : files)
                if (content == ContentOf(name))
                    names[name] = now;
        EXPECT_EQ(names.size(), files.size());
        return names;
    }

    void Clear() const
    {
        for (const auto& entry : std::filesystem::directory_iterator(ToStdPath(m_folder.Path())))
            std::filesystem::remove_all(entry.path());
    }
};

} // namespace

TEST_F(JobTable, EachCallGivesTheResultsOfItsLineAndIsUndone)
{
    m_environment[u"TZ"] = u"UTC";
    const std::vector<Job> jobs = Jobs();
    ASSERT_GT(jobs.size(), 60U);
    for (const Job& job : jobs) {
        SCOPED_TRACE(job.title + job.call);
        ASSERT_EQ(job.files.size(), job.results.size());
        Create(job);
        const auto before = NamesNow(job);
        Stamp(job);
        std::vector<CString> arguments = WordsOf(job.call);
        arguments.erase(arguments.begin());
        arguments.emplace_back(u"--apply");
        const ProgramResult result = Run(arguments);
        EXPECT_EQ(result.exitCode, 0) << result.output << result.errors;
        ExpectResults(job, result.output);
        EXPECT_EQ(Run({u"undo"}).exitCode, 0);
        EXPECT_EQ(NamesNow(job), before);
        for (const std::string& file : job.files)
            EXPECT_EQ(LastChangeOf(file), lastChange) << file;
        Clear();
    }
}
