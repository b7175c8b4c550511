// Compares words by the typing errors between them.
#include <VyrHost/text/NearestWord.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <vector>

namespace VyrHost::Text {

namespace {

/// The number of letters to add, remove, change or swap with their neighbours (each once) to turn `right` into `left`:
/// the optimal string alignment distance.
std::size_t Distance(std::string_view left, std::string_view right)
{
    const std::size_t width = right.size() + 1;
    std::vector<std::size_t> table((left.size() + 1) * width);
    const auto at = [&table, width](std::size_t row, std::size_t column) -> std::size_t& {
        return table[row * width + column];
    };
    for (std::size_t row = 0; row <= left.size(); ++row) {
        for (std::size_t column = 0; column < width; ++column) {
            if (row == 0 || column == 0) {
                at(row, column) = row + column;
                continue;
            }
            const bool isSame = left[row - 1] == right[column - 1];
            std::size_t& cell = at(row, column);
            cell = std::min(
                {at(row - 1, column) + 1, at(row, column - 1) + 1, at(row - 1, column - 1) + (isSame ? 0U : 1U)});
            if (row > 1 && column > 1 && left[row - 1] == right[column - 2] && left[row - 2] == right[column - 1])
                cell = std::min(cell, at(row - 2, column - 2) + 1);
        }
    }
    return table.back();
}

/// With the letters A to Z in lower case.
std::string Folded(std::string_view word)
{
    std::string folded(word);
    std::ranges::transform(folded, folded.begin(), [](char letter) {
        return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
    });
    return folded;
}

} // namespace

std::string_view NearestWord(std::string_view typed, std::span<const std::string> words)
{
    const std::string wanted = Folded(typed);
    std::string_view nearest;
    // A third of the letters may be wrong; the beginning of a word counts as one wrong letter.
    std::size_t least = std::max<std::size_t>(typed.size() / 3, 1) + 1;
    for (const std::string& word : words) {
        // A text may have any length; one that is far too long is not compared.
        if (typed.size() > 2 * word.size())
            continue;
        const std::string known = Folded(word);
        const bool begins = wanted.size() > 1 && known.starts_with(wanted);
        const std::size_t distance = begins ? 1 : Distance(wanted, known);
        if (distance < least) {
            least = distance;
            nearest = word;
        }
    }
    return nearest;
}

std::string Hint(std::string_view typed, std::span<const std::string> words, std::string_view before,
                 std::string_view behind)
{
    const std::string_view nearest = NearestWord(typed, words);
    return nearest.empty() ? std::string()
                           : "; did you mean " + std::string(before) + std::string(nearest) + std::string(behind) + "?";
}

} // namespace VyrHost::Text
