/// @file
/// The seam for changes other than renames: what a kind of change brings so that it can be journalled, undone and
/// recovered.
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

/// How far a file has a change.
enum class ChangeState : std::uint8_t
{
    /// All that the change sets is as it was before.
    Before,
    /// A part is as it was before, the rest as the change sets it: the work on it was cut off.
    Partly,
    /// All is as the change sets it.
    After,
    /// Something is neither: another program has changed it.
    Other,
    /// It cannot be looked at.
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

/// One change of one file or folder, with what it sets and what was there before. It holds no path: the batch knows
/// where the file stands. The error codes are the system's, 0 for success.
class Change
{
public:
    Change() = default;
    Change(const Change&) = delete;
    Change& operator=(const Change&) = delete;
    virtual ~Change() = default;

    /// The name of its kind in the journal: lower-case ASCII letters, and not "rename".
    [[nodiscard]] virtual std::string_view Kind() const = 0;

    /// What was there before and what the change sets, as the journal keeps them. The kind's reader takes both.
    [[nodiscard]] virtual CString Before() const = 0;
    [[nodiscard]] virtual CString After() const = 0;
    /// The same for people.
    [[nodiscard]] virtual CString ShownBefore() const = 0;
    [[nodiscard]] virtual CString ShownAfter() const = 0;

    /// Whether it is done to the file after the renames of its batch, where the file stands then, and undone before
    /// they are; otherwise the other way round.
    [[nodiscard]] virtual bool FollowsRenames() const { return false; }

    /// The only file that the change touches, or nothing where that is not known. Changes of different files may be
    /// applied on two threads at the same time.
    [[nodiscard]] virtual std::optional<VyrPlatform::FileIdentity> OnlyFile() const { return std::nullopt; }

    /// Whether the work lifts the file's protection against writing while it lasts, and the change itself does not keep
    /// what to restore.
    [[nodiscard]] virtual bool MayLiftProtection() const { return false; }
    /// Where the work on the file was cut off: restores what was changed only while it lasted, such as the protection
    /// against writing. Called before Look.
    virtual void Repair(const CString& /*path*/) const {}
    /// Whether the file at `path` is still as it was set.
    [[nodiscard]] virtual ChangeLook Look(const CString& path) const = 0;
    /// Sets what the change is to set. Asked for a file whose state is Before or Partly.
    [[nodiscard]] virtual std::uint32_t Apply(const CString& path) const = 0;
    /// Restores what was there before. Asked for a file whose state is After or Partly.
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

    /// The same change in a batch, which may keep files whose paths begin with `kept` and a dot. They are removed
    /// together with the journal. The folder is made by the first change that keeps one.
    [[nodiscard]] virtual std::shared_ptr<const Change> KeepingAt(const CString& kept) const = 0;
};

/// Makes a change of what the journal keeps of it; null for texts that its kind never writes.
using ChangeReader = std::function<std::shared_ptr<const Change>(const CString& before, const CString& after)>;

/// The kinds of change that a program knows besides the rename, by their names.
using ChangeKinds = std::map<std::string, ChangeReader, std::less<>>;

} // namespace VyrHost::Model
