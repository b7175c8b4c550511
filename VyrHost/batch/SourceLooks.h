/// @file
/// Looks at files that will be renamed while the rest of the batch is still being thought out.
#pragma once

#include <VyrHost/batch/Looker.h>
#include <VyrHost/model/EntryList.h>

#include <condition_variable>
#include <cstdint>
#include <mutex>
#include <span>
#include <thread>
#include <vector>

namespace VyrHost::Batch {

/// A thread that looks at the entries it is asked for, one after the other. The naming of a long list takes about as
/// long as the looks at its files, and neither needs the other.
class SourceLooks
{
public:
    /// @param list is used as long as this lives: its entries stay as they are, their names in their places.
    SourceLooks(const Model::EntryList& list, FileOperations& files);
    SourceLooks(const SourceLooks&) = delete;
    SourceLooks& operator=(const SourceLooks&) = delete;
    /// Leaves the looks that are not done yet.
    ~SourceLooks();

    /// Has `entry` looked at; to be called once for each entry at most.
    void Ask(std::uint32_t entry);
    /// Helps the thread until all is looked at; to be called once.
    /// @return what stands at each of `entries`, those included that were not asked for.
    [[nodiscard]] std::vector<VyrPlatform::FileState> Take(const std::vector<std::uint32_t>& entries);

private:
    /// Some of the asked, the first of them at the place `first` there.
    struct Part
    {
        std::size_t first = 0;
        std::span<const std::uint32_t> entries;
    };

    void HandOver(bool isEnd);
    [[nodiscard]] Part TakePart();
    void Work();
    [[nodiscard]] VyrPlatform::FileState Look(Looker& looker, std::uint32_t entry) const;

    const Model::EntryList& m_list;
    FileOperations& m_files;
    /// The paths of the folders: the list's own folders may become more meanwhile. They share no text with those, whose
    /// counts of owners would go to and fro between the processor's cores.
    std::vector<CString> m_folders;
    /// Has room for all entries from the beginning: what is handed over stays in its place.
    std::vector<std::uint32_t> m_asked;
    /// For each of the asked; whoever took a part writes those of the part. New memory takes time: the room is made by
    /// whoever works first, which is the thread as a rule.
    std::vector<VyrPlatform::FileState> m_states;
    std::once_flag m_roomMade;

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::span<const std::uint32_t> m_handedOver;
    std::size_t m_taken = 0;
    bool m_isEnd = false;
    std::thread m_thread;
};

} // namespace VyrHost::Batch
