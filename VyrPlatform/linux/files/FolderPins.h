// Reaches files whose paths are too long for the system, through the folders above them.
#pragma once

#include "Descriptor.h"

#include <functional>
#include <map>
#include <string>
#include <string_view>

namespace VyrPlatform {

/// Keeps the folders on the way open.
class FolderPins
{
public:
    /// A short path to the entry at `path`, valid until the next call and as long as this lives; empty when a folder on
    /// the way cannot be opened.
    [[nodiscard]] std::string Shorten(std::string_view path);

private:
    /// A descriptor of the folder at the first `end` bytes of `path`, whose first `start` bytes are the path of
    /// `parent`; negative when it cannot be opened.
    [[nodiscard]] int Open(std::string_view path, int parent, std::size_t start, std::size_t end);

    std::map<std::string, Descriptor, std::less<>> m_folders;
};

/// The pins that this thread shares among all its paths; a null pointer where each path has its own.
[[nodiscard]] FolderPins* SharedFolderPins() noexcept;

} // namespace VyrPlatform
