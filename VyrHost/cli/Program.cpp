// Parses the arguments, runs the command, and reports errors of the call.
#include <VyrHost/cli/Program.h>

#include <VyrHost/cli/Arguments.h>
#include <VyrHost/cli/Commands.h>
#include <VyrHost/cli/Help.h>
#include <VyrHost/cli/HelpTopics.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/text/Errors.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/ui/Output.h>
#include <VyrLibraryFuncs/xmlinfo/ApplicationFuncs.h>
#include <VyrLibraryUtils/VersionUtils.h>
#include <VyrPlatform/documents/ComPointer.h>
#include <VyrPlatform/process/ComApartment.h>
#include <VyrPlatform/process/Process.h>
#include <VyrPlatform/text/Encoding.h>

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <stdexcept>
#include <string>

namespace VyrHost::Cli {

namespace {

using VyrLibraryUtils::VersionUtils;

/// Such as "vyr (VyrLibrary) 1.2.3", followed by the release stage if the application file has one.
std::string VersionText()
{
    const CString stage = VyrLibraryFuncs::ApplicationFuncs::GetLocalDataApplicationVersion();
    return Text::SafeText(
        CString::Join({u"vyr (", VersionUtils::GetProductName(), u") ", VersionUtils::GetStringProductVersion(),
                       stage.IsEmpty() ? u"" : u" ", stage}));
}

int WriteOut(const std::string& text)
{
    Ui::OutputBuffer output;
    output << text;
    return Finish(output, ExitCode::success);
}

int RefuseCall(const std::string& what)
{
    Complain(what);
    return ExitCode::usage;
}

/// If the current folder was removed, relative paths have no meaning.
void RequireCurrentFolder()
{
    if (VyrPlatform::Process::GetCurrentFolder().IsEmpty())
        throw Text::UsageError("the current folder does not exist any more; change to one that does");
}

int Fail(const std::string& what)
{
    Complain(what);
    return ExitCode::blocked;
}

/// The message for a call that the parser refuses.
std::string FaultOf(const CLI::App& command, const CLI::ParseError& error)
{
    for (const CLI::Option* const option : command.get_options()) {
        const int most = option->get_items_expected_max();
        if (option->get_multi_option_policy() == CLI::MultiOptionPolicy::Throw && most > 0 &&
            option->count() > static_cast<std::size_t>(most))
            return option->get_name() + " is given more than once";
    }
    return error.what();
}

} // namespace

int RunProgram(const std::vector<CString>& arguments)
{
    CLI::App program("Renames files and folders by rules, copies and moves folders, and shows the result first.",
                     "vyr");
    program.set_version_flag("--version", VersionText);
    program.allow_windows_style_options(false);
    program.require_subcommand(1);
    program.get_formatter()->column_width(helpColumn);
    const std::vector<std::unique_ptr<Command>> commands = AddCommands(program);
    const VyrPlatform::ComApartment apartment;
    try {
        const std::vector<Argument> cut = CutArguments(program, arguments);
        RefuseUnknownWords(program, CommandOf(program, arguments), cut);
        program.parse(ToParser(cut));
        const auto chosen = std::find_if(commands.begin(), commands.end(),
                                         [](const std::unique_ptr<Command>& command) { return command->IsChosen(); });
        RequireCurrentFolder();
        return (*chosen)->Run();
    } catch (const CLI::CallForVersion&) {
        return WriteOut(VersionText() + "\n");
    } catch (const CLI::CallForHelp&) {
        const std::string text = ShortHelp(CommandOf(program, arguments).get_name());
        return WriteOut(text.empty() ? WrapHelp(program.help()) : text);
    } catch (const CLI::ParseError& error) {
        return RefuseCall(FaultOf(CommandOf(program, arguments), error) +
                          "\nvyr --help and vyr COMMAND --help say more.");
    } catch (const Text::UsageError& error) {
        return RefuseCall(error.what());
    } catch (const _com_error& error) {
        CString text;
        text.Format(u"the system's reader of documents failed (0x%08x)", static_cast<std::uint32_t>(error.Error()));
        return Fail(Text::SafeText(text));
    } catch (const std::out_of_range& error) {
        // Thrown by the calendar's dates.
        return Fail(std::string("a date is outside the calendar: ") + error.what());
    }
}

} // namespace VyrHost::Cli
