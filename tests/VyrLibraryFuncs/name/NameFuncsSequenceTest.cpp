// The sequence-number rename: the position of the number, its arithmetic, and its padding compared with the C
// library's.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <tests/VyrLibraryFuncs/PrivateOperations.h>
#include <tests/support/MessagePosting.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>

using VyrLibraryFuncs::NameFuncs;
using VyrLibraryFuncs::PrivateOperations;

namespace {

constexpr int smallest = std::numeric_limits<int>::min();
constexpr int largest = std::numeric_limits<int>::max();

/// An item whose new name is the bare number.
NameFuncs::ITEM BareNumber(int digits, int number)
{
    NameFuncs::ITEM item;
    item.startNumber = number;
    item.digits = digits;
    return item;
}

std::string Narrow(const CString& text)
{
    std::string result;
    for (const char16_t unit : text.View())
        result.push_back(unit < 128 ? static_cast<char>(unit) : '?');
    return result;
}

std::string NumberText(int digits, int number)
{
    return Narrow(NameFuncs::GetSequenceNumberFilePath(BareNumber(digits, number)));
}

/// The C library's text; its zeros are behind the minus sign, the engine's in front of it.
std::string ExpectedNumberText(int digits, int number)
{
    if (number < 0)
        return std::string(static_cast<std::size_t>(digits > 1 ? digits - 1 : 0), '0') + std::to_string(number);
    std::string text(static_cast<std::size_t>(std::max(digits, 16)), ' ');
    text.resize(
        static_cast<std::size_t>(std::snprintf(text.data(), text.size() + 1, "%0*d", std::max(digits, 0), number)));
    return text;
}

/// The number of `item`, without 32-bit arithmetic.
std::int64_t ExpectedNumber(const NameFuncs::ITEM& item)
{
    const std::int64_t exact = static_cast<std::int64_t>(item.step) * item.index + item.startNumber;
    const std::int64_t turn = std::int64_t{1} << 32;
    const std::int64_t positive = ((exact % turn) + turn) % turn;
    return positive > largest ? positive - turn : positive;
}

NameFuncs::ITEM Photograph(int numberPosition)
{
    NameFuncs::ITEM item;
    item.filePath = u"/photos/beach.jpg";
    item.dirPath = u"/photos/";
    item.fileName = u"beach";
    item.extension = u".jpg";
    item.index = 4;
    item.numberPosition = numberPosition;
    item.numberText1 = u"Italy ";
    item.numberText2 = u" (2024)";
    item.startNumber = 10;
    item.digits = 3;
    item.step = 5;
    return item;
}

CString PhotographPath(int numberPosition)
{
    return NameFuncs::GetSequenceNumberFilePath(Photograph(numberPosition));
}

} // namespace

TEST(NameFuncsSequence, NumberIsAtThePosition)
{
    EXPECT_EQ(PhotographPath(0), u"/photos/Italy 030.jpg");
    EXPECT_EQ(PhotographPath(1), u"/photos/030Italy .jpg");
    EXPECT_EQ(PhotographPath(2), u"/photos/Italy 030 (2024).jpg");
    EXPECT_EQ(PhotographPath(3), u"/photos/030beach.jpg");
    EXPECT_EQ(PhotographPath(4), u"/photos/beach030.jpg");
}

TEST(NameFuncsSequence, UnknownPositionGivesAnEmptyName)
{
    for (const int position : {5, 6, -1, smallest, largest})
        EXPECT_EQ(PhotographPath(position), u"/photos/.jpg") << position;
}

TEST(NameFuncsSequence, NumberBetweenTwoEmptyTextsIsBare)
{
    NameFuncs::ITEM item = Photograph(2);
    item.numberText1 = u"";
    item.numberText2 = u"";
    EXPECT_EQ(NameFuncs::GetSequenceNumberFilePath(item), u"/photos/030.jpg");
}

TEST(NameFuncsSequence, NumbersGrowFromItemToItemAndBeyondTheirWidth)
{
    NameFuncs::ITEM item;
    item.startNumber = 1;
    item.step = 1;
    item.digits = 3;
    const auto textAt = [&item](int index) {
        item.index = index;
        return NameFuncs::GetSequenceNumberFilePath(item);
    };
    EXPECT_EQ(textAt(0), u"001");
    EXPECT_EQ(textAt(9), u"010");
    EXPECT_EQ(textAt(99), u"100");
    EXPECT_EQ(textAt(999), u"1000");
}

