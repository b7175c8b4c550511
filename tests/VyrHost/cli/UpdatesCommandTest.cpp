// Tests of the program: what "vyr updates" says, and the release stage.
#include "VyrProgram.h"

#include <gmock/gmock.h>

using namespace VyrTests;
using testing::HasSubstr;

namespace {

using Updates = VyrProgram;

} // namespace

TEST_F(Updates, WithoutAnAddressAreUnknown)
{
    m_environment[u"XDG_DATA_HOME"] = m_folder.Path();
    const ProgramResult result = Run({u"updates"});
    EXPECT_EQ(result.exitCode, 4);
    EXPECT_EQ(result.output, "");
    EXPECT_THAT(result.errors, HasSubstr("no address of update information is set"));
}

TEST_F(Updates, EveryTakesANumberOfDays)
{
    for (const char16_t* const days : {u"x", u"-1", u""})
        EXPECT_EQ(Run({u"updates", u"--every", days}).exitCode, 2);
}
