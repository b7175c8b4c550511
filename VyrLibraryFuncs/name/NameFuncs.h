/// @file
/// The rename engine: the new path of a file or folder under a rename rule.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <list>
#include <string_view>

namespace VyrLibraryFuncs {

/// The tokens of a name pattern: the end of a folder's name, the camera's maker, the camera's model.
inline constexpr std::u16string_view folderToken = u"<Folder>";
inline constexpr std::u16string_view makeToken = u"<Make>";
inline constexpr std::u16string_view modelToken = u"<Model>";

/// Replaces every "?" of the pattern of a conflict number by `number`: " (?)" and "7" give " (7)".
[[nodiscard]] inline CString FillConflictPattern(CString pattern, std::u16string_view number)
{
    pattern.Replace(u"?", number);
    return pattern;
}

/// Computes new paths from rename rules, numbers conflicting names, and copies or moves folder trees.
///
/// The computations rename nothing: they return the new path of an entry. All counts of characters are in UTF-16 code
/// units. Loops handle one pending event of the calling thread in each pass (VyrPlatform::MessageQueue), so that a
/// host's window stays responsive.
class VYR_FUNCS_API NameFuncs
{
public:
    /// ITEM::renameType: the rename kind. Any other value gives an empty path.
    enum class RenameType : int
    {
        SequenceNumber = 0,
        DateTime = 1,
        AddDelete = 2,
        Convert = 3,
        Replace = 4,
        Extension = 5
    };

    /// ITEM::numberPosition: the parts of the new name. Any other value gives an empty name.
    enum class NumberPosition : int
    {
        /// `numberText1`, the number.
        AfterText = 0,
        /// The number, `numberText1`.
        BeforeText = 1,
        /// `numberText1`, the number, `numberText2`.
        BetweenTexts = 2,
        /// The number, `fileName`.
        BeforeName = 3,
        /// `fileName`, the number.
        AfterName = 4
    };

    /// ITEM::dateTimePosition: the position of the date-time's text. Any other value gives an empty name.
    enum class DateTimePosition : int
    {
        /// The text is the whole name.
        Alone = 0,
        BeforeName = 1,
        AfterName = 2
    };

    /// ITEM::dateTimeTarget: which date-time of the file. Any other value is the zero date-time, 30 December 1899.
    enum class DateTimeTarget : int
    {
        Modified = 0,
        Created = 1,
        Accessed = 2,
        PictureTaken = 3
    };

    /// ITEM::addDeleteType: the operation, with p = `position`, c = `deleteCount`, n = the length of `fileName`. The
    /// path is unchanged where p is greater than n (for the last two, p + c), and for any other value.
    enum class AddDeleteType : int
    {
        /// Inserts `addText` after the first p characters.
        InsertFromStart = 0,
        /// Inserts `addText` before the last p characters.
        InsertFromEnd = 1,
        /// Keeps the first p characters.
        KeepFirst = 2,
        /// Keeps the last p characters.
        KeepLast = 3,
        /// Deletes c characters after the first p.
        DeleteFromStart = 4,
        /// Deletes c characters before the last p.
        DeleteFromEnd = 5
    };

    /// ITEM::convertType: the case conversion. Any other value gives an empty name.
    enum class ConvertType : int
    {
        /// The first character in upper case, the others unchanged.
        FirstUpper = 0,
        Upper = 1,
        Lower = 2
    };

    /// ITEM::extensionType: the change of the extension. Any other value removes it.
    enum class ExtensionType : int
    {
        Upper = 0,
        Lower = 1,
        /// A dot and `newExtension`.
        Replace = 2
    };

    /// CONFLICTITEM::position: the position of the number. Any other value finds no free path.
    enum class ConflictPosition : int
    {
        BeforeName = 0,
        /// Before the extension.
        AfterName = 1
    };

