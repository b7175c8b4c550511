// Date formats: which date is taken, its place in the name, camera and folders.
#include "RuleChain.h"

#include <VyrHost/rename/RuleTexts.h>
#include <VyrHost/text/Errors.h>
#include <VyrPlatform/files/FileSystem.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>
#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <chrono>
#include <filesystem>

using namespace VyrHost::Rename;
using namespace VyrHost::Text;
using VyrHost::Model::DateSource;
using namespace VyrTests;

namespace {

/// A picture taken at 2024:07:19 18:45:03, and one without Exif data.
class DateFormat : public testing::Test
{
protected:
    DateFormat()
    {
        m_folder.WriteFile(u"dated.jpg", BuildJpeg(PictureFacts{}));
        m_folder.WriteFile(u"plain.jpg", "no picture");
    }

    [[nodiscard]] Subject SubjectOf(const CString& name) const
    {
        Subject subject = FileSubject(name, u".jpg");
        subject.path = m_folder.Path(name + u".jpg");
        return subject;
    }

    [[nodiscard]] CString Dated(const CString& format, const CString& name = u"dated") const
    {
        return Apply(DateRules(format, {{DateSource::PictureTaken}}), SubjectOf(name));
    }

    ScratchFolder m_folder;
};

const char16_t Slash[] = {VyrPlatform::FileSystem::Separator(), 0};

} // namespace

TEST_F(DateFormat, PutsTheDateInPlaceOfTheNameOrBesideIt)
{
    EXPECT_EQ(Dated(u"yyyy-MM-dd HHmmss"), u"/d/2024-07-19 184503.jpg");
    EXPECT_EQ(Dated(u"yyyy <Name>"), u"/d/2024 dated.jpg");
    EXPECT_EQ(Dated(u"<Name> yyyy"), u"/d/dated 2024.jpg");
    EXPECT_EQ(Dated(u"yyyy <Name> MM"), u"/d/2024 dated 07.jpg");
}

TEST_F(DateFormat, GivesNoNameToAFileWithoutTheDate)
{
    EXPECT_EQ(Dated(u"yyyy", u"plain"), u"!");
    EXPECT_EQ(Dated(u"yyyy <Name>", u"plain"), u"!");
    EXPECT_EQ(Dated(u"yyyy", u"missing"), u"!");
}

TEST_F(DateFormat, TakesTheFirstDateThatTheFileHas)
{
    using namespace std::chrono;
    const auto moment = file_clock::from_sys(sys_seconds{sys_days{year{2001} / 2 / 3}});
    std::filesystem::last_write_time(ToStdPath(m_folder.Path(u"plain.jpg")), moment);
    const std::vector<DateSource> sources = {DateSource::PictureTaken, DateSource::Modified};
    EXPECT_EQ(Apply(DateRules(u"yyyy", {sources}), SubjectOf(u"dated")), u"/d/2024.jpg");
    EXPECT_EQ(Apply(DateRules(u"yyyy", {sources}), SubjectOf(u"plain")), u"/d/2001.jpg");
}

TEST_F(DateFormat, InsertsMakerAndModelOfTheCamera)
{
    EXPECT_EQ(Dated(u"<Make>_<Model>_yyyy"), u"/d/Testmaker_Model 1_2024.jpg");
    EXPECT_EQ(Dated(u"<Name> <Model>"), u"/d/dated Model 1.jpg");
}

TEST_F(DateFormat, ReplacesForbiddenCharactersInMakerAndModel)
{
    PictureFacts facts;
    facts.make = " a/b\\c:d?<Folder> ";
    facts.model = "..";
    m_folder.WriteFile(u"odd.jpg", BuildJpeg(facts));
    EXPECT_EQ(Dated(u"<Make>", u"odd"), u"/d/a_b_c_d__Folder_.jpg");
    EXPECT_EQ(Dated(u"<Model><Folder><Name>", u"odd"), u"!");
}

TEST_F(DateFormat, RemovesATokenWithoutAValue)
{
    PictureFacts facts;
    facts.make.clear();
    m_folder.WriteFile(u"nameless.jpg", BuildJpeg(facts));
    EXPECT_EQ(Dated(u"yyyy<Make>", u"nameless"), u"/d/2024.jpg");
    EXPECT_EQ(Dated(u"<Make><Folder><Name>", u"nameless"), u"!");
}

