// Tests of the program: documents with a damaged stream that is not the one to be changed.
#include "../VyrProgram.h"

#include <gmock/gmock.h>
#include <tests/support/CompoundDocument.h>

#include <cstdint>
#include <string>
#include <string_view>

using namespace VyrTests;
using testing::HasSubstr;

namespace {

using DamagedStream = VyrProgram;

/// The directory says more of the stream "Body" than there is.
std::string Document()
{
    CompoundDocument document;
    document.streams[summaryName] = BuildSummary({{1, StoredCodePage(1252)}, {2, StoredByteText("Old")}});
    document.streams[u"Body"] = std::string(100, 'b');
    std::string bytes = document.Bytes();
    constexpr std::string_view name("B\0o\0d\0y\0", 8);
    constexpr std::size_t placeOfSize = 120;
    return bytes.replace(bytes.find(name) + placeOfSize, 8, LittleEndian(std::uint64_t{1'000}));
}

} // namespace

TEST_F(DamagedStream, StaysAsItIsWithoutAWordOfTheLibrary)
{
    const std::string before = Document();
    m_folder.WriteFile(u"a.doc", before);
    const ProgramResult changed = Run({u"properties", u"--set=title=New", u"a.doc", u"--apply"});
    EXPECT_EQ(changed.exitCode, 0) << changed.output;
    EXPECT_EQ(changed.errors, "");
    EXPECT_THAT(Run({u"properties", u"a.doc", u"--json"}).output, HasSubstr("\"title\":\"New\""));
    EXPECT_EQ(Run({u"undo"}).exitCode, 0);
    EXPECT_EQ(m_folder.ReadFile(u"a.doc"), before);
}
