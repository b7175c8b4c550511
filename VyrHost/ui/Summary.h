/// @file
/// The line at the end of a preview or a batch.
#pragma once

#include <VyrHost/model/Tally.h>

#include <initializer_list>
#include <string>
#include <string_view>

namespace VyrHost::Ui {

/// How many entries a word holds for.
struct CountedWord
{
    std::size_t count;
    std::string_view word;
};

/// Such as "5 entries: 3 renamed, 1 unchanged, 1 refused." with a line end, without the words that hold for none.
[[nodiscard]] std::string SummaryOf(std::initializer_list<CountedWord> counts);
/// The same for a preview.
[[nodiscard]] std::string SummaryOf(const Model::Tally& tally);

} // namespace VyrHost::Ui
