// Words what is wrong with the value of an option.
#include <VyrHost/UsageError.h>

#include <VyrHost/output/SafeText.h>

namespace VyrHost {

void RefuseValue(const std::string& option, std::u16string_view value, const std::string& reason)
{
    throw UsageError(option + " '" + SafeText(value) + "': " + reason);
}

} // namespace VyrHost
