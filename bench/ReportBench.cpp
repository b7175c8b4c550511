// What it costs to write lists as pages: 100,000 rows and half as many, with the columns that people see of files.
#include <VyrHost/reports/ReportFile.h>

#include <benchmark/benchmark.h>

#include <cstdlib>
#include <numeric>

#include "TemporaryFolder.h"

using namespace VyrHost;

namespace {

constexpr std::size_t manyRows = 100'000;

CString pagePath;

Ui::RecordTable Files(std::size_t count)
{
    Ui::RecordTable table;
    table.columns = {
        {"name", "Name"}, {"size", "Size", Ui::RecordKind::Size}, {"modified", "Modified", Ui::RecordKind::Date}};
    table.shown = {0, 1, 2};
    table.rows.resize(count);
    std::iota(table.rows.begin(), table.rows.end(), std::size_t{0});
    table.valueAt = [](std::size_t row, std::size_t column) -> Ui::RecordValue {
        const int number = static_cast<int>(row);
        if (column == 0) {
            CString name;
            name.Format(u"Pictures/2024/R&B <%d>.jpg", number);
            return name;
        }
        if (column == 1)
            return std::int64_t{12'345} * number;
        return Ui::RecordDate{COleDateTime(2024, 1, 1 + number % 28, number % 24, number % 60, 0)};
    };
    return table;
}

void Write(benchmark::State& state, std::size_t count)
{
    const Ui::RecordTable table = Files(count);
    for (auto _ : state)
        if (Reports::WriteReportFile(pagePath, true, [&table](const Reports::TakePiece& take) {
                Reports::WriteRecordReport(take, table, {u"Files", u"Many entries."}, {});
            }) != 0)
            std::abort();
}

void Page(benchmark::State& state)
{
    Write(state, manyRows);
}

void HalfPage(benchmark::State& state)
{
    Write(state, manyRows / 2);
}

} // namespace

BENCHMARK(Page)->Unit(benchmark::kMillisecond);
BENCHMARK(HalfPage)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    const TemporaryFolder folder;
    pagePath = Widen(folder.Path() / "page.html");
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
