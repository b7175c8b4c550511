// Results as tables, messages and JSON, and the keys that docs/json.md describes.
#include <VyrHost/ui/ResultOutput.h>

#include <VyrHost/ui/BatchList.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace VyrHost::Model;
using namespace VyrHost::Ui;

namespace {

class SampleResults final : public Results
{
public:
    explicit SampleResults(std::vector<Result> results) : m_results(std::move(results)) {}

    [[nodiscard]] std::size_t Count() const override { return m_results.size(); }
    [[nodiscard]] Result At(std::size_t index) const override { return m_results[index]; }

private:
    std::vector<Result> m_results;
};

ResultPath PathOf(std::u16string_view name)
{
    return {u"/x/", u"", name};
}

Result Rename(std::u16string_view from, std::u16string_view to, Status status = Status::Done)
{
    Result result;
    result.kind = "rename";
    result.from = PathOf(from);
    result.to = to.empty() ? ResultPath() : PathOf(to);
    result.status = status;
    return result;
}

Result TimesOf(std::u16string_view name, Status status = Status::Done)
{
    Result result;
    result.kind = "times";
    result.from = PathOf(name);
    result.values = [] {
        return ResultValues{u"2001", u"2002"};
    };
    result.status = status;
    return result;
}

Result CopyOf(Status status)
{
    Result result;
    result.kind = "copy";
    result.from = {u"/x/a", u"a", {}};
    result.to = {u"/y/a", u"../y/a", {}};
    result.size = TreeSize{2, 1, 30};
    result.status = status;
    return result;
}

std::string Written(const std::function<void(OutputBuffer& output)>& write)
{
    testing::internal::CaptureStdout();
    {
        OutputBuffer output;
        write(output);
    }
    return testing::internal::GetCapturedStdout();
}

std::string TableOf(std::vector<Result> results)
{
    return Written([&](OutputBuffer& output) { WriteResultTable(output, SampleResults(std::move(results))); });
}

std::string JsonOf(std::vector<Result> results, bool isPreview = false)
{
    return Written(
        [&](OutputBuffer& output) { WriteResultJson(output, SampleResults(std::move(results)), isPreview); });
}

std::string Summary(std::vector<Result> results)
{
    return SummaryOf(Tally(SampleResults(std::move(results))));
}

/// The texts before colons, provided that no value contains a quote.
std::set<std::string> KeysOf(const std::string& json)
{
    std::set<std::string> keys;
    for (std::size_t end = json.find("\":"); end != json.npos; end = json.find("\":", end + 1)) {
        const std::size_t start = json.rfind('"', end - 1) + 1;
        keys.insert(json.substr(start, end - start));
    }
    return keys;
}

/// The keys in the first column of the table under `heading`.
std::set<std::string> DocumentedKeys(const std::string& heading)
{
    std::ifstream document(VYR_SOURCE_FOLDER "/docs/json.md");
    EXPECT_TRUE(document.is_open());
    std::set<std::string> keys;
    bool isHere = false;
    for (std::string line; std::getline(document, line);) {
        if (line.starts_with('#'))
            isHere = line == heading;
        else if (isHere && line.starts_with("| `"))
            keys.insert(line.substr(3, line.find('`', 3) - 3));
    }
    return keys;
}

} // namespace

TEST(ResultTable, ShowsBothNamesAndTheRemark)
{
    Result refused = Rename(u"c", u"d", Status::Refused);
    refused.reason = u"the new name is there already";
    Result dated = Rename(u"e", u"2024");
    dated.dateFrom = u"picture";
    dated.warning = u"on Windows no name ends in a dot or a blank";
    EXPECT_EQ(TableOf({Rename(u"a", u"b"), refused, dated}),
              "a  ->  b\n"
              "c  ->  d     refused: the new name is there already\n"
              "e  ->  2024  date: picture; warning: on Windows no name ends in a dot or a blank\n");
}

TEST(ResultTable, ShowsNoNewNameForUnchangedEntries)
{
    EXPECT_EQ(TableOf({Rename(u"a", u"a", Status::Unchanged), Rename(u"b", u"", Status::NotReached)}),
              "a        unchanged\nb        not reached\n");
}

TEST(ResultTable, ShowsTheFolderOfANewNameOnlyWhereItIsAnother)
{
    Result moved = Rename(u"a", u"a");
    moved.to.folder = u"/x/sub/";
    moved.to.shownFolder = u"sub/";
    EXPECT_EQ(TableOf({moved}), "a  ->  sub/a\n");
    Result kept = Rename(u"a", u"b");
    kept.from.shownFolder = kept.to.shownFolder = u"sub/";
    EXPECT_EQ(TableOf({kept}), "sub/a  ->  b\n");
}

