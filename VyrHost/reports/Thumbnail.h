/// @file
/// Small pictures for the rows of a page.
#pragma once

#include <VyrLibraryUtils/pictures/PictureSize.h>
#include <VyrPlatform/text/CString.h>

#include <optional>
#include <string>

namespace VyrHost::Reports {

/// What a page shows of a picture.
struct Thumbnail
{
    /// Safe between double quotes (ASCII).
    std::string address;
    VyrLibraryUtils::Pictures::PictureSize size;
    /// How the picture is to be turned: 1 as it is, else as Exif numbers it (2 to 8).
    int orientation = 1;
};

/// The thumbnail that is embedded in the picture at `path`, as a part of the page; where it has none, the picture
/// itself by its address from the folder `reportFolder`.
/// @return nothing where the file has no thumbnail and is no picture that browsers show, or cannot be read.
[[nodiscard]] std::optional<Thumbnail> ThumbnailOf(const CString& path, const CString& reportFolder);

/// The address of the file `path` for a page in the folder `folder`: relative, and percent-encoded byte by byte.
/// @param path,folder  full paths without links and ".." steps.
/// @return nothing where no relative address leads there: on another drive.
[[nodiscard]] std::optional<std::string> RelativeAddress(const CString& path, const CString& folder);

} // namespace VyrHost::Reports
