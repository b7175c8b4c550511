// Counts results.
#include <VyrHost/model/Result.h>

#include <algorithm>
#include <numeric>

namespace VyrHost::Model {

CString ReasonAndCause(std::u16string_view reason, std::u16string_view cause)
{
    return CString::Join({reason, reason.empty() || cause.empty() ? u"" : u": ", cause});
}

Tally::Tally(const Results& results)
{
    for (std::size_t index = 0; index < results.Count(); ++index) {
        const Result result = results.At(index);
        if (result.isPart)
            continue;
        ++m_counts[static_cast<std::size_t>(result.status)];
        if (m_kind.empty())
            m_kind = result.kind;
        if (result.status != Status::Done)
            continue;
        auto done = std::find_if(m_done.begin(), m_done.end(),
                                 [&result](const auto& counted) { return counted.first == result.kind; });
        if (done == m_done.end())
            done = m_done.insert(done, {result.kind, 0});
        ++done->second;
    }
}

std::size_t Tally::All() const
{
    return std::accumulate(m_counts.begin(), m_counts.end(), std::size_t{0});
}

bool Tally::IsWhole() const
{
    return (*this)[Status::Incomplete] + (*this)[Status::Refused] + (*this)[Status::Failed] +
               (*this)[Status::NotReached] ==
           0;
}

} // namespace VyrHost::Model