TEST_F(DateFormat, RemovesABlankBesideATokenWithoutAValue)
{
    PictureFacts facts;
    facts.make.clear();
    m_folder.WriteFile(u"nameless.jpg", BuildJpeg(facts));
    facts.model.clear();
    m_folder.WriteFile(u"silent.jpg", BuildJpeg(facts));
    EXPECT_EQ(Dated(u"yyyy <Make> dd", u"nameless"), u"/d/2024 19.jpg");
    EXPECT_EQ(Dated(u"<Make> yyyy", u"nameless"), u"/d/2024.jpg");
    EXPECT_EQ(Dated(u"yyyy <Make>", u"nameless"), u"/d/2024.jpg");
    EXPECT_EQ(Dated(u"<Make> <Model> yyyy", u"nameless"), u"/d/Model 1 2024.jpg");
    EXPECT_EQ(Dated(u"<Make> <Model> yyyy", u"silent"), u"/d/2024.jpg");
    EXPECT_EQ(Dated(u"yyyy <Make> <Model> <Name>", u"silent"), u"/d/2024 silent.jpg");
    EXPECT_EQ(Dated(u"<Name> <Model>", u"silent"), u"/d/silent.jpg");
    EXPECT_EQ(Dated(u"<Model> <Name>", u"silent"), u"/d/silent.jpg");
    EXPECT_EQ(Dated(u"yyyy<Folder><Make> <Name>", u"silent"), CString(u"/d/2024") + Slash + u"silent.jpg");
    EXPECT_EQ(Dated(u"yyyy <Make><Folder><Name>", u"silent"), CString(u"/d/2024") + Slash + u"silent.jpg");
    // A blank between two words is kept, and so is every character other than a blank.
    EXPECT_EQ(Dated(u"yyyy <Make><Name>", u"silent"), u"/d/2024 silent.jpg");
    EXPECT_EQ(Dated(u"yyyy-<Make>-dd", u"silent"), u"/d/2024--19.jpg");
}

TEST_F(DateFormat, ReportsWhichDatesWereTaken)
{
    Subject subject = SubjectOf(u"plain");
    EXPECT_EQ(DateRules(u"yyyy", {{DateSource::PictureTaken, DateSource::Modified}}).front()->Apply(subject),
              Reason::None);
    EXPECT_TRUE(subject.datesTaken.Has(DateSource::Modified));
    EXPECT_FALSE(subject.datesTaken.Has(DateSource::PictureTaken));
    Subject dated = SubjectOf(u"dated");
    EXPECT_EQ(DateRules(u"yyyy", {{DateSource::PictureTaken, DateSource::Modified}}).front()->Apply(dated),
              Reason::None);
    EXPECT_EQ(DateRules(u"MM<Name>", {{DateSource::Created, DateSource::PictureTaken}}).front()->Apply(dated),
              Reason::None);
    EXPECT_TRUE(dated.datesTaken.Has(DateSource::PictureTaken));
    EXPECT_TRUE(dated.datesTaken.Has(DateSource::Created));
    EXPECT_FALSE(dated.datesTaken.Has(DateSource::Modified));
    Subject without = SubjectOf(u"dated");
    EXPECT_EQ(DateRules(u"yyyy", {{DateSource::PictureTaken}}).front()->Apply(without), Reason::None);
    EXPECT_TRUE(without.datesTaken.IsEmpty());
}

TEST_F(DateFormat, MovesIntoTheFoldersThatTheFormatNames)
{
    const CString expected = CString(u"/d/2024") + Slash + u"07" + Slash;
    EXPECT_EQ(Dated(u"yyyy<Folder>MM<Folder><Name>"), expected + u"dated.jpg");
    EXPECT_EQ(Dated(u"yyyy<Folder>MM<Folder>dd"), expected + u"19.jpg");
    EXPECT_EQ(Dated(u"<Make><Folder><Name> dd"), CString(u"/d/Testmaker") + Slash + u"dated 19.jpg");
}

TEST_F(DateFormat, DoesNotReplaceTokensInTheOldName)
{
    Subject subject = SubjectOf(u"dated");
    subject.name = u"<Folder><Make>";
    EXPECT_EQ(Apply(DateRules(u"yyyy<Folder>MM<Make> <Name>", {{DateSource::PictureTaken}}), subject),
              CString(u"/d/2024") + Slash + u"07Testmaker <Folder><Make>.jpg");
}

TEST_F(DateFormat, FormatsThatMakeNoSenseAreRefused)
{
    for (const char16_t* const text :
         {u"", u"<Name>", u"'", u"yyyy/MM", u"yyyy<Folder>", u"<Name>yy<Name>", u"<Name><Folder>yyyy", u"YYYY"})
        EXPECT_THROW((void)DateRules(text, {{DateSource::Modified}}), UsageError);
    EXPECT_THROW((void)DateRules(std::u16string_view(u"yy\0yy", 5), {{DateSource::Modified}}), UsageError);
}

TEST(DateSources, AreNamedInAList)
{
    EXPECT_EQ(ParseDateSources(u"picture,modified"), (std::vector{DateSource::PictureTaken, DateSource::Modified}));
    EXPECT_EQ(ParseDateSources(u"created"), std::vector{DateSource::Created});
    for (const char16_t* const text : {u"", u",", u"picture,", u"Picture", u"picture,picture", u"taken"})
        EXPECT_THROW((void)ParseDateSources(text), UsageError);
}
