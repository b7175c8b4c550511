// Opens the editor until the text makes sense.
#include <VyrHost/cli/EditNames.h>

#include <VyrHost/cli/Messages.h>
#include <VyrHost/rename/EditedList.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/text/UsageError.h>
#include <VyrHostPlatform/Console.h>
#include <VyrHostPlatform/Editor.h>
#include <VyrHostPlatform/Interrupt.h>

#include <string>

namespace VyrHost::Cli {

namespace {

namespace Console = VyrHostPlatform::Console;

/// Shows the mistake; false where nobody is there to mend it, or does not want to.
bool IsToBeMended(const std::string& mistake)
{
    if (!Console::IsInputTerminal())
        return false;
    Complain(mistake);
    // An interrupt must not end the program before it has named the file of the text.
    VyrHostPlatform::Interrupt::Catch();
    Console::Write(Console::Stream::Error, "Press Enter to edit the text again, or Ctrl-C to stop. ");
    std::uint32_t error = 0;
    return !Console::ReadInput(error).empty();
}

} // namespace

std::unordered_map<std::uint32_t, CString> EditNames(const std::vector<CString>& names)
{
    VyrHostPlatform::EditorFile file(Rename::TextForEditing(names));
    for (;;) {
        const VyrHostPlatform::EditedText edited = file.Edit();
        if (!edited.text)
            throw Text::UsageError(Text::SafeText(edited.error));
        try {
            return Rename::ParseEdited(*edited.text, names.size());
        } catch (const Text::UsageError& mistake) {
            if (!IsToBeMended(mistake.what()))
                throw Text::UsageError(std::string(mistake.what()) + "\nThe edited text is kept in " +
                                       Text::SafeText(file.Keep()));
        }
    }
}

} // namespace VyrHost::Cli
