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
#include <VyrHost/cli/UpdatesCommand.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/text/UsageError.h>
#include <VyrHost/ui/OutputBuffer.h>
#include <VyrLibraryFuncs/xmlinfo/ApplicationFuncs.h>
#include <VyrLibraryUtils/VersionUtils.h>
#include <VyrPlatform/documents/ComPointer.h>
#include <VyrPlatform/process/ComApartment.h>
#include <VyrPlatform/text/Encoding.h>

#include <CLI/CLI.hpp>

#include <stdexcept>
#include <string>

namespace VyrHost::Cli {

namespace {

using VyrLibraryUtils::VersionUtils;

/// Such as "vyr (VyrLibrary) 1.2.3", with the release stage behind it where the application file has one.
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
    return Finish(output, ExitCode::Success);
}

int RefuseCall(const std::string& what)
{
    Complain(what);
    return ExitCode::Usage;
}

int Fail(const std::string& what)
{
    Complain(what);
    return ExitCode::Blocked;
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
    const UpdatesCommand updates(program);
    const VyrPlatform::ComApartment apartment;
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
        if (updates.IsChosen())
            return updates.Run();
        return rename.Run();
    } catch (const CLI::CallForVersion&) {
        return WriteOut(VersionText() + "\n");
    } catch (const CLI::CallForHelp&) {
        return WriteOut(WrapHelp(program.help()));
    } catch (const CLI::ParseError& error) {
        return RefuseCall(std::string(error.what()) + "\nvyr --help and vyr COMMAND --help say more.");
    } catch (const Text::UsageError& error) {
        return RefuseCall(error.what());
    } catch (const _com_error& error) {
        CString text;
        text.Format(u"the system's reader of documents failed (0x%08x)", static_cast<std::uint32_t>(error.Error()));
        return Fail(Text::SafeText(text));
    } catch (const std::out_of_range& error) {
        // What the calendar's dates throw.
        return Fail(std::string("a date is outside the calendar: ") + error.what());
    }
}

} // namespace VyrHost::Cli
