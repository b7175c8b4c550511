/// @file
/// Lists the entries of a folder.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <memory>

namespace VyrPlatform {

/// Walks the entries of one folder in the order in which the system gives them.
///
///     for (FolderListing listing(path); listing.Next();)
///         use(listing.Name(), listing.Kind());
class VYR_PLATFORM_API FolderListing
{
public:
    /// Whether the entries "." and ".." are listed.
    enum class Dots : std::uint8_t
    {
        LeftOut,
        /// Given where the system gives them (the root folder of a Windows drive has none).
        Given
    };

    /// Opens the folder at `path`. Where that fails, Next answers false at once and Error says why.
    explicit FolderListing(const CString& path, Dots dots = Dots::LeftOut);
    FolderListing(const FolderListing&) = delete;
    FolderListing& operator=(const FolderListing&) = delete;
    ~FolderListing();

    /// Goes to the next entry; false at the end, and when the system fails.
    [[nodiscard]] bool Next();
    /// The entry's name. A Linux name that is not UTF-8 is mapped as Encoding.h says.
    [[nodiscard]] const CString& Name() const noexcept;
    /// The entry's kind as the listing itself tells it; for a link, what it leads to (which asks the system once more).
    [[nodiscard]] FileSystem::Kind Kind() const noexcept;
    [[nodiscard]] bool IsLink() const noexcept;
    /// The system's error code of the last failure, 0 when there was none.
    [[nodiscard]] std::uint32_t Error() const noexcept;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace VyrPlatform
