// Words trees and their problems as rows and as JSON.
#include <VyrHost/output/TreeOutput.h>

#include <VyrHost/files/ErrorText.h>
#include <VyrHost/output/JsonLines.h>
#include <VyrHost/output/SafeText.h>
#include <VyrHost/output/Table.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <string_view>

namespace VyrHost {

namespace {

using VyrLibraryUtils::FileUtils;

std::u16string_view WordFor(TreeStatus status, TreeAction action)
{
    switch (status) {
    case TreeStatus::Done:
        return action == TreeAction::Copy ? u"copied" : u"moved";
    case TreeStatus::Incomplete:
        return u"incomplete";
    case TreeStatus::Refused:
        return u"refused";
    case TreeStatus::Failed:
        return u"failed";
    case TreeStatus::NotReached:
        break;
    }
    return u"not reached";
}

std::u16string_view WordsFor(TreeFault fault)
{
    switch (fault) {
    case TreeFault::TargetExists:
        return u"the new path is there already";
    case TreeFault::TwoNamesInOne:
        return u"another entry's name is the same there";
    case TreeFault::TargetNotRead:
        return u"the folder where it would go cannot be read";
    case TreeFault::NotRead:
        return u"the folder cannot be read";
    case TreeFault::NoContent:
        return u"a pipe or a device has no content";
    case TreeFault::NoFolder:
        return u"its folder could not be made";
    case TreeFault::Differs:
        return u"what is there now is something else";
    case TreeFault::StillAtSource:
        return u"it has come there, but could not be removed here";
    case TreeFault::NotEmpty:
        return u"something new is in it";
    case TreeFault::FolderNotSet:
        return u"the times or permissions of the folder could not be set";
    case TreeFault::System:
        break;
    }
    return {};
}

/// Whether a problem was found before anything was touched.
bool IsClash(TreeFault fault)
{
    return fault <= TreeFault::TargetNotRead;
}

std::u16string_view StatusOf(const TreeProblem& problem)
{
    return IsClash(problem.fault) ? u"refused" : u"failed";
}

CString ReasonOf(const TreeProblem& problem)
{
    const std::u16string_view words = WordsFor(problem.fault);
    if (problem.error == 0)
        return words;
    return CString::Join({words, words.empty() ? u"" : u": ", ErrorText(problem.error)});
}

CString CountText(std::size_t count, std::u16string_view one, std::u16string_view several)
{
    return CString::Join({VyrPlatform::Encoding::FromUtf8(std::to_string(count)), u" ", count == 1 ? one : several});
}

CString NoteFor(const TreeReport& report, TreeAction action)
{
    CString size = CString::Join({CountText(report.size.folders, u"folder", u"folders"), u", ",
                                  CountText(report.size.files, u"file", u"files"), u", ",
                                  FileUtils::GetFileSize(report.size.bytes, 0)});
    if (report.status == TreeStatus::Done)
        return size;
    return CString::Join({WordFor(report.status, action), u"; ", size});
}

Tone ToneOf(TreeStatus status)
{
    if (status == TreeStatus::Done)
        return Tone::Plain;
    return status == TreeStatus::NotReached ? Tone::Notable : Tone::Bad;
}

std::vector<TreeProblem> ByPath(TreeProblems problems)
{
    std::stable_sort(problems.begin(), problems.end(), [](const TreeProblem& left, const TreeProblem& right) {
        return left.path.View() < right.path.View();
    });
    return problems;
}

struct Row
{
    CString from;
    CString to;
    CString note;
    Tone tone = Tone::Plain;
};

std::vector<Row> RowsOf(const std::vector<TreeReport>& reports, TreeAction action)
{
    std::vector<Row> rows;
    for (const TreeReport& report : reports) {
        const TreeTask& task = report.task;
        rows.push_back({task.shownSource, task.shownTarget, NoteFor(report, action), ToneOf(report.status)});
        for (const TreeProblem& problem : ByPath(report.problems))
            rows.push_back({FileUtils::GetCombinePath(task.shownSource, problem.path),
                            FileUtils::GetCombinePath(task.shownTarget, problem.path),
                            CString::Join({StatusOf(problem), u": ", ReasonOf(problem)}), Tone::Bad});
    }
    return rows;
}

std::string JsonOf(const CString& from, const CString& to, std::u16string_view status)
{
    std::string line;
    AppendJsonField(line, "from", from);
    AppendJsonField(line, "to", to);
    AppendJsonField(line, "status", status);
    return line;
}

} // namespace

void WriteTreeTable(OutputBuffer& output, const std::vector<TreeReport>& reports, TreeAction action)
{
    const std::vector<Row> rows = RowsOf(reports, action);
    const auto rowOf = [&rows](std::size_t index) {
        const Row& row = rows[index];
        return TableRow{{{}, row.from}, {{}, row.to}, row.note, row.tone};
    };
    WriteTable(output, rows.size(), rowOf, StyleOfOutput());
}

void WriteTreeJson(OutputBuffer& output, const std::vector<TreeReport>& reports, TreeAction action)
{
    for (const TreeReport& report : reports) {
        const TreeTask& task = report.task;
        output << JsonOf(task.source, task.target, WordFor(report.status, action))
               << ",\"folders\":" << std::to_string(report.size.folders)
               << ",\"files\":" << std::to_string(report.size.files)
               << ",\"bytes\":" << std::to_string(report.size.bytes) << "}\n";
        for (const TreeProblem& problem : ByPath(report.problems)) {
            std::string line = JsonOf(FileUtils::GetCombinePath(task.source, problem.path),
                                      FileUtils::GetCombinePath(task.target, problem.path), StatusOf(problem));
            AppendJsonField(line, "reason", ReasonOf(problem));
            output << line << "}\n";
        }
    }
}

std::vector<std::string> ProblemLines(const std::vector<TreeReport>& reports, TreeAction action)
{
    std::vector<std::string> lines;
    for (const TreeReport& report : reports) {
        if (report.status == TreeStatus::NotReached)
            lines.push_back(
                SafeText(CString::Join({u"'", report.task.shownSource, u"' ", WordFor(report.status, action)})));
        for (const TreeProblem& problem : ByPath(report.problems))
            lines.push_back(
                SafeText(CString::Join({u"'", FileUtils::GetCombinePath(report.task.shownSource, problem.path), u"' ",
                                        StatusOf(problem), u": ", ReasonOf(problem)})));
    }
    return lines;
}

std::string SummaryOf(const std::vector<TreeReport>& reports, TreeAction action)
{
    CString text = CountText(reports.size(), u"folder", u"folders");
    std::u16string_view separator = u": ";
    for (const TreeStatus status :
         {TreeStatus::Done, TreeStatus::Incomplete, TreeStatus::Refused, TreeStatus::Failed, TreeStatus::NotReached}) {
        const auto count = std::count_if(reports.begin(), reports.end(),
                                         [status](const TreeReport& report) { return report.status == status; });
        if (count == 0)
            continue;
        text = CString::Join(
            {text, separator, VyrPlatform::Encoding::FromUtf8(std::to_string(count)), u" ", WordFor(status, action)});
        separator = u", ";
    }
    return VyrPlatform::Encoding::ToUtf8(text) + ".\n";
}

} // namespace VyrHost
