// Lists of records: columns, order, and the words for values.
#include <VyrHost/ui/RecordTable.h>

#include <VyrHost/text/Errors.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

using namespace VyrHost::Ui;

namespace {

struct Track
{
    CString name;
    std::int64_t bytes = 0;
};

const RecordField<Track> trackFields[] = {{{"name", "Name", RecordKind::Text, true},
                                           [](const Track& track) {
                                               return ValueOf(track.name);
                                           }},
                                          {{"fileSize", "Size", RecordKind::Size, true},
                                           [](const Track& track) {
                                               return track.bytes < 0 ? RecordValue() : RecordValue(track.bytes);
                                           }},
                                          {{"long", "Long", RecordKind::Flag}, [](const Track& track) {
                                               return RecordValue(track.bytes > 1000);
                                           }}};

RecordTable TableOfTracks(const std::vector<Track>& tracks)
{
    return TableOf(tracks, std::span<const RecordField<Track>>(trackFields));
}

/// The rows of a table sorted by a column of these values.
std::vector<std::size_t> Sorted(const std::vector<RecordValue>& values, RecordKind kind, bool isDescending = false)
{
    RecordTable table;
    table.columns = {{"value", "Value", kind}};
    table.shown = {0};
    table.rows.resize(values.size());
    std::iota(table.rows.begin(), table.rows.end(), std::size_t{0});
    table.valueAt = [&values](std::size_t row, std::size_t) {
        return values[row];
    };
    SortRows(table, 0, isDescending);
    return table.rows;
}

RecordValue Text(const char16_t* text)
{
    return CString(text);
}

RecordValue Date(int year, int month, int day)
{
    return RecordDate{COleDateTime(year, month, day, 0, 0, 0), false, {}};
}

using Rows = std::vector<std::size_t>;

} // namespace

TEST(RecordTable, OfRecordsHasEveryRowAndColumn)
{
    const std::vector<Track> tracks = {{u"one", 5}, {u"", -1}};
    const RecordTable table = TableOfTracks(tracks);
    EXPECT_EQ(table.shown, (Rows{0, 1, 2}));
    EXPECT_EQ(table.rows, (Rows{0, 1}));
    EXPECT_EQ(std::get<CString>(table.valueAt(0, 0)), u"one");
    EXPECT_EQ(std::get<std::int64_t>(table.valueAt(0, 1)), 5);
    EXPECT_EQ(table.valueAt(1, 0).index(), 0u);
    EXPECT_EQ(table.valueAt(1, 1).index(), 0u);
}

TEST(RecordColumns, AreFoundByNameInEitherCaseAndInTheOrderGiven)
{
    const std::vector<RecordColumn> columns = ColumnsOf(std::span<const RecordField<Track>>(trackFields));
    EXPECT_EQ(FindColumns(columns, u"filesize,NAME", "--columns"), (Rows{1, 0}));
    EXPECT_EQ(FindColumns(columns, u"all", "--columns"), (Rows{0, 1, 2}));
    EXPECT_EQ(UsualColumns(columns), (Rows{0, 1}));
    EXPECT_EQ(NamesOf(columns), "name, fileSize, long");
}

TEST(RecordColumns, ThatDoNotExistAreRefusedWithTheNamesOfTheOthers)
{
    const std::vector<RecordColumn> columns = ColumnsOf(std::span<const RecordField<Track>>(trackFields));
    for (const char16_t* const list : {u"size", u"", u"name,", u",name", u"name,,long", u"name,name", u"name, long"})
        EXPECT_THROW((void)FindColumns(columns, list, "--columns"), VyrHost::Text::UsageError)
            << CString(list).GetLength();
    try {
        (void)FindColumns(columns, u"size", "--sort");
        FAIL();
    } catch (const VyrHost::Text::UsageError& error) {
        EXPECT_NE(std::string(error.what()).find("--sort"), std::string::npos) << error.what();
        EXPECT_NE(std::string(error.what()).find("name, fileSize, long"), std::string::npos) << error.what();
    }
}

TEST(RecordOrder, OfTextsIsNatural)
{
    EXPECT_EQ(Sorted({Text(u"b10"), Text(u"B9"), Text(u"a")}, RecordKind::Text), (Rows{2, 1, 0}));
}

