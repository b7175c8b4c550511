// Tests of the program: vyr properties, shown, previewed, applied, undone and recovered.
#include "VyrProgram.h"

#include <VyrPlatform/files/FileTimes.h>

#include <gmock/gmock.h>
#include <tests/support/CompoundDocument.h>
#include <tests/support/FileMoments.h>

#include <filesystem>
#include <map>

using namespace VyrTests;
using testing::HasSubstr;
using testing::Not;

namespace {

constexpr std::int64_t moment = 1'704'450'600; // 2024-01-05 10:30 UTC

class PropertiesCommand : public VyrProgram
{
protected:
    PropertiesCommand()
    {
        m_environment[u"TZ"] = u"UTC";
        m_environment[u"LC_ALL"] = u"C.UTF-8";
        m_environment[u"VYR_JOURNAL_DIR"] = m_kept.Path(u"journal");
    }

    static CompoundDocument Sample()
    {
        CompoundDocument document;
        document.streams[summaryName] =
            BuildSummary({{1, StoredCodePage(1252)},
                          {2, StoredByteText("Old title")},
                          {4, StoredByteText("Ann")},
                          {12, StoredTime(static_cast<std::uint64_t>(TicksOfUnixTime(moment)))}});
        document.streams[documentSummaryName] =
            BuildPropertySet({{documentFormatBytes, {{1, StoredCodePage(1252)}, {15, StoredByteText("Firm")}}}});
        document.streams[u"Body"] = std::string(20'000, 'b');
        return document;
    }
    std::string Place(std::u16string_view name, const CompoundDocument& document = Sample()) const
    {
        const std::string bytes = document.Bytes();
        StampFile(m_folder.WriteFile(name, bytes), TicksOfUnixTime(moment), TicksOfUnixTime(moment + 60));
        return bytes;
    }
    std::string TitleOf(std::u16string_view name) const
    {
        return ReadProperties(ReadStreams(m_folder.ReadFile(name))[summaryName])[2];
    }
    /// How many files the journal's folder keeps of documents.
    std::size_t KeptFiles() const
    {
        std::size_t count = 0;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(ToStdPath(m_kept.Path())))
            if (entry.is_regular_file() && entry.path().parent_path().extension() == ".kept")
                ++count;
        return count;
    }

    ScratchFolder m_kept;
};

} // namespace

TEST_F(PropertiesCommand, PropertiesAreListedForPeopleAndPrograms)
{
    Place(u"a.doc");
    m_folder.WriteFile(u"b.txt", "text");
    const ProgramResult table = Run({u"properties", u"a.doc", u"b.txt"});
    EXPECT_EQ(table.exitCode, 0) << table.errors;
    EXPECT_THAT(table.output, HasSubstr("Old title"));
    EXPECT_THAT(table.output, HasSubstr("1 document. 1 file is not a document."));
    const ProgramResult json = Run({u"properties", u"a.doc", u"--json"});
    EXPECT_THAT(json.output, HasSubstr("\"title\":\"Old title\",\"author\":\"Ann\""));
    EXPECT_THAT(json.output, HasSubstr("\"created\":\"2024-01-05T10:30:00+00:00\""));
    EXPECT_THAT(json.output, HasSubstr("\"others\":1"));
    const ProgramResult csv = Run({u"properties", u"a.doc", u"--csv", u"--columns", u"name,author,title"});
    EXPECT_THAT(csv.output, HasSubstr("name,author,title\r\na.doc,Ann,Old title\r\n"));
}

TEST_F(PropertiesCommand, TitleIsPreviewedAppliedUndoneAndRedone)
{
    const std::string before = Place(u"a.doc");
    const std::vector<CString> call{u"properties", u"--set", u"title=The <Name> of <Parent>", u"a.doc"};
    const std::string parent = ToStdPath(m_folder.Path()).filename().string();
    const std::string title = "The a of " + parent;
    const ProgramResult preview = Run(call);
    EXPECT_EQ(preview.exitCode, 0) << preview.errors;
    EXPECT_THAT(preview.output, HasSubstr("title \"Old title\" -> title \"" + title + "\""));
    EXPECT_THAT(preview.output, HasSubstr("This is a preview: nothing was changed.\n"));
    EXPECT_EQ(m_folder.ReadFile(u"a.doc"), before);
    EXPECT_EQ(KeptFiles(), 0U);

    std::vector<CString> apply = call;
    apply.emplace_back(u"--apply");
    const ProgramResult applied = Run(apply);
    EXPECT_EQ(applied.exitCode, 0) << applied.output << applied.errors;
    EXPECT_THAT(applied.output, HasSubstr("1 entry: 1 changed.\nThis was batch 1"));
    EXPECT_EQ(TitleOf(u"a.doc"), StoredByteText(title));
    EXPECT_EQ(VyrPlatform::FileTimes::GetModified(m_folder.Path(u"a.doc")), TicksOfUnixTime(moment));
    EXPECT_EQ(KeptFiles(), 1U);
    EXPECT_THAT(Run(apply).output, HasSubstr("1 entry: 1 unchanged."));

    const ProgramResult undone = Run({u"undo"});
    EXPECT_EQ(undone.exitCode, 0) << undone.output << undone.errors;
    EXPECT_EQ(m_folder.ReadFile(u"a.doc"), before);
    EXPECT_EQ(VyrPlatform::FileTimes::GetModified(m_folder.Path(u"a.doc")), TicksOfUnixTime(moment));
    const ProgramResult redone = Run({u"undo", u"2"});
    EXPECT_EQ(redone.exitCode, 0) << redone.output << redone.errors;
    EXPECT_EQ(TitleOf(u"a.doc"), StoredByteText(title));
    EXPECT_EQ(Run({u"undo"}).exitCode, 0);
    EXPECT_EQ(m_folder.ReadFile(u"a.doc"), before);
    EXPECT_EQ(Files().size(), 1U);
}

