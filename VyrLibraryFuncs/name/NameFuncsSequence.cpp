#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <VyrPlatform/process/MessageQueue.h>

#include <charconv>
#include <cstdint>
#include <iterator>
#include <limits>
#include <string>

namespace {

/// step x index + startNumber, wrapping in 32 bits.
int NumberOf(const VyrLibraryFuncs::NameFuncs::ITEM& item) noexcept
{
    return static_cast<int>(static_cast<std::uint32_t>(item.step) * static_cast<std::uint32_t>(item.index) +
                            static_cast<std::uint32_t>(item.startNumber));
}

/// Ten times `scale`, or the largest value, so that every number is below it.
std::int64_t NextScale(std::int64_t scale) noexcept
{
    constexpr std::int64_t largest = std::numeric_limits<std::int64_t>::max();
    return scale > largest / 10 ? largest : scale * 10;
}

/// One zero for each of the powers 10 to 10^(digits - 1) that is greater than `number`; fewer after a stop.
std::u16string Padding(int digits, int number)
{
    std::size_t zeros = 0;
    std::int64_t scale = 1;
    for (int power = 1; power < digits && !VyrPlatform::MessageQueue::DrainOne(); ++power) {
        scale = NextScale(scale);
        if (number < scale)
            ++zeros;
    }
    return std::u16string(zeros, u'0');
}

/// The padded number. Most are so short that std::u16string needs no allocation, unlike a CString.
std::u16string PaddedNumber(int digits, int number)
{
    char decimal[std::numeric_limits<int>::digits10 + 2];
    const char* const end = std::to_chars(decimal, std::end(decimal), number).ptr;
    std::u16string text = Padding(digits, number);
    text.append(static_cast<const char*>(decimal), end);
    return text;
}

} // namespace

namespace VyrLibraryFuncs {

CString NameFuncs::GetSequenceNumberFilePath(ITEM item)
{
    const std::u16string number = PaddedNumber(item.digits, NumberOf(item));
    switch (static_cast<NumberPosition>(item.numberPosition)) {
    case NumberPosition::AfterText:
        return CString::Join({item.dirPath, item.numberText1, number, item.extension});
    case NumberPosition::BeforeText:
        return CString::Join({item.dirPath, number, item.numberText1, item.extension});
    case NumberPosition::BetweenTexts:
        return CString::Join({item.dirPath, item.numberText1, number, item.numberText2, item.extension});
    case NumberPosition::BeforeName:
        return CString::Join({item.dirPath, number, item.fileName, item.extension});
    case NumberPosition::AfterName:
        return CString::Join({item.dirPath, item.fileName, number, item.extension});
    }
    return CString::Join({item.dirPath, item.extension});
}

CString NameFuncs::GetSequenceNumber(int digits, int number)
{
    return std::u16string_view(PaddedNumber(digits, number));
}

CString NameFuncs::GetScaleString(int digits, int number)
{
    return std::u16string_view(Padding(digits, number));
}

} // namespace VyrLibraryFuncs
