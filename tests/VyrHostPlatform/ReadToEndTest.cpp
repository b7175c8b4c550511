// Whole files are read; endless devices and missing files give errors.
#include <VyrHostPlatform/ReadToEnd.h>

#include <VyrPlatform/process/Process.h>
#include <tests/support/ScratchFolder.h>

#include <gtest/gtest.h>

#include <string>

using VyrHostPlatform::ReadToEnd;
using VyrTests::ScratchFolder;

TEST(ReadToEnd, GivesTheBytesOfAFile)
{
    const ScratchFolder scratch;
    std::string content;
    for (int number = 0; number < 200'000; ++number)
        content += static_cast<char>(number * 31 % 256);
    for (const std::string& bytes : {std::string(), std::string("a\0b\r\n\x1A c", 9), content, content + content}) {
        std::uint32_t error = 1;
        EXPECT_EQ(ReadToEnd(scratch.WriteFile(u"file", bytes), error), bytes);
        EXPECT_EQ(error, 0u);
    }
}

TEST(ReadToEnd, GivesTheReasonOfAFailure)
{
    const ScratchFolder scratch;
    scratch.MakeFolder(u"folder");
    for (const CString& path : {scratch.Path(u"missing"), scratch.Path(u"folder"), CString()}) {
        std::uint32_t error = 0;
        EXPECT_EQ(ReadToEnd(path, error), std::nullopt);
        EXPECT_NE(error, 0u);
        EXPECT_FALSE(VyrPlatform::Process::GetErrorMessage(error).IsEmpty());
    }
}
