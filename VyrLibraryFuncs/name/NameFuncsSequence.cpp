// The sequence-number rename: a running number in the place of a name, or beside it.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <VyrPlatform/process/MessageQueue.h>

#include <charconv>
#include <cstdint>
#include <iterator>
#include <limits>

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

} // namespace

namespace VyrLibraryFuncs {

CString NameFuncs::GetSequenceNumberFilePath(ITEM item)
{
    return ComputeSequenceNumberFilePath(item);
}

CString NameFuncs::ComputeSequenceNumberFilePath(const ITEM& item)
{
    const std::u16string number = GetSequenceNumber(item.digits, NumberOf(item));
    switch (item.numberPosition) {
    case 0:
        return CString::Join({item.dirPath, item.numberText1, number, item.extension});
    case 1:
        return CString::Join({item.dirPath, number, item.numberText1, item.extension});
    case 2:
        return CString::Join({item.dirPath, item.numberText1, number, item.numberText2, item.extension});
    case 3:
        return CString::Join({item.dirPath, number, item.fileName, item.extension});
    case 4:
        return CString::Join({item.dirPath, item.fileName, number, item.extension});
    default:
        return CString::Join({item.dirPath, item.extension});
    }
}

/// The decimal text of `number`, with zeros in front of it (and of its minus sign) up to `digits`.
std::u16string NameFuncs::GetSequenceNumber(int digits, int number)
{
    char digitsOfNumber[std::numeric_limits<int>::digits10 + 2];
    const char* const end = std::to_chars(digitsOfNumber, std::end(digitsOfNumber), number).ptr;
    std::u16string text = GetScaleString(digits, number);
    text.append(static_cast<const char*>(digitsOfNumber), end);
    return text;
}

/// One zero for each of the powers 10 to 10^(digits - 1) that is above `number`; fewer when a stop is asked for.
std::u16string NameFuncs::GetScaleString(int digits, int number)
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

} // namespace VyrLibraryFuncs
