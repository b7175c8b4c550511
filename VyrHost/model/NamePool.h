/// @file
/// Stores the names of a million entries without an allocation for each.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

namespace VyrHost::Model {

/// A text in a NamePool, valid as long as that lives. One pointer, since lists have a million of them.
class InternedName
{
public:
    /// Empty.
    InternedName() = default;

    [[nodiscard]] std::u16string_view View() const noexcept
    {
        std::uint32_t length = 0;
        std::memcpy(&length, m_text - lengthUnits, sizeof(length));
        return {m_text, length};
    }
    operator std::u16string_view() const noexcept { return View(); }
    [[nodiscard]] bool IsEmpty() const noexcept { return View().empty(); }

    /// By the texts.
    friend bool operator==(InternedName left, InternedName right) noexcept { return left.View() == right.View(); }

private:
    friend class NamePool;
    explicit InternedName(const char16_t* text) noexcept : m_text(text) {}

    /// The length precedes the text.
    static constexpr std::size_t lengthUnits = sizeof(std::uint32_t) / sizeof(char16_t);
    static constexpr char16_t noText[lengthUnits + 1] = {};
    const char16_t* m_text = noText + lengthUnits;
};

/// Stores texts one after another in large blocks. One thread may read stored texts while another adds more.
class NamePool
{
public:
    /// @param text  shorter than 2^32 code units.
    [[nodiscard]] InternedName Intern(std::u16string_view text);

private:
    std::vector<std::unique_ptr<char16_t[]>> m_blocks;
    char16_t* m_free = nullptr;
    std::size_t m_left = 0;
};

} // namespace VyrHost::Model