TEST(ResultTable, ShowsTheValuesOfAChangeInPlace)
{
    Result undone = TimesOf(u"a");
    undone.hasChanged = true;
    EXPECT_EQ(TableOf({undone, TimesOf(u"b", Status::Unchanged)}),
              "a        2001 -> 2002; it has changed since\nb        unchanged\n");
}

TEST(ResultTable, ShowsTheSizeOfAFolder)
{
    EXPECT_EQ(TableOf({CopyOf(Status::Incomplete)}), "a  ->  ../y/a  incomplete; 2 folders, 1 file, 30 bytes\n");
}

TEST(ResultJson, HasOneObjectForEachResult)
{
    Result numbered = Rename(u"a", u"b-1", Status::Numbered);
    numbered.dateFrom = u"modified";
    EXPECT_EQ(JsonOf({numbered, Rename(u"c", u"", Status::Refused)}),
              "{\"from\":\"/x/a\",\"to\":\"/x/b-1\",\"status\":\"numbered\",\"dateFrom\":\"modified\"}\n"
              "{\"from\":\"/x/c\",\"to\":null,\"status\":\"refused\"}\n");
}

TEST(ResultJson, NamesTheKindOfAChangeInPlace)
{
    EXPECT_EQ(JsonOf({TimesOf(u"a")}), "{\"kind\":\"times\",\"path\":\"/x/a\",\"from\":\"2001\",\"to\":\"2002\","
                                       "\"status\":\"changed\"}\n");
}

TEST(ResultJson, MarksAPreview)
{
    EXPECT_EQ(JsonOf({CopyOf(Status::Done)}, true), "{\"from\":\"/x/a\",\"to\":\"/y/a\",\"status\":\"copied\","
                                                    "\"folders\":2,\"files\":1,\"bytes\":30,\"preview\":true}\n");
}

TEST(ResultJson, WritesTheKeysThatTheDocumentDescribes)
{
    Result all = Rename(u"a", u"b");
    all.reason = u"why";
    all.dateFrom = u"picture";
    all.warning = u"hm";
    all.hasChanged = false;
    all.size = TreeSize();
    const std::set<std::string> keys = KeysOf(JsonOf({all, TimesOf(u"a")}, true));
    EXPECT_EQ(keys.size(), 13u);
    EXPECT_EQ(keys, DocumentedKeys("## Results of files"));
}

TEST(BatchColumns, AreThoseThatTheDocumentDescribes)
{
    std::set<std::string> names;
    for (const RecordColumn& column : BatchColumns())
        names.emplace(column.name);
    EXPECT_EQ(names, DocumentedKeys("## Batches"));
}

TEST(ResultSummary, CountsEachStatusAndKind)
{
    EXPECT_EQ(Summary({}), "0 entries.\n");
    EXPECT_EQ(Summary({Rename(u"a", u"b")}), "1 entry: 1 renamed.\n");
    EXPECT_EQ(Summary({Rename(u"a", u"b"), TimesOf(u"b"), TimesOf(u"c"), Rename(u"d", u"", Status::Failed),
                       Rename(u"e", u"e", Status::Unchanged)}),
              "5 entries: 1 renamed, 2 changed, 1 unchanged, 1 failed.\n");
}

TEST(ResultSummary, CountsFoldersWithoutTheirParts)
{
    Result part = CopyOf(Status::Failed);
    part.size.reset();
    part.isPart = true;
    EXPECT_EQ(Summary({CopyOf(Status::Incomplete), part, CopyOf(Status::Done)}),
              "2 folders: 1 copied, 1 incomplete.\n");
}

TEST(ResultMessage, NamesTheProblemAndIsSafeToShow)
{
    Result failed = Rename(u"a\n", u"b", Status::Failed);
    failed.from.shownFolder = u"sub/";
    EXPECT_EQ(MessageFor(failed), "'sub/a\\n' failed");
    failed.reason = u"no";
    EXPECT_EQ(MessageFor(failed), "'sub/a\\n' failed: no");
}

TEST(ResultMessage, IsOnlyForProblems)
{
    for (const Status status : {Status::Skipped, Status::Incomplete, Status::Refused, Status::Failed})
        EXPECT_TRUE(IsProblem(Rename(u"a", u"b", status)));
    for (const Status status : {Status::Done, Status::Numbered, Status::Unchanged, Status::NotReached})
        EXPECT_FALSE(IsProblem(Rename(u"a", u"b", status)));
    // The parts of a folder have messages of their own.
    EXPECT_FALSE(IsProblem(CopyOf(Status::Incomplete)));
    EXPECT_TRUE(IsProblem(CopyOf(Status::NotReached)));
}
