/// @file
/// How many entries of a preview have which fate.
#pragma once

#include <VyrHost/model/Decision.h>

#include <array>
#include <cstddef>
#include <vector>

namespace VyrHost::Model {

class Tally
{
public:
    explicit Tally(const std::vector<Decision>& decisions)
    {
        for (const Decision& decision : decisions)
            ++m_counts[static_cast<std::size_t>(decision.status)];
    }

    [[nodiscard]] std::size_t operator[](Status status) const { return m_counts[static_cast<std::size_t>(status)]; }

private:
    std::array<std::size_t, StatusCount> m_counts{};
};

} // namespace VyrHost::Model
