// Words the counts of entries.
#include <VyrHost/ui/Summary.h>

#include <VyrHost/ui/Words.h>

namespace VyrHost::Ui {

std::string SummaryOf(std::initializer_list<CountedWord> counts)
{
    std::size_t all = 0;
    std::string parts;
    for (const auto& [count, word] : counts) {
        all += count;
        if (count > 0)
            parts.append(parts.empty() ? ": " : ", ").append(std::to_string(count)).append(" ").append(word);
    }
    return std::to_string(all) + (all == 1 ? " entry" : " entries") + parts + ".\n";
}

std::string SummaryOf(const Model::Tally& tally)
{
    const auto counted = [&tally](Model::Status status) {
        return CountedWord{tally[status], WordFor(status)};
    };
    return SummaryOf({counted(Model::Status::Renamed), counted(Model::Status::Numbered),
                      counted(Model::Status::Unchanged), counted(Model::Status::Skipped),
                      counted(Model::Status::Refused), counted(Model::Status::Failed),
                      counted(Model::Status::NotReached)});
}

} // namespace VyrHost::Ui