    /// One rename request: an entry, its index in the list, and the rule.
    ///
    /// The caller fills `dirPath`, `fileName` and `extension` by FileUtils::GetSplitDirPath, GetFName and GetExtension
    /// of `filePath` (or carries over the result of an earlier rule); the engine trusts them and never splits
    /// `filePath` again. A computation reads `filePath`, `dirPath`, `fileName`, `extension`, `index` and the fields of
    /// its own kind.
    struct ITEM
    {
        /// The present full path of the file or folder.
        CString filePath;
        /// Texts of the caller; the engine does not read them.
        CString auxText1;
        CString auxText2;
        CString auxText3;
        CString auxText4;
        /// Folder part of `filePath`, with the separator at its end.
        CString dirPath;
        /// Name part: without the extension for a file, the whole name for a folder.
        CString fileName;
        /// Extension with its dot; empty for a folder.
        CString extension;
        /// Index in the list of entries, from 0.
        int index = 0;
        /// A RenameType.
        int renameType = 0;
        /// Sequence number: a NumberPosition.
        int numberPosition = 0;
        /// Sequence number: first literal text.
        CString numberText1;
        /// Sequence number: second literal text.
        CString numberText2;
        /// Sequence number: the number of the entry with `index` 0.
        int startNumber = 0;
        /// Sequence number: the least width, padded with zeros; below 2: no padding.
        int digits = 0;
        /// Sequence number: increment from one entry to the next.
        int step = 0;
        /// Date-time: a DateTimePosition.
        int dateTimePosition = 0;
        /// Date-time: a DateTimeTarget.
        int dateTimeTarget = 0;
        /// Date-time: the user's format, as DateTimeUtils::GetDateTimeFormat reads it.
        CString dateTimeFormat;
        /// Add/delete: an AddDeleteType.
        int addDeleteType = 0;
        /// Add/delete: a position in `fileName`, or the number of characters to keep.
        int position = 0;
        /// Add/delete: the number of characters to delete.
        int deleteCount = 0;
        /// Add/delete: the text to insert.
        CString addText;
        /// Convert: a ConvertType.
        int convertType = 0;
        /// Replace: the text to find; empty: nothing is replaced.
        CString findText;
        /// Replace: the replacement.
        CString replaceText;
        /// Extension: an ExtensionType.
        int extensionType = 0;
        /// Extension: the new one, without its dot.
        CString newExtension;
    };

    /// How conflicting names are numbered.
    struct CONFLICTITEM
    {
        /// The inserted text; the number replaces every "?" in it.
        CString numberFormat;
        /// A ConflictPosition.
        int position = 0;
        /// Number of the first attempt.
        int startNumber = 0;
        /// Increment from one attempt to the next.
        int step = 0;
    };

    /// A folder that CopyFolder or MoveFolder created, with the times of its source folder.
    struct RENAMEITEM
    {
        /// Full path of the source folder.
        CString sourcePath;
        /// Full path of the folder created for it.
        CString destinationPath;
        /// Creation time of the source folder, local.
        COleDateTime dateCreated;
        /// Last-modified time of the source folder, local.
        COleDateTime dateModified;
    };

    NameFuncs();
    ~NameFuncs();
    NameFuncs& operator=(const NameFuncs& other);

    /// The new full path of `item` under its rename kind.
    /// @return empty for a kind other than 0 to 5.
    static CString GetRenameFilePath(ITEM item);
    /// The name part of `path`: without the extension for a file, the whole name for an existing folder.
    static CString GetFName(CString path);
    /// The extension of `path` with its dot; empty for an existing folder and for a name without a dot.
    static CString GetExtension(CString path);
    /// Whether conflicts under the rule of `item` are numbered (GetResolveConflictFilePath): 1 for the kinds sequence
    /// number, date-time and add/delete, and for a new extension (kind 5 with `extensionType` 2), else 0.
    static int IsResolveConflict(ITEM item);

