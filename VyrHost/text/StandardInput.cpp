// Reads the standard input to its end.
#include <VyrHost/text/StandardInput.h>

#include <VyrHost/text/ErrorText.h>
#include <VyrHost/text/SafeText.h>
#include <VyrHost/text/UsageError.h>
#include <VyrHostPlatform/Console.h>

#include <string>

namespace VyrHost::Text {

void ReadStandardInput(const std::function<void(std::string_view piece)>& use)
{
    std::uint32_t error = 0;
    for (std::string piece = VyrHostPlatform::Console::ReadInput(error); !piece.empty();
         piece = VyrHostPlatform::Console::ReadInput(error))
        use(piece);
    if (error != 0)
        throw UsageError("cannot read the standard input: " + SafeText(ErrorText(error)));
}

} // namespace VyrHost::Text
