// Any texts as icon references and as keys of programs: references are split, keys compare to -1, 0 or 1 and to the
// opposite when swapped, and a list of them is sorted in any order.
#include <VyrHost/ui/RecordTable.h>
#include <VyrLibraryFuncs/programs/ProgramsFeaturesFuncs.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

using VyrLibraryFuncs::ProgramsFeaturesFuncs;

namespace {

void Require(bool holds)
{
    if (!holds)
        std::abort();
}

void TakeIconApart(const CString& text)
{
    const auto [path, index] = ProgramsFeaturesFuncs::GetApplicationIcon(text);
    Require(path.Find(u"\"") < 0 && path.Find(u",") < 0);
    Require(path.GetLength() <= text.GetLength());
    Require(index == 0 || text.Find(u",") >= 0);
}

int Compare(const CString& left, const CString& right, bool isDescending)
{
    const int result = ProgramsFeaturesFuncs::CompareRegKey(left, right, 0, 0, isDescending ? 1 : 0);
    Require(result >= -1 && result <= 1);
    return result;
}

void Sort(const std::vector<CString>& keys)
{
    VyrHost::Ui::RecordTable table;
    table.columns = {{"key", "Key"}};
    table.columns[0].compareRows = [&keys](std::size_t left, std::size_t right) {
        return Compare(keys[left], keys[right], false);
    };
    for (std::size_t row = 0; row < keys.size(); ++row)
        table.rows.push_back(row);
    VyrHost::Ui::SortRows(table, 0, false);
    std::sort(table.rows.begin(), table.rows.end());
    for (std::size_t row = 0; row < keys.size(); ++row)
        Require(table.rows[row] == row);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::u16string text(size / 2, u'\0');
    std::memcpy(text.data(), data, text.size() * 2);
    TakeIconApart(std::u16string_view(text));
    std::vector<CString> keys;
    for (std::size_t begin = 0; begin <= text.size() && keys.size() < 16;) {
        const std::size_t end = std::min(text.find(u'\n', begin), text.size());
        keys.emplace_back(std::u16string_view(text).substr(begin, end - begin));
        begin = end + 1;
    }
    for (const CString& left : keys)
        for (const CString& right : keys) {
            Require(Compare(left, right, false) == -Compare(right, left, false));
            Require(Compare(left, right, true) == -Compare(left, right, false));
        }
    Sort(keys);
    return 0;
}
