// Writes messages to the error stream.
#include <VyrHost/cli/Messages.h>

#include <VyrHost/text/Errors.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHostPlatform/Console.h>

namespace VyrHost::Cli {

void Complain(const std::string& what)
{
    VyrHostPlatform::Console::Write(VyrHostPlatform::Console::Stream::Error,
                                    "vyr: " + what + (what.ends_with('\n') ? "" : "\n"));
}

int Finish(Ui::OutputBuffer& output, int code)
{
    output.Flush();
    if (output.Error() == 0)
        return code;
    Complain("the output cannot be written: " + Text::SafeText(Text::ErrorText(output.Error())));
    return ExitCode::output;
}

} // namespace VyrHost::Cli
