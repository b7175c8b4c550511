// Finds the command of the user's editor.
#include <VyrHostPlatform/common/EditorCommand.h>

#include <VyrPlatform/process/Process.h>

namespace VyrHostPlatform {

using namespace VyrPlatform;

CString GetEditorCommand(const CString& usual)
{
    for (const char16_t* const name : {u"VISUAL", u"EDITOR"})
        if (const auto command = Process::GetEnvironment(name); command && !command->IsEmpty())
            return *command;
    return usual;
}

} // namespace VyrHostPlatform
