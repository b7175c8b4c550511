/// @file
/// Lists the entries of a folder.
#pragma once

#include <VyrPlatform/Export.h>
#include <VyrPlatform/files/FileSystem.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>
#include <memory>

namespace VyrPlatform {

/// Walks the entries of one folder in the system's order.
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
        /// Given where the system has them (the root folder of a Windows drive has none).
        Given
    };

    /// Opens the folder at `path`. Where that fails, Next returns false at once and Error gives the reason.
    explicit FolderListing(const CString& path, Dots dots = Dots::LeftOut);
    FolderListing(const FolderListing&) = delete;
    FolderListing& operator=(const FolderListing&) = delete;
    ~FolderListing();

    /// Goes to the next entry; false at the end, and when the system fails.
    [[nodiscard]] bool Next();
    /// The entry's name. A Linux name that is not UTF-8 is converted as Encoding.h describes.
    [[nodiscard]] const CString& Name() const noexcept;
    /// The entry's kind from the listing itself; for a link, that of its target (which needs a query).
    [[nodiscard]] FileSystem::Kind Kind() const noexcept;
    [[nodiscard]] bool IsLink() const noexcept;
    /// The system's error code of the last failure, 0 when there was none.
    [[nodiscard]] std::uint32_t Error() const noexcept;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace VyrPlatform
