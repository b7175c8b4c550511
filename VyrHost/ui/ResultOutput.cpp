#include <VyrHost/ui/ResultOutput.h>

#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/Output.h>
#include <VyrHost/ui/Table.h>
#include <VyrLibraryUtils/FileUtils.h>
#include <VyrPlatform/text/Encoding.h>

#include <string_view>

namespace VyrHost::Ui {

namespace {

using Model::Status;

CString CountText(std::size_t count, std::u16string_view one, std::u16string_view several)
{
    return CString::Join({VyrPlatform::Encoding::FromUtf8(std::to_string(count)), u" ", count == 1 ? one : several});
}

CString SizeText(const Model::TreeSize& size)
{
    return CString::Join({CountText(size.folders, u"folder", u"folders"), u", ",
                          CountText(size.files, u"file", u"files"), u", ",
                          VyrLibraryUtils::FileUtils::GetFileSize(size.bytes, 0)});
}

/// Appends nothing when `words` is empty.
void AppendRemark(CString& note, std::u16string_view what, std::u16string_view words)
{
    if (!words.empty())
        note = CString::Join({note, note.IsEmpty() ? u"" : u"; ", what, words});
}

CString NoteFor(const Model::Result& result)
{
    CString note;
    if (result.values && result.status != Status::Unchanged) {
        const Model::ResultValues values = result.values();
        note = CString::Join({values.before, u" -> ", values.after});
    }
    const std::u16string_view word = result.status == Status::Done ? u"" : WordFor(result.status, result.kind);
    if (!result.reason.IsEmpty())
        AppendRemark(note, CString::Join({word, word.empty() ? u"" : u": "}), result.reason);
    else
        AppendRemark(note, {}, word);
    AppendRemark(note, {}, RemarksFor(result));
    return note;
}

ShownName Shown(const Model::ResultPath& path)
{
    return path.name.empty() ? ShownName{{}, path.shownFolder} : ShownName{path.shownFolder, path.name};
}

TableRow RowOf(const Model::Result& result)
{
    TableRow row{Shown(result.from), {}, NoteFor(result), ToneOf(result)};
    if (!result.to.IsEmpty() && result.status != Status::Unchanged)
        row.to = Shown(result.to);
    if (result.to.folder == result.from.folder)
        row.to.folder = {};
    return row;
}

void AppendPath(std::string& line, std::string_view key, const Model::ResultPath& path)
{
    AppendJsonField(line, key, path.folder, path.name);
}

/// Whether a change of this kind leaves the file at its path.
bool IsInPlace(std::string_view kind)
{
    return kind != "rename" && kind != "copy" && kind != "move";
}

void AppendChange(std::string& line, const Model::Result& result)
{
    if (IsInPlace(result.kind)) {
        AppendJsonField(line, "kind", VyrPlatform::Encoding::FromUtf8(result.kind));
        AppendPath(line, "path", result.from);
        if (result.values) {
            const Model::ResultValues values = result.values();
            AppendJsonField(line, "from", values.before);
            AppendJsonField(line, "to", values.after);
        }
        return;
    }
    AppendPath(line, "from", result.from);
    if (result.to.IsEmpty())
        AppendJsonNull(line, "to");
    else
        AppendPath(line, "to", result.to);
}

} // namespace

std::u16string_view WordFor(Status status, std::string_view kind)
{
    switch (status) {
    case Status::Done:
        return kind == "rename" ? u"renamed" : kind == "copy" ? u"copied" : kind == "move" ? u"moved" : u"changed";
    case Status::Numbered:
        return u"numbered";
    case Status::Unchanged:
        return u"unchanged";
    case Status::Skipped:
        return u"skipped";
    case Status::Incomplete:
        return u"incomplete";
    case Status::Failed:
        return u"failed";
    case Status::NotReached:
        return u"not reached";
    case Status::Refused:
        break;
    }
    return u"refused";
}

Tone ToneOf(const Model::Result& result)
{
    switch (result.status) {
    case Status::Done:
        return result.warning.empty() && !result.hasChanged.value_or(false) ? Tone::Plain : Tone::Notable;
    case Status::Numbered:
    case Status::Skipped:
    case Status::NotReached:
        return Tone::Notable;
    case Status::Unchanged:
        return Tone::Faint;
    case Status::Incomplete:
    case Status::Refused:
    case Status::Failed:
        break;
    }
    return Tone::Bad;
}

CString RemarksFor(const Model::Result& result)
{
    CString remarks;
    if (result.size)
        AppendRemark(remarks, {}, SizeText(*result.size));
    AppendRemark(remarks, u"date: ", result.dateFrom);
    AppendRemark(remarks, u"warning: ", result.warning);
    if (result.hasChanged.value_or(false))
        AppendRemark(remarks, {}, u"it has changed since");
    return remarks;
}

void WriteResultTable(OutputBuffer& output, const Model::Results& results)
{
    WriteTable(
        output, results.Count(), [&results](std::size_t index) { return RowOf(results.At(index)); }, StyleOfOutput());
}

void WriteResultJson(OutputBuffer& output, const Model::Results& results, bool isPreview)
{
    std::string line;
    for (std::size_t index = 0; index < results.Count() && !output.HasFailed(); ++index) {
        const Model::Result result = results.At(index);
        line.clear();
        AppendChange(line, result);
        AppendJsonField(line, "status", WordFor(result.status, result.kind));
        if (!result.reason.IsEmpty())
            AppendJsonField(line, "reason", result.reason);
        if (!result.dateFrom.IsEmpty())
            AppendJsonField(line, "dateFrom", result.dateFrom);
        if (!result.warning.empty())
            AppendJsonField(line, "warning", result.warning);
        if (result.hasChanged)
            AppendJsonFlag(line, "changed", *result.hasChanged);
        if (result.size) {
            AppendJsonNumber(line, "folders", static_cast<std::int64_t>(result.size->folders));
            AppendJsonNumber(line, "files", static_cast<std::int64_t>(result.size->files));
            AppendJsonNumber(line, "bytes", result.size->bytes);
        }
        if (isPreview)
            AppendJsonFlag(line, "preview", true);
        line += "}\n";
        output << line;
    }
}

bool IsProblem(const Model::Result& result)
{
    if (result.size)
        return result.status == Status::NotReached;
    switch (result.status) {
    case Status::Skipped:
    case Status::Incomplete:
    case Status::Refused:
    case Status::Failed:
        return true;
    case Status::Done:
    case Status::Numbered:
    case Status::Unchanged:
    case Status::NotReached:
        break;
    }
    return false;
}

std::string MessageFor(const Model::Result& result)
{
    const ShownName name = Shown(result.from);
    const CString fate = CString::Join({u"'", name.folder, name.name, u"' ", WordFor(result.status, result.kind)});
    return Text::SafeText(Model::ReasonAndCause(fate, result.reason));
}

std::string SummaryOf(const Model::Tally& tally)
{
    CString parts;
    const auto add = [&parts](std::size_t count, std::u16string_view word) {
        if (count > 0)
            parts = CString::Join({parts, parts.IsEmpty() ? u": " : u", ",
                                   VyrPlatform::Encoding::FromUtf8(std::to_string(count)), u" ", word});
    };
    for (const auto& [kind, count] : tally.Done())
        add(count, WordFor(Status::Done, kind));
    for (const Status status : {Status::Numbered, Status::Unchanged, Status::Skipped, Status::Incomplete,
                                Status::Refused, Status::Failed, Status::NotReached})
        add(tally[status], WordFor(status, {}));
    const bool areTrees = tally.Kind() == "copy" || tally.Kind() == "move";
    const CString all =
        areTrees ? CountText(tally.All(), u"folder", u"folders") : CountText(tally.All(), u"entry", u"entries");
    return VyrPlatform::Encoding::ToUtf8(CString::Join({all, parts, u".\n"}));
}

} // namespace VyrHost::Ui
