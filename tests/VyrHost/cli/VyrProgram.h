// For tests: the program vyr in a folder of its own.
#pragma once

#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/text/Encoding.h>

#include <tests/support/ChildProcess.h>
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace VyrTests {

/// Runs vyr with a scratch folder as its current folder.
class VyrProgram : public testing::Test
{
protected:
    ProgramResult Run(std::vector<CString> arguments, const std::string& input = {}) const
    {
        return RunProgram(CallOf(std::move(arguments), input));
    }

    /// The call of the program, for tests that do not just run it to its end.
    ProgramCall CallOf(std::vector<CString> arguments, const std::string& input = {}) const
    {
        ProgramCall call;
        call.program = BesideThisProgram(u"vyr");
        call.arguments = std::move(arguments);
        call.input = input;
        call.folder = m_folder.Path();
        call.environment = m_environment;
        call.environment.try_emplace(u"VYR_JOURNAL_DIR", m_journal.Path(u"journal"));
        return call;
    }

    /// "vyr rename" and `arguments`.
    ProgramResult Rename(const std::vector<CString>& arguments, const std::string& input = {}) const
    {
        std::vector<CString> all = {u"rename"};
        for (const CString& argument : arguments)
            all.push_back(argument);
        return Run(std::move(all), input);
    }

    /// How many changes the program makes before its own begin: a sanitizer makes some.
    [[nodiscard]] int FirstOwnChange() const { return CountChanges(CallOf({u"--version"})); }

    /// Writes files of these names, each with its name as content.
    void WriteNamed(const std::vector<std::u16string_view>& names) const
    {
        for (const std::u16string_view name : names)
            m_folder.WriteFile(name, VyrPlatform::Encoding::ToUtf8(name));
    }

    /// All files in the folder and below it: their paths, with slashes, and contents.
    [[nodiscard]] std::map<std::string, std::string> Files() const
    {
        std::map<std::string, std::string> files;
        const std::filesystem::path root = ToStdPath(m_folder.Path());
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
            if (!entry.is_regular_file())
                continue;
            const std::u8string name = entry.path().lexically_relative(root).generic_u8string();
            const std::string text(name.begin(), name.end());
            files.emplace(text, m_folder.ReadFile(VyrPlatform::Encoding::FromUtf8(text).View()));
        }
        return files;
    }

    ScratchFolder m_folder;
    /// Variables of the program's environment that differ from the test's own.
    std::map<CString, std::optional<CString>> m_environment;

private:
    ScratchFolder m_journal;
};

} // namespace VyrTests
