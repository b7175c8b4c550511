// Declares the options of pages for a browser, and writes a page as they say.
#include <VyrHost/cli/ReportOptions.h>

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/reports/RecordReport.h>
#include <VyrHost/reports/ReportFile.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/SafeText.h>
#include <VyrPlatform/text/Encoding.h>

#include <CLI/CLI.hpp>

namespace VyrHost::Cli {

namespace {

constexpr const char* group = "A page for a browser";

} // namespace

ReportOptions::ReportOptions(CLI::App& command) : m_command(command)
{
    const auto add = [&](const char* name, std::optional<std::string>& place, const char* type, const char* help) {
        command
            .add_option_function<std::string>(
                name, [&place](const std::string& text) { place = text; }, help)
            ->type_name(type)
            ->group(group);
    };
    add("--html", m_file, "FILE", "Write the list as a page for a browser, which sorts and searches it");
    command.add_flag("--overwrite", m_mayReplace, "Replace a page that exists already")->group(group);
    add("--design", m_design, "NAME", "The page's design: plain (the usual one), cards or print");
    add("--designs", m_designs, "FILE", "Take designs from a design document of your own");
}

void ReportOptions::Check() const
{
    constexpr DependentOption dependent[] = {
        {"--overwrite", "--html"}, {"--design", "--html"}, {"--designs", "--html"}};
    CheckOptionPairs(m_command, {}, dependent);
    if (!m_file)
        return;
    Reports::CheckReportFile(Path(), m_mayReplace);
    static_cast<void>(ChosenDesign());
}

int ReportOptions::Write(const Ui::RecordTable& table, const std::string& total, int code) const
{
    const Reports::ReportText text{VyrPlatform::Encoding::FromUtf8("vyr " + m_command.get_name()),
                                   VyrPlatform::Encoding::FromUtf8(total)};
    const Reports::Design design = ChosenDesign();
    const std::uint32_t error = Reports::WriteReportFile(Path(), m_mayReplace, [&](const Reports::TakePiece& take) {
        Reports::WriteRecordReport(take, table, text, design);
    });
    if (error == 0)
        return code;
    Complain("the page " + Text::SafeText(Path()) + " cannot be written: " + Text::SafeText(Text::ErrorText(error)));
    return ExitCode::output;
}

CString ReportOptions::Path() const
{
    return FromParser(*m_file);
}

Reports::Design ReportOptions::ChosenDesign() const
{
    const CString path = m_designs ? FromParser(*m_designs) : Reports::ShippedDesignsPath();
    const CString name = m_design ? FromParser(*m_design) : CString();
    return Reports::ChooseDesign(Reports::ReadDesigns(path, "--designs"), name);
}

} // namespace VyrHost::Cli
