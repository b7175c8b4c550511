// On Linux the XDG base directories say where the program's data folders are.
#include <tests/support/ScratchFolder.h>
#include <tests/support/StdPath.h>
#include <tests/support/UserData.h>

#include <cstdlib>
#include <map>
#include <optional>
#include <string>

namespace VyrTests {

struct UserData::Kept
{
    ScratchFolder folder;
    std::map<std::string, std::optional<std::string>> variables;
};

UserData::UserData() : m_kept(std::make_unique<Kept>())
{
    for (const char* const name : {"XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_STATE_HOME"}) {
        const char* const value = std::getenv(name);
        m_kept->variables[name] = value ? std::optional<std::string>(value) : std::nullopt;
        setenv(name, (ToStdPath(m_kept->folder.Path()) / name).c_str(), 1);
    }
}

UserData::~UserData()
{
    for (const auto& [name, value] : m_kept->variables) {
        if (value)
            setenv(name.c_str(), value->c_str(), 1);
        else
            unsetenv(name.c_str());
    }
}

} // namespace VyrTests
