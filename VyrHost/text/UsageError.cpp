// Words what is wrong with the value of an option.
#include <VyrHost/text/UsageError.h>

#include <VyrHost/text/SafeText.h>

namespace VyrHost::Text {

void RefuseValue(const std::string& option, std::u16string_view value, const std::string& reason)
{
    throw UsageError(option + " '" + SafeText(value) + "': " + reason);
}

} // namespace VyrHost::Text
