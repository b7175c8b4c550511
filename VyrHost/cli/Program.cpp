// Finds the command in the arguments, runs it, and says what is wrong with the call.
#include <VyrHost/cli/Program.h>

#include <VyrHost/cli/ArgumentText.h>
#include <VyrHost/cli/AttributesCommand.h>
#include <VyrHost/cli/ExitCode.h>
#include <VyrHost/cli/HelpText.h>
#include <VyrHost/cli/InventoryCommands.h>
#include <VyrHost/cli/ListCommand.h>
#include <VyrHost/cli/Messages.h>
#include <VyrHost/cli/RecoverCommand.h>
#include <VyrHost/cli/RenameCommand.h>
#include <VyrHost/cli/TimesCommand.h>
#include <VyrHost/cli/TransferCommand.h>
#include <VyrHost/cli/UnblockCommand.h>
#include <VyrHost/cli/UndoCommand.h>
#include <VyrHost/cli/UnknownWords.h>
#include <VyrHost/text/UsageError.h>
#include <VyrHost/ui/OutputBuffer.h>
#include <VyrLibraryUtils/VersionUtils.h>
#include <VyrPlatform/text/Encoding.h>

#include <CLI/CLI.hpp>

#include <string>

namespace VyrHost::Cli {

namespace {

using VyrLibraryUtils::VersionUtils;

std::string VersionText()
{
    return VyrPlatform::Encoding::ToUtf8(
        CString::Join({u"vyr (", VersionUtils::GetProductName(), u") ", VersionUtils::GetStringProductVersion()}));
}

int WriteOut(const std::string& text)
{
    Ui::OutputBuffer output;
    output << text;
    return Finish(output, ExitCode::Success);
}

int RefuseCall(const std::string& what)
{
    Complain(what);
    return ExitCode::Usage;
}

} // namespace

int RunProgram(const std::vector<CString>& arguments)
{
    CLI::App program("Renames files and folders by rules, copies and moves folders, and shows the result first.",
                     "vyr");
    program.set_version_flag("--version", VersionText);
    program.allow_windows_style_options(false);
    program.require_subcommand(1);
    program.get_formatter()->column_width(HelpColumn);
    const RenameCommand rename(program);
    const ListCommand list(program);
    const TimesCommand times(program);
    const AttributesCommand attributes(program);
    const UnblockCommand unblock(program);
    const TransferCommand copy(program, FolderCopy::TransferAction::Copy);
    const TransferCommand move(program, FolderCopy::TransferAction::Move);
    const UndoCommand undo(program);
    const RecoverCommand recover(program);
    const ProgramsCommand programs(program);
    const BrowsersCommand browsers(program);
    try {
        const std::vector<Argument> cut = CutArguments(program, arguments);
        RefuseUnknownWords(program, CommandOf(program, arguments), cut);
        program.parse(ToParser(cut));
        if (list.IsChosen())
            return list.Run();
        if (times.IsChosen())
            return times.Run();
        if (attributes.IsChosen())
            return attributes.Run();
        if (unblock.IsChosen())
            return unblock.Run();
        if (copy.IsChosen())
            return copy.Run();
        if (move.IsChosen())
            return move.Run();
        if (undo.IsChosen())
            return undo.Run();
        if (recover.IsChosen())
            return recover.Run();
        if (programs.IsChosen())
            return programs.Run();
        if (browsers.IsChosen())
            return browsers.Run();
        return rename.Run();
    } catch (const CLI::CallForVersion&) {
        return WriteOut(VersionText() + "\n");
    } catch (const CLI::CallForHelp&) {
        return WriteOut(WrapHelp(program.help()));
    } catch (const CLI::ParseError& error) {
        return RefuseCall(std::string(error.what()) + "\nvyr --help and vyr COMMAND --help say more.");
    } catch (const Text::UsageError& error) {
        return RefuseCall(error.what());
    }
}

} // namespace VyrHost::Cli
