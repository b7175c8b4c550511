// Hands entries over to a thread, many at once.
#include <VyrHost/batch/SourceLooks.h>

#include <algorithm>
#include <utility>

namespace VyrHost::Batch {

namespace {

using VyrPlatform::FileState;

constexpr std::size_t manyAtOnce = 64;
constexpr std::size_t nowhere = ~std::size_t{0};

} // namespace

SourceLooks::SourceLooks(const Model::EntryList& list, FileOperations& files) : m_list(list), m_files(files)
{
    for (std::uint32_t folder = 0; folder < list.folders.Count(); ++folder)
        m_folders.emplace_back(list.folders[folder].path.View());
    m_asked.reserve(list.entries.size());
    m_thread = std::thread(&SourceLooks::Work, this);
}

SourceLooks::~SourceLooks()
{
    if (!m_thread.joinable())
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_taken = m_handedOver.size();
        m_isEnd = true;
    }
    m_changed.notify_one();
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
    Work();
    m_thread.join();
    m_states.resize(m_asked.size());
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

/// Waits for something to look at; nothing at the end.
SourceLooks::Part SourceLooks::TakePart()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_isEnd || m_taken < m_handedOver.size(); });
    if (m_taken >= m_handedOver.size())
        return {};
    const std::size_t first = m_taken;
    m_taken = std::min(first + manyAtOnce, m_handedOver.size());
    return {first, m_handedOver.subspan(first, m_taken - first)};
}

void SourceLooks::Work()
{
    std::call_once(m_roomMade, [this] { m_states.resize(m_list.entries.size()); });
    Looker looker(m_files);
    for (Part part = TakePart(); !part.entries.empty(); part = TakePart())
        for (std::size_t place = 0; place < part.entries.size(); ++place)
            m_states[part.first + place] = Look(looker, part.entries[place]);
}

FileState SourceLooks::Look(Looker& looker, std::uint32_t entry) const
{
    const Model::Entry& asked = m_list.entries[entry];
    return looker.Look(m_folders[asked.folder], asked.name);
}

} // namespace VyrHost::Batch
