// What became of renames, as a list for a page.
#include <VyrHost/reports/ResultTable.h>

#include <gtest/gtest.h>

#include <vector>

using namespace VyrHost;
using Model::Result;
using Model::Status;

namespace {

class ListedResults final : public Model::Results
{
public:
    [[nodiscard]] std::size_t Count() const override { return m_results.size(); }
    [[nodiscard]] Result At(std::size_t index) const override { return m_results[index]; }

    Result& Add(Status status, std::u16string_view from, std::u16string_view to)
    {
        Result result;
        result.kind = "rename";
        result.from = {u"/d/", u"d/", from};
        if (!to.empty())
            result.to = {u"/d/", u"d/", to};
        result.status = status;
        m_results.push_back(result);
        return m_results.back();
    }

private:
    std::vector<Result> m_results;
};

/// The values of a row, separated by bars.
CString Row(const Ui::RecordTable& table, std::size_t row)
{
    CString text;
    for (const std::size_t column : table.shown) {
        const CString value = Ui::PlainText(table.valueAt(row, column));
        text = CString::Join({text, column == 0 ? u"" : u"|", value});
    }
    return text;
}

} // namespace

TEST(ResultTable, HasARowForEachResult)
{
    ListedResults results;
    results.Add(Status::Done, u"a", u"b");
    results.Add(Status::Refused, u"c", u"").reason = u"the new name is there already";
    results.Add(Status::Unchanged, u"e", u"e");
    results.Add(Status::NotReached, u"f", u"g");
    const Ui::RecordTable table = Reports::TableOfResults(results, false);
    ASSERT_EQ(table.rows.size(), 4U);
    EXPECT_EQ(Row(table, 0), u"a|b|/d/|renamed|");
    EXPECT_EQ(Row(table, 1), u"c||/d/|refused|the new name is there already");
    EXPECT_EQ(Row(table, 2), u"e||/d/|unchanged|");
    EXPECT_EQ(Row(table, 3), u"f|g|/d/|not reached|");
    EXPECT_EQ(table.toneOf(0), Ui::Tone::Plain);
    EXPECT_EQ(table.toneOf(1), Ui::Tone::Bad);
}

TEST(ResultTable, NewNameElsewhereComesWithItsFolder)
{
    ListedResults results;
    results.Add(Status::Done, u"a", u"b").to.folder = u"/d/x/";
    Result& other = results.Add(Status::Done, u"c", u"d");
    other.to.folder = u"/d/y/";
    other.to.shownFolder = u"d/y/";
    const Ui::RecordTable table = Reports::TableOfResults(results, false);
    EXPECT_EQ(Row(table, 1), u"c|d/y/d|/d/|renamed|");
}

TEST(ResultTable, RemarksStandBehindTheReason)
{
    ListedResults results;
    Result& result = results.Add(Status::Numbered, u"a", u"b");
    result.reason = u"why";
    result.dateFrom = u"picture";
    result.warning = u"reserved";
    results.Add(Status::Done, u"c", u"d").dateFrom = u"modified";
    const Ui::RecordTable table = Reports::TableOfResults(results, false);
    EXPECT_EQ(Row(table, 0), u"a|b|/d/|numbered|why; date: picture; warning: reserved");
    EXPECT_EQ(Row(table, 1), u"c|d|/d/|renamed|date: modified");
}

TEST(ResultTable, FilesAreWhereTheyAreNow)
{
    ListedResults results;
    results.Add(Status::Done, u"a", u"b");
    results.Add(Status::Failed, u"c", u"d");
    const Ui::RecordTable record = Reports::TableOfResults(results, false);
    EXPECT_EQ(record.fileOf(0), u"/d/b");
    EXPECT_EQ(record.fileOf(1), u"/d/c");
    const Ui::RecordTable preview = Reports::TableOfResults(results, true);
    EXPECT_EQ(preview.fileOf(0), u"/d/a");
    EXPECT_NE(preview.title, record.title);
}
