// The application information file: the release stage and the addresses.
#include <VyrLibraryFuncs/xmlinfo/ApplicationFuncs.h>

#include <VyrLibraryUtils/PathUtils.h>

#include <tests/VyrLibraryFuncs/PrivateOperations.h>
#include <tests/support/Describe.h>
#include <tests/support/UserData.h>

#include <gtest/gtest.h>

#include <string>

using VyrLibraryFuncs::ApplicationFuncs;
using VyrLibraryFuncs::PrivateOperations;

namespace {

/// The application information file, in data folders of the test.
class ApplicationFuncsFile : public testing::Test
{
protected:
    static void Write(const std::string& content)
    {
        VyrTests::UserData::WriteFile(VyrLibraryUtils::PathUtils::GetLocalDataApplicationFilePath(), content);
    }
    static void WriteStage(const std::string& stage) { Write("[Application]\r\nVersion=" + stage + "\r\n"); }

private:
    VyrTests::UserData m_userData;
};

/// Each test of the stage as a digit: alpha, beta, candidate, manufacturing, release, product.
std::string Answers()
{
    std::string answers;
    for (const int answer :
         {ApplicationFuncs::IsAlphaVersion(), ApplicationFuncs::IsBetaVersion(),
          ApplicationFuncs::IsReleaseCandidateVersion(), ApplicationFuncs::IsReleaseToManufacturingVersion(),
          ApplicationFuncs::IsReleaseVersion(), ApplicationFuncs::IsProductReleaseVersion()})
        answers += std::to_string(answer);
    return answers;
}

} // namespace

TEST_F(ApplicationFuncsFile, StagesArePrefixesBeforeTheReleaseAndWholeTextsFromThere)
{
    const std::pair<const char*, const char*> rows[] = {
        {"Alpha", "100000"},     {"alphabet", "100000"},
        {"ALPHA 3", "100000"},   {"Alph", "000000"},
        {"pre-Alpha", "000000"}, {"Beta", "010000"},
        {"beta 2", "010000"},    {"BetaRC", "010000"},
        {"Bet", "000000"},       {"RC", "001000"},
        {"rc1", "001000"},       {"R", "000000"},
        {"RTM", "000101"},       {"rtm", "000101"},
        {"RTM 2", "000000"},     {"Release", "000011"},
        {"RELEASE", "000011"},   {"Release 2", "000000"},
        {"Rel", "000000"},       {"\"Release\"", "000011"},
        {"", "000000"},          {"Release Candidate", "000000"},
    };
    for (const auto& [stage, answers] : rows) {
        WriteStage(stage);
        EXPECT_EQ(Answers(), answers) << stage;
    }
}

TEST_F(ApplicationFuncsFile, TextsAreReadFromTheirSections)
{
    Write("; comment\r\n[application]\r\nversion = RC1 \r\n[Online Support]\r\nUrl=https://a/\r\n"
          "[Send Feedback]\r\nurl=\"https://b/?x=1;y=2\"\r\n[Send Questionnaire]\r\nUrl=https://c/\r\n");
    EXPECT_EQ(ApplicationFuncs::GetLocalDataApplicationVersion(), u"RC1");
    EXPECT_EQ(ApplicationFuncs::GetOnlineSupportUrl(), u"https://a/");
    EXPECT_EQ(ApplicationFuncs::GetSendFeedbackUrl(), u"https://b/?x=1;y=2");
    EXPECT_EQ(ApplicationFuncs::GetSendQuestionnaireUrl(), u"https://c/");
}

TEST_F(ApplicationFuncsFile, EveryCallReadsTheFileAgain)
{
    WriteStage("Alpha");
    EXPECT_EQ(ApplicationFuncs::GetLocalDataApplicationVersion(), u"Alpha");
    WriteStage("Beta!");
    EXPECT_EQ(ApplicationFuncs::GetLocalDataApplicationVersion(), u"Beta!");
}

TEST_F(ApplicationFuncsFile, MissingFileOrKeyGivesAnEmptyText)
{
    EXPECT_EQ(ApplicationFuncs::GetLocalDataApplicationVersion(), u"");
    EXPECT_EQ(Answers(), "000000");
    EXPECT_EQ(ApplicationFuncs::GetOnlineSupportUrl(), u"");
    Write("[Application]\r\nOther=x\r\n[Online Support]\r\n");
    EXPECT_EQ(Answers(), "000000");
    EXPECT_EQ(ApplicationFuncs::GetOnlineSupportUrl(), u"");
    EXPECT_EQ(ApplicationFuncs::GetSendFeedbackUrl(), u"");
    EXPECT_EQ(ApplicationFuncs::GetSendQuestionnaireUrl(), u"");
}

TEST_F(ApplicationFuncsFile, LongTextIsCut)
{
    Write("[Online Support]\r\nUrl=" + std::string(300, 'x') + "\r\n");
    EXPECT_EQ(ApplicationFuncs::GetOnlineSupportUrl(), CString(u'x', 259));
}

TEST_F(ApplicationFuncsFile, PrivateOperationsReadKeysAndTestPrefixes)
{
    Write("[Application]\r\nVersion=Beta\r\nOther=x\r\n[Elsewhere]\r\nUrl=y\r\n");
    EXPECT_EQ(PrivateOperations::GetLocalDataApplication(u"Other"), u"x");
    EXPECT_EQ(PrivateOperations::GetUrl(u"Elsewhere"), u"y");
    EXPECT_EQ(PrivateOperations::IsVersionStagePrefix(u"be"), 1);
    EXPECT_EQ(PrivateOperations::IsVersionStagePrefix(u"BETA"), 1);
    EXPECT_EQ(PrivateOperations::IsVersionStagePrefix(u"Betas"), 0);
    EXPECT_EQ(PrivateOperations::IsVersionStagePrefix(u""), 0);
}
