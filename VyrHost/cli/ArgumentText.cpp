// Turns arguments into the parser's bytes and back.
#include <VyrHost/cli/ArgumentText.h>

#include <VyrPlatform/Encoding.h>

#include <string_view>

namespace VyrHost {

namespace {

/// Stands in front of an argument that begins with what the parser would take for a list. No option begins with it.
constexpr char Guard = '\xFF';

} // namespace

std::string ToParser(const CString& argument)
{
    std::string bytes = VyrPlatform::Encoding::ToNameBytes(argument);
    if (bytes.starts_with('[') || bytes.starts_with(Guard))
        bytes.insert(bytes.begin(), Guard);
    return bytes;
}

CString FromParser(const std::string& bytes)
{
    std::string_view text = bytes;
    if (text.starts_with(Guard))
        text.remove_prefix(1);
    return VyrPlatform::Encoding::FromNameBytes(text);
}

} // namespace VyrHost
