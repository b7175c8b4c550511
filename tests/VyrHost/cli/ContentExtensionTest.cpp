// Tests of the program: extensions by content.
#include "VyrProgram.h"

#include <tests/support/PictureBuilder.h>

#include <gmock/gmock.h>

using namespace VyrTests;
using testing::HasSubstr;

class ContentExtension : public VyrProgram
{
protected:
    [[nodiscard]] std::string Shown(const CString& name) const
    {
        return Rename({u"--extension", u"auto", u"--", name}).output;
    }
};

TEST_F(ContentExtension, FilesGetTheExtensionOfWhatTheyContain)
{
    m_folder.WriteFile(u"a.png", BuildJpeg("", 64));
    m_folder.WriteFile(u"b", BuildPng(""));
    EXPECT_THAT(Shown(u"a.png"), HasSubstr("a.png  ->  a.jpg\n"));
    EXPECT_THAT(Shown(u"b"), HasSubstr("b  ->  b.png\n"));
}

TEST_F(ContentExtension, ExtensionsThatSuitTheContentStay)
{
    for (const char16_t* const name : {u"a.jpg", u"b.JPEG", u"c.jpe"}) {
        m_folder.WriteFile(name, BuildJpeg("", 64));
        EXPECT_THAT(Shown(name), HasSubstr("unchanged"));
    }
}

TEST_F(ContentExtension, UnknownContentIsRefusedInItsRow)
{
    m_folder.WriteFile(u"a.dat", "nothing that is known");
    m_folder.WriteFile(u"empty.jpg", "");
    EXPECT_THAT(Shown(u"a.dat"), HasSubstr("refused: its content is of no kind that is known\n"));
    EXPECT_THAT(Shown(u"empty.jpg"), HasSubstr("refused: its content is of no kind that is known\n"));
}

TEST_F(ContentExtension, FoldersKeepTheirNames)
{
    m_folder.MakeFolder(u"a.jpg");
    EXPECT_THAT(Shown(u"a.jpg"), HasSubstr("unchanged"));
}
