// Words trees and their problems as rows and as JSON.
#include <VyrHost/ui/TransferOutput.h>

#include <VyrHost/text/ErrorText.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/JsonLines.h>
#include <VyrHost/ui/Table.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/text/Encoding.h>

#include <algorithm>
#include <string_view>

namespace VyrHost::Ui {

namespace {

using VyrLibraryUtils::FileUtils;

std::u16string_view WordFor(FolderCopy::TransferStatus status, FolderCopy::TransferAction action)
{
    switch (status) {
    case FolderCopy::TransferStatus::Done:
        return action == FolderCopy::TransferAction::Copy ? u"copied" : u"moved";
    case FolderCopy::TransferStatus::Incomplete:
        return u"incomplete";
    case FolderCopy::TransferStatus::Refused:
        return u"refused";
    case FolderCopy::TransferStatus::Failed:
        return u"failed";
    case FolderCopy::TransferStatus::NotReached:
        break;
    }
    return u"not reached";
}

std::u16string_view WordsFor(FolderCopy::TransferFault fault)
{
    switch (fault) {
    case FolderCopy::TransferFault::TargetExists:
        return u"the new path is there already";
    case FolderCopy::TransferFault::TwoNamesInOne:
        return u"another entry's name is the same there";
    case FolderCopy::TransferFault::TargetNotRead:
        return u"the folder where it would go cannot be read";
    case FolderCopy::TransferFault::NotRead:
        return u"the folder cannot be read";
    case FolderCopy::TransferFault::NoContent:
        return u"a pipe or a device has no content";
    case FolderCopy::TransferFault::NoFolder:
        return u"its folder could not be made";
    case FolderCopy::TransferFault::Differs:
        return u"what is there now is something else";
    case FolderCopy::TransferFault::StillAtSource:
        return u"it has come there, but could not be removed here";
    case FolderCopy::TransferFault::NotEmpty:
        return u"something new is in it";
    case FolderCopy::TransferFault::FolderNotSet:
        return u"the times or permissions of the folder could not be set";
    case FolderCopy::TransferFault::System:
        break;
    }
    return {};
}

/// Whether a problem was found before anything was touched.
bool IsClash(FolderCopy::TransferFault fault)
{
    return fault <= FolderCopy::TransferFault::TargetNotRead;
}

std::u16string_view StatusOf(const FolderCopy::TransferProblem& problem)
{
    return IsClash(problem.fault) ? u"refused" : u"failed";
}

CString ReasonOf(const FolderCopy::TransferProblem& problem)
{
    const std::u16string_view words = WordsFor(problem.fault);
    if (problem.error == 0)
        return words;
    return CString::Join({words, words.empty() ? u"" : u": ", Text::ErrorText(problem.error)});
}

CString CountText(std::size_t count, std::u16string_view one, std::u16string_view several)
{
    return CString::Join({VyrPlatform::Encoding::FromUtf8(std::to_string(count)), u" ", count == 1 ? one : several});
}

CString NoteFor(const FolderCopy::TransferReport& report, FolderCopy::TransferAction action)
{
    CString size = CString::Join({CountText(report.size.folders, u"folder", u"folders"), u", ",
                                  CountText(report.size.files, u"file", u"files"), u", ",
                                  FileUtils::GetFileSize(report.size.bytes, 0)});
    if (report.status == FolderCopy::TransferStatus::Done)
        return size;
    return CString::Join({WordFor(report.status, action), u"; ", size});
}

Tone ToneOf(FolderCopy::TransferStatus status)
{
    if (status == FolderCopy::TransferStatus::Done)
        return Tone::Plain;
    return status == FolderCopy::TransferStatus::NotReached ? Tone::Notable : Tone::Bad;
}

std::vector<FolderCopy::TransferProblem> ByPath(FolderCopy::TransferProblems problems)
{
    std::stable_sort(problems.begin(), problems.end(),
                     [](const FolderCopy::TransferProblem& left, const FolderCopy::TransferProblem& right) {
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

std::vector<Row> RowsOf(const std::vector<FolderCopy::TransferReport>& reports, FolderCopy::TransferAction action)
{
    std::vector<Row> rows;
    for (const FolderCopy::TransferReport& report : reports) {
        const FolderCopy::TransferTask& task = report.task;
        rows.push_back({task.shownSource, task.shownTarget, NoteFor(report, action), ToneOf(report.status)});
        for (const FolderCopy::TransferProblem& problem : ByPath(report.problems))
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

void WriteTransferTable(OutputBuffer& output, const std::vector<FolderCopy::TransferReport>& reports,
                        FolderCopy::TransferAction action)
{
    const std::vector<Row> rows = RowsOf(reports, action);
    const auto rowOf = [&rows](std::size_t index) {
        const Row& row = rows[index];
        return TableRow{{{}, row.from}, {{}, row.to}, row.note, row.tone};
    };
    WriteTable(output, rows.size(), rowOf, StyleOfOutput());
}

void WriteTransferJson(OutputBuffer& output, const std::vector<FolderCopy::TransferReport>& reports,
                       FolderCopy::TransferAction action)
{
    for (const FolderCopy::TransferReport& report : reports) {
        const FolderCopy::TransferTask& task = report.task;
        output << JsonOf(task.source, task.target, WordFor(report.status, action))
               << ",\"folders\":" << std::to_string(report.size.folders)
               << ",\"files\":" << std::to_string(report.size.files)
               << ",\"bytes\":" << std::to_string(report.size.bytes) << "}\n";
        for (const FolderCopy::TransferProblem& problem : ByPath(report.problems)) {
            std::string line = JsonOf(FileUtils::GetCombinePath(task.source, problem.path),
                                      FileUtils::GetCombinePath(task.target, problem.path), StatusOf(problem));
            AppendJsonField(line, "reason", ReasonOf(problem));
            output << line << "}\n";
        }
    }
}

std::vector<std::string> ProblemLines(const std::vector<FolderCopy::TransferReport>& reports,
                                      FolderCopy::TransferAction action)
{
    std::vector<std::string> lines;
    for (const FolderCopy::TransferReport& report : reports) {
        if (report.status == FolderCopy::TransferStatus::NotReached)
            lines.push_back(
                Text::SafeText(CString::Join({u"'", report.task.shownSource, u"' ", WordFor(report.status, action)})));
        for (const FolderCopy::TransferProblem& problem : ByPath(report.problems))
            lines.push_back(
                Text::SafeText(CString::Join({u"'", FileUtils::GetCombinePath(report.task.shownSource, problem.path),
                                              u"' ", StatusOf(problem), u": ", ReasonOf(problem)})));
    }
    return lines;
}

std::string SummaryOf(const std::vector<FolderCopy::TransferReport>& reports, FolderCopy::TransferAction action)
{
    CString text = CountText(reports.size(), u"folder", u"folders");
    std::u16string_view separator = u": ";
    for (const FolderCopy::TransferStatus status :
         {FolderCopy::TransferStatus::Done, FolderCopy::TransferStatus::Incomplete, FolderCopy::TransferStatus::Refused,
          FolderCopy::TransferStatus::Failed, FolderCopy::TransferStatus::NotReached}) {
        const auto count =
            std::count_if(reports.begin(), reports.end(),
                          [status](const FolderCopy::TransferReport& report) { return report.status == status; });
        if (count == 0)
            continue;
        text = CString::Join(
            {text, separator, VyrPlatform::Encoding::FromUtf8(std::to_string(count)), u" ", WordFor(status, action)});
        separator = u", ";
    }
    return VyrPlatform::Encoding::ToUtf8(text) + ".\n";
}

} // namespace VyrHost::Ui
