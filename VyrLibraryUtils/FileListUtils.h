/// @file
/// Writes the date-times of files as text.
#pragma once

#include <VyrLibraryUtils/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryUtils {

/// The date-times of a file as `yyyy/MM/dd HH:mm:ss`, in every locale: the form from which they are written to a file
/// again.
///
/// They are local time by the inverse of the conversion for writing, so that reading and writing a time gives the same
/// instant. Empty when the file has no such date-time.
class VYR_UTILS_API FileListUtils
{
public:
    FileListUtils();
    ~FileListUtils();
    FileListUtils& operator=(const FileListUtils&);

    /// The last-write time.
    static CString GetLastWriteDateTime(CString path);
    /// The creation time.
    static CString GetCreationDateTime(CString path);
    /// The last-access time.
    static CString GetLastAccessDateTime(CString path);
    /// The time when the picture was taken (Exif tag DateTimeOriginal); empty when the picture has none or a malformed
    /// one.
    static CString GetExifDTOrig(CString path);
};

} // namespace VyrLibraryUtils
