/// @file
/// The results of changes, with reasons, for all commands.
#pragma once

#include <VyrPlatform/text/CString.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace VyrHost::Model {

enum class Status : std::uint8_t
{
    /// It is done; in a preview: it can be done.
    Done,
    /// The same, but with a number in the name, since the name itself is taken.
    Numbered,
    /// There is nothing to do.
    Unchanged,
    /// The new name is taken, and the user asked to leave such entries alone.
    Skipped,
    /// Done for the folder, but not for everything in it.
    Incomplete,
    /// It was not tried; the reason says why.
    Refused,
    /// The system refused it; the reason says why.
    Failed,
    /// The work ended before it.
    NotReached
};

inline constexpr std::size_t statusCount = static_cast<std::size_t>(Status::NotReached) + 1;

/// The result of one change.
struct Outcome
{
    Status status = Status::NotReached;
    /// The system's error code; 0 where there is none.
    std::uint32_t error = 0;
    /// For people; empty when there is nothing to say.
    CString reason;
};

/// `reason`, a colon and `cause`; only one of them if the other is empty.
[[nodiscard]] CString ReasonAndCause(std::u16string_view reason, std::u16string_view cause);

/// A path in two parts, so that a list of a million names need not join them. The texts belong to the list.
struct ResultPath
{
    /// The path before the name, with a separator at its end: absolute, and as the user named it.
    std::u16string_view folder;
    std::u16string_view shownFolder;
    /// Empty if the folders are the whole paths.
    std::u16string_view name;

    [[nodiscard]] bool IsEmpty() const { return folder.empty() && name.empty(); }
};

/// The old and the new values of a change in place, for people.
struct ResultValues
{
    CString before;
    CString after;
};

/// The content of a folder in numbers.
struct TreeSize
{
    /// The folder itself included.
    std::size_t folders = 0;
    /// Whatever is not a folder.
    std::size_t files = 0;
    /// Of all files together.
    std::int64_t bytes = 0;
};

/// A change and its result; in a preview, the predicted one.
struct Result
{
    /// "rename", "copy" or "move", or the kind of a change in place, such as "times" (Change::Kind).
    std::string_view kind;
    /// What it is done to.
    ResultPath from;
    /// The new path; empty for a change in place, and where there is none.
    ResultPath to;
    /// Returns the values of a change in place. Computed on demand, since most are not needed.
    std::function<ResultValues()> values;

    Status status = Status::NotReached;
    /// Why; empty when there is nothing to say.
    CString reason;

    /// It is about something inside the folder of the result before it, and is not counted.
    bool isPart = false;
    /// The source of the date that rules used, if they had a choice, such as "picture"; else empty.
    CString dateFrom;
    /// The reason why another system would refuse the new name; else empty.
    std::u16string_view warning;
    /// Whether the file was modified or replaced since the batch that is undone; nothing in other cases.
    std::optional<bool> hasChanged;
    /// Of a folder that is copied or moved.
    std::optional<TreeSize> size;
};

/// The results of a command. Each feature stores what it needs and makes its results on demand.
class Results
{
public:
    Results() = default;
    Results(const Results&) = delete;
    Results& operator=(const Results&) = delete;
    virtual ~Results() = default;

    [[nodiscard]] virtual std::size_t Count() const = 0;
    /// The result at `index`, valid until the next call.
    [[nodiscard]] virtual Result At(std::size_t index) const = 0;
};

/// Counts results by status.
class Tally
{
public:
    explicit Tally(const Results& results);

    [[nodiscard]] std::size_t operator[](Status status) const { return m_counts[static_cast<std::size_t>(status)]; }
    [[nodiscard]] std::size_t All() const;
    /// Whether nothing is incomplete, refused, failed or not reached.
    [[nodiscard]] bool IsWhole() const;
    /// The number of done results by kind.
    [[nodiscard]] const std::vector<std::pair<std::string_view, std::size_t>>& Done() const { return m_done; }
    /// The kind of the first result; empty where there is none.
    [[nodiscard]] std::string_view Kind() const { return m_kind; }

private:
    std::array<std::size_t, statusCount> m_counts{};
    std::vector<std::pair<std::string_view, std::size_t>> m_done;
    std::string_view m_kind;
};

} // namespace VyrHost::Model
