// Templates cut into texts and tokens.
#include <VyrHost/text/Template.h>

#include <VyrPlatform/text/Encoding.h>

#include <gtest/gtest.h>

using namespace VyrHost::Text;

namespace {

std::string Bytes(const CString& text)
{
    return VyrPlatform::Encoding::ToUtf8(text);
}

/// The parts in one text: a plain one in quotes, a token as "word:option?otherwise|change".
std::string Cut(std::u16string_view text)
{
    std::string told;
    for (const TemplatePart& part : CutTemplate(text)) {
        told += told.empty() ? "" : " ";
        if (const auto* const plain = std::get_if<CString>(&part)) {
            told += "'" + Bytes(*plain) + "'";
            continue;
        }
        const Token& token = std::get<Token>(part);
        told += Bytes(token.word);
        told += token.option ? ":" + Bytes(*token.option) : "";
        told += token.otherwise ? "?" + Bytes(*token.otherwise) : "";
        for (const CString& change : token.changes)
            told += "|" + Bytes(change);
    }
    return told;
}

} // namespace

TEST(Template, IsCutIntoTextsAndTokens)
{
    EXPECT_EQ(Cut(u""), "");
    EXPECT_EQ(Cut(u"plain"), "'plain'");
    EXPECT_EQ(Cut(u"<Name>"), "Name");
    EXPECT_EQ(Cut(u"a <Name><###>.b"), "'a ' Name ### '.b'");
    EXPECT_EQ(Cut(u"<1> <year_2>"), "1 ' ' year_2");
}

TEST(Template, CutsTokensAtTheirMarks)
{
    EXPECT_EQ(Cut(u"<Taken:yyyy-MM-dd HH:mm>"), "Taken:yyyy-MM-dd HH:mm");
    EXPECT_EQ(Cut(u"<Artist?Unknown>"), "Artist?Unknown");
    EXPECT_EQ(Cut(u"<Artist?>"), "Artist?");
    EXPECT_EQ(Cut(u"<Parent:2?a:b|upper|replace a b>"), "Parent:2?a:b|upper|replace a b");
    EXPECT_EQ(Cut(u"<Name|upper?x>"), "Name|upper?x");
    EXPECT_EQ(Cut(u"<Name:>"), "Name:");
}

TEST(Template, TakesOtherAngleBracketsForText)
{
    for (const std::u16string_view text :
         {u"a < b > c", u"<>", u"<", u"<Name", u"Name>", u"<a b>", u"<#a>", u"<a-b>", u"< Name>", u"<:x>", u"<\u00e9>"})
        EXPECT_EQ(Cut(text), "'" + Bytes(text) + "'");
    EXPECT_EQ(Cut(u"a<<Name>>"), "'a<' Name '>'");
    EXPECT_EQ(Cut(u"<a <Name>"), "'<a ' Name");
}

TEST(Template, OfManyAngleBracketsTakesLinearTime)
{
    const std::u16string brackets(1'000'000, u'<');
    EXPECT_EQ(CutTemplate(brackets).size(), 1u);
    EXPECT_EQ(CutTemplate(brackets + u">").size(), 1u);
}

TEST(TokenHint, NamesTheNearestToken)
{
    const std::vector<std::string> words = {"Name", "Parent", "Model"};
    const auto hint = [&words](std::u16string_view text) {
        return TokenHint(std::get<Token>(CutTemplate(text).front()), words);
    };
    EXPECT_EQ(hint(u"<Nmae:x>"), "; did you mean <Name>?");
    EXPECT_EQ(hint(u"<name>"), "; did you mean <Name>?");
    EXPECT_EQ(hint(u"<Quite_other>"), "");
}
