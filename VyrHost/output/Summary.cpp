// Words the counts of entries.
#include <VyrHost/output/Summary.h>

#include <VyrHost/output/Words.h>

namespace VyrHost {

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

std::string SummaryOf(const Tally& tally)
{
    const auto counted = [&tally](Status status) {
        return CountedWord{tally[status], WordFor(status)};
    };
    return SummaryOf({counted(Status::Renamed), counted(Status::Numbered), counted(Status::Unchanged),
                      counted(Status::Skipped), counted(Status::Refused), counted(Status::Failed),
                      counted(Status::NotReached)});
}

} // namespace VyrHost
