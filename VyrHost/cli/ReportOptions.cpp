// Declares the options for pages, and writes a page by them.
#include <VyrHost/cli/ReportOptions.h>

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/Options.h>
#include <VyrHost/model/FolderSet.h>
#include <VyrHost/reports/RecordReport.h>
#include <VyrHost/reports/ReportFile.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/SafeText.h>
#include <VyrPlatform/files/FullPath.h>
#include <VyrPlatform/text/Encoding.h>

#include <CLI/CLI.hpp>

namespace VyrHost::Cli {

namespace {

constexpr const char* group = "A page for a browser";

} // namespace

ReportOptions::ReportOptions(CLI::App& command, RowsAbout rows) : m_command(command)
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
    if (rows == RowsAbout::Files)
        command
            .add_flag("--thumbnails", m_hasThumbnails,
                      "Show a thumbnail of each picture: the one in its tags, else the picture itself by a link")
            ->group(group);
}

void ReportOptions::Check() const
{
    constexpr DependentOption dependent[] = {
        {"--overwrite", "--html"}, {"--design", "--html"}, {"--designs", "--html"}};
    CheckOptionPairs(m_command, {}, dependent);
    if (m_hasThumbnails && !m_file)
        throw Text::UsageError(WithoutEffect("--thumbnails", "--html"));
    if (!m_file)
        return;
    Reports::CheckReportFile(Path(), m_mayReplace);
    static_cast<void>(ChosenDesign());
}

int ReportOptions::Write(const Ui::RecordTable& table, const std::string& total, int code) const
{
    const Reports::ReportText text{VyrPlatform::Encoding::FromUtf8(table.title),
                                   VyrPlatform::Encoding::FromUtf8(total)};
    const Reports::Design design = ChosenDesign();
    Reports::PictureOf pictureOf;
    if (m_hasThumbnails)
        pictureOf = [&table, folder = CString(Model::FolderPart(VyrPlatform::GetFullPath(Path())))](std::size_t row) {
            return Reports::ThumbnailOf(table.fileOf(row), folder);
        };
    const std::uint32_t error = Reports::WriteReportFile(Path(), m_mayReplace, [&](const Reports::TakePiece& take) {
        Reports::WriteRecordReport(take, table, text, design, pictureOf);
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
