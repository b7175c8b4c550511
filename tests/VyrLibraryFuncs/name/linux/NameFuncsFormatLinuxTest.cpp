// How often a picture is opened for the tokens of a format, counted by the system.
#include <VyrLibraryFuncs/name/NameFuncs.h>

#include <tests/support/PictureBuilder.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>
#include <tests/support/Describe.h>

#include <sys/inotify.h>
#include <unistd.h>

#include <cstddef>

using VyrLibraryFuncs::NameFuncs;
using VyrTests::ScratchFolder;

namespace {

/// Counts how often a file is opened and closed. The two alternate, since equal events in a row may count as one.
class OpenCount
{
public:
    explicit OpenCount(const CString& path) : m_events(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        EXPECT_GE(inotify_add_watch(m_events, VyrTests::ToStdPath(path).c_str(), IN_OPEN | IN_CLOSE), 0);
    }
    OpenCount(const OpenCount&) = delete;
    OpenCount& operator=(const OpenCount&) = delete;
    ~OpenCount() { close(m_events); }

    /// The number since the last call.
    [[nodiscard]] std::size_t Take() const
    {
        inotify_event event = {};
        std::size_t count = 0;
        while (read(m_events, &event, sizeof event) == static_cast<ssize_t>(sizeof event))
            count += (event.mask & IN_OPEN) ? 1U : 0U;
        return count;
    }

private:
    int m_events;
};

} // namespace

TEST(NameFuncsFormatLinux, APictureIsOpenedOnlyForTokensInTheFormat)
{
    const ScratchFolder scratch;
    VyrTests::PictureFacts facts;
    facts.make = "Maker";
    facts.model = "Model";
    const CString picture = scratch.WriteFile(u"picture.jpg", VyrTests::BuildJpeg(facts));
    const OpenCount opened(picture);
    for (const char16_t* const format : {u"", u"yyyy<Folder>x", u"<make><MODEL>", u"Make Model", u"<Make", u"Model>"}) {
        EXPECT_EQ(NameFuncs::GetExifFormat(picture, format), format);
        EXPECT_EQ(opened.Take(), 0U);
    }
}

TEST(NameFuncsFormatLinux, APictureIsOpenedOnceForAllTokensOfAKind)
{
    const ScratchFolder scratch;
    VyrTests::PictureFacts facts;
    facts.make = "Maker";
    facts.model = "Model";
    const CString picture = scratch.WriteFile(u"picture.jpg", VyrTests::BuildJpeg(facts));
    const OpenCount opened(picture);
    for (const char16_t* const format : {u"<Make>", u"<Model>", u"<Make><Make>x<Make>", u"<Model><Model>"}) {
        EXPECT_NE(NameFuncs::GetExifFormat(picture, format), format);
        EXPECT_EQ(opened.Take(), 1U);
    }
    EXPECT_EQ(NameFuncs::GetExifFormat(picture, u"<Model><Make><Model><Make>"), u"ModelMakerModelMaker");
    EXPECT_EQ(opened.Take(), 2U);
}
