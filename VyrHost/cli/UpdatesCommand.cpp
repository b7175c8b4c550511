#include <VyrHost/cli/Commands.h>

#include <VyrHost/cli/Messages.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/Output.h>
#include <VyrLibraryFuncs/xmlinfo/UpdatesFuncs.h>
#include <VyrLibraryUtils/DateTimeUtils.h>
#include <VyrLibraryUtils/PathUtils.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <CLI/CLI.hpp>

#include <limits>
#include <memory>
#include <string>
#include <utility>

namespace VyrHost::Cli {

namespace {

using VyrLibraryFuncs::UpdatesFuncs;
using VyrLibraryUtils::DateTimeUtils;
using VyrLibraryUtils::PathUtils;

/// When the update information was last read, for people.
std::string LastLook()
{
    const CString date = UpdatesFuncs::GetCheckedDate();
    return date.IsEmpty() ? std::string("never") : Text::SafeText(date);
}

/// Whether `days` have passed since the last check. An unknown or future date counts as long ago.
bool IsDue(int days)
{
    constexpr int mode = 1;
    constexpr std::uint32_t userLocale = 1024;
    const COleDateTime last = DateTimeUtils::GetParseDateTime(UpdatesFuncs::GetCheckedDate(), mode, 0, userLocale);
    if (last.GetStatus() != COleDateTime::valid)
        return true;
    const bool isInFuture = UpdatesFuncs::IsDateIntervalCheckForUpdates(0) == 0;
    return isInFuture || UpdatesFuncs::IsDateIntervalCheckForUpdates(days) == 1;
}

void WriteRelease(Ui::OutputBuffer& output)
{
    const std::pair<const char*, CString> lines[] = {
        {"Product:  ", UpdatesFuncs::GetProductName()}, {"Version:  ", UpdatesFuncs::GetVersion()},
        {"Edition:  ", UpdatesFuncs::GetEdition()},     {"Type:     ", UpdatesFuncs::GetType()},
        {"Bits:     ", UpdatesFuncs::GetPlatformBit()}, {"Details:  ", UpdatesFuncs::GetDetailsURL()},
        {"Download: ", UpdatesFuncs::GetDownloadURL()}};
    for (const auto& [name, value] : lines)
        if (!value.IsEmpty())
            output << name << Text::SafeText(value) << "\n";
    for (const UpdatesFuncs::UPDATEITEM& item : UpdatesFuncs::GetUpdateItemsList())
        output << "- " << Text::SafeText(item.description) << "\n";
}

/// Checks whether a newer release is offered.
class UpdatesCommand final : public Command
{
public:
    explicit UpdatesCommand(CLI::App& program);

    [[nodiscard]] int Run() const override;

private:
    int m_days = 0;
};

} // namespace

UpdatesCommand::UpdatesCommand(CLI::App& program)
    : Command(*program.add_subcommand("updates", "Tell whether a newer release is offered"))
{
    m_command.add_option("--every", m_days, "Look only if the last look was at least this many days ago, or never")
        ->type_name("DAYS")
        ->check(CLI::Range(0, std::numeric_limits<int>::max()).description(""));
    m_command.footer(ExitCode::table);
}

int UpdatesCommand::Run() const
{
    const CString address = UpdatesFuncs::GetCheckForUpdatesUrl();
    if (address.IsEmpty()) {
        Complain("no address of update information is set; set \"Url\" in the section \"Updates\" of " +
                 Text::SafeText(PathUtils::GetLocalDataUpdatesFilePath()));
        return ExitCode::blocked;
    }
    UpdatesFuncs::LoadCheckForUpdatesDate();
    Ui::OutputBuffer output;
    output << "Last look: " << LastLook() << "\n";
    if (m_command.count("--every") > 0 && !IsDue(m_days)) {
        output << "The next look is not due yet.\n";
        return Finish(output, ExitCode::success);
    }
    if (UpdatesFuncs::GetUpdatesInformation(address) == 0) {
        output.Flush();
        Complain("the update information at " + Text::SafeText(address) + " cannot be read");
        return ExitCode::blocked;
    }
    UpdatesFuncs::SaveCheckForUpdatesDate();
    WriteRelease(output);
    const bool isNewer = UpdatesFuncs::CheckForUpdates(UpdatesFuncs::GetVersion()) == 1;
    output << (isNewer ? "This is newer than this program.\n" : "This is not newer than this program.\n");
    return Finish(output, ExitCode::success);
}

std::unique_ptr<Command> AddUpdatesCommand(CLI::App& program)
{
    return std::make_unique<UpdatesCommand>(program);
}

} // namespace VyrHost::Cli
