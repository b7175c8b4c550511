/// @file
/// Small pictures for the rows of a page.
#pragma once

#include <VyrLibraryUtils/pictures/PictureSize.h>
#include <VyrPlatform/text/CString.h>

#include <optional>
#include <string>

namespace VyrHost::Reports {

/// The picture of a row.
struct Thumbnail
{
    /// Safe between double quotes (ASCII).
    std::string address;
    VyrLibraryUtils::Pictures::PictureSize size;
    /// The Exif orientation, 1 to 8; 1 needs no rotation.
    int orientation = 1;
};

/// The thumbnail that is embedded in the picture at `path`, as a part of the page; if it has none, the picture itself
/// by its address from the folder `reportFolder`.
/// @return nothing if the file has no thumbnail and is not a picture that browsers show, or cannot be read.
[[nodiscard]] std::optional<Thumbnail> ThumbnailOf(const CString& path, const CString& reportFolder);

/// The address of the file `path` for a page in the folder `folder`: relative, and percent-encoded byte by byte.
/// @param path,folder  full paths without links and ".." steps.
/// @return nothing if it is on another drive.
[[nodiscard]] std::optional<std::string> RelativeAddress(const CString& path, const CString& folder);

} // namespace VyrHost::Reports
