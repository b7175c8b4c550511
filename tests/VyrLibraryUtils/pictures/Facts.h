// For the tests of the picture readers: all that a picture says, in one value.
#pragma once

#include <VyrLibraryUtils/pictures/Picture.h>

#include <gtest/gtest.h>

#include <ostream>
#include <string>
#include <string_view>

namespace VyrTests {

struct Facts
{
    std::string dateTimeOriginal;
    std::string make;
    std::string model;

    friend bool operator==(const Facts&, const Facts&) = default;
    friend std::ostream& operator<<(std::ostream& stream, const Facts& facts)
    {
        return stream << '"' << facts.dateTimeOriginal << "\", \"" << facts.make << "\", \"" << facts.model << '"';
    }
};

inline Facts FactsOf(std::string_view picture)
{
    using namespace VyrLibraryUtils::Pictures;
    return {ReadPictureBytes(picture, PictureTag::DateTimeOriginal), ReadPictureBytes(picture, PictureTag::Make),
            ReadPictureBytes(picture, PictureTag::Model)};
}

/// What a picture says that the builder made without other wishes.
inline const Facts BuiltFacts = {"2024:07:19 18:45:03", "Testmaker", "Model 1"};
inline const Facts NoFacts;

/// A damaged picture may have lost a text, but must never give another one.
inline void ExpectRightOrEmpty(const Facts& facts, const Facts& right)
{
    EXPECT_TRUE(facts.dateTimeOriginal.empty() || facts.dateTimeOriginal == right.dateTimeOriginal) << facts;
    EXPECT_TRUE(facts.make.empty() || facts.make == right.make) << facts;
    EXPECT_TRUE(facts.model.empty() || facts.model == right.model) << facts;
}

/// Reads every beginning of `picture`, from nothing to all of it.
inline void ExpectEveryBeginningIsRightOrEmpty(std::string_view picture, const Facts& right)
{
    ASSERT_EQ(FactsOf(picture), right);
    for (std::size_t size = 0; size < picture.size() && !testing::Test::HasFailure(); ++size) {
        SCOPED_TRACE("the first " + std::to_string(size) + " bytes");
        // A copy of exactly that size, so that a sanitizer sees a read behind it.
        ExpectRightOrEmpty(FactsOf(std::string(picture.substr(0, size))), right);
    }
}

} // namespace VyrTests
