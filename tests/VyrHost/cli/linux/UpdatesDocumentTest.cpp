// Tests of the program: update information in a document, with data folders of the test.
#include "../VyrProgram.h"

#include <gmock/gmock.h>

using namespace VyrTests;
using testing::HasSubstr;
using testing::Not;

namespace {

class UpdateInformation : public VyrProgram
{
protected:
    UpdateInformation()
    {
        m_environment[u"XDG_DATA_HOME"] = m_data.Path(u"data");
        m_environment[u"XDG_CONFIG_HOME"] = m_data.Path(u"config");
        Say("<r><update name='Product' version='99.0.0.0' detailsURL='https://example.org'><moreinfo><item>"
            "<description>A line</description></item></moreinfo></update></r>");
        m_data.MakeFolder(u"data");
        m_data.MakeFolder(u"data/VyrLibrary");
        m_data.WriteFile(u"data/VyrLibrary/Updates.ini",
                         "[Updates]\nUrl=" + VyrPlatform::Encoding::ToUtf8(m_data.Path(u"u.xml")) + "\n");
    }

    void Say(const std::string& document) const { m_data.WriteFile(u"u.xml", document); }
    void SetLastLook(const std::string& date) const
    {
        m_data.WriteFile(u"config/VyrLibrary/Updates.ini", "[Updates]\nCheckedDate=" + date + "\n");
    }

    ScratchFolder m_data;
};

} // namespace

TEST_F(UpdateInformation, NewerReleaseIsReported)
{
    const ProgramResult result = Run({u"updates"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("Last look: never\n"));
    EXPECT_THAT(result.output, HasSubstr("Product:  Product\nVersion:  99.0.0.0\nDetails:  https://example.org\n"
                                         "- A line\nThis is newer than this program.\n"));
}

TEST_F(UpdateInformation, OldReleaseIsNotNewer)
{
    Say("<r><update version='0.0.0.1'/></r>");
    EXPECT_THAT(Run({u"updates"}).output, HasSubstr("This is not newer than this program.\n"));
}

TEST_F(UpdateInformation, LookWaitsUntilItIsDue)
{
    EXPECT_THAT(Run({u"updates", u"--every", u"7"}).output, HasSubstr("99.0.0.0")) << "never looked";
    const ProgramResult again = Run({u"updates", u"--every", u"7"});
    EXPECT_EQ(again.exitCode, 0);
    EXPECT_THAT(again.output, Not(HasSubstr("99.0.0.0")));
    EXPECT_THAT(again.output, Not(HasSubstr("never")));
    EXPECT_THAT(again.output, testing::EndsWith("\nThe next look is not due yet.\n"));
    EXPECT_THAT(Run({u"updates"}).output, HasSubstr("99.0.0.0")) << "asked for now";
    EXPECT_THAT(Run({u"updates", u"--every", u"0"}).output, HasSubstr("99.0.0.0"));
}

TEST_F(UpdateInformation, DocumentThatCannotBeReadIsAMessage)
{
    for (const char* const document : {"", "not XML", "<r/>"}) {
        Say(document);
        const ProgramResult result = Run({u"updates"});
        EXPECT_EQ(result.exitCode, 4) << document;
        EXPECT_THAT(result.errors, HasSubstr("cannot be read"));
    }
}

TEST_F(UpdateInformation, DateOutsideTheCalendarIsAMessage)
{
    SetLastLook("1200/01/01 00:00:00");
    const ProgramResult result = Run({u"updates", u"--every", u"1"});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_THAT(result.errors, HasSubstr("outside the calendar"));
}

TEST_F(UpdateInformation, LastLookInTheFutureIsDue)
{
    for (const char* const date : {"9998/12/31 00:00:00", "9999/12/31"}) {
        for (const std::vector<CString>& call :
             {std::vector<CString>{u"updates"}, std::vector<CString>{u"updates", u"--every", u"7"}}) {
            SetLastLook(date);
            const ProgramResult result = Run(call);
            EXPECT_EQ(result.exitCode, 0) << result.errors;
            EXPECT_THAT(result.output, HasSubstr("99.0.0.0"));
        }
    }
}

TEST_F(UpdateInformation, DateOutsideTheCalendarDoesNotMatterUnlessDaysAreCounted)
{
    SetLastLook("0900/01/01");
    const ProgramResult result = Run({u"updates"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("99.0.0.0"));
    EXPECT_THAT(Run({u"updates"}).output, Not(HasSubstr("0900"))) << "this look is kept";
}

TEST_F(UpdateInformation, VersionTellsTheReleaseStage)
{
    m_data.WriteFile(u"data/VyrLibrary/Application.ini", "[Application]\nVersion=RC1\n");
    EXPECT_THAT(Run({u"--version"}).output, testing::EndsWith(" RC1\n"));
}
