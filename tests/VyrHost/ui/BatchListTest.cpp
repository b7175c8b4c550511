// Tests of the descriptions of batches.
#include <VyrHost/ui/BatchList.h>

#include <gtest/gtest.h>

#include <vector>

using namespace VyrHost;

namespace {

Batch::BatchInformation BatchOf(const CString& started)
{
    Batch::BatchInformation batch;
    batch.number = 2;
    batch.started = started;
    batch.command = u"rename";
    batch.folder = u"/home/eva";
    batch.entries = 3;
    return batch;
}

} // namespace

TEST(NameOfABatch, HasTheDateAsTheListShowsIt)
{
    const std::vector<Batch::BatchInformation> batches{BatchOf(u"2024/05/06 07:08:09")};
    const Ui::RecordTable table = Ui::TableOfBatches(batches);
    ASSERT_EQ(table.columns[1].name, "started");
    const CString date = Ui::ShownText(table.valueAt(0, 1), Ui::RecordKind::Date);
    ASSERT_FALSE(date.IsEmpty());
    EXPECT_EQ(Ui::NameOf(batches[0]), CString::Join({u"batch 2 of ", date, u", rename in /home/eva, 3 entries"}));
}

TEST(NameOfABatch, LeavesOutADateThatCannotBeRead)
{
    EXPECT_EQ(Ui::NameOf(BatchOf(u"some day")), u"batch 2, rename in /home/eva, 3 entries");
}
