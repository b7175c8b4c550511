// Starts the program.
#include <VyrHost/cli/Program.h>
#include <VyrPlatform/Console.h>

int main(int count, char** arguments)
{
    return VyrHost::RunProgram(VyrPlatform::Console::GetArguments(count, arguments));
}
