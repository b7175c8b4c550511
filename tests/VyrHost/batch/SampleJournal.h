// For tests: a journal that holds everything a journal can hold, its text, and the checks in it.
#pragma once

#include <VyrHost/batch/JournalText.h>
#include <tests/VyrHost/rename/PathRenames.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VyrTests {

/// The path of `name` in the root.
[[nodiscard]] CString Full(const CString& name);
/// The path of `name` in `folder`.
[[nodiscard]] CString In(const CString& folder, const CString& name);

/// A swap, a renamed folder with one of its files moved to a new folder, and a change of case.
[[nodiscard]] VyrHost::Batch::Journal MakeJournal();
/// The journal of `list`, its states empty.
[[nodiscard]] VyrHost::Batch::Journal PlannedJournal(const VyrTests::PathRenames& list);
/// The journal of `count` renames in one folder that do not depend on each other.
[[nodiscard]] VyrHost::Batch::Journal LongJournal(std::uint32_t count);

[[nodiscard]] std::string TextOf(const VyrHost::Batch::Journal& journal);
[[nodiscard]] std::string TextOf(const VyrHost::Batch::Journal& journal, std::uint32_t& check);
[[nodiscard]] VyrHost::Batch::Checkpoint CheckpointAt(const std::vector<VyrHost::Model::PlanIndex>& before,
                                                      const std::vector<VyrHost::Model::PlanIndex>& aside = {});

/// Reads `text`; a test failure, and an empty journal, when it is refused.
[[nodiscard]] VyrHost::Batch::Journal MustRead(std::string_view text);
/// Whether `text` is refused; a test failure when no problem is named then, or one is for a text that is read.
[[nodiscard]] bool IsRefused(std::string_view text);
/// A test failure for whatever differs, the checkpoint and the check left out.
void ExpectSame(const VyrHost::Batch::Journal& journal, const VyrHost::Batch::Journal& expected);
/// A test failure for whatever differs in the checkpoints.
void ExpectSame(const std::optional<VyrHost::Batch::Checkpoint>& checkpoint,
                const std::optional<VyrHost::Batch::Checkpoint>& expected);

/// The CRC-32 of `text`, continued from that of what stands before it, bit after bit from its definition.
[[nodiscard]] std::uint32_t BitwiseCrc(std::uint32_t before, std::string_view text);
/// The last field of a line, with the tab before it and the end of the line: `check` as a journal writes it.
[[nodiscard]] std::string CheckField(std::uint32_t check);
/// `text`, whose last line is open, with the check of it all.
[[nodiscard]] std::string WithCheck(const std::string& text);

} // namespace VyrTests
