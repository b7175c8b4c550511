// Lists the results of renames.
#include <VyrHost/reports/ResultTable.h>

#include <VyrHost/ui/ResultOutput.h>

#include <cstddef>
#include <iterator>
#include <numeric>

namespace VyrHost::Reports {

namespace {

using Model::Result;
using Model::ResultPath;
using Model::Status;
using Ui::RecordValue;

RecordValue OldName(const Result& result)
{
    return RecordValue(CString(result.from.name.empty() ? result.from.shownFolder : result.from.name));
}

RecordValue NewName(const Result& result)
{
    const bool hasNone = result.to.IsEmpty() || result.status == Status::Unchanged;
    const bool isElsewhere = result.to.folder != result.from.folder;
    return hasNone ? RecordValue()
                   : RecordValue(
                         CString::Join({isElsewhere ? result.to.shownFolder : std::u16string_view(), result.to.name}));
}

RecordValue FolderOf(const Result& result)
{
    return Ui::ValueOf(CString(result.from.folder));
}

RecordValue StatusOf(const Result& result)
{
    return RecordValue(CString(Ui::WordFor(result.status, result.kind)));
}

RecordValue ReasonOf(const Result& result)
{
    const CString remarks = Ui::RemarksFor(result);
    const bool hasBoth = !result.reason.IsEmpty() && !remarks.IsEmpty();
    return Ui::ValueOf(CString::Join({result.reason, hasBoth ? u"; " : u"", remarks}));
}

const Ui::RecordField<Result> fields[] = {{{"old", "Old name", Ui::RecordKind::Text, true}, OldName},
                                          {{"new", "New name", Ui::RecordKind::Text, true}, NewName},
                                          {{"folder", "Folder", Ui::RecordKind::Text, true}, FolderOf},
                                          {{"status", "Status", Ui::RecordKind::Text, true}, StatusOf},
                                          {{"reason", "Reason", Ui::RecordKind::Text, true}, ReasonOf}};

/// The present path of the file.
CString FileOf(const Result& result, bool isPreview)
{
    const bool isRenamed = !isPreview && (result.status == Status::Done || result.status == Status::Numbered);
    const ResultPath& path = isRenamed ? result.to : result.from;
    return CString::Join({path.folder, path.name});
}

} // namespace

Ui::RecordTable TableOfResults(const Model::Results& results, bool isPreview)
{
    Ui::RecordTable table;
    table.title = isPreview ? "Renames, as a preview" : "Renames";
    table.columns = Ui::ColumnsOf(std::span<const Ui::RecordField<Result>>(fields));
    table.shown.resize(std::size(fields));
    std::iota(table.shown.begin(), table.shown.end(), std::size_t{0});
    table.rows.resize(results.Count());
    std::iota(table.rows.begin(), table.rows.end(), std::size_t{0});
    table.valueAt = [&results](std::size_t row, std::size_t column) {
        return fields[column].valueOf(results.At(row));
    };
    table.toneOf = [&results](std::size_t row) {
        return Ui::ToneOf(results.At(row));
    };
    table.fileOf = [&results, isPreview](std::size_t row) {
        return FileOf(results.At(row), isPreview);
    };
    return table;
}

} // namespace VyrHost::Reports
