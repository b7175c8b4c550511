/// @file
/// Keeps the names of a million entries without an allocation for each.
#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

namespace VyrHost {

/// Texts one behind another in large blocks. A view that it gave stays good for the life of the store.
class NameStore
{
public:
    [[nodiscard]] std::u16string_view Keep(std::u16string_view text);

private:
    std::vector<std::unique_ptr<char16_t[]>> m_blocks;
    char16_t* m_free = nullptr;
    std::size_t m_left = 0;
};

} // namespace VyrHost
