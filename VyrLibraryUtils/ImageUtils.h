/// @file
/// Reads when a picture was taken, and by which camera.
#pragma once

#include <VyrLibraryUtils/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryUtils {

/// Reads the Exif tags of a picture: JPEG, PNG, WebP, HEIC, HEIF, AVIF, JPEG XL, TIFF, and the raw formats DNG, CR2,
/// CR3, NEF, ARW, ORF, RW2, PEF and RAF. The first bytes tell the format, never the file's name.
///
/// Every operation opens the file once and reads only the bytes that it needs; the picture is not decoded. A file that
/// is missing, damaged, or of another format gives an empty text, as does a tag that is missing, blank or filled with
/// zeros. Trailing blanks and NULs are removed. Valid UTF-8 is read as such, any other text as Latin-1.
class VYR_UTILS_API ImageUtils
{
public:
    ImageUtils();
    ~ImageUtils();
    ImageUtils& operator=(const ImageUtils& other);

    /// The time when the picture at `path` was taken, in Exif's form `yyyy:MM:dd HH:mm:ss` (the camera's local time):
    /// the tag DateTimeOriginal of the Exif directory; where that has none, of the picture's first directory. No other
    /// tag is used.
    static CString GetPropertyTagExifDTOrig(CString path);
    /// The maker of the camera: the tag Make of the picture's first directory.
    static CString GetEquipMake(CString path);
    /// The model of the camera: the tag Model of the picture's first directory.
    static CString GetEquipModel(CString path);
};

} // namespace VyrLibraryUtils
