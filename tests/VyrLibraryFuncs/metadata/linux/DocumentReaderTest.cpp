// Real documents of all kinds, written and then read by an independent program.
#include <tests/support/DocumentCorpus.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <VyrLibraryFuncs/metadata/OfficePropertyFuncs.h>
#include <VyrPlatform/WinTypes.h>

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <memory>
#include <set>
#include <string>

using VyrLibraryFuncs::OfficePropertyFuncs;
using VyrTests::CorpusDocument;

namespace {

constexpr GUID officeOpenXml{0x993BE281, 0x6695, 0x4BA5, {0x8A, 0x2A, 0x7A, 0xAC, 0xBF, 0xAA, 0xB6, 0x9E}};

/// The output of the command.
std::string OutputOf(const std::string& command)
{
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), &pclose);
    std::string output;
    std::array<char, 4'096> piece;
    while (const std::size_t count = pipe ? std::fread(piece.data(), 1, piece.size(), pipe.get()) : 0)
        output.append(piece.data(), count);
    return output;
}

/// The lines of the archive's list without the members that keep its properties.
std::string OtherMembers(const std::string& path)
{
    return OutputOf("unzip -v '" + path + "' | grep -v -e 'docProps/core.xml$' -e '_rels/.rels$' -e " +
                    "'Content_Types' -e ' files$' -e '^Archive:'");
}

} // namespace

TEST(DocumentReader, ShowsWrittenPropertiesOfIntactDocuments)
{
    const std::vector<CorpusDocument> corpus = VyrTests::ReadDocumentCorpus();
    if (corpus.empty())
        GTEST_SKIP() << "VYR_CORPUS names no folder with documents";
    const VyrTests::ScratchFolder scratch;
    const std::array<std::u16string, 6> texts = {u"Title Größe", u"Subject", u"Author", u"Keys", u"Notes", u"Last"};
    constexpr std::array<std::uint32_t, 6> ids = {2, 3, 4, 5, 6, 8};
    std::set<std::string> rows;
    for (const CorpusDocument& document : corpus) {
        // The program calls properties by the prefix of the set's own element, which has none here.
        if (document.state != "sound" || document.name == "spreadsheet_49273.xlsx")
            continue;
        const std::u16string name(document.name.begin(), document.name.end());
        const CString path = scratch.WriteFile(name, document.bytes);
        const std::string native = VyrTests::ToStdPath(path).string();
        const bool isArchive = document.kind == "zip";
        const std::string members = isArchive ? OtherMembers(native) : std::string();
        for (std::size_t index = 0; index < ids.size(); ++index) {
            std::u16string text = texts[index];
            PROPVARIANT value{};
            value.vt = VT_LPWSTR;
            value.pwszVal = text.data();
            EXPECT_EQ(OfficePropertyFuncs::SetDumpProps(path, ids[index], &value, officeOpenXml), 1) << document.name;
        }
        rows.insert(document.name + "\tTitle Größe\tSubject\tKeys\tLast\t" +
                    (isArchive ? "-\tAuthor\t-\tNotes\n" : "Author\t-\tNotes\t-\n"));
        if (isArchive) {
            EXPECT_EQ(OtherMembers(native), members) << document.name;
            EXPECT_EQ(OutputOf("unzip -tqq '" + native + "' 2>&1"), "") << document.name;
        }
    }
    std::string expected;
    for (const std::string& row : rows)
        expected += row;
    EXPECT_GT(rows.size(), 100U);
    // One run for all: the program takes long to start.
    const std::string shown =
        OutputOf("cd '" + VyrTests::ToStdPath(scratch.Path()).string() +
                 "' && exiftool -q -q -m -f -p '$FileName\t$Title\t$Subject\t$Keywords\t$LastModifiedBy\t" +
                 "$Author\t$Creator\t$Comments\t$Description' ./* | LC_ALL=C sort");
    EXPECT_EQ(shown, expected);
}

TEST(DocumentReader, DamagedArchivesAreRefusedUnchanged)
{
    const std::vector<CorpusDocument> corpus = VyrTests::ReadDocumentCorpus();
    if (corpus.empty())
        GTEST_SKIP() << "VYR_CORPUS names no folder with documents";
    const VyrTests::ScratchFolder scratch;
    for (const CorpusDocument& document : corpus) {
        if (document.kind != "zip" || document.state != "damaged")
            continue;
        const CString path = scratch.WriteFile(u"a.docx", document.bytes);
        std::u16string text = u"x";
        PROPVARIANT value{};
        value.vt = VT_LPWSTR;
        value.pwszVal = text.data();
        EXPECT_EQ(OfficePropertyFuncs::SetDumpProps(path, 2, &value, officeOpenXml), 0) << document.name;
        EXPECT_TRUE(scratch.ReadFile(u"a.docx") == document.bytes) << document.name;
    }
}