TEST_F(PropertiesCommand, AllAreClearedAndWhatIsNotTouchedIsSaid)
{
    const std::string before = Place(u"a.doc");
    const ProgramResult result = Run({u"properties", u"--clear-all", u"a.doc", u"--apply"});
    EXPECT_EQ(result.exitCode, 0) << result.errors;
    EXPECT_THAT(result.output, HasSubstr("title \"Old title\", author \"Ann\", created 2024-01-05 10:30:00, 1 other -> "
                                         "no properties"));
    EXPECT_THAT(result.output,
                HasSubstr("Texts, tracked changes, review comments with their authors, macros and thumbnails stay as "
                          "they are.\nSo do the names of who saved a document last that old Word and PowerPoint files "
                          "keep outside its properties.\n"));
    const std::string after = m_folder.ReadFile(u"a.doc");
    for (const char* const gone : {"Old title", "Ann", "Firm"})
        EXPECT_EQ(after.find(gone), after.npos) << gone;
    EXPECT_EQ(Run({u"undo"}).exitCode, 0);
    EXPECT_EQ(m_folder.ReadFile(u"a.doc"), before);
}

TEST_F(PropertiesCommand, WhatAnotherProgramHasWrittenSinceStays)
{
    Place(u"a.doc");
    const std::string mine = Place(u"b.doc");
    ASSERT_EQ(Run({u"properties", u"--set=title=New", u"a.doc", u"b.doc", u"--apply"}).exitCode, 0);
    CompoundDocument edited = Sample();
    edited.streams[u"Body"] = "written since";
    const std::string other = Place(u"a.doc", edited);
    const ProgramResult undone = Run({u"undo"});
    EXPECT_EQ(undone.exitCode, 1);
    EXPECT_THAT(undone.output, HasSubstr("refused: another program has changed it since"));
    EXPECT_EQ(m_folder.ReadFile(u"a.doc"), other);
    EXPECT_EQ(m_folder.ReadFile(u"b.doc"), mine);
}

TEST_F(PropertiesCommand, WhatCannotBeChangedIsSaidInItsRowAndStays)
{
    CompoundDocument encrypted = Sample();
    encrypted.streams[u"EncryptedPackage"] = "x";
    CompoundDocument isSigned = Sample();
    isSigned.streams[u"_signatures"] = "x";
    CompoundDocument bare = Sample();
    bare.streams.erase(summaryName);
    CompoundDocument noCodePage = Sample();
    noCodePage.streams[summaryName] = BuildSummary({{2, StoredByteText("x")}});
    Place(u"encrypted.doc", encrypted);
    Place(u"signed.doc", isSigned);
    Place(u"bare.doc", bare);
    Place(u"pageless.doc", noCodePage);
    m_folder.WriteFile(u"cut.doc", Sample().Bytes().substr(0, 700));
    m_folder.WriteFile(u"plain.txt", "text");
    m_folder.WriteFile(u"none.docx", "no archive");
    m_folder.MakeFolder(u"folder");
    const auto before = Files();
    const ProgramResult result =
        Run({u"properties", u"--set", u"title=New", u"--apply", u"encrypted.doc", u"signed.doc", u"bare.doc",
             u"pageless.doc", u"cut.doc", u"plain.txt", u"none.docx", u"missing.doc", u"folder"});
    EXPECT_EQ(result.exitCode, 1);
    EXPECT_THAT(result.output, HasSubstr("refused: it is encrypted"));
    EXPECT_THAT(result.output, HasSubstr("refused: it is signed, and the signature would no longer hold; "
                                         "--break-signature changes it all the same"));
    EXPECT_THAT(result.output, HasSubstr("refused: it has no summary information"));
    EXPECT_THAT(result.output, HasSubstr("refused: its properties do not say in which code page they are"));
    EXPECT_THAT(result.output, HasSubstr("refused: it is not a document whose properties are known"));
    EXPECT_THAT(result.output, HasSubstr("refused: it is a folder"));
    EXPECT_THAT(result.output, HasSubstr("9 entries: 9 refused."));
    EXPECT_EQ(Files(), before);
    EXPECT_EQ(Run({u"properties", u"--set=title=New", u"--break-signature", u"signed.doc", u"--apply"}).exitCode, 0);
    EXPECT_EQ(TitleOf(u"signed.doc"), StoredByteText("New"));
}

