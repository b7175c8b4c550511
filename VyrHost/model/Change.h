/// @file
/// The interface for changes other than renames: what a kind of change provides to be journalled, undone and recovered.
#pragma once

#include <VyrPlatform/files/FileIdentity.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace VyrHost::Model {

/// How far a change is done.
enum class ChangeState : std::uint8_t
{
    /// All that the change sets is as it was before.
    Before,
    /// A part is as before, the rest as the change sets it: the work was cut off.
    Partly,
    /// All is as the change sets it.
    After,
    /// Something is neither: another program has changed it.
    Other,
    /// It cannot be read.
    Unknown
};

struct ChangeLook
{
    ChangeState state = ChangeState::Unknown;
    /// The system's error code; 0 unless the state is Unknown.
    std::uint32_t error = 0;
    /// What another program has changed and an undo leaves as it is, for people; empty where there is nothing.
    std::u16string_view left = {};
};

/// A change of one file or folder, with the new and the old values. It has no path: the batch knows where the file is.
/// The error codes are the system's, 0 for success.
class Change
{
public:
    Change() = default;
    Change(const Change&) = delete;
    Change& operator=(const Change&) = delete;
    virtual ~Change() = default;

    /// The name of its kind in the journal: lower-case ASCII letters, and not "rename".
    [[nodiscard]] virtual std::string_view Kind() const = 0;

    /// The old and the new values, as the journal stores them; the reader of the kind parses both.
    [[nodiscard]] virtual CString Before() const = 0;
    [[nodiscard]] virtual CString After() const = 0;
    /// The same for people.
    [[nodiscard]] virtual CString ShownBefore() const = 0;
    [[nodiscard]] virtual CString ShownAfter() const = 0;

    /// Whether it is done after the renames of its batch, at the file's new path, and undone before them; otherwise the
    /// other way round.
    [[nodiscard]] virtual bool FollowsRenames() const { return false; }

    /// The only file that the change affects; nothing if unknown. Two threads may apply changes of different files at
    /// the same time.
    [[nodiscard]] virtual std::optional<VyrPlatform::FileIdentity> OnlyFile() const { return std::nullopt; }

    /// Whether the work makes a read-only file writable for a time, and the change itself does not store what to
    /// restore.
    [[nodiscard]] virtual bool MayLiftProtection() const { return false; }
    /// After interrupted work: restores what was changed only temporarily, such as the protection against writing.
    /// Called before Look.
    virtual void Repair(const CString& /*path*/) const {}
    /// Whether the file at `path` is still as it was set.
    [[nodiscard]] virtual ChangeLook Look(const CString& path) const = 0;
    /// Sets the new values. Called for a file whose state is Before or Partly.
    [[nodiscard]] virtual std::uint32_t Apply(const CString& path) const = 0;
    /// Restores the old values. Called for a file whose state is After or Partly.
    [[nodiscard]] virtual std::uint32_t Undo(const CString& path) const = 0;
};

/// A change that keeps a file, such as the whole old document, beside the journal of its batch.
class KeepsFile
{
public:
    KeepsFile() = default;
    KeepsFile(const KeepsFile&) = delete;
    KeepsFile& operator=(const KeepsFile&) = delete;
    virtual ~KeepsFile() = default;

    /// The same change in a batch. It may keep files whose paths begin with `kept` and a dot, and which are removed
    /// together with the journal. The first change that keeps one creates the folder.
    [[nodiscard]] virtual std::shared_ptr<const Change> KeepingAt(const CString& kept) const = 0;
};

/// Makes a change from its texts in the journal; null for texts that its kind never writes.
using ChangeReader = std::function<std::shared_ptr<const Change>(const CString& before, const CString& after)>;

/// The known kinds of change other than renames, by name.
using ChangeKinds = std::map<std::string, ChangeReader, std::less<>>;

} // namespace VyrHost::Model
