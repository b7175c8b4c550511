// Compares names run by run: digits by value, letters without case.
#include <VyrHost/entries/NaturalOrder.h>

#include <algorithm>

namespace VyrHost {

namespace {

bool IsDigit(char16_t unit)
{
    return unit >= u'0' && unit <= u'9';
}

char16_t Folded(char16_t unit)
{
    return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + (u'a' - u'A')) : unit;
}

/// Takes the digits off the front of `text`; leading zeros are dropped.
std::u16string_view TakeNumber(std::u16string_view& text)
{
    const auto end = std::find_if_not(text.begin(), text.end(), IsDigit);
    const auto length = static_cast<std::size_t>(end - text.begin());
    std::u16string_view digits = text.substr(0, length);
    digits.remove_prefix(std::min(digits.find_first_not_of(u'0'), digits.size()));
    text.remove_prefix(length);
    return digits;
}

/// Negative, zero or positive.
int CompareNumbers(std::u16string_view left, std::u16string_view right)
{
    if (left.size() != right.size())
        return left.size() < right.size() ? -1 : 1;
    return left.compare(right);
}

int CompareRuns(std::u16string_view left, std::u16string_view right)
{
    while (!left.empty() && !right.empty()) {
        if (IsDigit(left.front()) && IsDigit(right.front())) {
            if (const int order = CompareNumbers(TakeNumber(left), TakeNumber(right)))
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

} // namespace

bool IsNaturallyLess(std::u16string_view left, std::u16string_view right)
{
    const int order = CompareRuns(left, right);
    return order != 0 ? order < 0 : left < right;
}

} // namespace VyrHost
