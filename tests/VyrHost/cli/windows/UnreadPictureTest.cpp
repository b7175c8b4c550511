// Tests of the program: pictures that another program has opened exclusively.
#include "../VyrProgram.h"

#include <VyrPlatform/text/WindowsCString.h>

#include <gmock/gmock.h>
#include <tests/support/PictureBuilder.h>

#include <windows.h>

using namespace VyrTests;
using testing::HasSubstr;

namespace {

using UnreadPicture = VyrProgram;

} // namespace

TEST_F(UnreadPicture, IsNotOneWithoutADate)
{
    m_folder.WriteFile(u"p.jpg", BuildJpeg(PictureFacts{}));
    m_folder.WriteFile(u"locked.jpg", BuildJpeg(PictureFacts{}));
    const HANDLE locked = CreateFileW(VyrPlatform::ToWide(m_folder.Path(u"locked.jpg")), GENERIC_READ, 0, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(locked, INVALID_HANDLE_VALUE);
    const ProgramResult result =
        Rename({u"--date", u"yyyy", u"--date-from", u"picture,modified", u"p.jpg", u"locked.jpg"});
    CloseHandle(locked);
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("p.jpg       ->  2024.jpg  date: picture\n"));
    EXPECT_THAT(result.output, HasSubstr("refused: the picture cannot be read: "));
}
