// The files of the package tzdata.
#include <VyrHostPlatform/TimeZoneFiles.h>

#include <VyrHostPlatform/ReadToEnd.h>
#include <VyrHostPlatform/common/TimeZoneName.h>
#include <VyrPlatform/text/Encoding.h>

#include <filesystem>
#include <system_error>

namespace VyrHostPlatform {

namespace {

constexpr const char* folder = "/usr/share/zoneinfo/";

} // namespace

std::string TimeZoneFile(std::string_view name)
{
    if (!MayBeTimeZone(name))
        return {};
    std::uint32_t error = 0;
    return ReadToEnd(VyrPlatform::Encoding::FromUtf8(folder + std::string(name)), error).value_or(std::string());
}

std::vector<std::string> TimeZoneNames()
{
    namespace fs = std::filesystem;
    std::vector<std::string> names;
    std::error_code error;
    for (fs::recursive_directory_iterator file(folder, error), end; file != end; file.increment(error)) {
        std::string name = file->path().lexically_relative(folder).string();
        if (MayBeTimeZone(name) && file->is_regular_file(error))
            names.push_back(std::move(name));
    }
    return names;
}

} // namespace VyrHostPlatform
