#include <VyrHost/cli/Program.h>
#include <VyrHostPlatform/Console.h>

int main(int count, char** arguments)
{
    return VyrHost::Cli::RunProgram(VyrHostPlatform::Console::GetArguments(count, arguments));
}
