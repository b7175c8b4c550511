// Properties of all formats: the same facts, no harm from damage, and few bytes read.
#include "Facts.h"

#include <tests/support/PictureBuilder.h>

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace {

using namespace VyrTests;
using VyrLibraryUtils::Pictures::ByteSource;
using VyrLibraryUtils::Pictures::PictureTag;
using VyrLibraryUtils::Pictures::ReadPicture;

constexpr Endian BothOrders[] = {Endian::Little, Endian::Big};

/// Bytes that claim to be very long, and the number of bytes that were requested.
class EndlessSource final : public ByteSource
{
public:
    explicit EndlessSource(std::string_view bytes) : ByteSource(std::uint64_t{1} << 50), m_bytes(bytes) {}

    std::string_view Fetch(std::uint64_t offset, std::size_t count) override
    {
        m_fetched += count;
        if (!Holds(offset, count))
            return {};
        if (offset + count <= m_bytes.size())
            return m_bytes.substr(static_cast<std::size_t>(offset), count);
        m_zeros.assign(count, '\0');
        return m_zeros;
    }
    [[nodiscard]] std::size_t Fetched() const { return m_fetched; }

private:
    std::string_view m_bytes;
    std::string m_zeros;
    std::size_t m_fetched = 0;
};

TEST(EveryFormat, GivesAllThreeTags)
{
    for (const Endian endian : BothOrders)
        for (const FormatSample& sample : BuildEveryFormat({.endian = endian}))
            EXPECT_EQ(FactsOf(sample.bytes), BuiltFacts) << sample.fileName;
}

TEST(EveryFormat, MissingTagsAreEmpty)
{
    for (const FormatSample& sample : BuildEveryFormat({"", "", ""}))
        EXPECT_EQ(FactsOf(sample.bytes), NoFacts) << sample.fileName;
}

TEST(EveryFormat, EachTagIsReadWithoutTheOthers)
{
    for (const Facts& facts :
         {Facts{"1999:12:31 23:59:59", "", ""}, Facts{"", "Only make", ""}, Facts{"", "", "Only model"}})
        for (const FormatSample& sample : BuildEveryFormat({facts.dateTimeOriginal, facts.make, facts.model}))
            EXPECT_EQ(FactsOf(sample.bytes), facts) << sample.fileName;
}

TEST(EveryFormat, EveryBeginningIsRightOrEmpty)
{
    for (const Endian endian : BothOrders)
        for (const FormatSample& sample : BuildEveryFormat({.endian = endian})) {
            SCOPED_TRACE(sample.fileName);
            ExpectEveryBeginningIsRightOrEmpty(sample.bytes, BuiltFacts);
        }
}

TEST(EveryFormat, NoChangedByteMakesATextLongerThanTheFile)
{
    for (const FormatSample& sample : BuildEveryFormat({}))
        for (std::size_t place = 0; place < sample.bytes.size(); ++place)
            for (const char value : {'\0', '\1', '\x7F', '\x80', '\xFF'}) {
                Bytes damaged = sample.bytes;
                damaged[place] = value;
                const Facts facts = FactsOf(damaged);
                EXPECT_LE(facts.dateTimeOriginal.size() + facts.make.size() + facts.model.size(), 2 * damaged.size())
                    << sample.fileName << ", byte " << place;
            }
}

TEST(EveryFormat, AFileWithoutEndIsNotReadToItsEnd)
{
    for (const FormatSample& sample : BuildEveryFormat({})) {
        EndlessSource source(sample.bytes);
        EXPECT_EQ(ReadPicture(source, PictureTag::DateTimeOriginal), BuiltFacts.dateTimeOriginal) << sample.fileName;
        EXPECT_LT(source.Fetched(), 4096u) << sample.fileName;
    }
}

TEST(EveryFormat, AnUndatedFileWithoutEndIsNotReadToItsEnd)
{
    for (const FormatSample& sample : BuildEveryFormat({"", "", ""})) {
        EndlessSource source(sample.bytes);
        EXPECT_EQ(ReadPicture(source, PictureTag::DateTimeOriginal), "") << sample.fileName;
        EXPECT_LT(source.Fetched(), 2'000'000u) << sample.fileName;
    }
}

TEST(EveryFormat, OtherFilesAreEmptyAtOnce)
{
    for (const std::string_view bytes :
         {std::string_view("%PDF-1.7"), std::string_view("GIF89a"), std::string_view("BM"),
          std::string_view("\0\0\1\0", 4), std::string_view("PK\3\4"), std::string_view("some text"),
          std::string_view("\xFF"), std::string_view("\xFF\xD8"), std::string_view()}) {
        EXPECT_EQ(FactsOf(bytes), NoFacts);
        EndlessSource source(bytes);
        EXPECT_EQ(ReadPicture(source, PictureTag::DateTimeOriginal), "");
        EXPECT_LT(source.Fetched(), 200u);
    }
}

} // namespace