    /// `dirPath` + the name that `numberPosition` makes of `step` x `index` + `startNumber` + `extension`. The number
    /// is a signed 32-bit integer and wraps.
    static CString GetSequenceNumberFilePath(ITEM item);
    /// `dirPath` + the name that `dateTimePosition` makes of the file's date-time + `extension`. Where the file has no
    /// such date-time its text is empty.
    static CString GetDateTimeFilePath(ITEM item);
    /// `dirPath` + `fileName` with characters inserted or deleted + `extension`; `filePath` unchanged where `position`
    /// or `deleteCount` reaches beyond the name. Negative values follow the formulas of the six operations; each part
    /// of the name is limited to the existing characters.
    ///
    ///     Type DeleteFromStart, position 2, deleteCount 3: "abcdef" becomes "abf".
    static CString GetAddDeleteFilePath(ITEM item);
    /// `dirPath` + `fileName` with its case converted, one code unit to one and the same in every locale + `extension`.
    static CString GetConvertFilePath(ITEM item);
    /// `dirPath` + `fileName` with every `findText` replaced by `replaceText`, from the start, without overlap,
    /// case-sensitively + `extension`.
    static CString GetReplaceFilePath(ITEM item);
    /// `dirPath` + `fileName` + the changed extension; `filePath` unchanged when it is an existing folder.
    static CString GetExtensionFilePath(ITEM item);

    /// A path that does not exist: `path` itself, or `path` with the first number that gives a free name.
    ///
    /// The search has no upper bound: with a `numberFormat` without "?", a `step` of 0 or an unknown `position` it may
    /// end only by a stop. A stop gives the last path tried, which may exist.
    ///
    ///     Where "a.txt" exists, the pattern " (?)" after the name gives "a (1).txt".
    static CString GetResolveConflictFilePath(CString path, CONFLICTITEM item);

    /// The current local time written with `format`, every "<Folder>" as a backslash. Empty for an empty `format`.
    static CString GetRenameToSampleFormated(CString format);
    /// The date-time `target` (as ITEM::dateTimeTarget) of the file at `path`, written with `format`. Empty for an
    /// empty `format`.
    static CString GetDateTimeFormat(CString path, CString format, int target);
    /// `format` with every "<Folder>" replaced by a backslash.
    static CString GetFolderFormat(CString format);
    /// `format` with every "<Make>" and "<Model>" replaced by the camera's maker and model in the picture at `path`, by
    /// nothing where it has none. The picture is read only when a token is there.
    static CString GetExifFormat(CString path, CString format);

    /// Copies the entries of the folder `source` into the folder `destination`, folders with their contents, and
    /// overwrites existing files. A created folder gets the mode (on Windows the attributes) of its source.
    ///
    /// Two rules keep files safe: a link to a folder (on Windows also a junction) is copied as a link, is never entered
    /// and gets no record; and nothing is copied when `destination` is `source` itself or inside it, nor from a folder
    /// below `source` into which a link in `destination` leads. On Linux a destination with a ".." step behind a folder
    /// that does not exist counts as inside.
    /// @param source  an empty path, or the path of no folder, gives 0.
    /// @param destination  must exist when `source` directly contains files: it is created only for folders. Empty: the
    /// current folder.
    /// @param records  gets a record for each created folder, parents first. Never cleared. Null: nothing is recorded.
    /// @return 1 when the last copy succeeded, else 0; also 0 when there was nothing to copy. A stop does not end the
    /// walk.
    static int CopyFolder(CString source, CString destination, std::list<RENAMEITEM>* records);
    /// Moves the entries of the folder `source` into the folder `destination` by the rules of CopyFolder, and removes
    /// `source`. A file whose new path is another hard link of the same file is removed.
    /// @return 1 when `source` is gone; 0 when an entry could not be moved.
    static int MoveFolder(CString source, CString destination, std::list<RENAMEITEM>* records);

private:
    friend struct PrivateOperations;

    /// The zeros of GetScaleString and the decimal text of `number`: for 3 digits 5 gives "005", -5 gives "00-5".
    static CString GetSequenceNumber(int digits, int number);
    /// One zero for each of the powers 10 to 10^(digits - 1) that is greater than `number`; fewer after a stop.
    static CString GetScaleString(int digits, int number);
    /// The date-time `target` of the file at `path`.
    static COleDateTime GetSelectedDateTime(CString path, int target);
    /// `format` with every "?" replaced by the decimal text of `number`.
    static CString GetResolveConflictNumber(CString format, int number);
};

} // namespace VyrLibraryFuncs
