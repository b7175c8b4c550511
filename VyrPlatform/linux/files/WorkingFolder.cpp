// Opens files relative to a descriptor of their folder.
#include <VyrPlatform/files/WorkingFolder.h>

#include "Descriptor.h"
#include "EnteredFolder.h"
#include "NativePath.h"

#include <VyrPlatform/text/Encoding.h>

#include <cstring>
#include <fcntl.h>
#include <optional>
#include <string>

namespace VyrPlatform {

namespace {

class EnteredFolder
{
public:
    explicit EnteredFolder(const CString& path) : m_path(NativePath(path).Get())
    {
        // A folder whose path is too long for the system is not entered: the short path to it is not valid for long.
        if (Encoding::ToNameBytes(path) != m_path)
            m_path.clear();
    }

    /// The name of the file at `path` when it is directly in this folder, else a null pointer.
    [[nodiscard]] const char* NameOf(const char* path) const noexcept
    {
        if (m_path.empty() || std::strncmp(path, m_path.c_str(), m_path.size()) != 0)
            return nullptr;
        const char* const name = path + m_path.size();
        return *name == '\0' || std::strchr(name, '/') ? nullptr : name;
    }

    /// A descriptor of the folder, opened on first use; negative when it cannot be opened.
    [[nodiscard]] int Get()
    {
        if (!m_folder)
            m_folder.emplace(open(m_path.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        return m_folder->Get();
    }

private:
    std::string m_path;
    std::optional<Descriptor> m_folder;
};

thread_local EnteredFolder* entered = nullptr;

} // namespace

struct WorkingFolder::State
{
    explicit State(const CString& folder) : path(folder), opened(folder) {}

    CString path;
    EnteredFolder opened;
};

WorkingFolder::WorkingFolder() = default;

WorkingFolder::~WorkingFolder()
{
    if (m_state)
        entered = nullptr;
}

void WorkingFolder::Enter(const CString& path)
{
    if (m_state && m_state->path == path)
        return;
    m_state = std::make_unique<State>(path);
    entered = &m_state->opened;
}

int OpenFromEnteredFolder(const char* path, int flags)
{
    const char* const name = entered ? entered->NameOf(path) : nullptr;
    if (name && entered->Get() >= 0)
        return openat(entered->Get(), name, flags);
    return open(path, flags);
}

} // namespace VyrPlatform
