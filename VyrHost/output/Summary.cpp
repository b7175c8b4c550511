// Words the counts of a preview.
#include <VyrHost/output/Summary.h>

#include <VyrHost/output/Words.h>

namespace VyrHost {

std::string SummaryOf(const Tally& tally)
{
    std::size_t all = 0;
    std::string parts;
    for (const Status status : {Status::Renamed, Status::Numbered, Status::Unchanged, Status::Skipped, Status::Refused,
                                Status::Failed, Status::NotReached}) {
        const std::size_t count = tally[status];
        all += count;
        if (count > 0)
            parts.append(parts.empty() ? ": " : ", ").append(std::to_string(count)).append(" ").append(WordFor(status));
    }
    return std::to_string(all) + (all == 1 ? " entry" : " entries") + parts + ".\n";
}

} // namespace VyrHost
