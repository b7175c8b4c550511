/// @file
/// The seam for changes that keep more than the journal's text can hold.
#pragma once

#include <VyrHost/model/Change.h>

#include <memory>

namespace VyrHost::Model {

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

} // namespace VyrHost::Model
