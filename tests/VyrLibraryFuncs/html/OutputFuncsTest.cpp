// The generator text has the version of this program, which tests/CMakeLists.txt sets.
#include <VyrLibraryFuncs/html/OutputFuncs.h>

#include <gtest/gtest.h>

#include <limits>

using VyrLibraryFuncs::OutputFuncs;

namespace {

/// Puts the settings back that a test changes.
class KeptOutputSettings
{
public:
    KeptOutputSettings() = default;
    KeptOutputSettings(const KeptOutputSettings&) = delete;
    KeptOutputSettings& operator=(const KeptOutputSettings&) = delete;
    ~KeptOutputSettings()
    {
        OutputFuncs::SetOutputFilePath(m_path);
        OutputFuncs::SetOutputFilterIndex(m_index);
    }

private:
    CString m_path = OutputFuncs::GetOutputFilePath();
    int m_index = OutputFuncs::GetOutputFilterIndex();
};

} // namespace

TEST(OutputFuncs, SettingsAreEmptyAtFirst)
{
    EXPECT_EQ(OutputFuncs::GetOutputFilePath(), u"");
    EXPECT_EQ(OutputFuncs::GetOutputFilterIndex(), 0);
}

TEST(OutputFuncs, SettingsAreKeptAsTheyWereSet)
{
    const KeptOutputSettings kept;
    OutputFuncs::SetOutputFilePath(u"no such folder/\"report\".html");
    OutputFuncs::SetOutputFilterIndex(-7);
    EXPECT_EQ(OutputFuncs::GetOutputFilePath(), u"no such folder/\"report\".html");
    EXPECT_EQ(OutputFuncs::GetOutputFilterIndex(), -7);
}

TEST(OutputFuncs, GetterReturnsACopy)
{
    const KeptOutputSettings kept;
    OutputFuncs::SetOutputFilePath(u"a.html");
    CString path = OutputFuncs::GetOutputFilePath();
    path += u".bak";
    EXPECT_EQ(OutputFuncs::GetOutputFilePath(), u"a.html");
}

TEST(OutputFuncs, GeneratorIsProductNameAndProductVersion)
{
    EXPECT_EQ(OutputFuncs::GetGeneratorOutputString(), u"Library tésts 3.1 preview");
}

TEST(OutputFuncs, GeneratorOfANameHasTheProductVersionBehindIt)
{
    EXPECT_EQ(OutputFuncs::GetGeneratorOutputString(u"My %s"), u"My %s 3.1 preview");
    EXPECT_EQ(OutputFuncs::GetGeneratorOutputString(u""), u" 3.1 preview");
}

TEST(OutputFuncs, SizeChoicesOutOfRangeAreTheLargestPreset)
{
    EXPECT_EQ(OutputFuncs::GetPropertySize(0, 7), 0);
    EXPECT_EQ(OutputFuncs::GetPropertySize(1, 7), 1024);
    EXPECT_EQ(OutputFuncs::GetPropertySize(2, 7), 800);
    EXPECT_EQ(OutputFuncs::GetPropertySize(3, 7), 640);
    EXPECT_EQ(OutputFuncs::GetPropertySize(4, 7), 7);
    EXPECT_EQ(OutputFuncs::GetPropertySize(4, 0), 0);
    EXPECT_EQ(OutputFuncs::GetPropertySize(4, -7), -7);
    for (const int choice : {5, -1, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()})
        EXPECT_EQ(OutputFuncs::GetPropertySize(choice, 7), 1024) << choice;
}

TEST(OutputFuncs, DialogWidthIsAutoUnlessPositive)
{
    EXPECT_EQ(OutputFuncs::GetDialogPropertyWidth(0), u"auto");
    EXPECT_EQ(OutputFuncs::GetDialogPropertyWidth(-1), u"auto");
    EXPECT_EQ(OutputFuncs::GetDialogPropertyWidth(std::numeric_limits<int>::min()), u"auto");
    EXPECT_EQ(OutputFuncs::GetDialogPropertyWidth(1), u"1");
    EXPECT_EQ(OutputFuncs::GetDialogPropertyWidth(std::numeric_limits<int>::max()), u"2147483647");
}