TEST(NameFuncsSequence, StepZeroGivesEveryItemTheSameNumber)
{
    NameFuncs::ITEM item = BareNumber(2, 7);
    for (const int index : {0, 1, 1000, largest}) {
        item.index = index;
        EXPECT_EQ(NameFuncs::GetSequenceNumberFilePath(item), u"07");
    }
}

TEST(NameFuncsSequence, WidthBelowTwoPadsNothing)
{
    for (const int digits : {1, 0, -1, smallest}) {
        EXPECT_EQ(NumberText(digits, 7), "7") << digits;
        EXPECT_EQ(NumberText(digits, -7), "-7") << digits;
    }
}

TEST(NameFuncsSequence, ZerosAreBeforeTheMinusSign)
{
    EXPECT_EQ(NumberText(3, -5), "00-5");
    EXPECT_EQ(NumberText(3, smallest), "00-2147483648");
}

TEST(NameFuncsSequence, PaddingAgreesWithTheCLibraryAroundEveryPowerOfTen)
{
    std::int64_t power = 1;
    for (int exponent = 0; exponent < 10; ++exponent, power *= 10)
        for (const std::int64_t number : {power - 1, power, power + 1, -power, 1 - power})
            for (const int digits : {0, 1, 2, exponent, exponent + 1, exponent + 2, 12})
                EXPECT_EQ(NumberText(digits, static_cast<int>(number)),
                          ExpectedNumberText(digits, static_cast<int>(number)));
}

TEST(NameFuncsSequence, PaddingContinuesBeyondThePowersOfTen)
{
    for (const int digits : {18, 19, 20, 21, 40})
        for (const int number : {0, 1, largest, -1, smallest})
            EXPECT_EQ(NumberText(digits, number), ExpectedNumberText(digits, number));
}

TEST(NameFuncsSequence, NumberWrapsInThirtyTwoBits)
{
    const int values[] = {0, 1, -1, 2, 65535, 65536, 1000000007, largest, largest - 1, smallest, smallest + 1};
    NameFuncs::ITEM item;
    for (item.step = 0; const int step : values)
        for (const int index : values)
            for (const int start : values) {
                item.step = step;
                item.index = index;
                item.startNumber = start;
                EXPECT_EQ(Narrow(NameFuncs::GetSequenceNumberFilePath(item)), std::to_string(ExpectedNumber(item)))
                    << step << " x " << index << " + " << start;
            }
}

TEST(NameFuncsSequence, AStopEndsThePaddingAtOnce)
{
    const VyrTests::MessagePosting queue;
    queue.PostStop();
    EXPECT_EQ(NumberText(5, 1), "1");
    EXPECT_EQ(NumberText(5, 1), "00001") << "the stop was told already";
}

TEST(NameFuncsSequence, EachStepOfThePaddingHandlesOneEvent)
{
    const VyrTests::MessagePosting queue;
    int handled = 0;
    for (int i = 0; i < 3; ++i)
        queue.PostWork([&handled] { ++handled; });
    queue.PostStop();
    EXPECT_EQ(NumberText(8, 1), "0001");
    EXPECT_EQ(handled, 3);
}

TEST(NameFuncsSequence, NoPaddingHandlesNoEvent)
{
    const VyrTests::MessagePosting queue;
    queue.PostStop();
    EXPECT_EQ(NumberText(1, 5), "5");
    EXPECT_EQ(NumberText(2, 5), "5") << "only now the stop is told";
    EXPECT_EQ(NumberText(2, 5), "05");
}

TEST(NameFuncsSequence, LongPaddingIsComplete)
{
    EXPECT_EQ(NumberText(900, 42), ExpectedNumberText(900, 42));
}

TEST(NameFuncsSequence, PrivateOperationsGiveWhatTheNameHolds)
{
    for (const int digits : {-1, 0, 1, 2, 3, 11, 40})
        for (const int number : {0, 5, 99, 100, 1234, largest, -5, smallest}) {
            const CString whole = PrivateOperations::GetSequenceNumber(digits, number);
            EXPECT_EQ(Narrow(whole), ExpectedNumberText(digits, number));
            EXPECT_EQ(Narrow(PrivateOperations::GetScaleString(digits, number)) + std::to_string(number),
                      ExpectedNumberText(digits, number));
        }
}
