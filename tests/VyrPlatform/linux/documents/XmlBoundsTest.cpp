// XML documents made to take time or memory: on Linux they end bounded, as "not loaded".
#include <VyrPlatform/linux/documents/XmlTree.h>

#include <tests/support/ProcessMemory.h>

#include <gtest/gtest.h>
#include <libxml/xmlerror.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

using VyrPlatform::ParseXml;

namespace {

/// A document of `beginning`, then `piece(0)`, `piece(1)`, … without an end.
bool EndlessLoads(std::string beginning, const std::function<std::string(std::uint64_t)>& piece)
{
    std::uint64_t number = 0;
    std::string ready = std::move(beginning);
    return ParseXml([&](std::span<char> buffer) {
               while (ready.size() < buffer.size())
                   ready += piece(number++);
               ready.copy(buffer.data(), buffer.size());
               ready.erase(0, buffer.size());
               return static_cast<int>(buffer.size());
           }) != nullptr;
}

bool Loads(std::string_view bytes)
{
    return ParseXml([&](std::span<char> buffer) {
               const std::size_t count = bytes.copy(buffer.data(), buffer.size());
               bytes.remove_prefix(count);
               return static_cast<int>(count);
           }) != nullptr;
}

std::string Repeat(std::string_view text, int count)
{
    std::string all;
    for (int i = 0; i < count; ++i)
        all += text;
    return all;
}

/// What a message of the library's own would come to.
void CountMessage(void* count, xmlError*)
{
    ++*static_cast<int*>(count);
}

class XmlBoundsTest : public testing::Test
{
protected:
    void TearDown() override { EXPECT_LT(VyrTests::PeakMemory() - m_before, memoryBound); }

private:
    // The bound of a document, and what libxml2 itself takes beside the tree.
    static constexpr std::uint64_t memoryBound = 256 << 20;
    std::uint64_t m_before = VyrTests::PeakMemory();
};

} // namespace

TEST_F(XmlBoundsTest, EndlessDocumentsDoNotLoad)
{
    const auto number = [](std::uint64_t i) {
        return std::to_string(i);
    };
    EXPECT_FALSE(EndlessLoads("<r>", [](std::uint64_t) { return "text "; }));
    EXPECT_FALSE(EndlessLoads("<r>", [](std::uint64_t) { return "<a/>"; }));
    EXPECT_FALSE(EndlessLoads("<r>", [](std::uint64_t) { return "<![CDATA[]]>"; }));
    EXPECT_FALSE(EndlessLoads("<r>", [](std::uint64_t) { return "<!---->"; }));
    EXPECT_FALSE(EndlessLoads("<r>", [](std::uint64_t) { return "<?a?>"; }));
    EXPECT_FALSE(EndlessLoads("<r>", [](std::uint64_t) { return "<a b='1' c='2'/>"; }));
    EXPECT_FALSE(EndlessLoads("<r a='", [](std::uint64_t) { return "value "; }));
    EXPECT_FALSE(EndlessLoads("<r", [&](std::uint64_t i) { return " a" + number(i) + "=''"; }));
    EXPECT_FALSE(EndlessLoads("<r", [&](std::uint64_t i) { return " xmlns:a" + number(i) + "='u'"; }));
    EXPECT_FALSE(EndlessLoads("<r>", [&](std::uint64_t i) { return "<a" + number(i) + "/>"; }));
    EXPECT_FALSE(EndlessLoads("<!DOCTYPE r [", [&](std::uint64_t i) { return "<!ENTITY e" + number(i) + " 'x'>"; }));
    EXPECT_FALSE(
        EndlessLoads("<!DOCTYPE r [", [&](std::uint64_t i) { return "<!ATTLIST r a" + number(i) + " CDATA 'x'>"; }));
    EXPECT_FALSE(EndlessLoads("<!-- ", [](std::uint64_t) { return "comment "; }));
}

TEST_F(XmlBoundsTest, MillionLevelsDoNotLoad)
{
    EXPECT_FALSE(Loads(Repeat("<a>", 1000000) + Repeat("</a>", 1000000)));
    EXPECT_TRUE(Loads(Repeat("<a>", 250) + Repeat("</a>", 250)));
}

