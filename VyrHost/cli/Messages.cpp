// Words messages for the error stream.
#include <VyrHost/cli/Messages.h>

#include <VyrHost/output/SafeText.h>
#include <VyrPlatform/Console.h>

namespace VyrHost {

void Complain(const std::string& what)
{
    VyrPlatform::Console::Write(VyrPlatform::Console::Stream::Error, "vyr: " + what + "\n");
}

std::string CutOffNotice(const BatchInformation& batch)
{
    return "batch " + std::to_string(batch.number) + " of " + SafeText(batch.started) +
           " was cut off; \"vyr recover\" ends it";
}

} // namespace VyrHost
