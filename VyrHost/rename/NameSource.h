/// @file
/// Where new names come from.
#pragma once

#include <VyrHost/model/EntryList.h>
#include <VyrHost/rename/Decision.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <span>
#include <vector>

namespace VyrHost::Rename {

/// What an entry is to be called, whatever else has that name.
struct WantedName
{
    /// Absolute, its separator at the end; and how it is shown.
    CString folder;
    CString shownFolder;
    /// With its extension.
    CString name;
    /// Why there is no name.
    Reason reason = Reason::None;
    /// What there is to say beyond the reason; empty for nothing.
    CString cause = {};
    /// The dates that rules with a choice took for it.
    Model::DateSourceSet datesTaken = {};
};

class NameSource
{
public:
    virtual ~NameSource() = default;

    /// Names the entries of `list` that keep together. Called for one group after the other, in the order of the list,
    /// with what is there alone; `names` gets one name for each of `members`.
    virtual void Name(const Model::EntryList& list, std::span<const std::uint32_t> members,
                      std::vector<WantedName>& names) = 0;
    /// Whether names that clash are to be numbered.
    [[nodiscard]] virtual bool MayNumber() const = 0;
};

} // namespace VyrHost::Rename
