// Compares names run by run: digits by value, letters without case.
#include <VyrHost/model/NaturalOrder.h>

#include <VyrPlatform/text/Digits.h>

#include <algorithm>

namespace VyrHost::Model {

using VyrPlatform::IsDigit;

namespace {

char16_t Folded(char16_t unit)
{
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + (u'a' - u'A')) : unit;
}

bool BeginsWithDigit(std::u16string_view text)
{
    return !text.empty() && IsDigit(text.front());
}

void SkipZeros(std::u16string_view& text)
{
    while (!text.empty() && text.front() == u'0')
        text.remove_prefix(1);
}

/// Removes the numbers at the start of both and compares them: negative, zero or positive.
int CompareNumbers(std::u16string_view& left, std::u16string_view& right)
{
    SkipZeros(left);
    SkipZeros(right);
    int order = 0;
    while (BeginsWithDigit(left) && BeginsWithDigit(right)) {
        if (order == 0)
            order = left.front() - right.front();
        left.remove_prefix(1);
        right.remove_prefix(1);
    }
    // A number with more digits is greater.
    if (BeginsWithDigit(left))
        return 1;
    return BeginsWithDigit(right) ? -1 : order;
}

/// The length of the common beginning, without the digits at its end: those may be part of different numbers.
std::size_t CommonLength(std::u16string_view left, std::u16string_view right)
{
    const std::size_t shorter = std::min(left.size(), right.size());
    std::size_t length = 0;
    while (length < shorter && left[length] == right[length])
        ++length;
    while (length > 0 && IsDigit(left[length - 1]))
        --length;
    return length;
}

int CompareRuns(std::u16string_view left, std::u16string_view right)
{
    while (!left.empty() && !right.empty()) {
        if (IsDigit(left.front()) && IsDigit(right.front())) {
            if (const int order = CompareNumbers(left, right))
                return order;
            continue;
        }
        const char16_t leftUnit = Folded(left.front());
        const char16_t rightUnit = Folded(right.front());
        if (leftUnit != rightUnit)
            return leftUnit < rightUnit ? -1 : 1;
        left.remove_prefix(1);
        right.remove_prefix(1);
    }
    return static_cast<int>(!left.empty()) - static_cast<int>(!right.empty());
}

/// Encodes the first units of a name as a number: names whose keys differ are in the order of their keys.
class KeyBuilder
{
public:
    [[nodiscard]] static std::uint64_t KeyOf(std::u16string_view text)
    {
        // A shift by all the bits of a number is undefined.
        if (text.empty())
            return 0;
        KeyBuilder key;
        do
            key.Take(text);
        while (!text.empty() && key.m_free > 0);
        return key.m_bits << (8 * key.m_free);
    }

private:
    void Take(std::u16string_view& text)
    {
        const char16_t unit = text.front();
        if (IsDigit(unit)) {
            TakeNumber(text);
        } else if (unit < 0x80) {
            Push(Folded(unit));
            text.remove_prefix(1);
        } else {
            // Beyond ASCII a byte does not determine the order.
            Push(0xFF);
            text = {};
        }
    }

    /// A digit among other units, then the number of digits, then the digits: so 9 comes before 10.
    void TakeNumber(std::u16string_view& text)
    {
        SkipZeros(text);
        std::size_t length = 0;
        while (length < text.size() && IsDigit(text[length]))
            ++length;
        Push(u'0');
        constexpr std::size_t mostDigits = 0xFF;
        Push(static_cast<unsigned>(std::min(length, mostDigits)));
        if (length >= mostDigits) {
            text = {};
            return;
        }
        for (std::size_t index = 0; index < length && m_free > 0; ++index)
            Push(text[index]);
        text.remove_prefix(length);
    }

    void Push(unsigned byte)
    {
        if (m_free == 0)
            return;
        m_bits = (m_bits << 8) | byte;
        --m_free;
    }

    std::uint64_t m_bits = 0;
    int m_free = 8;
};

} // namespace

bool IsNaturallyLess(std::u16string_view left, std::u16string_view right)
{
    const std::size_t common = CommonLength(left, right);
    left.remove_prefix(common);
    right.remove_prefix(common);
    const int order = CompareRuns(left, right);
    return order != 0 ? order < 0 : left < right;
}

void NaturalKeys::Take(std::u16string_view name)
{
    if (m_hasFirst) {
        m_common = CommonLength(m_first.substr(0, m_common), name);
        return;
    }
    m_hasFirst = true;
    m_first = name;
    m_common = name.size();
}

std::uint64_t NaturalKeys::KeyOf(std::u16string_view name) const
{
    return KeyBuilder::KeyOf(name.substr(m_common));
}

} // namespace VyrHost::Model
