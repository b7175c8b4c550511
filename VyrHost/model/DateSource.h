/// @file
/// The dates of an entry that a rule may take.
#pragma once

#include <cstdint>
#include <string_view>

namespace VyrHost::Model {

/// By the numbers of ITEM::dateTimeTarget.
enum class DateSource : int
{
    Modified,
    Created,
    Accessed,
    Picture
};

/// Every date source and the word for it, the same in options and in the output.
struct DateSourceWord
{
    DateSource source;
    std::u16string_view word;
};

inline constexpr DateSourceWord DateSourceWords[] = {{DateSource::Picture, u"picture"},
                                                     {DateSource::Modified, u"modified"},
                                                     {DateSource::Created, u"created"},
                                                     {DateSource::Accessed, u"accessed"}};

/// A set of date sources, in one byte.
class DateSourceSet
{
public:
    void Add(DateSource source) { m_bits = static_cast<std::uint8_t>(m_bits | BitOf(source)); }
    [[nodiscard]] bool Has(DateSource source) const { return (m_bits & BitOf(source)) != 0; }
    [[nodiscard]] bool IsEmpty() const { return m_bits == 0; }

private:
    [[nodiscard]] static unsigned BitOf(DateSource source) { return 1U << static_cast<unsigned>(source); }

    std::uint8_t m_bits = 0;
};

} // namespace VyrHost::Model
