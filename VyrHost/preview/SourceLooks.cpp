// Hands entries over to a thread, many at once.
#include <VyrHost/preview/SourceLooks.h>

#include <utility>

namespace VyrHost {

namespace {

using VyrPlatform::FileState;

constexpr std::size_t manyAtOnce = 64;
constexpr std::size_t nowhere = ~std::size_t{0};

} // namespace

SourceLooks::SourceLooks(const EntryList& list, FileOperations& files) : m_list(list), m_files(files)
{
    for (std::uint32_t folder = 0; folder < list.folders.Count(); ++folder)
        m_folders.emplace_back(list.folders[folder].path.View());
    m_asked.reserve(list.entries.size());
    m_states.reserve(list.entries.size());
    m_thread = std::thread(&SourceLooks::Work, this);
}

SourceLooks::~SourceLooks()
{
    if (!m_thread.joinable())
        return;
    m_isGivenUp = true;
    HandOver(true);
    m_thread.join();
}

void SourceLooks::Ask(std::uint32_t entry)
{
    m_asked.push_back(entry);
    if (m_asked.size() % manyAtOnce == 0)
        HandOver(false);
}

std::vector<FileState> SourceLooks::Take(const std::vector<std::uint32_t>& entries)
{
    HandOver(true);
    m_thread.join();
    if (m_asked == entries)
        return std::move(m_states);
    std::vector<std::size_t> places(m_list.entries.size(), nowhere);
    for (std::size_t place = 0; place < m_asked.size(); ++place)
        places[m_asked[place]] = place;
    Looker looker(m_files);
    std::vector<FileState> states;
    states.reserve(entries.size());
    for (const std::uint32_t entry : entries)
        states.push_back(places[entry] == nowhere ? Look(looker, entry) : m_states[places[entry]]);
    return states;
}

void SourceLooks::HandOver(bool isEnd)
{
    {
        const std::lock_guard lock(m_mutex);
        m_handedOver = m_asked;
        m_isEnd = isEnd;
    }
    m_changed.notify_one();
}

void SourceLooks::Work()
{
    Looker looker(m_files);
    for (bool isEnd = false; !isEnd;) {
        std::unique_lock lock(m_mutex);
        m_changed.wait(lock, [this] { return m_isEnd || m_states.size() < m_handedOver.size(); });
        const std::span<const std::uint32_t> asked = m_handedOver;
        isEnd = m_isEnd;
        lock.unlock();
        while (m_states.size() < asked.size() && !m_isGivenUp)
            m_states.push_back(Look(looker, asked[m_states.size()]));
    }
}

FileState SourceLooks::Look(Looker& looker, std::uint32_t entry) const
{
    const Entry& asked = m_list.entries[entry];
    return looker.Look(m_folders[asked.folder], asked.name);
}

} // namespace VyrHost