TEST_F(PropertiesCommand, WhatIsKeptGoesWithItsJournal)
{
    m_environment[u"VYR_KEEP_BATCHES"] = u"1";
    Place(u"a.doc");
    ASSERT_EQ(Run({u"properties", u"--set=title=One", u"a.doc", u"--apply"}).exitCode, 0);
    ASSERT_EQ(KeptFiles(), 1U);
    m_folder.WriteFile(u"b");
    ASSERT_EQ(Run({u"rename", u"--prefix=x", u"b", u"--apply"}).exitCode, 0);
    EXPECT_EQ(KeptFiles(), 0U);
}

TEST_F(PropertiesCommand, DatesAreSetInLocalTimeAndTakenBack)
{
    const std::string before = Place(u"a.doc");
    const ProgramResult set =
        Run({u"properties", u"--set=created=2001-02-03 04:05:06", u"--set=printed=2002-03-04", u"a.doc", u"--apply"});
    EXPECT_EQ(set.exitCode, 0) << set.output << set.errors;
    EXPECT_THAT(set.output, HasSubstr("created 2024-01-05 10:30:00, no printed -> "));
    EXPECT_THAT(set.output, HasSubstr("printed 2002-03-04 00:00:00, created 2001-02-03 04:05:06"));
    const ProgramResult json = Run({u"properties", u"a.doc", u"--json"});
    EXPECT_THAT(json.output, HasSubstr("\"created\":\"2001-02-03T04:05:06+00:00\""));
    EXPECT_THAT(json.output, HasSubstr("\"printed\":\"2002-03-04T00:00:00+00:00\""));
    EXPECT_THAT(Run({u"properties", u"--set=created=2001-02-03 04:05:06", u"a.doc", u"--apply"}).output,
                HasSubstr("1 entry: 1 unchanged."));
    EXPECT_EQ(Run({u"undo"}).exitCode, 0);
    EXPECT_EQ(m_folder.ReadFile(u"a.doc"), before);
}

TEST_F(PropertiesCommand, CallsThatMakeNoSenseAreRefused)
{
    Place(u"a.doc");
    const std::vector<std::vector<CString>> calls{{u"--set", u"title"},
                                                  {u"--set", u"titel=x"},
                                                  {u"--set", u"title="},
                                                  {u"--set", u"created=soon"},
                                                  {u"--set", u"created=10:30"},
                                                  {u"--set", u"created=2020-02-30"},
                                                  {u"--set", u"created=1600-12-30"},
                                                  {u"--set", u"created=0100-01-01"},
                                                  {u"--set", u"created=2020-01-01", u"--clear", u"created"},
                                                  {u"--set", u"thumbnail=x"},
                                                  {u"--set", u"revision=new"},
                                                  {u"--set", u"title=<Nmae>"},
                                                  {u"--clear", u"titel"},
                                                  {u"--clear", u"title,title"},
                                                  {u"--clear", u""},
                                                  {u"--set", u"title=x", u"--clear", u"title"},
                                                  {u"--apply"},
                                                  {u"--break-signature"},
                                                  {u"--set", u"title=x", u"--csv"}};
    for (std::vector<CString> arguments : calls) {
        arguments.insert(arguments.begin(), u"properties");
        arguments.emplace_back(u"a.doc");
        const ProgramResult result = Run(arguments);
        EXPECT_EQ(result.exitCode, 2) << result.output;
        EXPECT_THAT(result.errors, Not(testing::IsEmpty()));
    }
    EXPECT_EQ(Run({u"properties"}).exitCode, 2);
}

TEST_F(PropertiesCommand, MisspeltPropertyGetsASuggestion)
{
    Place(u"a.doc");
    const auto errorsOf = [this](const CString& option, const CString& value) {
        const ProgramResult result = Run({u"properties", option, value, u"a.doc"});
        EXPECT_EQ(result.exitCode, 2) << result.output;
        return result.errors;
    };
    EXPECT_THAT(errorsOf(u"--set", u"titel=x"), HasSubstr("created, saved, printed; did you mean title?\n"));
    EXPECT_THAT(errorsOf(u"--set", u"Lastauthr=x"), HasSubstr("; did you mean lastAuthor?\n"));
    EXPECT_THAT(errorsOf(u"--set", u"title"), Not(HasSubstr("did you mean")));
    EXPECT_THAT(errorsOf(u"--set", u"colour=x"), Not(HasSubstr("did you mean")));
    EXPECT_THAT(errorsOf(u"--clear", u"author,titel"), HasSubstr("separated by commas; did you mean title?\n"));
    EXPECT_THAT(errorsOf(u"--clear", u"thumbnial"), HasSubstr("; did you mean thumbnail?\n"));
}
