// For tests: a journal with everything that a journal can contain, its text, and its checksums.
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

/// A swap, a renamed folder, one of whose files moves to a new folder, and a change of case.
[[nodiscard]] VyrHost::Batch::Journal MakeJournal();
/// The journal of `list`, without states.
[[nodiscard]] VyrHost::Batch::Journal PlannedJournal(const VyrTests::PathRenames& list);
/// The journal of `count` independent renames in one folder.
[[nodiscard]] VyrHost::Batch::Journal LongJournal(std::uint32_t count);

[[nodiscard]] std::string TextOf(const VyrHost::Batch::Journal& journal);
[[nodiscard]] std::string TextOf(const VyrHost::Batch::Journal& journal, std::uint32_t& check);
[[nodiscard]] VyrHost::Batch::Checkpoint CheckpointAt(const std::vector<VyrHost::Model::PlanIndex>& before,
                                                      const std::vector<VyrHost::Model::PlanIndex>& aside = {});

/// Reads `text`; a test failure, and an empty journal, when it is refused.
[[nodiscard]] VyrHost::Batch::Journal MustRead(std::string_view text);
/// Whether `text` is refused. Fails the test when a refusal gives no reason, or a text that is read gives one.
[[nodiscard]] bool IsRefused(std::string_view text);
/// Fails the test for every difference, except in the checkpoint and the checksum.
void ExpectSame(const VyrHost::Batch::Journal& journal, const VyrHost::Batch::Journal& expected);
/// Fails the test for every difference of the checkpoints.
void ExpectSame(const std::optional<VyrHost::Batch::Checkpoint>& checkpoint,
                const std::optional<VyrHost::Batch::Checkpoint>& expected);

/// The CRC-32 of `text`, continued from `before`, that of the text in front of it; computed bit by bit from the
/// definition.
[[nodiscard]] std::uint32_t BitwiseCrc(std::uint32_t before, std::string_view text);
/// The last field of a line, with the tab before it and the end of the line: `check` as a journal writes it.
[[nodiscard]] std::string CheckField(std::uint32_t check);
/// `text`, whose last line is not ended, with its checksum.
[[nodiscard]] std::string WithCheck(const std::string& text);

} // namespace VyrTests