TEST(RecordOrder, OfNumbersAndDatesIsByValue)
{
    using Value = RecordValue;
    EXPECT_EQ(Sorted({Value(std::int64_t{10}), Value(std::int64_t{-2}), Value(std::int64_t{9})}, RecordKind::Number),
              (Rows{1, 2, 0}));
    EXPECT_EQ(Sorted({Date(2024, 1, 2), Date(1995, 12, 31), Date(2024, 1, 1)}, RecordKind::Date), (Rows{1, 2, 0}));
    EXPECT_EQ(Sorted({Value(true), Value(false)}, RecordKind::Flag), (Rows{1, 0}));
}

TEST(RecordOrder, PutsRowsWithoutAValueLastInEitherDirection)
{
    const std::vector<RecordValue> values = {RecordValue(), Text(u"b"), RecordValue(), Text(u"a")};
    EXPECT_EQ(Sorted(values, RecordKind::Text), (Rows{3, 1, 0, 2}));
    EXPECT_EQ(Sorted(values, RecordKind::Text, true), (Rows{1, 3, 0, 2}));
}

TEST(RecordOrder, KeepsTheOrderOfEqualRows)
{
    std::mt19937 random(5);
    std::vector<RecordValue> values;
    for (int index = 0; index < 500; ++index)
        values.emplace_back(std::int64_t(random() % 7));
    for (const bool isDescending : {false, true}) {
        Rows expected(values.size());
        std::iota(expected.begin(), expected.end(), std::size_t{0});
        std::stable_sort(expected.begin(), expected.end(), [&](std::size_t left, std::size_t right) {
            const auto one = std::get<std::int64_t>(values[left]);
            const auto other = std::get<std::int64_t>(values[right]);
            return isDescending ? one > other : one < other;
        });
        EXPECT_EQ(Sorted(values, RecordKind::Number, isDescending), expected);
    }
}

TEST(RecordOrder, ThatIsCyclicStillGivesEveryRow)
{
    RecordTable table;
    table.columns = {{"value", "Value"}};
    // Each of three rows comes after the one before it, and the first after the last.
    table.columns[0].compareRows = [](std::size_t left, std::size_t right) {
        return static_cast<int>((left + 3 - right) % 3) == 1 ? 1 : -1;
    };
    table.rows.resize(1000);
    std::iota(table.rows.begin(), table.rows.end(), std::size_t{0});
    const Rows all = table.rows;
    SortRows(table, 0, false);
    Rows sorted = table.rows;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(sorted, all);
}

TEST(RecordOrder, OfAColumnCanBeCustom)
{
    const std::vector<Track> tracks = {{u"a", 1}, {u"bbb", 2}, {u"cc", 3}};
    RecordTable table = TableOfTracks(tracks);
    table.columns[0].compareRows = [&tracks](std::size_t left, std::size_t right) {
        return tracks[left].name.GetLength() - tracks[right].name.GetLength();
    };
    SortRows(table, 0, false);
    EXPECT_EQ(table.rows, (Rows{0, 2, 1}));
    SortRows(table, 0, true);
    EXPECT_EQ(table.rows, (Rows{1, 2, 0}));
}

TEST(RecordValues, AreSizesWithUnitsAndWordsForPeople)
{
    EXPECT_EQ(ShownText(std::int64_t{1536}, RecordKind::Size), u"1.50 KB");
    EXPECT_EQ(ShownText(std::int64_t{1536}, RecordKind::Number), u"1536");
    EXPECT_EQ(ShownText(true, RecordKind::Flag), u"yes");
    EXPECT_EQ(ShownText(false, RecordKind::Flag), u"");
    EXPECT_EQ(ShownText(Text(u"text"), RecordKind::Text), u"text");
    EXPECT_EQ(ShownText(RecordValue(), RecordKind::Size), u"");
}

TEST(RecordValues, AreDatesWithAKnownOffsetInJson)
{
    const COleDateTime moment(2024, 1, 5, 10, 30, 7);
    EXPECT_EQ(PlainText(RecordDate{moment, true, {}}), u"2024-01-05T10:30:07");
    EXPECT_EQ(PlainText(RecordDate{moment, false, {}}), u"2024-01-05");
    EXPECT_EQ(PlainText(RecordDate{moment, true, 0}), u"2024-01-05T10:30:07+00:00");
    EXPECT_EQ(PlainText(RecordDate{moment, true, 330}), u"2024-01-05T10:30:07+05:30");
    EXPECT_EQ(PlainText(RecordDate{moment, true, -210}), u"2024-01-05T10:30:07-03:30");
    COleDateTime none = moment;
    none.SetStatus(COleDateTime::invalid);
    EXPECT_EQ(PlainText(RecordDate{none, true, 60}), u"");
}
