/// @file
/// Writes the date-times of files as text.
#pragma once

#include <VyrLibraryUtils/Export.h>
#include <VyrPlatform/text/CString.h>

namespace VyrLibraryUtils {

/// The date-times of a file as `yyyy/MM/dd HH:mm:ss`, whatever the locale: the form that is read back when they are
/// written to a file again.
///
/// They are local time by the inverse of the conversion that writes them, so that a time read and written is the same
/// instant. An empty text when the file has no such date-time.
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
    /// The moment at which the picture was taken (Exif tag DateTimeOriginal); empty when the picture has none or a
    /// malformed one.
    static CString GetExifDTOrig(CString path);
};

} // namespace VyrLibraryUtils