TEST_F(XmlBoundsTest, ExpansionBombsDoNotLoad)
{
    std::string entities = "<!ENTITY a0 'lol'>";
    for (int i = 1; i < 10; ++i)
        entities += "<!ENTITY a" + std::to_string(i) + " '" + Repeat("&a" + std::to_string(i - 1) + ";", 10) + "'>";
    EXPECT_FALSE(Loads("<!DOCTYPE r [" + entities + "]><r>&a9;</r>"));
    EXPECT_FALSE(Loads("<!DOCTYPE r [" + entities + "]><r a='&a9;'/>"));
    const std::string large = "<!DOCTYPE r [<!ENTITY a '" + Repeat("x", 60000) + "'>]>";
    EXPECT_FALSE(Loads(large + "<r>" + Repeat("&a;", 100000) + "</r>"));
    EXPECT_FALSE(Loads(large + "<r a='" + Repeat("&a;", 100000) + "'/>"));
    const std::string markup = "<!DOCTYPE r [<!ENTITY a '" + Repeat("<a/>", 15000) + "'>]>";
    EXPECT_FALSE(Loads(markup + "<r>" + Repeat("&a;", 100000) + "</r>"));
    static_cast<void>(Loads(markup + "<r>" + Repeat("&a;", 80) + Repeat("x", 400000) + "</r>"));
}

TEST_F(XmlBoundsTest, DefaultsOfAttributesDoNotMultiply)
{
    std::string defaults;
    for (int i = 0; i < 3000; ++i)
        defaults += " a" + std::to_string(i) + " CDATA 'x'";
    const std::string type = "<!DOCTYPE r [<!ATTLIST e" + defaults + ">]>";
    EXPECT_TRUE(Loads(type + "<r><e/></r>"));
    EXPECT_FALSE(Loads(type + "<r>" + Repeat("<e/>", 100000) + "</r>"));
    const std::string large = "<!DOCTYPE r [<!ATTLIST e a CDATA '" + Repeat("x", 60000) + "'>]>";
    EXPECT_FALSE(Loads(large + "<r>" + Repeat("<e/>", 100000) + "</r>"));
}

TEST_F(XmlBoundsTest, LargeOrdinaryDocumentLoads)
{
    std::string items;
    for (int i = 0; i < 50000; ++i)
        items += "<item id=\"" + std::to_string(i) + "\" value=\"v\" name=\"n\"/>\n";
    EXPECT_TRUE(Loads("<r><design><moreinfo>" + items + "</moreinfo></design></r>"));
    std::string attributes;
    for (int i = 0; i < 1000; ++i)
        attributes += " a" + std::to_string(i) + "='x'";
    EXPECT_TRUE(Loads("<r" + attributes + "/>"));
    EXPECT_FALSE(Loads("<r" + attributes + " more='x'/>"));
    EXPECT_TRUE(Loads("<!DOCTYPE r [<!ENTITY e 'text'>]><r>" + Repeat("&e; and more ", 20000) + "</r>"));
}

TEST_F(XmlBoundsTest, FailingSourceDoesNotLoad)
{
    EXPECT_FALSE(ParseXml([](std::span<char>) { return -1; }));
    bool isFirst = true;
    EXPECT_FALSE(ParseXml([&](std::span<char> buffer) {
        return std::exchange(isFirst, false) ? static_cast<int>(std::string_view("<r/>").copy(buffer.data(), 4)) : -1;
    })) << "even when what came is whole";
}

TEST(XmlMessages, HostileBytesAreRefusedWithoutAWord)
{
    using namespace std::string_view_literals;
    testing::internal::CaptureStderr();
    for (const std::string_view bytes :
         {"\xFF\xFE<\0a\0>\0\x00\xD8x\0<\0/\0a\0>\0"sv, "<?xml version='1.0' encoding='Shift_JIS'?><a>\x81\xFF</a>"sv,
          "<?xml version='1.0' encoding='EUC-JP'?><a>\xA1\x20</a>"sv, "<?xml version='1.0' encoding='UTF-16'?><a/"sv,
          "<?xml version='1.0' encoding='nonsense'?><a/>"sv, "<a>\xFF</a>"sv, "<a><b></a>"sv, "<!DOCTYPE a [<!ENTITY"sv,
          "text"sv, ""sv})
        static_cast<void>(Loads(bytes));
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(XmlMessages, HandlerOfTheHostIsThereAgainAfterwards)
{
    int messages = 0;
    xmlSetStructuredErrorFunc(&messages, CountMessage);
    static_cast<void>(Loads("<a>\xFF</a>"));
    EXPECT_EQ(messages, 0);
    EXPECT_EQ(xmlStructuredError, CountMessage);
    EXPECT_EQ(xmlStructuredErrorContext, &messages);
    xmlSetStructuredErrorFunc(nullptr, nullptr);
}
