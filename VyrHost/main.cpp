// Starts the program.
#include <VyrHost/cli/Program.h>
#include <VyrHostPlatform/Console.h>

int main(int count, char** arguments)
{
    return VyrHost::RunProgram(VyrHostPlatform::Console::GetArguments(count, arguments));
}
