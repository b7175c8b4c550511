/// @file
/// Search criteria over the date-time and the size of files.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <cstdint>

namespace VyrLibraryFuncs {

/// Keeps the search criteria of a host and tells which files meet them.
///
/// The settings live as long as the process and are for one thread. At first neither criterion is active, and the
/// custom range extends from the start of the day seven days before the library was loaded to the end of the day of
/// loading.
///
/// Example: after `SetSizeSearch(1)` and `SetSizeRange(2)`, IsMatch is 1 for files of 1 to 16,384 bytes.
class VYR_FUNCS_API SearchFuncs
{
public:
    /// The setting DateTimeTarget: which date-time of a file is tested. Any other value is the zero date-time, 30
    /// December 1899. (The rename engine has other numbers.)
    enum class DateTimeTarget : int
    {
        Modified = 0,
        Created = 1,
        /// The time when a picture was taken, from its Exif data.
        PictureTaken = 2
    };

    /// The setting DateTimeRange, relative to the current local time. Weeks begin on Sunday. Any other value matches no
    /// date-time.
    enum class DateTimeRange : int
    {
        /// From DateTimeFromDateTime to DateTimeToDateTime, both included; a null bound is open, and with two null
        /// bounds nothing matches.
        Custom = 0,
        Today = 1,
        Yesterday = 2,
        ThisWeek = 3,
        LastWeek = 4,
        ThisMonth = 5,
        LastMonth = 6,
        ThisYear = 7,
        LastYear = 8
    };

    /// The setting SizeRange, in bytes, both ends included. Any other value matches no size.
    enum class SizeRange : int
    {
        /// From SizeFromSize to SizeToSize.
        Custom = 0,
        /// 0.
        Empty = 1,
        /// 1 to 16,384 (16 KiB).
        Tiny = 2,
        /// To 1,048,576 (1 MiB).
        Small = 3,
        /// To 134,217,728 (128 MiB).
        Medium = 4,
        /// To 1,073,741,824 (1 GiB).
        Large = 5,
        /// To 4,294,967,296 (4 GiB).
        Huge = 6,
        /// More.
        Giant = 7,
        /// -1, which means that the size was not computed.
        Folder = 8
    };

    /// Known values of a file.
    struct ITEM
    {
        /// The date-time to test.
        COleDateTime dateTime;
        /// In bytes; -1: not computed.
        std::int64_t size = 0;
    };

    SearchFuncs();
    ~SearchFuncs();
    SearchFuncs& operator=(const SearchFuncs&);

    /// Whether the file or folder at `path` meets the active criteria (1 or 0). A path that does not exist meets them.
    /// A folder has the size -1.
    /// @param reserved  not read.
    static int IsMatch(CString path, int reserved);
    /// Whether `item` meets the active criteria (1 or 0). No file is read.
    static int IsMatch(ITEM item);

    /// Whether the date-time of the file at `path`, chosen by DateTimeTarget, is in the range (1 or 0); 0 where there
    /// is no file.
    static int IsMatchDateTime(CString path);
    /// Whether `value`, local time, is in the range DateTimeRange (1 or 0). An invalid one never is.
    static int IsMatchDateTime(COleDateTime value);

    /// Whether the size of the file at `path` is in the range (1 or 0); 0 where there is no file. Writes a line about
    /// each file to the debugger output.
    /// @param withFolders  not 0: the size of a folder is the sum of the files below it; 0: it is -1.
    static int IsMatchSize(CString path, int withFolders);
    /// Whether `size`, in bytes, is in the range SizeRange (1 or 0).
    static int IsMatchSize(std::int64_t size);

    /// A flag for the host; 0 at first.
    static int GetSearchClosed();
    static void SetSearchClosed(int closed);

    /// Not 0: the date-time criterion is active; 0 at first.
    static int GetDateTimeSearch();
    static void SetDateTimeSearch(int search);
    /// A value of DateTimeTarget; 0 at first.
    static int GetDateTimeTarget();
    static void SetDateTimeTarget(int target);
    /// A value of DateTimeRange; 0 at first.
    static int GetDateTimeRange();
    static void SetDateTimeRange(int range);
    /// The lower bound of the custom range, local time.
    static COleDateTime GetDateTimeFromDateTime();
    static void SetDateTimeFromDateTime(COleDateTime from);
    /// The upper bound of the custom range, local time.
    static COleDateTime GetDateTimeToDateTime();
    static void SetDateTimeToDateTime(COleDateTime to);

    /// Not 0: the size criterion is active; 0 at first.
    static int GetSizeSearch();
    static void SetSizeSearch(int search);
    /// A choice for the host; 0 at first.
    static int GetSizeTarget();
    static void SetSizeTarget(int target);
    /// A value of SizeRange; 0 at first.
    static int GetSizeRange();
    static void SetSizeRange(int range);
    /// The lower bound of the custom range, in bytes; 0 at first.
    static std::int64_t GetSizeFromSize();
    static void SetSizeFromSize(std::int64_t from);
    /// The upper bound of the custom range, in bytes; 1024 at first.
    static std::int64_t GetSizeToSize();
    static void SetSizeToSize(std::int64_t to);

private:
    static int m_searchClosed;
    static int m_dateTimeSearch;
    static int m_dateTimeTarget;
    static int m_dateTimeRange;
    static COleDateTime m_dateTimeFromDateTime;
    static COleDateTime m_dateTimeToDateTime;
    static int m_sizeSearch;
    static int m_sizeTarget;
    static int m_sizeRange;
    static std::int64_t m_sizeFromSize;
    static std::int64_t m_sizeToSize;
};

} // namespace VyrLibraryFuncs
