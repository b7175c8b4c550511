/// @file
/// Splits and joins paths, and answers questions about files.
#pragma once

#include <VyrLibraryUtils/Export.h>
#include <VyrPlatform/text/CString.h>

#include <cstdint>

namespace VyrLibraryUtils {

/// Paths and files.
///
/// Path styles: on Windows a path is a Windows path. On Linux it is a Linux path, unless it starts with a drive letter,
/// a colon and a separator, or with two backslashes: then it is split as a Windows path. In a Windows path both `\` and
/// `/` are separators; in a Linux path only `/` is, and a backslash is an ordinary character.
///
/// Parts of a path: the folder part ends with the last separator (in a Windows path such as `C:a` it is the drive,
/// `C:`). The rest is the file name. The extension starts at the file name's last dot; dots at the beginning of the
/// name do not start one (`.bashrc` has no extension), and a dot at the end is an extension (`a.` has `.`). Folder part
/// + base name + extension is the path again, for every text.
///
///     "/photos/a.b.jpg" has the folder part "/photos/", the base name "a.b" and the extension ".jpg".
class VYR_UTILS_API FileUtils
{
public:
    FileUtils();
    ~FileUtils();
    FileUtils& operator=(const FileUtils&);

    /// The folder part of `path`, ending in the separator; empty for a bare name, everything when `path` ends in a
    /// separator.
    static CString GetSplitDirPath(CString path);
    /// The file name of `path` without its extension.
    static CString GetSplitFName(CString path);
    /// The extension of `path`; empty when the name has none.
    /// @param withDot 1: with its leading dot; any other value: without.
    static CString GetSplitExtension(CString path, int withDot);
    /// The file name of `path` with its extension.
    static CString GetSplitFileName(CString path);
    /// One part of `path`.
    /// @param part 0: the whole path. 1: its drive or root (`/`; `C:\`; `C:` of `C:a`; `\\server\share\`), empty when
    ///     it has none. 2: the folder part. 3: the file name with its extension. 4: the extension with its dot.
    ///     5: the base name, without folder and extension. Any other value gives an empty text.
    static CString GetSplitPath(CString path, int part);
    /// `folder` and `relative` with exactly one separator between them, however many they have there.
    ///
    /// The separator is the last one in `folder`, else that of its style. If one of the two is empty, the result is the
    /// other.
    static CString GetCombinePath(CString folder, CString relative);

    /// 1 when there is a file, a folder or another entry at `path` (also a link that leads nowhere), else 0.
    static int IsFileExist(CString path);
    /// 1 when `path` is an existing folder, or a link to one, else 0.
    static int IsDirectory(CString path);
    /// 1 when the read-only attribute of the file at `path` is set, else 0 (also when there is no file).
    static int IsReadOnly(CString path);
    /// Removes the mark that the file at `path` was downloaded.
    /// @return 1 when there was a mark and none is left, else 0.
    static int DeleteZoneId(CString path);

    /// The size in bytes of the file at `path`; for a folder the sum of all files below it, without following links; -1
    /// when there is nothing. Files that cannot be read count as 0; a sum beyond the type's range becomes its largest
    /// value.
    static std::int64_t GetFileSize(CString path);
    /// A size as text for people, with the decimal mark and separators of the user's locale.
    /// @param size in bytes; a negative one (unknown) gives an empty text.
    /// @param format 1: the bytes with thousands separators, "1,234 bytes". Any other value: the same below 1 KB, from
    /// there on in KB, MB, GB, TB or PB by 1024, in the first of them that gives a number below 1,000, with at most
    /// three digits ("1.30 KB", "22.9 KB", "0.97 MB"; whole PB beyond 999); further digits are cut off.
    static CString GetFileSize(std::int64_t size, int format);

    /// The full path of the running program's executable file.
    static CString GetModuleFilePath();
    /// The file name of the running program's executable, with its extension.
    static CString GetAppFileName();
    /// The full path of the file `name` in the system's directory, whether it exists or not; empty for an empty name.
    static CString GetSystemFilePath(CString name);
    /// The folder of the system's built-in apps, without a separator at its end.
    static CString GetWindowsSystemAppsDirectoryPath();
};

} // namespace VyrLibraryUtils
