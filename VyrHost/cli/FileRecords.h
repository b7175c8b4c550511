/// @file
/// Files as records: their columns, and how they are collected.
#pragma once

#include <VyrHost/collect/CollectEntries.h>
#include <VyrHost/collect/Sorting.h>
#include <VyrHost/metadata/ListedFile.h>
#include <VyrHost/ui/RecordTable.h>

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace VyrHost::Cli {

/// `ticks` in local time; from 1900 on with the offset from UTC, since COleDateTime does not count earlier days evenly.
/// No value for a missing time or one out of range.
[[nodiscard]] Ui::RecordValue DateOf(const std::optional<VyrPlatform::FileTicks>& ticks);

/// All columns of a file.
[[nodiscard]] std::span<const Ui::RecordField<Metadata::ListedFile>> FileFields();

/// The files of a list. Leaves out missing ones, and complains about them.
class FileRecords
{
public:
    explicit FileRecords(const Collect::SourceSettings& sources, Collect::SortSettings order = {});
    FileRecords(const FileRecords&) = delete;
    FileRecords& operator=(const FileRecords&) = delete;

    /// Valid as long as the records live.
    [[nodiscard]] Ui::RecordTable Table() const;
    /// Such as "3 entries. 1 entry was left out."
    [[nodiscard]] std::string Total() const;
    /// The exit code for the complaints.
    [[nodiscard]] int Code() const { return m_code; }

private:
    Collect::CollectedEntries m_collected;
    std::vector<Metadata::ListedFile> m_files;
    int m_code;
};

} // namespace VyrHost::Cli
