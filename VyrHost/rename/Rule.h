/// @file
/// A rule: what it works on, and what it may answer.
#pragma once

#include <VyrHost/rename/Decision.h>
#include <VyrPlatform/text/CString.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace VyrHost::Rename {

/// One entry while the rules work on it, one after the other.
struct Subject
{
    /// Where the entry is now: the source of its dates and picture data. Absolute.
    CString path;
    bool isFolder = false;
    /// The place that counts for sequence numbers, from 0.
    int index = 0;

    /// What the rules have made of it so far. The folder ends in its separator, the extension begins with its dot.
    CString folder;
    CString name;
    CString extension;

    /// Set by a rule that gives no name: what there is to say beyond the reason.
    CString cause = {};

    /// How late among the dates asked for the one stands that a rule took: 0 for the first, the highest of all rules.
    std::size_t dateRank = 0;
    /// The dates that rules with a choice took.
    Model::DateSourceSet datesTaken = {};
};

class Rule
{
public:
    virtual ~Rule() = default;
    /// Changes the subject's folder, name and extension.
    /// @return why there is no name; the subject is not to be used then.
    virtual Reason Apply(Subject& subject) = 0;
    /// Whether names that clash under this rule are to be numbered.
    [[nodiscard]] virtual bool MayNumber() const = 0;
};

using Rules = std::vector<std::unique_ptr<Rule>>;

} // namespace VyrHost::Rename
