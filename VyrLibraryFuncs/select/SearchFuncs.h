/// @file
/// Search criteria over the date-time and the size of files.
#pragma once

#include <VyrLibraryFuncs/Export.h>
#include <VyrPlatform/text/CString.h>
#include <VyrPlatform/time/COleDateTime.h>

#include <cstdint>

namespace VyrLibraryFuncs {

/// Holds the search criteria of a host and tells which files meet them.
///
/// The settings live as long as the process and are for one thread. At first neither criterion is in force, and the
/// bounds of the custom range reach from the start of the day seven days before the library was loaded to the end of
/// the day on which it was.
///
/// Example: after `SetSizeSearch(1)` and `SetSizeRange(2)`, IsMatch is 1 for files of 1 to 16,384 bytes.
class VYR_FUNCS_API SearchFuncs
{
public:
    /// The setting DateTimeTarget: which date-time of a file is tested. Any other value is the zero date-time, 30
    /// December 1899. (The rename engine numbers them otherwise.)
    enum class DateTimeTarget : int
    {
        Modified = 0,
        Created = 1,
        /// The moment a picture was taken, as its Exif data tells it.
        PictureTaken = 2
    };

    /// The setting DateTimeRange, seen from the current local time. Weeks begin on Sunday. Any other value matches no
    /// date-time.
    enum class DateTimeRange : int
    {
        /// From DateTimeFromDateTime to DateTimeToDateTime, both included; a bound that is null is open, and where both
        /// are, nothing matches.
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
        /// -1, the size that was not computed.
        Folder = 8
    };

    /// What is known of a file already.
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

    /// Whether the file or folder at `path` meets the criteria that are in force (1 or 0). A path at which nothing
    /// stands meets them. A folder counts with the size -1.
    /// @param reserved  not read.
    static int IsMatch(CString path, int reserved);
    /// Whether `item` meets the criteria that are in force (1 or 0). No file is looked at.
    static int IsMatch(ITEM item);

    /// Whether the date-time of the file at `path` that DateTimeTarget names is in the range (1 or 0); 0 where nothing
    /// stands.
    static int IsMatchDateTime(CString path);
    /// Whether `value`, local time, is in the range DateTimeRange (1 or 0). An invalid one is in none.
    static int IsMatchDateTime(COleDateTime value);

    /// Whether the size of the file at `path` is in the range (1 or 0); 0 where nothing stands. Writes a line about
    /// each file to the debugger output.
    /// @param withFolders  not 0: a folder counts with the sum of the files below it; 0: with -1.
    static int IsMatchSize(CString path, int withFolders);
    /// Whether `size`, in bytes, is in the range SizeRange (1 or 0).
    static int IsMatchSize(std::int64_t size);

    /// A flag of the host's own; 0 at first.
    static int GetSearchClosed();
    static void SetSearchClosed(int closed);

    /// Not 0: the date-time criterion is in force; 0 at first.
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

    /// Not 0: the size criterion is in force; 0 at first.
    static int GetSizeSearch();
    static void SetSizeSearch(int search);
    /// A choice of the host's own; 0 at first.
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
