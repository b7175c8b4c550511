/// @file
/// The changes of metadata: what becomes of each entry of a list, the batch that is made of it, its results, and the
/// texts in which the journal keeps changes.
#pragma once

#include <VyrHost/batch/Batches.h>
#include <VyrHost/model/Change.h>
#include <VyrHost/model/EntryList.h>
#include <VyrHost/model/Result.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace VyrHost::Metadata {

/// What becomes of one entry. Without a change and a refusal it stays as it is, since it is so already.
struct Proposal
{
    std::shared_ptr<const Model::Change> change;
    /// Why it is not changed, for people.
    CString refusal;
};

/// A rule that says for an entry what is to become of it. It looks at the file and changes nothing.
class ChangeRule
{
public:
    ChangeRule() = default;
    ChangeRule(const ChangeRule&) = delete;
    ChangeRule& operator=(const ChangeRule&) = delete;
    virtual ~ChangeRule() = default;

    /// @param index  the entry's place in the list.
    [[nodiscard]] virtual Proposal Propose(const CString& path, const Model::Entry& entry, std::size_t index) const = 0;
};

/// Asks `rule` about each entry of `list`. What the list names and the disk does not have is refused. `report` is
/// called after each with how many are done.
[[nodiscard]] std::vector<Proposal> ProposeChanges(const ChangeRule& rule, const Model::EntryList& list,
                                                   const std::function<void(std::size_t done)>& report);

/// The changes of `proposals`, one for each entry of `list`, as a batch of `command`.
/// @param entries  gets the index in the list of each change of the batch.
[[nodiscard]] Batch::NewBatch MakeBatch(const CString& command, const Model::EntryList& list,
                                        const std::vector<Proposal>& proposals, std::vector<std::size_t>& entries);

/// The proposals for a list, and later what came of them.
class ChangeResults final : public Model::Results
{
public:
    /// @param kind  of the changes. The list must outlive the results.
    ChangeResults(std::string_view kind, const Model::EntryList& list, std::vector<Proposal> proposals);

    /// What became of the change of an entry.
    void Set(std::size_t entry, const Model::Outcome& outcome) { m_outcomes[entry] = outcome; }

    [[nodiscard]] std::size_t Count() const override { return m_proposals.size(); }
    [[nodiscard]] Model::Result At(std::size_t index) const override;

private:
    std::string_view m_kind;
    const Model::EntryList& m_list;
    std::vector<Proposal> m_proposals;
    std::vector<Model::Outcome> m_outcomes;
};

/// Times, attributes and marks.
[[nodiscard]] Model::ChangeKinds Kinds();

/// Cuts what stands before the next `mark` off the front of `text`, and the mark; all of it where there is none.
[[nodiscard]] std::u16string_view TakeUpTo(std::u16string_view& text, char16_t mark);

/// All of `text` as a number in `base`; nothing when it is none.
[[nodiscard]] std::optional<std::int64_t> ReadWhole(std::u16string_view text, int base = 10);

/// Bytes in hexadecimal.
[[nodiscard]] std::u16string ToHex(std::string_view bytes);
/// The inverse; nothing for a text that ToHex does not give.
[[nodiscard]] std::optional<std::string> FromHex(std::u16string_view text);

} // namespace VyrHost::Metadata
